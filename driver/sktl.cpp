#include "driver/sktl.h"

#include "driver/sk_status.h"

#include <cstdlib>
#include <mutex>

namespace {

struct TrackedBlock
{
    void *address;
    std::size_t size;
    const char *tag;
};

// Lives for the whole process and is never destroyed, so blocks freed by static
// destructors of other units still find it.
struct Tracker
{
    std::recursive_mutex lock;
    TrackedBlock blocks[SKTL_MAX_ALLOCATIONS];
    std::uint32_t count = 0;
};

Tracker &tracker()
{
    static Tracker *instance = new Tracker;
    return *instance;
}

// Parses the decimal number that starts at the token's first digit; 0 when the token
// has no digit. Saturates instead of overflowing on absurdly long digit runs.
std::uint32_t numberInToken(const std::string &token)
{
    std::size_t i = token.find_first_of("0123456789");
    if (i == std::string::npos)
        return 0;
    std::uint64_t value = 0;
    for (; i < token.size() && token[i] >= '0' && token[i] <= '9'; ++i) {
        value = value * 10 + static_cast<std::uint64_t>(token[i] - '0');
        if (value > 0xFFFFFFFFu)
            return 0xFFFFFFFFu;
    }
    return static_cast<std::uint32_t>(value);
}

} // namespace

void SKTL_Lock()
{
    tracker().lock.lock();
}

void SKTL_Unlock()
{
    tracker().lock.unlock();
}

void *SKTL_Alloc(std::size_t size, const char *tag)
{
    SKTL_LockGuard guard;
    Tracker &t = tracker();
    if (t.count >= SKTL_MAX_ALLOCATIONS) {
        // A leak this large is a programming error; stop before memory runs out.
        std::fflush(stdout);
        std::fprintf(stderr, "SKTL_Alloc: allocation table full (%u blocks), from %s\n",
                     SKTL_MAX_ALLOCATIONS, tag ? tag : "?");
        std::abort();
    }
    void *block = std::malloc(size ? size : 1);
    if (!block)
        return nullptr;
    t.blocks[t.count++] = TrackedBlock{block, size, tag ? tag : ""};
    return block;
}

std::uint32_t SKTL_Free(void *block)
{
    SKTL_LockGuard guard;
    Tracker &t = tracker();
    for (std::uint32_t i = 0; i < t.count; ++i) {
        if (t.blocks[i].address == block) {
            std::free(block);
            t.blocks[i] = t.blocks[--t.count];
            return SK_STS_SUCCESS;
        }
    }
    return SK_STS_SPACE_NOT_ALLOCATED;
}

std::uint32_t SKTL_CheckRange(const void *address, std::size_t length)
{
    SKTL_LockGuard guard;
    const Tracker &t = tracker();
    const auto start = reinterpret_cast<std::uintptr_t>(address);
    for (std::uint32_t i = 0; i < t.count; ++i) {
        const auto blockStart = reinterpret_cast<std::uintptr_t>(t.blocks[i].address);
        const std::size_t blockSize = t.blocks[i].size;
        if (start >= blockStart && start - blockStart <= blockSize &&
            length <= blockSize - (start - blockStart))
            return 1;
    }
    return 0;
}

std::uint32_t SKTL_AllocationCount()
{
    SKTL_LockGuard guard;
    return tracker().count;
}

void SKTL_ReportAllocations(std::FILE *out)
{
    SKTL_LockGuard guard;
    const Tracker &t = tracker();
    std::fprintf(out, "\n\n***** SKTL_Alloc() allocations\n");
    for (std::uint32_t i = 0; i < t.count; ++i)
        std::fprintf(out, "%p:%d from %s\n", t.blocks[i].address,
                     static_cast<int>(t.blocks[i].size), t.blocks[i].tag);
}

bool SKTL_TranslatePath(const char *path, std::string &osName)
{
    osName.clear();
    if (!path)
        return false;
    const std::string text(path);
    if (text.compare(0, 2, "//") != 0) {
        osName = text;
        return true;
    }

    // Tokens are the non-empty runs between separators: bus, core, route, device.
    std::string tokens[4];
    int found = 0;
    std::size_t pos = 0;
    while (found < 4 && pos < text.size()) {
        const std::size_t start = text.find_first_not_of("/,", pos);
        if (start == std::string::npos)
            break;
        const std::size_t end = text.find_first_of("/,", start);
        tokens[found++] = text.substr(start, end == std::string::npos ? end : end - start);
        pos = end == std::string::npos ? text.size() : end;
    }
    const std::uint32_t core = numberInToken(tokens[1]);
    const std::uint32_t route = numberInToken(tokens[2]);
    const std::uint32_t device = numberInToken(tokens[3]);

    char name[64];
    if (device != 0) {
        std::snprintf(name, sizeof name, "%s%u_%u", "\\\\.\\Device", route, device);
    } else {
        if (core == 0)
            return false;
        std::snprintf(name, sizeof name, "\\\\.\\SKConfig%u", core - 1);
    }
    osName = name;
    return true;
}

SK_Handle SKTL_DeviceOpen(const char *path, std::uint32_t openMode, std::uint32_t flagMode)
{
    std::string osName;
    if (!SKTL_TranslatePath(path, osName))
        return 0;
    return SK_CurrentPlatform().openDevice(osName.c_str(), openMode, flagMode);
}

void SKTL_DeviceClose(SK_Handle handle)
{
    if (handle)
        SK_CurrentPlatform().closeDevice(handle);
}

std::uint32_t SKTL_LastError()
{
    return SK_CurrentPlatform().lastError();
}

std::uint32_t SKTL_DeviceTransfer(bool isRead, SK_Handle handle, void *buffer,
                                  std::uint64_t position, std::uint32_t size, void *context,
                                  SKTL_Callback callback)
{
    if (!SKTL_CheckRange(buffer, size))
        return SKTL_STS_INVALID_BUFFER;
    return SK_CurrentPlatform().transfer(isRead, handle, buffer, position, size, context, callback);
}

bool SKTL_DeviceControl(SK_Handle handle, std::uint32_t controlCode, void *in, std::uint32_t inSize,
                        void *out, std::uint32_t outSize, std::uint32_t &error)
{
    return SK_CurrentPlatform().deviceControl(handle, controlCode, in, inSize, out, outSize, error);
}

void SKTL_Sleep(std::uint32_t milliseconds)
{
    SK_CurrentPlatform().sleep(milliseconds);
}

SKTL_AlignedBuffer::SKTL_AlignedBuffer(std::size_t size, const char *tag)
    : m_allocation(SKTL_Alloc(size + 4096, tag)), m_size(size)
{
    if (!m_allocation)
        return;
    m_aligned = static_cast<std::uint8_t *>(SKTL_Align4096(m_allocation));
    std::memset(m_aligned, 0, size);
}

SKTL_AlignedBuffer::~SKTL_AlignedBuffer()
{
    if (m_allocation)
        SKTL_Free(m_allocation);
}
