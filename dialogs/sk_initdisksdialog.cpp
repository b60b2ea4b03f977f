#include "dialogs/sk_initdisksdialog.h"

#include "dialogs/sk_diskdialogparts.h"
#include "dialogs/sk_windowstate.h"
#include "service/service.h"
#include "ui_sk_initdisksdialog.h"

#include <QIcon>
#include <QTreeWidgetItemIterator>

using namespace SK_DiskDialogParts;

namespace {
constexpr char kGeometryKey[] = "initDiskWindowGeometry";
constexpr char kHeaderKey[] = "initDiskListHeaderState";
} // namespace

SK_initDisksDialog::SK_initDisksDialog(SK_RaidApi &service, QWidget *parent)
    : QDialog(parent), api(&service), ui(std::make_unique<Ui::SK_initDisksDialog>())
{
    // Opening a dialog reads the configuration afresh.
    api->RefreshConfig();
    ui->setupUi(this);
    setupInitDisksMenu();
    ui->initSelectedButton->setEnabled(false);
    setWindowIcon(QIcon(QStringLiteral(":images/icons/Logo.ico")));
    SK_WindowState::restore(this, kGeometryKey, {{ui->diskListTree, kHeaderKey}});
}

SK_initDisksDialog::~SK_initDisksDialog()
{
    SK_WindowState::save(this, kGeometryKey, {{ui->diskListTree, kHeaderKey}});
}

void SK_initDisksDialog::setupInitDisksMenu()
{
    ui->selectUnInitButton->setEnabled(false);
    ui->selectGroupBox->setTitle(tr("Select"));
    ui->selectUnInitButton->setText(tr("Un-Initiliazed"));
    ui->selectAllButton->setText(tr("All"));
    ui->initSelectedButton->setText(tr("Initialize Selected"));
    ui->cancelButton->setText(tr("Cancel"));
    ui->diskListLabel->setText(tr("Disk List:"));
    if (fillInitialiseList(*api, ui->diskListTree, false))
        ui->selectUnInitButton->setEnabled(true);
}

SK_InitDisks SK_initDisksDialog::getInitParameters()
{
    return tickedDisks(ui->diskListTree, 0);
}

void SK_initDisksDialog::on_cancelButton_clicked()
{
    close();
}

void SK_initDisksDialog::on_selectAllButton_clicked()
{
    tickAll(ui->diskListTree);
}

// Replaces the selection by the new disks, leaving out any that the system array still
// names as its member.
void SK_initDisksDialog::on_selectUnInitButton_clicked()
{
    int systemArray = -1;
    for (int index = 0; index < api->GetArrayCount(); ++index) {
        const SK_ConfigArray *array = api->GetArrayByIndex(index);
        if (array && api->ArrayIsSystem(array->Device)) {
            systemArray = array->Device;
            break;
        }
    }
    const QString newType = tr("New");
    for (QTreeWidgetItemIterator it(ui->diskListTree); *it; ++it) {
        const int disk = (*it)->data(0, Qt::UserRole).toInt();
        const bool tick = (*it)->text(2) == newType && !api->IsMember(systemArray, disk);
        (*it)->setCheckState(0, tick ? Qt::Checked : Qt::Unchecked);
    }
}

// No question is asked: the list offers only disks that may be initialised. A command
// that fails for every disk keeps the dialog open with its ticks.
void SK_initDisksDialog::on_initSelectedButton_clicked()
{
    if (api->InitializeDisks(getInitParameters()))
        accept();
}

void SK_initDisksDialog::on_diskListTree_itemChanged(QTreeWidgetItem *, int)
{
    ui->initSelectedButton->setEnabled(anyTicked(ui->diskListTree));
}
