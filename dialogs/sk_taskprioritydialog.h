#pragma once
// Moves the priority of the task running on an array along a scale of 1 to 10.

#include <QDialog>
#include <QProxyStyle>

#include <memory>

namespace Ui {
class SK_TaskPriorityDialog;
}
class SK_RaidApi;

// Lets a click of any mouse button put the slider where it was clicked, instead of
// paging towards it.
class CustomSliderStyle : public QProxyStyle
{
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;
};

class SK_TaskPriorityDialog : public QDialog
{
    Q_OBJECT

public:
    SK_TaskPriorityDialog(SK_RaidApi &service, quint32 arrayId, QWidget *parent = nullptr);
    ~SK_TaskPriorityDialog() override;

public slots:
    void on_confirmButton_clicked();
    void on_cancelButton_clicked();
    void on_prioritySlider_valueChanged(int value);

private:
    void initTaskPriorityDialog();

    SK_RaidApi *api = nullptr; // the window's service
    quint32 arrayId = 0;
    std::unique_ptr<Ui::SK_TaskPriorityDialog> ui;
};
