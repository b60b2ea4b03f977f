#pragma once
// The read-only list of controllers with their PCI identity and the disks behind them.

#include <QDialog>

#include <memory>

namespace Ui {
class sk_ControllerProperties;
}
class SK_RaidApi;

class sk_ControllerProperties : public QDialog
{
    Q_OBJECT

public:
    sk_ControllerProperties(SK_RaidApi &service, QWidget *parent = nullptr);
    ~sk_ControllerProperties() override;

public slots:
    void setupControllerList();
    void on_okPushButton_clicked();

private:
    SK_RaidApi *api = nullptr; // the window's service
    std::unique_ptr<Ui::sk_ControllerProperties> ui;
};
