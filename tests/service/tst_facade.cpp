// SK_RaidApi's queries and commands against a fresh emulated host. Requests are
// decoded here from the wire layouts, independently of the command layer's encoders.

#include "service_lab.h"
#include "varied_scenario.h"

#include <QtTest>

namespace {

using namespace sk_emu;
using namespace lab;

const Array *arrayOf(const Model &m, int route)
{
    return m.findArrayByRoute(static_cast<std::uint32_t>(route));
}

} // namespace

class tst_facade : public QObject
{
    Q_OBJECT

private slots:
    void lookupsFollowTheImage();
    void queries_data();
    void queries();
    void priorityScale();
    void commandsReachTheDrivers();
    void refusalsSendNothing();
    void diskSettingsGoDiskByDisk();
    void blinkArrayNamesEveryMemberInOneRequest();
    void hideAndUnhideChangeTheArray();
    void noDriverAnswersEmpty();
    void driverNamesMatchExactly();
};

void tst_facade::lookupsFollowTheImage()
{
    Lab f;
    SK_RaidApi &api = *f.api;
    QCOMPARE(api.GetArrayCount(), 2);
    QCOMPARE(api.GetDiskIds(), (QList<int>{1, 2, 3, 4, 5, 6, 7}));
    QCOMPARE(api.GetDiskIndex(kNvme) >= 0, true);
    QCOMPARE(api.GetDiskIndex(99), -1);
    QCOMPARE(QString::fromLatin1(api.GetArrayRecord(kData)->Type), QStringLiteral("RAID5"));
    QVERIFY(api.GetArrayRecord(kData, false) == nullptr);
    QVERIFY(api.GetDiskRecord(api.GetDiskCount()) == nullptr);
    QCOMPARE(api.GetDiskIdByPort(0, 4), kHdd3);
    QCOMPARE(api.GetDiskIdByPort(0, 9), -1);
    const Model m = f.host->model();
    QCOMPARE(api.GetArrayIdByDeviceId(arrayOf(m, kData)->id), kData);
    QVERIFY(api.GetDiskNameById(diskIdOf(m, kSpare)) != nullptr);
    QCOMPARE(api.GetArrayList().size(), 2);
    QCOMPARE(api.GetArrayList().at(1)->Device, kData);

    // A change of the host shows only after a re-read.
    f.host->modify([](Model &model) {
        model.arrays.pop_back();
        return true;
    });
    QCOMPARE(api.GetArrayCount(), 2);
    api.RefreshConfig();
    QCOMPARE(api.GetArrayCount(), 1);
    QCOMPARE(api.GetArrayIndex(kData), -1);
    QVERIFY(!api.ArrayHasTask(kData));
}

void tst_facade::queries_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<int>("a");
    QTest::addColumn<int>("b");
    QTest::addColumn<int>("expected");

    QTest::newRow("the NVMe drive is NVMe and flash") << "IsNvmeDisk" << kNvme << 0 << 1;
    QTest::newRow("a hard disk is no flash") << "IsFlashDisk" << kHdd1 << 0 << 0;
    QTest::newRow("hard disks sit in hot-swap bays") << "DiskHasHotSwap" << kHdd1 << 0 << 1;
    QTest::newRow("an unknown disk has no hot swap") << "DiskHasHotSwap" << 42 << 0 << 0;
    QTest::newRow("a disk in two arrays counts twice") << "DiskUseCount" << kSsdA << 0 << 2;
    QTest::newRow("many elements of one array count once") << "DiskUseCount" << kSpare << 0 << 2;
    QTest::newRow("the NVMe drive is Data's spare") << "DiskIsDedicatedSpare" << kNvme << 0 << 1;
    QTest::newRow("and spare of that array only") << "IsDedicatedSpareOf" << kData << kNvme << 1;
    QTest::newRow("not of another") << "IsDedicatedSpareOf" << kSystem << kNvme << 0;
    QTest::newRow("the system mirror is system") << "ArrayIsSystem" << kSystem << 0 << 1;
    QTest::newRow("SSD A is in the system array") << "DiskIsInSystemArray" << kSsdA << 0 << 1;
    QTest::newRow("the failed member is failed") << "ElementIsFailed" << kData << kHdd3 << 1;
    QTest::newRow("a healthy member isn't") << "ElementIsFailed" << kData << kHdd1 << 0;
    QTest::newRow("Data is degraded") << "ArrayIsNormal" << kData << 0 << 0;
    QTest::newRow("the transform is a task") << "ArrayHasTask" << kGrowing << 0 << 1;
    QTest::newRow("the scratch array is hidden") << "ArrayIsHidden" << kScratch << 0 << 1;
    QTest::newRow("a destination member is a member") << "IsMember" << kGrowing << kHdd1 << 1;
    QTest::newRow("tier members are tier parts") << "ArrayIsTierPart" << kSlow << 0 << 1;
    QTest::newRow("a RAID 5 is redundant") << "ArrayIsRedundant" << kData << 0 << 1;
    QTest::newRow("a tier isn't") << "ArrayIsRedundant" << kTier << 0 << 0;
    QTest::newRow("Fast shares SSD A") << "ArrayHasSharedDisk" << kFast << 0 << 1;
    QTest::newRow("Fast uses a system disk") << "ArrayUsesSystemDisk" << kFast << 0 << 1;
    QTest::newRow("a failed member may be initialised")
        << "DiskCanBeInitialized" << kHdd3 << 0 << 1;
    QTest::newRow("a healthy member may not") << "DiskCanBeInitialized" << kHdd1 << 0 << 0;
    QTest::newRow("a spare in no array may") << "DiskCanBeInitialized" << kNvme << 0 << 1;
    QTest::newRow("a dedicated spare can't be removed") << "CanRemoveDisk" << kNvme << 0 << 0;
    QTest::newRow("a hot-swap data disk can") << "CanRemoveDisk" << kHdd2 << 0 << 1;
    QTest::newRow("4 TB is at least 4000000 MB") << "CapacityAtLeast" << kHdd1 << 4000000 << 1;
    QTest::newRow("but not 4000788 MB") << "CapacityAtLeast" << kHdd1 << 4000788 << 0;
    QTest::newRow("Data is bigger than System") << "ArrayIsBigger" << kData << kSystem << 1;
    QTest::newRow("equal is not bigger") << "ArrayIsBigger" << kData << kData << 0;
    QTest::newRow("the smallest counted member of Data, binary MB")
        << "SmallestMemberMB" << 1 << 0 << int(7814037168ull * 512 / 1048576);
}

void tst_facade::queries()
{
    QFETCH(QString, query);
    QFETCH(int, a);
    QFETCH(int, b);
    QFETCH(int, expected);
    Lab f(variedScenario());
    const SK_RaidApi &api = *f.api;
    const std::map<QString, std::function<qint64()>> calls = {
        {"IsNvmeDisk", [&] { return api.IsNvmeDisk(a); }},
        {"IsFlashDisk", [&] { return api.IsFlashDisk(a); }},
        {"DiskHasHotSwap", [&] { return api.DiskHasHotSwap(a); }},
        {"DiskUseCount", [&] { return api.DiskUseCount(a); }},
        {"DiskIsDedicatedSpare", [&] { return api.DiskIsDedicatedSpare(a); }},
        {"IsDedicatedSpareOf", [&] { return api.IsDedicatedSpareOf(a, b); }},
        {"ArrayIsSystem", [&] { return api.ArrayIsSystem(a); }},
        {"DiskIsInSystemArray", [&] { return api.DiskIsInSystemArray(a); }},
        {"ElementIsFailed", [&] { return api.ElementIsFailed(a, b); }},
        {"ArrayIsNormal", [&] { return api.ArrayIsNormal(a); }},
        {"ArrayHasTask", [&] { return api.ArrayHasTask(a); }},
        {"ArrayIsHidden", [&] { return api.ArrayIsHidden(a); }},
        {"IsMember", [&] { return api.IsMember(a, b); }},
        {"ArrayIsTierPart", [&] { return api.ArrayIsTierPart(a); }},
        {"ArrayIsRedundant", [&] { return api.ArrayIsRedundant(a); }},
        {"ArrayHasSharedDisk", [&] { return api.ArrayHasSharedDisk(a); }},
        {"ArrayUsesSystemDisk", [&] { return api.ArrayUsesSystemDisk(a); }},
        {"DiskCanBeInitialized", [&] { return api.DiskCanBeInitialized(a, true); }},
        {"CanRemoveDisk", [&] { return api.CanRemoveDisk(a); }},
        {"CapacityAtLeast", [&] { return api.CapacityAtLeast(a, static_cast<quint64>(b)); }},
        {"ArrayIsBigger", [&] { return api.ArrayIsBigger(a, b); }},
        {"SmallestMemberMB",
         [&] { return static_cast<qint64>(api.SmallestMemberMB(api.GetArrayIndex(kData))); }},
    };
    const auto call = calls.find(query);
    QVERIFY2(call != calls.end(), qPrintable("no such query " + query));
    QCOMPARE(call->second(), static_cast<qint64>(expected));
    QVERIFY2(f.sent().empty(), "a query sent a command");
}

void tst_facade::priorityScale()
{
    // The ends of the scale are their own; between them each level is ten percent.
    const int scale[][2] = {{1, 99}, {2, 90}, {5, 60}, {10, 1}};
    for (const auto &[level, percent] : scale) {
        Lab f(variedScenario());
        QVERIFY(f.api->SetTaskPriority(kGrowing, level));
        const auto sent = f.sent();
        QCOMPARE(sent.size(), std::size_t(1));
        QCOMPARE(sent[0].u32(0), 7u);
        QCOMPARE(sent[0].u32(32), SK_MANAGE_PRIORITY);
        QCOMPARE(sent[0].u32(56), static_cast<std::uint32_t>(percent));
        QCOMPARE(SK_RaidApi::TaskPriorityLevel(percent), level);
    }
    QCOMPARE(SK_RaidApi::TaskPriorityLevel(95), 1);
    QCOMPARE(SK_RaidApi::TaskPriorityLevel(5), 10);
}

// What one command sends: the command code, and at one offset the word that tells
// it from its neighbours (a subcode, a value, an action).
void tst_facade::commandsReachTheDrivers()
{
    struct Case
    {
        const char *what;
        std::function<bool(Lab &)> call;
        std::uint32_t code;
        std::size_t offset;
        std::uint32_t word;
    };
    const Case cases[] = {
        {"global spare", [](Lab &f) { return f->AssignGlobalSpare(kNvme); }, 7, 32, 31908},
        {"dedicated spare",
         [](Lab &f) {
             f.host->modify([](Model &m) { return !(m.disks[5].globalSpare = false); });
             f->RefreshConfig();
             return f->AssignDedicatedSpare(kData, kSpare);
         },
         7, 32, 31906},
        {"drop the global spare", [](Lab &f) { return f->RemoveGlobalSpare(kSpare); }, 7, 32,
         31909},
        {"drop a dedicated spare",
         [](Lab &f) {
             f.host->modify([](Model &m) { return !(m.disks[5].globalSpare = false); });
             f->RefreshConfig();
             if (!f->AssignDedicatedSpare(kData, kSpare))
                 return false;
             f->RefreshConfig();
             return f->RemoveDedicatedSpare(kData, kSpare);
         },
         7, 32, 31907},
        {"remove all spares", [](Lab &f) { return f->RemoveArraySpares(kData); }, 7, 32, 31917},
        {"hide", [](Lab &f) { return f->HideArray(kData); }, 7, 56, 0x2000200},
        {"read cache only", [](Lab &f) { return f->SetArrayCache(kData, "R"); }, 7, 56, 0x80000000},
        {"check, not held", [](Lab &f) { return f->CheckArray(kData); }, 7, 56, 0x10000000},
        {"stop a check",
         [](Lab &f) { return f->CheckArray(kData) && f->ConsistencyCheck(kData, true); }, 7, 32,
         31911},
        {"background scan on", [](Lab &f) { return f->SetBackgroundScan(kData, true); }, 7, 56,
         0x4000400},
        {"rename", [](Lab &f) { return f->RenameArray(kData, "Archive"); }, 7, 32, 31916},
        {"delete", [](Lab &f) { return f->DeleteArray(kData); }, 3, 36, 1},
        {"secure erase, after a hide",
         [](Lab &f) {
             return f->SecureEraseArray(kData) && f.sent().front().u32(56) == 0x2000200u;
         },
         7, 32, 31918},
        {"identify a disk", [](Lab &f) { return f->BlinkDisk(kHdd1, true); }, 29, 32, 16389},
        {"prepare a disk for removal", [](Lab &f) { return f->PrepareDiskRemoval(kHdd1); }, 29, 32,
         16417},
        {"initialise keeping metadata",
         [](Lab &f) {
             SK_InitDisks init;
             init.disks[0] = kNvme;
             init.diskCount = 1;
             return f->InitializeDisks(init);
         },
         4, 40, 0},
        {"rescan", [](Lab &f) { return f->Rescan(); }, 16, 0, 16},
    };
    for (const Case &c : cases) {
        Lab f;
        QVERIFY2(c.call(f), c.what);
        const auto sent = f.sent();
        QVERIFY2(!sent.empty(), c.what);
        QVERIFY2(sent.back().u32(0) == c.code, c.what);
        QVERIFY2(sent.back().u32(c.offset) == c.word, c.what);
        // Every spare command goes out with option 1.
        if (const std::uint32_t subcode = sent.back().u32(32);
            c.code == 7 && subcode >= 31906 && subcode <= 31909)
            QVERIFY2(sent.back().u32(16) == 1u, c.what);
    }
}

void tst_facade::refusalsSendNothing()
{
    const std::pair<const char *, std::function<bool(Lab &)>> cases[] = {
        {"a global spare that is a member", [](Lab &f) { return f->AssignGlobalSpare(kHdd1); }},
        {"a global spare twice",
         [](Lab &f) {
             f.host->modify([](Model &m) { return (m.disks[6].globalSpare = true); });
             f->RefreshConfig();
             return f->AssignGlobalSpare(kNvme);
         }},
        {"a dedicated spare for a RAID 0",
         [](Lab &f) { return f->AssignDedicatedSpare(kScratch, kNvme); }},
        {"a dedicated spare too small",
         [](Lab &f) {
             f.host->modify([](Model &m) {
                 m.arrays[1].spares.clear();
                 m.disks[6].capacity = 1000000;
                 return true;
             });
             f->RefreshConfig();
             return f->AssignDedicatedSpare(kData, kNvme);
         }},
        {"deleting the system array", [](Lab &f) { return f->DeleteArray(kSystem); }},
        {"deleting a tier part", [](Lab &f) { return f->DeleteArray(kSlow); }},
        {"hiding a hidden array", [](Lab &f) { return f->HideArray(kScratch); }},
        {"un-hiding a visible array", [](Lab &f) { return f->UnhideArray(kData); }},
        {"hiding an array with a task", [](Lab &f) { return f->HideArray(kGrowing); }},
        {"removing a transform", [](Lab &f) { return f->TaskControl(kGrowing, "remove"); }},
        {"resuming a running task", [](Lab &f) { return f->TaskControl(kGrowing, "resume"); }},
        {"an unknown task action", [](Lab &f) { return f->TaskControl(kGrowing, "jump"); }},
        {"a priority without a task", [](Lab &f) { return f->SetTaskPriority(kData, 3); }},
        {"renaming during a task", [](Lab &f) { return f->RenameArray(kGrowing, "x"); }},
        {"initialising a healthy member",
         [](Lab &f) {
             SK_InitDisks init;
             init.disks[0] = kHdd1;
             init.diskCount = 1;
             return f->InitializeDisks(init);
         }},
        {"preparing a fixed disk for removal", [](Lab &f) { return f->PrepareDiskRemoval(kSsdA); }},
    };
    for (const auto &[why, call] : cases) {
        Lab f(variedScenario());
        QVERIFY2(!call(f), why);
        QVERIFY2(f.sent().empty(), why);
    }
}

void tst_facade::diskSettingsGoDiskByDisk()
{
    Lab f;
    SK_DiskManage cache;
    cache.disks[0] = kHdd1;
    cache.disks[1] = kNvme; // passed over: NVMe keeps its own cache
    cache.diskCount = 2;
    cache.readOn = 1;
    cache.writeOff = 1;
    QVERIFY(f.api->ManageDiskCache(cache));
    auto sent = f.sent();
    QCOMPARE(sent.size(), std::size_t(2));
    QCOMPARE(sent[0].u32(32), SK_DISK_READ_AHEAD_ON);
    QCOMPARE(sent[1].u32(32), SK_DISK_WRITE_CACHE_OFF);
    QCOMPARE(sent[1].u16(48), static_cast<std::uint16_t>(kHdd1)); // reference: ID, route

    SK_DiskManage smart;
    smart.disks[0] = kHdd2;
    smart.diskCount = 1;
    smart.smartOff = 1;
    QVERIFY(f.api->ManageDiskSmart(smart));
    sent = f.sent();
    QCOMPARE(sent[2].u32(32), SK_DISK_SMART_POLLING_OFF);
    QCOMPARE(sent[3].u32(0), 16u); // then a rescan

    SK_DiskManage rescanOnly;
    rescanOnly.diskCount = -1;
    QVERIFY(f.api->ManageDiskSmart(rescanOnly));
    QCOMPARE(f.sent().size(), std::size_t(5));
    QCOMPARE(f.sent().back().u32(0), 16u);

    // Nothing listed sends nothing; a disk that is gone stops the command before the
    // rescan, after what was sent for the disks before it.
    SK_DiskManage none;
    QVERIFY(!f.api->ManageDiskSmart(none));
    SK_DiskManage gone = smart;
    gone.disks[1] = 99;
    gone.diskCount = 2;
    QVERIFY(!f.api->ManageDiskSmart(gone));
    QCOMPARE(f.sent().size(), std::size_t(6));
    QCOMPARE(f.sent().back().u32(32), SK_DISK_SMART_POLLING_OFF);
}

void tst_facade::blinkArrayNamesEveryMemberInOneRequest()
{
    Lab f;
    QVERIFY(f.api->BlinkArray(kData, true, 3));
    auto sent = f.sent();
    QCOMPARE(sent.size(), std::size_t(1));
    QCOMPARE(sent[0].u32(32), SK_DISK_LED_STATE_BASE + 3);
    QCOMPARE(sent[0].u32(36), 3u);
    QCOMPARE(sent[0].u16(40 + 8), static_cast<std::uint16_t>(kHdd1));
    QCOMPARE(sent[0].u16(72 + 8), static_cast<std::uint16_t>(kHdd3));

    f.host->modify([](Model &m) {
        m.arrays[1].layout.members.clear();
        m.arrays[1].layout.firstCount = m.arrays[1].layout.secondCount = 0;
        return true;
    });
    f.api->RefreshConfig();
    f.api->BlinkArray(kData,
                      false); // the drivers may refuse an empty list; it goes out all the same
    sent = f.sent();
    QCOMPARE(sent.size(), std::size_t(2));
    QCOMPARE(sent[1].u32(32), SK_DISK_IDENTIFY_OFF);
    QCOMPARE(sent[1].u32(36), 0u);
}

void tst_facade::hideAndUnhideChangeTheArray()
{
    Lab f;
    QVERIFY(f.api->HideArray(kData));
    QVERIFY(arrayOf(f.host->model(), kData)->hidden());
    f.api->RefreshConfig();
    QVERIFY(f.api->ArrayIsHidden(kData));
    QVERIFY(f.api->UnhideArray(kData));
    QVERIFY(!arrayOf(f.host->model(), kData)->hidden());
    QCOMPARE(f.sent().back().u32(0), 16u); // the un-hide ends with a rescan

    QVERIFY(f.api->RenameArray(kData, QStringLiteral("Archiv 2026")));
    QCOMPARE(QString::fromStdString(arrayOf(f.host->model(), kData)->name),
             QStringLiteral("Archiv 2026"));
    QVERIFY(f.api->SetArrayCache(kData, QStringLiteral("NC")));
    QCOMPARE(arrayOf(f.host->model(), kData)->cachePolicy, 0u);
}

void tst_facade::noDriverAnswersEmpty()
{
    SK_InstallPlatform(nullptr);
    SK_RaidApi api;
    QCOMPARE(SK_RaidApi::CoreCount(), 0);
    QCOMPARE(api.GetArrayCount(), 0);
    QCOMPARE(api.GetDiskIndex(1), -1);
    QVERIFY(!api.Rescan());
    QVERIFY(!api.HideArray(1));
    QVERIFY(api.GetArrayList().isEmpty());
}

// The loaded modules are compared with the file name exactly, case included.
void tst_facade::driverNamesMatchExactly()
{
    Lab f;
    QVERIFY(f->DriverIsLoaded(QStringLiteral("skraid.sys")));
    QVERIFY(!f->DriverIsLoaded(QStringLiteral("SKRAID.SYS")));
    QVERIFY(!f->DriverIsLoaded(QStringLiteral("skraid")));
}

QTEST_GUILESS_MAIN(tst_facade)
#include "tst_facade.moc"
