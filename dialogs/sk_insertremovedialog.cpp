#include "dialogs/sk_insertremovedialog.h"

#include "service/service.h"
#include "ui_sk_insertremovedialog.h"

Sk_insertRemoveDialog::Sk_insertRemoveDialog(SK_RaidApi &service, quint32 code, QWidget *parent)
    : QDialog(parent), api(&service), eventCode(code),
      ui(std::make_unique<Ui::Sk_insertRemoveDialog>())
{
    // Opening a dialog reads the configuration afresh.
    api->RefreshConfig();
    ui->setupUi(this);
    ui->rescanButton->setText(tr("Rescan"));
    const bool insertion = eventCode == 1038 || eventCode == 1042;
    if (insertion) {
        ui->eventTitle->setTitle(tr("Drive Inserted"));
        ui->eventText->setText(
            tr("A RAID controller has detected the insertion of a new drive. To bring this "
               "drive on-line a controller RESCAN must be performed. If this drive is part of "
               "an array of several drives you should only rescan after the last drive that is "
               "part of the array has been inserted. "));
    } else {
        ui->eventTitle->setTitle(tr("Drive Removed"));
        ui->eventText->setText(
            tr("A RAID controller has detected the removal of a disk drive. To permanently "
               "remove the drive and sync the configuration a rescan must be performed. If "
               "this drive is part of an array that is being taken off-line, DO NOT RESCAN "
               "until the last drive included in the array has been removed."));
    }
}

Sk_insertRemoveDialog::~Sk_insertRemoveDialog() = default;

// A failed rescan closes the notice all the same: the event view shows what happened.
void Sk_insertRemoveDialog::on_rescanButton_clicked()
{
    if (api->Rescan())
        accept();
    else
        reject();
}
