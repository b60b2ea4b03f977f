#pragma once
// Initialises the ticked disks among those that may be: new disks, failed members and
// disks of non-system legacy arrays.

#include "service/sk_records.h"

#include <QDialog>

#include <memory>

namespace Ui {
class SK_initDisksDialog;
}
class QTreeWidgetItem;
class SK_RaidApi;

class SK_initDisksDialog : public QDialog
{
    Q_OBJECT

public:
    SK_initDisksDialog(SK_RaidApi &service, QWidget *parent = nullptr);
    ~SK_initDisksDialog() override;

public slots:
    SK_InitDisks getInitParameters();
    void on_cancelButton_clicked();
    void setupInitDisksMenu();
    void on_selectAllButton_clicked();
    void on_selectUnInitButton_clicked();
    void on_initSelectedButton_clicked();
    void on_diskListTree_itemChanged(QTreeWidgetItem *item, int column);

private:
    SK_RaidApi *api = nullptr; // the window's service
    std::unique_ptr<Ui::SK_initDisksDialog> ui;
};
