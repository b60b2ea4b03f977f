#pragma once
// SK_RaidApi: the one class through which the windows and dialogs reach the RAID
// drivers. It answers questions from one process-wide configuration picture and turns
// the user's intentions into SK_Api... commands. Instances are cheap: all real state
// (the picture, the channel table, the log path) is shared by every instance, so each
// dialog and worker makes its own and drops it at will.

#include "service/sk_records.h"
#include "service/sk_results.h"

#include <QList>
#include <QObject>
#include <QString>

// The texts of the create and transform verdicts, row verdict + 100, each ending in a
// newline. The two numberings differ: never look a verdict up in the other table.
extern const QList<QString> createErrorList;
extern const QList<QString> transformErrorList;

class SK_RaidApi : public QObject
{
    Q_OBJECT

public:
    // Enumerates the cores and reads the configuration.
    explicit SK_RaidApi(QObject *parent = nullptr);
    ~SK_RaidApi() override;

    // --- Life cycle ---
    void RefreshConfig();
    bool Rescan();
    // Stores the application log's path for this instance and for the whole process.
    void SetLogPath(const QString &path);
    QString LogPath() const { return logPath; }

    // --- Lookups on the picture; none of them talks to the driver ---
    int GetDiskCount() const;
    int GetArrayCount() const;
    SK_ConfigDisk *GetDiskRecord(int index) const;
    SK_ConfigArray *GetArrayByIndex(int index, bool first = true) const;
    SK_ConfigArray *GetArrayRecord(int id, bool first = true) const;
    int GetDiskIndex(int id) const;
    int GetValidDiskIndex(int id) const;
    int GetArrayIndex(int id) const;
    int GetDiskIdByPort(int controller, int channel) const;
    const char *GetDiskNameById(quint64 deviceId) const;
    int GetArrayIdByDeviceId(quint64 deviceId) const;
    QList<int> GetDiskIds() const;
    QList<LogicalDrive *> GetArrayList() const;
    int GetControllerCount() const;
    SK_ConfigController *GetControllerRecord(int index) const;

    // --- Disk queries ---
    bool IsNvmeDisk(int disk) const;
    bool IsFlashDisk(int disk) const;
    bool DiskHasAdvancedTrim(int disk) const;
    bool DiskHasSimpleTrim(int disk) const;
    bool DiskHasHotSwap(int disk) const;
    bool DiskSmartEnabled(int disk) const;
    bool DiskIsGlobalSpare(int disk) const;

    // --- Array membership and state ---
    bool IsMember(int array, int disk) const;
    int DiskUseCount(int disk) const;
    bool DiskIsDedicatedSpare(int disk) const;
    bool IsDedicatedSpareOf(int array, int disk) const;
    bool DiskIsInSystemArray(int disk) const;
    bool DiskIsInRestore(int disk) const;
    bool ElementIsFailed(int array, int disk) const;
    bool ArrayIsSystem(int array) const;
    bool ArrayHasTask(int array) const;
    bool ArrayIsHidden(int array) const;
    bool ArrayIsChecking(int array) const;
    bool ArrayIsNormal(int array) const;
    bool ArrayIsRedundant(int array) const;
    static bool TypeIsRedundant(const QString &type);
    static bool TypeIsNested(const QString &type);
    static bool TypeIsPlain(const char *type);
    bool ArrayIsTierPart(int array) const;
    bool ArrayHasSharedDisk(int array) const;
    bool ArrayUsesSystemDisk(int array) const;
    bool DiskFitsAsSpare(int array, int disk) const;
    quint64 SmallestMemberMB(int index) const;
    int TierMemberLookup(int index) const;
    bool DiskCanBeInitialized(int disk, bool onlyType) const;
    bool AnyDiskCanBeInitialized(bool onlyType) const;
    bool CapacityAtLeast(int id, quint64 megabytes) const;
    bool CanRemoveDisk(int disk) const;
    bool ArrayIsBigger(int a, int b) const;
    bool ArrayCanBeColdTier(int array) const;
    bool ArrayCanBeHotTier(int array) const;
    bool ArrayCanTrimExisting(int array) const;
    bool DiskMixesWithArray(int array, int disk) const;
    bool IsAdministrator() const;
    bool DriverIsLoaded(const QString &file) const;
    // The host's name, for the root of the array tree.
    QString ComputerName() const;
    // The operating system's disk number of the array as text; empty when it has none.
    QString OsDiskNumber(int array) const;
    // Whether the named notifier program runs on this host.
    bool IsProcessRunning(const QString &imageName) const;

    // --- Commands: each refuses as its rules say and sends nothing then ---
    bool AssignGlobalSpare(int disk);
    bool RemoveGlobalSpare(int disk);
    bool AssignDedicatedSpare(int array, int disk);
    bool RemoveDedicatedSpare(int array, int disk);
    bool DeleteArray(int id);
    bool HideArray(int id);
    bool UnhideArray(int id);
    bool SecureEraseArray(int id);
    bool RenameArray(int array, const QString &name);
    bool SetArrayCache(int array, const QString &cacheText);
    bool CheckArray(int id);
    // The Array menu's own check entries: start (stop false) or stop a consistency
    // check, switch the background scan, drop every dedicated spare of the array.
    bool ConsistencyCheck(int array, bool stop);
    bool SetBackgroundScan(int array, bool on);
    bool RemoveArraySpares(int array);
    bool TaskControl(int array, const QString &action);
    bool SetTaskPriority(int array, int level);
    static int TaskPriorityLevel(int percent);
    bool InitializeDisks(const SK_InitDisks &disks);
    bool ManageDiskCache(const SK_DiskManage &disks);
    bool ManageDiskSmart(const SK_DiskManage &disks);
    bool BlinkDisk(int disk, bool on);
    bool BlinkArray(int array, bool on, int pattern = 0);
    bool PrepareDiskRemoval(int disk);

    // --- Create, transform and tier planning ---
    // Negative results are verdicts: row verdict + 100 of createErrorList (create) or
    // transformErrorList (transform). With queryMaxOnly the result is the largest size
    // in decimal megabytes; otherwise 1 when done, 0 when the driver refused.
    int CreateArray(SK_Create params, bool queryMaxOnly);
    int TransformArray(SK_Create params, int arrayId, bool queryMaxOnly);
    // No verdicts here: 0 is all a failure says.
    int CreateTier(SK_Tier params, bool queryMaxOnly);
    bool IsValidArrayName(const QString &name) const;
    bool HasDriveMixing(const SK_Create &params) const;
    bool ArrayCanTrim(const SK_Create &params) const;
    // The driver's type code and counts of a type string over `diskCount` disks; false
    // for the types that have no create path of their own.
    static bool CreateShape(const QString &type, int diskCount, SK_CreateShape &shape);
    // The cache word of "NC", "R", "W"; "RW", "WR" and anything else read and write.
    static quint32 CacheWord(const QString &cache);
    // Option flags of a create, and the tier's flag for a hot array that holds volumes.
    static constexpr quint32 kCreateBackgroundScan = 0x400;
    static constexpr quint32 kCreateSkipInit = 0x1000;
    static constexpr quint32 kCreateLeaveData = 0x4000;
    static constexpr quint32 kCreateZero = 0x10000;
    static constexpr quint32 kTierHotHasVolumes = 0x40000;
    static constexpr quint32 kCacheRead = 0x80000000u;
    static constexpr quint32 kCacheWrite = 0x40000000u;
    // The cache tag sizes the dialogs offer, by row: the driver's default, 64, 128 and
    // 256 KB; the command layer turns them into tag codes.
    static qint32 CacheTagSizeOfRow(int row);
    // Sizes between the dialogs' decimal megabytes and the driver's binary ones. Both
    // pass through single precision on the way, so large sizes lose their low bits;
    // the two are not exact inverses.
    static quint64 ToBinaryMB(qint32 decimalMB);
    static int ToDecimalMB(quint64 binaryMB);

    // --- Volume dismount and device removal ---
    QString DriveLetters(int arrayId) const;
    bool HoldsSystemDrive(int arrayId) const;
    bool GetVolumeDeviceNumber(QChar letter, quint32 &deviceNumber) const;
    bool FindMatchingDeviceInstance(quint32 deviceNumber, quint32 &instance) const;
    bool LockAndDismountvolume(QChar letter) const;
    SK_RemovalResult RequestDeviceEject(QChar letter) const;
    SK_RemovalResult DismountAndEject(QChar letter) const;
    SK_RemovalResult PrepareArrayRemoval(int arrayId);

    // --- SMART ---
    SmartSummary GetSmartInfo(int diskId);
    SmartSummary RetrieveAllSmartInfo(int diskId, const QString &reportPath,
                                      const QString &transcriptPath);

    // --- Developer dump ---
    int WriteDeveloperDump(const QString &path);

    // --- Display texts ---
    static void CapacityText(qint64 sectors, char *out, std::size_t outSize);
    static QString CapacityText(qint64 sectors);
    static QString ByteSizeText(const QString &text);
    QString CacheStateText(int disk) const;
    QString SerialText(int index) const;
    QString PortTypeText(int index) const;
    static QString SeverityText(int severity);
    static QString GetMemberType(const QString &type);
    // The product version of a driver file in the system's driver folder; 0 and
    // "Unknown" when none is found.
    static int GetDriverVersion(const QString &file, QString &out);

    // --- Statistics and events ---
    void RetrieveStats();
    quint32 ParseEventLine(quint32 &cursor, qint32 &code, quint32 &priority, QString &text,
                           quint32 textLimit, qint32 *params, quint32 language);
    SK_EventMessage GetEventMessage(quint32 number, quint32 language);

    // The channel the service talks through: the first core found, or null.
    static const SK_CoreEntry *Channel();
    static int CoreCount();

signals:
    void StatsRetrieved(SK_IoStats ioStats);

private:
    QString logPath;
};
