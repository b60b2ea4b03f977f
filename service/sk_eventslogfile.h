#pragma once
// "EventsLog.xml": the times the console gave the driver's events when it first saw
// them, kept so the next run can show them again. UTF-8 XML with two-blank indents:
//
//   <Logs>
//     <LogEntry><LogNumber/><LogTime/><Code/><Text/></LogEntry> ... oldest first
//   </Logs>
//
// The file only grows: new entries are written over the closing tag, which follows
// them again, so it never has to be read to be extended.

#include "service/sk_eventrecord.h"

#include <QString>

#include <vector>

// The time a file entry holds for the event of `number` and `code`.
struct SK_EventTime
{
    quint32 number = 0;
    qint32 code = 0;
    QString time;
};

class SK_EventsLogFile
{
public:
    explicit SK_EventsLogFile(const QString &path = QString());

    QString path() const { return m_path; }
    void setPath(const QString &path) { m_path = path; }

    // Appends one entry per record. An absent or empty file gets the whole frame; a
    // file that doesn't end with the closing tag (cut off, or not ours) is kept beside
    // under a name of its own, "<name>.damaged-<date>-<time>.xml", and a new file is
    // started, so nothing it held is written over.
    bool append(const std::vector<SK_EventRecord> &records);

    // Drops the lines that hold only "<", which an append cut short can leave behind;
    // the file is rewritten only when there was such a line.
    bool repair();

    // Every entry's number, code and time, in file order. False, with `entries` left
    // empty, when the file can't be opened or isn't well-formed XML: then no time is
    // known.
    bool readTimes(std::vector<SK_EventTime> &entries) const;

    // Why the last call failed, for the logs; empty after a success.
    QString errorString() const { return m_error; }
    // Where the last damaged file was put; empty when none was.
    QString setAsidePath() const { return m_asidePath; }

private:
    bool fail(const QString &why) const;
    bool setDamagedFileAside();

    QString m_path;
    mutable QString m_error;
    QString m_asidePath;
};
