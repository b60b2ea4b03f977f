#include "service/sk_eventjournal.h"

#include "service/sk_applog.h"
#include "service/sk_raidapi.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QPair>

#include <limits>

namespace {

constexpr quint32 kValidEntry = 53;

bool isInsertOrRemove(qint32 code)
{
    return code == 1038 || code == 1039 || code == 1042 || code == 1043;
}

using EventKey = QPair<quint32, qint32>; // number and code: how a file entry finds its event

} // namespace

SK_EventJournal::SK_EventJournal(SK_RaidApi &api, Locate locateEventsLog, const QString &appLogPath,
                                 Clock clock)
    : m_api(api), m_locate(std::move(locateEventsLog)), m_appLogPath(appLogPath),
      m_clock(std::move(clock))
{
    m_file.setPath(m_locate());
}

QString SK_EventJournal::timeStamp() const
{
    return SK_AppLog::timeStamp(m_clock());
}

// A file that has gone is looked for anew: finding its place makes the folder again.
SK_EventsLogFile &SK_EventJournal::eventsLog()
{
    if (!QFile::exists(m_file.path()))
        m_file.setPath(m_locate());
    return m_file;
}

SK_EventJournal::Poll SK_EventJournal::poll(quint32 language)
{
    Poll poll;
    poll.first = m_firstPoll;
    for (;;) {
        const SK_EventMessage message = m_api.GetEventMessage(m_next, language);
        // The driver answers with the oldest entry at or past the number asked; one
        // before it would mean a driver that went back, and is not read twice.
        if (message.status != kValidEntry || message.number < m_next)
            break;
        SK_EventRecord record;
        record.number = message.number;
        record.code = message.code;
        record.priority = message.priority;
        record.text = message.text;
        record.status = static_cast<qint32>(message.status);
        if (m_firstPoll || record.number < m_firstLive) {
            record.time = SK_UnknownEventTime();
        } else {
            record.time = timeStamp();
            if (isInsertOrRemove(record.code)) {
                poll.notifyCode = record.code;
                // When the notifier program runs, it does the telling.
                if (!m_api.IsProcessRunning(QStringLiteral("skpopup.exe")))
                    poll.wantNotice = true;
            }
        }
        poll.added.push_back(record);
        m_records.push_back(record);
        if (record.number == std::numeric_limits<quint32>::max())
            break; // no number follows the last one
        m_next = record.number + 1;
    }
    if (m_firstPoll)
        firstPoll(poll);
    else
        livePoll(poll);
    m_firstPoll = false;
    return poll;
}

// New events go to the application log and to "EventsLog.xml" with their times.
void SK_EventJournal::livePoll(Poll &poll)
{
    if (poll.added.empty())
        return;
    appendApplicationLog(poll.added);
    eventsLog().append(poll.added);
}

// The events found at start take their times from "EventsLog.xml": each entry of the
// file gives its time to the first event of its number and code. The developer dump
// and every event then go to the application log.
void SK_EventJournal::firstPoll(Poll &poll)
{
    m_firstLive = m_next;
    SK_EventsLogFile &file = eventsLog();
    file.repair();
    std::vector<SK_EventTime> entries;
    file.readTimes(entries);

    QHash<EventKey, std::size_t> firstOf;
    firstOf.reserve(static_cast<int>(m_records.size()));
    // Walked from the back, so each key keeps the index of its first event.
    for (std::size_t i = m_records.size(); i-- > 0;)
        firstOf.insert(EventKey(m_records[i].number, m_records[i].code), i);
    for (const SK_EventTime &entry : entries) {
        const auto found = firstOf.constFind(EventKey(entry.number, entry.code));
        if (found != firstOf.constEnd())
            m_records[*found].time = entry.time;
    }
    // A row shows the time of the first event of its number and code.
    for (std::size_t i = 0; i < m_records.size(); ++i) {
        const std::size_t first = firstOf.value(EventKey(m_records[i].number, m_records[i].code));
        poll.added[i].time = m_records[i].time = m_records[first].time;
    }

    if (!m_records.empty()) {
        m_api.WriteDeveloperDump(m_appLogPath);
        appendApplicationLog(m_records);
    }
}

// One line per event: its time (or now, for an event from before this run) followed
// directly by its text. A log that doesn't exist is made, and these lines are dropped.
void SK_EventJournal::appendApplicationLog(const std::vector<SK_EventRecord> &records) const
{
    if (!QFile::exists(m_appLogPath)) {
        SK_AppLog::ensureLogFile(QFileInfo(m_appLogPath).absolutePath(),
                                 QCoreApplication::applicationName());
        return;
    }
    const QString now = timeStamp();
    QStringList lines;
    lines.reserve(static_cast<int>(records.size()));
    for (const SK_EventRecord &record : records)
        lines.append((record.time == SK_UnknownEventTime() ? now : record.time) + record.text);
    SK_AppLog::appendLines(m_appLogPath, lines);
}
