#pragma once
// Records that cross between the windows and the array service.

#include "commands/commands.h"
#include "config/config.h"
#include "events/events.h"

#include <QByteArray>
#include <QMetaType>
#include <QString>

// A fixed-width text field of a record: up to its first zero byte and never past its
// end, since the drivers fill a field to the last byte without a terminator.
template <std::size_t N>
QString SK_FieldText(const char (&field)[N])
{
    return QString::fromLatin1(field, static_cast<int>(qstrnlen(field, static_cast<uint>(N))));
}

// The name under which signals and views know one array record of the picture.
using LogicalDrive = SK_ConfigArray;

// Sector counts as the dialogs pass them around.
using SK_UINT64 = quint64;

constexpr int SK_MAX_LIST_DISKS = 64;

// One create (or transform) request as the dialogs fill it. Sizes are decimal
// megabytes; disks are ids in list order.
struct SK_Create
{
    QString name;
    QString type;
    qint32 size = 0;
    QString cache;
    qint32 cacheTagSize = 0;
    quint32 disks[SK_MAX_LIST_DISKS] = {};
    qint32 diskCount = 0;
    QString diskLabels[SK_MAX_LIST_DISKS];
    bool backgroundScan = false;
    bool zeroCreate = false;
    bool skipInit = false;
    bool leaveData = false;
};

// A tier or cache array asked for over two existing arrays. `type` ("RAIDCACHE" or
// "RAIDTIER") and `size` ride along for the dialog; the driver learns the kind from
// the cache word.
struct SK_Tier
{
    QString name;
    QString type;
    qint32 size = 0;
    QString cache;
    quint32 arrays[SK_MAX_LIST_DISKS] = {}; // the cold array, then the hot one
    qint32 arrayCount = 0;
    quint8 hotHasVolumes = 0;
    quint8 coldHasNoVolumes = 0;
};

// How a create or transform type string goes to the driver: the driver's type code
// and the two counts whose product is the number of disks.
struct SK_CreateShape
{
    quint32 driverType = 0;
    quint32 first = 0;
    quint32 second = 0;
    bool takesSkipInit = false; // only levels that initialise can skip it
};

struct SK_InitDisks
{
    quint32 disks[SK_MAX_LIST_DISKS] = {};
    qint32 diskCount = 0;
    quint8 clearMetadata = 0; // 1 from the clear metadata dialog
};

enum diskManageCMD {
    readAheadEnable = 0,
    readAheadDisable = 1,
    writeCacheEnable = 2,
    writeCacheDisable = 3,
    smartEnable = 4,
    smartDisable = 5,
};

struct SK_DiskManage
{
    quint32 disks[SK_MAX_LIST_DISKS] = {};
    qint32 diskCount = 0;
    quint8 readOn = 0;
    quint8 writeOn = 0;
    quint8 smartOn = 0;
    quint8 readOff = 0;
    quint8 writeOff = 0;
    quint8 smartOff = 0;
};

// The few SMART values of the overview table. `status` says "Failed" unless the disk
// reported that it has no attributes; callers look at the other fields.
struct SmartSummary
{
    QString status;
    QString powerOnHours;
    QString temperature;
    QString powerCycles;
};

// The label texts of the status bar's throughput figures.
struct SK_IoStats
{
    QString hostMBps;
    QString diskMBps;
    QString hostIOps;
    QString diskIOps;
    QString line13;
    QString line12;
    QString line18;
    QString hostBytes;
    QString diskBytes;
};

// One entry of the driver's event log as the event view shows it.
struct SK_EventMessage
{
    quint32 number = 0;
    qint32 code = 0;
    quint32 priority = 0;
    QString text;
    QString text2; // kept empty
    quint32 status = 0;
};
