#pragma once
// Tracked allocation, the library lock, device path grammar and device transfers:
// the thin layer every driver exchange goes through.

#include "driver/sk_platform.h"

#include <cstdio>
#include <string>

// Size of the allocation tracker. Reaching it is a programming error and fatal.
constexpr std::uint32_t SKTL_MAX_ALLOCATIONS = 20000;

// The one recursive library lock. It guards every command and the allocation
// tracker; command functions release it around their sleeps.
void SKTL_Lock();
void SKTL_Unlock();

// Scope guard for SKTL_Lock/SKTL_Unlock.
class SKTL_LockGuard
{
public:
    SKTL_LockGuard() { SKTL_Lock(); }
    ~SKTL_LockGuard() { SKTL_Unlock(); }
    SKTL_LockGuard(const SKTL_LockGuard &) = delete;
    SKTL_LockGuard &operator=(const SKTL_LockGuard &) = delete;
};

// Allocates `size` bytes and records the block with `tag` (a string that outlives the
// block, normally a literal naming the operation). Returns null when memory is short.
// A 20001st live block aborts the process.
void *SKTL_Alloc(std::size_t size, const char *tag);

// Frees a block from SKTL_Alloc. Returns 1, or 5 (SK_STS_SPACE_NOT_ALLOCATED) for an
// address that is not a tracked block, which is then left alone.
std::uint32_t SKTL_Free(void *block);

// 1 when [address, address + length) lies inside one tracked block, else 0.
std::uint32_t SKTL_CheckRange(const void *address, std::size_t length);

// Number of live tracked blocks.
std::uint32_t SKTL_AllocationCount();

// Prints every live block: a heading, then "%p:%d from %s" for each.
void SKTL_ReportAllocations(std::FILE *out = stdout);

// Rounds a tracked allocation up to the 4096-byte boundary unbuffered transfers need.
inline void *SKTL_Align4096(void *allocation)
{
    auto address = reinterpret_cast<std::uintptr_t>(allocation);
    return reinterpret_cast<void *>((address + 4095) & ~static_cast<std::uintptr_t>(4095));
}

// Device path grammar. A path that doesn't start with "//" is used as it is.
// Otherwise "//bus/core/route/device" (separated by '/' or ','; each number starts
// at the token's first digit) names "\\.\Device<route>_<device>" when device is not
// 0, and the control device "\\.\SKConfig<core - 1>" when it is. Returns false for
// core 0, which names nothing.
bool SKTL_TranslatePath(const char *path, std::string &osName);

// Opens a device path. openMode 1..8 picks creation and sharing (odd: exclusive, even:
// shared read and write; 1-2 create new, 3-4 create always, 5-6 open existing,
// 7-8 open always); flagMode 1 overlapped, 2 plus write-through, 3 plus no system
// buffering. Returns the handle, or 0.
SK_Handle SKTL_DeviceOpen(const char *path, std::uint32_t openMode, std::uint32_t flagMode);
void SKTL_DeviceClose(SK_Handle handle);

// The system error of this thread's last failed device call (GetLastError on Windows),
// for messages that print it; read it straight after the call that failed.
std::uint32_t SKTL_LastError();

// Reads or writes `size` bytes at `position`. The buffer must lie inside one tracked
// block, else 6 (SKTL_STS_INVALID_BUFFER) and nothing is sent. Returns 1 (done),
// 2 (end of file) or 3 (failed or refused). With a callback, returns 1 once queued.
std::uint32_t SKTL_DeviceTransfer(bool isRead, SK_Handle handle, void *buffer,
                                  std::uint64_t position, std::uint32_t size, void *context,
                                  SKTL_Callback callback);

// One device control request on an open handle; false with the system error on failure.
bool SKTL_DeviceControl(SK_Handle handle, std::uint32_t controlCode, void *in, std::uint32_t inSize,
                        void *out, std::uint32_t outSize, std::uint32_t &error);

// Alertable sleep through the platform.
void SKTL_Sleep(std::uint32_t milliseconds);

// Scope owner of a tracked allocation with its 4096-aligned working area, the buffer
// pattern of every driver request: allocate size + 4096, align, clear `size` bytes.
class SKTL_AlignedBuffer
{
public:
    SKTL_AlignedBuffer(std::size_t size, const char *tag);
    ~SKTL_AlignedBuffer();
    SKTL_AlignedBuffer(const SKTL_AlignedBuffer &) = delete;
    SKTL_AlignedBuffer &operator=(const SKTL_AlignedBuffer &) = delete;

    bool ok() const { return m_allocation != nullptr; }
    std::uint8_t *data() const { return m_aligned; }
    std::size_t size() const { return m_size; }

private:
    void *m_allocation = nullptr;
    std::uint8_t *m_aligned = nullptr;
    std::size_t m_size = 0;
};
