#pragma once
// The options of one disk of the main window's disk list: dedicated and global spares,
// identify by the LEDs, and preparing the disk to be pulled.

#include <QDialog>
#include <QString>

#include <memory>

namespace Ui {
class SK_diskSpareDialog;
}
class SK_RaidApi;

class SK_diskSpareDialog : public QDialog
{
    Q_OBJECT

public:
    // `diskName` and `diskModel` are the texts of the disk list row, `arrayId` the array
    // selected in the main window (0 for none).
    SK_diskSpareDialog(SK_RaidApi &service, const QString &diskName, const QString &diskModel,
                       quint32 diskId, quint32 arrayId, QWidget *parent = nullptr);
    ~SK_diskSpareDialog() override;

public slots:
    void initDialog();
    void on_okButton_clicked();
    void on_cancelButton_clicked();

private:
    // Runs the removal questions; false when the dialog is to stay open.
    bool removeDevice();
    int disk() const { return static_cast<int>(diskId); }
    int array() const { return static_cast<int>(arrayId); }

    SK_RaidApi *api = nullptr; // the window's service
    QString diskName;
    QString diskModel;
    quint32 diskId = 0;
    quint32 arrayId = 0;
    std::unique_ptr<Ui::SK_diskSpareDialog> ui;
};
