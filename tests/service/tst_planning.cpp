// Create, transform and tier planning of SK_RaidApi against a fresh emulated host.
// Expected verdicts and texts are written out here as the console's rules give them,
// not taken from the service's tables; sizes are worked out from the disks.

#include "service_lab.h"

#include <QtTest>

namespace {

using namespace sk_emu;

constexpr std::uint64_t kMiB = 2048; // sectors
constexpr std::uint32_t kHdd = code::PortSata | code::Port6G;
constexpr std::uint32_t kSsd = code::PortSata | code::Port6G | code::PortSsd;
constexpr std::uint32_t kNvme = code::PortNvme | code::PortNvmeGen4;

// A disk whose usable room (before the driver's metadata) is `usableMiB`. Its id in
// the console is port + 1.
Disk labDisk(std::uint32_t port, std::uint64_t usableMiB, std::uint32_t portType = kHdd)
{
    Disk d;
    d.id = 0x5000000000000100ull + port;
    d.port = port;
    d.capacity = usableMiB * kMiB + kMetadataSectors;
    d.portType = portType;
    d.model = "LAB DISK";
    d.serial = "LAB" + std::to_string(port);
    d.firmware = "1.0";
    d.vendor = "ATA";
    return d;
}

// The default workstation's controller and host with `sizes` disks and no arrays.
Model labModel(const std::vector<std::uint64_t> &sizes, std::uint32_t portType = kHdd)
{
    Model m = defaultScenario();
    m.disks.clear();
    m.arrays.clear();
    m.volumes.clear();
    m.controllers[0].ports = 32;
    for (std::size_t i = 0; i < sizes.size(); ++i)
        m.disks.push_back(labDisk(static_cast<std::uint32_t>(i), sizes[i], portType));
    return m;
}

Model equalDisks(int count, std::uint64_t usableMiB = 1000)
{
    return labModel(std::vector<std::uint64_t>(static_cast<std::size_t>(count), usableMiB));
}

// An array over the first `extentMiB` of each of `disks` (console ids).
Array labArray(const Model &m, std::uint16_t route, const char *name, std::uint32_t type,
               std::uint32_t first, std::uint32_t second, const std::vector<int> &disks,
               std::uint64_t extentMiB, std::uint64_t offsetMiB = 0)
{
    Array a;
    a.id = 0x3C00000000000000ull + route;
    a.route = route;
    a.name = name;
    a.layout.type = type;
    a.layout.firstCount = first;
    a.layout.secondCount = second;
    const std::uint64_t extent = extentMiB * kMiB, offset = offsetMiB * kMiB;
    for (int disk : disks)
        a.layout.members.push_back(Member{m.disks[static_cast<std::size_t>(disk - 1)].id, offset,
                                          extent, offset, extent, 0});
    a.layout.capacity =
        layoutCapacity(type, first, second, extent, extent * disks.size()) / kMiB * kMiB;
    a.generation = 1;
    return a;
}

// Decimal megabytes the console shows for a number of binary ones.
int decimalOf(std::uint64_t mib)
{
    return static_cast<int>((mib * 1048576 + 500000) / 1000000);
}

// Binary megabytes the console asks for a number of decimal ones.
std::uint64_t binaryOf(std::uint64_t decimal)
{
    return (decimal * 1000000 + 524288) / 1048576;
}

SK_Create request(const QString &type, const QList<int> &disks, qint32 size = 500)
{
    SK_Create c;
    c.name = QStringLiteral("Lab");
    c.type = type;
    c.size = size;
    c.cache = QStringLiteral("RW");
    for (int i = 0; i < disks.size(); ++i)
        c.disks[i] = static_cast<quint32>(disks[i]);
    c.diskCount = disks.size();
    return c;
}

QList<int> firstDisks(int n)
{
    QList<int> ids;
    for (int i = 1; i <= n; ++i)
        ids.append(i);
    return ids;
}

enum class Setup {
    SeventeenDisks,
    TwelveArrays,
    SmartErrorDisk,
    Raid5Disabled,
    DriverFindsSmart,
    DisksFull,
};

Model modelFor(Setup setup)
{
    Model m = equalDisks(17);
    switch (setup) {
    case Setup::TwelveArrays:
        for (std::uint16_t r = 1; r <= 12; ++r)
            m.arrays.push_back(
                labArray(m, r, "Small", code::TypeMirrorStripe, 1, 1, {17}, 10, (r - 1) * 10u));
        break;
    case Setup::SmartErrorDisk:
        m.disks[1].state = code::DiskSmartError;
        break;
    case Setup::Raid5Disabled:
        m.host.disabledLevels = {"RAID5"};
        break;
    case Setup::DisksFull:
        m.arrays.push_back(labArray(m, 1, "Full", code::TypeMirrorStripe, 2, 1, {1, 2}, 1000));
        break;
    default:
        break;
    }
    return m;
}

// One commit and the request the drivers should get for it.
struct Commit
{
    const char *type;
    int disks;
    bool nvme;
    const char *cache;
    int tagSize;
    int options; // 1 skipInit, 2 zero, 4 leaveData, 8 background scan
    int size;
    uint driverType, first, second, cacheWord, tagCode, policy;
};

struct Growth
{
    uint type, first, second;
    const char *target;
    int disks, mib;
};

} // namespace

Q_DECLARE_METATYPE(Setup)
Q_DECLARE_METATYPE(Commit)
Q_DECLARE_METATYPE(Growth)
Q_DECLARE_METATYPE(QList<int>)

class tst_planning : public QObject
{
    Q_OBJECT

private slots:
    void createVerdicts_data();
    void createVerdicts();
    void unraisedCreateRowsStayUnraised();
    void createMaximum_data();
    void createMaximum();
    void createTakesTheAskedSize_data();
    void createTakesTheAskedSize();
    void createClampsToTheMaximum();
    void createReachesTheDrivers_data();
    void createReachesTheDrivers();
    void transformVerdicts_data();
    void transformVerdicts();
    void transformRunsToCompletion_data();
    void transformRunsToCompletion();
    void transformAboveTheMaximumIsRefused();
    void tiersOverTwoArrays_data();
    void tiersOverTwoArrays();
    void tierRefusals();
    void namesMixingAndTrim();
};

// --- Create verdicts ---

void tst_planning::createVerdicts_data()
{
    QTest::addColumn<Setup>("setup");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QList<int>>("disks");
    QTest::addColumn<int>("flags"); // 1 skipInit, 2 zero, 4 leaveData, 8 tag size 32, 16 commit
    QTest::addColumn<int>("verdict");
    QTest::addColumn<QString>("text");

    // Queries over the first `n` disks, named by type and count and what is special;
    // "forced" rows are requests the dialog never offers.
    auto row = [](const char *type, int n, int verdict, const char *text, const char *note = "",
                  Setup setup = Setup::SeventeenDisks, int flags = 0) {
        QTest::addRow("%s of %d%s%s", type, n, *note ? ", " : "", note)
            << setup << QString::fromLatin1(type) << firstDisks(n) << flags << verdict
            << QString::fromLatin1(text);
    };
    row("RAID5", 3, -100, "create would exceed maximum number of arrays allowed",
        "beside twelve arrays", Setup::TwelveArrays);
    row("RAID1", 2, -99, "create size must be at least 100MB", "committed at 99 MB",
        Setup::SeventeenDisks, 16);
    row("VOLUME", 1, -98, "--no-sync and --zero options can't both be specified",
        "skipping initialise with zero create, before the type", Setup::SeventeenDisks, 1 | 2);
    row("RAID1", 2, -97,
        "--leave-existing-data and --zero options can not be specified at the same time",
        "leaving data with zero create", Setup::SeventeenDisks, 2 | 4);
    row("RAID5", 0, -96, "no disks were selected");
    row("RAID60", 8, -92, "--sub-member option not available for selected RAID type");
    row("RAID0", 1, -91, "--no-sync option not available for selected RAID type",
        "skipping initialise, before the count", Setup::SeventeenDisks, 1);
    row("VOLUME", 9, -90, "VOLUME is limited to 8 drives");
    row("RAIDABLE", 2, -89, "--disk must be one for RAIDAble", "forced");
    row("RAID0", 9, -87, "RAID0 requires at least 2 to 8 drives");
    row("RAID1", 3, -86, "RAID1 requires 2 drives");
    row("RAID1N", 2, -85, "RAID1n requires 3 or more drives", "forced");
    row("RAID1N", 9, -84, "RAID1n is limited to 8 drives", "forced");
    row("RAID5", 0, -100, "create would exceed maximum number of arrays allowed",
        "beside twelve arrays, before 'no disks'", Setup::TwelveArrays);
    row("RAID10", 5, -82, "RAID10 must have an even number of 4 to 8 disks");
    row("RAID10", 10, -82, "RAID10 must have an even number of 4 to 8 disks", "even but too many");
    row("RAID10N", 5, -79, "RAID10n requires a minimum of 6 disks", "forced");
    row("RAID10N", 6, -78, "number of disks not evenly divisible by sub count", "forced");
    row("RAID5", 2, -75, "RAID5 requires at least 3 drives");
    row("RAID5", 9, -74, "RAID5 is limited to 8 drives");
    row("RTIER", 1, -72, "You cannot select physical drives for RTIER", "forced");
    row("RTIER", 0, -71, "You must select 2 VDs for RTIER", "forced, not 'no disks'");
    row("RAID6", 3, -69, "RAID6 requires at least 4 drives", "forced");
    row("RAID6", 9, -68, "RAID6 is limited to 8 drives", "forced");
    row("RAID6", 17, -68, "RAID6 is limited to 8 drives", "forced, the limit of 8 first");
    row("RAID50", 5, -65, "must select at least 6 drives for a RAID50", "forced");
    row("RAID50", 6, -64, "--sub-member must be 3 or greater for RAID50", "forced");
    row("RAID60", 7, -61, "must select at least 8 drives for a RAID60", "forced");
    row("LEGACY", 1, -59, "error, no RAID type specified", "forced");
    row("RAID1", 2, -58, "a disk selected not present or valid", "with a SMART error shown",
        Setup::SmartErrorDisk);
    row("RAID1", 2, -57, "The create failed because one of the drives is displaying SMART errors",
        "with a SMART error the driver finds", Setup::DriverFindsSmart);
    row("RAID5", 3, -56, "Support for the selected raid level is disabled", "disabled",
        Setup::Raid5Disabled);
    row("RAID1", 2, -55, "error determining maximum possible size, check arguments",
        "with a cache tag size of 32 (forced)", Setup::SeventeenDisks, 8);
    row("RAID1", 2, -55, "error determining maximum possible size, check arguments",
        "without free room", Setup::DisksFull);
    QTest::newRow("a disk that isn't there (forced)")
        << Setup::SeventeenDisks << QStringLiteral("RAID1") << QList<int>{1, 40} << 0 << -58
        << QStringLiteral("a disk selected not present or valid");
}

void tst_planning::createVerdicts()
{
    QFETCH(Setup, setup);
    QFETCH(QString, type);
    QFETCH(QList<int>, disks);
    QFETCH(int, flags);
    QFETCH(int, verdict);
    QFETCH(QString, text);

    Lab lab(modelFor(setup));
    if (setup == Setup::DriverFindsSmart) {
        lab.endpoint->armedCode = 4109;
        lab.endpoint->armedStatus = SK_STS_DEVICE_SMART_ERROR;
    }
    SK_Create c = request(type, disks, flags & 16 ? 99 : 500);
    c.skipInit = flags & 1;
    c.zeroCreate = flags & 2;
    c.leaveData = flags & 4;
    c.cacheTagSize = flags & 8 ? 32 : 0;
    const int generation = static_cast<int>(lab.host->generation());
    const int result = lab.api->CreateArray(c, !(flags & 16));
    QCOMPARE(result, verdict);
    QCOMPARE(createErrorList.at(result + 100), text + QLatin1Char('\n'));
    QVERIFY2(lab.endpoint->withCode(2).empty(), "a verdict must not create anything");
    QCOMPARE(static_cast<int>(lab.host->generation()), generation);
}

// The rows marked as never raised stay so, whatever the type, count and options.
void tst_planning::unraisedCreateRowsStayUnraised()
{
    const QList<int> unraised = {5,  6,  7,  12, 17, 19, 20, 23, 24,
                                 27, 30, 33, 34, 37, 38, 40, 46, 47};
    Lab lab(equalDisks(17));
    const QStringList types = {"VOLUME",  "RAIDABLE", "RAID0", "RAID1", "RAID1N", "RAID10",
                               "RAID10N", "RAID5",    "RTIER", "RAID6", "RAID50", "RAID60"};
    for (const QString &type : types) {
        for (int n = 0; n <= 17; ++n) {
            for (int flags = 0; flags < 8; ++flags) {
                SK_Create c = request(type, firstDisks(n));
                c.skipInit = flags & 1;
                c.zeroCreate = flags & 2;
                c.leaveData = flags & 4;
                const int result = lab.api->CreateArray(c, true);
                QVERIFY2(
                    result >= 0 || !unraised.contains(result + 100),
                    qPrintable(
                        QStringLiteral("%1 over %2 disks gave %3").arg(type).arg(n).arg(result)));
            }
        }
    }
}

// --- Maximum sizes ---

void tst_planning::createMaximum_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QList<int>>("sizes");   // usable MiB of each disk
    QTest::addColumn<QList<int>>("usedMiB"); // MiB already taken at the start of each disk
    QTest::addColumn<int>("expectedMiB");

    auto row = [](const char *name, const char *type, QList<int> sizes, QList<int> used, int mib) {
        QTest::newRow(name) << QString::fromLatin1(type) << sizes << used << mib;
    };
    row("volume over three equal disks", "VOLUME", {1000, 1000, 1000}, {}, 3000);
    row("volume over unequal disks: each counts whole", "VOLUME", {1000, 600, 800}, {}, 2400);
    row("RAIDable disk with half its room used", "RAIDABLE", {1000}, {500}, 500);
    row("RAID 0 over unequal disks: the smallest rules", "RAID0", {1000, 600, 800}, {}, 1800);
    row("RAID 1 where one disk has 400 MiB in use", "RAID1", {1000, 1000}, {400, 0}, 600);
    row("RAID 1N over unequal disks", "RAID1N", {1000, 900, 1000}, {}, 900);
    row("RAID 10 over six disks, one small", "RAID10", {1000, 1000, 1000, 1000, 1000, 500}, {},
        1500);
    row("RAID 5 over four unequal disks", "RAID5", {1000, 900, 1000, 1000}, {}, 2700);
    row("RAID 5 with free extents of 750 MiB on one disk", "RAID5", {1000, 1000, 1000}, {0, 250, 0},
        1500);
    row("RAID 6 over eight unequal disks", "RAID6", {1000, 1000, 800, 1000, 1000, 1000, 1000, 1000},
        {}, 4800);
    row("RAID 0 over two disks of ten million MiB", "RAID0", {10000000, 10000000}, {}, 20000000);
}

void tst_planning::createMaximum()
{
    QFETCH(QString, type);
    QFETCH(QList<int>, sizes);
    QFETCH(QList<int>, usedMiB);
    QFETCH(int, expectedMiB);

    std::vector<std::uint64_t> usable;
    for (int s : sizes)
        usable.push_back(static_cast<std::uint64_t>(s));
    Model m = labModel(usable);
    for (int i = 0; i < usedMiB.size(); ++i) {
        if (usedMiB[i] > 0)
            m.arrays.push_back(labArray(m, static_cast<std::uint16_t>(m.arrays.size() + 1), "Taken",
                                        code::TypeVolume, 1, 1, {i + 1},
                                        static_cast<std::uint64_t>(usedMiB[i])));
    }
    Lab lab(std::move(m));
    SK_Create c = request(type, firstDisks(sizes.size()), 50); // the size is not looked at
    const int max = lab.api->CreateArray(c, true);
    QCOMPARE(max, decimalOf(static_cast<std::uint64_t>(expectedMiB)));
}

void tst_planning::createTakesTheAskedSize_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QList<int>>("sizes"); // usable MiB of each disk
    QTest::addColumn<int>("askedMB");
    QTest::newRow("volume over unequal disks, half their room")
        << QStringLiteral("VOLUME") << QList<int>{1000, 600} << 800;
    QTest::newRow("RAID 0 over two 10 TB disks, a fifth of their room")
        << QStringLiteral("RAID0") << QList<int>{10000000, 10000000} << 4000000;
    QTest::newRow("RAID 5 over three 10 TB disks, all but a little")
        << QStringLiteral("RAID5") << QList<int>{10000000, 10000000, 10000000} << 20000000;
}

void tst_planning::createTakesTheAskedSize()
{
    QFETCH(QString, type);
    QFETCH(QList<int>, sizes);
    QFETCH(int, askedMB);
    std::vector<std::uint64_t> usable(sizes.begin(), sizes.end());
    Lab lab(labModel(usable));
    SK_Create c = request(type, firstDisks(sizes.size()), askedMB);
    QCOMPARE(lab.api->CreateArray(c, false), 1);
    lab.api->RefreshConfig();
    const SK_ConfigArray *made = lab.arrayNamed("Lab");
    QVERIFY(made);
    const std::uint64_t askedMiB = lab.endpoint->withCode(2).at(0).u64(56);
    QCOMPARE(std::uint64_t{made->Capacity}, askedMiB * kMiB);
}

void tst_planning::createClampsToTheMaximum()
{
    Lab lab(equalDisks(3));
    SK_Create c = request(QStringLiteral("RAID5"), firstDisks(3), 100000000);
    c.name = QStringLiteral("Huge");
    QCOMPARE(lab.api->CreateArray(c, false), 1);
    const auto sent = lab.endpoint->withCode(2);
    QCOMPARE(sent.size(), std::size_t{1});
    QCOMPARE(sent[0].u64(56), std::uint64_t{2000});
    lab.api->RefreshConfig();
    const SK_ConfigArray *huge = lab.arrayNamed("Huge");
    QVERIFY2(huge, "the clamped array must be created");
    QCOMPARE(std::uint64_t{huge->Capacity}, std::uint64_t{2000} * kMiB);

    // The maximum the dialog shows, asked for as it stands, creates the same array.
    Lab again(equalDisks(3));
    SK_Create shown = request(QStringLiteral("RAID5"), firstDisks(3), 0);
    shown.size = again.api->CreateArray(shown, true);
    shown.name = QStringLiteral("Shown");
    QCOMPARE(again.api->CreateArray(shown, false), 1);
    again.api->RefreshConfig();
    QVERIFY(again.arrayNamed("Shown"));
    QCOMPARE(std::uint64_t{again.arrayNamed("Shown")->Capacity}, std::uint64_t{2000} * kMiB);

    // Wanted sizes pass through single precision: above 2^24 MB the last one is lost.
    QVERIFY(SK_RaidApi::ToBinaryMB(2000001) != SK_RaidApi::ToBinaryMB(2000000));
    QCOMPARE(SK_RaidApi::ToBinaryMB(20000001), SK_RaidApi::ToBinaryMB(20000000));
}

// --- Commits ---

void tst_planning::createReachesTheDrivers_data()
{
    QTest::addColumn<Commit>("commit");
    QTest::newRow("volume of two disks, no cache")
        << Commit{"VOLUME", 2, false, "NC", 0, 0, 1500, 7159, 2, 1, 0, 1, 0};
    QTest::newRow("RAIDable disk, read cache, 64 KB tags")
        << Commit{"RAIDABLE", 1, false, "R", 64, 8, 800, 7163, 1, 1, 0x80000000u, 1, 0x400};
    QTest::newRow("RAID 0 of three, write cache, 128 KB tags")
        << Commit{"RAID0", 3, false, "W", 128, 0, 2500, 7158, 3, 1, 0x40000000u, 2, 0};
    QTest::newRow("RAID 1N of three with zero create")
        << Commit{"RAID1N", 3, false, "WR", 0, 2, 700, 7158, 1, 3, 0xC0000000u, 1, 0x10000};
    QTest::newRow("RAID 10 of four leaving the data")
        << Commit{"RAID10", 4, false, "RW", 0, 4 | 8, 1800, 7158, 2, 2, 0xC0000000u, 1, 0x4400};
    QTest::newRow("RAID 5 of three NVMe disks, default tags")
        << Commit{"RAID5", 3, true, "RW", 0, 0, 1200, 7157, 1, 3, 0xC0000000u, 3, 0};
    QTest::newRow("RAID 6 of four skipping initialise, 256 KB tags")
        << Commit{"RAID6", 4, false, "RW", 256, 1, 1900, 7162, 1, 4, 0xC0000000u, 3, 0x1000};
}

void tst_planning::createReachesTheDrivers()
{
    QFETCH(Commit, commit);
    const QString type = QString::fromLatin1(commit.type);
    Lab lab(labModel(std::vector<std::uint64_t>(8, 1000), commit.nvme ? kNvme : kHdd));
    SK_Create c = request(type, firstDisks(commit.disks), commit.size);
    c.name = QStringLiteral("Made %1").arg(type);
    c.cache = QString::fromLatin1(commit.cache);
    c.cacheTagSize = commit.tagSize;
    c.skipInit = commit.options & 1;
    c.zeroCreate = commit.options & 2;
    c.leaveData = commit.options & 4;
    c.backgroundScan = commit.options & 8;
    QCOMPARE(lab.api->CreateArray(c, false), 1);

    const auto sent = lab.endpoint->withCode(2);
    QCOMPARE(sent.size(), std::size_t{1});
    const RecordedRequest &r = sent[0];
    QCOMPARE(r.u32(32), commit.driverType);
    QCOMPARE(r.u32(36), static_cast<uint>(commit.disks));
    QCOMPARE(r.u32(40), 0u); // no spares
    QCOMPARE(r.u32(44), commit.tagCode);
    QCOMPARE(r.u32(48), commit.cacheWord);
    QCOMPARE(r.u32(52), commit.policy);
    QCOMPARE(r.u64(56), binaryOf(static_cast<std::uint64_t>(commit.size)));
    QCOMPARE(r.u32(72), commit.first);
    QCOMPARE(r.u32(76), commit.second);
    const QByteArray name = c.name.toLatin1();
    QCOMPARE(QByteArray(reinterpret_cast<const char *>(r.bytes.data() + 92), name.size()), name);

    // The planning read before it asked with the same shape and no cache or flags.
    const auto asked = lab.endpoint->withCode(4109);
    QVERIFY(!asked.empty());
    QCOMPARE(asked.back().u32(36), commit.driverType);
    QCOMPARE(asked.back().u32(52), 0u);
    QCOMPARE(asked.back().u32(56) & ~0x2000u, 0u);

    lab.api->RefreshConfig();
    const SK_ConfigArray *made = lab.arrayNamed(name.constData());
    QVERIFY2(made, "the new array must be in the next read");
    QCOMPARE(QString::fromLatin1(made->Type), type);
    QCOMPARE(std::uint64_t{made->Capacity},
             binaryOf(static_cast<std::uint64_t>(commit.size)) * kMiB);
}

// --- Transforms ---

namespace {

// Disks of 1000 MiB; a RAID 1 "Mirror" (route 1) over disks 1 and 2 on 500 MiB each.
Model mirrorLab(int disks = 10)
{
    Model m = equalDisks(disks);
    m.arrays.push_back(labArray(m, 1, "Mirror", code::TypeMirrorStripe, 1, 2, {1, 2}, 500));
    return m;
}

} // namespace

void tst_planning::transformVerdicts_data()
{
    QTest::addColumn<int>("arrayId");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QList<int>>("disks");
    QTest::addColumn<int>("size");  // under 100 MB a commit, else a query
    QTest::addColumn<int>("fault"); // 1 SMART error in the picture, 2 found by the driver
    QTest::addColumn<int>("verdict");
    QTest::addColumn<QString>("text"); // empty: a plain result, no verdict

    // Transforms of the mirror (array 1) over the first `n` disks, unless told otherwise.
    auto row = [](const char *name, const char *type, int n, int verdict, const char *text,
                  int id = 1, int size = 600, int fault = 0) {
        QTest::newRow(name) << id << QString::fromLatin1(type) << firstDisks(n) << size << fault
                            << verdict << QString::fromLatin1(text);
    };
    row("array 25 is never found, even when there (forced)", "RAID5", 3, -100, "array not found",
        25);
    row("an array that isn't there, before the size", "RAID5", 3, -100, "array not found", 7, 50);
    row("a commit of 99 MB", "RAID5", 3, -99, "size must be at least 100MB", 1, 99);
    row("a RAID 5 without disks", "RAID5", 0, -98, "no disks were selected");
    row("a volume of nine disks", "VOLUME", 9, -91, "VOLUME is limited to 8 drives");
    row("two disks for RAIDable", "RAIDABLE", 2, -90, "--disk must be one for RAIDAble");
    row("a RAID 0 of one disk", "RAID0", 1, -88, "RAID0 requires at least 2 to 8 drives");
    row("a RAID 1 of three disks", "RAID1", 3, -87, "RAID1 requires 2 drives");
    row("a RAID 1N of two disks", "RAID1N", 2, -86, "RAID1n requires 3 or more drives");
    row("a RAID 1N of nine disks", "RAID1N", 9, -85, "RAID1n is limited to 8 drives");
    row("a RAID 10 of five disks", "RAID10", 5, -84,
        "RAID10 must have an even number of 4 to 8 disks");
    row("a RAID 10N of five disks", "RAID10N", 5, -82, "RAID10n requires a minimum of 6 disks");
    row("a RAID 10N of six disks", "RAID10N", 6, -80,
        "sub-member must be 2 or greater for RAID10n");
    row("a RAID 5 of two disks", "RAID5", 2, -79, "RAID5 requires at least 3 drives");
    row("a RAID 5 of nine disks", "RAID5", 9, -78, "RAID5 is limited to 8 drives");
    row("a RAID 6 of nine disks says 'at least 4'", "RAID6", 9, -76,
        "RAID6 requires at least 4 drives");
    row("a RAID 6 of three disks is a plain 0", "RAID6", 3, 0, "");
    row("a RAID 50 is a plain 0", "RAID50", 6, 0, "");
    row("a tier is no transform type", "RTIER", 2, -73, "error, no RAID type specified");
    row("a disk with a SMART error in the picture", "RAID5", 3, -72,
        "a disk selected not present or valid", 1, 600, 1);
    row("the driver finds a SMART error itself", "RAID5", 3, -71,
        "The transform failed because one of the drives is displaying SMART errors", 1, 600, 2);
    QTest::newRow("the driver refuses to drop a member")
        << 1 << QStringLiteral("RAID0") << QList<int>{1, 3} << 600 << 0 << -69
        << QStringLiteral("error determining maximum possible size, check arguments");
}

void tst_planning::transformVerdicts()
{
    QFETCH(int, arrayId);
    QFETCH(QString, type);
    QFETCH(QList<int>, disks);
    QFETCH(int, size);
    QFETCH(int, fault);
    QFETCH(int, verdict);
    QFETCH(QString, text);

    Model m = mirrorLab();
    if (fault == 1)
        m.disks[2].state = code::DiskSmartError;
    if (arrayId == 25) // forced: the drivers number arrays up to 24
        m.arrays.push_back(labArray(m, 25, "Far", code::TypeVolume, 1, 1, {9}, 100));
    Lab lab(std::move(m));
    if (arrayId == 25)
        QVERIFY2(lab.api->GetArrayRecord(25), "array 25 must be in the picture");
    if (fault == 2) {
        lab.endpoint->armedCode = 4108;
        lab.endpoint->armedStatus = SK_STS_DEVICE_SMART_ERROR;
    }
    const int result = lab.api->TransformArray(request(type, disks, size), arrayId, size >= 100);
    QCOMPARE(result, verdict);
    if (!text.isEmpty())
        QCOMPARE(transformErrorList.at(result + 100), text + QLatin1Char('\n'));
    QVERIFY2(lab.endpoint->withCode(8).empty(), "a verdict must not transform anything");
}

void tst_planning::transformRunsToCompletion_data()
{
    // Source layout (type, first, second), target type, disks after, MiB after.
    QTest::addColumn<Growth>("growth");
    const uint mirror = code::TypeMirrorStripe, parity = code::TypeParity;
    QTest::newRow("RAID 1 to RAID 5 with a third disk") << Growth{mirror, 1, 2, "RAID5", 3, 1000};
    QTest::newRow("RAID 1 to RAID 1N with a third disk") << Growth{mirror, 1, 2, "RAID1N", 3, 500};
    QTest::newRow("RAID 1 to RAID 10 with two more disks")
        << Growth{mirror, 1, 2, "RAID10", 4, 1000};
    QTest::newRow("RAID 0 grows by a disk") << Growth{mirror, 2, 1, "RAID0", 3, 1500};
    QTest::newRow("RAID 5 grows by a disk") << Growth{parity, 1, 3, "RAID5", 4, 1500};
    QTest::newRow("RAID 5 to RAID 6 with a fourth disk") << Growth{parity, 1, 3, "RAID6", 4, 1000};
    QTest::newRow("volume to RAID 1 with a second disk")
        << Growth{code::TypeVolume, 1, 1, "RAID1", 2, 500};
}

void tst_planning::transformRunsToCompletion()
{
    QFETCH(Growth, growth);
    const QString targetType = QString::fromLatin1(growth.target);
    const std::uint64_t expectedMiB = static_cast<std::uint64_t>(growth.mib);

    Model m = equalDisks(6);
    std::vector<int> members;
    for (uint i = 1; i <= growth.first * growth.second; ++i)
        members.push_back(static_cast<int>(i));
    m.arrays.push_back(
        labArray(m, 1, "Source", growth.type, growth.first, growth.second, members, 500));
    Lab lab(std::move(m));

    SK_Create c = request(targetType, firstDisks(growth.disks), 0);
    const int max = lab.api->TransformArray(c, 1, true);
    QCOMPARE(max, decimalOf(expectedMiB));
    c.size = max;
    QCOMPARE(lab.api->TransformArray(c, 1, false), 1);
    lab.api->RefreshConfig();
    QVERIFY2(lab.api->ArrayHasTask(1), "the transform must run as a task");
    QCOMPARE(QString::fromLatin1(lab.api->GetArrayRecord(1)->TransformType),
             QStringLiteral("TRANSFORM"));

    QVERIFY2(lab.runTaskToEnd(1), "the transform must end on the emulated clock");
    const SK_ConfigArray *done = lab.api->GetArrayRecord(1);
    QVERIFY(done);
    QCOMPARE(QString::fromLatin1(done->Type), targetType);
    QCOMPARE(std::uint64_t{done->Capacity}, expectedMiB * kMiB);
    QCOMPARE(QString::fromLatin1(done->DisplayName), QStringLiteral("Source"));
    QCOMPARE(done->FirstCount * done->SecondCount, growth.disks);
}

void tst_planning::transformAboveTheMaximumIsRefused()
{
    Lab lab(mirrorLab());
    SK_Create c = request(QStringLiteral("RAID5"), {1, 2, 3}, 0);
    const int max = lab.api->TransformArray(c, 1, true);
    QCOMPARE(max, decimalOf(1000));
    c.size = max + 10;
    QCOMPARE(lab.api->TransformArray(c, 1, false), 0);
    QVERIFY2(lab.endpoint->withCode(8).empty(), "an oversized transform is not clamped");

    // Asked at its maximum, the command carries the array's name and the new shape.
    c.size = max;
    QCOMPARE(lab.api->TransformArray(c, 1, false), 1);
    const auto sent = lab.endpoint->withCode(8);
    QCOMPARE(sent.size(), std::size_t{1});
    QCOMPARE(sent[0].u32(32), 7157u);
    QCOMPARE(sent[0].u32(52), 3u);
    QCOMPARE(sent[0].u64(64), std::uint64_t{1000});
    QCOMPARE(sent[0].u32(72), 1u);
    QCOMPARE(sent[0].u32(76), 3u);
}

// --- Tiers and cached arrays ---

namespace {

// Hard disks 1 and 2 carry "Cold" (RAID 1, route 1, `coldMiB`), SSDs 3 and 4 "Hot"
// (RAID 1, route 2, 300 MiB).
Model tierLab(std::uint64_t coldMiB = 800, bool coldVolume = false, bool hotVolume = false)
{
    Model m = labModel({1000, 1000});
    m.disks.push_back(labDisk(2, 1000, kSsd));
    m.disks.push_back(labDisk(3, 1000, kSsd));
    m.arrays.push_back(labArray(m, 1, "Cold", code::TypeMirrorStripe, 1, 2, {1, 2}, coldMiB));
    m.arrays.push_back(labArray(m, 2, "Hot", code::TypeMirrorStripe, 1, 2, {3, 4}, 300));
    if (coldVolume)
        m.volumes.push_back(Volume{'E', {m.arrays[0].id}, {}, false, ""});
    if (hotVolume)
        m.volumes.push_back(Volume{'F', {m.arrays[1].id}, {}, false, ""});
    return m;
}

SK_Tier tierRequest(const char *cache, quint32 cold = 1, quint32 hot = 2)
{
    SK_Tier t;
    t.name = QStringLiteral("Paired");
    t.cache = QString::fromLatin1(cache);
    t.arrays[0] = cold;
    t.arrays[1] = hot;
    t.arrayCount = 2;
    return t;
}

} // namespace

void tst_planning::tiersOverTwoArrays_data()
{
    QTest::addColumn<QString>("cache");
    QTest::addColumn<bool>("hotHasVolumes");
    QTest::addColumn<int>("expectedMiB");
    QTest::addColumn<uint>("policy");
    QTest::addColumn<QString>("shownCache");

    // A tier offers the room of both arrays; a cache only the cold array's.
    QTest::newRow("tier without cache") << "NC" << false << 1100 << 0u << "NC";
    QTest::newRow("read cached array") << "R" << false << 800 << 0u << "R";
    QTest::newRow("write back cached array over a hot array with volumes")
        << "RW" << true << 800 << 0x40000u << "RW";
}

void tst_planning::tiersOverTwoArrays()
{
    QFETCH(QString, cache);
    QFETCH(bool, hotHasVolumes);
    QFETCH(int, expectedMiB);
    QFETCH(uint, policy);
    QFETCH(QString, shownCache);

    Lab lab(tierLab(800, false, hotHasVolumes));
    QVERIFY(lab.api->ArrayCanBeColdTier(1));
    QVERIFY(!lab.api->ArrayCanBeHotTier(1));
    QVERIFY(lab.api->ArrayCanBeHotTier(2));
    QVERIFY(!lab.api->ArrayCanBeColdTier(2));
    QVERIFY(lab.api->ArrayIsBigger(1, 2));

    SK_Tier t = tierRequest(cache.toLatin1().constData());
    t.hotHasVolumes = hotHasVolumes;
    QCOMPARE(lab.api->CreateTier(t, true), decimalOf(static_cast<std::uint64_t>(expectedMiB)));
    QCOMPARE(lab.api->CreateTier(t, false), 1);

    const auto sent = lab.endpoint->withCode(2);
    QCOMPARE(sent.size(), std::size_t{1});
    QCOMPARE(sent[0].u32(32), 7165u);
    QCOMPARE(sent[0].u32(36), 2u);
    QCOMPARE(sent[0].u32(48), SK_RaidApi::CacheWord(cache));
    QCOMPARE(sent[0].u32(52), policy);
    QCOMPARE(sent[0].u64(56), static_cast<std::uint64_t>(expectedMiB));
    QCOMPARE(sent[0].u32(72), 1u);
    QCOMPARE(sent[0].u32(76), 2u);

    lab.api->RefreshConfig();
    const SK_ConfigArray *paired = lab.arrayNamed("Paired");
    QVERIFY2(paired, "the tier must be in the next read");
    QCOMPARE(QString::fromLatin1(paired->Type), QStringLiteral("RAIDTIER"));
    QCOMPARE(QString::fromLatin1(paired->Cache), shownCache);
    QCOMPARE(std::uint64_t{paired->Capacity}, static_cast<std::uint64_t>(expectedMiB) * kMiB);
    // Its parts are tier parts now and can't be paired again.
    QVERIFY(lab.api->ArrayIsTierPart(1));
    QVERIFY(!lab.api->ArrayCanBeColdTier(1));
    QVERIFY(!lab.api->ArrayCanBeHotTier(2));
}

void tst_planning::tierRefusals()
{
    struct Case
    {
        const char *why;
        Model model;
        SK_Tier tier;
        bool query;
    };
    SK_Tier one = tierRequest("NC");
    one.arrayCount = 1;
    SK_Tier hotVolumesReadOnly = tierRequest("R");
    hotVolumesReadOnly.hotHasVolumes = 1;
    Model twelve = tierLab();
    for (std::uint16_t r = 3; r <= 12; ++r)
        twelve.arrays.push_back(labArray(twelve, r, "Small", code::TypeMirrorStripe, 1, 1, {1}, 10,
                                         800 + (r - 3) * 10u));
    const Case cases[] = {
        {"more than eleven arrays", twelve, tierRequest("NC"), true},
        {"one array only", tierLab(), one, true},
        {"array id 25", tierLab(), tierRequest("NC", 1, 25), true},
        {"an unknown array", tierLab(), tierRequest("NC", 1, 9), true},
        {"both arrays hold volumes", tierLab(800, true, true), tierRequest("NC"), true},
        {"volumes on the hot array without write cache", tierLab(), hotVolumesReadOnly, true},
        {"the driver refuses one array twice", tierLab(), tierRequest("NC", 1, 1), true},
        {"a cache of 49 MiB is too small to commit", tierLab(49), tierRequest("R"), false},
    };
    for (const Case &c : cases) {
        Lab lab(c.model);
        QVERIFY2(lab.api->CreateTier(c.tier, c.query) == 0, c.why);
        QVERIFY2(lab.endpoint->withCode(2).empty(), c.why);
    }
    // The too small cache still has a size to show.
    Lab lab(tierLab(49));
    QCOMPARE(lab.api->CreateTier(tierRequest("R"), true), decimalOf(49));
}

// --- The dialogs' own tests ---

void tst_planning::namesMixingAndTrim()
{
    Model m = labModel({1000, 1000});
    m.disks.push_back(labDisk(2, 1000, kSsd | (1u << 20)));
    m.disks.push_back(labDisk(3, 1000, kSsd | (1u << 20) | (1u << 22)));
    m.disks.push_back(labDisk(4, 1000, kNvme | (1u << 20) | (1u << 22)));
    m.arrays.push_back(labArray(m, 1, "Data", code::TypeMirrorStripe, 1, 2, {1, 2}, 500));
    m.arrays.push_back(labArray(m, 2, "NONE", code::TypeVolume, 1, 1, {3}, 500));
    m.arrays.push_back(labArray(m, 3, "Fast", code::TypeMirrorStripe, 1, 2, {4, 5}, 500));
    Lab lab(std::move(m));

    QVERIFY(!lab.api->IsValidArrayName(QStringLiteral("Data")));
    QVERIFY(lab.api->IsValidArrayName(QStringLiteral("data")));
    QVERIFY(lab.api->IsValidArrayName(QStringLiteral("NONE")));
    QVERIFY(lab.api->IsValidArrayName(QStringLiteral("a/b: c")));
    for (QChar c : QStringLiteral("()^,.=|\"-[]"))
        QVERIFY2(!lab.api->IsValidArrayName(QStringLiteral("x") + c), qPrintable(QString(c)));

    auto mixing = [&](QList<int> disks) {
        return lab.api->HasDriveMixing(request(QStringLiteral("RAID0"), disks));
    };
    QVERIFY(!mixing({}));
    QVERIFY(!mixing({1, 2}));
    QVERIFY(!mixing({3, 4}));
    QVERIFY(mixing({3, 4, 5}));
    QVERIFY(mixing({1, 3}));
    QVERIFY(!mixing({1, 40})); // a disk not found counts as a hard disk
    QVERIFY(!lab.api->DiskMixesWithArray(1, 2));
    QVERIFY(lab.api->DiskMixesWithArray(1, 3));
    QVERIFY(lab.api->DiskMixesWithArray(3, 1));

    auto trim = [&](const char *type, QList<int> disks) {
        return lab.api->ArrayCanTrim(request(QString::fromLatin1(type), disks));
    };
    QVERIFY(trim("RAID0", {}));
    QVERIFY(trim("VOLUME", {3, 4}));
    QVERIFY(!trim("RAID0", {1, 3}));
    QVERIFY(!trim("RAID1", {3, 4}));
    QVERIFY(trim("RAID10", {4, 5}));
    QVERIFY(!trim("RAID5", {4, 5}));
    QVERIFY(!lab.api->ArrayCanTrimExisting(1));
    QVERIFY(lab.api->ArrayCanTrimExisting(2));
    QVERIFY(lab.api->ArrayCanTrimExisting(3));
}

QTEST_GUILESS_MAIN(tst_planning)
#include "tst_planning.moc"
