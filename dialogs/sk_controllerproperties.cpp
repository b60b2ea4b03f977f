#include "dialogs/sk_controllerproperties.h"

#include "dialogs/sk_treeitems.h"
#include "dialogs/sk_windowstate.h"
#include "service/service.h"
#include "ui_sk_controllerproperties.h"

#include <QHeaderView>
#include <QIcon>

namespace {

const char kGeometryKey[] = "controllerPropWindowGeometry";
const char kHeaderKey[] = "controllerPropListHeaderState";

// The vendor of the drivers' own virtual controller, which has no hardware to show.
constexpr quint16 kVirtualControllerVendor = 0x8590;

enum Column {
    NumberColumn,
    TypeColumn,
    DiskColumn,
    ModelColumn,
    PortCountColumn,
    VendorColumn,
    DeviceColumn,
    SubVendorColumn,
    SubDeviceColumn,
    BusColumn,
    SlotColumn,
    FunctionColumn,
    ColumnCount
};

QString hexText(quint32 value)
{
    return QStringLiteral("0x%1").arg(value, 0, 16);
}

void setCell(QTreeWidgetItem *row, int column, const QString &text)
{
    row->setText(column, text);
    row->setData(column, SK_Role::SortKey, text);
}

} // namespace

sk_ControllerProperties::sk_ControllerProperties(SK_RaidApi &service, QWidget *parent)
    : QDialog(parent), api(&service), ui(std::make_unique<Ui::sk_ControllerProperties>())
{
    // Opening a dialog reads the configuration afresh.
    api->RefreshConfig();
    ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":images/icons/Logo.ico")));
    ui->controllerLabel->setText(tr("Controller List:"));
    ui->okPushButton->setText(tr("OK"));
    setupControllerList();

    SK_WindowState::restore(this, kGeometryKey, {{ui->controllerList, kHeaderKey}});
}

sk_ControllerProperties::~sk_ControllerProperties()
{
    SK_WindowState::save(this, kGeometryKey, {{ui->controllerList, kHeaderKey}});
}

void sk_ControllerProperties::setupControllerList()
{
    QTreeWidget *list = ui->controllerList;
    list->setColumnCount(ColumnCount);
    list->setHeaderLabels({tr("Number"), tr("Type"), tr("Disk"), tr("Model"), tr("Port Count"),
                           tr("PCI Vendor ID"), tr("PCI Device ID"), tr("PCI SubVendor ID"),
                           tr("PCI SubDevice ID"), tr("Bus"), tr("Slot"), tr("Function")});
    list->setSortingEnabled(false);
    const int controllers = api->GetControllerCount();
    const int disks = api->GetDiskCount();
    for (int c = 0; c < controllers; ++c) {
        const SK_ConfigController *controller = api->GetControllerRecord(c);
        if (!controller || controller->PciVendorID == kVirtualControllerVendor)
            continue;
        auto *row = new MyTreeWidgetItem();
        row->setText(NumberColumn, QString::number(controller->Number));
        row->setData(NumberColumn, SK_Role::SortKey, controller->Number);
        setCell(row, TypeColumn, SK_FieldText(controller->Name).trimmed());
        setCell(row, PortCountColumn, QString::number(controller->NumberOfPorts));
        // The original ids name the chip when a board maker has re-badged it.
        setCell(row, VendorColumn,
                hexText(controller->OrigPciVendorID ? controller->OrigPciVendorID
                                                    : controller->PciVendorID));
        setCell(row, DeviceColumn,
                hexText(controller->OrigPciDeviceID ? controller->OrigPciDeviceID
                                                    : controller->PciDeviceID));
        setCell(row, SubVendorColumn,
                controller->PciSubVendorID ? hexText(controller->PciSubVendorID) : tr("N/A"));
        setCell(row, SubDeviceColumn,
                controller->PciSubDeviceID ? hexText(controller->PciSubDeviceID) : tr("N/A"));
        const quint32 location = controller->PciLocation;
        setCell(row, BusColumn, hexText((location >> 16) & 0xFF));
        setCell(row, SlotColumn, hexText((location >> 8) & 0xFF));
        setCell(row, FunctionColumn, hexText(location & 0xFF));

        for (int d = 0; d < disks; ++d) {
            const SK_ConfigDisk *disk = api->GetDiskRecord(d);
            if (!disk || SK_FieldText(disk->Type) == QLatin1String("Core") ||
                disk->ControllerNumber != controller->Number)
                continue;
            const QString key =
                QString::number(disk->ControllerNumber + disk->Channel / 10.0, 'g', 6);
            const QString port =
                QStringLiteral("%1 %2").arg(disk->ControllerNumber).arg(disk->Channel);
            const QString model = SK_FieldText(disk->Model).trimmed();
            // A one-port controller is its disk; others list theirs below. The row keeps
            // the sort keys of the last disk either way.
            QTreeWidgetItem *target =
                controller->NumberOfPorts == 1 ? row : new QTreeWidgetItem(row);
            target->setText(DiskColumn, port);
            target->setText(ModelColumn, model);
            row->setData(DiskColumn, SK_Role::SortKey, key);
            row->setData(ModelColumn, SK_Role::SortKey, model);
        }
        list->addTopLevelItem(row);
        row->setExpanded(true);
    }
    for (int column = NumberColumn; column <= SubDeviceColumn; ++column) {
        list->resizeColumnToContents(column);
        list->setColumnWidth(column, list->columnWidth(column) + 5);
    }
    list->setSortingEnabled(true);
    list->sortByColumn(NumberColumn, Qt::AscendingOrder);
}

void sk_ControllerProperties::on_okPushButton_clicked()
{
    reject();
}
