// A named mutex, as every Windows program that must run once does. The handle is
// never closed: the mutex lives exactly as long as the process.

#include "app/sk_singleinstance.h"

#include <windows.h>

struct SK_SingleInstance::Private
{
    HANDLE mutex = nullptr;
};

SK_SingleInstance::SK_SingleInstance(const QString &name) : d(std::make_unique<Private>())
{
    d->mutex = CreateMutexA(nullptr, TRUE, name.toLocal8Bit().constData());
    m_alreadyRunning = GetLastError() == ERROR_ALREADY_EXISTS;
}

SK_SingleInstance::~SK_SingleInstance() = default;
