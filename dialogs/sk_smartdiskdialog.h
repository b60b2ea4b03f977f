#pragma once
// The SMART overview: power-on time, power cycles and temperature of every disk, and
// the full SMART report of the ticked disks written to a log file the user can read.

#include <QDialog>
#include <QString>

#include <memory>

namespace Ui {
class SK_SmartDiskDialog;
}
class SK_RaidApi;

class SK_SmartDiskDialog : public QDialog
{
    Q_OBJECT

public:
    SK_SmartDiskDialog(SK_RaidApi &service, QWidget *parent = nullptr);
    ~SK_SmartDiskDialog() override;

public slots:
    void on_okPushButton_clicked();
    void on_smartButton_clicked();

private:
    void setupSmartList();
    void createSmartLog();
    // "Unable to retreive" for a disk that reports nothing and for one under an hour
    // old alike: the overview can't tell the two apart.
    static QString formatPowerOnHours(const QString &hours);

    SK_RaidApi *api = nullptr; // the window's service
    QString smartLogPath;
    std::unique_ptr<Ui::SK_SmartDiskDialog> ui;
};
