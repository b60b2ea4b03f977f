// Without named mutexes, a lock file in the user's runtime folder (or the temporary
// folder) does the job. QLockFile recognises a lock left by a crashed copy as stale.

#include "app/sk_singleinstance.h"

#include <QDir>
#include <QLockFile>
#include <QStandardPaths>

struct SK_SingleInstance::Private
{
    std::unique_ptr<QLockFile> lock;
};

namespace {

QString lockFolder()
{
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return runtime.isEmpty() ? QDir::tempPath() : runtime;
}

} // namespace

SK_SingleInstance::SK_SingleInstance(const QString &name) : d(std::make_unique<Private>())
{
    d->lock = std::make_unique<QLockFile>(QDir(lockFolder()).filePath(name + ".lock"));
    d->lock->setStaleLockTime(0);
    m_alreadyRunning = !d->lock->tryLock(0) && d->lock->error() == QLockFile::LockFailedError;
}

SK_SingleInstance::~SK_SingleInstance() = default;
