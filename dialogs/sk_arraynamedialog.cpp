#include "dialogs/sk_arraynamedialog.h"

#include "service/service.h"
#include "ui_sk_arraynamedialog.h"

#include <QCoreApplication>
#include <QIcon>
#include <QMessageBox>

SK_ArrayNameDialog::SK_ArrayNameDialog(SK_RaidApi &service, quint32 array, QWidget *parent)
    : QDialog(parent), api(&service), arrayId(array), ui(std::make_unique<Ui::SK_ArrayNameDialog>())
{
    // Opening a dialog reads the configuration afresh.
    api->RefreshConfig();
    ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":images/icons/Logo.ico")));
    ui->arrayNameLabel->setText(tr("Enter an array name of up to 30 characters."));
    ui->okButton->setText(tr("OK"));
    ui->cancelButton->setText(tr("Cancel"));
    initArrayNameDialog();
}

SK_ArrayNameDialog::~SK_ArrayNameDialog() = default;

void SK_ArrayNameDialog::initArrayNameDialog()
{
    const SK_ConfigArray *array = api->GetArrayRecord(static_cast<int>(arrayId));
    if (!array)
        return;
    ui->arrayNameLineEdit->setText(QString::fromLocal8Bit(array->DisplayName));
    ui->arrayNameLineEdit->setMaxLength(30);
    ui->okButton->show();
}

// The present name counts as taken, so OK on an unchanged name is refused like any
// duplicate. A rename the driver refuses closes in silence; the refresh shows the old
// name.
void SK_ArrayNameDialog::on_okButton_clicked()
{
    const QString name = ui->arrayNameLineEdit->text().trimmed();
    if (!api->GetArrayRecord(static_cast<int>(arrayId)) || name.isEmpty())
        return;
    if (api->IsValidArrayName(name)) {
        api->RenameArray(static_cast<int>(arrayId), name);
        accept();
        return;
    }
    QMessageBox::warning(this, QCoreApplication::applicationName() + tr(" Array Name"),
                         tr("Invalid name: array names may not be the same as existing array "
                            "names or contain the following characters: ()^,.=|\"-[]"),
                         QMessageBox::Ok, QMessageBox::NoButton);
}

void SK_ArrayNameDialog::on_cancelButton_clicked()
{
    reject();
}
