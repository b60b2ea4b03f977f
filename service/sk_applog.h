#pragma once
// The application log, "StrataKeep.log": one plain text file written by many
// short-lived writers. Each writer opens it, appends and closes it again; there is no
// logger object, no levels and no rotation. When the file can't be opened the work
// goes on and the writer's lines are lost.

#include <QDateTime>
#include <QString>
#include <QStringList>

class QFile;

namespace SK_AppLog {

constexpr const char *FileName = "StrataKeep.log";
// The one installation folder where the log stays beside the program.
constexpr const char *InstallFolder = "C:/Program Files (x86)/StrataKeep";

// Time stamp of log lines: "M/dd/yyyy h:mm:ss AP  ", two blanks included.
QString timeStamp(const QDateTime &when = QDateTime::currentDateTime());

// The folder of the console's files: the program's folder when it is the installation
// folder, else a folder named after the application in the temporary location, made
// when missing.
QString folderFor(const QString &applicationFolder, const QString &applicationName);

// Creates the log in `folder` when it does not exist yet, with its first line, and
// returns its path.
QString ensureLogFile(const QString &folder, const QString &applicationName);

// The process-wide path every writer appends to; empty until the window sets it.
QString filePath();
void setFilePath(const QString &path);

// Which wording a writer's failed open uses.
enum class Writer { Plain, Dismount };

// Opens `path` for appending, shared with other writers. On failure composes the
// "Not Logging!" text for `writer` into `failure` and returns false.
bool open(QFile &file, const QString &path, Writer writer, QString *failure = nullptr);

// Appends each line, with a line end, to `path`; false when the file can't be opened.
bool appendLines(const QString &path, const QStringList &lines, Writer writer = Writer::Plain);

} // namespace SK_AppLog
