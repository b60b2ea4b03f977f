#include "dialogs/sk_arraylistparts.h"

#include "service/service.h"

#include <QCoreApplication>
#include <QStringList>

namespace SK_ArrayListParts {

namespace {

// The words below are looked up in their caller's context, which the translation tools
// cannot follow; this list puts each word into the context of every dialog that shows it.
// A new caller adds its rows here.
[[maybe_unused]] constexpr const char *kCallerWords[] = {
    QT_TRANSLATE_NOOP("SK_DeleteForm", "NORMAL"),
    QT_TRANSLATE_NOOP("SK_DeleteForm", "READY"),
    QT_TRANSLATE_NOOP("SK_DeleteForm", "CRITICAL"),
    QT_TRANSLATE_NOOP("SK_DeleteForm", "OFFLINE"),
    QT_TRANSLATE_NOOP("SK_DeleteForm", "OUTDATE"),
    QT_TRANSLATE_NOOP("SK_DeleteForm", "CACHE OFFLINE"),
    QT_TRANSLATE_NOOP("SK_DeleteForm", "UNKNOWN"),
    QT_TRANSLATE_NOOP("SK_DeleteForm", "Hidden"),
    QT_TRANSLATE_NOOP("SK_DeleteForm", "none"),
    QT_TRANSLATE_NOOP("SK_TieringDialog", "NORMAL"),
    QT_TRANSLATE_NOOP("SK_TieringDialog", "READY"),
    QT_TRANSLATE_NOOP("SK_TieringDialog", "CRITICAL"),
    QT_TRANSLATE_NOOP("SK_TieringDialog", "OFFLINE"),
    QT_TRANSLATE_NOOP("SK_TieringDialog", "OUTDATE"),
    QT_TRANSLATE_NOOP("SK_TieringDialog", "CACHE OFFLINE"),
    QT_TRANSLATE_NOOP("SK_TieringDialog", "UNKNOWN"),
    QT_TRANSLATE_NOOP("SK_TieringDialog", "Hidden"),
    QT_TRANSLATE_NOOP("SK_TieringDialog", "none"),
    QT_TRANSLATE_NOOP("SK_TieringDialog", "NA"),
    QT_TRANSLATE_NOOP("SK_TaskPriorityDialog", "TRANSFORM"),
    QT_TRANSLATE_NOOP("SK_TaskPriorityDialog", "CREATE"),
    QT_TRANSLATE_NOOP("SK_TaskPriorityDialog", "CHECK"),
    QT_TRANSLATE_NOOP("SK_TaskPriorityDialog", "COPY"),
    QT_TRANSLATE_NOOP("SK_TaskPriorityDialog", "RESTORE"),
    QT_TRANSLATE_NOOP("SK_TaskPriorityDialog", "NOT ACTIVE"),
    QT_TRANSLATE_NOOP("SK_TaskPriorityDialog", "CHECK BITMAP"),
    QT_TRANSLATE_NOOP("SK_TaskPriorityDialog", "FLUSH BITMAP"),
    QT_TRANSLATE_NOOP("SK_TaskPriorityDialog", "SECURE ERASE"),
    QT_TRANSLATE_NOOP("SK_TaskPriorityDialog", "PAGE MOVE"),
    QT_TRANSLATE_NOOP("SK_TaskPriorityDialog", "TIER MOVE"),
    QT_TRANSLATE_NOOP("SK_TaskPriorityDialog", "ZERO CREATE"),
    QT_TRANSLATE_NOOP("SK_TaskPriorityDialog", "UNKNOWN"),
};

QString translated(const char *context, const QString &word)
{
    return QCoreApplication::translate(context, word.toLatin1().constData());
}

} // namespace

QString stateText(const char *context, const QString &state)
{
    static const QStringList plain = {QStringLiteral("NORMAL"), QStringLiteral("READY"),
                                      QStringLiteral("CRITICAL"), QStringLiteral("OFFLINE"),
                                      QStringLiteral("OUTDATE")};
    if (plain.contains(state))
        return translated(context, state);
    if (state == QLatin1String("CACHE_OFFLINE"))
        return QCoreApplication::translate(context, "CACHE OFFLINE");
    return QCoreApplication::translate(context, "UNKNOWN");
}

QString taskText(const char *context, const QString &type)
{
    // The driver's words with underscores read with blanks; a zeroing create is shown
    // by what it does for the user.
    static const QStringList plain = {QStringLiteral("TRANSFORM"), QStringLiteral("CREATE"),
                                      QStringLiteral("CHECK"), QStringLiteral("COPY"),
                                      QStringLiteral("RESTORE")};
    if (plain.contains(type))
        return translated(context, type);
    static const QStringList spaced = {
        QStringLiteral("NOT_ACTIVE"),   QStringLiteral("CHECK_BITMAP"),
        QStringLiteral("FLUSH_BITMAP"), QStringLiteral("SECURE_ERASE"),
        QStringLiteral("PAGE_MOVE"),    QStringLiteral("TIER_MOVE")};
    if (spaced.contains(type))
        return translated(context, QString(type).replace(QLatin1Char('_'), QLatin1Char(' ')));
    if (type == QLatin1String("ZERO"))
        return QCoreApplication::translate(context, "ZERO CREATE");
    return QCoreApplication::translate(context, "UNKNOWN");
}

QString osNameText(const SK_RaidApi &api, const char *context, bool hidden, int lookupId)
{
    // A hidden array is not asked about: the system no longer sees it.
    if (hidden)
        return QCoreApplication::translate(context, "Hidden");
    const QString name = lookupId < 0 ? QString() : api.OsDiskNumber(lookupId);
    return name.isEmpty() ? QCoreApplication::translate(context, "none") : name;
}

QString cacheTagText(const char *context, const QString &type, int cacheTagSize)
{
    if (type == QLatin1String("LEGACY"))
        return QCoreApplication::translate(context, "NA");
    static const QStringList sizes = {QStringLiteral("err"),   QStringLiteral("64KB"),
                                      QStringLiteral("128KB"), QStringLiteral("256KB"),
                                      QStringLiteral("512KB"), QStringLiteral("1024KB"),
                                      QStringLiteral("2048KB")};
    return sizes.value(cacheTagSize);
}

} // namespace SK_ArrayListParts
