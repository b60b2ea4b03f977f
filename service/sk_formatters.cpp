// The small texts every window shows for sizes, ports, serial numbers and severities.
// They live in one place so that all views agree on their look.

#include "service/sk_raidapi.h"

#include "driver/sk_platform.h"
#include "driver/sk_services.h"
#include "driver/sk_status.h"
#include "driver/sk_system_view.h"

#include <QByteArray>
#include <QStringList>

#include <cmath>
#include <cstdio>
#include <iterator>
#include <memory>

namespace {

// Disk features bits of the cache settings.
constexpr quint32 kReadCacheBit = 1u << 24;
constexpr quint32 kWriteCacheBit = 1u << 22;

// Port type bits.
constexpr quint32 kPort1_5G = 0x1;
constexpr quint32 kPort3G = 0x2;
constexpr quint32 kPort6G = 0x4;
constexpr quint32 kPortNvmeGen4 = 0x8;
constexpr quint32 kPortNvmeGen5 = 0x10;
constexpr quint32 kPortNvmeX2 = 0x20;
constexpr quint32 kPortNvmeX4 = 0x40;
constexpr quint32 kPortNvmeX8 = 0x80;
constexpr quint32 kPortSata = 0x100;
constexpr quint32 kPortNcq = 0x200;
constexpr quint32 kPortSsd = 0x800;
constexpr quint32 kPortExternal = 0x1000;
constexpr quint32 kPort4Kn = 0x8000;
constexpr quint32 kPortSas = 0x10000;
constexpr quint32 kPortNvmeGen2 = 0x10000000;
constexpr quint32 kPortNvme = 0x80000000;

// Filled once at start; severities are shown as they are, untranslated.
const QString severityNames[] = {
    QStringLiteral("Very Low"), QStringLiteral("Informational"), QStringLiteral("Warning"),
    QStringLiteral("Critical"), QStringLiteral("Fatal"),
};
const QString unknownSeverity = QStringLiteral("Unknown");

QString speedPrefix(quint32 portType)
{
    if (portType & kPort6G)
        return QStringLiteral("6G ");
    if (portType & kPort1_5G)
        return QStringLiteral("1.5G ");
    if (portType & kPort3G)
        return QStringLiteral("3G ");
    return QString();
}

QString nvmeText(quint32 portType)
{
    int generation = 3;
    if (portType & kPortNvmeGen4)
        generation = 4;
    else if (portType & kPortNvmeGen5)
        generation = 5;
    else if (portType & kPortNvmeGen2)
        generation = 2;
    QString text = QStringLiteral("NVMe Gen") + QString::number(generation);
    if (portType & kPortNvmeX2)
        text += QStringLiteral(" x2");
    else if (portType & kPortNvmeX4)
        text += QStringLiteral(" x4");
    else if (portType & kPortNvmeX8)
        text += QStringLiteral(" x8");
    return text;
}

QString attachedText(quint32 portType)
{
    const bool external = (portType & kPortExternal) != 0;
    if (portType & kPortSas)
        return QStringLiteral("SAS");
    if ((portType & (kPortNcq | kPortSsd)) == kPortNcq)
        return external ? QStringLiteral("eSATA/NCQ") : QStringLiteral("SATA/NCQ");
    if (portType & kPortSsd)
        return external ? QStringLiteral("eSATA/SSD") : QStringLiteral("SATA/SSD");
    if (portType & kPortSata)
        return external ? QStringLiteral("eSATA") : QStringLiteral("SATA");
    return QString();
}

// The value of `key` ("ProductVersion=") among the "Name=value" lines of a version row.
QString versionEntry(const QString &row, const QString &key)
{
    const QStringList lines = row.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (line.startsWith(key))
            return line.mid(key.size());
    }
    return QString();
}

} // namespace

void SK_RaidApi::CapacityText(qint64 sectors, char *out, std::size_t outSize)
{
    if (!out || outSize == 0)
        return;
    if (sectors <= 0) {
        std::snprintf(out, outSize, "0.0MB");
        return;
    }
    // Single precision on purpose: the figures must match those the drivers' own
    // tools print for the same disk.
    const float x = static_cast<float>(sectors) * 512.0f / 1000000.0f;
    if (x < 1000.0f)
        std::snprintf(out, outSize, "%0.1fMB", static_cast<double>(roundf(x)));
    else if (x < 1000000.0f)
        std::snprintf(out, outSize, "%0.1fGB", static_cast<double>(x / 1000.0f));
    else
        std::snprintf(out, outSize, "%0.1fTB", static_cast<double>(x / 1000000.0f));
}

QString SK_RaidApi::CapacityText(qint64 sectors)
{
    char text[64];
    CapacityText(sectors, text, sizeof text);
    return QString::fromLatin1(text);
}

QString SK_RaidApi::ByteSizeText(const QString &text)
{
    // The driver counts binary megabytes; the status bar shows decimal units.
    double value = text.toDouble() * 1024 * 1024 / 1000 / 1000;
    QString unit = QStringLiteral("MB");
    if (value > 1000) {
        value /= 1000;
        unit = QStringLiteral("GB");
        if (value > 1000) {
            value /= 1000;
            unit = QStringLiteral("TB");
        }
    }
    return QString::number(value, 'f', 2) + QLatin1Char(' ') + unit;
}

QString SK_RaidApi::CacheStateText(int disk) const
{
    const int index = GetDiskIndex(disk);
    const SK_ConfigDisk *record = index < 0 ? nullptr : GetDiskRecord(index);
    if (!record)
        return QStringLiteral("Unknown");
    const bool read = (record->Features & kReadCacheBit) != 0;
    const bool write = (record->Features & kWriteCacheBit) != 0;
    if (read && write)
        return QStringLiteral("RW");
    if (read)
        return QStringLiteral("R");
    if (write)
        return QStringLiteral("W");
    return QStringLiteral("NC");
}

QString SK_RaidApi::SerialText(int index) const
{
    const SK_ConfigDisk *record = index < 0 ? nullptr : GetDiskRecord(index);
    if (!record)
        return QStringLiteral(" ??");
    const QString serial = SK_FieldText(record->SerialNumber);
    // Drives pad their serial numbers at the end with underscores, some at the front
    // with blanks.
    int end = serial.size();
    while (end > 0 && serial.at(end - 1) == QLatin1Char('_'))
        --end;
    int begin = 0;
    while (begin < end && serial.at(begin) == QLatin1Char(' '))
        ++begin;
    return serial.mid(begin, end - begin);
}

QString SK_RaidApi::PortTypeText(int index) const
{
    const SK_ConfigDisk *record = index < 0 ? nullptr : GetDiskRecord(index);
    if (!record)
        return QStringLiteral(" ?? ");
    const quint32 portType = record->PortType;
    QString text = speedPrefix(portType) +
                   ((portType & kPortNvme) ? nvmeText(portType) : attachedText(portType));
    if (portType & kPort4Kn)
        text += QStringLiteral(" 4KN");
    return text;
}

QString SK_RaidApi::SeverityText(int severity)
{
    if (severity < 0 || severity >= static_cast<int>(std::size(severityNames)))
        return unknownSeverity;
    return severityNames[severity];
}

QString SK_RaidApi::GetMemberType(const QString &type)
{
    if (type == QLatin1String("RAID50"))
        return QStringLiteral("RAID5");
    if (type == QLatin1String("RAID60"))
        return QStringLiteral("RAID6");
    return QStringLiteral("RAID1");
}

int SK_RaidApi::GetDriverVersion(const QString &file, QString &out)
{
    out = QStringLiteral("Unknown");
    const std::string folder = SK_CurrentPlatform().system().systemDirectory() + "\\drivers";
    const QByteArray pattern = file.toLocal8Bit();
    constexpr std::uint32_t kRows = 4; // the name is exact: one row is expected
    const auto rows = std::make_unique<SK_FileVersionRow[]>(kRows);
    std::uint32_t count = 0;
    const std::uint32_t status =
        SK_FileVersionList(folder.c_str(), pattern.constData(), rows.get(), kRows, &count);
    if (status != SK_STS_SUCCESS && status != SK_STS_BUFFER_TOO_SMALL)
        return 0;
    for (std::uint32_t i = 0; i < count; ++i) {
        const QString row = QString::fromLocal8Bit(rows[i]);
        QString version = versionEntry(row, QStringLiteral("ProductVersion="));
        if (version.isEmpty())
            version = versionEntry(row, QStringLiteral("Product Version="));
        if (!version.isEmpty()) {
            out = version;
            return 1;
        }
    }
    return 0;
}
