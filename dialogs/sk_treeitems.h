#pragma once
// Tree rows and the delegate shared by the main window's panes and the dialogs.

#include <QStyledItemDelegate>
#include <QTreeWidgetItem>

// Item roles every pane stores its own data in.
namespace SK_Role {
constexpr int DeviceId = Qt::UserRole;     // 256: disk or array id of the row
constexpr int Selected = Qt::UserRole + 1; // 257: the row was selected
constexpr int Expanded = Qt::UserRole + 2; // 258: the row was expanded (old tree copy)
constexpr int TaskRow = Qt::UserRole + 3;  // 259: "expand" or "collapsed" on a task row
constexpr int SortKey = Qt::UserRole + 4;  // 260: the sort key of a cell
} // namespace SK_Role

// A row that sorts by the key stored in `sortRole` of the sort column: numbers and
// times as such, everything else as case-sensitive text. Floats sort as text, so
// "9.50%" comes after "10.00%" in the progress column; that is how the console
// always sorted and users know it.
class MyTreeWidgetItem : public QTreeWidgetItem
{
public:
    using QTreeWidgetItem::QTreeWidgetItem;
    bool operator<(const QTreeWidgetItem &other) const override;

    int sortRole = SK_Role::SortKey;
};

// A row that carries one number of its own (a disk or array id) for the dialogs.
class SK_RaidTreeWidgetItem : public QTreeWidgetItem
{
public:
    SK_RaidTreeWidgetItem(const SK_RaidTreeWidgetItem &other);
    SK_RaidTreeWidgetItem(QTreeWidget *parent, quint32 value);
    SK_RaidTreeWidgetItem(QTreeWidgetItem *parent, quint32 value);

    quint32 value() const { return m_value; }
    void setValue(quint32 value) { m_value = value; }

private:
    quint32 m_value = 0;
};

// Keeps a row's own text colour under the selection bar, so a failed (red) or
// degraded (orange) row stays recognisable when it is selected.
class CustomDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};
