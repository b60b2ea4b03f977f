#pragma once
// Pairs a hot array (flash disks only) with a bigger cold array (no flash disk) into a
// cached or tiered array.

#include "service/sk_records.h"

#include <QDialog>

#include <memory>

namespace Ui {
class SK_TieringDialog;
}
class QTreeWidget;
class QTreeWidgetItem;
class SK_RaidApi;

class SK_TieringDialog : public QDialog
{
    Q_OBJECT

public:
    SK_TieringDialog(SK_RaidApi &service, QWidget *parent = nullptr);
    ~SK_TieringDialog() override;

public slots:
    void on_cancelButton_clicked();
    void on_commitButton_clicked();
    void on_coldArrayList_itemChanged(QTreeWidgetItem *item, int column);
    void on_hotArrayList_itemChanged(QTreeWidgetItem *item, int column);
    int GetArrayIndex(QTreeWidgetItem *item);
    void limitOneArraySelection(QTreeWidget *arrayTreeWidget, QTreeWidgetItem *item);
    bool IsArrayChecked(QTreeWidget *arrayTreeWidget);
    int getArrayChecked(QTreeWidget *arrayTreeWidget);
    QString getCacheType(int formCacheIdx);
    void on_cacheComboBox_currentIndexChanged(int index);

private:
    void initTieringForm();
    void setupColdArrayList(int otherArray, int tickedArray);
    void setupHotArrayList(int otherArray, int tickedArray);
    void addArrayRow(QTreeWidget *list, int index, int tickedArray);
    void finishArrayList(QTreeWidget *list);
    SK_Tier getTierParameters();
    bool isValidTierConfig();

    SK_RaidApi *api = nullptr; // the window's service
    std::unique_ptr<Ui::SK_TieringDialog> ui;
};
