#pragma once
// Helpers the main window's suites share: its panes and rows by name and id, and a
// refresh that returns once the worker has handed the array list back.

#include "app/app.h"
#include "support/widget_helpers.h"

#include <QSignalSpy>
#include <QTreeWidget>

inline QTreeWidget *pane(QWidget *window, const char *name)
{
    return widget<QTreeWidget>(window, name);
}

// The array's row in the array tree, or null.
inline QTreeWidgetItem *treeRow(QWidget *window, int id)
{
    QTreeWidgetItem *root = pane(window, "arrayTree")->topLevelItem(0);
    for (int i = 0; root && i < root->childCount(); ++i) {
        if (root->child(i)->data(0, Qt::UserRole).toInt() == id)
            return root->child(i);
    }
    return nullptr;
}

// One full refresh: true once its array list has been handed back and every pane
// rebuilt. The window's own timers are stopped first, so only this refresh runs.
inline bool refreshNow(SK_MainWindow &window)
{
    for (QTimer *timer : window.findChildren<QTimer *>())
        timer->stop();
    QSignalSpy handedBack(&window, &SK_MainWindow::refreshed);
    window.menu_refresh();
    return handedBack.wait(10000);
}

// Waits for the start's first refresh to show `count` arrays.
inline bool arraysShown(SK_MainWindow &window, int count)
{
    return QTest::qWaitFor(
        [&] { return pane(&window, "arrayListTree")->topLevelItemCount() == count; }, 10000);
}
