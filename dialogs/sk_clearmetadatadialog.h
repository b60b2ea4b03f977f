#pragma once
// Clears the RAID metadata of the ticked disks: the initialise command with its clear
// flag, for plain disks only, global spares included.

#include "service/sk_records.h"

#include <QDialog>

#include <memory>

namespace Ui {
class SK_ClearMetadataDialog;
}
class QTreeWidgetItem;
class SK_RaidApi;

class SK_ClearMetadataDialog : public QDialog
{
    Q_OBJECT

public:
    SK_ClearMetadataDialog(SK_RaidApi &service, QWidget *parent = nullptr);
    ~SK_ClearMetadataDialog() override;

public slots:
    SK_InitDisks getInitParameters();
    void on_cancelButton_clicked();
    void setupClearMetadataMenu();
    void on_selectAllButton_clicked();
    void on_diskListTree_itemChanged(QTreeWidgetItem *item, int column);
    void on_clearMetaButton_clicked();

private:
    SK_RaidApi *api = nullptr; // the window's service
    std::unique_ptr<Ui::SK_ClearMetadataDialog> ui;
};
