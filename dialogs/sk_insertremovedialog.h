#pragma once
// The notice that a controller has seen a disk come or go, with a rescan button.

#include <QDialog>

#include <memory>

namespace Ui {
class Sk_insertRemoveDialog;
}
class SK_RaidApi;

class Sk_insertRemoveDialog : public QDialog
{
    Q_OBJECT

public:
    // `eventCode` 1038 or 1042 is an insertion, anything else a removal.
    Sk_insertRemoveDialog(SK_RaidApi &service, quint32 eventCode, QWidget *parent = nullptr);
    ~Sk_insertRemoveDialog() override;

public slots:
    void on_rescanButton_clicked();

private:
    SK_RaidApi *api = nullptr; // the window's service
    quint32 eventCode = 0;
    std::unique_ptr<Ui::Sk_insertRemoveDialog> ui;
};
