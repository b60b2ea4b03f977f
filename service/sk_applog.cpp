#include "service/sk_applog.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QMutex>
#include <QStandardPaths>
#include <QTextStream>

#include <cerrno>
#include <cstring>

namespace SK_AppLog {

namespace {

QMutex pathMutex;
QString processPath;

} // namespace

QString timeStamp(const QDateTime &when)
{
    // The C locale: "AM" and "PM" whatever the user's language, so the log reads alike
    // on every machine.
    return QLocale::c().toString(when, QStringLiteral("M/dd/yyyy h:mm:ss AP  "));
}

QString folderFor(const QString &applicationFolder, const QString &applicationName)
{
    if (applicationFolder == QLatin1String(InstallFolder))
        return applicationFolder;
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::TempLocation) +
                           QLatin1Char('/') + applicationName;
    QDir().mkpath(folder);
    return folder;
}

QString ensureLogFile(const QString &folder, const QString &applicationName)
{
    const QString path = folder + QLatin1Char('/') + QLatin1String(FileName);
    if (!QFile::exists(path)) {
        appendLines(path, {QStringLiteral("***Create Log file for ") + applicationName +
                           QStringLiteral(" Start: ") + timeStamp() + QStringLiteral(" ***")});
    }
    return path;
}

QString filePath()
{
    QMutexLocker lock(&pathMutex);
    return processPath;
}

void setFilePath(const QString &path)
{
    QMutexLocker lock(&pathMutex);
    processPath = path;
}

bool open(QFile &file, const QString &path, Writer writer, QString *failure)
{
    file.setFileName(path);
    if (!path.isEmpty() && file.open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::Text))
        return true;
    if (failure) {
        const int error = path.isEmpty() ? ENOENT : errno;
        *failure = QStringLiteral("StrataKeep Log: Unable to open StrataKeep.log file") +
                   (writer == Writer::Dismount ? QStringLiteral(" - LockAndDismountvolume(")
                                               : QStringLiteral("(")) +
                   QString::fromLocal8Bit(std::strerror(error)) + QStringLiteral(") ") + path +
                   QStringLiteral(" Not Logging!");
    }
    return false;
}

bool appendLines(const QString &path, const QStringList &lines, Writer writer)
{
    QFile file;
    if (!open(file, path, writer))
        return false;
    // One flush for the whole batch: a start with a full driver log writes tens of
    // thousands of lines at once, and a flush each would make a write each.
    QTextStream out(&file);
    for (const QString &line : lines)
        out << line << '\n';
    out.flush();
    return out.status() == QTextStream::Ok;
}

} // namespace SK_AppLog
