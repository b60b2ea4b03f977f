// The Win32 transfer path for real: overlapped ReadFileEx/WriteFileEx through
// SKTL_DeviceOpen and SKTL_DeviceTransfer on an ordinary temporary file, with the
// completion routine, the process-wide event and the callback form.

#include "driver/sk_status.h"
#include "driver/sktl.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr std::uint32_t kBlock = 4096;
constexpr std::uint32_t kOpenCreateAlwaysShared = 4;
constexpr std::uint32_t kOpenExistingShared = 6;

// One temporary file, removed again at the end of the test.
class TemporaryFile
{
public:
    TemporaryFile()
    {
        std::random_device random;
        m_path = fs::temp_directory_path() / ("sk-transfer-" + std::to_string(random()) + ".bin");
    }
    ~TemporaryFile()
    {
        std::error_code ec;
        fs::remove(m_path, ec);
    }
    std::string name() const { return m_path.string(); }
    const fs::path &path() const { return m_path; }

private:
    fs::path m_path;
};

void fill(std::uint8_t *data, std::size_t size, std::uint8_t seed)
{
    for (std::size_t i = 0; i < size; ++i)
        data[i] = static_cast<std::uint8_t>(seed + i * 7);
}

bool isFilled(const std::uint8_t *data, std::size_t size, std::uint8_t seed)
{
    for (std::size_t i = 0; i < size; ++i) {
        if (data[i] != static_cast<std::uint8_t>(seed + i * 7))
            return false;
    }
    return true;
}

// What a callback-form transfer reported.
struct Completion
{
    int calls = 0;
    std::uint32_t status = 0;
    std::uint32_t bytes = 0;
    void *context = nullptr;
};

void recordCompletion(std::uint32_t status, void *context, std::uint32_t bytes)
{
    auto *completion = static_cast<Completion *>(context);
    ++completion->calls;
    completion->status = status;
    completion->bytes = bytes;
    completion->context = context;
}

// Lets pending completion routines run: they run only during alertable waits.
bool waitForCompletion(const Completion &completion)
{
    for (int round = 0; round < 200 && completion.calls == 0; ++round)
        SKTL_Sleep(10);
    return completion.calls > 0;
}

class Win32Transfer : public ::testing::Test
{
protected:
    void SetUp() override
    {
        SK_InstallPlatform(nullptr);
        ASSERT_STREQ(SK_CurrentPlatform().name(), "windows");
    }

    // Opens the temporary file through the device layer, as the console opens the
    // control device.
    SK_Handle open(std::uint32_t openMode, std::uint32_t flagMode)
    {
        return SKTL_DeviceOpen(m_file.name().c_str(), openMode, flagMode);
    }

    TemporaryFile m_file;
};

// Writes two blocks with a gap and reads them back, under one flag mode.
class Win32TransferModes : public Win32Transfer, public ::testing::WithParamInterface<std::uint32_t>
{
};

TEST_P(Win32TransferModes, writesLandAtTheirPositionsAndReadBack)
{
    const SK_Handle handle = open(kOpenCreateAlwaysShared, GetParam());
    ASSERT_NE(handle, 0u) << "could not create " << m_file.name();

    SKTL_AlignedBuffer buffer(kBlock, "tst_win32_transfer");
    ASSERT_TRUE(buffer.ok());
    fill(buffer.data(), kBlock, 1);
    EXPECT_EQ(SKTL_DeviceTransfer(false, handle, buffer.data(), 0, kBlock, nullptr, nullptr),
              SK_STS_SUCCESS);
    fill(buffer.data(), kBlock, 2);
    EXPECT_EQ(
        SKTL_DeviceTransfer(false, handle, buffer.data(), 2 * kBlock, kBlock, nullptr, nullptr),
        SK_STS_SUCCESS);

    std::memset(buffer.data(), 0xEE, kBlock);
    EXPECT_EQ(SKTL_DeviceTransfer(true, handle, buffer.data(), 0, kBlock, nullptr, nullptr),
              SK_STS_SUCCESS);
    EXPECT_TRUE(isFilled(buffer.data(), kBlock, 1)) << "the first block did not read back";

    EXPECT_EQ(
        SKTL_DeviceTransfer(true, handle, buffer.data(), 2 * kBlock, kBlock, nullptr, nullptr),
        SK_STS_SUCCESS);
    EXPECT_TRUE(isFilled(buffer.data(), kBlock, 2)) << "the third block did not read back";

    // The block between them was never written and reads as zeros.
    EXPECT_EQ(SKTL_DeviceTransfer(true, handle, buffer.data(), kBlock, kBlock, nullptr, nullptr),
              SK_STS_SUCCESS);
    const std::vector<std::uint8_t> zeros(kBlock, 0);
    EXPECT_EQ(std::memcmp(buffer.data(), zeros.data(), kBlock), 0);

    SKTL_DeviceClose(handle);
    EXPECT_EQ(fs::file_size(m_file.path()), 3u * kBlock);
}

std::string flagModeName(const ::testing::TestParamInfo<std::uint32_t> &mode)
{
    switch (mode.param) {
    case 1:
        return "overlapped";
    case 2:
        return "writeThrough";
    default:
        return "unbuffered";
    }
}

INSTANTIATE_TEST_SUITE_P(FlagModes, Win32TransferModes, ::testing::Values(1u, 2u, 3u),
                         flagModeName);

TEST_F(Win32Transfer, openModesCreateOnlyWhereTheyShould)
{
    // Open existing fails on a file that isn't there; create new fails on one that is.
    EXPECT_EQ(open(kOpenExistingShared, 1), 0u);
    EXPECT_EQ(SKTL_LastError(), 2u); // ERROR_FILE_NOT_FOUND, as the system gives it
    const SK_Handle created = open(1, 1);
    ASSERT_NE(created, 0u);
    SKTL_DeviceClose(created);
    EXPECT_EQ(open(1, 1), 0u);
    EXPECT_EQ(SKTL_LastError(), 80u); // ERROR_FILE_EXISTS
    const SK_Handle existing = open(kOpenExistingShared, 1);
    EXPECT_NE(existing, 0u);
    SKTL_DeviceClose(existing);
}

TEST_F(Win32Transfer, exclusiveOpenKeepsOthersOutAndSharedOpenLetsThemIn)
{
    const SK_Handle exclusive = open(3, 1);
    ASSERT_NE(exclusive, 0u);
    EXPECT_EQ(open(kOpenExistingShared, 1), 0u) << "a second open got past an exclusive one";
    EXPECT_EQ(SKTL_LastError(), 32u); // ERROR_SHARING_VIOLATION
    SKTL_DeviceClose(exclusive);

    const SK_Handle shared = open(kOpenExistingShared, 1);
    ASSERT_NE(shared, 0u);
    const SK_Handle second = open(8, 1);
    EXPECT_NE(second, 0u);
    SKTL_DeviceClose(second);
    SKTL_DeviceClose(shared);
}

TEST_F(Win32Transfer, readingAtOrPastTheEndIsEndOfFile)
{
    const SK_Handle handle = open(kOpenCreateAlwaysShared, 1);
    ASSERT_NE(handle, 0u);
    SKTL_AlignedBuffer buffer(kBlock, "tst_win32_transfer");
    ASSERT_TRUE(buffer.ok());
    fill(buffer.data(), kBlock, 3);
    ASSERT_EQ(SKTL_DeviceTransfer(false, handle, buffer.data(), 0, kBlock, nullptr, nullptr),
              SK_STS_SUCCESS);

    EXPECT_EQ(SKTL_DeviceTransfer(true, handle, buffer.data(), kBlock, kBlock, nullptr, nullptr),
              SK_STS_EOF);
    // Only the high half of this position is past the end: it must reach the system.
    EXPECT_EQ(SKTL_DeviceTransfer(true, handle, buffer.data(), std::uint64_t{1} << 32, kBlock,
                                  nullptr, nullptr),
              SK_STS_EOF);
    // A read that starts inside the file and runs over its end moves what there is.
    EXPECT_EQ(
        SKTL_DeviceTransfer(true, handle, buffer.data(), kBlock / 2, kBlock, nullptr, nullptr),
        SK_STS_SUCCESS);
    SKTL_DeviceClose(handle);
}

TEST_F(Win32Transfer, aWriteTheSystemRefusesIsAFailureAndIsReported)
{
    {
        const SK_Handle handle = open(kOpenCreateAlwaysShared, 1);
        ASSERT_NE(handle, 0u);
        SKTL_DeviceClose(handle);
    }
    // The device layer always opens for reading and writing; a handle opened for
    // reading only makes the system refuse the write.
    HANDLE readOnly =
        CreateFileA(m_file.name().c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_OVERLAPPED, nullptr);
    ASSERT_NE(readOnly, INVALID_HANDLE_VALUE);
    const auto handle = static_cast<SK_Handle>(reinterpret_cast<std::uintptr_t>(readOnly));

    SKTL_AlignedBuffer buffer(kBlock, "tst_win32_transfer");
    ASSERT_TRUE(buffer.ok());
    ::testing::internal::CaptureStdout();
    const std::uint32_t result =
        SKTL_DeviceTransfer(false, handle, buffer.data(), 0, kBlock, nullptr, nullptr);
    std::fflush(stdout);
    const std::string printed = ::testing::internal::GetCapturedStdout();
    EXPECT_EQ(result, SK_STS_FAILURE);
    EXPECT_EQ(printed, "Write to file failed, error=5\n"); // ERROR_ACCESS_DENIED
    CloseHandle(readOnly);
}

TEST_F(Win32Transfer, aReadOnAWriteOnlyHandleIsAFailureAndIsReported)
{
    HANDLE writeOnly = CreateFileA(m_file.name().c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                   FILE_FLAG_OVERLAPPED, nullptr);
    ASSERT_NE(writeOnly, INVALID_HANDLE_VALUE);
    const auto handle = static_cast<SK_Handle>(reinterpret_cast<std::uintptr_t>(writeOnly));

    SKTL_AlignedBuffer buffer(kBlock, "tst_win32_transfer");
    ASSERT_TRUE(buffer.ok());
    ::testing::internal::CaptureStdout();
    const std::uint32_t result =
        SKTL_DeviceTransfer(true, handle, buffer.data(), 0, kBlock, nullptr, nullptr);
    std::fflush(stdout);
    const std::string printed = ::testing::internal::GetCapturedStdout();
    EXPECT_EQ(result, SK_STS_FAILURE);
    EXPECT_EQ(printed, "Read from file failed, error=5\n"); // ERROR_ACCESS_DENIED
    CloseHandle(writeOnly);
}

TEST_F(Win32Transfer, aReadOnAClosedHandleIsAFailureAndIsReported)
{
    const SK_Handle handle = open(kOpenCreateAlwaysShared, 1);
    ASSERT_NE(handle, 0u);
    SKTL_AlignedBuffer buffer(kBlock, "tst_win32_transfer");
    ASSERT_TRUE(buffer.ok());
    // Capturing opens a file of its own; it must not be handed the closed handle's
    // number, so it starts first.
    ::testing::internal::CaptureStdout();
    SKTL_DeviceClose(handle);
    const std::uint32_t result =
        SKTL_DeviceTransfer(true, handle, buffer.data(), 0, kBlock, nullptr, nullptr);
    std::fflush(stdout);
    const std::string printed = ::testing::internal::GetCapturedStdout();
    EXPECT_EQ(result, SK_STS_FAILURE);
    EXPECT_EQ(printed, "Read from file failed, error=6\n"); // ERROR_INVALID_HANDLE
}

TEST_F(Win32Transfer, anUntrackedBufferIsRefusedBeforeTheSystemSeesIt)
{
    const SK_Handle handle = open(kOpenCreateAlwaysShared, 1);
    ASSERT_NE(handle, 0u);
    std::vector<std::uint8_t> untracked(kBlock);
    EXPECT_EQ(SKTL_DeviceTransfer(false, handle, untracked.data(), 0, kBlock, nullptr, nullptr),
              SKTL_STS_INVALID_BUFFER);

    // A tracked block that is too short for the transfer is refused as well.
    SKTL_AlignedBuffer buffer(kBlock, "tst_win32_transfer");
    ASSERT_TRUE(buffer.ok());
    EXPECT_EQ(
        SKTL_DeviceTransfer(false, handle, buffer.data(), 0, 2 * kBlock + 4096, nullptr, nullptr),
        SKTL_STS_INVALID_BUFFER);
    SKTL_DeviceClose(handle);
    // Nothing was written.
    EXPECT_EQ(fs::file_size(m_file.path()), 0u);
}

TEST_F(Win32Transfer, theCallbackFormReportsFromAnAlertableWait)
{
    const SK_Handle handle = open(kOpenCreateAlwaysShared, 1);
    ASSERT_NE(handle, 0u);
    SKTL_AlignedBuffer buffer(kBlock, "tst_win32_transfer");
    ASSERT_TRUE(buffer.ok());
    fill(buffer.data(), kBlock, 4);

    Completion written;
    EXPECT_EQ(SKTL_DeviceTransfer(false, handle, buffer.data(), kBlock, kBlock, &written,
                                  recordCompletion),
              SK_STS_SUCCESS);
    // Completion routines run only while the thread waits alertably, never inside
    // the call that queued the transfer.
    EXPECT_EQ(written.calls, 0);
    ASSERT_TRUE(waitForCompletion(written));
    EXPECT_EQ(written.calls, 1);
    EXPECT_EQ(written.status, SK_STS_SUCCESS);
    EXPECT_EQ(written.bytes, kBlock);
    EXPECT_EQ(written.context, &written);

    std::memset(buffer.data(), 0, kBlock);
    Completion read;
    EXPECT_EQ(
        SKTL_DeviceTransfer(true, handle, buffer.data(), kBlock, kBlock, &read, recordCompletion),
        SK_STS_SUCCESS);
    ASSERT_TRUE(waitForCompletion(read));
    EXPECT_EQ(read.status, SK_STS_SUCCESS);
    EXPECT_EQ(read.bytes, kBlock);
    EXPECT_TRUE(isFilled(buffer.data(), kBlock, 4));

    // End of file reaches the callback too, and only once.
    Completion pastTheEnd;
    EXPECT_EQ(SKTL_DeviceTransfer(true, handle, buffer.data(), 8 * kBlock, kBlock, &pastTheEnd,
                                  recordCompletion),
              SK_STS_SUCCESS);
    EXPECT_EQ(pastTheEnd.calls, 0);
    ASSERT_TRUE(waitForCompletion(pastTheEnd));
    SKTL_Sleep(20);
    EXPECT_EQ(pastTheEnd.calls, 1);
    EXPECT_EQ(pastTheEnd.status, SK_STS_EOF);
    EXPECT_EQ(pastTheEnd.bytes, 0u);
    SKTL_DeviceClose(handle);
}

TEST_F(Win32Transfer, aWaitingTransferLetsOtherCompletionsRunAndStillGetsItsOwnResult)
{
    const SK_Handle handle = open(kOpenCreateAlwaysShared, 1);
    ASSERT_NE(handle, 0u);
    SKTL_AlignedBuffer first(kBlock, "tst_win32_transfer");
    SKTL_AlignedBuffer second(kBlock, "tst_win32_transfer");
    ASSERT_TRUE(first.ok() && second.ok());
    fill(first.data(), kBlock, 5);
    fill(second.data(), kBlock, 6);

    Completion queued;
    ASSERT_EQ(
        SKTL_DeviceTransfer(false, handle, first.data(), 0, kBlock, &queued, recordCompletion),
        SK_STS_SUCCESS);
    // The synchronous transfer waits alertably: the queued one's routine may run
    // first, and must not be taken for this transfer's own completion.
    EXPECT_EQ(SKTL_DeviceTransfer(false, handle, second.data(), kBlock, kBlock, nullptr, nullptr),
              SK_STS_SUCCESS);
    ASSERT_TRUE(waitForCompletion(queued));
    EXPECT_EQ(queued.status, SK_STS_SUCCESS);

    EXPECT_EQ(SKTL_DeviceTransfer(true, handle, first.data(), kBlock, kBlock, nullptr, nullptr),
              SK_STS_SUCCESS);
    EXPECT_TRUE(isFilled(first.data(), kBlock, 6));
    EXPECT_EQ(SKTL_DeviceTransfer(true, handle, first.data(), 0, kBlock, nullptr, nullptr),
              SK_STS_SUCCESS);
    EXPECT_TRUE(isFilled(first.data(), kBlock, 5));
    SKTL_DeviceClose(handle);
}

TEST_F(Win32Transfer, controlRequestsReachTheSystemThroughAnOverlappedHandle)
{
    const SK_Handle handle = open(kOpenCreateAlwaysShared, 1);
    ASSERT_NE(handle, 0u);
    std::uint32_t error = 12345;
    EXPECT_TRUE(SKTL_DeviceControl(handle, FSCTL_SET_SPARSE, nullptr, 0, nullptr, 0, error));
    EXPECT_EQ(error, 0u);

    // A request that no file takes fails with the system's reason.
    std::uint8_t reply[64] = {};
    EXPECT_FALSE(SKTL_DeviceControl(
        handle, CTL_CODE(FILE_DEVICE_UNKNOWN, 0xABC, METHOD_BUFFERED, FILE_ANY_ACCESS), nullptr, 0,
        reply, sizeof reply, error));
    EXPECT_NE(error, 0u);
    SKTL_DeviceClose(handle);
}

TEST_F(Win32Transfer, pathsOfTheDriverGrammarNameDevicesThatAreNotHere)
{
    // No RAID driver here: the control device and a route device can't be opened.
    EXPECT_EQ(SKTL_DeviceOpen("//./Core1/Route0/Device0", 8, 3), 0u);
    EXPECT_EQ(SKTL_DeviceOpen("//./Core1/Route2/Device5", 7, 2), 0u);
    EXPECT_EQ(SKTL_DeviceOpen("//./Core0/Route0/Device0", 8, 3), 0u);
}

} // namespace
