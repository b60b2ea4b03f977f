#pragma once
// The window in which the user changes one existing array's type, disks or size,
// with the array as it is beside the array as it will be, judged on every change.

#include "service/sk_records.h"

#include <QDialog>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>

namespace Ui {
class SK_TransformDialog;
}
class QTreeWidgetItem;
class SK_RaidApi;
namespace SK_ArrayDialogParts {
enum class DiskGroup;
}

class SK_TransformDialog : public QDialog
{
    Q_OBJECT

public:
    SK_TransformDialog(SK_RaidApi &service, int arrayId, QSize iconSize, QWidget *parent = nullptr);
    ~SK_TransformDialog() override;

private slots:
    QString getArrayType(int row);
    int getArrayTypeIdx(QString type);
    QString getCacheType(int row);
    SK_Create getCreateParameters();
    // The name's misspelling is kept: it is the slot's name everywhere it is known.
    void tranformDiskList_itemChanged(QTreeWidgetItem *item, int column);
    void commitTransformButton_clicked();
    void on_sameButton_clicked();
    void on_arrayTypeSel_currentIndexChanged(int row);
    void capacityInput_textChanged(QString text);
    void selectAllButton_clicked();
    void on_unusedButton_clicked();
    bool isValidTransformConfig();
    void initTransformForm();
    void initTransformDiskList();
    void setupDstArrayView(SK_Create createParams);
    void setupSourceArrayView();
    int convertSizeToMB(SK_UINT64 arraySize);
    void on_selectAllHddButton_clicked();
    void on_selectAllSataSsdButton_clicked();
    void on_selectAllNVMeButton_clicked();
    void on_setCurrentCapMaxButton_clicked();
    bool SourceHasHotswapDevices();

private:
    void rebuildOrganizedAs();
    // Sets every row's check mark by `wanted(diskId)` and judges the new selection once.
    void checkDisks(SK_ArrayDialogParts::DiskGroup group);
    bool ask(const QString &title, const QString &question);

    SK_RaidApi *api = nullptr; // the window's service
    std::unique_ptr<Ui::SK_TransformDialog> ui;
    QSize iconSize;
    int arrayId = 0;
    QString selectedDiskText;
    QString volumeLabel;
    QString raid0Label;
    QString raid1Label;
    QString raid10Label;
    QString raid5Label;
    QString raid6Label;
};
