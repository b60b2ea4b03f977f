// The create and transform dialogs against a fresh emulated host: the verdict shown
// while the user picks, the capacity that follows the maximum, and commits that reach
// the emulated drivers or are refused without a command.

#include "dialogs/dialogs.h"
#include "emulator/emulator.h"
#include "support/emulated_host.h"
#include "support/widget_helpers.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QtTest>

namespace {

using namespace sk_emu;

// Disk ids of the default workstation: port + 1 on the one controller.
constexpr int kSsdA = 1, kHdd1 = 3, kSpare = 6, kNvme = 7;
constexpr int kData = 2;
// Type rows of the dialogs' combo.
constexpr int kVolumeRow = 0, kRaid0Row = 1, kRaid1Row = 2, kRaid10Row = 3, kRaid5Row = 4;

// Unused NVMe disks like the workstation's own, on the next free ports.
void addNvmeDisks(EmulatedHostScope &scope, int count)
{
    scope.host->modify([count](Model &m) {
        const Disk model = m.disks.back();
        for (int i = 0; i < count; ++i) {
            Disk d = model;
            d.id = model.id + 0x100 * std::uint64_t(i + 1);
            d.port = model.port + std::uint32_t(i + 1);
            d.serial = "S7HENJ0X30830" + std::to_string(i);
            m.disks.push_back(d);
        }
        return true;
    });
}

QList<int> checkedDisks(QTreeWidget *list)
{
    QList<int> ids;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        if (list->topLevelItem(i)->checkState(0) == Qt::Checked)
            ids << list->topLevelItem(i)->data(0, SK_Role::DeviceId).toInt();
    }
    return ids;
}

void checkDisks(QWidget *dialog, const QList<int> &ids, Qt::CheckState state = Qt::Checked)
{
    tickRows(widget<QTreeWidget>(dialog, "diskList"), ids, state, SK_Role::DeviceId);
}

QString plain(const QString &richText)
{
    QTextDocument document;
    document.setHtml(richText);
    return document.toPlainText().trimmed();
}

// An unused disk like disk `like`, on the next free port: disk 8 of the workstation.
void addDiskLike(EmulatedHostScope &scope, int like, const char *serial)
{
    scope.host->modify([like, serial](Model &m) {
        Disk d = m.disks.at(std::size_t(like - 1));
        d.id += 0x1000;
        d.port = m.disks.back().port + 1;
        d.serial = serial;
        m.disks.push_back(d);
        return true;
    });
}

// A hard disk like the data array's.
void addHardDisk(EmulatedHostScope &scope)
{
    addDiskLike(scope, kHdd1, "WX20D9Q1");
}

QStringList viewLines(QTreeWidget *view)
{
    QStringList lines;
    for (QTreeWidgetItemIterator it(view); *it; ++it)
        lines << (*it)->text(0);
    return lines;
}

bool typeRowEnabled(QComboBox *types, int row)
{
    auto *model = qobject_cast<QStandardItemModel *>(types->model());
    return model && model->item(row)->isEnabled();
}

const Array *arrayNamed(const Model &m, const std::string &name)
{
    for (const Array &a : m.arrays) {
        if (a.name == name)
            return &a;
    }
    return nullptr;
}

} // namespace

class TestArrayDialogs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void createListsDisksWithFreeSpace();
    void createVerdictFollowsTheSelection_data();
    void createVerdictFollowsTheSelection();
    void createCapacityFollowsTheMaximumUntilTyped();
    void createOptionRulesExcludeEachOther();
    void createCommitReachesTheDrivers();
    void createRefusalSendsNothing_data();
    void createRefusalSendsNothing();
    void createRestoresItsWindowState();

    void transformListsTheArraysOwnDisks();
    void transformVerdictFollowsTheSelection();
    void transformCantShrinkButCommitsGrowth();
    void transformSeesTheArrayGone();

private:
    QTemporaryDir settingsDir;
};

void TestArrayDialogs::initTestCase()
{
    QVERIFY(settingsDir.isValid());
    keepSettingsIn(settingsDir.path());
}

void TestArrayDialogs::createListsDisksWithFreeSpace()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    SK_CreateDialog dialog(api, QSize(16, 16));
    auto *list = widget<QTreeWidget>(&dialog, "diskList");
    const QList<int> listed = rowIds(list, SK_Role::DeviceId);
    QVERIFY2(listed.contains(kNvme), "the unused NVMe disk is offered");
    QVERIFY2(!listed.contains(kHdd1),
             "a member of the data array whose disk is all used has nothing to offer");
    QVERIFY2(widget<QPushButton>(&dialog, "allNvmeButton")->isEnabled(), "an NVMe disk is listed");
    QVERIFY2(!widget<QPushButton>(&dialog, "allHddButton")->isEnabled() || listed.contains(kSpare),
             "the hard disk button follows the listed kinds");
    auto *types = widget<QComboBox>(&dialog, "arrayTypeSel");
    QCOMPARE(types->count(), 5);
    QVERIFY(typeRowEnabled(types, kVolumeRow));
    QCOMPARE(typeRowEnabled(types, kRaid0Row), listed.size() >= 2);
    QCOMPARE(typeRowEnabled(types, kRaid10Row), listed.size() >= 4);
}

void TestArrayDialogs::createVerdictFollowsTheSelection_data()
{
    QTest::addColumn<int>("typeRow");
    QTest::addColumn<int>("extraDisks");
    QTest::addColumn<QList<int>>("disks");
    QTest::addColumn<QString>("verdict");

    QTest::newRow("nothing checked asks for disks")
        << kVolumeRow << 0 << QList<int>{} << QStringLiteral("no disks were selected");
    QTest::newRow("one unused disk makes a volume")
        << kVolumeRow << 0 << QList<int>{kNvme} << QString();
    QTest::newRow("a mirror of one disk is refused")
        << kRaid1Row << 2 << QList<int>{kNvme} << QStringLiteral("RAID1 requires 2 drives");
    QTest::newRow("a mirror of two disks is fine")
        << kRaid1Row << 2 << QList<int>{kNvme, 8} << QString();
    QTest::newRow("RAID 5 of two disks is refused")
        << kRaid5Row << 2 << QList<int>{kNvme, 8}
        << QStringLiteral("RAID5 requires at least 3 drives");
    QTest::newRow("RAID 10 of three disks is refused")
        << kRaid10Row << 3 << QList<int>{kNvme, 8, 9}
        << QStringLiteral("RAID10 must have an even number of 4 to 8 disks");
    QTest::newRow("RAID 10 of four disks is fine")
        << kRaid10Row << 3 << QList<int>{kNvme, 8, 9, 10} << QString();
}

void TestArrayDialogs::createVerdictFollowsTheSelection()
{
    QFETCH(int, typeRow);
    QFETCH(int, extraDisks);
    QFETCH(QList<int>, disks);
    QFETCH(QString, verdict);

    EmulatedHostScope scope;
    addNvmeDisks(scope, extraDisks);
    SK_RaidApi api;
    SK_CreateDialog dialog(api, QSize(16, 16));
    widget<QComboBox>(&dialog, "arrayTypeSel")->setCurrentIndex(typeRow);
    checkDisks(&dialog, disks);

    const QString label = plain(widget<QLabel>(&dialog, "createWarningLabel")->text());
    auto *create = widget<QPushButton>(&dialog, "createButton");
    if (verdict.isEmpty()) {
        QVERIFY2(label.isEmpty(), qPrintable("no verdict expected, got: " + label));
        QVERIFY2(create->isEnabled(), "a valid choice can be created");
        QVERIFY2(widget<QLineEdit>(&dialog, "maxCapInput")->text().toInt() >= 100,
                 "a valid choice offers room");
    } else {
        QCOMPARE(label, QStringLiteral("Invalid Configuration: ") + verdict);
        QVERIFY2(!create->isEnabled(), "an invalid choice can't be created");
        QCOMPARE(widget<QLineEdit>(&dialog, "maxCapInput")->text(), QStringLiteral("0"));
    }
}

void TestArrayDialogs::createCapacityFollowsTheMaximumUntilTyped()
{
    EmulatedHostScope scope;
    addNvmeDisks(scope, 2);
    SK_RaidApi api;
    SK_CreateDialog dialog(api, QSize(16, 16));
    auto *capacity = widget<QLineEdit>(&dialog, "currentCapInput");
    auto *maximum = widget<QLineEdit>(&dialog, "maxCapInput");
    QVERIFY2(capacity->text().isEmpty(), "nothing is possible before a disk is checked");

    checkDisks(&dialog, {kNvme});
    const int oneDisk = maximum->text().toInt();
    QVERIFY(oneDisk > 1000);
    QCOMPARE(capacity->text().toInt(), oneDisk);

    widget<QComboBox>(&dialog, "arrayTypeSel")->setCurrentIndex(kRaid0Row);
    checkDisks(&dialog, {8});
    const int twoDisks = maximum->text().toInt();
    QVERIFY2(twoDisks > oneDisk, "a stripe over two disks is larger than one disk");
    QCOMPARE(capacity->text().toInt(), twoDisks);

    QTest::keyClicks(capacity, QStringLiteral("x")); // refused by the validator
    capacity->setText(QStringLiteral("5000"));
    checkDisks(&dialog, {9});
    QVERIFY(maximum->text().toInt() > twoDisks);
    QCOMPARE(capacity->text(), QStringLiteral("5000"));
    QVERIFY(widget<QPushButton>(&dialog, "createButton")->isEnabled());

    capacity->setText(QString::number(maximum->text().toInt() + 1));
    QCOMPARE(plain(widget<QLabel>(&dialog, "createWarningLabel")->text()),
             QStringLiteral("Invalid Configuration: create size exceeds maximum possible size"));
    QVERIFY(!widget<QPushButton>(&dialog, "createButton")->isEnabled());
    click(&dialog, "setMaxCapButton");
    QCOMPARE(capacity->text(), maximum->text());
    QVERIFY(widget<QPushButton>(&dialog, "createButton")->isEnabled());
}

void TestArrayDialogs::createOptionRulesExcludeEachOther()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    SK_CreateDialog dialog(api, QSize(16, 16));
    auto *skip = widget<QCheckBox>(&dialog, "skipInitCheckBox");
    auto *leave = widget<QCheckBox>(&dialog, "leaveDataCheckBox");
    auto *zero = widget<QCheckBox>(&dialog, "zeroCreateCheckBox");
    auto *types = widget<QComboBox>(&dialog, "arrayTypeSel");
    QVERIFY2(!skip->isEnabled(), "a volume has nothing to initialise");

    types->setCurrentIndex(kRaid1Row);
    QVERIFY(skip->isEnabled());
    zero->setChecked(true);
    QVERIFY2(!skip->isEnabled() && !leave->isEnabled(), "zeroing excludes both others");
    zero->setChecked(false);
    QVERIFY(skip->isEnabled() && leave->isEnabled());

    skip->setChecked(true);
    QVERIFY(!zero->isEnabled());
    leave->setChecked(true);
    skip->setChecked(false);
    QVERIFY2(!zero->isEnabled(), "leaving data still excludes zeroing");
    leave->setChecked(false);
    QVERIFY(zero->isEnabled());

    skip->setChecked(true);
    types->setCurrentIndex(kRaid0Row);
    QVERIFY2(!skip->isEnabled() && !skip->isChecked(), "a stripe clears the skip");
}

void TestArrayDialogs::createCommitReachesTheDrivers()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    SK_CreateDialog dialog(api, QSize(16, 16));
    checkDisks(&dialog, {kNvme});
    widget<QLineEdit>(&dialog, "currentCapInput")->setText(QStringLiteral("250000"));
    widget<QLineEdit>(&dialog, "arrayNameInput")->setText(QStringLiteral("Scratch"));
    click(&dialog, "createButton");

    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    const Model m = scope.host->model();
    const Array *made = arrayNamed(m, "Scratch");
    QVERIFY2(made, "the drivers hold an array of the given name");
    QCOMPARE(made->layout.type, code::TypeVolume);
    QCOMPARE(made->layout.members.size(), std::size_t(1));
    const double megabytes = double(made->layout.capacity) * 512 / 1000000;
    QVERIFY2(qAbs(megabytes - 250000) < 2, qPrintable(QString::number(megabytes)));
}

void TestArrayDialogs::createRefusalSendsNothing_data()
{
    QTest::addColumn<bool>("sataSsd");
    QTest::addColumn<int>("typeRow");
    QTest::addColumn<QList<int>>("disks");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QStringList>("buttons"); // as the box labels them

    QTest::newRow("another array's name")
        << false << kVolumeRow << QList<int>{kNvme} << "Data" << int(QMessageBox::Ok)
        << "Invalid name:" << QStringList{"OK"};
    // An unused SATA SSD beside the unused NVMe disk.
    QTest::newRow("declined drive mixing")
        << true << kRaid0Row << QList<int>{kNvme, 8} << "" << int(QMessageBox::No)
        << "Warning: drive mixing detected!" << QStringList{"Yes", "No"};
}

void TestArrayDialogs::createRefusalSendsNothing()
{
    QFETCH(bool, sataSsd);
    QFETCH(int, typeRow);
    QFETCH(QList<int>, disks);
    QFETCH(QString, name);
    QFETCH(int, answer);
    QFETCH(QString, message);
    QFETCH(QStringList, buttons);

    EmulatedHostScope scope;
    if (sataSsd)
        addDiskLike(scope, kSsdA, "S6PUNX0T512999Z");
    const std::uint64_t before = scope.host->model().generation;
    SK_RaidApi api;
    SK_CreateDialog dialog(api, QSize(16, 16));
    widget<QComboBox>(&dialog, "arrayTypeSel")->setCurrentIndex(typeRow);
    checkDisks(&dialog, disks);
    if (!name.isEmpty())
        widget<QLineEdit>(&dialog, "arrayNameInput")->setText(name);
    QVERIFY2(widget<QPushButton>(&dialog, "createButton")->isEnabled(),
             qPrintable(widget<QLabel>(&dialog, "createWarningLabel")->text()));
    QStringList texts, labels;
    answerNextBoxNoting(QMessageBox::StandardButton(answer), [&](QMessageBox *box) {
        texts << box->text();
        for (QAbstractButton *button : box->buttons())
            labels << button->text();
    });
    click(&dialog, "createButton");

    QCOMPARE(texts.size(), 1);
    QCOMPARE(labels, buttons);
    QVERIFY2(texts.first().startsWith(message), qPrintable(texts.first()));
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(scope.host->model().arrays.size(), std::size_t(2));
    QCOMPARE(scope.host->model().generation, before);
}

void TestArrayDialogs::createRestoresItsWindowState()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    expectWindowStateKept([&api] { return std::make_unique<SK_CreateDialog>(api, QSize(16, 16)); },
                          "diskList", 9);
    QSettings().clear();
}

void TestArrayDialogs::transformListsTheArraysOwnDisks()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    SK_TransformDialog dialog(api, kData, QSize(16, 16));
    auto *list = widget<QTreeWidget>(&dialog, "diskList");
    const QList<int> listed = rowIds(list, SK_Role::DeviceId);
    QVERIFY2(listed.contains(kHdd1) && listed.contains(kHdd1 + 2),
             "the data array's own members are offered although they are full");
    QVERIFY2(!listed.contains(kSsdA), "a full disk of another array is left out");
    QVERIFY(listed.contains(kNvme));
    QCOMPARE(viewLines(widget<QTreeWidget>(&dialog, "sourceArrayView")),
             (QStringList{"Array 2 Data", "RAID5", "Disk 0 2", "Disk 0 3", "Disk 0 4"}));
    QVERIFY(!widget<QPushButton>(&dialog, "commitButton")->isEnabled());
    QVERIFY(widget<QPushButton>(&dialog, "sameButton")->isDefault());
}

void TestArrayDialogs::transformVerdictFollowsTheSelection()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    SK_TransformDialog dialog(api, kData, QSize(16, 16));
    auto *label = widget<QLabel>(&dialog, "transformWarningLabel");
    QCOMPARE(plain(label->text()), QStringLiteral("Invalid Configuration: no disks were selected"));

    click(&dialog, "sameButton");
    QCOMPARE(widget<QComboBox>(&dialog, "arrayTypeSel")->currentIndex(), kRaid5Row);
    QCOMPARE(checkedDisks(widget<QTreeWidget>(&dialog, "diskList")),
             (QList<int>{kHdd1, kHdd1 + 1, kHdd1 + 2}));
    QVERIFY2(!plain(label->text()).contains("drives"), qPrintable(label->text()));

    widget<QComboBox>(&dialog, "arrayTypeSel")->setCurrentIndex(kRaid1Row);
    QCOMPARE(plain(label->text()),
             QStringLiteral("Invalid Configuration: RAID1 requires 2 drives"));
    QVERIFY(!widget<QPushButton>(&dialog, "commitButton")->isEnabled());
    QCOMPARE(viewLines(widget<QTreeWidget>(&dialog, "dstArrayView")).first(),
             QStringLiteral("RAID 1  (Mirror)"));
}

void TestArrayDialogs::transformCantShrinkButCommitsGrowth()
{
    EmulatedHostScope scope;
    addHardDisk(scope);
    SK_RaidApi api;
    SK_TransformDialog dialog(api, kData, QSize(16, 16));
    click(&dialog, "sameButton");
    checkDisks(&dialog, {8});
    auto *capacity = widget<QLineEdit>(&dialog, "capInput");
    auto *commit = widget<QPushButton>(&dialog, "commitButton");
    const int current = widget<QLineEdit>(&dialog, "currentCapInput")->text().toInt();
    QCOMPARE(capacity->text().toInt(), current);
    QVERIFY(commit->isEnabled());

    capacity->setText(QString::number(current - 1));
    QVERIFY2(plain(widget<QLabel>(&dialog, "transformWarningLabel")->text()).isEmpty(),
             "no verdict speaks of shrinking");
    QVERIFY2(!commit->isEnabled(), "but it can't commit");

    click(&dialog, "setCurrentCapMaxButton");
    const int wanted = capacity->text().toInt();
    QCOMPARE(wanted, widget<QLineEdit>(&dialog, "maxCapInput")->text().toInt());
    QVERIFY2(wanted > current, "a fourth disk adds room");
    BoxAnswerer yes(QMessageBox::Yes);
    click(&dialog, "commitButton");
    QCOMPARE(yes.texts.size(), 1);
    QVERIFY2(yes.texts.first().contains("hot swappable"),
             "the data array's hard disks are hot swap disks");
    QCOMPARE(dialog.result(), int(QDialog::Accepted));

    const Model m = scope.host->model();
    const Array *data = arrayNamed(m, "Data");
    QVERIFY(data);
    QCOMPARE(data->task.type, code::TaskTransform);
    QVERIFY2(data->target && data->target->members.size() == 4,
             "the array is on its way to four disks");
}

void TestArrayDialogs::transformSeesTheArrayGone()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    SK_TransformDialog dialog(api, kData, QSize(16, 16));
    click(&dialog, "sameButton");
    scope.host->modify([](Model &m) {
        m.arrays.pop_back();
        m.volumes.pop_back();
        return true;
    });
    widget<QLineEdit>(&dialog, "capInput")->setText(QStringLiteral("1000"));
    QCOMPARE(plain(widget<QLabel>(&dialog, "transformWarningLabel")->text()),
             QStringLiteral("Invalid Configuration: array not found"));
    QVERIFY(!widget<QPushButton>(&dialog, "commitButton")->isEnabled());
}

QTEST_MAIN(TestArrayDialogs)
#include "tst_arraydialogs.moc"
