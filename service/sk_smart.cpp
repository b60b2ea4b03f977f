// SMART data of one disk: the few values of the overview table, and the full report
// the overview dialog appends to its log files. The decoding lives in
// sk_smart_decode.cpp; this file reads the driver and writes the files.

#include "service/sk_applog.h"
#include "service/sk_raidapi.h"
#include "service/sk_smart_decode.h"

#include <QFile>
#include <QTextStream>

#include <cstdio>
#include <cstring>

namespace {

constexpr std::uint32_t kPortNvme = 0x80000000u;
constexpr std::uint32_t kPortSsd = 0x800u;

const char *const kNoSmartText = "Device reports no SMART Attribute values, or not supported.\n";

enum class ReadOutcome { Read, NoSmart, Failed };

bool isNvme(const SK_ConfigDisk &disk)
{
    return (disk.PortType & kPortNvme) != 0;
}

// One SMART read into `buffer`, which must be a tracked block: the command layer sends
// the whole reply area to the driver before it reads the answer back into it.
ReadOutcome readSmart(const SK_ConfigDisk &disk, SKTL_AlignedBuffer &buffer, std::uint32_t &status)
{
    status = SK_STS_NO_MEMORY_AVAILABLE;
    if (!buffer.ok())
        return ReadOutcome::Failed;
    SK_DeviceName name[1];
    SK_CopyText(name[0], sizeof name[0], disk.Name);
    status = SK_ApiManagePhysicalDeviceBuf(SK_RaidApi::Channel(), 1, name, 0,
                                           isNvme(disk) ? SK_DISK_SMART_NVME : SK_DISK_SMART_ATA,
                                           buffer.data(), SK_SMART_REPLY_SIZE, 0, 0);
    if (status == SK_STS_SUCCESS)
        return ReadOutcome::Read;
    if (status == SK_STS_NOT_SUPPORT || status == SK_STS_NOT_IMPLEMENTED)
        return ReadOutcome::NoSmart;
    return ReadOutcome::Failed;
}

SmartSummary freshSummary()
{
    SmartSummary summary;
    summary.status = QStringLiteral("Failed");
    return summary;
}

void writeReport(int diskId, const SK_ConfigDisk &disk, const QString &report,
                 const QString &reportPath, const QString &transcriptPath)
{
    const QString when = SK_AppLog::timeStamp();
    QFile file;
    if (SK_AppLog::open(file, reportPath, SK_AppLog::Writer::Plain)) {
        QTextStream out(&file);
        out << "-------------------------------------------------" << Qt::endl;
        out << "Disk " << diskId << " ( " << disk.ControllerNumber << ", " << disk.Channel
            << "): " << SK_FieldText(disk.Model) << Qt::endl;
        out << when << Qt::endl;
        out << report << Qt::endl;
        file.close();
    }
    QFile transcript;
    if (SK_AppLog::open(transcript, transcriptPath, SK_AppLog::Writer::Plain)) {
        QTextStream out(&transcript);
        out << when << report << Qt::endl;
    }
}

} // namespace

SmartSummary SK_RaidApi::GetSmartInfo(int diskId)
{
    SmartSummary summary = freshSummary();
    const SK_ConfigDisk *disk = GetDiskRecord(GetDiskIndex(diskId));
    if (!disk)
        return summary;

    SKTL_AlignedBuffer buffer(SK_SMART_REPLY_SIZE, "SK_RaidApi::GetSmartInfo");
    std::uint32_t status = 0;
    switch (readSmart(*disk, buffer, status)) {
    case ReadOutcome::NoSmart:
        summary.status = QString::fromLatin1(kNoSmartText);
        return summary;
    case ReadOutcome::Failed:
        std::printf("status failed %x!\n", status);
        std::printf("--------------------------------------\n");
        std::fflush(stdout);
        return summary;
    case ReadOutcome::Read:
        break;
    }

    const SK_SmartView view{buffer.data(), SK_SMART_REPLY_SIZE};
    const bool isSsd = (disk->PortType & kPortSsd) != 0;
    if (!isNvme(*disk) && !SK_SmartHasAtaAttributes(view)) {
        std::printf("%s", kNoSmartText);
        std::fflush(stdout);
        return summary;
    }
    const SK_SmartOverview overview =
        isNvme(*disk) ? SK_SmartNvmeOverview(view, isSsd) : SK_SmartAtaOverview(view, isSsd);
    summary.powerOnHours = QString::fromStdString(overview.powerOnHours);
    summary.temperature = QString::fromStdString(overview.temperature);
    summary.powerCycles = QString::fromStdString(overview.powerCycles);
    return summary;
}

SmartSummary SK_RaidApi::RetrieveAllSmartInfo(int diskId, const QString &reportPath,
                                              const QString &transcriptPath)
{
    SmartSummary summary = freshSummary();
    const SK_ConfigDisk *disk = GetDiskRecord(GetDiskIndex(diskId));
    if (!disk)
        return summary;

    QString report;
    {
        SKTL_AlignedBuffer buffer(SK_SMART_REPLY_SIZE, "SK_RaidApi::RetrieveAllSmartInfo");
        std::uint32_t status = 0;
        switch (readSmart(*disk, buffer, status)) {
        case ReadOutcome::NoSmart:
            summary.status = QString::fromLatin1(kNoSmartText);
            return summary;
        case ReadOutcome::Failed:
            return summary;
        case ReadOutcome::Read:
            break;
        }
        const SK_SmartView view{buffer.data(), SK_SMART_REPLY_SIZE};
        report = QString::fromStdString(isNvme(*disk) ? SK_SmartNvmeReport(view)
                                                      : SK_SmartAtaReport(view));
    }
    // The buffer is gone before the files are opened: a slow disk holds no memory.
    if (!report.isEmpty())
        writeReport(diskId, *disk, report, reportPath, transcriptPath);
    return summary;
}
