#include "dialogs/sk_transformdialog.h"

#include "dialogs/sk_arraydialogparts.h"
#include "dialogs/sk_questions.h"
#include "dialogs/sk_treeitems.h"
#include "dialogs/sk_windowstate.h"
#include "service/sk_raidapi.h"
#include "ui_sk_transformdialog.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QIntValidator>
#include <QMessageBox>
#include <QScreen>
#include <QSignalBlocker>

#include <cmath>
#include <iterator>

using namespace SK_ArrayDialogParts;

namespace {

constexpr int kMinimumSizeMB = 100;
// Rows of the transform verdicts that the size comparison here raises.
constexpr int kSizeBelowMinimumRow = 1;
constexpr int kSizeAboveMaximumRow = 32;
constexpr int kSizeNotPossibleRow = 33;

const char *const kGeometryKey = "transformWindowGeometry";
const char *const kHeaderKey = "transformDiskListHeaderState";

int memberCount(const SK_ConfigArray &array)
{
    const int count = array.FirstCount * array.SecondCount;
    return qBound(0, count, int(std::size(array.Members)));
}

} // namespace

SK_TransformDialog::SK_TransformDialog(SK_RaidApi &service, int id, QSize size, QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::SK_TransformDialog>()), iconSize(size), arrayId(id)
{
    volumeLabel = tr("Volume  (JBOD)");
    raid0Label = tr("RAID 0  (Stripe)");
    raid1Label = tr("RAID 1  (Mirror)");
    raid10Label = tr("RAID 10 (Stripe of Mirrors)");
    raid5Label = tr("RAID 5   (Stripe with Parity)");
    raid6Label = tr("RAID 6   (Stripe with 2 Parities)");
    ui->setupUi(this);
    // Opening a dialog reads the configuration afresh.
    api = &service;
    api->RefreshConfig();
    {
        // The slots named after their widgets are connected by now; nothing is there
        // to judge before the list is filled.
        const QSignalBlocker quiet(ui->arrayTypeSel);
        ui->arrayTypeSel->addItems({volumeLabel, raid0Label, raid1Label, raid10Label, raid5Label});
    }
    initTransformDiskList();
    initTransformForm();
    ui->diskList->setItemDelegate(new CustomDelegate(ui->diskList));
    ui->sourceArrayView->setItemDelegate(new CustomDelegate(ui->sourceArrayView));
    ui->dstArrayView->setItemDelegate(new CustomDelegate(ui->dstArrayView));

    SK_WindowState::restore(this, kGeometryKey, {{ui->diskList, kHeaderKey}});
    setWindowIcon(QIcon(QStringLiteral(":images/icons/Logo.ico")));
    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        const QSize available = screen->size();
        if (width() > available.width() || height() > available.height())
            resize(qMin(width(), available.width()), qMin(height(), available.height()));
    }
    isValidTransformConfig();
}

SK_TransformDialog::~SK_TransformDialog()
{
    SK_WindowState::save(this, kGeometryKey, {{ui->diskList, kHeaderKey}});
}

QString SK_TransformDialog::getArrayType(int row)
{
    return arrayTypeOfRow(row);
}

int SK_TransformDialog::getArrayTypeIdx(QString type)
{
    return rowOfArrayType(type);
}

QString SK_TransformDialog::getCacheType(int row)
{
    return cacheTypeOfRow(row);
}

int SK_TransformDialog::convertSizeToMB(SK_UINT64 arraySize)
{
    // Single precision, as the size figures elsewhere in the console.
    const float bytes = static_cast<float>(arraySize * 512);
    return static_cast<int>(std::lround(bytes / 1000000.0f));
}

void SK_TransformDialog::initTransformDiskList()
{
    ui->diskList->setHeaderLabels({tr("Disk"), tr("Port Type"), tr("Capacity"), tr("Uses"),
                                   tr("Free Space"), tr("Largest Free "), tr("GS"),
                                   tr("Informed Hot Swap"), tr("Model Number"), tr("Serial Number"),
                                   tr("Firmware Version")});
    DiskKinds kinds;
    for (int index = 0; index < api->GetDiskCount(); ++index) {
        const SK_ConfigDisk *disk = api->GetDiskRecord(index);
        if (!disk || qstrncmp(disk->Type, "Core", sizeof disk->Type) == 0)
            continue;
        if (api->GetValidDiskIndex(disk->Device) < 0)
            continue;
        // A member's space is the array's own, whether or not any is left over.
        if (!hasUsableFreeSpace(*disk) && !api->IsMember(arrayId, disk->Device))
            continue;
        addDiskRow(*api, ui->diskList, index, false, kinds);
    }
    finishDiskList(ui->diskList, 7);
    ui->selectAllSataSsdButton->setEnabled(kinds.sataSsd);
    ui->selectAllHddButton->setEnabled(kinds.hdd);
    ui->selectAllNVMeButton->setEnabled(kinds.nvme);
}

void SK_TransformDialog::initTransformForm()
{
    const SK_ConfigArray *array = api->GetArrayRecord(arrayId, true);
    if (!array)
        return;
    const QString current = QString::number(convertSizeToMB(array->Capacity));
    ui->currentCapInput->setText(current);
    ui->capInput->setText(current);
    setupSourceArrayView();
    ui->capInput->setValidator(new QIntValidator(10, 100000000, ui->capInput));
    disableTypeRows(ui->arrayTypeSel, ui->diskList->topLevelItemCount());

    connect(ui->diskList, &QTreeWidget::itemChanged, this,
            &SK_TransformDialog::tranformDiskList_itemChanged);
    connect(ui->commitButton, &QPushButton::clicked, this,
            &SK_TransformDialog::commitTransformButton_clicked);
    connect(ui->capInput, &QLineEdit::textChanged, this,
            &SK_TransformDialog::capacityInput_textChanged);
    connect(ui->allButton, &QPushButton::clicked, this,
            &SK_TransformDialog::selectAllButton_clicked);
}

void SK_TransformDialog::setupSourceArrayView()
{
    ui->sourceArrayView->clear();
    const SK_ConfigArray *found = api->GetArrayRecord(arrayId, true);
    if (!found)
        return;
    const SK_ConfigArray array = *found;
    QString title = tr("Array ") + QString::number(arrayId);
    const QString name = SK_FieldText(array.DisplayName);
    if (name != QLatin1String("NONE"))
        title += QLatin1Char(' ') + name;
    auto *root = new QTreeWidgetItem(ui->sourceArrayView, QStringList(title));
    root->setIcon(0, QIcon(QStringLiteral(":images/icons/small_array.png")));
    const QString type = SK_FieldText(array.Type);
    auto *typeItem = new QTreeWidgetItem(root, QStringList(type));
    typeItem->setIcon(
        0, QIcon(QStringLiteral(":images/icons/small_normal") + type + QStringLiteral(".png")));

    const QIcon diskIcon = QIcon(QIcon(QStringLiteral(":images/icons/HDD.png")).pixmap(iconSize));
    const bool nested = SK_RaidApi::TypeIsNested(type);
    const int perMember = nested ? qMax(1, int(array.SecondCount)) : memberCount(array);
    QTreeWidgetItem *parent = typeItem;
    for (int i = 0; i < memberCount(array); ++i) {
        if (nested && i % perMember == 0)
            parent = new QTreeWidgetItem(typeItem, QStringList(SK_RaidApi::GetMemberType(type)));
        const SK_ConfigDisk *disk = api->GetDiskRecord(api->GetDiskIndex(array.Members[i].Device));
        QString line = QStringLiteral("Disk ");
        if (disk)
            line += QString::number(disk->ControllerNumber) + QLatin1Char(' ') +
                    QString::number(disk->Channel);
        else
            line += QStringLiteral("?");
        auto *item = new QTreeWidgetItem(parent, QStringList(line));
        item->setIcon(0, diskIcon);
    }
    ui->sourceArrayView->setIconSize(iconSize);
    ui->sourceArrayView->expandAll();
}

void SK_TransformDialog::setupDstArrayView(SK_Create createParams)
{
    drawPlannedArray(ui->dstArrayView, ui->arrayTypeSel->currentText(), createParams, true,
                     iconSize);
}

SK_Create SK_TransformDialog::getCreateParameters()
{
    SK_Create params;
    readCheckedDisks(ui->diskList, params);
    params.type = getArrayType(ui->arrayTypeSel->currentIndex());
    params.size = ui->capInput->text().toInt();
    return params;
}

bool SK_TransformDialog::isValidTransformConfig()
{
    SK_Create params = getCreateParameters();
    selectedDiskText = diskIdText(params);
    const SK_ConfigArray *found = api->GetArrayRecord(arrayId, true);
    if (!found)
        return false;
    // A copy: the query below re-reads the picture the record lives in.
    const SK_ConfigArray array = *found;
    params.name = SK_FieldText(array.DisplayName);

    int max = api->TransformArray(params, arrayId, true);
    const qint32 size = params.size;
    QString message;
    if (max < 0) {
        message = transformErrorList.value(max + 100);
        max = 0;
    } else if (size < kMinimumSizeMB) {
        message = transformErrorList.value(kSizeBelowMinimumRow);
    } else if (size > max) {
        message = transformErrorList.value(max == 0 ? kSizeNotPossibleRow : kSizeAboveMaximumRow);
    }
    ui->transformWarningLabel->setText(verdictText(tr("Invalid Configuration: "), message));
    ui->maxCapInput->setText(QString::number(max));

    // Arrays don't shrink; no verdict says so, the commit is simply off.
    if (size < convertSizeToMB(array.Capacity) || size > max) {
        ui->commitButton->setEnabled(false);
        ui->sameButton->setDefault(true);
        setupDstArrayView(params);
        return false;
    }
    ui->commitButton->setEnabled(true);
    ui->commitButton->setDefault(true);
    setupDstArrayView(params);
    return true;
}

void SK_TransformDialog::rebuildOrganizedAs()
{
    SK_ArrayDialogParts::rebuildOrganizedAs(ui->orgAsSel,
                                            getArrayType(ui->arrayTypeSel->currentIndex()),
                                            checkedRowCount(ui->diskList));
}

void SK_TransformDialog::tranformDiskList_itemChanged(QTreeWidgetItem *, int)
{
    rebuildOrganizedAs();
    isValidTransformConfig();
}

void SK_TransformDialog::on_arrayTypeSel_currentIndexChanged(int)
{
    rebuildOrganizedAs();
    isValidTransformConfig();
}

void SK_TransformDialog::capacityInput_textChanged(QString)
{
    isValidTransformConfig();
}

void SK_TransformDialog::on_setCurrentCapMaxButton_clicked()
{
    const QString max = ui->maxCapInput->text();
    if (max.toInt() != 0)
        ui->capInput->setText(max);
}

void SK_TransformDialog::on_sameButton_clicked()
{
    const SK_ConfigArray *found = api->GetArrayRecord(arrayId, true);
    if (!found)
        return;
    const SK_ConfigArray array = *found;
    QList<int> members;
    for (int i = 0; i < memberCount(array); ++i)
        members << array.Members[i].Device;
    {
        // One judgement of the array's own shape, not one per field put back.
        const QSignalBlocker quietSize(ui->capInput);
        const QSignalBlocker quietType(ui->arrayTypeSel);
        const QSignalBlocker quietList(ui->diskList);
        ui->capInput->setText(QString::number(convertSizeToMB(array.Capacity)));
        ui->arrayTypeSel->setCurrentIndex(getArrayTypeIdx(SK_FieldText(array.Type)));
        checkRowsWhere(ui->diskList, [&members](int id) { return members.contains(id); });
    }
    rebuildOrganizedAs();
    isValidTransformConfig();
}

void SK_TransformDialog::checkDisks(SK_ArrayDialogParts::DiskGroup group)
{
    {
        const QSignalBlocker quiet(ui->diskList);
        checkRowsWhere(ui->diskList,
                       [this, group](int id) { return inDiskGroup(*api, id, group); });
    }
    tranformDiskList_itemChanged(nullptr, 0);
}

void SK_TransformDialog::selectAllButton_clicked()
{
    checkDisks(DiskGroup::All);
}

void SK_TransformDialog::on_unusedButton_clicked()
{
    checkDisks(DiskGroup::Unused);
}

void SK_TransformDialog::on_selectAllHddButton_clicked()
{
    checkDisks(DiskGroup::HardDisk);
}

void SK_TransformDialog::on_selectAllSataSsdButton_clicked()
{
    checkDisks(DiskGroup::SataSsd);
}

void SK_TransformDialog::on_selectAllNVMeButton_clicked()
{
    checkDisks(DiskGroup::Nvme);
}

bool SK_TransformDialog::SourceHasHotswapDevices()
{
    const SK_ConfigArray *array = api->GetArrayRecord(arrayId, true);
    if (!array)
        return false;
    for (int i = 0; i < memberCount(*array); ++i) {
        if (api->DiskHasHotSwap(array->Members[i].Device))
            return true;
    }
    return false;
}

bool SK_TransformDialog::ask(const QString &title, const QString &question)
{
    return SK_AskYesNo(this, title, question, tr("Yes"), tr("No"));
}

void SK_TransformDialog::commitTransformButton_clicked()
{
    if (!isValidTransformConfig())
        return;
    const SK_Create params = getCreateParameters();
    bool spare = false;
    bool hotSwap = false;
    for (int i = 0; i < params.diskCount; ++i) {
        const int id = int(params.disks[i]);
        spare |= api->DiskIsDedicatedSpare(id) || api->DiskIsGlobalSpare(id);
        hotSwap |= api->DiskHasHotSwap(id);
    }
    if (spare && !ask(tr("Confirm Transform"),
                      tr("Warning: You have included a spare in the array. Would you like to "
                         "continue?")))
        return;
    // The operating system learns of the new devices of a hot swap array only at the
    // next boot, whichever side of the transform the disk is on.
    if ((hotSwap || SourceHasHotswapDevices()) &&
        !ask(tr("Confirm Transform"),
             tr("Warning: This array transform includes a hot swappable device. After the "
                "transform completes a system reboot must be performed to notify the OS of the "
                "array's underlying device changes. Would you like to continue?")))
        return;
    // The create dialog's words: users know the question by them.
    if (api->HasDriveMixing(params) &&
        !ask(tr("Confirm Create"),
             tr("Warning: drive mixing detected! For best performance, it is not recommended "
                "to mix drives of substantially different performance. Do you want to create "
                "anyway?")))
        return;
    if (api->TransformArray(params, arrayId, false) < 1) {
        QMessageBox::about(this, QCoreApplication::applicationName(),
                           tr("Transform command failed"));
        return;
    }
    accept();
}
