// The event journal without a window: "EventsLog.xml" in every state a console running
// for months can leave it in, and the driver's log read by its cursor, wrapped or not,
// against a fresh emulated host.

#include "service_lab.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString kTime = QStringLiteral("11/24/2026 3:45:00 AM  ");

SK_EventRecord record(quint32 number, qint32 code = 1012)
{
    SK_EventRecord r;
    r.number = number;
    r.code = code;
    r.time = kTime;
    r.text = QStringLiteral("- Event %1").arg(number);
    return r;
}

QByteArray fileWith(std::initializer_list<quint32> numbers)
{
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Logs>\n";
    for (quint32 n : numbers)
        xml += "  <LogEntry>\n    <LogNumber>" + QByteArray::number(n) +
               "</LogNumber>\n    <LogTime>" + kTime.toUtf8() +
               "</LogTime>\n    <Code>1012</Code>\n    <Text>- Event</Text>\n  </LogEntry>\n";
    return xml + "</Logs>\n";
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
           file.write(bytes) == bytes.size();
}

QList<quint32> numbersIn(SK_EventsLogFile &file)
{
    std::vector<SK_EventTime> entries;
    QList<quint32> numbers;
    if (!file.readTimes(entries))
        return {0}; // a file that doesn't read
    for (const SK_EventTime &entry : entries)
        numbers << entry.number;
    return numbers;
}

QList<quint32> numbersOf(const std::vector<SK_EventRecord> &records)
{
    QList<quint32> numbers;
    for (const SK_EventRecord &r : records)
        numbers << r.number;
    return numbers;
}

} // namespace

class tst_EventJournal : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void appendKeepsEveryWholeEntry_data();
    void appendKeepsEveryWholeEntry();
    void aStrayLessThanLineIsMended();
    void anAppendCutShortNeverLosesAnEarlierEntry();
    void aHundredThousandEntriesGrowInPlace();

    void theDriverLogIsReadOnceByItsCursor_data();
    void theDriverLogIsReadOnceByItsCursor();
    void timesGivenInOneRunComeBackInTheNext();

private:
    QString eventsPath() const { return m_dir.filePath(QStringLiteral("EventsLog.xml")); }
    QString appLogPath() const { return m_dir.filePath(QStringLiteral("StrataKeep.log")); }

    QTemporaryDir m_dir;
};

void tst_EventJournal::init()
{
    QVERIFY(m_dir.isValid());
    QDir folder(m_dir.path());
    for (const QString &name : folder.entryList(QDir::Files))
        folder.remove(name);
}

void tst_EventJournal::appendKeepsEveryWholeEntry_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QList<quint32>>("after");
    QTest::addColumn<bool>("setAside");

    const QByteArray sound = fileWith({3, 4});
    QTest::newRow("no file yet gets the whole frame") << QByteArray() << QList<quint32>{9} << false;
    QTest::newRow("a sound file grows in place") << sound << QList<quint32>{3, 4, 9} << false;
    QTest::newRow("blanks an editor left after the closing tag")
        << sound + "\n\n  \n"
        << QList<quint32>{3, 4, 9} << false;
    QTest::newRow("cut off inside an entry: the whole one is carried over")
        << sound.left(sound.indexOf("<LogNumber>4")) << QList<quint32>{3, 9} << true;
    QTest::newRow("cut off inside the closing tag")
        << sound.left(sound.size() - 4) << QList<quint32>{3, 4, 9} << true;
    QTest::newRow("another program's file")
        << QByteArray("<html><body/></html>") << QList<quint32>{9} << true;
    QTest::newRow("damaged before a closing tag that looks right")
        << QByteArray("<Other>") + sound.mid(sound.indexOf("  <LogEntry>"))
        << QList<quint32>{3, 4, 9} << true;
}

void tst_EventJournal::appendKeepsEveryWholeEntry()
{
    QFETCH(QByteArray, before);
    QFETCH(QList<quint32>, after);
    QFETCH(bool, setAside);
    if (!before.isNull())
        QVERIFY(write(eventsPath(), before));
    SK_EventsLogFile file(eventsPath());

    QVERIFY2(file.append({record(9)}), qPrintable(file.errorString()));

    QCOMPARE(numbersIn(file), after);
    QCOMPARE(!file.setAsidePath().isEmpty(), setAside);
    if (setAside)
        QCOMPARE(readAll(file.setAsidePath()), before); // kept exactly as it was
}

// An append cut short can leave a line of a lone "<"; the first load drops it.
void tst_EventJournal::aStrayLessThanLineIsMended()
{
    QByteArray damaged = fileWith({3, 4});
    damaged.insert(damaged.indexOf("</Logs>"), "<\n");
    QVERIFY(write(eventsPath(), damaged));
    SK_EventsLogFile file(eventsPath());
    QCOMPARE(numbersIn(file), QList<quint32>{0});
    QVERIFY(file.repair());
    QCOMPARE(numbersIn(file), (QList<quint32>{3, 4}));
    QCOMPARE(readAll(eventsPath()), fileWith({3, 4}));
}

// A crash during an append leaves the file cut anywhere in what the append wrote; the
// next run's append still holds every entry written before it.
void tst_EventJournal::anAppendCutShortNeverLosesAnEarlierEntry()
{
    SK_EventsLogFile writer(eventsPath());
    QVERIFY(writer.append({record(3), record(4), record(5)}));
    const QByteArray before = readAll(eventsPath());
    QVERIFY(writer.append({record(6)}));
    const QByteArray after = readAll(eventsPath());
    const int start = before.indexOf("</Logs>");
    QCOMPARE(after.left(start), before.left(start));

    for (int cut = start; cut <= after.size(); ++cut) {
        QVERIFY(write(eventsPath(), after.left(cut)));
        SK_EventsLogFile nextRun(eventsPath());
        nextRun.repair();
        QVERIFY(nextRun.append({record(7)}));
        const QList<quint32> kept = numbersIn(nextRun);
        QVERIFY2(kept.mid(0, 3) == (QList<quint32>{3, 4, 5}) && kept.back() == 7,
                 qPrintable(QStringLiteral("cut at byte %1 of %2").arg(cut).arg(after.size())));
    }
}

void tst_EventJournal::aHundredThousandEntriesGrowInPlace()
{
    std::vector<SK_EventRecord> many;
    for (quint32 n = 3; n < 100003; ++n)
        many.push_back(record(n));
    SK_EventsLogFile file(eventsPath());
    QVERIFY(file.append(many));
    QVERIFY(file.append({record(100003)}));
    std::vector<SK_EventTime> entries;
    QVERIFY(file.readTimes(entries));
    QCOMPARE(entries.size(), std::size_t(100001));
    QCOMPARE(entries.back().number, 100003u);
    QVERIFY(file.setAsidePath().isEmpty());
}

void tst_EventJournal::theDriverLogIsReadOnceByItsCursor_data()
{
    QTest::addColumn<quint32>("capacity");
    QTest::addColumn<int>("logged"); // events logged beyond the scenario's own

    QTest::newRow("a log that kept everything") << 512u << 5;
    QTest::newRow("a log that dropped its oldest entries") << 8u << 20;
    QTest::newRow("a full log of 65536 entries") << 65536u << 65546;
}

void tst_EventJournal::theDriverLogIsReadOnceByItsCursor()
{
    QFETCH(quint32, capacity);
    QFETCH(int, logged);
    sk_emu::Model model = sk_emu::defaultScenario();
    model.eventCapacity = capacity;
    for (int i = 0; i < logged; ++i)
        model.logEvent(1012);
    QList<quint32> held;
    for (const sk_emu::Event &e : model.events)
        held << e.number;
    Lab f(model);
    SK_EventJournal journal(
        *f.api, [this] { return eventsPath(); }, appLogPath());

    const SK_EventJournal::Poll first = journal.poll(0);

    QVERIFY(first.first);
    QCOMPARE(numbersOf(first.added), held);
    QCOMPARE(journal.nextEventNumber(), held.back() + 1);
    QVERIFY2(journal.poll(0).added.empty(), "nothing is read twice");
}

// The first run stamps what arrives while it runs; the next run shows those times for
// the same events and the unknown time for the rest.
void tst_EventJournal::timesGivenInOneRunComeBackInTheNext()
{
    Lab f;
    const QDateTime now(QDate(2026, 11, 24), QTime(3, 45));
    SK_AppLog::ensureLogFile(m_dir.path(), QStringLiteral("StrataKeep"));
    {
        SK_EventJournal run(
            *f.api, [this] { return eventsPath(); }, appLogPath(), [now] { return now; });
        QVERIFY(run.poll(0).first);
        f.host->injectEvent(1012, {});
        const SK_EventJournal::Poll live = run.poll(0);
        QCOMPARE(live.added.size(), std::size_t(1));
        QCOMPARE(live.added.front().time, kTime);
    }
    SK_EventJournal next(
        *f.api, [this] { return eventsPath(); }, appLogPath());
    const SK_EventJournal::Poll first = next.poll(0);
    QCOMPARE(first.added.back().time, kTime);
    QCOMPARE(first.added.front().time, SK_UnknownEventTime());
    const QByteArray log = readAll(appLogPath());
    // The next run writes the event to the application log with the time it was given.
    QVERIFY(log.endsWith((kTime + QStringLiteral("- Core rescan command received.\n")).toUtf8()));
}

QTEST_GUILESS_MAIN(tst_EventJournal)
#include "tst_eventjournal.moc"
