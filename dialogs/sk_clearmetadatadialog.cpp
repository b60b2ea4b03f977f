#include "dialogs/sk_clearmetadatadialog.h"

#include "dialogs/sk_diskdialogparts.h"
#include "dialogs/sk_windowstate.h"
#include "service/service.h"
#include "ui_sk_clearmetadatadialog.h"

#include <QIcon>
#include <QTreeWidgetItemIterator>

using namespace SK_DiskDialogParts;

namespace {
constexpr char kGeometryKey[] = "clearMetaWindowGeometry";
constexpr char kHeaderKey[] = "clearMetaListHeaderState";
} // namespace

SK_ClearMetadataDialog::SK_ClearMetadataDialog(SK_RaidApi &service, QWidget *parent)
    : QDialog(parent), api(&service), ui(std::make_unique<Ui::SK_ClearMetadataDialog>())
{
    // Opening a dialog reads the configuration afresh.
    api->RefreshConfig();
    ui->setupUi(this);
    setupClearMetadataMenu();
    setWindowIcon(QIcon(QStringLiteral(":images/icons/Logo.ico")));
    SK_WindowState::restore(this, kGeometryKey, {{ui->diskListTree, kHeaderKey}});
}

SK_ClearMetadataDialog::~SK_ClearMetadataDialog()
{
    SK_WindowState::save(this, kGeometryKey, {{ui->diskListTree, kHeaderKey}});
}

void SK_ClearMetadataDialog::setupClearMetadataMenu()
{
    ui->clearMetaButton->setEnabled(false);
    ui->selectGroupBox->setTitle(tr("Select"));
    ui->selectAllButton->setText(tr("All"));
    ui->clearMetaButton->setText(tr("Clear Metadata"));
    ui->cancelButton->setText(tr("Cancel"));
    ui->diskListLabel->setText(tr("Disk List:"));
    fillInitialiseList(*api, ui->diskListTree, true);
}

SK_InitDisks SK_ClearMetadataDialog::getInitParameters()
{
    return tickedDisks(ui->diskListTree, 1);
}

void SK_ClearMetadataDialog::on_cancelButton_clicked()
{
    close();
}

void SK_ClearMetadataDialog::on_selectAllButton_clicked()
{
    tickAll(ui->diskListTree);
}

// Only a selection of free disks enables the command; a disk in use that joins an
// enabled selection leaves the button as it is, so the order of the ticks counts.
void SK_ClearMetadataDialog::on_diskListTree_itemChanged(QTreeWidgetItem *, int)
{
    bool anyTicked = false;
    bool allFree = true;
    for (QTreeWidgetItemIterator it(ui->diskListTree); *it; ++it) {
        if ((*it)->checkState(0) == Qt::Unchecked)
            continue;
        anyTicked = true;
        if (api->DiskUseCount((*it)->data(0, Qt::UserRole).toInt()) >= 1)
            allFree = false;
    }
    if (!anyTicked)
        ui->clearMetaButton->setEnabled(false);
    else if (allFree)
        ui->clearMetaButton->setEnabled(true);
}

// The service rescans after clearing, so that former members come back as new disks.
void SK_ClearMetadataDialog::on_clearMetaButton_clicked()
{
    if (api->InitializeDisks(getInitParameters()))
        accept();
}
