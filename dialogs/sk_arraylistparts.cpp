#include "dialogs/sk_arraylistparts.h"

#include "service/service.h"

#include <QCoreApplication>
#include <QStringList>

namespace SK_ArrayListParts {

namespace {

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
