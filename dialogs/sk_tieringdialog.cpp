#include "dialogs/sk_tieringdialog.h"

#include "dialogs/sk_arraylistparts.h"
#include "dialogs/sk_treeitems.h"
#include "dialogs/sk_windowstate.h"
#include "service/service.h"
#include "ui_sk_tieringdialog.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QHeaderView>
#include <QIcon>
#include <QMessageBox>
#include <QSignalBlocker>

namespace {
constexpr char kContext[] = "SK_TieringDialog";
constexpr char kGeometryKey[] = "tieringWindowGeometry";
constexpr char kHotHeaderKey[] = "tierHotArrayListHeaderState";
constexpr char kColdHeaderKey[] = "tierColdArrayListHeaderState";

QString latin(const char *field)
{
    return QString::fromLatin1(field);
}

} // namespace

SK_TieringDialog::SK_TieringDialog(SK_RaidApi &service, QWidget *parent)
    : QDialog(parent), api(&service), ui(std::make_unique<Ui::SK_TieringDialog>())
{
    // Opening a dialog reads the configuration afresh.
    api->RefreshConfig();
    ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":images/icons/Logo.ico")));
    initTieringForm();

    SK_WindowState::restore(
        this, kGeometryKey,
        {{ui->hotArrayList, kHotHeaderKey}, {ui->coldArrayList, kColdHeaderKey}});
}

SK_TieringDialog::~SK_TieringDialog()
{
    SK_WindowState::save(this, kGeometryKey,
                         {{ui->hotArrayList, kHotHeaderKey}, {ui->coldArrayList, kColdHeaderKey}});
}

void SK_TieringDialog::initTieringForm()
{
    ui->commitButton->setText(tr("Commit"));
    ui->cancelButton->setText(tr("Cancel"));
    ui->tieringOptionsGroup->setTitle(tr("Tiering Options:"));
    ui->cacheLabel->setText(tr("Cache:"));
    ui->arrayNameLabel->setText(tr("Array Name:"));
    ui->hotArrayGroup->setTitle(tr("Hot Arrays:"));
    ui->coldArrayGroup->setTitle(tr("Cold Arrays:"));
    {
        // The form's own items, translated without counting as a user's choice.
        const QSignalBlocker blocker(ui->cacheComboBox);
        ui->cacheComboBox->setItemText(0, tr("Read + Write Back Cache"));
        ui->cacheComboBox->setItemText(1, tr("Read Cache"));
    }
    const QStringList headers = {tr("Device"),     tr("OS Name"), tr("Partition"),
                                 tr("Array Name"), tr("Type"),    tr("Total Capacity"),
                                 tr("State"),      tr("Cache"),   tr("CTS")};
    ui->hotArrayList->setHeaderLabels(headers);
    ui->coldArrayList->setHeaderLabels(headers);

    ui->commitButton->setEnabled(false);
    ui->tierTypeLabel->setText(tr("Type"));
    ui->tierTypeComboBox->addItem(tr("RAID CACHE"));
    ui->tierTypeComboBox->addItem(tr("RAID TIER"));
    setupColdArrayList(-1, -1);
    setupHotArrayList(-1, -1);
}

void SK_TieringDialog::addArrayRow(QTreeWidget *list, int index, int tickedArray)
{
    const SK_ConfigArray *array = api->GetArrayByIndex(index);
    const int id = array->Device;
    const QString type = latin(array->Type);
    auto *row = new QTreeWidgetItem(list);
    row->setText(0, tr("Array ") + QString::number(id));
    row->setData(0, SK_Role::DeviceId, id);
    row->setCheckState(0, id == tickedArray ? Qt::Checked : Qt::Unchecked);
    row->setText(1, SK_ArrayListParts::osNameText(*api, kContext, api->ArrayIsHidden(id), id));
    row->setText(2, api->DriveLetters(id));
    row->setText(3, QString::fromLocal8Bit(array->DisplayName));
    row->setText(4, type);
    row->setText(5, SK_RaidApi::CapacityText(static_cast<qint64>(array->Capacity)));
    row->setText(6, SK_ArrayListParts::stateText(kContext, latin(array->State)));
    row->setText(7, latin(array->Cache));
    row->setText(8, SK_ArrayListParts::cacheTagText(kContext, type, array->CacheTagSize));
}

void SK_TieringDialog::finishArrayList(QTreeWidget *list)
{
    for (int column = 0; column < 8; ++column)
        list->resizeColumnToContents(column);
    list->setSortingEnabled(true);
    list->sortByColumn(0, Qt::AscendingOrder);
}

// The cold array must be strictly bigger than the hot one, and at most one of the two
// may hold volumes.
void SK_TieringDialog::setupColdArrayList(int otherArray, int tickedArray)
{
    const QSignalBlocker blocker(ui->coldArrayList);
    for (int index = 0; index < api->GetArrayCount(); ++index) {
        const SK_ConfigArray *array = api->GetArrayByIndex(index);
        if (!array || !api->ArrayCanBeColdTier(array->Device))
            continue;
        if (otherArray >= 1 && (!api->ArrayIsBigger(array->Device, otherArray) ||
                                (!api->DriveLetters(array->Device).isEmpty() &&
                                 !api->DriveLetters(otherArray).isEmpty())))
            continue;
        addArrayRow(ui->coldArrayList, index, tickedArray);
    }
    finishArrayList(ui->coldArrayList);
}

// The mirror of the cold list; a hot array as big as the cold one stays listed, and
// the validity test turns the pair down.
void SK_TieringDialog::setupHotArrayList(int otherArray, int tickedArray)
{
    const QSignalBlocker blocker(ui->hotArrayList);
    for (int index = 0; index < api->GetArrayCount(); ++index) {
        const SK_ConfigArray *array = api->GetArrayByIndex(index);
        if (!array || !api->ArrayCanBeHotTier(array->Device))
            continue;
        if (otherArray >= 1 && (api->ArrayIsBigger(array->Device, otherArray) ||
                                (!api->DriveLetters(array->Device).isEmpty() &&
                                 !api->DriveLetters(otherArray).isEmpty())))
            continue;
        addArrayRow(ui->hotArrayList, index, tickedArray);
    }
    finishArrayList(ui->hotArrayList);
}

SK_Tier SK_TieringDialog::getTierParameters()
{
    SK_Tier tier;
    tier.name = ui->arrayNameInput->text().trimmed();
    if (tier.name.isEmpty())
        tier.name = QDateTime::currentDateTime()
                        .toString(QStringLiteral("M/dd/yyyy h:mm:ss AP"))
                        .remove(QLatin1Char('.'));
    tier.type = ui->tierTypeComboBox->currentIndex() == 0 ? QStringLiteral("RAIDCACHE")
                                                          : QStringLiteral("RAIDTIER");
    tier.cache = getCacheType(ui->cacheComboBox->currentIndex());
    const int cold = getArrayChecked(ui->coldArrayList);
    const int hot = getArrayChecked(ui->hotArrayList);
    tier.arrays[0] = static_cast<quint32>(cold);
    tier.arrays[1] = static_cast<quint32>(hot);
    tier.arrayCount = (cold >= 1 ? 1 : 0) + (hot >= 1 ? 1 : 0);
    tier.hotHasVolumes = !api->DriveLetters(hot).isEmpty();
    tier.coldHasNoVolumes = api->DriveLetters(cold).isEmpty();
    return tier;
}

bool SK_TieringDialog::isValidTierConfig()
{
    const SK_Tier tier = getTierParameters();
    const int cold = static_cast<int>(tier.arrays[0]);
    const int hot = static_cast<int>(tier.arrays[1]);
    bool valid = tier.arrayCount == 2 && api->ArrayIsBigger(cold, hot);
    // A write back cache needs the same protection on both sides.
    if (valid && tier.cache == QLatin1String("RW"))
        valid = api->ArrayIsRedundant(cold) == api->ArrayIsRedundant(hot);
    // Volumes on the hot array survive only with the write back cache in front.
    if (valid && tier.hotHasVolumes)
        valid = tier.cache != QLatin1String("R");
    ui->commitButton->setEnabled(valid);
    return valid;
}

void SK_TieringDialog::on_cancelButton_clicked()
{
    reject();
}

void SK_TieringDialog::on_commitButton_clicked()
{
    if (!isValidTierConfig())
        return;
    if (api->CreateTier(getTierParameters(), false) >= 1) {
        accept();
        return;
    }
    QMessageBox::about(this, QCoreApplication::applicationName(), tr("Tier command failed"));
}

void SK_TieringDialog::on_coldArrayList_itemChanged(QTreeWidgetItem *item, int)
{
    const int hot = getArrayChecked(ui->hotArrayList);
    if (item->checkState(0) == Qt::Checked) {
        limitOneArraySelection(ui->coldArrayList, item);
        ui->hotArrayList->clear();
        setupHotArrayList(GetArrayIndex(item), hot);
    }
    if (!IsArrayChecked(ui->coldArrayList)) {
        ui->hotArrayList->clear();
        setupHotArrayList(-1, hot);
    }
    isValidTierConfig();
}

void SK_TieringDialog::on_hotArrayList_itemChanged(QTreeWidgetItem *item, int)
{
    const int cold = getArrayChecked(ui->coldArrayList);
    if (item->checkState(0) == Qt::Checked) {
        limitOneArraySelection(ui->hotArrayList, item);
        ui->coldArrayList->clear();
        setupColdArrayList(GetArrayIndex(item), cold);
    }
    if (!IsArrayChecked(ui->hotArrayList)) {
        ui->coldArrayList->clear();
        setupColdArrayList(-1, cold);
    }
    isValidTierConfig();
}

int SK_TieringDialog::GetArrayIndex(QTreeWidgetItem *item)
{
    return item->data(0, SK_Role::DeviceId).toInt();
}

void SK_TieringDialog::limitOneArraySelection(QTreeWidget *arrayTreeWidget, QTreeWidgetItem *item)
{
    for (int i = 0; i < arrayTreeWidget->topLevelItemCount(); ++i) {
        QTreeWidgetItem *row = arrayTreeWidget->topLevelItem(i);
        if (row->text(0) != item->text(0) && row->checkState(0) == Qt::Checked)
            row->setCheckState(0, Qt::Unchecked);
    }
}

bool SK_TieringDialog::IsArrayChecked(QTreeWidget *arrayTreeWidget)
{
    for (int i = 0; i < arrayTreeWidget->topLevelItemCount(); ++i) {
        if (arrayTreeWidget->topLevelItem(i)->checkState(0) == Qt::Checked)
            return true;
    }
    return false;
}

int SK_TieringDialog::getArrayChecked(QTreeWidget *arrayTreeWidget)
{
    int id = -1;
    for (int i = 0; i < arrayTreeWidget->topLevelItemCount(); ++i) {
        QTreeWidgetItem *row = arrayTreeWidget->topLevelItem(i);
        if (row->checkState(0) == Qt::Checked)
            id = GetArrayIndex(row);
    }
    return id;
}

QString SK_TieringDialog::getCacheType(int formCacheIdx)
{
    switch (formCacheIdx) {
    case 0:
        return QStringLiteral("RW");
    case 1:
        return QStringLiteral("R");
    default:
        return QStringLiteral("Error");
    }
}

void SK_TieringDialog::on_cacheComboBox_currentIndexChanged(int)
{
    const int hot = getArrayChecked(ui->hotArrayList);
    const int cold = getArrayChecked(ui->coldArrayList);
    ui->coldArrayList->clear();
    setupColdArrayList(hot, cold);
    ui->hotArrayList->clear();
    setupHotArrayList(cold, hot);
    isValidTierConfig();
}
