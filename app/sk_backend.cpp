#include "app/sk_backend.h"

#include "driver/driver.h"
#include "emulator/emulator.h"

#include <QtGlobal>

QString SK_BackendName()
{
    const QByteArray chosen = qgetenv("STRATAKEEP_BACKEND");
    if (chosen == "native" || chosen == "emulated")
        return QString::fromLatin1(chosen);
#ifdef Q_OS_WIN
    return QStringLiteral("native");
#else
    return QStringLiteral("emulated");
#endif
}

bool SK_InstallBackend(QString &error)
{
    if (SK_BackendName() == QLatin1String("native")) {
        SK_InstallPlatform(nullptr);
        return true;
    }
    const std::string path = sk_emu::defaultStateFilePath();
    std::string why;
    auto host = sk_emu::Host::openStateFile(path, why);
    if (!host) {
        error = QString::fromStdString(why);
        return false;
    }
    SK_InstallPlatform(std::make_unique<SK_EmulatedPlatform>(host));
    return true;
}
