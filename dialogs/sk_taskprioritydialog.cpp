#include "dialogs/sk_taskprioritydialog.h"

#include "dialogs/sk_arraylistparts.h"
#include "service/service.h"
#include "ui_sk_taskprioritydialog.h"

#include <QIcon>

int CustomSliderStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                                 QStyleHintReturn *returnData) const
{
    if (hint == QStyle::SH_Slider_AbsoluteSetButtons)
        return Qt::LeftButton | Qt::RightButton | Qt::MiddleButton;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

SK_TaskPriorityDialog::SK_TaskPriorityDialog(SK_RaidApi &service, quint32 array, QWidget *parent)
    : QDialog(parent), api(&service), arrayId(array),
      ui(std::make_unique<Ui::SK_TaskPriorityDialog>())
{
    // Opening a dialog reads the configuration afresh.
    api->RefreshConfig();
    ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":images/icons/Logo.ico")));
    ui->confirmButton->setText(tr("Confirm"));
    ui->cancelButton->setText(tr("Cancel"));
    initTaskPriorityDialog();
}

SK_TaskPriorityDialog::~SK_TaskPriorityDialog() = default;

void SK_TaskPriorityDialog::initTaskPriorityDialog()
{
    const SK_ConfigArray *array = api->GetArrayRecord(static_cast<int>(arrayId));
    if (!array)
        return;
    const int current = SK_RaidApi::TaskPriorityLevel(array->TaskPriority);
    const QString name = QString::fromLocal8Bit(array->DisplayName);
    const QString task =
        SK_ArrayListParts::taskText("SK_TaskPriorityDialog", SK_FieldText(array->TransformType));

    QSlider *slider = ui->prioritySlider;
    slider->setMaximum(10);
    slider->setMinimum(1);
    slider->setSingleStep(1);
    slider->setPageStep(1);
    slider->setValue(current);
    // The proxy takes ownership of the base style it wraps, so it gets one of its own.
    auto *style = new CustomSliderStyle(slider->style()->objectName());
    style->setParent(slider);
    slider->setStyle(style);
    ui->newPriorityLabel->setText(tr("New priority: ") + QString::number(slider->value()));
    ui->currentyPriorityLabel->setText(tr("Current priority of the '") + task + tr("' task: ") +
                                       QString::number(current));
    ui->descriptionLabel->setText(tr("Use the slider to choose a new priority for the '") + task +
                                  tr("' task on array '") + name + QStringLiteral("'."));
}

void SK_TaskPriorityDialog::on_prioritySlider_valueChanged(int value)
{
    ui->newPriorityLabel->setText(tr("New priority: ") + QString::number(value));
}

// The scale's two ends don't map back onto themselves, so only a real move of the
// slider is sent; a task that ended meanwhile is refused by the service in silence.
void SK_TaskPriorityDialog::on_confirmButton_clicked()
{
    const SK_ConfigArray *array = api->GetArrayRecord(static_cast<int>(arrayId));
    if (!array)
        return;
    const int value = ui->prioritySlider->value();
    if (SK_RaidApi::TaskPriorityLevel(array->TaskPriority) != value)
        api->SetTaskPriority(static_cast<int>(arrayId), value);
    accept();
}

void SK_TaskPriorityDialog::on_cancelButton_clicked()
{
    close();
}
