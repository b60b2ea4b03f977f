#pragma once
// What the array lists of the delete and caching dialogs share: the texts of an
// array's state, task, OS name and cache tag size, each translated in the context of
// the dialog that shows it.

#include <QString>

class SK_RaidApi;

namespace SK_ArrayListParts {

// The state word as the array views show it; unknown words read "UNKNOWN".
QString stateText(const char *context, const QString &state);
// The task word of a transform type; unknown words read "UNKNOWN".
QString taskText(const char *context, const QString &transformType);
// "Hidden" for a hidden array, else the operating system's name of the array at
// `lookupId`, or "none" when the system has none for it.
QString osNameText(const SK_RaidApi &api, const char *context, bool hidden, int lookupId);
// The cache tag size of a plain array; "NA" for a legacy one.
QString cacheTagText(const char *context, const QString &type, int cacheTagSize);

} // namespace SK_ArrayListParts
