#pragma once
// A dialog's size and place and the column layout of its lists, kept in the settings
// under the dialog's own keys: restored when it opens, saved when it closes.

#include <initializer_list>
#include <utility>

class QTreeWidget;
class QWidget;

namespace SK_WindowState {

// A list of the dialog and the settings key of its header state.
using ListKey = std::pair<QTreeWidget *, const char *>;

void restore(QWidget *window, const char *geometryKey, std::initializer_list<ListKey> lists);
void save(const QWidget *window, const char *geometryKey, std::initializer_list<ListKey> lists);

} // namespace SK_WindowState
