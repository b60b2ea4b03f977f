// Which array actions a selected array allows, read from the rules without a window,
// against a fresh emulated host in each row.

#include "service_lab.h"
#include "varied_scenario.h"

#include <QtTest>

#include <functional>

namespace {

using namespace sk_emu;
using namespace lab;
using A = SK_ArrayAction;

struct Case
{
    std::function<void(Model &)> shape; // how the row's host differs from the default
    quint32 array = 0;
    bool admin = true;
    SK_ArrayActions previous; // what the window showed before
};

Array &arrayAt(Model &m, int route)
{
    return *m.findArrayByRoute(static_cast<std::uint32_t>(route));
}

void runCheck(Model &m, std::uint32_t state)
{
    arrayAt(m, kData).task = Task{code::TaskCheck, state, 100};
}

const QMap<QString, A> &names()
{
    static const QMap<QString, A> table = {{"Transform", A::Transform},
                                           {"RemoveSpares", A::RemoveSpares},
                                           {"SecureErase", A::SecureErase},
                                           {"Delete", A::Delete},
                                           {"Name", A::Name},
                                           {"PrepareRemove", A::PrepareRemove},
                                           {"Hide", A::Hide},
                                           {"Identify", A::Identify},
                                           {"Priority", A::Priority},
                                           {"Resume", A::Resume},
                                           {"Pause", A::Pause},
                                           {"RemoveTask", A::RemoveTask},
                                           {"ScanStart", A::ScanStart},
                                           {"ScanStop", A::ScanStop},
                                           {"ConsistencyStart", A::ConsistencyStart},
                                           {"ConsistencyStop", A::ConsistencyStop},
                                           {"ScanMenu", A::ScanMenu},
                                           {"ConsistencyMenu", A::ConsistencyMenu},
                                           {"CacheMenu", A::CacheMenu},
                                           {"TaskMenu", A::TaskMenu},
                                           {"DeleteMultiple", A::DeleteMultiple},
                                           {"CacheArrays", A::CacheArrays}};
    return table;
}

SK_ArrayActions allOn()
{
    SK_ArrayActions on;
    for (A action : names())
        on.setEnabled(action, true);
    return on;
}

// The entries that differ from what the row expects, by name.
QStringList mismatches(const SK_ArrayActions &actions, const QStringList &on)
{
    QStringList wrong;
    for (auto it = names().cbegin(); it != names().cend(); ++it) {
        if (actions.isEnabled(it.value()) != on.contains(it.key()))
            wrong << (on.contains(it.key()) ? QStringLiteral("off: ") : QStringLiteral("on: ")) +
                         it.key();
    }
    return wrong;
}

} // namespace

Q_DECLARE_METATYPE(Case)
Q_DECLARE_METATYPE(SK_CacheCheck)
Q_DECLARE_METATYPE(SK_HideText)

class tst_arrayactions : public QObject
{
    Q_OBJECT

private slots:
    void rulesFollowTheSelectedArray_data();
    void rulesFollowTheSelectedArray();
    void theBaseStateKeepsTheTaskEntries();
};

void tst_arrayactions::rulesFollowTheSelectedArray_data()
{
    QTest::addColumn<Case>("input");
    QTest::addColumn<QStringList>("on"); // every other entry is off
    QTest::addColumn<SK_CacheCheck>("cacheCheck");
    QTest::addColumn<SK_HideText>("hideText");

    const QStringList idle = {"Transform",
                              "Name",
                              "Hide",
                              "Identify",
                              "PrepareRemove",
                              "Delete",
                              "SecureErase",
                              "CacheMenu",
                              "ScanStart",
                              "ScanMenu",
                              "ConsistencyStart",
                              "ConsistencyMenu",
                              "DeleteMultiple"};
    const auto without = [](QStringList list, const QStringList &gone) {
        for (const QString &name : gone)
            list.removeAll(name);
        return list;
    };
    const auto with = [](QStringList list, const QStringList &more) { return list + more; };
    const SK_CacheCheck readWrite = SK_CacheCheck::ReadWrite; // the system array's policy
    const SK_CacheCheck read = SK_CacheCheck::Read;           // the data array's
    const SK_HideText hide = SK_HideText::Hide;

    QTest::newRow("no array selected leaves only the multiple delete")
        << Case{nullptr, 0, true, {}} << QStringList{"DeleteMultiple"} << SK_CacheCheck::Unchanged
        << SK_HideText::Unchanged;
    QTest::newRow("a quiet data array allows every change")
        << Case{nullptr, kData, true, {}} << idle << read << hide;
    QTest::newRow("the system array can't be deleted, hidden, removed or erased")
        << Case{nullptr, kSystem, true, {}}
        << without(idle, {"Delete", "Hide", "PrepareRemove", "SecureErase"}) << readWrite << hide;
    QTest::newRow("a running check offers its stop and the task entries")
        << Case{[](Model &m) { runCheck(m, code::TaskStarted); }, kData, true, {}}
        << QStringList{"Identify",        "Delete",        "Priority",  "TaskMenu",
                       "Pause",           "RemoveTask",    "ScanStart", "ConsistencyStop",
                       "ConsistencyMenu", "DeleteMultiple"}
        << SK_CacheCheck::Unchanged << hide;
    QTest::newRow("a paused check can be resumed")
        << Case{[](Model &m) { runCheck(m, code::TaskPaused); }, kData, true, {}}
        << QStringList{"Identify",        "Delete",        "Priority",  "TaskMenu",
                       "Resume",          "RemoveTask",    "ScanStart", "ConsistencyStop",
                       "ConsistencyMenu", "DeleteMultiple"}
        << SK_CacheCheck::Unchanged << hide;
    QTest::newRow("a running transform can't be removed and has no check")
        << Case{[](Model &m) { m = variedScenario(); }, kGrowing, true, {}}
        << QStringList{"Identify", "Delete",    "Priority",      "TaskMenu",
                       "Pause",    "ScanStart", "DeleteMultiple"}
        << SK_CacheCheck::Unchanged << hide;
    QTest::newRow("a critical array with a dedicated spare isn't checked")
        << Case{[](Model &m) { m = variedScenario(); }, kData, true, {}}
        << with(without(idle, {"ConsistencyStart"}), {"RemoveSpares"}) << read << hide;
    QTest::newRow("an offline array can only be deleted")
        << Case{[](Model &m) { arrayAt(m, kData).state = code::ArrayOffline; }, kData, true, {}}
        << QStringList{"Delete", "DeleteMultiple"} << read << hide;
    QTest::newRow("a scanning array offers the scan's stop")
        << Case{[](Model &m) { arrayAt(m, kData).attributes |= 0x400; }, kData, true, {}}
        << with(without(idle, {"ScanStart"}), {"ScanStop"}) << read << hide;
    QTest::newRow("a hidden array reads Un-Hide")
        << Case{[](Model &m) { m = variedScenario(); }, kScratch, true, {}}
        << without(idle, {"ConsistencyStart", "ConsistencyMenu"}) << readWrite
        << SK_HideText::UnHide;
    QTest::newRow("a tier can only be renamed, hidden or deleted")
        << Case{[](Model &m) { m = variedScenario(); }, kTier, true, allOn()}
        << QStringList{"Name", "Hide", "Delete", "Priority", "DeleteMultiple", "CacheArrays"}
        << SK_CacheCheck::Unchanged << hide;
    QTest::newRow("a tier's part stays where it is")
        << Case{[](Model &m) { m = variedScenario(); }, kFast, true, {}}
        << without(idle, {"Delete", "Hide", "PrepareRemove", "SecureErase", "ConsistencyStart",
                          "ConsistencyMenu"})
        << readWrite << hide;
    QTest::newRow("a legacy array is looked after, never reshaped")
        << Case{[](Model &m) { arrayAt(m, kData).layout.type = code::TypeLegacy; }, kData, true, {}}
        << without(idle,
                   {"Transform", "SecureErase", "CacheMenu", "ConsistencyStart", "ConsistencyMenu"})
        << read << hide;
    QTest::newRow("without rights the destructive entries stay off")
        << Case{nullptr, kData, false, allOn()}
        << with(without(idle, {"Delete", "SecureErase", "PrepareRemove", "Hide", "DeleteMultiple"}),
                {"Priority"})
        << read << hide;
    QTest::newRow("a vanished array ends the rules before the rights")
        << Case{nullptr, 9, false, allOn()}
        << QStringList{"Priority", "TaskMenu", "DeleteMultiple", "CacheArrays"}
        << SK_CacheCheck::Unchanged << SK_HideText::Unchanged;
}

void tst_arrayactions::rulesFollowTheSelectedArray()
{
    QFETCH(Case, input);
    QFETCH(QStringList, on);
    QFETCH(SK_CacheCheck, cacheCheck);
    QFETCH(SK_HideText, hideText);
    Model model = defaultScenario();
    if (input.shape)
        input.shape(model);
    Lab f(model);
    SK_ArrayActionContext context;
    context.array = input.array;
    context.arrayCount = f->GetArrayCount();
    context.admin = input.admin;
    context.caching = true;
    const SK_ArrayActionState state = allowedArrayActions(*f.api, context, input.previous);
    const QStringList wrong = mismatches(state.actions, on);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QStringLiteral(", "))));
    QCOMPARE(state.cacheCheck, cacheCheck);
    QCOMPARE(state.hideText, hideText);
    QCOMPARE(state.arrayVanished, input.array == 9);
}

// The base state leaves "Priority", the task submenu and the two pair entries alone and
// takes the disk entries from their own tests.
void tst_arrayactions::theBaseStateKeepsTheTaskEntries()
{
    Lab f;
    const SK_ArrayActions base = baseArrayActions(*f.api, allOn());
    QCOMPARE(mismatches(base, {"Priority", "TaskMenu", "DeleteMultiple", "CacheArrays"}),
             QStringList());
    QCOMPARE(base.isEnabled(A::Initialize), f->AnyDiskCanBeInitialized(false));
    QCOMPARE(base.isEnabled(A::ClearMetadata), f->AnyDiskCanBeInitialized(true));
}

QTEST_GUILESS_MAIN(tst_arrayactions)
#include "tst_arrayactions.moc"
