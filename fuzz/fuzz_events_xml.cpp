// "EventsLog.xml" is read back on every start, whatever became of it in between: cut
// off by a crash, mended by hand, replaced by another program. Loading, mending and
// appending must end cleanly on any bytes, and an append must keep every entry the file
// still held whole.

#include "service/sk_eventslogfile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>

#include <cstdlib>

namespace {

// How often each number and code stands in the file, read leniently: the whole entries
// of a damaged file count too, since an append carries them over.
QMap<QPair<quint32, qint32>, int> wholeEntries(const QString &path)
{
    SK_EventsLogFile file(path);
    std::vector<SK_EventTime> entries;
    QMap<QPair<quint32, qint32>, int> count;
    if (!file.readTimes(entries, SK_EventsLogFile::Reading::UpToFault))
        return count;
    for (const SK_EventTime &entry : entries)
        ++count[qMakePair(entry.number, entry.code)];
    return count;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QString path = QDir::temp().filePath(
        QStringLiteral("fuzz_events_xml-%1/EventsLog.xml").arg(QCoreApplication::applicationPid()));
    QDir().mkpath(QFileInfo(path).absolutePath());
    QDir folder = QFileInfo(path).dir();
    for (const QString &name : folder.entryList(QDir::Files))
        folder.remove(name); // files a damaged input was set aside as
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            return 0;
        file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size));
    }
    SK_EventsLogFile file(path);
    file.repair();
    auto before = wholeEntries(path);
    SK_EventRecord added;
    added.number = 0xFFFFFFFFu;
    added.code = 1012;
    added.time = QStringLiteral("11/24/2026 3:45:00 AM  ");
    added.text = QStringLiteral("- Rescan received");
    if (!file.append({added}))
        return 0;
    ++before[qMakePair(added.number, added.code)];
    std::vector<SK_EventTime> after;
    if (!file.readTimes(after) || wholeEntries(path) != before)
        std::abort(); // an append lost a whole entry or left a file that doesn't read
    return 0;
}
