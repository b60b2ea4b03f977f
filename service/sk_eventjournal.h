#pragma once
// The console's copy of the driver's event log. The driver numbers its entries but
// gives them no time of day, so the journal stamps each event it sees arrive and keeps
// those stamps in "EventsLog.xml" for the next run; events found at start get their
// times from that file. Each new event also becomes a line of the application log.
//
// The log is read by the driver's cursor: the entry after one read is the one the
// driver names next, so a log that has wrapped (its oldest entries dropped) is read
// once, entry by entry, from its oldest.

#include "service/sk_eventrecord.h"
#include "service/sk_eventslogfile.h"

#include <QDateTime>
#include <QString>

#include <functional>
#include <vector>

class SK_RaidApi;

class SK_EventJournal
{
public:
    using Clock = std::function<QDateTime()>;
    // Where "EventsLog.xml" lies; asked again whenever the file has gone.
    using Locate = std::function<QString()>;

    // `appLogPath` is the application log.
    SK_EventJournal(SK_RaidApi &api, Locate locateEventsLog, const QString &appLogPath,
                    Clock clock = &QDateTime::currentDateTime);

    // What one poll found, for the view.
    struct Poll
    {
        std::vector<SK_EventRecord> added; // new rows, in the order the driver gave them
        bool first = false;                // the first poll: times came from the file
        qint32 notifyCode = 0;             // the last insertion or removal event, or 0
        bool wantNotice = false;           // and the notifier program isn't running
    };

    // Reads every entry the driver has past the last one read, in `language`. The
    // first poll takes the times of what it finds from "EventsLog.xml"; later polls
    // stamp what they find with the clock and write it to both files.
    Poll poll(quint32 language);

    // The number the next poll asks the driver for.
    quint32 nextEventNumber() const { return m_next; }
    const std::vector<SK_EventRecord> &records() const { return m_records; }
    // The file of the times, at its place.
    SK_EventsLogFile &eventsLog();

    // The events' time stamp, which the application log's lines share.
    QString timeStamp() const;

private:
    void firstPoll(Poll &poll);
    void livePoll(Poll &poll);
    void appendApplicationLog(const std::vector<SK_EventRecord> &records) const;

    SK_RaidApi &m_api;
    Locate m_locate;
    SK_EventsLogFile m_file;
    QString m_appLogPath;
    Clock m_clock;
    std::vector<SK_EventRecord> m_records;
    quint32 m_next = 3;      // the driver numbers its entries from 3
    quint32 m_firstLive = 3; // entries below this were there before this run
    bool m_firstPoll = true;
};
