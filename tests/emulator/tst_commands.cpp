// The emulated drivers' commands, sent as hand-built requests through the real
// channel: every field is placed at its documented offset here, independently of the
// console's command layer.

#include "support/emulated_host.h"

#include <gtest/gtest.h>

using namespace sk_emu;

namespace {

constexpr std::uint64_t kDiskSectors = 1000000 + kMetadataSectors;
constexpr std::uint64_t kMemberMiB = 488; // 1,000,000 usable sectors in whole MiB

Model lab()
{
    Model m;
    m.generation = 5;
    m.host.drivers = {{"skraid.sys", "9.0.0.1", true}, {"skcfg.sys", "9.0.0.1", true}};
    Controller c;
    c.id = 0xC0;
    c.ports = 8;
    m.controllers.push_back(c);
    for (int i = 0; i < 8; ++i) {
        Disk d;
        d.id = 0xD00 + static_cast<std::uint64_t>(i);
        d.port = static_cast<std::uint32_t>(i);
        d.capacity = kDiskSectors;
        d.portType = code::PortSata | code::Port6G;
        d.smartVersion = 10;
        m.disks.push_back(d);
    }
    m.disks[7].portType = code::PortNvme | code::PortNvmeGen4;
    m.disks[7].smartVersion = 0;
    return m;
}

// A request laid out by hand.
class Request
{
public:
    explicit Request(std::uint32_t size)
        : m_buffer(std::make_unique<SKTL_AlignedBuffer>(size, "test")), m_size(size)
    {
    }
    Request &u32(std::size_t at, std::uint32_t v)
    {
        return SK_PutU32(m_buffer->data(), at, v), *this;
    }
    Request &u64(std::size_t at, std::uint64_t v)
    {
        return SK_PutU64(m_buffer->data(), at, v), *this;
    }
    Request &text(std::size_t at, const char *t)
    {
        std::memcpy(m_buffer->data() + at, t, std::strlen(t));
        return *this;
    }
    Request &disk(std::size_t at, std::uint64_t id) // port = id - 0xD00 on controller 0
    {
        u64(at, id);
        SK_PutU16(m_buffer->data(), at + 8, static_cast<std::uint16_t>(id - 0xD00 + 1));
        SK_PutU16(m_buffer->data(), at + 10, 1);
        return *this;
    }
    Request &array(std::size_t at, std::uint64_t id, std::uint16_t route)
    {
        u64(at, id);
        SK_PutU16(m_buffer->data(), at + 8, route);
        return *this;
    }
    std::uint8_t *data() { return m_buffer->data(); }
    std::uint32_t size() const { return m_size; }

private:
    std::unique_ptr<SKTL_AlignedBuffer> m_buffer;
    std::uint32_t m_size;
};

class Commands : public ::testing::Test
{
protected:
    std::uint32_t write(Request &r, std::uint32_t command)
    {
        SK_Core core(".", "Core1", 0);
        return core.SK_ConfigWrite(r.data(), r.size(), command);
    }
    std::uint32_t read(Request &r, std::uint32_t readCode)
    {
        SK_Core core(".", "Core1", 0);
        return core.SK_ConfigRead(r.data(), r.size(), readCode, 0);
    }

    // Create (command 2) or its planning read (4109, every field four bytes on).
    Request createRequest(bool info, std::uint32_t type, std::uint32_t first, std::uint32_t second,
                          std::vector<std::uint64_t> disks, std::uint64_t mib, std::uint64_t id,
                          std::uint32_t policy = 0)
    {
        Request r(8192);
        const std::size_t s = info ? 4 : 0;
        r.u32(32 + s, type).u32(36 + s, static_cast<std::uint32_t>(disks.size()));
        r.u32(44 + s, 1).u32(48 + s, 0xC0000000u).u32(52 + s, policy).u64(56 + s, mib);
        r.u32(72 + s, first).u32(76 + s, second);
        if (!info)
            r.u64(64, id).text(92, "A display name longer than thirty-two bytes");
        const std::size_t drives = info ? 192 : 188;
        for (std::size_t i = 0; i < disks.size(); ++i)
            r.disk(drives + 16 * i, disks[i]);
        return r;
    }

    std::uint32_t createArray(std::uint32_t type, std::uint32_t first, std::uint32_t second,
                              std::vector<std::uint64_t> disks, std::uint64_t mib, std::uint64_t id,
                              std::uint32_t policy = 0)
    {
        Request r = createRequest(false, type, first, second, std::move(disks), mib, id, policy);
        return write(r, 2);
    }

    // RAID5 over the first three disks at the given size.
    std::uint32_t transformToRaid5(std::uint64_t mib)
    {
        Request r(8192);
        r.u32(32, 7157).u64(36, 0xA1).u32(44, 1).u32(52, 3).u64(64, mib);
        r.u32(72, 1).u32(76, 3).disk(156, 0xD00).disk(172, 0xD01).disk(188, 0xD02);
        return write(r, 8);
    }

    const Array &array(std::uint64_t id)
    {
        m_seen = scope.host->model();
        const Array *a = m_seen.findArray(id);
        EXPECT_NE(a, nullptr);
        static Array none;
        return a ? *a : none;
    }

    std::vector<std::uint16_t> messages()
    {
        std::vector<std::uint16_t> out;
        for (const Event &e : scope.host->model().events)
            out.push_back(e.message);
        return out;
    }
    std::uint32_t manage(std::uint64_t id, std::uint32_t subcode, std::uint32_t value = 0)
    {
        Request r(1024);
        r.u32(32, subcode).u64(36, id).u32(44, static_cast<std::uint32_t>(id - 0xA0));
        r.u32(56, value);
        return write(r, 7);
    }

    EmulatedHostScope scope{lab()};
    Model m_seen;
};

struct LevelCase
{
    const char *level;
    std::uint32_t type, first, second;
    std::uint64_t maxMiB;
    std::uint32_t task; // task a plain create starts
};

class CreateLevels : public Commands, public ::testing::WithParamInterface<LevelCase>
{
};

TEST_P(CreateLevels, answerTheirLargestSizeAndCreate)
{
    const LevelCase &c = GetParam();
    std::vector<std::uint64_t> disks;
    for (std::uint32_t i = 0; i < c.first * c.second; ++i)
        disks.push_back(0xD00 + i);

    Request info = createRequest(true, c.type, c.first, c.second, disks, 0, 0);
    ASSERT_EQ(read(info, 4109), 1u) << c.level;
    EXPECT_EQ(SK_GetU64(info.data(), 24), c.maxMiB) << c.level;

    ASSERT_EQ(createArray(c.type, c.first, c.second, disks, c.maxMiB, 0xA1), 1u) << c.level;
    const Array &a = array(0xA1);
    EXPECT_EQ(a.route, 1u);
    EXPECT_EQ(a.layout.type, c.type);
    EXPECT_EQ(a.layout.members.size(), disks.size());
    EXPECT_EQ(a.layout.capacity / 2048, c.maxMiB);
    EXPECT_EQ(a.task.type, c.task) << c.level;
    EXPECT_EQ(a.name, "A display name longer than thirt"); // cut at 32 bytes
    EXPECT_EQ(a.cachePolicy, 0xC0000000u);
    EXPECT_EQ(a.cacheTagSize, 64u);
}

INSTANTIATE_TEST_SUITE_P(
    Levels, CreateLevels,
    // Every level's largest size is also checked through the console's commands.
    ::testing::Values(LevelCase{"RAID0", 7158, 4, 1, 4 * kMemberMiB, 0},
                      LevelCase{"RAID10", 7158, 2, 2, 2 * kMemberMiB, code::TaskCreate},
                      LevelCase{"RAID6", 7162, 1, 5, 3 * kMemberMiB, code::TaskCreate}));

TEST_F(Commands, createFlagsChooseTheTaskAndTheSizeShrinksTheMembers)
{
    ASSERT_EQ(createArray(7157, 1, 3, {0xD00, 0xD01, 0xD02}, 200, 0xA1, 0x10000 | 0x400), 1u);
    EXPECT_EQ(array(0xA1).task.type, code::TaskZero);
    EXPECT_EQ(array(0xA1).attributes & 0x400, 0x400u);
    EXPECT_EQ(array(0xA1).layout.capacity, 200u * 2048);
    EXPECT_EQ(array(0xA1).layout.members[0].size, 100u * 2048);

    ASSERT_EQ(createArray(7158, 1, 2, {0xD00, 0xD01}, 100, 0xA2, 0x1000), 1u);
    EXPECT_EQ(array(0xA2).task.type, code::TaskNone);
    EXPECT_EQ(array(0xA2).route, 2u);
    // The second array's extents follow the first's on the shared disks.
    EXPECT_EQ(array(0xA2).layout.members[0].offset, 100u * 2048);
}

// An array 0xA9 on route 1, with no layout.
void arrayA9(Model &m)
{
    Array a;
    a.id = 0xA9;
    a.route = 1;
    m.arrays.push_back(a);
}

struct Refusal
{
    const char *what;
    void (*prepare)(Model &);
    std::uint32_t type, second;
    std::vector<std::uint64_t> disks;
    std::uint64_t mib;
    std::uint32_t status;
};

class CreateRefusals : public ::testing::TestWithParam<Refusal>
{
};

TEST_P(CreateRefusals, leaveTheConfigurationAsItWas)
{
    const Refusal &c = GetParam();
    Model m = lab();
    if (c.prepare)
        c.prepare(m);
    EmulatedHostScope scope(m);
    const std::uint64_t generation = scope.host->generation();
    Request r(8192);
    r.u32(32, c.type).u32(36, static_cast<std::uint32_t>(c.disks.size()));
    r.u64(56, c.mib).u64(64, 0xA9).u32(72, 1).u32(76, c.second);
    for (std::size_t i = 0; i < c.disks.size(); ++i)
        r.disk(188 + 16 * i, c.disks[i]);
    SK_Core core(".", "Core1", 0);
    EXPECT_EQ(core.SK_ConfigWrite(r.data(), r.size(), 2), c.status) << c.what;
    EXPECT_EQ(scope.host->generation(), generation);
    EXPECT_EQ(scope.host->model().arrays.size(), m.arrays.size());
}

const std::vector<std::uint64_t> kPair{0xD00, 0xD01};

INSTANTIATE_TEST_SUITE_P(
    Cases, CreateRefusals,
    ::testing::Values(
        Refusal{"unknown disk", nullptr, 7158, 2, {0xD00, 0xDFF}, 100, 11},
        Refusal{"the same disk twice", nullptr, 7158, 2, {0xD00, 0xD00}, 100, 44},
        Refusal{"a disk with SMART errors",
                [](Model &m) { m.disks[1].state = code::DiskSmartError; }, 7158, 2, kPair, 100, 75},
        Refusal{"an offline disk", [](Model &m) { m.disks[1].state = code::DiskOffline; }, 7158, 2,
                kPair, 100, 42},
        Refusal{"a global spare", [](Model &m) { m.disks[1].globalSpare = true; }, 7158, 2, kPair,
                100, 77},
        Refusal{"a disabled level", [](Model &m) { m.host.disabledLevels = {"RAID6"}; }, 7162, 4,
                std::vector<std::uint64_t>{0xD00, 0xD01, 0xD02, 0xD03}, 100, 56},
        Refusal{"more than fits", nullptr, 7158, 2, kPair, kMemberMiB + 1, 45},
        Refusal{"counts that don't match the disks", nullptr, 7157, 4,
                std::vector<std::uint64_t>{0xD00, 0xD01, 0xD02}, 100, 7},
        Refusal{"RAID5 of two", nullptr, 7157, 2, kPair, 100, 7},
        Refusal{"a type the drivers don't build", nullptr, 7160, 2, kPair, 100, 43},
        Refusal{"an ID already in use", arrayA9, 7158, 2, kPair, 100, 44},
        Refusal{"full disks",
                [](Model &m) {
                    arrayA9(m);
                    m.arrays[0].id = 0xA8;
                    m.arrays[0].layout.firstCount = 2;
                    m.arrays[0].layout.members = {Member{0xD00, 0, 1000000, 0, 1000000, 0},
                                                  Member{0xD01, 0, 1000000, 0, 1000000, 0}};
                },
                7158, 2, kPair, 100, 45}));

TEST_F(Commands, transformGrowsTheArrayWhileShowingBothLayouts)
{
    ASSERT_EQ(createArray(7158, 1, 2, {0xD00, 0xD01}, kMemberMiB, 0xA1, 0x1000), 1u);
    Request info(8192);
    info.u32(36, 7157).u64(40, 0xA1).u32(48, 1).u32(56, 3).u32(76, 1).u32(80, 3);
    info.disk(160, 0xD00).disk(176, 0xD01).disk(192, 0xD02);
    ASSERT_EQ(read(info, 4108), 1u);
    EXPECT_EQ(SK_GetU64(info.data(), 32), 2 * kMemberMiB);

    ASSERT_EQ(transformToRaid5(2 * kMemberMiB), 1u);
    EXPECT_EQ(array(0xA1).task.type, code::TaskTransform);

    SK_Core core(".", "Core1", 0);
    EXPECT_EQ(core.ArrayCount, 2u); // source and destination under one device number

    scope.clock->advance(20 * 1000);
    const Array &a = array(0xA1);
    EXPECT_EQ(a.task.type, code::TaskNone);
    EXPECT_EQ(a.layout.type, 7157u);
    EXPECT_EQ(a.layout.capacity / 2048, 2 * kMemberMiB);
    EXPECT_FALSE(a.target.has_value());
}

TEST_F(Commands, transformNeverShrinksOrDropsAMember)
{
    ASSERT_EQ(createArray(7157, 1, 4, {0xD00, 0xD01, 0xD02, 0xD03}, 3 * kMemberMiB, 0xA1, 0x1000),
              1u);
    EXPECT_EQ(transformToRaid5(100), SK_STS_ARRAY_TOO_SMALL);
    EXPECT_EQ(array(0xA1).task.type, code::TaskNone);
}

TEST_F(Commands, deleteTakesSeveralArraysInOneRequestAndRespectsReferences)
{
    ASSERT_EQ(createArray(7158, 2, 1, {0xD00, 0xD01}, 100, 0xA1), 1u);
    ASSERT_EQ(createArray(7158, 2, 1, {0xD02, 0xD03}, 100, 0xA2), 1u);
    ASSERT_EQ(createArray(7158, 2, 1, {0xD04, 0xD05}, 100, 0xA3), 1u);

    // A tier over the first two holds references to them.
    Request tier = createRequest(false, 7165, 1, 2, {}, 100, 0xA4);
    tier.u32(36, 2).u32(48, 0).array(188, 0xA1, 1).array(204, 0xA2, 2);
    ASSERT_EQ(write(tier, 2), 1u);
    EXPECT_EQ(array(0xA1).referenceCount, 1u);
    EXPECT_EQ(array(0xA4).layout.capacity, 200u * 2048); // a tier offers both arrays' room

    Request refused(1536);
    refused.u32(36, 1).array(40, 0xA1, 1);
    EXPECT_EQ(write(refused, 3), SK_STS_LOGICAL_DEVICE_IN_USE);

    const std::uint32_t last = scope.host->model().events.back().number;
    Request r(1536);
    r.u32(36, 2).array(40, 0xA4, 4).array(56, 0xA3, 3);
    ASSERT_EQ(write(r, 3), 1u);
    const Model m = scope.host->model();
    EXPECT_EQ(m.arrays.size(), 2u);
    EXPECT_EQ(m.findArray(0xA1)->referenceCount, 0u);
    EXPECT_EQ(m.events[m.events.size() - 2].message, 1014u);
    EXPECT_EQ(m.events.back().params[0], 3u);
    EXPECT_GT(m.events.back().number, last);

    Request unknown(1536);
    unknown.u32(36, 1).array(40, 0xA9, 9);
    EXPECT_EQ(write(unknown, 3), SK_STS_LOGICAL_DEVICE_NOT_FOUND);
}

TEST_F(Commands, managementSubcodesChangeTheArray)
{
    ASSERT_EQ(createArray(7157, 1, 3, {0xD00, 0xD01, 0xD02}, 100, 0xA1, 0x1000), 1u);
    EXPECT_EQ(manage(0xA1, 31912, 0x80000000u), 1u);
    EXPECT_EQ(array(0xA1).cachePolicy, 0x80000000u);
    EXPECT_EQ(manage(0xA1, 31914, 99), 1u);
    EXPECT_EQ(array(0xA1).priority, 99u);
    EXPECT_EQ(manage(0xA1, 31915, 0x2000200), 1u);
    EXPECT_TRUE(array(0xA1).hidden());
    EXPECT_EQ(scope.host->model().events.back().message, 1135u);
    EXPECT_EQ(manage(0xA1, 31915, 0x2000000), 1u);
    EXPECT_FALSE(array(0xA1).hidden());

    Request name(1024);
    name.u32(32, 31916).u64(36, 0xA1).u32(44, 1).text(60, "Scratch");
    EXPECT_EQ(write(name, 7), 1u);
    EXPECT_EQ(array(0xA1).name, "Scratch");

    EXPECT_EQ(manage(0xA1, 31904), 1u);
    EXPECT_EQ(array(0xA1).task.type, code::TaskCheck);
    EXPECT_EQ(manage(0xA1, 31904), SK_STS_DEVICE_IS_BUSY);
    EXPECT_EQ(manage(0xA1, 31911), 1u);
    EXPECT_EQ(array(0xA1).task.type, code::TaskNone);
    EXPECT_EQ(manage(0xA1, 31918, 0x10000000), 1u);
    EXPECT_EQ(array(0xA1).task.type, code::TaskSecureErase);
    EXPECT_EQ(manage(0xA1, 31999), SKTL_STS_INVALID_PARAMETER);
    EXPECT_EQ(manage(0xA9, 31912), SK_STS_LOGICAL_DEVICE_NOT_FOUND);
}

TEST_F(Commands, tasksArePausedResumedAndRemovedWithTheirEvents)
{
    ASSERT_EQ(createArray(7158, 1, 2, {0xD00, 0xD01}, kMemberMiB, 0xA1), 1u);
    auto control = [&](std::uint32_t act) {
        Request r(1536);
        r.u32(32, act).u32(40, 1).array(44, 0xA1, 1);
        return write(r, 34);
    };
    scope.clock->advance(500);
    const std::uint32_t progress = array(0xA1).task.progress;
    EXPECT_GT(progress, 0u);
    ASSERT_EQ(control(24576), 1u);
    scope.clock->advance(500);
    EXPECT_EQ(array(0xA1).task.state, code::TaskPaused);
    EXPECT_EQ(array(0xA1).task.progress, progress);
    ASSERT_EQ(control(24577), 1u);
    ASSERT_EQ(control(24578), 1u);
    EXPECT_EQ(array(0xA1).task.type, code::TaskNone);
    EXPECT_EQ(messages(), (std::vector<std::uint16_t>{1037, 1138, 1100, 1026, 1105}));
    EXPECT_EQ(control(1), SKTL_STS_INVALID_PARAMETER);
}

TEST_F(Commands, higherPriorityRunsFaster)
{
    ASSERT_EQ(createArray(7158, 1, 2, {0xD00, 0xD01}, kMemberMiB, 0xA1), 1u);
    ASSERT_EQ(createArray(7158, 1, 2, {0xD02, 0xD03}, kMemberMiB, 0xA2), 1u);
    ASSERT_EQ(manage(0xA2, 31914, 10), 1u);
    scope.clock->advance(400);
    EXPECT_EQ(array(0xA1).task.progress / array(0xA2).task.progress, 5u);
}

TEST_F(Commands, sparesAreAssignedAndTakenOverByADegradedArray)
{
    ASSERT_EQ(createArray(7158, 1, 2, {0xD00, 0xD01}, 100, 0xA1, 0x1000), 1u);
    Request add(1024);
    add.u32(32, 31906).u64(36, 0xA1).u32(44, 1).u32(52, 1).disk(92, 0xD05);
    ASSERT_EQ(write(add, 7), 1u);
    EXPECT_EQ(array(0xA1).spares, std::vector<std::uint64_t>{0xD05});
    EXPECT_EQ(write(add, 7), SK_STS_LOGICAL_DEVICE_IN_USE); // already a spare

    Request global(1024);
    global.u32(32, 31908).u32(52, 1).disk(92, 0xD06);
    ASSERT_EQ(write(global, 7), 1u);
    EXPECT_TRUE(scope.host->model().findDisk(0xD06)->globalSpare);

    ASSERT_TRUE(scope.host->failDisk(0xD01));
    EXPECT_EQ(array(0xA1).layout.members[1].disk, 0xD05u); // the dedicated spare goes first
    EXPECT_EQ(array(0xA1).task.type, code::TaskRestore);
    EXPECT_TRUE(scope.host->model().findDisk(0xD06)->globalSpare);
}

// The SMART replies' layout is checked through the console's commands.
TEST_F(Commands, diskSettings)
{
    auto manage = [&](std::uint32_t subcode, std::uint64_t disk) {
        Request r(1536);
        r.u32(32, subcode).u32(36, 1).disk(40, disk);
        return write(r, 29);
    };
    EXPECT_EQ(manage(16384, 0xD00), 1u);
    EXPECT_TRUE(scope.host->model().disks[0].features & code::FeatureWriteCache);
    EXPECT_EQ(manage(16387, 0xD00), 1u);
    EXPECT_EQ(scope.host->model().events.back().message, 1145u);
    EXPECT_EQ(manage(16411, 0xD01), 1u);
    EXPECT_TRUE(scope.host->model().disks[1].features & code::FeatureSmartPolling);
    EXPECT_EQ(manage(16420, 0xD00), 1u); // LED extended state 2
    EXPECT_EQ(scope.host->model().events.back().message, 1183u);
    EXPECT_EQ(manage(16404, 0xD00), 1u);
    EXPECT_EQ(manage(16404, 0xD07), SK_STS_NOT_SUPPORT); // NVMe has no ATA data
    EXPECT_EQ(manage(16384, 0xD07), SK_STS_NOT_SUPPORT);
    EXPECT_EQ(manage(16404, 0xDFF), SK_STS_PHYSICAL_DEVICE_NOT_FOUND);
}

TEST_F(Commands, rescanForgetsPulledDisksAndBringsInsertedOnesOnline)
{
    ASSERT_EQ(createArray(7158, 1, 2, {0xD00, 0xD01}, 100, 0xA1, 0x1000), 1u);
    ASSERT_TRUE(scope.host->pullDisk(0xD01));
    Disk fresh;
    fresh.id = 0xE00;
    fresh.port = 9;
    fresh.capacity = kDiskSectors;
    scope.host->insertDisk(fresh);

    Request r(1024);
    ASSERT_EQ(write(r, 16), 1u);
    const Model m = scope.host->model();
    EXPECT_EQ(m.findDisk(0xD01), nullptr);
    EXPECT_EQ(m.findDisk(0xE00)->state, code::DiskOnline);
    EXPECT_EQ(m.findArray(0xA1)->layout.members[1].disk, 0u);
    EXPECT_EQ(m.findArray(0xA1)->state, code::ArrayCritical);
}

TEST_F(Commands, offlineInitialiseAndDriveLetters)
{
    ASSERT_EQ(createArray(7158, 2, 1, {0xD00, 0xD01}, 100, 0xA1), 1u);
    Request letter(1024);
    letter.u64(16, 0xA1).u32(44, 'E').u32(48, 1);
    SK_Core core(".", "Core1", 0);
    ASSERT_EQ(core.SK_ConfigWriteRoute(letter.data(), 1024, 10, 1), 1u);
    EXPECT_EQ(SK_CurrentPlatform().system().fixedDriveLetters(), "E");

    Request init(1536);
    init.u32(36, 1).u32(40, 1).disk(44, 0xD00);
    EXPECT_EQ(write(init, 4), SK_STS_LOGICAL_DEVICE_IN_USE); // still a healthy member

    Request offline(1536);
    offline.u32(32, 1).array(36, 0xA1, 1);
    ASSERT_EQ(write(offline, 17), 1u);
    EXPECT_EQ(array(0xA1).state, code::ArrayOffline);

    init.disk(44, 0xD04);
    ASSERT_EQ(write(init, 4), 1u);
    EXPECT_EQ(scope.host->model().events.back().message, 1181u);
}

// One administrator's session: a check interrupted by a failing member, as the log shows it.
TEST_F(Commands, scriptedSessionShowsEveryStepInTheLog)
{
    const std::uint64_t hour = 3600 * 1000;
    ASSERT_EQ(createArray(7157, 1, 3, {0xD00, 0xD01, 0xD02}, 2 * kMemberMiB, 0xA1, 0x1000), 1u);
    ASSERT_EQ(manage(0xA1, 31904), 1u);
    scope.clock->advance(hour);
    Request spare(1024);
    spare.u32(32, 31908).u32(52, 1).disk(92, 0xD06);
    ASSERT_EQ(write(spare, 7), 1u);
    ASSERT_EQ(manage(0xA1, 31904), 1u);
    ASSERT_TRUE(scope.host->failDisk(0xD02));
    scope.clock->advance(hour);
    EXPECT_EQ(array(0xA1).state, code::ArrayNormal);
    ASSERT_EQ(manage(0xA1, 31918), 1u);
    scope.clock->advance(hour);
    EXPECT_EQ(messages(),
              (std::vector<std::uint16_t>{1037,             // created
                                          1141, 1024,       // checked
                                          1132,             // a global spare
                                          1141, 1013, 1015, // a check, then a member fails
                                          1025, 1139, 1018, // the check fails, the spare is rebuilt
                                          1168}));          // secure erase
}

TEST_F(Commands, commitPreviousReturnsToAnEarlierGeneration)
{
    const std::uint64_t before = scope.host->generation();
    ASSERT_EQ(createArray(7158, 2, 1, {0xD00, 0xD01}, 100, 0xA1), 1u);
    Request commit(1024);
    commit.u64(32, before);
    ASSERT_EQ(write(commit, 36), 1u);
    const Model m = scope.host->model();
    EXPECT_TRUE(m.arrays.empty());
    EXPECT_EQ(m.generation, before + 2);
    EXPECT_EQ(m.events.back().message, 1037u);
    commit.u64(32, 999);
    EXPECT_EQ(write(commit, 36), SK_STS_OUT_OF_BOUNDS);
}

} // namespace
