#pragma once
// What the create, transform and tier planning share. Not part of the service's
// interface.

#include "service/sk_raidapi.h"

namespace sk_service {

// The driver's device names of the disks of a request, in request order, with an
// empty spare table beside them: the planning never sends spares.
struct DiskSlots
{
    SK_DeviceName drives[SK_MAX_LIST_DISKS];
    SK_DeviceName spares[SK_MAX_SPARE_NAMES];
};

// Copies the name of each disk of `params` into its slot. False as soon as a disk
// fails the usable disk test.
bool fillDiskSlots(const SK_RaidApi &api, const SK_Create &params, DiskSlots &names);

// A verdict table: every text ends in a newline.
inline QList<QString> withNewlines(std::initializer_list<const char *> texts)
{
    QList<QString> list;
    for (const char *text : texts)
        list.append(QString::fromLatin1(text) + QLatin1Char('\n'));
    return list;
}

} // namespace sk_service
