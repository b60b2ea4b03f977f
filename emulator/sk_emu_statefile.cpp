#include "emulator/sk_emu_statefile.h"

#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <thread>

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace sk_emu {

namespace fs = std::filesystem;

StateFileLock::StateFileLock(const std::string &statePath)
{
    const std::string lockPath = statePath + ".lock";
    std::error_code ec;
    if (const fs::path parent = fs::path(statePath).parent_path(); !parent.empty())
        fs::create_directories(parent, ec);
#ifdef _WIN32
    // Share everything: the lock is the byte range, not the open handle.
    HANDLE handle = CreateFileA(lockPath.c_str(), GENERIC_READ | GENERIC_WRITE,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        m_error = lockPath + ": cannot be opened (error " + std::to_string(GetLastError()) + ")";
        return;
    }
    OVERLAPPED whole{};
    if (!LockFileEx(handle, LOCKFILE_EXCLUSIVE_LOCK, 0, MAXDWORD, MAXDWORD, &whole)) {
        m_error = lockPath + ": cannot be locked (error " + std::to_string(GetLastError()) + ")";
        CloseHandle(handle);
        return;
    }
    m_handle = handle;
    m_held = true;
#else
    // flock, not fcntl: its lock belongs to the open file, so two hosts inside one
    // process exclude each other as two processes do.
    const int fd = ::open(lockPath.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (fd < 0) {
        m_error = lockPath + ": cannot be opened (" + std::strerror(errno) + ")";
        return;
    }
    int rc = 0;
    do {
        rc = ::flock(fd, LOCK_EX);
    } while (rc != 0 && errno == EINTR);
    if (rc != 0) {
        m_error = lockPath + ": cannot be locked (" + std::strerror(errno) + ")";
        ::close(fd);
        return;
    }
    m_fd = fd;
    m_held = true;
#endif
}

StateFileLock::~StateFileLock()
{
#ifdef _WIN32
    if (m_handle) {
        OVERLAPPED whole{};
        UnlockFileEx(static_cast<HANDLE>(m_handle), 0, MAXDWORD, MAXDWORD, &whole);
        CloseHandle(static_cast<HANDLE>(m_handle));
    }
#else
    if (m_fd >= 0)
        ::close(m_fd); // closing the last descriptor drops the lock
#endif
}

namespace {

// Whether the state file, or the temporary file that is about to replace it, exists:
// then a failed open is worth another try.
bool fileExistsOrIsBeingReplaced(const std::string &path)
{
    std::error_code ignored;
    return std::filesystem::exists(path, ignored) ||
           std::filesystem::exists(path + ".tmp", ignored);
}

} // namespace

bool readStateText(const std::string &path, std::string &text, std::string &error)
{
    // On Windows a file being replaced by another process can refuse to open for a
    // moment (a sharing violation while the rename completes); a short retry rides
    // that out. Elsewhere the rename is atomic and the first attempt decides.
    std::ifstream in(path, std::ios::binary);
    for (int attempt = 0; !in && attempt < 50 && fileExistsOrIsBeingReplaced(path); ++attempt) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
        in.clear();
        in.open(path, std::ios::binary);
    }
    if (!in) {
        error = path + ": cannot be opened for reading";
        return false;
    }
    // A state file is a few hundred kilobytes at most; refuse anything absurd.
    constexpr std::streamoff kMaxSize = 64 << 20;
    in.seekg(0, std::ios::end);
    const std::streamoff size = in.tellg();
    in.seekg(0);
    if (size < 0 || size > kMaxSize) {
        error = path + ": is too large to be a state file";
        return false;
    }
    text.assign(static_cast<std::size_t>(size), '\0');
    in.read(text.data(), size);
    if (in.gcount() != size) {
        error = path + ": reading failed";
        return false;
    }
    return true;
}

bool writeStateTextAtomically(const std::string &path, const std::string &text, std::string &error)
{
    std::error_code ec;
    const fs::path target(path);
    if (target.has_parent_path())
        fs::create_directories(target.parent_path(), ec);
    const fs::path temporary = target.string() + ".tmp";
    {
        std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
        if (!out) {
            error = temporary.string() + ": cannot be written";
            return false;
        }
        out << text;
        out.flush();
        if (!out) {
            error = temporary.string() + ": writing failed";
            out.close();
            fs::remove(temporary, ec);
            return false;
        }
    }
    fs::rename(temporary, target, ec);
#ifdef _WIN32
    // Windows refuses to replace a file that another process has open for reading (a
    // console or skemu looking at the state without the lock); such a reader lets go
    // within moments, so the replacement is tried again rather than the change lost.
    for (int attempt = 0; ec && attempt < 100; ++attempt) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
        ec.clear();
        fs::rename(temporary, target, ec);
    }
#endif
    if (ec) {
        error = path + ": cannot be replaced (" + ec.message() + ")";
        fs::remove(temporary, ec);
        return false;
    }
    return true;
}

} // namespace sk_emu
