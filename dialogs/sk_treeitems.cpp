#include "dialogs/sk_treeitems.h"

#include <QDateTime>

bool MyTreeWidgetItem::operator<(const QTreeWidgetItem &other) const
{
    const int column = treeWidget() ? treeWidget()->sortColumn() : 0;
    const QVariant left = data(column, sortRole);
    const QVariant right = other.data(column, sortRole);
    switch (static_cast<int>(left.type())) {
    case QVariant::Invalid:
        return !right.isValid();
    case QVariant::Int:
        return left.toInt() < right.toInt();
    case QVariant::UInt:
        return left.toUInt() < right.toUInt();
    case QVariant::LongLong:
        return left.toLongLong() < right.toLongLong();
    case QVariant::ULongLong:
        return left.toULongLong() < right.toULongLong();
    case QVariant::Double:
        return left.toDouble() < right.toDouble();
    case QVariant::Char:
        return left.toChar() < right.toChar();
    case QVariant::Date:
        return left.toDate() < right.toDate();
    case QVariant::Time:
        return left.toTime() < right.toTime();
    case QVariant::DateTime:
        return left.toDateTime() < right.toDateTime();
    default:
        return QString::compare(left.toString(), right.toString(), Qt::CaseSensitive) < 0;
    }
}

SK_RaidTreeWidgetItem::SK_RaidTreeWidgetItem(const SK_RaidTreeWidgetItem &other)
    : QTreeWidgetItem(other), m_value(other.m_value)
{
}

SK_RaidTreeWidgetItem::SK_RaidTreeWidgetItem(QTreeWidget *parent, quint32 value)
    : QTreeWidgetItem(parent), m_value(value)
{
}

SK_RaidTreeWidgetItem::SK_RaidTreeWidgetItem(QTreeWidgetItem *parent, quint32 value)
    : QTreeWidgetItem(parent), m_value(value)
{
}

void CustomDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const
{
    QStyleOptionViewItem copy(option);
    initStyleOption(&copy, index);
    const QVariant foreground = index.data(Qt::ForegroundRole);
    QColor colour = Qt::white;
    if (foreground.isValid())
        colour = foreground.canConvert<QBrush>() ? foreground.value<QBrush>().color()
                                                 : foreground.value<QColor>();
    if (copy.state & QStyle::State_Selected)
        copy.palette.setBrush(QPalette::HighlightedText, colour);
    QStyledItemDelegate::paint(painter, copy, index);
}
