#include "dialogs/sk_diskproperites.h"

#include "dialogs/sk_diskdialogparts.h"
#include "dialogs/sk_windowstate.h"
#include "service/service.h"
#include "ui_sk_diskproperites.h"

#include <QCoreApplication>
#include <QIcon>
#include <QMessageBox>
#include <QTreeWidgetItemIterator>

using namespace SK_DiskDialogParts;

namespace {

constexpr char kGeometryKey[] = "diskPropWindowGeometry";
constexpr char kHeaderKey[] = "diskPropListHeaderState";

bool isSmartCommand(diskManageCMD command)
{
    return command == smartEnable || command == smartDisable;
}

} // namespace

SK_DiskProperites::SK_DiskProperites(SK_RaidApi &service, QWidget *parent)
    : QDialog(parent), api(&service), ui(std::make_unique<Ui::SK_DiskProperites>())
{
    // Opening a dialog reads the configuration afresh.
    api->RefreshConfig();
    ui->setupUi(this);
    ui->splitter->setSizes({80, 70});
    setupDiskPropsMenu();
    setWindowIcon(QIcon(QStringLiteral(":images/icons/Logo.ico")));
    SK_WindowState::restore(this, kGeometryKey, {{ui->diskListTree, kHeaderKey}});
}

SK_DiskProperites::~SK_DiskProperites()
{
    SK_WindowState::save(this, kGeometryKey, {{ui->diskListTree, kHeaderKey}});
}

void SK_DiskProperites::setupDiskPropsMenu()
{
    ui->cacheWarningMSG->setText(
        tr("Note: Turning Disk Write Back Caching on may increase the likelihood of data "
           "corruption if the system power were to fail."));
    QTreeWidget *list = ui->diskListTree;
    list->setColumnCount(10);
    list->setHeaderLabels({tr("Disk"), tr("State"), tr("Write Back Cache"), tr("Read Ahead"),
                           tr("SMART Poll"), tr("Uses"), tr("Port Type"), tr("Model Number"),
                           tr("Serial Number"), tr("Firmware Revision")});
    list->setRootIsDecorated(false);
    list->setSortingEnabled(false);

    const auto onOff = [this](bool on) { return on ? tr("Enabled") : tr("Disabled"); };
    for (int index = 0; index < api->GetDiskCount(); ++index) {
        const SK_ConfigDisk *disk = api->GetDiskRecord(index);
        if (!disk || SK_FieldText(disk->Type) == QLatin1String("Core"))
            continue;
        const int id = api->GetDiskIdByPort(disk->ControllerNumber, disk->Channel);
        const uint uid = static_cast<uint>(id);
        auto *row = new QTreeWidgetItem(list);
        row->setText(0, portLabel(*disk));
        row->setCheckState(0, selectedDisks.contains(row->text(0)) ? Qt::Checked : Qt::Unchecked);
        row->setData(0, Qt::UserRole, id);
        row->setText(1, SK_FieldText(disk->State));
        row->setText(2, onOff(writeCacheEnabled(uid)));
        row->setText(3, onOff(readCacheEnabled(uid)));
        row->setText(4, onOff(smartEnabled(uid)));
        row->setText(5, QString::number(api->DiskUseCount(id)));
        row->setText(6, api->PortTypeText(index));
        row->setText(7, SK_FieldText(disk->Model).trimmed());
        row->setText(8, api->SerialText(index));
        row->setText(
            9, SK_FieldText(disk->FirmwareRevision).replace(QLatin1Char('_'), QLatin1Char(' ')));
    }
    // Widths follow the contents once; later redraws keep what the user made of them.
    if (firstFill) {
        fitColumns(list, 10);
        firstFill = false;
    }
    list->setSortingEnabled(true);
    list->sortByColumn(0, Qt::AscendingOrder);
}

void SK_DiskProperites::on_selectAllButton_clicked()
{
    tickAll(ui->diskListTree);
}

void SK_DiskProperites::on_diskWriteEnableButton_clicked()
{
    runCommand(writeCacheEnable);
}

void SK_DiskProperites::on_diskWriteDisableButton_clicked()
{
    runCommand(writeCacheDisable);
}

void SK_DiskProperites::on_diskReadEnableButton_clicked()
{
    runCommand(readAheadEnable);
}

void SK_DiskProperites::on_diskReadDisableButton_clicked()
{
    runCommand(readAheadDisable);
}

void SK_DiskProperites::on_smartEnableButton_clicked()
{
    runCommand(smartEnable);
}

void SK_DiskProperites::on_smartDisableButton_clicked()
{
    runCommand(smartDisable);
}

void SK_DiskProperites::on_exitButton_clicked()
{
    reject();
}

// The ticks are read from the list, not from the disks sent, so a refused NVMe disk
// keeps its tick too.
void SK_DiskProperites::SaveDisksSelected()
{
    selectedDisks.clear();
    for (QTreeWidgetItemIterator it(ui->diskListTree); *it; ++it) {
        if ((*it)->checkState(0) != Qt::Unchecked)
            selectedDisks << (*it)->text(0);
    }
}

// NVMe drives keep their own cache settings: each one ticked for a cache command is
// named in a box of its own and left out; SMART polling goes to every disk.
uint SK_DiskProperites::setDiskCMDParameters(diskManageCMD diskMngCMD)
{
    SK_DiskManage request;
    request.readOn = diskMngCMD == readAheadEnable;
    request.readOff = diskMngCMD == readAheadDisable;
    request.writeOn = diskMngCMD == writeCacheEnable;
    request.writeOff = diskMngCMD == writeCacheDisable;
    request.smartOn = diskMngCMD == smartEnable;
    request.smartOff = diskMngCMD == smartDisable;
    const bool smart = isSmartCommand(diskMngCMD);

    for (QTreeWidgetItemIterator it(ui->diskListTree); *it; ++it) {
        if ((*it)->checkState(0) == Qt::Unchecked)
            continue;
        const int disk = (*it)->data(0, Qt::UserRole).toInt();
        if (api->IsNvmeDisk(disk) && !smart) {
            QMessageBox::about(this, QCoreApplication::applicationName(),
                               (*it)->text(0) +
                                   tr(" is a NVMe device and cannot change disk cache settings."));
            continue;
        }
        if (request.diskCount >= SK_MAX_LIST_DISKS)
            break;
        request.disks[request.diskCount++] = static_cast<quint32>(disk);
    }
    if (!smart)
        return api->ManageDiskCache(request) ? 1 : 0;
    // Nothing ticked sends nothing, not even the rescan that follows a SMART change.
    if (request.diskCount == 0)
        return 0;
    return api->ManageDiskSmart(request) ? 1 : 0;
}

void SK_DiskProperites::runCommand(diskManageCMD command)
{
    const uint result = setDiskCMDParameters(command);
    SaveDisksSelected();
    if (result != 1)
        return;
    ui->diskListTree->clear();
    api->RefreshConfig();
    setupDiskPropsMenu();
}

bool SK_DiskProperites::writeCacheEnabled(uint disk)
{
    const QString state = api->CacheStateText(static_cast<int>(disk));
    return state == QLatin1String("W") || state == QLatin1String("RW");
}

bool SK_DiskProperites::readCacheEnabled(uint disk)
{
    const QString state = api->CacheStateText(static_cast<int>(disk));
    return state == QLatin1String("R") || state == QLatin1String("RW");
}

bool SK_DiskProperites::smartEnabled(uint disk)
{
    return api->DiskSmartEnabled(static_cast<int>(disk));
}
