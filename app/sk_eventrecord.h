#pragma once
// One event of the driver's log as the event view keeps it.

#include <QString>

struct SK_EventRecord
{
    quint32 number = 0;
    qint32 code = 0;
    quint32 priority = 0; // 0 to 4; anything above shows as "Unknown"
    QString text;
    QString time; // "   --   " when the event came before this run
    qint32 status = 0;
};
