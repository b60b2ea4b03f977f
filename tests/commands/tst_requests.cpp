// Every request of the command layer, byte by byte: each row calls one command on the
// lab host and names the code, the size and the fields it must have written. The
// offsets are written out here independently of the layer's own constants.

#include "command_fixture.h"

#include <functional>

using namespace cmdtest;

namespace {

struct Field
{
    std::size_t offset;
    int width; // 2, 4 or 8 bytes
    std::uint64_t value;
};

using Fields = std::vector<Field>;

Fields operator+(Fields a, const Fields &b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

Fields diskRef(std::size_t at, int disk)
{
    return {{at, 8, diskId(disk)},
            {at + 8, 2, static_cast<std::uint64_t>(disk + 1)},
            {at + 10, 2, 1},
            {at + 12, 4, 0}};
}

Fields arrayRef(std::size_t at, std::uint64_t id, std::uint16_t route)
{
    return {{at, 8, id}, {at + 8, 2, route}, {at + 10, 2, 0}, {at + 12, 4, 0}};
}

using Call = std::function<std::uint32_t(const SK_CoreEntry *)>;

struct RequestCase
{
    const char *name;
    Call call;
    std::uint32_t code;      // command, or read code of a read
    std::uint32_t size;      // bytes written
    Fields fields;
    std::vector<std::uint32_t> accepted = {}; // codes the lab drivers are taught to take
    std::uint32_t openMode = 8;               // 7 for a request sent by route
    std::string text = {};                    // expected bytes at textAt
    std::size_t textAt = 0;
};

void PrintTo(const RequestCase &c, std::ostream *os)
{
    *os << c.name;
}

const NameList kMirror{arrayName(kMirrorRoute)};
const NameList kBothArrays{arrayName(kMirrorRoute), arrayName(kParityRoute)};
const NameList kFreePair{diskName(5), diskName(6)};
const NameList kDisk5{diskName(5)};
const NameList kParityGrown{diskName(2), diskName(3), diskName(4), diskName(5)};
const std::string kFortyChars = "0123456789abcdefghijABCDEFGHIJ0123456789";

std::vector<RequestCase> cases()
{
    std::vector<RequestCase> c;
    const std::string mirror = arrayName(kMirrorRoute), parity = arrayName(kParityRoute);

    // --- Lifecycle ---
    c.push_back({"CreateMirror",
                 [](const SK_CoreEntry *e) {
                     return SK_ApiCreateLogicalDevice(e, 7158, 2, 0, 0xC0000000u, 128, 0x400, 100,
                                                      1, 2, kFreePair.data(), nullptr, "Name", 4,
                                                      7, 8, 9, 0x1234, 0, nullptr);
                 },
                 2, 1536,
                 Fields{{16, 4, 0},   {32, 4, 7158},        {36, 4, 2},     {40, 4, 0},
                        {44, 4, 2},   {48, 4, 0xC0000000u}, {52, 4, 0x400}, {56, 8, 100},
                        {64, 8, 0x1234}, {72, 4, 1},        {76, 4, 2},     {80, 4, 9},
                        {84, 4, 8},   {88, 4, 7},           {124, 8, 0}}
                     + diskRef(188, 5) + diskRef(204, 6),
                 {}, 8, "Name", 92});
    c.push_back({"CreateCutsTheNameAt32",
                 [](const SK_CoreEntry *e) {
                     return SK_ApiCreateLogicalDevice(e, 7159, 1, 0, 0, 64, 0, 100, 1, 1,
                                                      kDisk5.data(), nullptr, kFortyChars.c_str(),
                                                      40, 0, 0, 0, 0x77, 0, nullptr);
                 },
                 2, 1536, Fields{{44, 4, 1}, {124, 4, 0}}, {}, 8, kFortyChars.substr(0, 32), 92});
    c.push_back({"CreateDefaultTagOnNvmeIs3",
                 [](const SK_CoreEntry *e) {
                     const NameList nvme{diskName(kNvmeDisk)};
                     return SK_ApiCreateLogicalDevice(e, 7159, 1, 0, 0, 0, 0, 100, 1, 1,
                                                      nvme.data(), nullptr, "", 0, 0, 0, 0, 0x78,
                                                      0, nullptr);
                 },
                 2, 1536, Fields{{44, 4, 3}}});
    c.push_back({"CreateWithSparesRunsOverTheDrives",
                 [](const SK_CoreEntry *e) {
                     // Five spares: the fifth lands on the first drive reference.
                     const NameList spares{diskName(7), diskName(6), diskName(0), diskName(1),
                                           diskName(2)};
                     return SK_ApiCreateLogicalDevice(e, 7159, 1, 5, 0, 64, 0, 100, 1, 1,
                                                      kDisk5.data(), spares.data(), "", 0, 0, 0,
                                                      0, 0x79, 0, nullptr);
                 },
                 2, 1536,
                 Fields{{40, 4, 5}} + diskRef(124, 7) + diskRef(172, 1) + diskRef(188, 2)});
    c.push_back({"CreateInfo",
                 [](const SK_CoreEntry *e) {
                     std::uint8_t info[SK_CREATE_INFO_SIZE];
                     return SK_ApiGetCreateInfo(e, 7158, 2, 0, 0x40000000u, 0, 0x10000, 0, 1, 2,
                                                kFreePair.data(), nullptr, 7, 8, 9, 0, 1, info);
                 },
                 4109, 8192,
                 Fields{{16, 4, 1},  {36, 4, 7158}, {40, 4, 2},  {44, 4, 0},
                        {48, 4, 1},  {52, 4, 0x40000000u}, {56, 4, 0x12000},
                        {60, 8, 0},  {76, 4, 1},  {80, 4, 2},  {84, 4, 9},  {88, 4, 8},
                        {92, 4, 7}}
                     + diskRef(192, 5) + diskRef(208, 6)});
    c.push_back({"Transform",
                 [mirror, parity](const SK_CoreEntry *e) {
                     return SK_ApiTransformLogicalDevice(e, parity.c_str(), 7157, 4, 0, 0x11, 1500,
                                                         1, 4, kParityGrown.data(), nullptr, 7, 8,
                                                         9, 0);
                 },
                 8, 1536,
                 Fields{{16, 4, 0},  {32, 4, 7157}, {36, 8, kParityId}, {44, 2, kParityRoute},
                        {46, 2, 0},  {52, 4, 4},    {56, 4, 0},         {60, 4, 0x11},
                        {64, 8, 1500}, {72, 4, 1},  {76, 4, 4},         {80, 4, 9},
                        {84, 4, 8},  {88, 4, 7}}
                     + diskRef(156, 2) + diskRef(204, 5)});
    c.push_back({"TransformInfo",
                 [parity](const SK_CoreEntry *e) {
                     std::uint8_t info[SK_TRANSFORM_INFO_SIZE];
                     return SK_ApiGetTransformInfo(e, parity.c_str(), 7157, 4, 0, 0x11, 1, 1, 4,
                                                   kParityGrown.data(), nullptr, 7, 8, 9, 1, info);
                 },
                 4108, 8192,
                 Fields{{16, 4, 1},  {36, 4, 7157}, {40, 8, kParityId}, {48, 2, kParityRoute},
                        {50, 2, 0},  {56, 4, 4},    {60, 4, 0},         {64, 4, 0x11},
                        {68, 8, 1},  {76, 4, 1},    {80, 4, 4},         {84, 4, 9},
                        {88, 4, 8},  {92, 4, 7}}
                     + diskRef(160, 2) + diskRef(208, 5)});
    c.push_back({"DeleteTwo",
                 [](const SK_CoreEntry *e) {
                     return SK_ApiDeleteLogicalDevice(e, 2, kBothArrays.data(), 0, 0, 1);
                 },
                 3, 1536,
                 Fields{{16, 4, 1}, {32, 4, 0}, {36, 4, 2}} + arrayRef(40, kMirrorId, kMirrorRoute)
                     + arrayRef(56, kParityId, kParityRoute)});
    c.push_back({"DeleteAll",
                 [](const SK_CoreEntry *e) { return SK_ApiDeleteLogicalDevice(e, 0, nullptr, 1, 0, 0); },
                 3, 1536, Fields{{32, 4, 1}, {36, 4, 2}} + arrayRef(40, kMirrorId, kMirrorRoute)});
    c.push_back({"Split",
                 [mirror](const SK_CoreEntry *e) {
                     return SK_ApiSplitLogicalDevice(e, mirror.c_str(), 7159, 2, 2, 1,
                                                     kFreePair.data(), 0x55, 1);
                 },
                 14, 1536,
                 Fields{{16, 4, 1}, {32, 4, 7159}, {36, 8, kMirrorId}, {44, 2, kMirrorRoute},
                        {52, 4, 2}, {56, 4, 2}, {60, 4, 1}, {64, 4, 0x55}}
                     + diskRef(68, 5) + diskRef(84, 6)});
    c.push_back({"SplitOfAnotherTypeLeavesOneMirror",
                 [mirror](const SK_CoreEntry *e) {
                     return SK_ApiSplitLogicalDevice(e, mirror.c_str(), 7157, 2, 2, 1,
                                                     kFreePair.data(), 0x55, 1);
                 },
                 14, 1024,
                 Fields{{32, 4, 7158}, {52, 4, 0}, {56, 4, 0}, {60, 4, 0}, {68, 8, 0}}});
    c.push_back({"Copy",
                 [mirror, parity](const SK_CoreEntry *e) {
                     return SK_ApiCopyLogicalDevice(e, mirror.c_str(), parity.c_str(), 3, 5, 6,
                                                    7, 0);
                 },
                 35, 1024,
                 Fields{{32, 8, kMirrorId}, {40, 2, kMirrorRoute}, {42, 2, 0},
                        {48, 8, kParityId}, {56, 2, kParityRoute}, {58, 2, 0},
                        {64, 8, 3u << 11}, {72, 8, 5u << 11}, {80, 4, 6}, {84, 4, 7}}});
    c.push_back({"CommitPrevious",
                 [](const SK_CoreEntry *e) { return SK_ApiCommitPreviousConfig(e, 0x123456789ull, 1); },
                 36, 1024, Fields{{16, 4, 1}, {32, 8, 0x123456789ull}}});

    // --- Tasks ---
    c.push_back({"CheckNoWait",
                 [parity](const SK_CoreEntry *e) {
                     return SK_ApiCheckLogicalDevice(e, parity.c_str(), 0, 1, 1);
                 },
                 7, 1024,
                 Fields{{16, 4, 1}, {32, 4, 31904}, {36, 8, kParityId}, {44, 2, kParityRoute},
                        {46, 2, 0}, {52, 4, 0}, {56, 4, 0x10000000}}});
    c.push_back({"CheckModeOneWaitsInTheDriver",
                 [parity](const SK_CoreEntry *e) {
                     return SK_ApiCheckLogicalDevice(e, parity.c_str(), 1, 0, 0);
                 },
                 7, 1024, Fields{{16, 4, 0}, {32, 4, 31911}, {56, 4, 0}}});
    c.push_back({"CheckById",
                 [](const SK_CoreEntry *e) { return SK_ApiCheckLogicalDeviceById(e, kParityId, 0, 1, 1); },
                 7, 1024, Fields{{32, 4, 31904}, {36, 8, kParityId}, {56, 4, 0x10000000}}});
    c.push_back({"SecureErase",
                 [parity](const SK_CoreEntry *e) {
                     return SK_ApiSecureEraseLogicalDevice(e, parity.c_str(), 1, 1);
                 },
                 7, 1024, Fields{{16, 4, 1}, {32, 4, 31918}, {36, 8, kParityId}, {56, 4, 0x10000000}}});
    c.push_back({"TaskControl",
                 [](const SK_CoreEntry *e) {
                     return SK_ApiTaskControlLogicalDevice(e, 24577, 2, kBothArrays.data(), 0, 1);
                 },
                 34, 1536,
                 Fields{{16, 4, 1}, {32, 4, 24577}, {36, 4, 0}, {40, 4, 2}}
                     + arrayRef(44, kMirrorId, kMirrorRoute) + arrayRef(60, kParityId, kParityRoute)});
    c.push_back({"TaskControlAll",
                 [](const SK_CoreEntry *e) { return SK_ApiTaskControlLogicalDevice(e, 24576, 0, nullptr, 1, 1); },
                 34, 1536, Fields{{32, 4, 24576}, {36, 4, 1}, {40, 4, 2}}});
    c.push_back({"Offline",
                 [](const SK_CoreEntry *e) { return SK_ApiOfflineLogicalDevice(e, 1, kMirror.data(), 0, 1); },
                 17, 1536, Fields{{16, 4, 1}, {32, 4, 1}} + arrayRef(36, kMirrorId, kMirrorRoute)});
    c.push_back({"DriveLetterGoesByRoute",
                 [mirror](const SK_CoreEntry *e) {
                     return SK_ApiDriveLetter(e, mirror.c_str(), 3, 'E', 1, 1);
                 },
                 10, 1024,
                 Fields{{8, 8, 0}, {16, 8, kMirrorId}, {40, 4, 3}, {44, 4, 'E'}, {48, 4, 1}}, {}, 7});
    c.push_back({"DriveLetterById",
                 [](const SK_CoreEntry *e) { return SK_ApiDriveLetterById(e, kParityId, 0, 'F', 0, 1); },
                 10, 1024, Fields{{16, 8, kParityId}, {44, 4, 'F'}, {48, 4, 0}}, {}, 7});
    c.push_back({"DisplayName",
                 [mirror](const SK_CoreEntry *e) {
                     return SK_ApiManageDevicePrivateLogicalDevice(e, mirror.c_str(),
                                                                   kFortyChars.c_str(), 40, 1);
                 },
                 7, 1024, Fields{{16, 4, 1}, {32, 4, 31916}, {52, 4, 0}, {92, 4, 0}}, {}, 8,
                 kFortyChars.substr(0, 32), 60});
    c.push_back({"HideIsTheManageCommand",
                 [mirror](const SK_CoreEntry *e) {
                     return SK_ApiManageLogicalDevice(e, mirror.c_str(), SK_HiddenAttributeValue(1), 1);
                 },
                 7, 1024, Fields{{16, 4, 1}, {32, 4, 31915}, {36, 8, kMirrorId}, {56, 4, 0x2000200}}});
    c.push_back({"BackgroundScanOn",
                 [mirror](const SK_CoreEntry *e) {
                     return SK_ApiManageLogicalDevice(e, mirror.c_str(), SK_BackgroundScanValue(1), 1);
                 },
                 7, 1024, Fields{{32, 4, 31915}, {56, 4, 0x4000400}}});
    c.push_back({"CacheCommand",
                 [mirror](const SK_CoreEntry *e) {
                     return SK_ApiCacheLogicalDevice(e, mirror.c_str(), SK_CachePolicyWord("W"), 1);
                 },
                 7, 1024, Fields{{32, 4, 31912}, {56, 4, 0x40000000}}});
    c.push_back({"PriorityCommand",
                 [mirror](const SK_CoreEntry *e) { return SK_ApiPriorityLogicalDevice(e, mirror.c_str(), 99, 1); },
                 7, 1024, Fields{{32, 4, 31914}, {56, 4, 99}}});
    c.push_back({"RemoveAllSpares",
                 [mirror](const SK_CoreEntry *e) { return SK_ApiRemoveSparesLogicalDevice(e, mirror.c_str(), 1); },
                 7, 1024, Fields{{16, 4, 1}, {32, 4, 31917}, {56, 4, 0}}});
    c.push_back({"SimpleValue",
                 [mirror](const SK_CoreEntry *e) {
                     return SK_SimpleManageLogicalDevice(e, mirror.c_str(), 31913, 0xABCD, 1);
                 },
                 7, 1024, Fields{{32, 4, 31913}, {56, 4, 0xABCD}}});

    // --- Disks ---
    c.push_back({"DedicatedSpareAdd",
                 [mirror](const SK_CoreEntry *e) {
                     return SK_ApiManageSpare(e, mirror.c_str(), 1, kDisk5.data(), 1, 0, 1);
                 },
                 7, 1536,
                 Fields{{16, 4, 1}, {32, 4, 31906}, {36, 8, kMirrorId}, {44, 2, kMirrorRoute},
                        {52, 4, 1}}
                     + diskRef(92, 5)});
    c.push_back({"DedicatedSpareRemove",
                 [mirror](const SK_CoreEntry *e) {
                     return SK_ApiManageSpare(e, mirror.c_str(), 1, kDisk5.data(), 0, 0, 1);
                 },
                 7, 1536, Fields{{32, 4, 31907}, {36, 8, kMirrorId}}});
    c.push_back({"GlobalSpareAddHasNoArray",
                 [](const SK_CoreEntry *e) {
                     return SK_ApiManageSpare(e, nullptr, 1, kDisk5.data(), 1, 1, 1);
                 },
                 7, 1536, Fields{{32, 4, 31908}, {36, 8, 0}, {44, 4, 0}, {52, 4, 1}} + diskRef(92, 5)});
    c.push_back({"GlobalSpareRemove",
                 [](const SK_CoreEntry *e) { return SK_ApiManageSpare(e, nullptr, 1, kDisk5.data(), 0, 1, 1); },
                 7, 1536, Fields{{32, 4, 31909}}});
    c.push_back({"DiskSetting",
                 [](const SK_CoreEntry *e) {
                     return SK_ApiManagePhysicalDevice(e, 1, kDisk5.data(), 0, 16385, 1);
                 },
                 29, 1536, Fields{{16, 4, 1}, {32, 4, 16385}, {36, 4, 1}} + diskRef(40, 5)});
    c.push_back({"DirectDiskSettingIsOneRequest",
                 [](const SK_CoreEntry *e) {
                     return SK_ApiDirectManagePhysicalDevice(e, 2, kFreePair.data(), 0, 16389, 1);
                 },
                 29, 1536, Fields{{32, 4, 16389}, {36, 4, 2}} + diskRef(40, 5) + diskRef(56, 6)});
    c.push_back({"DirectWithAnEmptyList",
                 [](const SK_CoreEntry *e) {
                     return SK_ApiDirectManagePhysicalDevice(e, 0, kFreePair.data(), 0, 16428, 1);
                 },
                 29, 1024, Fields{{32, 4, 16428}, {36, 4, 0}, {40, 8, 0}}});
    c.push_back({"SmartRead",
                 [](const SK_CoreEntry *e) {
                     SKTL_AlignedBuffer reply(8192, "test");
                     return SK_ApiManagePhysicalDeviceBuf(e, 1, kDisk5.data(), 0, 16404,
                                                          reply.data(), 8192, 0, 1);
                 },
                 29, 1536, Fields{{16, 4, 1}, {32, 4, 16404}, {36, 4, 1}} + diskRef(40, 5)});
    c.push_back({"Initialize",
                 [](const SK_CoreEntry *e) {
                     return SK_ApiInitializePhysicalDevice(e, 2, kFreePair.data(), 0, 1, 1);
                 },
                 4, 1536,
                 Fields{{16, 4, 1}, {32, 4, 0}, {36, 4, 2}, {40, 4, 1}} + diskRef(44, 5)
                     + diskRef(60, 6)});
    c.push_back({"Rescan",
                 [](const SK_CoreEntry *e) { return SK_ApiRescan(e, 0, 1); },
                 16, 1024, Fields{{16, 4, 1}, {32, 4, 0}}});
    c.push_back({"RescanAllCores",
                 [](const SK_CoreEntry *e) { return SK_ApiRescan(e, 1, 1); },
                 16, 1024, Fields{{16, 4, 1}}});
    c.push_back({"BuzzOn",
                 [](const SK_CoreEntry *e) { return SK_ApiBuzz(e, 0, 0, 1); },
                 45, 1024, Fields{{16, 4, 0}, {32, 4, 1}}});
    c.push_back({"BuzzOff",
                 [](const SK_CoreEntry *e) { return SK_ApiBuzz(e, 1, 0, 0); },
                 46, 1024, Fields{{32, 4, 0}}});
    c.push_back({"MetaData",
                 [](const SK_CoreEntry *e) {
                     std::vector<std::uint8_t> data(4096);
                     return SK_ApiReadDiskMetaData(e, diskName(5).c_str(), data.data(),
                                                   0x100000000ull, 4096, 1);
                 },
                 4121, 8192,
                 Fields{{16, 4, 1}, {36, 8, diskId(5)}, {44, 2, 6}, {46, 2, 1},
                        {52, 8, 0x100000000ull}, {60, 4, 8}},
                 {4121}});
    c.push_back({"PassThroughWriteKind3",
                 [](const SK_CoreEntry *e) {
                     SK_PassThrough d{};
                     d.Kind = 3;
                     d.Body[0] = 2; // byte 4: direction
                     d.Body[1] = 0xAB;
                     SK_PutU32(d.Body, 48, 64); // byte 52: length
                     std::vector<std::uint8_t> data(100, 0x5A);
                     std::uint32_t deviceStatus[2] = {};
                     return SK_ApiPhysicalDevicePassThroughWrite(e, diskName(5).c_str(), 4, &d,
                                                                 data.data(), 100, deviceStatus);
                 },
                 4124, 8192,
                 Fields{{16, 4, 1}, {36, 8, diskId(5)}, {44, 2, 6}, {46, 2, 1}, {52, 2, 0xAB02},
                        {148, 4, 64}, {152, 4, 100}, {156, 4, 4}, {160, 4, 1024}, {164, 2, 2},
                        {1024, 4, 0x5A5A5A5A}, {1120, 4, 0x5A5A5A5A}, {1124, 4, 0}},
                 {4124}});
    c.push_back({"PassThroughReadKind1",
                 [](const SK_CoreEntry *e) {
                     SK_PassThrough d{};
                     d.Kind = 1;
                     d.Body[0] = 0x12;
                     d.Body[95] = 0x34;
                     SK_PutU32(d.Body, 96, 6); // byte 100: length
                     std::vector<std::uint8_t> data(0x10000);
                     std::uint32_t deviceStatus[2] = {};
                     return SK_ApiPhysicalDevicePassThroughRead(e, diskName(5).c_str(), 0, &d,
                                                                data.data(), 0x10000, deviceStatus);
                 },
                 4123, 8192,
                 Fields{{52, 2, 0x12}, {146, 2, 0x3400}, {148, 4, 6}, {152, 4, 0x10000}, {164, 2, 0}},
                 {4123}});

    // --- Diagnostics ---
    c.push_back({"Statistics", [](const SK_CoreEntry *e) {
                     char text[SK_STATS_TEXT_SIZE];
                     return SK_BufferPrintApiGetStats(e, text, 9, 0, 0);
                 }, 4103, 8192, Fields{{16, 4, 0}}});
    c.push_back({"StatisticsWithReset", [](const SK_CoreEntry *e) {
                     char text[SK_STATS_TEXT_SIZE];
                     return SK_BufferPrintApiGetStats(e, text, 9, 1, 0);
                 }, 4104, 8192, Fields{}});
    c.push_back({"InjectError",
                 [](const SK_CoreEntry *e) { return SK_ApiInjectError(e, diskName(5).c_str(), 3, 1); },
                 9, 1024,
                 Fields{{16, 4, 1}, {20, 4, 0}, {32, 2, 6}, {34, 2, 1}, {36, 4, 3}, {40, 4, 0}, {44, 4, 0}},
                 {9}});
    c.push_back({"InjectErrorDisk",
                 [](const SK_CoreEntry *e) {
                     return SK_ApiInjectErrorDisk(e, diskName(5).c_str(), 4, 100, 8, 1);
                 },
                 9, 1024, Fields{{36, 4, 4}, {40, 4, 100}, {44, 4, 8}}, {9}});
    c.push_back({"DirectInjectErrorGoesByRoute",
                 [](const SK_CoreEntry *e) {
                     return SK_ApiDirectInjectError(e, diskName(5).c_str(), 4, 100, 8, 1);
                 },
                 9, 1024, Fields{{8, 8, 0}, {32, 2, 6}, {36, 4, 4}}, {9}, 7});
    for (std::uint32_t mode = 0; mode < 3; ++mode) {
        static const char *const names[] = {"SetError", "SetErrorMode1", "SetErrorMode2"};
        static const std::uint32_t codes[] = {12, 13, 32};
        c.push_back({names[mode],
                     [mode](const SK_CoreEntry *e) {
                         const NameList devices{diskName(5), arrayName(kMirrorRoute)};
                         return SK_ApiSetError(e, mode, 6, 7, 2, devices.data(), 1);
                     },
                     codes[mode], 1536,
                     Fields{{16, 4, 1}, {32, 4, 6}, {36, 4, 7}, {40, 4, 2}} + diskRef(44, 5)
                         + arrayRef(60, kMirrorId, kMirrorRoute),
                     {codes[mode]}});
    }
    for (std::uint32_t mode = 0; mode < 4; ++mode) {
        static const char *const names[] = {"Trace0", "Trace1", "Trace2", "Trace3"};
        static const std::uint32_t codes[] = {20, 19, 22, 21};
        c.push_back({names[mode], [mode](const SK_CoreEntry *e) { return SK_DebugTrace(e, mode); },
                     codes[mode], 512, Fields{{16, 4, 0}}, {codes[mode]}});
    }
    c.push_back({"TraceState", [](const SK_CoreEntry *e) {
                     std::uint32_t state[5];
                     return SK_DebugTraceGetState(e, state);
                 }, 4110, 8192, Fields{}});
    c.push_back({"TraceItem", [](const SK_CoreEntry *e) {
                     std::uint8_t item[256];
                     return SK_DebugTraceGetTraceItem(e, item);
                 }, 4111, 8192, Fields{}});
    for (std::uint32_t selector = 0; selector < 3; ++selector) {
        static const char *const names[] = {"DriverInfo0", "DriverInfo1", "DriverInfo2"};
        static const std::uint32_t codes[] = {4105, 4106, 4114};
        c.push_back({names[selector],
                     [selector](const SK_CoreEntry *e) {
                         std::uint8_t info[600];
                         return SK_ApiGetDriverInfo(e, selector, info, sizeof info);
                     },
                     codes[selector], 8192, Fields{}});
    }
    c.push_back({"SendMessage",
                 [](const SK_CoreEntry *e) {
                     const std::uint32_t words[9] = {1037, 2, 3, 4, 5, 6, 7, 8, 9};
                     return SK_ApiSendMessage(e, words, 1);
                 },
                 39, 1024,
                 Fields{{16, 4, 1}, {32, 4, 1037}, {36, 4, 2}, {64, 4, 9}, {68, 4, 0}}});
    c.push_back({"CheckPciId",
                 [](const SK_CoreEntry *e) {
                     return SK_ApiDirectCheckControllerPCIID(e, kControllerId, 0x1F3C, 0x43B6);
                 },
                 41, 1024, Fields{{16, 8, kControllerId}, {40, 4, 0x1F3C}, {44, 4, 0x43B6}}});
    c.push_back({"SetWwid",
                 [](const SK_CoreEntry *e) { return SK_ApiSetControllerWwid(e, 0x1111, 0x2222); },
                 47, 8192, Fields{{16, 4, 0}, {32, 8, 0x1111}, {40, 8, 0x2222}}, {47}});
    c.push_back({"ArrayMap",
                 [mirror](const SK_CoreEntry *e) {
                     std::vector<std::uint8_t> map(SK_ARRAY_MAP_SIZE);
                     return SK_ApiGetArrayMap(e, mirror.c_str(), map.data(), 3);
                 },
                 4125, 8192,
                 Fields{{16, 4, 1}, {36, 8, kMirrorId}, {44, 2, kMirrorRoute}, {46, 2, 0},
                        {52, 4, 0x400000}, {56, 4, 3}}});
    c.push_back({"ReadFirmware",
                 [](const SK_CoreEntry *e) {
                     std::vector<std::uint8_t> firmware(300);
                     return SK_ApiReadFirmware(e, kControllerId, 0x8000, firmware.data(), 300);
                 },
                 4117, 8192, Fields{{36, 8, kControllerId}, {44, 4, 0}, {48, 4, 300}, {52, 4, 0x8000}}});
    c.push_back({"FirmwareRegionOfOneBlock",
                 [](const SK_CoreEntry *e) {
                     std::vector<std::uint8_t> region(100, 0x33);
                     return SK_ApiUpdateFirmwareRegion(e, kControllerId, 0x20000, region.data(),
                                                       100, 1);
                 },
                 37, 5120,
                 Fields{{16, 4, 1}, {32, 8, kControllerId}, {44, 4, 100},
                        {48, 4, SK_Crc32(std::vector<std::uint8_t>(100, 0x33).data(), 100)},
                        {52, 4, 0}, {56, 4, 1}, {60, 4, 0}, {64, 4, 100}, {68, 4, 1},
                        {72, 4, 0x20000}, {1024, 4, 0x33333333}, {1124, 4, 0}},
                 {37}});
    c.push_back({"HddFirmware",
                 [](const SK_CoreEntry *e) {
                     std::vector<std::uint8_t> image(64, 0x44);
                     return SK_ApiUpdateHDDFirmware(e, diskName(5).c_str(), image.data(), 64, 1);
                 },
                 49, 5120,
                 Fields{{16, 4, 1}, {32, 8, diskId(5)}, {40, 2, 6}, {42, 2, 1}, {44, 4, 64},
                        {64, 4, 64}, {68, 4, 1}, {1024, 4, 0x44444444}},
                 {49}});
    return c;
}

class Requests : public CommandTest, public ::testing::WithParamInterface<RequestCase>
{
};

TEST_P(Requests, carryEveryFieldAtItsOffset)
{
    const RequestCase &c = GetParam();
    for (std::uint32_t code : c.accepted)
        accept(code);
    c.call(&core);

    const RecordedRequest request = only(c.code);
    ASSERT_EQ(request.bytes.size(), c.size) << "request size";
    EXPECT_EQ(request.openMode, c.openMode) << "7: sent through a route handle";
    EXPECT_EQ(request.u32(24), 2u) << "API level";
    EXPECT_EQ(request.u32(28), 1u) << "API revision";
    for (const Field &f : c.fields) {
        const std::uint64_t got = f.width == 8   ? request.u64(f.offset)
                                  : f.width == 4 ? request.u32(f.offset)
                                                 : request.u16(f.offset);
        EXPECT_EQ(got, f.value) << "field at offset " << f.offset;
    }
    if (!c.text.empty()) {
        const std::string got(reinterpret_cast<const char *>(request.bytes.data()) + c.textAt,
                              c.text.size());
        EXPECT_EQ(got, c.text);
        EXPECT_EQ(request.bytes[c.textAt + c.text.size()], 0) << "the field ends with the text";
    }
}

INSTANTIATE_TEST_SUITE_P(AllCommands, Requests, ::testing::ValuesIn(cases()),
                         [](const ::testing::TestParamInfo<RequestCase> &row) {
                             return std::string(row.param.name);
                         });

TEST(RequestSizes, listsRoundToWholeSectors)
{
    EXPECT_EQ(SK_ListRequestSize(0), 1024u);
    EXPECT_EQ(SK_ListRequestSize(1), 1536u);
    EXPECT_EQ(SK_ListRequestSize(32), 1536u);
    EXPECT_EQ(SK_ListRequestSize(33), 2048u);
    EXPECT_EQ(SK_PaddedListRequestSize(0), 1024u);
    EXPECT_EQ(SK_PaddedListRequestSize(1), 1536u);
    EXPECT_EQ(SK_PaddedListRequestSize(32), 1536u);
    EXPECT_EQ(SK_PaddedListRequestSize(33), 2048u);
    EXPECT_EQ(SK_PaddedListRequestSize(64), 2048u);
    EXPECT_EQ(SK_PaddedListRequestSize(65), 2560u);
}

} // namespace
