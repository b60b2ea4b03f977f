// The Prometheus text exposition of one host: every family is declared once with HELP
// and TYPE, its samples follow, label values are escaped as the format asks.

#include "cli/sk_cli.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <map>
#include <vector>

namespace {

QString escaped(QString value)
{
    value.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
    value.replace(QLatin1Char('"'), QStringLiteral("\\\""));
    value.replace(QLatin1Char('\n'), QStringLiteral("\\n"));
    return value;
}

using Labels = std::vector<std::pair<QString, QString>>;

// Families in the order they were first declared, each with its samples.
class Exposition
{
public:
    void family(const QString &name, const QString &type, const QString &help)
    {
        if (!families_.count(name))
            order_.push_back(name);
        Family &f = families_[name];
        f.type = type;
        f.help = help;
    }
    void sample(const QString &name, const Labels &labels, double value)
    {
        QString line = name;
        if (!labels.empty()) {
            QStringList parts;
            for (const auto &label : labels)
                parts << label.first + QStringLiteral("=\"") + escaped(label.second) +
                             QLatin1Char('"');
            line += QLatin1Char('{') + parts.join(QLatin1Char(',')) + QLatin1Char('}');
        }
        line += QLatin1Char(' ') + QString::number(value, 'g', 15);
        families_[name].samples << line;
    }
    QString text() const
    {
        QString out;
        for (const QString &name : order_) {
            const Family &f = families_.at(name);
            out += QStringLiteral("# HELP ") + name + QLatin1Char(' ') + f.help + QLatin1Char('\n');
            out += QStringLiteral("# TYPE ") + name + QLatin1Char(' ') + f.type + QLatin1Char('\n');
            for (const QString &s : f.samples)
                out += s + QLatin1Char('\n');
        }
        return out;
    }

private:
    struct Family
    {
        QString type, help;
        QStringList samples;
    };
    std::map<QString, Family> families_;
    QStringList order_;
};

QString fixed(const char *text, std::size_t size)
{
    return QString::fromLatin1(text, static_cast<int>(qstrnlen(text, static_cast<uint>(size))))
        .trimmed();
}

// The first number of a text such as "35 C" or "12.5 MB/S"; false when there is none.
bool leadingNumber(const QString &text, double &value)
{
    static const QRegularExpression number(QStringLiteral("(-?\\d+(?:\\.\\d+)?)"));
    const QRegularExpressionMatch m = number.match(text);
    if (!m.hasMatch())
        return false;
    value = m.captured(1).toDouble();
    return true;
}

// A value of the full SMART report: the first `key` number after the attribute's name.
bool reportValue(const QString &report, const QString &name, const QString &key, double &value)
{
    const int at = report.indexOf(name);
    if (at < 0)
        return false;
    const int keyAt = report.indexOf(key, at);
    // The key must belong to this attribute, not to one further down.
    if (keyAt < 0 || keyAt - at > 200)
        return false;
    return leadingNumber(report.mid(keyAt + key.size(), 32), value);
}

// "12.34 GB" of the status bar back to bytes (decimal units, as it was made).
bool sizeTextBytes(const QString &text, double &bytes)
{
    double v = 0;
    if (!leadingNumber(text, v))
        return false;
    double unit = 1e6;
    if (text.endsWith(QLatin1String("GB")))
        unit = 1e9;
    else if (text.endsWith(QLatin1String("TB")))
        unit = 1e12;
    bytes = v * unit;
    return true;
}

QString fullSmartReport(SK_RaidApi &api, int diskId)
{
    QTemporaryDir dir;
    if (!dir.isValid())
        return QString();
    const QString report = dir.filePath(QStringLiteral("smart.txt"));
    const QString transcript = dir.filePath(QStringLiteral("transcript.txt"));
    api.RetrieveAllSmartInfo(diskId, report, transcript);
    QFile file(report);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromLatin1(file.read(1 << 20));
}

} // namespace

QString SK_CliMetrics(SK_RaidApi &api)
{
    Exposition e;
    e.family(QStringLiteral("skcli_up"), QStringLiteral("gauge"),
             QStringLiteral("1 when the RAID drivers answered this scrape."));
    e.sample(QStringLiteral("skcli_up"), {}, SK_RaidApi::Channel() ? 1 : 0);

    e.family(QStringLiteral("skcli_array_info"), QStringLiteral("gauge"),
             QStringLiteral("One series per array with its name and level; always 1."));
    e.family(QStringLiteral("skcli_array_state"), QStringLiteral("gauge"),
             QStringLiteral("1 for the array's current state word, as the console shows it."));
    e.family(QStringLiteral("skcli_array_normal"), QStringLiteral("gauge"),
             QStringLiteral("1 when the array is NORMAL (or READY while created), else 0."));
    e.family(QStringLiteral("skcli_array_capacity_bytes"), QStringLiteral("gauge"),
             QStringLiteral("Usable capacity of the array."));
    e.family(QStringLiteral("skcli_task_active"), QStringLiteral("gauge"),
             QStringLiteral("1 while a task of the given kind runs on the array."));
    e.family(QStringLiteral("skcli_task_paused"), QStringLiteral("gauge"),
             QStringLiteral("1 when the array's task is paused."));
    e.family(QStringLiteral("skcli_task_progress_ratio"), QStringLiteral("gauge"),
             QStringLiteral("Completed part of the array's task, 0 to 1."));
    for (const LogicalDrive *a : api.GetArrayList()) {
        const QString id = QString::number(a->Device);
        const QString name = fixed(a->DisplayName, sizeof a->DisplayName);
        const QString state = fixed(a->State, sizeof a->State);
        const Labels base{{QStringLiteral("array"), id}, {QStringLiteral("name"), name}};
        Labels info = base;
        info.emplace_back(QStringLiteral("level"), fixed(a->Type, sizeof a->Type));
        e.sample(QStringLiteral("skcli_array_info"), info, 1);
        Labels st = base;
        st.emplace_back(QStringLiteral("state"), state);
        e.sample(QStringLiteral("skcli_array_state"), st, 1);
        e.sample(QStringLiteral("skcli_array_normal"), base,
                 state == QLatin1String("NORMAL") || state == QLatin1String("READY") ? 1 : 0);
        e.sample(QStringLiteral("skcli_array_capacity_bytes"), base,
                 static_cast<double>(a->Capacity) * 512.0);
        if (api.ArrayHasTask(a->Device)) {
            Labels task = base;
            task.emplace_back(QStringLiteral("kind"),
                              fixed(a->TransformType, sizeof a->TransformType));
            e.sample(QStringLiteral("skcli_task_active"), task, 1);
            e.sample(QStringLiteral("skcli_task_paused"), task,
                     fixed(a->TransformState, sizeof a->TransformState) == QLatin1String("PAUSED")
                         ? 1
                         : 0);
            const double percent = qBound(0.0, double(a->TransformPercentComplete), 100.0);
            e.sample(QStringLiteral("skcli_task_progress_ratio"), task, percent / 100.0);
        }
    }

    e.family(QStringLiteral("skcli_disk_info"), QStringLiteral("gauge"),
             QStringLiteral("One series per disk with model, serial and port type; always 1."));
    e.family(QStringLiteral("skcli_disk_state"), QStringLiteral("gauge"),
             QStringLiteral("1 for the disk's current state word."));
    e.family(QStringLiteral("skcli_disk_online"), QStringLiteral("gauge"),
             QStringLiteral("1 when the disk is Online, 0 when it failed or is gone."));
    e.family(QStringLiteral("skcli_disk_smart_error"), QStringLiteral("gauge"),
             QStringLiteral("1 when the disk reports a SMART threshold crossed."));
    e.family(QStringLiteral("skcli_disk_spare"), QStringLiteral("gauge"),
             QStringLiteral("1 when the disk is a spare; role global or dedicated."));
    e.family(QStringLiteral("skcli_disk_temperature_celsius"), QStringLiteral("gauge"),
             QStringLiteral("SMART temperature."));
    e.family(QStringLiteral("skcli_disk_power_on_seconds"), QStringLiteral("gauge"),
             QStringLiteral("SMART power-on time (the disk counts whole hours)."));
    e.family(QStringLiteral("skcli_disk_reallocated_sectors"), QStringLiteral("gauge"),
             QStringLiteral("SMART reallocated sector count (attribute 5)."));
    e.family(QStringLiteral("skcli_disk_pending_sectors"), QStringLiteral("gauge"),
             QStringLiteral("SMART current pending sectors (attribute 197)."));
    e.family(QStringLiteral("skcli_disk_nvme_percentage_used"), QStringLiteral("gauge"),
             QStringLiteral("NVMe percentage of the device's life used."));
    for (int diskId : api.GetDiskIds()) {
        const SK_ConfigDisk *d = api.GetDiskRecord(api.GetDiskIndex(diskId));
        if (!d)
            continue;
        const Labels base{{QStringLiteral("disk"), QString::number(diskId)},
                          {QStringLiteral("port"), SK_CliModel::diskPort(api, diskId)}};
        Labels info = base;
        info.emplace_back(QStringLiteral("model"), fixed(d->Model, sizeof d->Model));
        info.emplace_back(QStringLiteral("serial"), api.SerialText(api.GetDiskIndex(diskId)));
        info.emplace_back(QStringLiteral("port_type"),
                          api.PortTypeText(api.GetDiskIndex(diskId)).trimmed());
        e.sample(QStringLiteral("skcli_disk_info"), info, 1);
        const QString state = fixed(d->State, sizeof d->State);
        Labels st = base;
        st.emplace_back(QStringLiteral("state"), state);
        e.sample(QStringLiteral("skcli_disk_state"), st, 1);
        e.sample(QStringLiteral("skcli_disk_online"), base,
                 state == QLatin1String("Online") || state == QLatin1String("SMART_error") ? 1 : 0);
        e.sample(QStringLiteral("skcli_disk_smart_error"), base,
                 state == QLatin1String("SMART_error") ? 1 : 0);
        if (api.DiskIsGlobalSpare(diskId) || api.DiskIsDedicatedSpare(diskId)) {
            Labels spare = base;
            spare.emplace_back(QStringLiteral("role"), api.DiskIsGlobalSpare(diskId)
                                                           ? QStringLiteral("global")
                                                           : QStringLiteral("dedicated"));
            e.sample(QStringLiteral("skcli_disk_spare"), spare, 1);
        }
        if (state != QLatin1String("Online") && state != QLatin1String("SMART_error"))
            continue; // a disk that is gone has no SMART to read
        const QString report = fullSmartReport(api, diskId);
        double v = 0;
        const bool nvme = api.IsNvmeDisk(diskId);
        if (nvme) {
            const QString key = QStringLiteral("Current Value:");
            if (reportValue(report, QStringLiteral("Temperature in Celsius"), key, v))
                e.sample(QStringLiteral("skcli_disk_temperature_celsius"), base, v);
            if (reportValue(report, QStringLiteral("Power on hours"), key, v))
                e.sample(QStringLiteral("skcli_disk_power_on_seconds"), base, v * 3600);
            if (reportValue(report, QStringLiteral("Percent of device life used"), key, v))
                e.sample(QStringLiteral("skcli_disk_nvme_percentage_used"), base, v);
        } else {
            // Read from the report rather than the overview call, which prints its
            // complaints on standard output and would break the exposition.
            const QString key = QStringLiteral("Raw Value:");
            const bool ssd =
                api.PortTypeText(api.GetDiskIndex(diskId)).contains(QLatin1String("SSD"));
            if (reportValue(report,
                            ssd ? QStringLiteral("Airflow Temperature")
                                : QStringLiteral("Temperature Celsius"),
                            key, v))
                e.sample(QStringLiteral("skcli_disk_temperature_celsius"), base, v);
            if (reportValue(report, QStringLiteral("Poweron Time (Hours)"), key, v))
                e.sample(QStringLiteral("skcli_disk_power_on_seconds"), base, v * 3600);
            if (reportValue(report, QStringLiteral("Reallocation Count"), key, v))
                e.sample(QStringLiteral("skcli_disk_reallocated_sectors"), base, v);
            if (reportValue(report, QStringLiteral("Pending Sectors"), key, v))
                e.sample(QStringLiteral("skcli_disk_pending_sectors"), base, v);
        }
    }

    SK_IoStats stats;
    QObject::connect(&api, &SK_RaidApi::StatsRetrieved,
                     [&stats](const SK_IoStats &s) { stats = s; });
    api.RetrieveStats();
    QObject::disconnect(&api, &SK_RaidApi::StatsRetrieved, nullptr, nullptr);
    const struct
    {
        const char *name;
        const char *type;
        const char *help;
        const QString *text;
        bool size;
        double scale;
    } io[] = {
        {"skcli_host_bytes_per_second", "gauge", "Host throughput over the last interval.",
         &stats.hostMBps, false, 1e6},
        {"skcli_disk_bytes_per_second", "gauge", "Disk throughput over the last interval.",
         &stats.diskMBps, false, 1e6},
        {"skcli_host_operations_per_second", "gauge", "Host requests per second.", &stats.hostIOps,
         false, 1},
        {"skcli_disk_operations_per_second", "gauge", "Disk requests per second.", &stats.diskIOps,
         false, 1},
        {"skcli_host_bytes_total", "counter", "Bytes the host moved since the driver started.",
         &stats.hostBytes, true, 1},
        {"skcli_disk_bytes_total", "counter", "Bytes the disks moved since the driver started.",
         &stats.diskBytes, true, 1},
    };
    for (const auto &m : io) {
        double v = 0;
        const bool ok = m.size ? sizeTextBytes(*m.text, v) : leadingNumber(*m.text, v);
        if (!ok)
            continue;
        v *= m.scale;
        e.family(QString::fromLatin1(m.name), QString::fromLatin1(m.type),
                 QString::fromLatin1(m.help));
        e.sample(QString::fromLatin1(m.name), {}, v);
    }
    return e.text();
}
