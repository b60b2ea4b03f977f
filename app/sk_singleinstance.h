#pragma once
// The process-wide lock that keeps a second copy of the console from running.

#include <QString>

#include <memory>

class SK_SingleInstance
{
public:
    // Takes the named lock. The lock is held until the object is destroyed; the
    // console keeps it for the life of the process.
    explicit SK_SingleInstance(const QString &name);
    ~SK_SingleInstance();

    SK_SingleInstance(const SK_SingleInstance &) = delete;
    SK_SingleInstance &operator=(const SK_SingleInstance &) = delete;

    // True when another holder already had the lock.
    bool alreadyRunning() const { return m_alreadyRunning; }

private:
    struct Private;
    std::unique_ptr<Private> d;
    bool m_alreadyRunning = false;
};
