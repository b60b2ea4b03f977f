// Every request of the command layer, byte by byte: each row calls one command on the
// lab host and names the code, the size and the fields it must have written. Offsets
// are written out here, independently of the layer's own constants, as
// "offset[kind]=value": no kind a u32, w a u16, q a u64, d the reference of lab disk
// n, a the reference of the array on route n.

#include "command_fixture.h"

#include <functional>
#include <sstream>

using namespace cmdtest;

namespace {

using Call = std::function<std::uint32_t(const SK_CoreEntry *)>;

struct RequestCase
{
    const char *name;
    std::uint32_t code; // the command, or the read code of a read
    std::uint32_t size; // bytes written
    const char *fields;
    Call call;
    std::vector<std::uint32_t> taught = {}; // codes the lab drivers are taught to accept
    std::uint32_t openMode = 8;             // 7: sent through a route handle
    std::size_t textAt = 0;
    std::string text = {};

    RequestCase accepting(std::uint32_t c) const
    {
        auto r = *this;
        r.taught.push_back(c);
        return r;
    }
    RequestCase byRoute() const
    {
        auto r = *this;
        r.openMode = 7;
        return r;
    }
    RequestCase withText(std::size_t at, std::string t) const
    {
        auto r = *this;
        r.textAt = at;
        r.text = std::move(t);
        return r;
    }
};

void PrintTo(const RequestCase &c, std::ostream *os)
{
    *os << c.name;
}

// Checks one "offset[kind]=value" field of `request`.
void checkField(const RecordedRequest &request, const std::string &token)
{
    const std::size_t eq = token.find('=');
    std::size_t end = 0;
    const std::size_t offset = std::stoul(token.substr(0, eq), &end);
    const char kind = end < eq ? token[end] : 'l';
    const std::uint64_t value = std::stoull(token.substr(eq + 1), nullptr, 0);
    const auto ref = [&](std::uint64_t id, std::uint16_t device, std::uint16_t coreRoute) {
        EXPECT_EQ(request.u64(offset), id) << token;
        EXPECT_EQ(request.u16(offset + 8), device) << token;
        EXPECT_EQ(request.u16(offset + 10), coreRoute) << token;
        EXPECT_EQ(request.u32(offset + 12), 0u) << token;
    };
    switch (kind) {
    case 'w':
        EXPECT_EQ(request.u16(offset), value) << token;
        break;
    case 'q':
        EXPECT_EQ(request.u64(offset), value) << token;
        break;
    case 'd':
        ref(diskId(static_cast<int>(value)), static_cast<std::uint16_t>(value + 1), 1);
        break;
    case 'a':
        ref(value == kMirrorRoute ? kMirrorId : kParityId, static_cast<std::uint16_t>(value), 0);
        break;
    default:
        EXPECT_EQ(request.u32(offset), value) << token;
        break;
    }
}

const NameList kBothArrays{arrayName(kMirrorRoute), arrayName(kParityRoute)};
const NameList kFreePair{diskName(5), diskName(6)}, kDisk5{diskName(5)};
const NameList kNvme{diskName(kNvmeDisk)}, kDiskAndArray{diskName(5), arrayName(kMirrorRoute)};
const NameList kParityGrown{diskName(2), diskName(3), diskName(4), diskName(5)};
// Five spares that resolve: the fifth lands on the first drive reference.
const NameList kFiveSpares{diskName(7), diskName(6), diskName(0), diskName(1), diskName(2)};
const std::string kMirror = arrayName(kMirrorRoute), kParity = arrayName(kParityRoute);
const char *const M = kMirror.c_str();
const char *const P = kParity.c_str();
const std::string kDisk5Name = diskName(5);
const char *const D5 = kDisk5Name.c_str();
const std::string kForty = "0123456789abcdefghijABCDEFGHIJ0123456789";
const std::uint32_t kWords[9] = {1037, 2, 3, 4, 5, 6, 7, 8, 9};

// Reply and data blocks the calls write into; the tracked one is aligned as
// unbuffered transfers want.
struct Scratch
{
    SKTL_AlignedBuffer reply{8192, "test"};
    std::vector<std::uint8_t> data = std::vector<std::uint8_t>(SK_ARRAY_MAP_SIZE, 0x5A);
    char text[SK_STATS_TEXT_SIZE];
    std::uint32_t words[8];
    SK_PassThrough kind1{1, {0x12}}, kind3{3, {2, 0xAB}};
};
Scratch &scratch()
{
    static Scratch *s = [] {
        auto *made = new Scratch;
        made->kind1.Body[95] = 0x34;
        SK_PutU32(made->kind1.Body, 96, 6);  // byte 100: the block's length
        SK_PutU32(made->kind3.Body, 48, 64); // byte 52: the block's length
        return made;
    }();
    return *s;
}
std::uint8_t *data()
{
    return scratch().data.data();
}

#define ROW(name, code, size, fields, ...)                                                         \
    RequestCase                                                                                    \
    {                                                                                              \
        name, code, size, fields,                                                                  \
            [](const SK_CoreEntry *e) -> std::uint32_t { return __VA_ARGS__; }                     \
    }

std::vector<RequestCase> cases()
{
    return {
        // Lifecycle
        ROW("Create", 2, 1536,
            "16=0 32=7158 36=2 40=0 44=2 48=0xC0000000 52=0x400 56q=100 64q=0x1234 72=1 76=2 80=9 "
            "84=8 88=7 124q=0 188d=5 204d=6",
            SK_ApiCreateLogicalDevice(e, 7158, 2, 0, 0xC0000000u, 128, 0x400, 100, 1, 2,
                                      kFreePair.data(), nullptr, "Name", 4, 7, 8, 9, 0x1234, 0,
                                      nullptr))
            .withText(92, "Name"),
        ROW("CreateDefaultTagOnNvmeIs3", 2, 1536, "44=3",
            SK_ApiCreateLogicalDevice(e, 7159, 1, 0, 0, 0, 0, 100, 1, 1, kNvme.data(), nullptr, "",
                                      0, 0, 0, 0, 0x78, 0, nullptr)),
        ROW("CreateSparesRunOverTheDrives", 2, 1536, "40=5 124d=7 172d=1 188d=2",
            SK_ApiCreateLogicalDevice(e, 7159, 1, 5, 0, 64, 0, 100, 1, 1, kDisk5.data(),
                                      kFiveSpares.data(), "", 0, 0, 0, 0, 0x79, 0, nullptr)),
        ROW("CreateInfo", 4109, 8192,
            "16=1 36=7158 40=2 44=0 48=1 52=0x40000000 56=0x12000 60q=0 76=1 80=2 84=9 88=8 92=7 "
            "192d=5 208d=6",
            SK_ApiGetCreateInfo(e, 7158, 2, 0, 0x40000000u, 0, 0x10000, 0, 1, 2, kFreePair.data(),
                                nullptr, 7, 8, 9, 0, 1, data())),
        ROW("Transform", 8, 1536,
            "16=0 32=7157 36a=2 52=4 56=0 60=0x11 64q=1500 72=1 76=4 80=9 84=8 88=7 156d=2 204d=5",
            SK_ApiTransformLogicalDevice(e, P, 7157, 4, 0, 0x11, 1500, 1, 4, kParityGrown.data(),
                                         nullptr, 7, 8, 9, 0)),
        ROW("TransformInfo", 4108, 8192,
            "16=1 36=7157 40q=0xA2 48w=2 50w=0 56=4 60=0 64=0x11 68q=1 76=1 80=4 84=9 88=8 92=7 "
            "160d=2 208d=5",
            SK_ApiGetTransformInfo(e, P, 7157, 4, 0, 0x11, 1, 1, 4, kParityGrown.data(), nullptr, 7,
                                   8, 9, 1, data())),
        ROW("Delete", 3, 1536, "16=1 32=0 36=2 40a=1 56a=2",
            SK_ApiDeleteLogicalDevice(e, 2, kBothArrays.data(), 0, 0, 1)),
        ROW("DeleteAll", 3, 1536, "32=1 36=2 40a=1",
            SK_ApiDeleteLogicalDevice(e, 0, nullptr, 1, 0, 0)),
        ROW("Split", 14, 1536, "16=1 32=7159 36a=1 52=2 56=2 60=1 64=0x55 68d=5 84d=6",
            SK_ApiSplitLogicalDevice(e, M, 7159, 2, 2, 1, kFreePair.data(), 0x55, 1)),
        ROW("SplitOfAnotherTypeLeavesOneMirror", 14, 1024, "32=7158 52=0 56=0 60=0 68q=0",
            SK_ApiSplitLogicalDevice(e, M, 7157, 2, 2, 1, kFreePair.data(), 0x55, 1)),
        ROW("Copy", 35, 1024,
            "32q=0xA1 40w=1 42w=0 48q=0xA2 56w=2 58w=0 64q=0x1800 72q=0x2800 80=6 84=7",
            SK_ApiCopyLogicalDevice(e, M, P, 3, 5, 6, 7, 0)),
        ROW("CommitPrevious", 36, 1024, "16=1 32q=0x123456789",
            SK_ApiCommitPreviousConfig(e, 0x123456789ull, 1)),
        // Tasks
        ROW("CheckNoWait", 7, 1024, "16=1 32=31904 36a=2 52=0 56=0x10000000",
            SK_ApiCheckLogicalDevice(e, P, 0, 1, 1)),
        ROW("CheckById", 7, 1024, "32=31904 36a=2 56=0x10000000",
            SK_ApiCheckLogicalDeviceById(e, kParityId, 0, 1, 1)),
        ROW("SecureErase", 7, 1024, "16=1 32=31918 36a=2 56=0x10000000",
            SK_ApiSecureEraseLogicalDevice(e, P, 1, 1)),
        ROW("TaskControl", 34, 1536, "16=1 32=24577 36=0 40=2 44a=1 60a=2",
            SK_ApiTaskControlLogicalDevice(e, 24577, 2, kBothArrays.data(), 0, 1)),
        ROW("TaskControlAll", 34, 1536, "32=24576 36=1 40=2",
            SK_ApiTaskControlLogicalDevice(e, 24576, 0, nullptr, 1, 1)),
        ROW("Offline", 17, 1536, "16=1 32=2 36a=1 52a=2",
            SK_ApiOfflineLogicalDevice(e, 2, kBothArrays.data(), 0, 1)),
        ROW("DriveLetter", 10, 1024, "8q=0 16q=0xA1 40=3 44=0x45 48=1",
            SK_ApiDriveLetter(e, M, 3, 'E', 1, 1))
            .byRoute(),
        ROW("DisplayName", 7, 1024, "16=1 32=31916 52=0 92=0",
            SK_ApiManageDevicePrivateLogicalDevice(e, M, kForty.c_str(), 40, 1))
            .withText(60, kForty.substr(0, 32)),
        ROW("ManageHides", 7, 1024, "16=1 32=31915 36a=1 56=0x2000200",
            SK_ApiManageLogicalDevice(e, M, SK_HiddenAttributeValue(1), 1)),
        ROW("SimpleValue", 7, 1024, "32=31913 56=0xABCD",
            SK_SimpleManageLogicalDevice(e, M, 31913, 0xABCD, 1)),
        // Disks
        ROW("DedicatedSpareAdd", 7, 1536, "16=1 32=31906 36a=1 52=1 92d=5",
            SK_ApiManageSpare(e, M, 1, kDisk5.data(), 1, 0, 1)),
        ROW("DedicatedSpareRemove", 7, 1536, "32=31907 36a=1",
            SK_ApiManageSpare(e, M, 1, kDisk5.data(), 0, 0, 1)),
        ROW("GlobalSpareAdd", 7, 1536, "32=31908 36q=0 44=0 52=1 92d=5",
            SK_ApiManageSpare(e, nullptr, 1, kDisk5.data(), 1, 1, 1)),
        ROW("DiskSetting", 29, 1536, "16=1 32=16385 36=1 40d=5",
            SK_ApiManagePhysicalDevice(e, 1, kDisk5.data(), 0, 16385, 1)),
        ROW("DirectIsOneRequest", 29, 1536, "32=16389 36=2 40d=5 56d=6",
            SK_ApiDirectManagePhysicalDevice(e, 2, kFreePair.data(), 0, 16389, 1)),
        ROW("DirectWithAnEmptyList", 29, 1024, "32=16428 36=0 40q=0",
            SK_ApiDirectManagePhysicalDevice(e, 0, kFreePair.data(), 0, 16428, 1)),
        ROW("SmartRead", 29, 1536, "16=1 32=16404 36=1 40d=5",
            SK_ApiManagePhysicalDeviceBuf(e, 1, kDisk5.data(), 0, 16404, scratch().reply.data(),
                                          8192, 0, 1)),
        ROW("Initialize", 4, 1536, "16=1 32=0 36=2 40=1 44d=5 60d=6",
            SK_ApiInitializePhysicalDevice(e, 2, kFreePair.data(), 0, 1, 1)),
        ROW("Rescan", 16, 1024, "16=1 32=0", SK_ApiRescan(e, 0, 1)),
        ROW("BuzzOn", 45, 1024, "16=0 32=1", SK_ApiBuzz(e, 0, 0, 1)),
        ROW("BuzzOff", 46, 1024, "32=0", SK_ApiBuzz(e, 1, 0, 0)),
        ROW("MetaData", 4121, 8192, "16=1 36d=5 52q=0x100000000 60=8",
            SK_ApiReadDiskMetaData(e, D5, data(), 0x100000000ull, 4096, 1))
            .accepting(4121),
        // Kind 3: the direction is byte 4, the block bytes 4 to 51, its length at 52.
        ROW("PassThroughWrite", 4124, 8192,
            "16=1 36d=5 52w=0xAB02 148=64 152=100 156=4 160=1024 164w=2 1024=0x5A5A5A5A "
            "1120=0x5A5A5A5A 1124=0",
            SK_ApiPhysicalDevicePassThroughWrite(e, D5, 4, &scratch().kind3, data(), 100,
                                                 scratch().words))
            .accepting(4124),
        // Kind 1: a 96-byte block from byte 4, its length at 100.
        ROW("PassThroughRead", 4123, 8192, "52w=0x12 146w=0x3400 148=6 152=0x10000 164w=0",
            SK_ApiPhysicalDevicePassThroughRead(e, D5, 0, &scratch().kind1, data(), 0x10000,
                                                scratch().words))
            .accepting(4123),
        // Diagnostics
        ROW("Statistics", 4103, 8192, "16=0",
            SK_BufferPrintApiGetStats(e, scratch().text, 9, 0, 0)),
        ROW("InjectError", 9, 1024, "16=1 20=0 32w=6 34w=1 36=3 40=0 44=0",
            SK_ApiInjectError(e, D5, 3, 1))
            .accepting(9),
        ROW("DirectInjectError", 9, 1024, "8q=0 32w=6 36=4 40=100 44=8",
            SK_ApiDirectInjectError(e, D5, 4, 100, 8, 1))
            .accepting(9)
            .byRoute(),
        ROW("SetError", 12, 1536, "16=1 32=6 36=7 40=2 44d=5 60a=1",
            SK_ApiSetError(e, 0, 6, 7, 2, kDiskAndArray.data(), 1))
            .accepting(12),
        ROW("SetErrorMode1", 13, 1536, "40=1", SK_ApiSetError(e, 1, 6, 7, 1, kDisk5.data(), 1))
            .accepting(13),
        ROW("SetErrorMode2", 32, 1536, "40=1", SK_ApiSetError(e, 2, 6, 7, 1, kDisk5.data(), 1))
            .accepting(32),
        ROW("Trace0", 20, 512, "16=0", SK_DebugTrace(e, 0)).accepting(20),
        ROW("Trace1", 19, 512, "", SK_DebugTrace(e, 1)).accepting(19),
        ROW("Trace2", 22, 512, "", SK_DebugTrace(e, 2)).accepting(22),
        ROW("Trace3", 21, 512, "", SK_DebugTrace(e, 3)).accepting(21),
        ROW("TraceState", 4110, 8192, "", SK_DebugTraceGetState(e, scratch().words)),
        ROW("TraceItem", 4111, 8192, "", SK_DebugTraceGetTraceItem(e, data())),
        ROW("DriverInfo0", 4105, 8192, "", SK_ApiGetDriverInfo(e, 0, data(), 600)),
        ROW("DriverInfo1", 4106, 8192, "", SK_ApiGetDriverInfo(e, 1, data(), 600)),
        ROW("DriverInfo2", 4114, 8192, "", SK_ApiGetDriverInfo(e, 2, data(), 600)),
        ROW("SendMessage", 39, 1024, "16=1 32=1037 36=2 64=9 68=0",
            SK_ApiSendMessage(e, kWords, 1)),
        ROW("CheckPciId", 41, 1024, "16q=0xC0 40=0x1F3C 44=0x43B6",
            SK_ApiDirectCheckControllerPCIID(e, kControllerId, 0x1F3C, 0x43B6)),
        ROW("SetWwid", 47, 8192, "16=0 32q=0x1111 40q=0x2222",
            SK_ApiSetControllerWwid(e, 0x1111, 0x2222))
            .accepting(47),
        ROW("ArrayMap", 4125, 8192, "16=1 36a=1 52=0x400000 56=3",
            SK_ApiGetArrayMap(e, M, data(), 3)),
        ROW("ReadFirmware", 4117, 8192, "36q=0xC0 44=0 48=300 52=0x8000",
            SK_ApiReadFirmware(e, kControllerId, 0x8000, data(), 300)),
        ROW("FirmwareRegion", 37, 5120,
            "16=1 32q=0xC0 44=100 48=0x9748744c 52=0 56=1 60=0 64=100 68=1 72=0x20000 "
            "1024=0x5A5A5A5A 1124=0",
            SK_ApiUpdateFirmwareRegion(e, kControllerId, 0x20000, data(), 100, 1))
            .accepting(37),
        ROW("HddFirmware", 49, 5120,
            "16=1 32q=0xD05 40w=6 42w=1 44=64 48=0x0eaab849 64=64 68=1 1024=0x5A5A5A5A",
            SK_ApiUpdateHDDFirmware(e, D5, data(), 64, 1))
            .accepting(49),
    };
}

class Requests : public CommandTest, public ::testing::WithParamInterface<RequestCase>
{
};

TEST_P(Requests, carryEveryFieldAtItsOffset)
{
    const RequestCase &c = GetParam();
    std::fill(scratch().data.begin(), scratch().data.end(), 0x5A); // earlier rows write into it
    for (std::uint32_t code : c.taught)
        accept(code);
    c.call(&core);

    const RecordedRequest request = only(c.code);
    ASSERT_EQ(request.bytes.size(), c.size) << "request size";
    EXPECT_EQ(request.openMode, c.openMode) << "7: sent through a route handle";
    EXPECT_EQ(request.u32(24), 2u) << "API level";
    EXPECT_EQ(request.u32(28), 1u) << "API revision";
    std::istringstream fields(c.fields);
    for (std::string token; fields >> token;)
        checkField(request, token);
    if (!c.text.empty()) {
        EXPECT_EQ(std::string(reinterpret_cast<const char *>(request.bytes.data()) + c.textAt,
                              c.text.size()),
                  c.text);
        EXPECT_EQ(request.bytes[c.textAt + c.text.size()], 0) << "nothing after the text";
    }
}

INSTANTIATE_TEST_SUITE_P(AllCommands, Requests, ::testing::ValuesIn(cases()),
                         [](const ::testing::TestParamInfo<RequestCase> &row) {
                             return std::string(row.param.name);
                         });

TEST(RequestSizes, listsRoundToWholeSectors)
{
    // The two forms of the rule come to the same sizes.
    const std::uint32_t counts[] = {0, 1, 32, 33, 64, 65};
    const std::uint32_t sizes[] = {1024, 1536, 1536, 2048, 2048, 2560};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(SK_ListRequestSize(counts[i]), sizes[i]) << counts[i];
        EXPECT_EQ(SK_PaddedListRequestSize(counts[i]), sizes[i]) << counts[i];
    }
}

} // namespace
