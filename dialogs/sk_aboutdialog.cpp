#include "dialogs/sk_aboutdialog.h"

#include "service/service.h"
#include "ui_sk_aboutdialog.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QStringList>

namespace {

const char kInstallFolder[] = "C:/Program Files (x86)/StrataKeep";

// Store packages number their versions with four numbers and no dash: 9.3.3-00097
// becomes 9.33.97.0.
QString packageVersion(const QString &buildString)
{
    const QStringList parts = buildString.split(QLatin1Char('.'));
    if (parts.size() < 3)
        return buildString;
    const QStringList patchAndBuild = parts.at(2).split(QLatin1Char('-'));
    const QString &patch = patchAndBuild.at(0);
    const QString second = patch.toInt() != 0
                               ? QString::number(parts.at(1).toInt() * 10 + patch.toInt())
                               : parts.at(1);
    if (patchAndBuild.size() < 2)
        return buildString;
    return parts.at(0) + QLatin1Char('.') + second + QLatin1Char('.') +
           QString::number(patchAndBuild.at(1).toInt()) + QStringLiteral(".0");
}

} // namespace

SK_AboutDialog::SK_AboutDialog(SK_RaidApi &service, QWidget *parent, const QString &buildString)
    : QDialog(parent), api(&service), ui(std::make_unique<Ui::SK_AboutDialog>())
{
    // Opening a dialog reads the configuration afresh.
    api->RefreshConfig();
    ui->setupUi(this);
    ui->appVersionlabel->setText(tr("Application Version:"));
    ui->skraidLabel->setText(tr("skraid.sys:"));
    ui->skcfgLabel->setText(tr("skcfg.sys:"));
    ui->skbottomLabel->setText(tr("skbottom.sys:"));
    const QPixmap picture(QStringLiteral(":/images/icons/AboutRaid.png"));
    if (!picture.isNull())
        ui->ImageLabel->setPixmap(picture.scaled(ui->ImageLabel->width(), ui->ImageLabel->height(),
                                                 Qt::IgnoreAspectRatio, Qt::SmoothTransformation));

    QString skraid, skcfg, skbottom;
    SK_RaidApi::GetDriverVersion(QStringLiteral("skraid.sys"), skraid);
    SK_RaidApi::GetDriverVersion(QStringLiteral("skcfg.sys"), skcfg);
    SK_RaidApi::GetDriverVersion(QStringLiteral("skbottom.sys"), skbottom);

    const QString build =
        buildString.isEmpty() ? QCoreApplication::applicationVersion() : buildString;
    ui->AppVersionValue->setText(displayedVersion(build, QCoreApplication::applicationDirPath()));
    ui->skraidValue->setText(skraid);
    ui->skcfgValue->setText(skcfg);
    ui->skbottomValue->setText(skbottom);
}

SK_AboutDialog::~SK_AboutDialog() = default;

QString SK_AboutDialog::displayedVersion(const QString &buildString, const QString &appDir)
{
    if (appDir == QLatin1String(kInstallFolder))
        return buildString;
    return packageVersion(buildString) + QStringLiteral(" UWP");
}
