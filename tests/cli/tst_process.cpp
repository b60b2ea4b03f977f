// The real skcli executable: exit codes, and --follow seeing an event that skemu logs
// into the same emulated host's state file.

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class tst_process : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void exitCodes_data();
    void exitCodes();
    void followSeesWhatSkemuLogs();

private:
    QProcessEnvironment environment() const;
    QTemporaryDir dir;
};

QProcessEnvironment tst_process::environment() const
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("STRATAKEEP_BACKEND"), QStringLiteral("emulated"));
    env.insert(QStringLiteral("STRATAKEEP_EMULATED_HOST"), dir.filePath("host.json"));
    env.insert(QStringLiteral("SKCLI_FOLLOW_INTERVAL_MS"), QStringLiteral("50"));
    return env;
}

void tst_process::init()
{
    QFile::remove(dir.filePath("host.json"));
}

void tst_process::exitCodes_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<int>("status");
    QTest::newRow("help is done") << QStringList{"--help"} << 0;
    QTest::newRow("show is done") << QStringList{"show", "arrays"} << 0;
    QTest::newRow("no verb is usage") << QStringList{} << 2;
    QTest::newRow("a missing array is a failure") << QStringList{"show", "array", "42"} << 1;
    QTest::newRow("delete on a pipe without --yes is refused") << QStringList{"delete", "2"} << 1;
}

void tst_process::exitCodes()
{
    QFETCH(QStringList, args);
    QFETCH(int, status);
    QProcess p;
    p.setProcessEnvironment(environment());
    p.start(QStringLiteral(SKCLI_PATH), args);
    p.closeWriteChannel();
    QVERIFY(p.waitForFinished(30000));
    QCOMPARE(p.exitCode(), status);
    if (status != 0)
        QVERIFY(!p.readAllStandardError().isEmpty());
}

void tst_process::followSeesWhatSkemuLogs()
{
    QProcess follower;
    follower.setProcessEnvironment(environment());
    follower.start(QStringLiteral(SKCLI_PATH), {"events", "--follow", "--json"});
    QVERIFY(follower.waitForStarted());
    // The backlog first, so the event below is one the follower has not yet seen.
    QVERIFY(follower.waitForReadyRead(20000));

    QProcess skemu;
    skemu.setProcessEnvironment(environment());
    skemu.start(QStringLiteral(SKEMU_PATH), {"event", "1014", "77"});
    QVERIFY(skemu.waitForFinished(20000));
    QCOMPARE(skemu.exitCode(), 0);

    QByteArray seen;
    QElapsedTimer timer;
    timer.start();
    while (!seen.contains("Array 77 has been deleted.") && timer.elapsed() < 20000) {
        follower.waitForReadyRead(200);
        seen += follower.readAllStandardOutput();
    }
    follower.kill();
    follower.waitForFinished();
    QVERIFY2(seen.contains("Array 77 has been deleted."), seen.constData());
    QCOMPARE(seen.count("Array 77 has been deleted."), 1);
}

QTEST_GUILESS_MAIN(tst_process)
#include "tst_process.moc"
