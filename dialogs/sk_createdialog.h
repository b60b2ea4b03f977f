#pragma once
// The window in which the user composes a new array: disks, type, size and options,
// judged afresh on every change by the same planning the commit runs.

#include "service/sk_records.h"

#include <QDialog>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>

namespace Ui {
class SK_CreateDialog;
}
class QTreeWidgetItem;
class SK_RaidApi;
namespace SK_ArrayDialogParts {
enum class DiskGroup;
}

class SK_CreateDialog : public QDialog
{
    Q_OBJECT

public:
    SK_CreateDialog(SK_RaidApi &service, QSize iconSize, QWidget *parent = nullptr);
    ~SK_CreateDialog() override;

private slots:
    void initCreateDiskList();
    bool isValidCreateConfig(bool setCapInput);
    SK_Create getCreateParameters();
    void initCreateForm();
    QString getArrayType(int row);
    int getArrayTypeIdx(QString type);
    QString getCacheType(int row);
    void createButton_clicked();
    void allButton_clicked();
    void diskList_itemChanged(QTreeWidgetItem *item, int column);
    void zeroCreateCheckBox_stateChanged(int state);
    void leaveDataCheckBox_stateChanged(int state);
    void skipInitCheckBox_stateChanged(int state);
    void arrayTypeSel_currentIndexChanged(int row);
    void currentCapInput_textChanged(QString text);
    void unusedButton_clicked();
    void setMaxCapButton_clicked();
    void allNvmeButton_clicked();
    void allHddButton_clicked();
    void allSataSsdButton_clicked();

private:
    void fillCombos();
    void connectSignals();
    void rebuildOrganizedAs();
    void drawArrayView(const SK_Create &params);
    int checkedDiskCount() const;
    // Sets every row's check mark by `wanted(diskId)` and judges the new selection once.
    void checkDisks(SK_ArrayDialogParts::DiskGroup group);

    SK_RaidApi *api = nullptr; // the window's service
    std::unique_ptr<Ui::SK_CreateDialog> ui;
    QSize iconSize;
    QString selectedDiskText;
    qint32 lastAutoSize = 0;
    QString volumeLabel;
    QString raid0Label;
    QString raid1Label;
    QString raid10Label;
    QString raid5Label;
    QString raid6Label;
};
