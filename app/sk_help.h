#pragma once
// The Help menu's document viewer, apart from the window so that it can be tested: the
// documents live in the resources and a reader needs a real file.

#include <QString>

// Copies the embedded document `resource` to `file` in the application's folder of the
// temporary location, replacing an earlier copy even if that one was made read-only.
// Returns the path of the copy, or an empty text if no copy could be made.
QString SK_CopyHelpDocument(const QString &resource, const QString &file);
