// skcli's verbs in-process: the show documents against the host's model, the act verbs
// against the window's own calls byte for byte, refusals, verdicts and the event reader.

#include "cli_lab.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

#include <functional>
#include <set>

namespace {

using namespace sk_emu;
using ApiCall = std::function<void(SK_RaidApi &)>;

QJsonDocument parsed(const CliRun &r)
{
    QJsonParseError error{};
    const QJsonDocument doc = QJsonDocument::fromJson(r.out.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError)
        qWarning("not JSON: %s", qPrintable(r.out));
    return doc;
}

std::vector<std::vector<std::uint8_t>> bytesOf(const std::vector<RecordedRequest> &requests)
{
    std::vector<std::vector<std::uint8_t>> out;
    for (const RecordedRequest &r : requests)
        out.push_back(r.bytes);
    return out;
}

// The default workstation with its global spare freed: two free disks, an HDD and an
// NVMe one, so a mirror can be made (after the drive-mixing question).
Model twoFreeDisks()
{
    Model m = defaultScenario();
    m.disks.at(5).globalSpare = false;
    return m;
}

} // namespace

Q_DECLARE_METATYPE(ApiCall)

class tst_verbs : public QObject
{
    Q_OBJECT

private slots:
    void showVerbsInBothForms_data();
    void showVerbsInBothForms();
    void disksDocumentFollowsTheModel();
    void arraysDocumentFollowsThePicture();
    void controllersAndTasksDocuments();
    void smartMetricsAgreeWithTheOverview();
    void actionsSendWhatTheWindowSends_data();
    void actionsSendWhatTheWindowSends();
    void refusalsSendNothing_data();
    void refusalsSendNothing();
    void createVerdictsAndMaximum();
    void eventsAppearOnceOnAWrappedLog();
    void followSeesANewEvent();
};

void tst_verbs::showVerbsInBothForms_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("tableWord");
    QTest::newRow("the summary names the data array") << QStringList{"show"} << "Data";
    QTest::newRow("controllers list their ports") << QStringList{"show", "controllers"} << "Ports";
    QTest::newRow("disks show the port type") << QStringList{"show", "disks"} << "NVMe";
    QTest::newRow("arrays show the level") << QStringList{"show", "arrays"} << "RAID5";
    QTest::newRow("tasks have a header even when idle")
        << QStringList{"show", "tasks"} << "Progress";
    QTest::newRow("spares show the global one") << QStringList{"show", "spares"} << "global";
    QTest::newRow("one array by number") << QStringList{"show", "array", "2"} << "RAID5";
    QTest::newRow("one disk by port") << QStringList{"show", "disk", "0:6"} << "NVMe";
    QTest::newRow("one disk by id") << QStringList{"show", "disk", "3"} << "0:2";
    QTest::newRow("SMART of a disk") << QStringList{"show", "smart", "0:2"} << "Poweron Time";
}

void tst_verbs::showVerbsInBothForms()
{
    QFETCH(QStringList, args);
    QFETCH(QString, tableWord);
    CliLab lab;
    const CliRun table = lab.run(args);
    QCOMPARE(table.status, 0);
    QVERIFY2(table.out.contains(tableWord), qPrintable(table.out));
    const CliRun json = lab.run(args + QStringList{"--json"});
    QCOMPARE(json.status, 0);
    const QJsonDocument doc = parsed(json);
    QVERIFY(doc.isObject() || doc.isArray());
    if (args.value(1) != QLatin1String("smart")) // reading SMART is a disk command
        QVERIFY(lab.sent().empty());
}

void tst_verbs::disksDocumentFollowsTheModel()
{
    CliLab lab;
    const QJsonArray disks = parsed(lab.run({"show", "disks", "--json"})).array();
    const Model m = lab.host->model();
    QCOMPARE(disks.size(), int(m.disks.size()));
    for (const Disk &d : m.disks) {
        const QString port = QStringLiteral("%1:%2").arg(d.controller).arg(d.port);
        const auto it = std::find_if(disks.begin(), disks.end(), [&](const QJsonValue &v) {
            return v.toObject()["port"].toString() == port;
        });
        QVERIFY2(it != disks.end(), qPrintable(port));
        const QJsonObject o = it->toObject();
        QCOMPARE(o["id"].toInt(), int(d.port) + 1);
        QCOMPARE(o["wwid"].toString(), QStringLiteral("0x") + QString::number(d.id, 16));
        QCOMPARE(o["capacityBytes"].toDouble(), double(d.capacity) * 512);
        QCOMPARE(o["serial"].toString(), QString::fromStdString(d.serial).trimmed());
        QCOMPARE(o["model"].toString(), QString::fromStdString(d.model).trimmed());
        QCOMPARE(o["nvme"].toBool(), d.isNvme());
        QCOMPARE(o["spare"].toString() == "global", d.globalSpare);
    }
}

void tst_verbs::arraysDocumentFollowsThePicture()
{
    CliLab lab;
    const QJsonArray arrays = parsed(lab.run({"show", "arrays", "--json"})).array();
    const Model m = lab.host->model();
    QCOMPARE(arrays.size(), int(m.arrays.size()));
    for (const QJsonValue &v : arrays) {
        const QJsonObject o = v.toObject();
        const Array *a = m.findArrayByRoute(std::uint32_t(o["id"].toInt()));
        QVERIFY(a);
        QCOMPARE(o["name"].toString(), QString::fromStdString(a->name));
        QCOMPARE(o["capacityBytes"].toDouble(), double(a->layout.capacity) * 512);
        QCOMPARE(o["members"].toArray().size(), int(a->layout.members.size()));
        QCOMPARE(o["state"].toString(), QStringLiteral("NORMAL"));
        QCOMPARE(o["capacityText"].toString(),
                 SK_RaidApi::CapacityText(qint64(a->layout.capacity)));
        QVERIFY(o["task"].isNull());
    }
}

void tst_verbs::controllersAndTasksDocuments()
{
    CliLab lab;
    const Model m = lab.host->model();
    const QJsonArray controllers = parsed(lab.run({"show", "controllers", "--json"})).array();
    QCOMPARE(controllers.size(), int(m.controllers.size()));
    const QJsonObject c = controllers.at(0).toObject();
    QCOMPARE(c["name"].toString(), QString::fromStdString(m.controllers.at(0).name));
    QCOMPARE(c["ports"].toInt(), int(m.controllers.at(0).ports));
    QCOMPARE(c["id"].toString(), "0x" + QString::number(m.controllers.at(0).id, 16));

    QCOMPARE(parsed(lab.run({"show", "tasks", "--json"})).array().size(), 0);
    QCOMPARE(lab.run({"check", "start", "2"}).status, 0);
    lab.clock->advance(60000);
    const QJsonArray tasks = parsed(lab.run({"show", "tasks", "--json"})).array();
    QCOMPARE(tasks.size(), 1);
    const QJsonObject t = tasks.at(0).toObject();
    QCOMPARE(t["array"].toInt(), 2);
    QCOMPARE(t["name"].toString(), QStringLiteral("Data"));
    QCOMPARE(t["kind"].toString(), QStringLiteral("CHECK"));
    QCOMPARE(t["state"].toString(), QStringLiteral("STARTED"));
    QVERIFY(t["percent"].toDouble() >= 0 && t["percent"].toDouble() <= 100);
    const QString table = lab.run({"show", "tasks"}).out;
    QVERIFY2(table.contains(QRegularExpression("2 +Data +CHECK +STARTED +\\d+\\.\\d%")),
             qPrintable(table));
    // The metrics carry the same task.
    const QString metrics = lab.run({"metrics"}).out;
    QVERIFY(metrics.contains("skcli_task_active{array=\"2\",name=\"Data\",kind=\"CHECK\"} 1"));
}

// The metrics read the full report; the overview is the window's own call. Both must
// tell the same hours and temperature for every kind of disk.
void tst_verbs::smartMetricsAgreeWithTheOverview()
{
    CliLab lab;
    const QString metrics = lab.run({"metrics"}).out;
    for (int id : lab->GetDiskIds()) {
        const QJsonObject s =
            parsed(lab.run({"show", "smart", QString::number(id), "--json"})).object();
        const QString labels =
            QStringLiteral("{disk=\"%1\",port=\"%2\"} ").arg(id).arg(s["port"].toString());
        QVERIFY(s["available"].toBool());
        const double hours = s["powerOnHours"].toDouble();
        QVERIFY2(metrics.contains("skcli_disk_power_on_seconds" + labels +
                                  QString::number(hours * 3600, 'g', 15) + "\n"),
                 qPrintable(labels));
        const QString celsius = QString::number(s["temperatureCelsius"].toInt());
        QVERIFY2(metrics.contains("skcli_disk_temperature_celsius" + labels + celsius + "\n"),
                 qPrintable(labels + s["temperatureText"].toString()));
    }
}

void tst_verbs::actionsSendWhatTheWindowSends_data()
{
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<ApiCall>("window");
    auto row = [](const char *name, QStringList args, ApiCall call,
                  QStringList before = QStringList()) {
        QTest::newRow(name) << before << args << call;
    };
    row("delete with --yes", {"delete", "2", "--yes"}, [](SK_RaidApi &a) { a.DeleteArray(2); });
    row("secure erase", {"secure-erase", "2", "--yes"},
        [](SK_RaidApi &a) { a.SecureEraseArray(2); });
    row("rename", {"rename", "2", "Archive"},
        [](SK_RaidApi &a) { a.RenameArray(2, QStringLiteral("Archive")); });
    row("hide", {"hide", "2"}, [](SK_RaidApi &a) { a.HideArray(2); });
    row("check start", {"check", "start", "2"},
        [](SK_RaidApi &a) { a.ConsistencyCheck(2, false); });
    row("scan start", {"scan", "start", "2"}, [](SK_RaidApi &a) { a.SetBackgroundScan(2, true); });
    row("cache read only", {"cache", "2", "r"},
        [](SK_RaidApi &a) { a.SetArrayCache(2, QStringLiteral("R")); });
    row("global spare added by port", {"spare", "add", "0:5"},
        [](SK_RaidApi &a) { a.AssignGlobalSpare(6); });
    row("dedicated spare added", {"spare", "add", "0:6", "--array", "1"},
        [](SK_RaidApi &a) { a.AssignDedicatedSpare(1, 7); });
    row("disk write cache off", {"disk", "cache", "0:2", "off"}, [](SK_RaidApi &a) {
        SK_DiskManage m;
        m.disks[0] = 3;
        m.diskCount = 1;
        m.writeOff = 1;
        a.ManageDiskCache(m);
    });
    row("SMART polling on", {"disk", "smart-polling", "3", "on"}, [](SK_RaidApi &a) {
        SK_DiskManage m;
        m.disks[0] = 3;
        m.diskCount = 1;
        m.smartOn = 1;
        a.ManageDiskSmart(m);
    });
    row("blink a disk", {"blink", "disk", "0:6", "on"},
        [](SK_RaidApi &a) { a.BlinkDisk(7, true); });
    row("blink an array", {"blink", "array", "2", "on"},
        [](SK_RaidApi &a) { a.BlinkArray(2, true, 0); });
    row("rescan", {"rescan"}, [](SK_RaidApi &a) { a.Rescan(); });
    row("unhide", {"unhide", "2"}, [](SK_RaidApi &a) { a.UnhideArray(2); }, {"hide", "2"});
    row("check stop", {"check", "stop", "2"}, [](SK_RaidApi &a) { a.ConsistencyCheck(2, true); },
        {"check", "start", "2"});
    row("task pause", {"task", "pause", "2"},
        [](SK_RaidApi &a) { a.TaskControl(2, QStringLiteral("pause")); }, {"check", "start", "2"});
    row("task priority", {"task", "priority", "2", "3"},
        [](SK_RaidApi &a) { a.SetTaskPriority(2, 3); }, {"check", "start", "2"});
    row("clear metadata", {"clear-metadata", "0:6", "--yes"}, [](SK_RaidApi &a) {
        SK_InitDisks d;
        d.disks[0] = 7;
        d.diskCount = 1;
        d.clearMetadata = 1;
        a.InitializeDisks(d);
    });
    row("transform the mirror into a RAID 5",
        {"transform", "1", "--type", "RAID5", "--disks", "0:0,0:1,0:5", "--yes"},
        [](SK_RaidApi &a) {
            SK_Create p;
            p.type = QStringLiteral("RAID5");
            p.disks[0] = 1;
            p.disks[1] = 2;
            p.disks[2] = 6;
            p.diskCount = 3;
            p.cache = QStringLiteral("RW");
            p.name = QStringLiteral("unused");
            p.size = a.TransformArray(p, 1, true);
            a.TransformArray(p, 1, false);
        });
    row("create a mirror of the two free disks",
        {"create", "--type", "RAID1", "--disks", "0:5,0:6", "--size", "max", "--name", "Fast",
         "--yes"},
        [](SK_RaidApi &a) {
            SK_Create p;
            p.type = QStringLiteral("RAID1");
            p.disks[0] = 6;
            p.disks[1] = 7;
            p.diskCount = 2;
            p.cache = QStringLiteral("RW");
            p.name = QStringLiteral("Fast");
            p.size = a.CreateArray(p, true);
            a.CreateArray(p, false);
        });
}

void tst_verbs::actionsSendWhatTheWindowSends()
{
    QFETCH(QStringList, before);
    QFETCH(QStringList, args);
    QFETCH(ApiCall, window);
    // One lab at a time: each installs its host as the process's platform.
    auto sentAfter = [&before](const std::function<bool(CliLab &)> &act) {
        CliLab lab(twoFreeDisks());
        if (!before.isEmpty() && lab.run(before).status != 0)
            return bytesOf({});
        const std::size_t already = lab.sent().size();
        if (!act(lab))
            return bytesOf({});
        auto all = bytesOf(lab.sent());
        all.erase(all.begin(), all.begin() + std::ptrdiff_t(already));
        return all;
    };
    QString err;
    const auto fromCli = sentAfter([&](CliLab &lab) {
        const CliRun r = lab.run(args);
        err = r.err;
        return r.status == 0;
    });
    QVERIFY2(!fromCli.empty(), qPrintable(err));
    const auto fromWindow = sentAfter([&](CliLab &lab) {
        lab->RefreshConfig();
        window(*lab.api);
        return true;
    });
    QCOMPARE(fromCli, fromWindow);
}

void tst_verbs::refusalsSendNothing_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<bool>("elevated");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("reason");
    QTest::newRow("delete without --yes and no terminal")
        << QStringList{"delete", "2"} << true << 1 << "--yes";
    QTest::newRow("delete without administrator rights")
        << QStringList{"delete", "2", "--yes"} << false << 1
        << "Please run application as Administrator.";
    QTest::newRow("initialise without administrator rights")
        << QStringList{"initialise", "0:6", "--yes"} << false << 1
        << "Please run application as Administrator.";
    QTest::newRow("an array that does not exist")
        << QStringList{"hide", "9"} << true << 1 << "no array 9";
    QTest::newRow("a disk that does not exist")
        << QStringList{"blink", "disk", "3:9", "on"} << true << 1 << "no disk 3:9";
    QTest::newRow("a name with a forbidden character")
        << QStringList{"rename", "2", "a.b"} << true << 1 << "Invalid name";
    QTest::newRow("an unknown verb is a usage error")
        << QStringList{"explode"} << true << 2 << "unknown verb";
    QTest::newRow("an unknown option is a usage error")
        << QStringList{"show", "--colour"} << true << 2 << "colour";
    QTest::newRow("drive mixing in a create needs an answer")
        << QStringList{"create", "--type", "RAID1", "--disks", "0:5,0:6"} << true << 1
        << "drive mixing";
}

void tst_verbs::refusalsSendNothing()
{
    QFETCH(QStringList, args);
    QFETCH(bool, elevated);
    QFETCH(int, status);
    QFETCH(QString, reason);
    Model m = twoFreeDisks();
    m.host.elevated = elevated;
    CliLab lab(m);
    bool asked = false;
    const CliRun r = lab.run(args, [&asked](const QString &) { return !(asked = true); });
    QCOMPARE(r.status, status);
    QVERIFY2(r.err.contains(reason), qPrintable(r.err));
    QVERIFY(lab.sent().empty());
}

void tst_verbs::createVerdictsAndMaximum()
{
    CliLab lab(twoFreeDisks());
    // A RAID 5 needs three disks: the verdict row of the create table, nothing sent.
    CliRun r = lab.run({"create", "--type", "RAID5", "--disks", "0:6"});
    QCOMPARE(r.status, 1);
    QVERIFY2(r.err.contains("Invalid Configuration: "), qPrintable(r.err));
    bool fromTable = false;
    for (const QString &row : createErrorList)
        fromTable |= !row.trimmed().isEmpty() && r.err.contains(row.trimmed());
    QVERIFY2(fromTable, qPrintable(r.err));
    QVERIFY(lab.sent().empty());
    r = lab.run({"create", "--type", "RAID1", "--disks", "0:5,0:6", "--size", "99999999"});
    QCOMPARE(r.status, 1);
    QVERIFY(r.err.contains(createErrorList.value(46).trimmed()));
    QVERIFY(lab.sent().empty());
    // The drive-mixing question answered yes on the terminal.
    r = lab.run({"create", "--type", "RAID1", "--disks", "0:5,0:6", "--name", "M"},
                [](const QString &question) { return question.contains("drive mixing"); });
    QCOMPARE(r.status, 0);
    lab->RefreshConfig();
    QVERIFY(lab.arrayNamed("M"));
}

void tst_verbs::eventsAppearOnceOnAWrappedLog()
{
    Model m = defaultScenario();
    m.eventCapacity = 8;
    CliLab lab(m);
    for (std::uint32_t i = 0; i < 20; ++i)
        lab.host->injectEvent(1014, {i, 0, 0, 0, 0, 0, 0, 0});
    const CliRun r = lab.run({"events", "--json"});
    QCOMPARE(r.status, 0);
    std::set<qint64> numbers;
    const QStringList lines = r.out.split('\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const QJsonObject o = QJsonDocument::fromJson(line.toUtf8()).object();
        QVERIFY2(numbers.insert(qint64(o["number"].toDouble())).second, qPrintable(line));
    }
    QCOMPARE(int(numbers.size()), 8);
    QVERIFY(lines.last().contains("Array 19 has been deleted."));
}

void tst_verbs::followSeesANewEvent()
{
    CliLab lab;
    int polls = 0;
    const CliRun r = lab.run({"events", "--follow", "--lang", "de"}, nullptr, [&] {
        if (++polls == 1)
            lab.host->injectEvent(1014, {7, 0, 0, 0, 0, 0, 0, 0});
        return polls < 3;
    });
    QCOMPARE(r.status, 0);
    QCOMPARE(r.out.count("(1014)") + r.out.count("  1014  "), 1);
    QVERIFY2(r.out.contains("Array 7"), qPrintable(r.out));
}

QTEST_GUILESS_MAIN(tst_verbs)
#include "tst_verbs.moc"
