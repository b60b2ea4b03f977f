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

#include <QDateTime>
#include <QString>

#include <vector>

class QFile;

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
    void setPath(const QString &path);

    // Appends one entry per record. An absent or empty file gets the whole frame. A
    // file that isn't a sound one of ours (cut off by a crash, damaged by hand, another
    // program's) is kept beside, unchanged, as "<name>.damaged-<date>-<time>.xml", and a
    // new file is started with the entries of it that were still whole, then the new
    // ones. The file is read through once before this object first extends it.
    bool append(const std::vector<SK_EventRecord> &records);

    // Drops the lines that hold only "<", which an append cut short can leave behind;
    // the file is rewritten only when there was such a line.
    bool repair();

    enum class Reading {
        WholeFile, // a file damaged anywhere gives nothing
        UpToFault, // the whole entries before the first fault
    };
    // Every entry's number, code and time, in file order. False, with `entries` left
    // empty, when the file can't be opened, or, read as a whole file, isn't
    // well-formed XML: then no time is known.
    bool readTimes(std::vector<SK_EventTime> &entries, Reading reading = Reading::WholeFile);

    // Why the last call failed, for the logs; empty after a success.
    QString errorString() const { return m_error; }
    // Where the last damaged file was put; empty when none was.
    QString setAsidePath() const { return m_asidePath; }

private:
    // The size and time of the file when this object last saw it whole and sound.
    struct Known
    {
        qint64 size = -1;
        QDateTime modified;
        bool valid() const { return size >= 0; }
        bool operator==(const Known &other) const
        {
            return size == other.size && modified == other.modified;
        }
    };
    static Known stateOf(const QFile &file);
    bool fail(const QString &why) const;
    bool setDamagedFileAside();

    QString m_path;
    mutable QString m_error;
    QString m_asidePath;
    Known m_known;
};
