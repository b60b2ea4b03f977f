#pragma once
// The console's settings, logs and event files, kept in a folder of the tool's own so a
// run of the tools never reads or touches the user's.

#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QStandardPaths>
#include <QString>

inline void keepConsoleFilesIn(const QString &folder)
{
    qputenv("TMPDIR", QFile::encodeName(folder));
    QStandardPaths::setTestModeEnabled(true);
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
    QCoreApplication::setApplicationName(QStringLiteral("StrataKeep"));
    QCoreApplication::setOrganizationName(QStringLiteral("VOR"));
}
