#pragma once
// Deletes the ticked arrays one after the other on a worker thread, behind a progress
// dialog that can't be stopped once the run has begun.

#include <QDialog>
#include <QList>

#include <memory>

namespace Ui {
class SK_DeleteForm;
}
class QProgressDialog;
class QTreeWidgetItem;
class SK_RaidApi;

class SK_DeleteForm : public QDialog
{
    Q_OBJECT

public:
    SK_DeleteForm(SK_RaidApi &service, QWidget *parent = nullptr);
    ~SK_DeleteForm() override;

signals:
    void AsyncDeleteMultiple(QList<uint> arrays);

public slots:
    void setupDelArrayMenu();
    void toggleDeleteButton();
    QString generateDeleteConfirmationString();
    void on_cancelButton_clicked();
    void on_deleteButton_clicked();
    void on_selectAllButton_clicked();
    void on_arrayList_itemChanged(QTreeWidgetItem *item, int column);
    void GenerateDeleteArrayList();
    void CreateDeleteProgressBar(QList<uint> arrays);
    void UpdateDeleteProgress();

private:
    SK_RaidApi *api = nullptr; // the window's service
    std::unique_ptr<Ui::SK_DeleteForm> ui;
    QProgressDialog *deleteProgress = nullptr;
};
