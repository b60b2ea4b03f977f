#include "dialogs/sk_disksparedialog.h"

#include "dialogs/sk_questions.h"
#include "service/service.h"
#include "ui_sk_disksparedialog.h"

#include <QIcon>
#include <QMessageBox>

SK_diskSpareDialog::SK_diskSpareDialog(SK_RaidApi &service, const QString &name,
                                       const QString &model, quint32 id, quint32 selectedArray,
                                       QWidget *parent)
    : QDialog(parent), diskName(name), diskModel(model), diskId(id), arrayId(selectedArray),
      ui(std::make_unique<Ui::SK_diskSpareDialog>())
{
    ui->setupUi(this);
    // Opening a dialog reads the configuration afresh.
    api = &service;
    api->RefreshConfig();
    initDialog();
    setWindowIcon(QIcon(QStringLiteral(":images/icons/Logo.ico")));
}

SK_diskSpareDialog::~SK_diskSpareDialog() = default;

// The tests run in a fixed order: a spare can only be released, a member offers no spare
// action, and only an unused usable disk can become one.
void SK_diskSpareDialog::initDialog()
{
    ui->diskTextBox->setText(diskName);
    ui->diskTextBox->setEnabled(false);
    ui->assignDedSpare->setEnabled(false);
    ui->assignGlobSpare->setEnabled(false);
    ui->removeDiskBtn->setEnabled(false);
    ui->identDisk->setEnabled(true);
    ui->removeDiskBtn->setText(tr("Prepare to Remove"));

    if (api->DiskIsGlobalSpare(disk())) {
        ui->assignGlobSpare->setEnabled(true);
        ui->assignGlobSpare->setText(tr("Remove as Global Spare"));
    } else if (api->DiskIsDedicatedSpare(disk())) {
        if (api->IsDedicatedSpareOf(array(), disk())) {
            ui->assignDedSpare->setText(tr("Remove as Dedicated Spare"));
            ui->assignDedSpare->setEnabled(!api->ArrayHasTask(array()));
        }
        ui->assignGlobSpare->setEnabled(false);
    } else if (api->DiskUseCount(disk()) == 0 && api->GetValidDiskIndex(disk()) >= 0) {
        if (array() > 0 && api->ArrayIsRedundant(array()) && api->DiskFitsAsSpare(array(), disk()))
            ui->assignDedSpare->setEnabled(true);
        ui->assignGlobSpare->setEnabled(true);
    }

    ui->removeDiskBtn->setEnabled(api->DiskHasHotSwap(disk()) && api->IsAdministrator());
}

// The spare commands' results are not looked at: the main window's refresh shows them.
void SK_diskSpareDialog::on_okButton_clicked()
{
    if (ui->assignGlobSpare->isChecked()) {
        if (api->DiskIsGlobalSpare(disk()))
            api->RemoveGlobalSpare(disk());
        else
            api->AssignGlobalSpare(disk());
    } else if (ui->assignDedSpare->isChecked()) {
        if (api->IsDedicatedSpareOf(array(), disk())) {
            api->RemoveDedicatedSpare(array(), disk());
        } else {
            if (api->DiskMixesWithArray(array(), disk())) {
                if (!SK_AskYesNo(this, tr("Confirm Spare Assignment"),
                                 tr("Warning: drive mixing detected! For best performance, it is "
                                    "not recommended to mix drives of substantially different "
                                    "performance. Do you want to continue with spare "
                                    "assignment?"),
                                 tr("Yes"), tr("No")))
                    return;
            }
            api->AssignDedicatedSpare(array(), disk());
        }
    } else if (ui->identDisk->isChecked()) {
        api->BlinkDisk(disk(), true);
        QMessageBox box(QMessageBox::Information, tr("Identify Disk"),
                        tr("The LEDs representing the selected Disk are now lit. Click 'OK' to "
                           "stop identifying."),
                        QMessageBox::Ok, this);
        box.setButtonText(QMessageBox::Ok, tr("OK"));
        if (box.exec() == QMessageBox::Ok)
            api->BlinkDisk(disk(), false);
    } else if (ui->removeDiskBtn->isChecked()) {
        if (!removeDevice())
            return;
    }
    accept();
}

void SK_diskSpareDialog::on_cancelButton_clicked()
{
    close();
}

// A refusal or a No keeps the dialog open so that another action can be chosen. The
// texts name the disk by model and label and are not translated.
bool SK_diskSpareDialog::removeDevice()
{
    const int uses = api->DiskUseCount(disk());
    QString text = QStringLiteral("Would you like to disconnect the %1 (%2) device?");
    QString refusal;
    if (api->DiskIsInSystemArray(disk()))
        refusal =
            QStringLiteral("%1 (%2) device is part of the system array, removal is not supported.");
    else if (api->DiskIsDedicatedSpare(disk()))
        refusal = QStringLiteral("%1 (%2) device is a dedicated spare, removal of a dedicated "
                                 "spare is not supported, unassign the device as a dedicated "
                                 "spare and try again.");
    else if (api->DiskIsInRestore(disk()))
        refusal =
            QStringLiteral("%1 (%2) device is part of an array restore, removal is not supported.");
    if (!refusal.isEmpty()) {
        QMessageBox::about(this, tr("Remove Device"), refusal.arg(diskModel, diskName));
        return false;
    }
    if (uses > 0)
        text =
            QStringLiteral("%1 (%2) device is part of an array. Are you sure you want to proceed?");
    if (api->DiskIsGlobalSpare(disk()))
        text = QStringLiteral("You are about to remove %1 (%2), a device that is a Global Spare "
                              "and may be part of an array. Are you sure you want to proceed?");

    QMessageBox question(QMessageBox::Warning, QStringLiteral("Remove Device"),
                         text.arg(diskModel, diskName), QMessageBox::Yes | QMessageBox::No, this);
    if (question.exec() != QMessageBox::Yes)
        return false;

    const int result = api->PrepareDiskRemoval(disk());
    QMessageBox status(QMessageBox::Information, QStringLiteral("Remove Device Status"),
                       (result & 0xff)
                           ? QStringLiteral("The device was disconnected and can now be "
                                            "physically removed from the system.")
                           : QStringLiteral("The Device was not succesfully prepared for removal."),
                       QMessageBox::Ok, this);
    status.exec();
    // Set only once the box is gone, as the console always has: it never shows.
    status.setButtonText(QMessageBox::Ok, tr("OK"));
    return true;
}
