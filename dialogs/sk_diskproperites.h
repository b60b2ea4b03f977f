#pragma once
// Disk write back caching, read ahead and SMART polling, switched for all ticked disks
// at once; the list shows each disk's present settings and keeps its ticks over the
// redraw that follows a command.

#include "service/sk_records.h"

#include <QDialog>
#include <QStringList>

#include <memory>

namespace Ui {
class SK_DiskProperites;
}
class SK_RaidApi;

class SK_DiskProperites : public QDialog
{
    Q_OBJECT

public:
    SK_DiskProperites(SK_RaidApi &service, QWidget *parent = nullptr);
    ~SK_DiskProperites() override;

public slots:
    void setupDiskPropsMenu();
    void on_selectAllButton_clicked();
    void on_diskWriteEnableButton_clicked();
    void on_diskWriteDisableButton_clicked();
    void on_diskReadEnableButton_clicked();
    void on_diskReadDisableButton_clicked();
    void on_smartEnableButton_clicked();
    void on_smartDisableButton_clicked();
    void on_exitButton_clicked();
    void SaveDisksSelected();
    uint setDiskCMDParameters(diskManageCMD diskMngCMD);
    bool writeCacheEnabled(uint disk);
    bool readCacheEnabled(uint disk);
    bool smartEnabled(uint disk);

private:
    // Sends the command, keeps the ticks, and redraws the list when it worked.
    void runCommand(diskManageCMD command);

    SK_RaidApi *api = nullptr; // the window's service
    // Ticks are kept by the disk's port label, across redraws.
    QStringList selectedDisks{QString()};
    bool firstFill = true;
    std::unique_ptr<Ui::SK_DiskProperites> ui;
};
