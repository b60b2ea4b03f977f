// Native platform on Windows: the control devices of the RAID drivers are opened
// with CreateFileA and spoken to with overlapped ReadFileEx/WriteFileEx, whose
// completion routines run during alertable waits.

#include "driver/sk_platform.h"

#include <windows.h>

#include <cstdio>

namespace {

struct DispositionAndShare
{
    DWORD disposition;
    DWORD share;
};

DispositionAndShare openModeToWin32(std::uint32_t openMode)
{
    static const DWORD dispositions[4] = {CREATE_NEW, CREATE_ALWAYS, OPEN_EXISTING, OPEN_ALWAYS};
    const std::uint32_t index = (openMode - 1) / 2;
    const DWORD share = (openMode % 2 == 0) ? (FILE_SHARE_READ | FILE_SHARE_WRITE) : 0;
    return {dispositions[index], share};
}

DWORD flagModeToWin32(std::uint32_t flagMode)
{
    switch (flagMode) {
    case 2:
        return FILE_FLAG_OVERLAPPED | FILE_FLAG_WRITE_THROUGH;
    case 3:
        return FILE_FLAG_OVERLAPPED | FILE_FLAG_NO_BUFFERING;
    default:
        return FILE_FLAG_OVERLAPPED;
    }
}

HANDLE toWin32(SK_Handle handle)
{
    return reinterpret_cast<HANDLE>(static_cast<std::uintptr_t>(handle));
}

// One queued transfer. OVERLAPPED comes first so the completion routine can find
// the record from the pointer it is given.
struct TransferRecord
{
    OVERLAPPED overlapped;
    HANDLE event;
    bool done; // set by the completion routine, which runs on this same thread
    std::uint32_t result;
    void *context;
    SKTL_Callback callback;
};

VOID CALLBACK transferCompleted(DWORD systemError, DWORD bytes, LPOVERLAPPED overlapped)
{
    auto *record = reinterpret_cast<TransferRecord *>(overlapped);
    const std::uint32_t result = SKTL_CompletionResult(systemError);
    if (record->callback) {
        record->callback(result, record->context, bytes);
        delete record;
        return;
    }
    record->result = result;
    record->done = true;
    SetEvent(record->event);
}

class SK_Win32Platform final : public SK_Platform
{
public:
    ~SK_Win32Platform() override
    {
        if (m_event)
            CloseHandle(m_event);
    }

    const char *name() const override { return "windows"; }

    SK_Handle openDevice(const char *osName, std::uint32_t openMode,
                         std::uint32_t flagMode) override
    {
        if (!osName || openMode < 1 || openMode > 8 || flagMode < 1 || flagMode > 3)
            return 0;
        const DispositionAndShare mode = openModeToWin32(openMode);
        HANDLE handle = CreateFileA(osName, GENERIC_READ | GENERIC_WRITE, mode.share, nullptr,
                                    mode.disposition, flagModeToWin32(flagMode), nullptr);
        if (handle == INVALID_HANDLE_VALUE)
            return 0;
        return static_cast<SK_Handle>(reinterpret_cast<std::uintptr_t>(handle));
    }

    void closeDevice(SK_Handle handle) override { CloseHandle(toWin32(handle)); }

    std::uint32_t transfer(bool isRead, SK_Handle handle, void *buffer, std::uint64_t position,
                           std::uint32_t size, void *context, SKTL_Callback callback) override
    {
        auto *record = new TransferRecord{};
        record->overlapped.Offset = static_cast<DWORD>(position);
        record->overlapped.OffsetHigh = static_cast<DWORD>(position >> 32);
        record->context = context;
        record->callback = callback;
        if (!callback) {
            record->event = processEvent();
            ResetEvent(record->event);
        }

        const BOOL queued =
            isRead ? ReadFileEx(toWin32(handle), buffer, size, &record->overlapped,
                                transferCompleted)
                   : WriteFileEx(toWin32(handle), buffer, size, &record->overlapped,
                                 transferCompleted);
        if (!queued) {
            std::printf(isRead ? "Read from file failed, error=%d\n"
                               : "Write to file failed, error=%d\n",
                        static_cast<int>(GetLastError()));
            delete record;
            return 3;
        }
        if (callback)
            return 1;

        // The completion routine runs as an APC during the alertable wait; other
        // completions may wake the wait first, so wait until this one is done.
        while (!record->done)
            WaitForSingleObjectEx(record->event, INFINITE, TRUE);
        const std::uint32_t result = record->result;
        delete record;
        return result;
    }

    void sleep(std::uint32_t milliseconds) override { SleepEx(milliseconds, TRUE); }

private:
    // The one process-wide manual-reset event of synchronous transfers, made on
    // first use. Callers hold the library lock, so one event serves them all.
    HANDLE processEvent()
    {
        if (!m_event)
            m_event = CreateEventA(nullptr, TRUE, FALSE, nullptr);
        return m_event;
    }

    HANDLE m_event = nullptr;
};

} // namespace

std::unique_ptr<SK_Platform> SK_CreateNativePlatform()
{
    return std::make_unique<SK_Win32Platform>();
}
