#include "dialogs/sk_createdialog.h"

#include "dialogs/sk_arraydialogparts.h"
#include "dialogs/sk_questions.h"
#include "dialogs/sk_treeitems.h"
#include "dialogs/sk_windowstate.h"
#include "service/sk_applog.h"
#include "service/sk_raidapi.h"
#include "ui_sk_createdialog.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QIntValidator>
#include <QMessageBox>
#include <QScreen>
#include <QSignalBlocker>

using namespace SK_ArrayDialogParts;

namespace {

constexpr int kMinimumSizeMB = 100;
// Row 46 of the create verdicts: the size comparison is the dialog's, not the service's.
constexpr int kSizeAboveMaximumRow = 46;
constexpr int kSizeBelowMinimumRow = 1;
constexpr int kFirstRedundantTypeRow = 2;

const char *const kGeometryKey = "createWindowGeometry";
const char *const kHeaderKey = "createDiskListHeaderState";

} // namespace

SK_CreateDialog::SK_CreateDialog(SK_RaidApi &service, QSize size, QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::SK_CreateDialog>()), iconSize(size)
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
    fillCombos();
    initCreateDiskList();
    initCreateForm();
    ui->diskList->setItemDelegate(new CustomDelegate(ui->diskList));
    ui->createArrayView->setItemDelegate(new CustomDelegate(ui->createArrayView));

    SK_WindowState::restore(this, kGeometryKey, {{ui->diskList, kHeaderKey}});
    setWindowIcon(QIcon(QStringLiteral(":images/icons/Logo.ico")));
    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        const QSize available = screen->size();
        if (width() > available.width() || height() > available.height())
            resize(width() < available.width() ? width() : available.width(),
                   height() < available.height() ? height() : available.height());
    }
    connectSignals();
    isValidCreateConfig(true);
}

SK_CreateDialog::~SK_CreateDialog()
{
    SK_WindowState::save(this, kGeometryKey, {{ui->diskList, kHeaderKey}});
}

void SK_CreateDialog::fillCombos()
{
    // RAID 6 has a label and a type string, but this dialog doesn't offer it.
    ui->arrayTypeSel->addItems({volumeLabel, raid0Label, raid1Label, raid10Label, raid5Label});
    ui->cacheTypeSel->addItems(
        {tr("Read + Write Back Cache"), tr("Read Cache"), tr("Write Back Cache"), tr("No Cache")});
    ui->ctsSel->addItems({tr("Default"), tr("64 KB"), tr("128 KB"), tr("256 KB")});
}

void SK_CreateDialog::connectSignals()
{
    connect(ui->createButton, &QPushButton::clicked, this, &SK_CreateDialog::createButton_clicked);
    connect(ui->allButton, &QPushButton::clicked, this, &SK_CreateDialog::allButton_clicked);
    connect(ui->allNvmeButton, &QPushButton::clicked, this,
            &SK_CreateDialog::allNvmeButton_clicked);
    connect(ui->allSataSsdButton, &QPushButton::clicked, this,
            &SK_CreateDialog::allSataSsdButton_clicked);
    connect(ui->allHddButton, &QPushButton::clicked, this, &SK_CreateDialog::allHddButton_clicked);
    connect(ui->unusedButton, &QPushButton::clicked, this, &SK_CreateDialog::unusedButton_clicked);
    connect(ui->setMaxCapButton, &QPushButton::clicked, this,
            &SK_CreateDialog::setMaxCapButton_clicked);
    connect(ui->diskList, &QTreeWidget::itemChanged, this, &SK_CreateDialog::diskList_itemChanged);
    connect(ui->zeroCreateCheckBox, &QCheckBox::stateChanged, this,
            &SK_CreateDialog::zeroCreateCheckBox_stateChanged);
    connect(ui->leaveDataCheckBox, &QCheckBox::stateChanged, this,
            &SK_CreateDialog::leaveDataCheckBox_stateChanged);
    connect(ui->skipInitCheckBox, &QCheckBox::stateChanged, this,
            &SK_CreateDialog::skipInitCheckBox_stateChanged);
    connect(ui->arrayTypeSel, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &SK_CreateDialog::arrayTypeSel_currentIndexChanged);
    connect(ui->currentCapInput, &QLineEdit::textChanged, this,
            &SK_CreateDialog::currentCapInput_textChanged);
    // Any other option changes what the service is asked, so it is judged again too.
    connect(ui->cacheTypeSel, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this] { isValidCreateConfig(false); });
    connect(ui->ctsSel, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this] { isValidCreateConfig(false); });
    connect(ui->basCheckBox, &QCheckBox::stateChanged, this,
            [this] { isValidCreateConfig(false); });
}

void SK_CreateDialog::initCreateDiskList()
{
    ui->diskList->setHeaderLabels({tr("Disk"), tr("Port Type"), tr("Capacity"), tr("Uses"),
                                   tr("Free Space"), tr("Largest Free "), tr("GS"), tr("Trim"),
                                   tr("Informed Hot Swap"), tr("Model Number"), tr("Serial Number"),
                                   tr("Firmware Version")});
    DiskKinds kinds;
    for (int index = 0; index < api->GetDiskCount(); ++index) {
        const SK_ConfigDisk *disk = api->GetDiskRecord(index);
        if (!disk || qstrncmp(disk->Type, "Core", sizeof disk->Type) == 0)
            continue;
        if (api->GetValidDiskIndex(disk->Device) < 0 || !hasUsableFreeSpace(*disk))
            continue;
        addDiskRow(*api, ui->diskList, index, true, kinds);
    }
    finishDiskList(ui->diskList, 8);
    ui->allSataSsdButton->setEnabled(kinds.sataSsd);
    ui->allHddButton->setEnabled(kinds.hdd);
    ui->allNvmeButton->setEnabled(kinds.nvme);
    ui->unusedButton->setEnabled(kinds.unused);
}

void SK_CreateDialog::initCreateForm()
{
    ui->currentCapInput->setValidator(new QIntValidator(10, 100000000, ui->currentCapInput));
    if (ui->arrayTypeSel->currentIndex() < kFirstRedundantTypeRow) {
        ui->skipInitCheckBox->setEnabled(false);
        ui->skipInitCheckBox->setChecked(false);
    } else {
        ui->skipInitCheckBox->setEnabled(true);
    }
    ui->arrayNameInput->setMaxLength(30);
    ui->trimLabel->setText(tr("Trim:"));
    ui->trimSupportValue->setText(tr("No"));
    disableTypeRows(ui->arrayTypeSel, ui->diskList->topLevelItemCount());
}

QString SK_CreateDialog::getArrayType(int row)
{
    return arrayTypeOfRow(row);
}

int SK_CreateDialog::getArrayTypeIdx(QString type)
{
    return rowOfArrayType(type);
}

QString SK_CreateDialog::getCacheType(int row)
{
    return cacheTypeOfRow(row);
}

SK_Create SK_CreateDialog::getCreateParameters()
{
    SK_Create params;
    readCheckedDisks(ui->diskList, params);
    params.type = getArrayType(ui->arrayTypeSel->currentIndex());
    params.size = ui->currentCapInput->text().toInt();
    params.cache = getCacheType(ui->cacheTypeSel->currentIndex());
    params.cacheTagSize = SK_RaidApi::CacheTagSizeOfRow(ui->ctsSel->currentIndex());
    params.backgroundScan = ui->basCheckBox->isChecked();
    params.zeroCreate = ui->zeroCreateCheckBox->isChecked();
    params.skipInit = ui->skipInitCheckBox->isChecked();
    params.leaveData = ui->leaveDataCheckBox->isChecked();
    params.name = ui->arrayNameInput->text().trimmed();
    if (params.name.isEmpty()) {
        // A name nobody typed still tells arrays apart: the moment of the create. Points
        // are forbidden in names, and some locales write them into "a.m.".
        params.name = SK_AppLog::timeStamp().trimmed().remove(QLatin1Char('.'));
    }
    drawArrayView(params);
    return params;
}

void SK_CreateDialog::drawArrayView(const SK_Create &params)
{
    drawPlannedArray(ui->createArrayView, ui->arrayTypeSel->currentText(), params,
                     !ui->maxCapInput->text().isEmpty(), iconSize);
}

bool SK_CreateDialog::isValidCreateConfig(bool setCapInput)
{
    SK_Create params = getCreateParameters();
    ui->trimSupportValue->setText(tr("No"));
    selectedDiskText.clear();
    selectedDiskText = diskIdText(params);

    int max = api->CreateArray(params, true);
    qint32 size = params.size;
    QString message;
    if (max < 0) {
        message = createErrorList.value(max + 100);
        max = 0;
    } else if (size > max) {
        message = createErrorList.value(kSizeAboveMaximumRow);
    } else if (size < kMinimumSizeMB) {
        message = createErrorList.value(kSizeBelowMinimumRow);
    }
    ui->createWarningLabel->setText(verdictText(tr("Invalid Configuration: "), message));
    ui->maxCapInput->setText(QString::number(max));

    if (setCapInput && size == lastAutoSize) {
        // The capacity follows the maximum until the user types a value of their own.
        // An empty field stands for the 0 of "nothing possible". The new text is judged
        // again through its change signal, which brings the label up to date.
        ui->currentCapInput->setText(max > 0 ? QString::number(max) : QString());
        lastAutoSize = max;
        size = max;
    }

    if (size < kMinimumSizeMB || size > max) {
        ui->createButton->setEnabled(false);
        return false;
    }
    ui->createButton->setEnabled(true);
    params.size = size;
    if (api->ArrayCanTrim(params))
        ui->trimSupportValue->setText(tr("Yes"));
    return true;
}

int SK_CreateDialog::checkedDiskCount() const
{
    return checkedRowCount(ui->diskList);
}

void SK_CreateDialog::rebuildOrganizedAs()
{
    SK_ArrayDialogParts::rebuildOrganizedAs(
        ui->orgAsSel, getArrayType(ui->arrayTypeSel->currentIndex()), checkedDiskCount());
}

void SK_CreateDialog::createButton_clicked()
{
    if (!isValidCreateConfig(false))
        return;
    const SK_Create params = getCreateParameters();
    if (!api->IsValidArrayName(params.name)) {
        QMessageBox::warning(this, QCoreApplication::applicationName() + tr(" Create"),
                             tr("Invalid name: array names may not be the same as existing "
                                "array names or contain the following characters: "
                                "()^,.=|\"-[]"),
                             QMessageBox::Ok);
        return;
    }
    bool spare = false;
    for (int i = 0; i < params.diskCount; ++i) {
        const int id = int(params.disks[i]);
        spare |= api->DiskIsDedicatedSpare(id) || api->DiskIsGlobalSpare(id);
    }
    if (spare &&
        !SK_AskYesNo(
            this, tr("Confirm Create"),
            tr("Warning: You have included a spare in the array. Would you like to continue?"),
            tr("Yes"), tr("No")))
        return;
    if (api->HasDriveMixing(params) &&
        !SK_AskYesNo(this, tr("Confirm Create"),
                     tr("Warning: drive mixing detected! For best performance, it is "
                        "not recommended to mix drives of substantially different "
                        "performance. Do you want to create anyway?"),
                     tr("Yes"), tr("No")))
        return;
    if (api->CreateArray(params, false) < 1) {
        QMessageBox::about(this, QCoreApplication::applicationName(), tr("Create failed"));
        return;
    }
    accept();
}

void SK_CreateDialog::checkDisks(SK_ArrayDialogParts::DiskGroup group)
{
    {
        // One judgement for the whole selection instead of one per row.
        const QSignalBlocker quiet(ui->diskList);
        checkRowsWhere(ui->diskList,
                       [this, group](int id) { return inDiskGroup(*api, id, group); });
    }
    diskList_itemChanged(nullptr, 0);
}

void SK_CreateDialog::allButton_clicked()
{
    checkDisks(DiskGroup::All);
}

void SK_CreateDialog::allNvmeButton_clicked()
{
    checkDisks(DiskGroup::Nvme);
}

void SK_CreateDialog::allHddButton_clicked()
{
    checkDisks(DiskGroup::HardDisk);
}

void SK_CreateDialog::allSataSsdButton_clicked()
{
    checkDisks(DiskGroup::SataSsd);
}

void SK_CreateDialog::unusedButton_clicked()
{
    checkDisks(DiskGroup::Unused);
}

void SK_CreateDialog::diskList_itemChanged(QTreeWidgetItem *, int)
{
    rebuildOrganizedAs();
    isValidCreateConfig(true);
}

void SK_CreateDialog::arrayTypeSel_currentIndexChanged(int row)
{
    if (row >= kFirstRedundantTypeRow) {
        ui->skipInitCheckBox->setEnabled(!ui->zeroCreateCheckBox->isChecked());
    } else {
        ui->skipInitCheckBox->setEnabled(false);
        ui->skipInitCheckBox->setChecked(false);
    }
    rebuildOrganizedAs();
    isValidCreateConfig(true);
}

void SK_CreateDialog::zeroCreateCheckBox_stateChanged(int state)
{
    if (state == Qt::Checked) {
        ui->skipInitCheckBox->setEnabled(false);
        ui->skipInitCheckBox->setChecked(false);
        ui->leaveDataCheckBox->setEnabled(false);
        ui->leaveDataCheckBox->setChecked(false);
    } else {
        ui->leaveDataCheckBox->setEnabled(true);
        ui->skipInitCheckBox->setEnabled(ui->arrayTypeSel->currentIndex() >=
                                         kFirstRedundantTypeRow);
    }
    isValidCreateConfig(false);
}

void SK_CreateDialog::leaveDataCheckBox_stateChanged(int state)
{
    if (state == Qt::Checked) {
        ui->zeroCreateCheckBox->setEnabled(false);
        ui->zeroCreateCheckBox->setChecked(false);
    } else {
        ui->zeroCreateCheckBox->setEnabled(!ui->skipInitCheckBox->isChecked());
    }
    isValidCreateConfig(false);
}

void SK_CreateDialog::skipInitCheckBox_stateChanged(int state)
{
    if (state == Qt::Checked) {
        ui->zeroCreateCheckBox->setEnabled(false);
        ui->zeroCreateCheckBox->setChecked(false);
    } else {
        ui->zeroCreateCheckBox->setEnabled(!ui->leaveDataCheckBox->isChecked());
    }
    isValidCreateConfig(false);
}

void SK_CreateDialog::currentCapInput_textChanged(QString)
{
    isValidCreateConfig(false);
}

void SK_CreateDialog::setMaxCapButton_clicked()
{
    const QString max = ui->maxCapInput->text();
    if (max.toInt() != 0)
        ui->currentCapInput->setText(max);
    isValidCreateConfig(false);
}
