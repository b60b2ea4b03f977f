#include "dialogs/sk_windowstate.h"

#include <QHeaderView>
#include <QSettings>
#include <QTreeWidget>

namespace SK_WindowState {

// A key that is absent reads as an empty state, which leaves the widget as it is.
void restore(QWidget *window, const char *geometryKey, std::initializer_list<ListKey> lists)
{
    const QSettings settings;
    window->restoreGeometry(settings.value(QLatin1String(geometryKey)).toByteArray());
    for (const ListKey &list : lists)
        list.first->header()->restoreState(
            settings.value(QLatin1String(list.second)).toByteArray());
}

void save(const QWidget *window, const char *geometryKey, std::initializer_list<ListKey> lists)
{
    QSettings settings;
    settings.setValue(QLatin1String(geometryKey), window->saveGeometry());
    for (const ListKey &list : lists)
        settings.setValue(QLatin1String(list.second), list.first->header()->saveState());
}

} // namespace SK_WindowState
