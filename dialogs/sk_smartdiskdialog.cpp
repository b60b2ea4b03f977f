#include "dialogs/sk_smartdiskdialog.h"

#include "dialogs/sk_treeitems.h"
#include "dialogs/sk_windowstate.h"
#include "service/service.h"
#include "ui_sk_smartdiskdialog.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHeaderView>
#include <QIcon>
#include <QStandardPaths>
#include <QTreeWidgetItemIterator>
#include <QUrl>

namespace {

const char kGeometryKey[] = "smartOverviewPropWindowGeometry";
const char kHeaderKey[] = "smartOverviewListHeaderState";

enum Column {
    DiskColumn,
    PortTypeColumn,
    CapacityColumn,
    UsesColumn,
    ModelColumn,
    SerialColumn,
    FirmwareColumn,
    PowerOnColumn,
    PowerCycleColumn,
    TemperatureColumn,
    ColumnCount
};

// The application's own folder below the system's temporary folder, made if missing.
QDir appTempFolder()
{
    const QString name = QCoreApplication::applicationName();
    QDir folder(QStandardPaths::writableLocation(QStandardPaths::TempLocation));
    if (!folder.exists())
        folder.mkpath(QStringLiteral("."));
    if (!folder.exists(name))
        folder.mkdir(name);
    folder.cd(name);
    return folder;
}

} // namespace

SK_SmartDiskDialog::SK_SmartDiskDialog(SK_RaidApi &service, QWidget *parent)
    : QDialog(parent), api(&service), ui(std::make_unique<Ui::SK_SmartDiskDialog>())
{
    // Opening a dialog reads the configuration afresh.
    api->RefreshConfig();
    ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":images/icons/Logo.ico")));
    ui->diskListLabel->setText(tr("Disk List:"));
    ui->okPushButton->setText(tr("Exit"));
    ui->smartButton->setText(tr("Query Selected S.M.A.R.T. Data"));
    setupSmartList();

    SK_WindowState::restore(this, kGeometryKey, {{ui->diskList, kHeaderKey}});
    ui->diskList->header()->setSectionsClickable(true);
}

SK_SmartDiskDialog::~SK_SmartDiskDialog()
{
    SK_WindowState::save(this, kGeometryKey, {{ui->diskList, kHeaderKey}});
}

void SK_SmartDiskDialog::setupSmartList()
{
    QTreeWidget *list = ui->diskList;
    list->setColumnCount(ColumnCount);
    list->setHeaderLabels({tr("Disk"), tr("Port Type"), tr("Capacity"), tr("Uses"),
                           tr("Model Number"), tr("Serial Number"), tr("Firmware Revision"),
                           tr("Power on Hours"), tr("Power Cycle"), tr("Temperature (Celsius)")});
    // Rows go in unsorted; sorting while filling would move the row being written.
    list->setSortingEnabled(false);
    const int count = api->GetDiskCount();
    for (int index = 0; index < count; ++index) {
        const SK_ConfigDisk *disk = api->GetDiskRecord(index);
        if (!disk || SK_FieldText(disk->Type) == QLatin1String("Core"))
            continue;
        auto *row = new MyTreeWidgetItem(list);
        const auto set = [row](int column, const QString &text, const QVariant &key) {
            row->setText(column, text);
            row->setData(column, SK_Role::SortKey, key);
        };
        // Channel 10 of controller 0 sorts level with channel 0 of controller 1; the
        // drivers never number a channel that high, so the key stays unambiguous.
        set(DiskColumn, QStringLiteral("%1 %2").arg(disk->ControllerNumber).arg(disk->Channel),
            disk->ControllerNumber + disk->Channel / 10.0);
        row->setCheckState(DiskColumn, Qt::Unchecked);
        row->setData(DiskColumn, SK_Role::DeviceId, disk->Device);
        const QString portType = api->PortTypeText(index);
        set(PortTypeColumn, portType, portType);
        set(CapacityColumn, SK_RaidApi::CapacityText(qint64(disk->Capacity)),
            QVariant::fromValue<quint64>(disk->Capacity));
        const QString uses = QString::number(api->DiskUseCount(disk->Device));
        set(UsesColumn, uses, uses);
        const QString model = SK_FieldText(disk->Model);
        set(ModelColumn, model.trimmed(), model);
        const QString serial = api->SerialText(index);
        set(SerialColumn, serial, serial);
        const QString firmware = SK_FieldText(disk->FirmwareRevision);
        set(FirmwareColumn, QString(firmware).replace(QLatin1Char('_'), QLatin1Char(' ')),
            firmware);

        const SmartSummary smart = api->GetSmartInfo(disk->Device);
        const QString powerOn = formatPowerOnHours(smart.powerOnHours);
        set(PowerOnColumn, powerOn, powerOn);
        set(PowerCycleColumn, smart.powerCycles, smart.powerCycles);
        set(TemperatureColumn, smart.temperature, smart.temperature);
    }
    list->setSortingEnabled(true);
    list->sortByColumn(DiskColumn, Qt::AscendingOrder);
    list->setRootIsDecorated(false);
}

QString SK_SmartDiskDialog::formatPowerOnHours(const QString &hours)
{
    // The 48-bit form of the report ends in a blank; toULongLong would refuse it.
    const qulonglong total = hours.trimmed().toULongLong();
    const qulonglong years = total / 8760;
    const qulonglong days = total % 8760 / 24;
    const qulonglong rest = total % 8760 % 24;
    QString text = years != 0 ? QStringLiteral("%1y  %2d  %3hr").arg(years).arg(days).arg(rest)
                              : QStringLiteral("%1d  %2hr").arg(days).arg(rest);
    if (text == QLatin1String("0d  0hr"))
        text = QStringLiteral("Unable to retreive");
    return text;
}

void SK_SmartDiskDialog::on_okPushButton_clicked()
{
    reject();
}

void SK_SmartDiskDialog::on_smartButton_clicked()
{
    QList<int> ids;
    for (QTreeWidgetItemIterator it(ui->diskList); *it; ++it) {
        if ((*it)->checkState(DiskColumn) == Qt::Checked)
            ids << (*it)->data(DiskColumn, SK_Role::DeviceId).toInt();
    }
    if (ids.isEmpty())
        return;
    createSmartLog();
    const QString transcript = appTempFolder().absoluteFilePath(QStringLiteral("StrataKeep.log"));
    for (const int id : ids)
        api->RetrieveAllSmartInfo(id, smartLogPath, transcript);
    // A disk that reported nothing leaves no file, and then there is nothing to show.
    if (QFileInfo::exists(smartLogPath))
        QDesktopServices::openUrl(QUrl::fromLocalFile(smartLogPath));
}

void SK_SmartDiskDialog::createSmartLog()
{
    const QString path = appTempFolder().absoluteFilePath(QStringLiteral("SMART_LOG.log"));
    // An existing log is emptied so each query reads on its own; a missing one is left
    // to the report writer to create.
    QFile log(path);
    if (log.exists() && log.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)) {
        log.write(QStringLiteral("***Create SMART Log file for %1 ***\n")
                      .arg(QCoreApplication::applicationName())
                      .toLocal8Bit());
        log.close();
    }
    smartLogPath = path;
}
