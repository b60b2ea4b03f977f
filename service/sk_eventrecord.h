#pragma once
// One event of the driver's log as the console keeps it.

#include <QString>

// The time an event shows when the console didn't see it arrive.
inline QString SK_UnknownEventTime()
{
    return QStringLiteral("   --   ");
}

struct SK_EventRecord
{
    quint32 number = 0;
    qint32 code = 0;
    quint32 priority = 0; // 0 to 4; anything above shows as "Unknown"
    QString text;
    QString time; // SK_UnknownEventTime() when the event came before this run
    qint32 status = 0;
};
