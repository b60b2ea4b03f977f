#pragma once
// The state file on disk, shared by the console and skemu: an advisory lock that
// makes each read-modify-write one step, and the raw text of the file.

#include <string>

namespace sk_emu {

// Holds "<state>.lock" beside the state file exclusively while it lives; another
// process (or another host in this one) waits for it. The lock file itself stays: it
// only ever carries the lock, never data, so removing it would only open a race.
class StateFileLock
{
public:
    explicit StateFileLock(const std::string &statePath);
    ~StateFileLock();
    StateFileLock(const StateFileLock &) = delete;
    StateFileLock &operator=(const StateFileLock &) = delete;

    // False when the lock file could not be opened or locked; the caller goes on
    // unlocked, as it did before there was a lock, and `error()` says why.
    bool held() const { return m_held; }
    const std::string &error() const { return m_error; }

private:
    bool m_held = false;
    std::string m_error;
#ifdef _WIN32
    void *m_handle = nullptr;
#else
    int m_fd = -1;
#endif
};

// The whole file as it is; false with `error` naming the file when it cannot be read.
bool readStateText(const std::string &path, std::string &text, std::string &error);

// Replaces the file with `text` through "<path>.tmp" and a rename, so a reader sees
// the old text or the new one, never a mixture.
bool writeStateTextAtomically(const std::string &path, const std::string &text, std::string &error);

} // namespace sk_emu
