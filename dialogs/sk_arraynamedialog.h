#pragma once
// Gives an existing array a new name.

#include <QDialog>

#include <memory>

namespace Ui {
class SK_ArrayNameDialog;
}
class SK_RaidApi;

class SK_ArrayNameDialog : public QDialog
{
    Q_OBJECT

public:
    SK_ArrayNameDialog(SK_RaidApi &service, quint32 arrayId, QWidget *parent = nullptr);
    ~SK_ArrayNameDialog() override;

public slots:
    void initArrayNameDialog();
    void on_okButton_clicked();
    void on_cancelButton_clicked();

private:
    SK_RaidApi *api = nullptr; // the window's service
    quint32 arrayId = 0;
    std::unique_ptr<Ui::SK_ArrayNameDialog> ui;
};
