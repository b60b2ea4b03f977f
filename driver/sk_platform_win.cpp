// Native platform on Windows: the control devices of the RAID drivers are opened
// with CreateFileA and spoken to with overlapped ReadFileEx/WriteFileEx, whose
// completion routines run during alertable waits.

#include "driver/sk_platform.h"

#include <windows.h>

#include <cstdio>

// The Win32 system view (sk_system_view_win.cpp).
std::unique_ptr<SK_SystemView> SK_CreateWin32SystemView();

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
    bool done;      // set by the completion routine, which runs on this same thread
    bool abandoned; // the queue call failed; a late completion only marks `done`
    std::uint32_t result;
    void *context;
    SKTL_Callback callback;
};

VOID CALLBACK transferCompleted(DWORD systemError, DWORD bytes, LPOVERLAPPED overlapped)
{
    auto *record = reinterpret_cast<TransferRecord *>(overlapped);
    if (record->abandoned) {
        record->done = true;
        return;
    }
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

// A callback whose transfer ended before it could be queued (end of file reported at
// once) is still told from an alertable wait, as every completion is.
struct LateCallback
{
    SKTL_Callback callback;
    void *context;
    std::uint32_t result;
};

VOID CALLBACK deliverLateCallback(ULONG_PTR parameter)
{
    auto *late = reinterpret_cast<LateCallback *>(parameter);
    late->callback(late->result, late->context, 0);
    delete late;
}

class SK_Win32Platform final : public SK_Platform
{
public:
    SK_Win32Platform() : m_system(SK_CreateWin32SystemView()) {}

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

    std::uint32_t lastError() const override { return GetLastError(); }

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

        const BOOL queued = isRead ? ReadFileEx(toWin32(handle), buffer, size, &record->overlapped,
                                                transferCompleted)
                                   : WriteFileEx(toWin32(handle), buffer, size, &record->overlapped,
                                                 transferCompleted);
        if (!queued)
            return notQueued(isRead, record);
        if (callback)
            return 1;

        // The completion routine runs as an APC during the alertable wait; other
        // completions may wake the wait first, so wait until this one is done.
        while (!record->done) {
            if (record->event)
                WaitForSingleObjectEx(record->event, INFINITE, TRUE);
            else
                SleepEx(INFINITE, TRUE); // no event could be made: any APC ends this
        }
        const std::uint32_t result = record->result;
        delete record;
        return result;
    }

    void sleep(std::uint32_t milliseconds) override { SleepEx(milliseconds, TRUE); }

    bool deviceControl(SK_Handle handle, std::uint32_t controlCode, const void *in,
                       std::uint32_t inSize, void *out, std::uint32_t outSize,
                       std::uint32_t &error) override
    {
        // Handles of this layer are opened for overlapped work, where the system wants
        // an OVERLAPPED record with every request; the request is waited for here, on
        // an event of its own so that no transfer's wait is disturbed.
        OVERLAPPED overlapped{};
        overlapped.hEvent = CreateEventA(nullptr, TRUE, FALSE, nullptr);
        if (!overlapped.hEvent) {
            error = GetLastError();
            return false;
        }
        DWORD bytes = 0;
        BOOL done = DeviceIoControl(toWin32(handle), controlCode, const_cast<void *>(in), inSize,
                                    out, outSize, &bytes, &overlapped);
        if (!done && GetLastError() == ERROR_IO_PENDING)
            done = GetOverlappedResult(toWin32(handle), &overlapped, &bytes, TRUE);
        error = done ? 0 : GetLastError();
        CloseHandle(overlapped.hEvent);
        return done != FALSE;
    }

    SK_SystemView &system() override { return *m_system; }

private:
    // The one process-wide manual-reset event of synchronous transfers, made on first
    // use and kept until the process ends. A waiter wakes for its own completion
    // routine whatever the event does, so sharing it costs at most a spare wake-up.
    static HANDLE processEvent()
    {
        static const HANDLE event = CreateEventA(nullptr, TRUE, FALSE, nullptr);
        return event;
    }

    // The system would not queue the transfer. End of file may be reported this way
    // (a read that starts past the end of a file) and is result 2 like the same news
    // from a completion; anything else is a refusal, reported and result 3.
    static std::uint32_t notQueued(bool isRead, TransferRecord *record)
    {
        const DWORD error = GetLastError();
        // Some systems queue the completion routine even for a transfer they report as
        // failed. Let any such routine run now, while the record still exists; it only
        // marks the record.
        record->abandoned = true;
        SleepEx(0, TRUE);
        const SKTL_Callback callback = record->callback;
        void *const context = record->context;
        delete record;

        if (error == ERROR_HANDLE_EOF) {
            const std::uint32_t result = SKTL_CompletionResult(SK_SYSERR_HANDLE_EOF);
            if (!callback)
                return result;
            auto *late = new LateCallback{callback, context, result};
            if (QueueUserAPC(deliverLateCallback, GetCurrentThread(),
                             reinterpret_cast<ULONG_PTR>(late)))
                return 1;
            delete late;
            return 3;
        }
        std::printf(isRead ? "Read from file failed, error=%d\n"
                           : "Write to file failed, error=%d\n",
                    static_cast<int>(error));
        return 3;
    }

    std::unique_ptr<SK_SystemView> m_system;
};

} // namespace

std::unique_ptr<SK_Platform> SK_CreateNativePlatform()
{
    return std::make_unique<SK_Win32Platform>();
}
