// skcli metrics through promtool: the exposition passes its checker, and the alert rules
// of docs/monitoring fire on series taken from the emulated host's faults and stay quiet
// on the default host. promtool is part of the test packages; without it these fail.

#include "cli_lab.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <map>

namespace {

using namespace sk_emu;
using Fault = std::function<void(Host &)>;

// Each alert of the rules file with the metric and value its expression looks for.
struct Rule
{
    const char *alert, *metric, *value, *severity, *summary;
};
const Rule kRules[] = {
    {"SkArrayNotNormal", "skcli_array_normal", "0", "critical", "A RAID array is not NORMAL"},
    {"SkDiskFailed", "skcli_disk_online", "0", "critical",
     "A disk of the RAID stack failed or is gone"},
    {"SkSmartThresholdCrossed", "skcli_disk_smart_error", "1", "warning",
     "A disk reports a SMART threshold crossed"},
    {"SkDriversDown", "skcli_up", "0", "critical", "skcli could not reach the RAID drivers"},
    {"SkTaskStalled", "skcli_task_active", "1", "warning",
     "An array task has made no progress for an hour"},
};
// A stalled task fires only after its progress stood still for the rule's window and
// hold; every other rule is judged earlier, when a task that merely runs is no fault.
const QString kStalledAlert = QStringLiteral("SkTaskStalled");

QString promtool()
{
    return QStandardPaths::findExecutable(QStringLiteral("promtool"));
}

QString quoted(QString text)
{
    return QLatin1Char('\'') + text.replace(QLatin1Char('\''), QStringLiteral("''")) +
           QLatin1Char('\'');
}

QString labelsYaml(const QString &series, const char *severity)
{
    static const QRegularExpression label(QStringLiteral("(\\w+)=\"((?:[^\"\\\\]|\\\\.)*)\""));
    QString out = QStringLiteral("{severity: ") + quoted(QString::fromLatin1(severity));
    for (auto it = label.globalMatch(series); it.hasNext();) {
        const auto m = it.next();
        out += QStringLiteral(", ") + m.captured(1) + QStringLiteral(": ") + quoted(m.captured(2));
    }
    return out + QLatin1Char('}');
}

QString metricsOf(const Fault &fault)
{
    CliLab lab;
    if (fault)
        fault(*lab.host);
    const CliRun r = lab.run({"metrics"});
    return r.status == 0 ? r.out : QString();
}

std::uint64_t dataMember(const Host &host)
{
    return host.model().arrays.at(1).layout.members.at(0).disk;
}

int runPromtool(const QStringList &args, const QByteArray &input, QString &output)
{
    QProcess p;
    p.setProcessChannelMode(QProcess::MergedChannels);
    p.start(promtool(), args);
    p.write(input);
    p.closeWriteChannel();
    if (!p.waitForFinished(60000))
        return -1;
    output = QString::fromLocal8Bit(p.readAll());
    return p.exitCode();
}

} // namespace

Q_DECLARE_METATYPE(Fault)

class tst_monitoring : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void metricsPassPromtool_data() { faults(); }
    void metricsPassPromtool();
    void rulesFireOnFaults_data() { faults(); }
    void rulesFireOnFaults();
    void outputFileIsReplacedWhole();

private:
    void faults();
};

void tst_monitoring::initTestCase()
{
    QVERIFY2(!promtool().isEmpty(), "promtool is missing: install Debian's prometheus package "
                                    "(scripts/bootstrap.sh deps does)");
}

void tst_monitoring::faults()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<QStringList>("alerts");
    QTest::newRow("the default host is quiet") << Fault() << QStringList();
    QTest::newRow("a failed member disk degrades its array")
        << Fault([](Host &h) { h.failDisk(dataMember(h)); })
        << QStringList{"SkArrayNotNormal", "SkDiskFailed"};
    QTest::newRow("a critical array alone") << Fault([](Host &h) {
        h.modify([](Model &m) {
            m.arrays.at(1).state = code::ArrayCritical;
            return true;
        });
    }) << QStringList{"SkArrayNotNormal"};
    QTest::newRow("a check that makes no progress") << Fault([](Host &h) {
        h.modify([](Model &m) {
            m.arrays.at(1).task = Task{code::TaskCheck, code::TaskStarted, 25000};
            return true;
        });
    }) << QStringList{"SkTaskStalled"};
    QTest::newRow("a SMART threshold crossed")
        << Fault([](Host &h) { h.setSmartError(dataMember(h), true); })
        << QStringList{"SkSmartThresholdCrossed"};
}

void tst_monitoring::metricsPassPromtool()
{
    QFETCH(Fault, fault);
    const QString metrics = metricsOf(fault);
    QVERIFY(metrics.contains("skcli_up 1"));
    QString output;
    const int status = runPromtool({"check", "metrics"}, metrics.toUtf8(), output);
    QVERIFY2(status == 0, qPrintable(output + metrics));
}

void tst_monitoring::rulesFireOnFaults()
{
    QFETCH(Fault, fault);
    QFETCH(QStringList, alerts);
    const QString metrics = metricsOf(fault);
    QVERIFY(!metrics.isEmpty());

    // Every sample becomes a series that keeps its value for the whole test.
    QString yaml = QStringLiteral("rule_files:\n  - ") +
                   quoted(QStringLiteral(SK_MONITORING_DIR "/skcli-alerts.yml")) +
                   QStringLiteral("\nevaluation_interval: 1m\ntests:\n  - interval: 1m\n"
                                  "    input_series:\n");
    std::map<QString, QStringList> samples; // metric name -> "series value" lines
    for (const QString &line : metrics.split('\n', Qt::SkipEmptyParts)) {
        if (line.startsWith('#'))
            continue;
        const int blank = line.lastIndexOf(' ');
        const QString series = line.left(blank);
        yaml += QStringLiteral("      - series: ") + quoted(series) +
                QStringLiteral("\n        values: '") + line.mid(blank + 1) +
                QStringLiteral("+0x80'\n");
        samples[series.section('{', 0, 0)] << line;
    }
    yaml += QStringLiteral("    alert_rule_test:\n");
    int firing = 0;
    for (const Rule &rule : kRules) {
        const bool late = alerts.contains(kStalledAlert) && rule.alert == kStalledAlert;
        yaml += QStringLiteral("      - eval_time: ") +
                (late ? QStringLiteral("70m") : QStringLiteral("10m")) +
                QStringLiteral("\n        alertname: ") + QLatin1String(rule.alert) +
                QStringLiteral("\n        exp_alerts:");
        QString expected;
        if (alerts.contains(QLatin1String(rule.alert))) {
            for (const QString &line : samples[QLatin1String(rule.metric)]) {
                if (line.section(' ', -1) != QLatin1String(rule.value))
                    continue;
                ++firing;
                expected += QStringLiteral("\n          - exp_labels: ") +
                            labelsYaml(line.section(' ', 0, -2), rule.severity) +
                            QStringLiteral("\n            exp_annotations: {summary: ") +
                            quoted(QLatin1String(rule.summary)) + QLatin1Char('}');
            }
        }
        yaml += expected.isEmpty() ? QStringLiteral(" []\n") : expected + QLatin1Char('\n');
    }
    QCOMPARE(firing >= alerts.size(), true);

    QTemporaryDir dir;
    const QString testFile = dir.filePath(QStringLiteral("alerts.test.yml"));
    QFile file(testFile);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(yaml.toUtf8());
    file.close();
    QString output;
    const int status = runPromtool({"test", "rules", testFile}, QByteArray(), output);
    QVERIFY2(status == 0, qPrintable(output + yaml));
}

void tst_monitoring::outputFileIsReplacedWhole()
{
    CliLab lab;
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("skcli.prom"));
    QFile old(path);
    QVERIFY(old.open(QIODevice::WriteOnly));
    old.write(QByteArray(100000, 'x'));
    old.close();
    QCOMPARE(lab.run({"metrics", "--output", path}).status, 0);
    QFile written(path);
    QVERIFY(written.open(QIODevice::ReadOnly));
    const QByteArray text = written.readAll();
    QVERIFY(text.startsWith("# HELP skcli_up"));
    QVERIFY(!text.contains('x' + QByteArray(10, 'x')));
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList{"skcli.prom"});
    QVERIFY(lab.run({"metrics", "--output", dir.filePath("missing/skcli.prom")}).status == 1);
}

QTEST_GUILESS_MAIN(tst_monitoring)
#include "tst_monitoring.moc"
