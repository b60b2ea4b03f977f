// The show verbs' documents and the aligned tables. Texts come from the service's own
// formatters so the shell and the window say the same thing.

#include "cli/sk_cli.h"

#include <QJsonArray>

#include <cstring>

namespace {

QString fixed(const char *text, std::size_t size)
{
    return QString::fromLatin1(text, static_cast<int>(qstrnlen(text, static_cast<uint>(size))))
        .trimmed();
}

template <std::size_t N>
QString fixed(const char (&text)[N])
{
    return fixed(text, N);
}

QString hexId(quint64 id)
{
    return QStringLiteral("0x") + QString::number(id, 16);
}

qint64 bytesOf(quint64 sectors)
{
    // The picture counts 512-byte sectors; anything past what a signed 64-bit byte count
    // holds is a damaged record and shows as 0.
    return sectors > (quint64(1) << 54) ? 0 : static_cast<qint64>(sectors * 512);
}

int diskIndexOfId(const SK_RaidApi &api, int diskId)
{
    return api.GetDiskIndex(diskId);
}

} // namespace

QString SK_CliTable::render() const
{
    QVector<int> widths(header_.size(), 0);
    auto measure = [&widths](const QStringList &row) {
        for (int i = 0; i < row.size() && i < widths.size(); ++i)
            widths[i] = qMax(widths[i], row[i].size());
    };
    measure(header_);
    for (const QStringList &row : rows_)
        measure(row);
    QString text;
    auto line = [&text, &widths](const QStringList &row) {
        QString out;
        for (int i = 0; i < widths.size(); ++i) {
            const QString cell = row.value(i);
            out += i + 1 < widths.size() ? cell.leftJustified(widths[i] + 2) : cell;
        }
        // Trailing blanks of an empty last column would only confuse diff and grep.
        while (out.endsWith(QLatin1Char(' ')))
            out.chop(1);
        text += out + QLatin1Char('\n');
    };
    line(header_);
    for (const QStringList &row : rows_)
        line(row);
    return text;
}

namespace SK_CliModel {

QString diskPort(const SK_RaidApi &api, int diskId)
{
    const SK_ConfigDisk *disk = api.GetDiskRecord(diskIndexOfId(api, diskId));
    if (!disk)
        return QString();
    return QString::number(disk->ControllerNumber) + QLatin1Char(':') +
           QString::number(disk->Channel);
}

int findDisk(const SK_RaidApi &api, const QString &name)
{
    const QStringList parts = name.split(QLatin1Char(':'));
    bool okController = false, okChannel = false;
    if (parts.size() == 2) {
        const int controller = parts[0].toInt(&okController);
        const int channel = parts[1].toInt(&okChannel);
        return okController && okChannel ? api.GetDiskIdByPort(controller, channel) : -1;
    }
    bool ok = false;
    const int id = name.toInt(&ok);
    return ok && api.GetDiskIds().contains(id) ? id : -1;
}

QJsonObject controller(const SK_RaidApi &api, int index)
{
    const SK_ConfigController *c = api.GetControllerRecord(index);
    if (!c)
        return QJsonObject();
    QJsonObject o;
    o[QStringLiteral("number")] = c->Number;
    o[QStringLiteral("name")] = fixed(c->Name);
    o[QStringLiteral("bios")] = fixed(c->BiosBuild);
    o[QStringLiteral("build")] = fixed(c->BuildName);
    o[QStringLiteral("ports")] = c->NumberOfPorts;
    o[QStringLiteral("id")] = hexId(c->ControllerId);
    o[QStringLiteral("pciVendor")] = c->PciVendorID;
    o[QStringLiteral("pciDevice")] = c->PciDeviceID;
    return o;
}

QJsonObject disk(const SK_RaidApi &api, int diskId)
{
    const int index = diskIndexOfId(api, diskId);
    const SK_ConfigDisk *d = api.GetDiskRecord(index);
    if (!d)
        return QJsonObject();
    QJsonObject o;
    o[QStringLiteral("id")] = diskId;
    o[QStringLiteral("port")] = diskPort(api, diskId);
    o[QStringLiteral("controller")] = d->ControllerNumber;
    o[QStringLiteral("channel")] = d->Channel;
    o[QStringLiteral("wwid")] = hexId(d->DiskId);
    o[QStringLiteral("model")] = fixed(d->Model);
    o[QStringLiteral("serial")] = api.SerialText(index);
    o[QStringLiteral("firmware")] = fixed(d->FirmwareRevision);
    o[QStringLiteral("state")] = fixed(d->State);
    o[QStringLiteral("portType")] = api.PortTypeText(index).trimmed();
    o[QStringLiteral("nvme")] = api.IsNvmeDisk(diskId);
    o[QStringLiteral("capacityBytes")] = bytesOf(d->Capacity);
    o[QStringLiteral("capacityText")] =
        SK_RaidApi::CapacityText(static_cast<qint64>(bytesOf(d->Capacity) / 512));
    o[QStringLiteral("largestFreeBytes")] = bytesOf(d->LargestFreeSpace);
    o[QStringLiteral("cache")] = api.CacheStateText(diskId);
    o[QStringLiteral("smartPolling")] = api.DiskSmartEnabled(diskId);
    QString role = QStringLiteral("none");
    if (api.DiskIsGlobalSpare(diskId))
        role = QStringLiteral("global");
    else if (api.DiskIsDedicatedSpare(diskId))
        role = QStringLiteral("dedicated");
    o[QStringLiteral("spare")] = role;
    QJsonArray memberOf, spareOf;
    for (const LogicalDrive *a : api.GetArrayList()) {
        if (api.IsMember(a->Device, diskId))
            memberOf.append(a->Device);
        if (api.IsDedicatedSpareOf(a->Device, diskId))
            spareOf.append(a->Device);
    }
    o[QStringLiteral("arrays")] = memberOf;
    o[QStringLiteral("dedicatedTo")] = spareOf;
    return o;
}

QJsonObject array(const SK_RaidApi &api, int arrayId)
{
    const SK_ConfigArray *a = api.GetArrayRecord(arrayId, true);
    if (!a)
        return QJsonObject();
    QJsonObject o;
    o[QStringLiteral("id")] = arrayId;
    o[QStringLiteral("name")] = fixed(a->DisplayName);
    o[QStringLiteral("level")] = fixed(a->Type);
    o[QStringLiteral("state")] = fixed(a->State);
    o[QStringLiteral("capacityBytes")] = bytesOf(a->Capacity);
    o[QStringLiteral("capacityText")] =
        SK_RaidApi::CapacityText(static_cast<qint64>(bytesOf(a->Capacity) / 512));
    o[QStringLiteral("cache")] = fixed(a->Cache);
    o[QStringLiteral("hidden")] = api.ArrayIsHidden(arrayId);
    o[QStringLiteral("system")] = api.ArrayIsSystem(arrayId);
    QJsonArray members, spares;
    for (int diskId : api.GetDiskIds()) {
        if (api.IsMember(arrayId, diskId)) {
            QJsonObject m;
            m[QStringLiteral("disk")] = diskId;
            m[QStringLiteral("port")] = diskPort(api, diskId);
            m[QStringLiteral("failed")] = api.ElementIsFailed(arrayId, diskId);
            members.append(m);
        }
        if (api.IsDedicatedSpareOf(arrayId, diskId))
            spares.append(diskId);
    }
    o[QStringLiteral("members")] = members;
    o[QStringLiteral("spares")] = spares;
    if (api.ArrayHasTask(arrayId)) {
        QJsonObject t;
        t[QStringLiteral("kind")] = fixed(a->TransformType);
        t[QStringLiteral("state")] = fixed(a->TransformState);
        t[QStringLiteral("percent")] = static_cast<double>(a->TransformPercentComplete);
        t[QStringLiteral("priority")] = a->TaskPriority;
        o[QStringLiteral("task")] = t;
    } else {
        o[QStringLiteral("task")] = QJsonValue::Null;
    }
    return o;
}

QJsonObject summary(const SK_RaidApi &api)
{
    QJsonArray controllers, disks, arrays;
    for (int i = 0; i < api.GetControllerCount(); ++i)
        controllers.append(controller(api, i));
    for (int id : api.GetDiskIds())
        disks.append(disk(api, id));
    for (const LogicalDrive *a : api.GetArrayList())
        arrays.append(array(api, a->Device));
    QJsonObject o;
    o[QStringLiteral("host")] = api.ComputerName();
    o[QStringLiteral("administrator")] = api.IsAdministrator();
    o[QStringLiteral("controllers")] = controllers;
    o[QStringLiteral("disks")] = disks;
    o[QStringLiteral("arrays")] = arrays;
    return o;
}

} // namespace SK_CliModel
