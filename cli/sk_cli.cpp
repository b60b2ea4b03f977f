// Command table, option parsing and the verbs of skcli. Each verb makes the calls the
// window's action makes, in the same order, and refuses where the window would.

#include "cli/sk_cli.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>
#include <QTemporaryDir>

#include <cstdio>
#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

// The service's SMART read prints its complaints to standard output, as the console's
// diagnostics do; while it runs they go to standard error, so a script reading
// standard output gets the document alone.
class StdoutToStderr
{
public:
    StdoutToStderr()
    {
        std::fflush(stdout);
#ifdef _WIN32
        m_saved = _dup(_fileno(stdout));
        _dup2(_fileno(stderr), _fileno(stdout));
#else
        m_saved = dup(fileno(stdout));
        dup2(fileno(stderr), fileno(stdout));
#endif
    }
    ~StdoutToStderr()
    {
        std::fflush(stdout);
        if (m_saved < 0)
            return;
#ifdef _WIN32
        _dup2(m_saved, _fileno(stdout));
        _close(m_saved);
#else
        dup2(m_saved, fileno(stdout));
        close(m_saved);
#endif
    }
    StdoutToStderr(const StdoutToStderr &) = delete;
    StdoutToStderr &operator=(const StdoutToStderr &) = delete;

private:
    int m_saved = -1;
};

constexpr quint32 kValidEntry = 53;
constexpr int kMinimumSizeMB = 100;
// Rows of the verdict tables the dialogs use for a size outside the possible range.
constexpr int kCreateSizeAboveMaximumRow = 46;
constexpr int kCreateSizeBelowMinimumRow = 1;
constexpr int kTransformSizeBelowMinimumRow = 1;
constexpr int kTransformSizeAboveMaximumRow = 32;
constexpr int kTransformSizeNotPossibleRow = 31;

const char *const kRightsMessage = "Please run application as Administrator.";

// The catalogue's language indexes, by the codes a shell user knows.
const char *const kLanguageCodes[] = {
    "en", "zh_CN", "zh_TW", "nl", "fr", "de", "pt_BR", "it", "ja", "ko", "ru",    "es",
    "sv", "ar",    "bg",    "hr", "cs", "da", "et",    "fi", "el", "he", "zh_HK", "hu",
    "lv", "lt",    "nb",    "pl", "pt", "ro", "sr",    "sk", "sl", "th", "tr",    "ru2"};
constexpr int kLanguageCount = int(sizeof kLanguageCodes / sizeof kLanguageCodes[0]);

int languageIndex(const QString &code)
{
    if (code.isEmpty())
        return 0;
    bool ok = false;
    const int n = code.toInt(&ok);
    if (ok)
        return n >= 0 && n < kLanguageCount ? n : -1;
    for (int i = 0; i < kLanguageCount; ++i) {
        if (code.compare(QLatin1String(kLanguageCodes[i]), Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

bool onOff(const QString &word, bool &on)
{
    if (word == QLatin1String("on") || word == QLatin1String("enable")) {
        on = true;
        return true;
    }
    if (word == QLatin1String("off") || word == QLatin1String("disable")) {
        on = false;
        return true;
    }
    return false;
}

QString verdictLine(const QString &text)
{
    QString line = text;
    while (line.endsWith(QLatin1Char('\n')))
        line.chop(1);
    return line;
}

} // namespace

SK_Cli::SK_Cli(SK_RaidApi &api, QTextStream &out, QTextStream &err)
    : api_(api), out_(out), err_(err)
{
}

QString SK_Cli::helpText()
{
    return QStringLiteral(
        "Usage: skcli [options] VERB [ARGUMENTS]\n"
        "\n"
        "Show (add --json for one JSON document):\n"
        "  show                          summary of controllers, disks and arrays\n"
        "  show controllers|disks|arrays|tasks|spares\n"
        "  show array N                  one array by its number\n"
        "  show disk C:P|ID              one disk by controller:channel or by its id\n"
        "  show smart C:P|ID             SMART summary and full report\n"
        "\n"
        "Events and metrics:\n"
        "  events [--since N] [--lang CODE] [--follow] [--json]\n"
        "  metrics [--output FILE]       Prometheus text format\n"
        "\n"
        "Act (destructive verbs need administrator rights and --yes):\n"
        "  create --type LEVEL --disks C:P,C:P,... [--size MB|max] [--name NAME]\n"
        "         [--cache NC|R|W|RW] [--scan] [--zero] [--skip-init] [--leave-data]\n"
        "  transform N --type LEVEL --disks C:P,... [--size MB|max]\n"
        "  delete N | secure-erase N | rename N NAME | hide N | unhide N\n"
        "  check start|stop N | scan start|stop N | cache N NC|R|W|RW\n"
        "  task pause|resume|remove N | task priority N LEVEL(1-10)\n"
        "  spare add|remove DISK [--array N]\n"
        "  disk cache|read-ahead|smart-polling DISK on|off\n"
        "  initialise DISK... | clear-metadata DISK...\n"
        "  blink disk DISK on|off | blink array N on|off\n"
        "  prepare-removal disk DISK | prepare-removal array N\n"
        "  rescan | dump FILE\n"
        "\n"
        "Exit codes: 0 done, 1 refused or failed (the reason on standard error), 2 usage.\n"
        "Backend: STRATAKEEP_BACKEND=native|emulated, STRATAKEEP_EMULATED_HOST=FILE.\n");
}

int SK_Cli::usage(const QString &why)
{
    err_ << "skcli: " << why << "\n"
         << "Try 'skcli --help'.\n";
    err_.flush();
    return SK_CLI_USAGE;
}

int SK_Cli::fail(const QString &why)
{
    err_ << "skcli: " << why << "\n";
    err_.flush();
    return SK_CLI_FAILED;
}

bool SK_Cli::confirm(const QString &question)
{
    if (yes_)
        return true;
    return ask && ask(question);
}

bool SK_Cli::needAdmin()
{
    if (api_.IsAdministrator())
        return true;
    fail(QString::fromLatin1(kRightsMessage));
    return false;
}

int SK_Cli::arrayArg(const QStringList &args, int at, int &id)
{
    bool ok = false;
    id = args.value(at).toInt(&ok);
    if (!ok)
        return usage(QStringLiteral("an array number is needed"));
    if (!api_.GetArrayRecord(id, true))
        return fail(QStringLiteral("no array %1").arg(args.value(at)));
    return SK_CLI_DONE;
}

int SK_Cli::diskArg(const QStringList &args, int at, int &id)
{
    if (args.value(at).isEmpty())
        return usage(QStringLiteral("a disk (C:P or id) is needed"));
    id = SK_CliModel::findDisk(api_, args.value(at));
    if (id < 0)
        return fail(QStringLiteral("no disk %1").arg(args.value(at)));
    return SK_CLI_DONE;
}

int SK_Cli::run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsOptions);
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QString());
    const QCommandLineOption json(QStringLiteral("json"), QString());
    const QCommandLineOption yes({QStringLiteral("y"), QStringLiteral("yes")}, QString());
    const QCommandLineOption follow(QStringLiteral("follow"), QString());
    const QCommandLineOption scan(QStringLiteral("scan"), QString());
    const QCommandLineOption zero(QStringLiteral("zero"), QString());
    const QCommandLineOption skipInit(QStringLiteral("skip-init"), QString());
    const QCommandLineOption leaveData(QStringLiteral("leave-data"), QString());
    auto valued = [](const char *name) {
        return QCommandLineOption(QString::fromLatin1(name), QString(), QStringLiteral("value"));
    };
    const QCommandLineOption since = valued("since"), lang = valued("lang"),
                             output = valued("output"), size = valued("size"),
                             type = valued("type"), name = valued("name"), disks = valued("disks"),
                             cache = valued("cache"), arrayOpt = valued("array");
    parser.addOptions({help, json, yes, follow, scan, zero, skipInit, leaveData, since, lang,
                       output, size, type, name, disks, cache, arrayOpt});
    if (!parser.parse(QStringList{QStringLiteral("skcli")} + arguments))
        return usage(parser.errorText());
    if (parser.isSet(help)) {
        out_ << helpText();
        out_.flush();
        return SK_CLI_DONE;
    }
    json_ = parser.isSet(json);
    yes_ = parser.isSet(yes);
    follow_ = parser.isSet(follow);
    scan_ = parser.isSet(scan);
    zero_ = parser.isSet(zero);
    skipInit_ = parser.isSet(skipInit);
    leaveData_ = parser.isSet(leaveData);
    since_ = parser.value(since);
    lang_ = parser.value(lang);
    output_ = parser.value(output);
    size_ = parser.value(size);
    type_ = parser.value(type);
    name_ = parser.value(name);
    disks_ = parser.value(disks);
    cache_ = parser.value(cache);
    arrayOpt_ = parser.value(arrayOpt);
    const int status = dispatch(parser.positionalArguments());
    out_.flush();
    err_.flush();
    return status;
}

int SK_Cli::dispatch(const QStringList &words)
{
    if (words.isEmpty())
        return usage(QStringLiteral("a verb is needed"));
    const QString verb = words.first();
    const QStringList args = words.mid(1);
    if (verb == QLatin1String("show"))
        return showVerb(args);
    if (verb == QLatin1String("events"))
        return eventsVerb(args);
    if (verb == QLatin1String("metrics"))
        return metricsVerb(args);
    if (verb == QLatin1String("create"))
        return createVerb(args, false);
    if (verb == QLatin1String("transform"))
        return createVerb(args, true);
    if (verb == QLatin1String("spare"))
        return spareVerb(args);
    if (verb == QLatin1String("initialise") || verb == QLatin1String("initialize"))
        return initVerb(args, false);
    if (verb == QLatin1String("clear-metadata"))
        return initVerb(args, true);
    if (verb == QLatin1String("task"))
        return taskVerb(args);
    if (verb == QLatin1String("blink"))
        return blinkVerb(args);
    if (verb == QLatin1String("prepare-removal"))
        return removalVerb(args);
    if (verb == QLatin1String("disk"))
        return diskVerb(args.value(0), args.mid(1));
    if (verb == QLatin1String("rescan"))
        return api_.Rescan() ? SK_CLI_DONE : fail(QStringLiteral("rescan failed"));
    if (verb == QLatin1String("dump")) {
        if (args.size() != 1)
            return usage(QStringLiteral("dump needs a file"));
        return api_.WriteDeveloperDump(args[0]) == 1
                   ? SK_CLI_DONE
                   : fail(QStringLiteral("the dump could not be written"));
    }
    static const QStringList arrayVerbs{QStringLiteral("delete"), QStringLiteral("secure-erase"),
                                        QStringLiteral("rename"), QStringLiteral("hide"),
                                        QStringLiteral("unhide"), QStringLiteral("check"),
                                        QStringLiteral("scan"),   QStringLiteral("cache")};
    if (arrayVerbs.contains(verb))
        return arrayVerb(verb, args);
    return usage(QStringLiteral("unknown verb '%1'").arg(verb));
}

// --- show ---

int SK_Cli::showVerb(const QStringList &args)
{
    const QString what = args.value(0);
    QJsonDocument doc;
    if (what.isEmpty()) {
        const QJsonObject s = SK_CliModel::summary(api_);
        if (json_) {
            doc.setObject(s);
        } else {
            out_ << "Host: " << s[QStringLiteral("host")].toString() << "\n";
            out_ << "Controllers: " << s[QStringLiteral("controllers")].toArray().size()
                 << "  Disks: " << s[QStringLiteral("disks")].toArray().size()
                 << "  Arrays: " << s[QStringLiteral("arrays")].toArray().size() << "\n\n";
            showVerb({QStringLiteral("arrays")});
            out_ << "\n";
            showVerb({QStringLiteral("disks")});
            return SK_CLI_DONE;
        }
    } else if (what == QLatin1String("controllers")) {
        QJsonArray list;
        SK_CliTable table({QStringLiteral("Number"), QStringLiteral("Name"),
                           QStringLiteral("Ports"), QStringLiteral("BIOS"), QStringLiteral("Id")});
        for (int i = 0; i < api_.GetControllerCount(); ++i) {
            const QJsonObject c = SK_CliModel::controller(api_, i);
            list.append(c);
            table.addRow({QString::number(c[QStringLiteral("number")].toInt()),
                          c[QStringLiteral("name")].toString(),
                          QString::number(c[QStringLiteral("ports")].toInt()),
                          c[QStringLiteral("bios")].toString(),
                          c[QStringLiteral("id")].toString()});
        }
        if (!json_) {
            out_ << table.render();
            return SK_CLI_DONE;
        }
        doc.setArray(list);
    } else if (what == QLatin1String("disks") || what == QLatin1String("spares")) {
        const bool sparesOnly = what == QLatin1String("spares");
        QJsonArray list;
        SK_CliTable table(
            sparesOnly
                ? QStringList{QStringLiteral("Port"), QStringLiteral("Id"), QStringLiteral("Role"),
                              QStringLiteral("Arrays"), QStringLiteral("Capacity")}
                : QStringList{QStringLiteral("Port"), QStringLiteral("Id"), QStringLiteral("Model"),
                              QStringLiteral("Serial"), QStringLiteral("Capacity"),
                              QStringLiteral("State"), QStringLiteral("Port type"),
                              QStringLiteral("Cache"), QStringLiteral("Use")});
        for (int id : api_.GetDiskIds()) {
            const QJsonObject d = SK_CliModel::disk(api_, id);
            const QString role = d[QStringLiteral("spare")].toString();
            if (sparesOnly && role == QLatin1String("none"))
                continue;
            list.append(d);
            QStringList arrays;
            const QJsonArray of =
                d[sparesOnly ? QStringLiteral("dedicatedTo") : QStringLiteral("arrays")].toArray();
            for (const QJsonValue &a : of)
                arrays << QString::number(a.toInt());
            if (sparesOnly) {
                table.addRow({d[QStringLiteral("port")].toString(), QString::number(id), role,
                              arrays.join(QLatin1Char(',')),
                              d[QStringLiteral("capacityText")].toString()});
                continue;
            }
            QString use = arrays.isEmpty()
                              ? QStringLiteral("free")
                              : QStringLiteral("array ") + arrays.join(QLatin1Char(','));
            if (role != QLatin1String("none"))
                use = role + QStringLiteral(" spare");
            table.addRow(
                {d[QStringLiteral("port")].toString(), QString::number(id),
                 d[QStringLiteral("model")].toString(), d[QStringLiteral("serial")].toString(),
                 d[QStringLiteral("capacityText")].toString(),
                 d[QStringLiteral("state")].toString(), d[QStringLiteral("portType")].toString(),
                 d[QStringLiteral("cache")].toString(), use});
        }
        if (!json_) {
            out_ << table.render();
            return SK_CLI_DONE;
        }
        doc.setArray(list);
    } else if (what == QLatin1String("arrays") || what == QLatin1String("tasks")) {
        const bool tasksOnly = what == QLatin1String("tasks");
        QJsonArray list;
        SK_CliTable table(tasksOnly
                              ? QStringList{QStringLiteral("Array"), QStringLiteral("Name"),
                                            QStringLiteral("Task"), QStringLiteral("State"),
                                            QStringLiteral("Progress"), QStringLiteral("Priority")}
                              : QStringList{QStringLiteral("Array"), QStringLiteral("Name"),
                                            QStringLiteral("Level"), QStringLiteral("State"),
                                            QStringLiteral("Capacity"), QStringLiteral("Cache"),
                                            QStringLiteral("Members"), QStringLiteral("Task")});
        for (const LogicalDrive *record : api_.GetArrayList()) {
            const QJsonObject a = SK_CliModel::array(api_, record->Device);
            const QJsonValue task = a[QStringLiteral("task")];
            if (tasksOnly && task.isNull())
                continue;
            const QJsonObject t = task.toObject();
            const QString progress =
                task.isNull() ? QString()
                              : QString::number(t[QStringLiteral("percent")].toDouble(), 'f', 1) +
                                    QLatin1Char('%');
            if (tasksOnly) {
                QJsonObject row = t;
                row[QStringLiteral("array")] = a[QStringLiteral("id")];
                row[QStringLiteral("name")] = a[QStringLiteral("name")];
                list.append(row);
                table.addRow({QString::number(record->Device), a[QStringLiteral("name")].toString(),
                              t[QStringLiteral("kind")].toString(),
                              t[QStringLiteral("state")].toString(), progress,
                              QString::number(t[QStringLiteral("priority")].toInt())});
                continue;
            }
            list.append(a);
            QStringList members;
            for (const QJsonValue &m : a[QStringLiteral("members")].toArray())
                members << m.toObject()[QStringLiteral("port")].toString();
            table.addRow(
                {QString::number(record->Device), a[QStringLiteral("name")].toString(),
                 a[QStringLiteral("level")].toString(), a[QStringLiteral("state")].toString(),
                 a[QStringLiteral("capacityText")].toString(),
                 a[QStringLiteral("cache")].toString(), members.join(QLatin1Char(' ')),
                 task.isNull()
                     ? QString()
                     : t[QStringLiteral("kind")].toString() + QLatin1Char(' ') + progress});
        }
        if (!json_) {
            out_ << table.render();
            return SK_CLI_DONE;
        }
        doc.setArray(list);
    } else if (what == QLatin1String("array")) {
        int id = 0;
        if (const int status = arrayArg(args, 1, id))
            return status;
        const QJsonObject a = SK_CliModel::array(api_, id);
        if (json_) {
            doc.setObject(a);
        } else {
            SK_CliTable table({QStringLiteral("Field"), QStringLiteral("Value")});
            for (const char *key : {"id", "name", "level", "state", "capacityText", "cache"})
                table.addRow(
                    {QString::fromLatin1(key), a[QLatin1String(key)].toVariant().toString()});
            table.addRow({QStringLiteral("hidden"), a[QStringLiteral("hidden")].toBool()
                                                        ? QStringLiteral("yes")
                                                        : QStringLiteral("no")});
            for (const QJsonValue &m : a[QStringLiteral("members")].toArray()) {
                const QJsonObject mo = m.toObject();
                table.addRow({QStringLiteral("member"), mo[QStringLiteral("port")].toString() +
                                                            (mo[QStringLiteral("failed")].toBool()
                                                                 ? QStringLiteral(" (failed)")
                                                                 : QString())});
            }
            for (const QJsonValue &s : a[QStringLiteral("spares")].toArray())
                table.addRow({QStringLiteral("spare"), SK_CliModel::diskPort(api_, s.toInt())});
            if (a[QStringLiteral("task")].isObject()) {
                const QJsonObject t = a[QStringLiteral("task")].toObject();
                table.addRow({QStringLiteral("task"),
                              t[QStringLiteral("kind")].toString() + QLatin1Char(' ') +
                                  t[QStringLiteral("state")].toString() + QLatin1Char(' ') +
                                  QString::number(t[QStringLiteral("percent")].toDouble(), 'f', 1) +
                                  QLatin1Char('%')});
            }
            out_ << table.render();
            return SK_CLI_DONE;
        }
    } else if (what == QLatin1String("disk")) {
        int id = 0;
        if (const int status = diskArg(args, 1, id))
            return status;
        const QJsonObject d = SK_CliModel::disk(api_, id);
        if (json_) {
            doc.setObject(d);
        } else {
            SK_CliTable table({QStringLiteral("Field"), QStringLiteral("Value")});
            for (const char *key : {"port", "id", "wwid", "model", "serial", "firmware", "state",
                                    "portType", "capacityText", "cache", "spare"})
                table.addRow(
                    {QString::fromLatin1(key), d[QLatin1String(key)].toVariant().toString()});
            out_ << table.render();
            return SK_CLI_DONE;
        }
    } else if (what == QLatin1String("smart")) {
        int id = 0;
        if (const int status = diskArg(args, 1, id))
            return status;
        out_.flush();
        SmartSummary s;
        {
            const StdoutToStderr quiet;
            s = api_.GetSmartInfo(id);
        }
        QString report;
        QTemporaryDir dir;
        if (dir.isValid()) {
            const QString path = dir.filePath(QStringLiteral("smart.txt"));
            api_.RetrieveAllSmartInfo(id, path, dir.filePath(QStringLiteral("transcript.txt")));
            QFile file(path);
            if (file.open(QIODevice::ReadOnly))
                report = QString::fromLatin1(file.read(1 << 20));
        }
        QJsonObject o;
        o[QStringLiteral("disk")] = id;
        o[QStringLiteral("port")] = SK_CliModel::diskPort(api_, id);
        // The summary's status word says "Failed" even for a disk that answered; like the
        // window, what counts is whether figures came back.
        const bool answered = !s.powerOnHours.isEmpty() || !s.temperature.isEmpty();
        o[QStringLiteral("available")] = answered;
        auto number = [](const QString &text) {
            bool ok = false;
            const qint64 n = text.trimmed().section(QLatin1Char(' '), 0, 0).toLongLong(&ok);
            return ok ? QJsonValue(n) : QJsonValue(QJsonValue::Null);
        };
        o[QStringLiteral("powerOnHours")] = number(s.powerOnHours);
        o[QStringLiteral("temperatureCelsius")] = number(s.temperature);
        o[QStringLiteral("temperatureText")] = s.temperature.trimmed();
        o[QStringLiteral("powerCycles")] = number(s.powerCycles);
        o[QStringLiteral("report")] = report;
        if (json_) {
            doc.setObject(o);
        } else {
            SK_CliTable table({QStringLiteral("Field"), QStringLiteral("Value")});
            for (const char *key :
                 {"port", "available", "powerOnHours", "temperatureText", "powerCycles"})
                table.addRow(
                    {QString::fromLatin1(key), o[QLatin1String(key)].toVariant().toString()});
            out_ << table.render() << report;
            return SK_CLI_DONE;
        }
    } else {
        return usage(QStringLiteral("unknown show '%1'").arg(what));
    }
    out_ << doc.toJson(QJsonDocument::Indented);
    return SK_CLI_DONE;
}

// --- events ---

int SK_Cli::eventsVerb(const QStringList &args)
{
    if (!args.isEmpty())
        return usage(QStringLiteral("events takes options only"));
    const int language = languageIndex(lang_);
    if (language < 0)
        return usage(QStringLiteral("unknown language '%1'").arg(lang_));
    bool ok = true;
    quint32 next = since_.isEmpty() ? 0 : since_.toUInt(&ok);
    if (!ok)
        return usage(QStringLiteral("--since needs a number"));
    for (;;) {
        for (;;) {
            const SK_EventMessage m = api_.GetEventMessage(next, static_cast<quint32>(language));
            // A cursor that does not move forward would have us print one entry forever.
            if (m.status != kValidEntry || m.number < next)
                break;
            if (json_) {
                QJsonObject o;
                o[QStringLiteral("number")] = static_cast<qint64>(m.number);
                o[QStringLiteral("code")] = m.code;
                o[QStringLiteral("severity")] = SK_RaidApi::SeverityText(int(m.priority));
                o[QStringLiteral("priority")] = static_cast<qint64>(m.priority);
                o[QStringLiteral("text")] = m.text;
                out_ << QJsonDocument(o).toJson(QJsonDocument::Compact) << "\n";
            } else {
                out_ << QString::number(m.number).rightJustified(6) << "  "
                     << SK_RaidApi::SeverityText(int(m.priority)).leftJustified(13) << "  "
                     << m.code << "  " << m.text << "\n";
            }
            // The driver's cursor, not a count of our own: once the log has wrapped the
            // entry we get may lie past the one we asked for.
            next = m.number + 1;
        }
        out_.flush();
        if (!follow_ || !followWait || !followWait())
            break;
    }
    return SK_CLI_DONE;
}

// --- metrics ---

int SK_Cli::metricsVerb(const QStringList &args)
{
    if (!args.isEmpty())
        return usage(QStringLiteral("metrics takes options only"));
    const QString text = SK_CliMetrics(api_);
    if (output_.isEmpty()) {
        out_ << text;
        return SK_CLI_DONE;
    }
    // The textfile collector must never read half a file: write beside it, then rename.
    QSaveFile file(output_);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0 || !file.commit())
        return fail(QStringLiteral("cannot write %1: %2").arg(output_, file.errorString()));
    return SK_CLI_DONE;
}

// --- create and transform ---

int SK_Cli::createVerb(const QStringList &args, bool transform)
{
    int arrayId = 0;
    if (transform) {
        if (const int status = arrayArg(args, 0, arrayId))
            return status;
    } else if (!args.isEmpty()) {
        return usage(QStringLiteral("create takes options only"));
    }
    if (type_.isEmpty() || disks_.isEmpty())
        return usage(QStringLiteral("--type and --disks are needed"));
    SK_Create params;
    params.type = type_.toUpper();
    const QStringList names = disks_.split(QLatin1Char(','), Qt::SkipEmptyParts);
    if (names.size() > SK_MAX_LIST_DISKS)
        return usage(QStringLiteral("too many disks"));
    for (const QString &n : names) {
        const int id = SK_CliModel::findDisk(api_, n.trimmed());
        if (id < 0)
            return fail(QStringLiteral("no disk %1").arg(n));
        params.diskLabels[params.diskCount] = n.trimmed();
        params.disks[params.diskCount++] = static_cast<quint32>(id);
    }
    params.cache = cache_.isEmpty() ? QStringLiteral("RW") : cache_.toUpper();
    params.backgroundScan = scan_;
    params.zeroCreate = zero_;
    params.skipInit = skipInit_;
    params.leaveData = leaveData_;
    params.name = name_.trimmed();
    if (params.name.isEmpty())
        params.name = SK_AppLog::timeStamp().trimmed().remove(QLatin1Char('.'));
    const bool max = size_.isEmpty() || size_ == QLatin1String("max");
    bool ok = true;
    params.size = max ? 0 : size_.toInt(&ok);
    if (!ok)
        return usage(QStringLiteral("--size needs megabytes or max"));

    // Judged first, as the dialog does with every change: nothing is sent on a verdict.
    const int largest =
        transform ? api_.TransformArray(params, arrayId, true) : api_.CreateArray(params, true);
    const QList<QString> &verdicts = transform ? transformErrorList : createErrorList;
    if (largest < 0)
        return fail(QStringLiteral("Invalid Configuration: ") +
                    verdictLine(verdicts.value(largest + 100)));
    if (max)
        params.size = largest;
    if (params.size > largest)
        return fail(
            QStringLiteral("Invalid Configuration: ") +
            verdictLine(verdicts.value(transform ? (largest == 0 ? kTransformSizeNotPossibleRow
                                                                 : kTransformSizeAboveMaximumRow)
                                                 : kCreateSizeAboveMaximumRow)));
    if (params.size < kMinimumSizeMB)
        return fail(QStringLiteral("Invalid Configuration: ") +
                    verdictLine(verdicts.value(transform ? kTransformSizeBelowMinimumRow
                                                         : kCreateSizeBelowMinimumRow)));
    if (!transform && !api_.IsValidArrayName(params.name))
        return fail(QStringLiteral(
            "Invalid name: array names may not be the same as existing array names or "
            "contain the following characters: ()^,.=|\"-[]"));
    bool spare = false;
    bool hotSwap = false;
    for (int i = 0; i < params.diskCount; ++i) {
        const int id = int(params.disks[i]);
        spare |= api_.DiskIsDedicatedSpare(id) || api_.DiskIsGlobalSpare(id);
        hotSwap |= api_.DiskHasHotSwap(id);
    }
    if (transform) {
        // The source's own members count too: the system learns of either side's
        // devices only at the next boot.
        for (int id : api_.GetDiskIds())
            hotSwap |= api_.IsMember(arrayId, id) && api_.DiskHasHotSwap(id);
    }
    if (spare && !confirm(QStringLiteral("Warning: You have included a spare in the array. "
                                         "Would you like to continue?")))
        return fail(QStringLiteral("refused: a spare is included (answer yes or pass --yes)"));
    if (transform && hotSwap &&
        !confirm(QStringLiteral(
            "Warning: This array transform includes a hot swappable device. After the "
            "transform completes a system reboot must be performed to notify the OS of the "
            "array's underlying device changes. Would you like to continue?")))
        return fail(QStringLiteral("refused: a hot swap device (answer yes or pass --yes)"));
    // The transform asks in the create dialog's words: users know the question by them.
    if (api_.HasDriveMixing(params) &&
        !confirm(QStringLiteral(
            "Warning: drive mixing detected! For best performance, it is not recommended to "
            "mix drives of substantially different performance. Do you want to create "
            "anyway?")))
        return fail(QStringLiteral("refused: drive mixing (answer yes or pass --yes)"));
    const int done =
        transform ? api_.TransformArray(params, arrayId, false) : api_.CreateArray(params, false);
    if (done < 1)
        return fail(transform ? QStringLiteral("Transform command failed")
                              : QStringLiteral("Create failed"));
    if (transform)
        out_ << "transform of array " << arrayId << " started (" << params.size << " MB)\n";
    else
        out_ << "created array " << params.name << " (" << params.size << " MB)\n";
    return SK_CLI_DONE;
}

// --- array verbs ---

int SK_Cli::arrayVerb(const QString &verb, const QStringList &args)
{
    QStringList rest = args;
    QString sub;
    if (verb == QLatin1String("check") || verb == QLatin1String("scan")) {
        sub = rest.value(0);
        if (sub != QLatin1String("start") && sub != QLatin1String("stop"))
            return usage(QStringLiteral("%1 start|stop N").arg(verb));
        rest.removeFirst();
    }
    int id = 0;
    if (const int status = arrayArg(rest, 0, id))
        return status;
    bool done = false;
    if (verb == QLatin1String("delete") || verb == QLatin1String("secure-erase")) {
        if (!needAdmin())
            return SK_CLI_FAILED;
        const bool erase = verb == QLatin1String("secure-erase");
        if (!confirm(QStringLiteral("%1 array %2? All data on it will be lost.")
                         .arg(erase ? QStringLiteral("Securely erase") : QStringLiteral("Delete"))
                         .arg(id)))
            return fail(QStringLiteral("refused: pass --yes to %1").arg(verb));
        done = erase ? api_.SecureEraseArray(id) : api_.DeleteArray(id);
    } else if (verb == QLatin1String("rename")) {
        const QString newName = rest.value(1).trimmed();
        if (newName.isEmpty())
            return usage(QStringLiteral("rename N NAME"));
        if (!api_.IsValidArrayName(newName))
            return fail(QStringLiteral(
                "Invalid name: array names may not be the same as existing array names or "
                "contain the following characters: ()^,.=|\"-[]"));
        done = api_.RenameArray(id, newName);
    } else if (verb == QLatin1String("hide")) {
        if (!needAdmin())
            return SK_CLI_FAILED;
        done = api_.HideArray(id);
    } else if (verb == QLatin1String("unhide")) {
        done = api_.UnhideArray(id);
    } else if (verb == QLatin1String("check")) {
        done = api_.ConsistencyCheck(id, sub == QLatin1String("stop"));
    } else if (verb == QLatin1String("scan")) {
        done = api_.SetBackgroundScan(id, sub == QLatin1String("start"));
    } else if (verb == QLatin1String("cache")) {
        const QString word = rest.value(1).toUpper();
        static const QStringList words{QStringLiteral("NC"), QStringLiteral("R"),
                                       QStringLiteral("W"), QStringLiteral("RW")};
        if (!words.contains(word))
            return usage(QStringLiteral("cache N NC|R|W|RW"));
        done = api_.SetArrayCache(id, word);
    }
    return done ? SK_CLI_DONE : fail(QStringLiteral("%1 failed").arg(verb));
}

int SK_Cli::taskVerb(const QStringList &args)
{
    const QString action = args.value(0);
    int id = 0;
    if (action == QLatin1String("priority")) {
        if (const int status = arrayArg(args, 1, id))
            return status;
        bool ok = false;
        const int level = args.value(2).toInt(&ok);
        if (!ok || level < 1 || level > 10)
            return usage(QStringLiteral("task priority N LEVEL, LEVEL 1 (highest) to 10"));
        return api_.SetTaskPriority(id, level) ? SK_CLI_DONE
                                               : fail(QStringLiteral("priority refused"));
    }
    if (action != QLatin1String("pause") && action != QLatin1String("resume") &&
        action != QLatin1String("remove"))
        return usage(QStringLiteral("task pause|resume|remove|priority N"));
    if (const int status = arrayArg(args, 1, id))
        return status;
    if (action == QLatin1String("remove") &&
        !confirm(QStringLiteral("Remove the task of array %1?").arg(id)))
        return fail(QStringLiteral("refused: pass --yes to remove"));
    return api_.TaskControl(id, action) ? SK_CLI_DONE
                                        : fail(QStringLiteral("task %1 refused").arg(action));
}

int SK_Cli::spareVerb(const QStringList &args)
{
    const QString action = args.value(0);
    if (action != QLatin1String("add") && action != QLatin1String("remove"))
        return usage(QStringLiteral("spare add|remove DISK [--array N]"));
    int disk = 0;
    if (const int status = diskArg(args, 1, disk))
        return status;
    const bool add = action == QLatin1String("add");
    bool done = false;
    if (arrayOpt_.isEmpty()) {
        done = add ? api_.AssignGlobalSpare(disk) : api_.RemoveGlobalSpare(disk);
    } else {
        int id = 0;
        if (const int status = arrayArg({arrayOpt_}, 0, id))
            return status;
        done = add ? api_.AssignDedicatedSpare(id, disk) : api_.RemoveDedicatedSpare(id, disk);
    }
    return done ? SK_CLI_DONE : fail(QStringLiteral("spare %1 refused").arg(action));
}

int SK_Cli::diskVerb(const QString &setting, const QStringList &args)
{
    int disk = 0;
    if (setting != QLatin1String("cache") && setting != QLatin1String("read-ahead") &&
        setting != QLatin1String("smart-polling"))
        return usage(QStringLiteral("disk cache|read-ahead|smart-polling DISK on|off"));
    if (const int status = diskArg(args, 0, disk))
        return status;
    bool on = false;
    if (!onOff(args.value(1), on))
        return usage(QStringLiteral("on or off is needed"));
    SK_DiskManage request;
    request.disks[0] = static_cast<quint32>(disk);
    request.diskCount = 1;
    bool done = false;
    if (setting == QLatin1String("cache")) {
        (on ? request.writeOn : request.writeOff) = 1;
        done = api_.ManageDiskCache(request);
    } else if (setting == QLatin1String("read-ahead")) {
        (on ? request.readOn : request.readOff) = 1;
        done = api_.ManageDiskCache(request);
    } else {
        (on ? request.smartOn : request.smartOff) = 1;
        done = api_.ManageDiskSmart(request);
    }
    return done ? SK_CLI_DONE : fail(QStringLiteral("disk %1 refused").arg(setting));
}

int SK_Cli::initVerb(const QStringList &args, bool clearMetadata)
{
    if (args.isEmpty() || args.size() > SK_MAX_LIST_DISKS)
        return usage(QStringLiteral("one or more disks are needed"));
    SK_InitDisks request;
    request.clearMetadata = clearMetadata ? 1 : 0;
    for (int i = 0; i < args.size(); ++i) {
        int disk = 0;
        if (const int status = diskArg(args, i, disk))
            return status;
        if (!api_.DiskCanBeInitialized(disk, false))
            return fail(QStringLiteral("disk %1 cannot be initialised").arg(args[i]));
        request.disks[request.diskCount++] = static_cast<quint32>(disk);
    }
    if (!needAdmin())
        return SK_CLI_FAILED;
    if (!confirm(QStringLiteral("%1 %2? Data on these disks will be lost.")
                     .arg(clearMetadata ? QStringLiteral("Clear the metadata of")
                                        : QStringLiteral("Initialise"),
                          args.join(QLatin1Char(' ')))))
        return fail(QStringLiteral("refused: pass --yes"));
    return api_.InitializeDisks(request) ? SK_CLI_DONE : fail(QStringLiteral("refused"));
}

int SK_Cli::blinkVerb(const QStringList &args)
{
    const QString what = args.value(0);
    bool on = false;
    if (!onOff(args.value(2), on))
        return usage(QStringLiteral("blink disk DISK on|off, or blink array N on|off"));
    int id = 0;
    if (what == QLatin1String("disk")) {
        if (const int status = diskArg(args, 1, id))
            return status;
        return api_.BlinkDisk(id, on) ? SK_CLI_DONE : fail(QStringLiteral("blink refused"));
    }
    if (what == QLatin1String("array")) {
        if (const int status = arrayArg(args, 1, id))
            return status;
        return api_.BlinkArray(id, on, 0) ? SK_CLI_DONE : fail(QStringLiteral("blink refused"));
    }
    return usage(QStringLiteral("blink disk|array"));
}

int SK_Cli::removalVerb(const QStringList &args)
{
    const QString what = args.value(0);
    int id = 0;
    if (what == QLatin1String("disk")) {
        if (const int status = diskArg(args, 1, id))
            return status;
    } else if (what == QLatin1String("array")) {
        if (const int status = arrayArg(args, 1, id))
            return status;
    } else {
        return usage(QStringLiteral("prepare-removal disk DISK | array N"));
    }
    if (!needAdmin())
        return SK_CLI_FAILED;
    if (!confirm(QStringLiteral("Prepare %1 %2 for removal?").arg(what, args.value(1))))
        return fail(QStringLiteral("refused: pass --yes"));
    if (what == QLatin1String("disk"))
        return api_.PrepareDiskRemoval(id) ? SK_CLI_DONE
                                           : fail(QStringLiteral("prepare-removal failed"));
    const SK_RemovalResult result = api_.PrepareArrayRemoval(id);
    return result == SK_REMOVAL_READY
               ? SK_CLI_DONE
               : fail(QStringLiteral("prepare-removal failed (%1)").arg(int(result)));
}
