// Preparing an array for removal against the emulated workstation: a RAID 1 system
// array on C: (in use, as a booted system is) and a RAID 5 data array on D: whose
// three hard disks sit in hot-swap bays.

#include "service/sk_applog.h"
#include "service/sk_raidapi.h"
#include "support/emulated_host.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>

using ModelChange = std::function<void(sk_emu::Model &)>;
Q_DECLARE_METATYPE(ModelChange)

namespace {

const char *const kDataArray = "Data";
const char *const kSystemArray = "System";
const QString kVeto = QStringLiteral("\\Device\\HarddiskVolume4");
const QString kRemoved = QStringLiteral("hidden offline marked"), kUntouched;

const sk_emu::Array *findArray(const sk_emu::Model &m, const std::string &name)
{
    for (const sk_emu::Array &a : m.arrays) {
        if (a.name == name)
            return &a;
    }
    return nullptr;
}

sk_emu::Array &arrayNamed(sk_emu::Model &m, const std::string &name)
{
    if (const sk_emu::Array *a = findArray(m, name))
        return const_cast<sk_emu::Array &>(*a);
    qFatal("the scenario has no array %s", name.c_str());
}

sk_emu::Volume &volume(sk_emu::Model &m, char letter)
{
    for (sk_emu::Volume &v : m.volumes) {
        if (v.letter == letter)
            return v;
    }
    qFatal("the scenario has no volume %c", letter);
}

// The array id the service knows an emulated array by.
int arrayId(const SK_RaidApi &api, const char *displayName)
{
    for (const LogicalDrive *array : api.GetArrayList()) {
        if (qstrncmp(array->DisplayName, displayName, sizeof array->DisplayName) == 0)
            return array->Device;
    }
    return -1;
}

QStringList readLines(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromLocal8Bit(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

// The log lines of the dismount and eject steps; the removal's own reasons are left
// out, their wording is free.
QStringList stepLines(const QStringList &lines)
{
    QStringList steps;
    for (const QString &line : lines) {
        if (!line.startsWith(QLatin1String("PrepareArrayRemoval(")))
            steps << line;
    }
    return steps;
}

QString attempt(int n, const QString &how)
{
    return QStringLiteral("Request Windows device eject - Attempt %1 unsuccessful.").arg(n) + how;
}

const QString kEjected = QStringLiteral("Success! Completed Windows device eject.");
const QString kOptional = QStringLiteral("Unable to complete optional Windows device eject call - "
                                         "continuing prepare to remove operation.");
const QString kInUse =
    QStringLiteral("DeviceIoControl - unable to complete FSCTL_LOCK_VOLUME. Device likely in use.");

} // namespace

Q_DECLARE_METATYPE(SK_RemovalResult)

class tst_removal : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void prepareArrayRemoval_data();
    void prepareArrayRemoval();
    void driveLetters_data();
    void driveLetters();
    void volumeThatIsNotThere();

private:
    QScopedPointer<QTemporaryDir> m_dir;
    QString m_log;
};

void tst_removal::init()
{
    m_dir.reset(new QTemporaryDir);
    QVERIFY2(m_dir->isValid(), "a temporary folder for the log");
    m_log = m_dir->filePath(QStringLiteral("StrataKeep.log"));
    SK_AppLog::setFilePath(m_log);
}

void tst_removal::prepareArrayRemoval_data()
{
    QTest::addColumn<QString>("array");
    QTest::addColumn<ModelChange>("change");
    QTest::addColumn<bool>("offlineRefused");
    QTest::addColumn<SK_RemovalResult>("result");
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("after"); // "hidden", "offline", "marked": what Data is then

    const ModelChange none = [](sk_emu::Model &) {};

    QTest::newRow("a data array is dismounted, ejected, hidden, marked and taken offline")
        << kDataArray << none << false << SK_REMOVAL_READY << QStringList{kEjected} << kRemoved;
    QTest::newRow("an unknown array is refused")
        << QStringLiteral("Nothing") << none << false << SK_REMOVAL_REFUSED << QStringList{}
        << kUntouched;
    QTest::newRow("a disk shared with another array is refused before any dismount")
        << kDataArray << ModelChange([](sk_emu::Model &m) {
               sk_emu::Array scratch = arrayNamed(m, kDataArray);
               scratch.id += 1;
               scratch.route = 3;
               scratch.name = "Scratch";
               scratch.layout.secondCount = 1;
               scratch.layout.members.resize(1);
               m.arrays.push_back(scratch);
               // Were the volume touched, the lock would fail and say so.
               volume(m, 'D').inUse = true;
           })
        << false << SK_REMOVAL_SHARED_DISK << QStringList{} << kUntouched;
    QTest::newRow("the system array is refused although its volume is in use")
        << kSystemArray << none << false << SK_REMOVAL_REFUSED << QStringList{} << kUntouched;
    QTest::newRow("an array with a running check is refused")
        << kDataArray << ModelChange([](sk_emu::Model &m) {
               sk_emu::Array &data = arrayNamed(m, kDataArray);
               data.task.type = sk_emu::code::TaskCheck;
               data.task.state = sk_emu::code::TaskStarted;
           })
        << false << SK_REMOVAL_REFUSED << QStringList{} << kUntouched;
    QTest::newRow("a volume in use stops the removal")
        << kDataArray << ModelChange([](sk_emu::Model &m) { volume(m, 'D').inUse = true; }) << false
        << SK_REMOVAL_VOLUME_IN_USE << QStringList{kInUse} << kUntouched;
    QTest::newRow("a disk device missing from the device list stops the removal")
        << kDataArray << ModelChange([](sk_emu::Model &m) { volume(m, 'D').unlisted = true; })
        << false << SK_REMOVAL_NO_DEVICE_INSTANCE
        << QStringList{QStringLiteral("Unable to get disk devices: 259"),
                       QStringLiteral("Failed to FindMatchingDeviceInstance(): D")}
        << kUntouched;
    QTest::newRow("three vetoed ejects are logged and the removal goes on")
        << kDataArray
        << ModelChange([](sk_emu::Model &m) { volume(m, 'D').ejectVeto = kVeto.toStdString(); })
        << false << SK_REMOVAL_READY
        << QStringList{attempt(1, " Vetoed by:" + kVeto), attempt(2, " Vetoed by:" + kVeto),
                       attempt(3, " Vetoed by:" + kVeto), kOptional}
        << kRemoved;
    QTest::newRow("a veto that lifts on the third attempt lets the eject through")
        << kDataArray << ModelChange([](sk_emu::Model &m) {
               volume(m, 'D').ejectVeto = kVeto.toStdString();
               volume(m, 'D').ejectVetoes = 2;
           })
        << false << SK_REMOVAL_READY
        << QStringList{attempt(1, " Vetoed by:" + kVeto), attempt(2, " Vetoed by:" + kVeto),
                       kEjected}
        << kRemoved;
    QTest::newRow("ejects failing without a veto are logged without a reason")
        << kDataArray << ModelChange([](sk_emu::Model &m) { volume(m, 'D').ejectError = 21; })
        << false << SK_REMOVAL_READY
        << QStringList{attempt(1, ""), attempt(2, ""), attempt(3, ""), kOptional} << kRemoved;
    QTest::newRow("without a device number the ejects go out for no device and fail")
        << kDataArray << ModelChange([](sk_emu::Model &m) { volume(m, 'D').noDeviceNumber = true; })
        << false << SK_REMOVAL_READY
        << QStringList{QStringLiteral("Failed to get storage device number: 1"), attempt(1, ""),
                       attempt(2, ""), attempt(3, ""), kOptional}
        << kRemoved;
    QTest::newRow("an array without a drive letter goes straight to the hide")
        << kDataArray << ModelChange([](sk_emu::Model &m) {
               m.volumes.erase(
                   std::remove_if(m.volumes.begin(), m.volumes.end(),
                                  [](const sk_emu::Volume &v) { return v.letter == 'D'; }),
                   m.volumes.end());
           })
        << false << SK_REMOVAL_READY << QStringList{} << kRemoved;
    QTest::newRow("a refused offline shows the array hidden by this removal again")
        << kDataArray << none << true << SK_REMOVAL_REFUSED << QStringList{kEjected} << "marked";
    QTest::newRow("a refused offline leaves an array hidden before as it was")
        << kDataArray << ModelChange([](sk_emu::Model &m) {
               arrayNamed(m, kDataArray).attributes |= sk_emu::code::AttributeHidden;
           })
        << true << SK_REMOVAL_REFUSED << QStringList{} << "hidden marked";
}

void tst_removal::prepareArrayRemoval()
{
    QFETCH(QString, array);
    QFETCH(ModelChange, change);
    QFETCH(bool, offlineRefused);
    QFETCH(SK_RemovalResult, result);
    QFETCH(QStringList, lines);
    QFETCH(QString, after);

    EmulatedHostScope scope;
    scope.host->modify([&](sk_emu::Model &m) {
        change(m);
        return true;
    });
    if (offlineRefused) {
        scope.host->setCommandHandler(sk_emu::cmd::Offline, [](sk_emu::Host &, sk_emu::Model &,
                                                               std::uint8_t *, std::uint32_t) {
            return sk_emu::CommandResult{77, false};
        });
    }
    SK_RaidApi api;
    const int id = array == QLatin1String("Nothing") ? 99 : arrayId(api, qPrintable(array));
    QVERIFY2(id >= 0, "the scenario's array is in the picture");
    const std::uint64_t before = scope.clock->nowMs();

    QCOMPARE(api.PrepareArrayRemoval(id), result);

    QCOMPARE(stepLines(readLines(m_log)), lines);
    const auto failedEjects = static_cast<std::uint64_t>(
        lines.filter(QRegularExpression(QStringLiteral("^Request .* unsuccessful"))).size());
    QVERIFY2(scope.clock->nowMs() - before == 50 * failedEjects,
             "a 50 millisecond pause follows each failed eject, and nothing else sleeps");
    const sk_emu::Model model = scope.host->model();
    if (const sk_emu::Array *data = findArray(model, kDataArray)) {
        QCOMPARE(data->hidden(), after.contains(QLatin1String("hidden")));
        QCOMPARE(data->state == sk_emu::code::ArrayOffline,
                 after.contains(QLatin1String("offline")));
        for (const sk_emu::Member &member : data->layout.members) {
            const sk_emu::Disk *disk = model.findDisk(member.disk);
            QVERIFY2(disk, "the members stay listed");
            QVERIFY2((disk->ledState == 4) == after.contains(QLatin1String("marked")),
                     "member disks are marked for the pull exactly when the removal goes on");
        }
    }
    const sk_emu::Array *system = findArray(model, kSystemArray);
    QVERIFY2(system && !system->hidden() && system->state != sk_emu::code::ArrayOffline,
             "the system array is never touched");
}

void tst_removal::driveLetters_data()
{
    QTest::addColumn<QString>("array");
    QTest::addColumn<ModelChange>("change");
    QTest::addColumn<QString>("letters");
    QTest::addColumn<bool>("system");

    const ModelChange none = [](sk_emu::Model &) {};
    QTest::newRow("an array with two volumes lists both, parted by a comma")
        << kSystemArray << ModelChange([](sk_emu::Model &m) {
               sk_emu::Volume second;
               second.letter = 'E';
               second.arrays = {arrayNamed(m, kSystemArray).id};
               m.volumes.push_back(second);
           })
        << QStringLiteral("C:, E:") << true;
    QTest::newRow("an array on one volume") << kDataArray << none << QStringLiteral("D:") << false;
    QTest::newRow("a hidden array has no volume")
        << kDataArray << ModelChange([](sk_emu::Model &m) {
               arrayNamed(m, kDataArray).attributes |= sk_emu::code::AttributeHidden;
           })
        << QString() << false;
    QTest::newRow("the system drive on the data array makes it the system array")
        << kDataArray << ModelChange([](sk_emu::Model &m) { m.host.systemDrive = 'D'; })
        << QStringLiteral("D:") << true;
}

void tst_removal::driveLetters()
{
    QFETCH(QString, array);
    QFETCH(ModelChange, change);
    QFETCH(QString, letters);
    QFETCH(bool, system);

    EmulatedHostScope scope;
    SK_RaidApi api;
    const int id = arrayId(api, qPrintable(array));
    scope.host->modify([&](sk_emu::Model &m) {
        change(m);
        return true;
    });
    api.RefreshConfig();

    QCOMPARE(api.DriveLetters(id), letters);
    QCOMPARE(api.HoldsSystemDrive(id), system);
}

void tst_removal::volumeThatIsNotThere()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    quint32 number = 0;

    QTest::ignoreMessage(QtCriticalMsg, "LockAndDismountvolume(): INVALID_HANDLE_VALUE");
    QVERIFY2(!api.LockAndDismountvolume(QLatin1Char('Q')), "no volume Q to lock");
    QVERIFY2(!api.GetVolumeDeviceNumber(QLatin1Char('Q'), number), "no volume Q to ask");

    QCOMPARE(readLines(m_log), (QStringList{QStringLiteral("LockAndDismountvolume(): "
                                                           "INVALID_HANDLE_VALUE"),
                                            QStringLiteral("Failed to open volume: 2")}));
}

QTEST_GUILESS_MAIN(tst_removal)
#include "tst_removal.moc"
