// The enablement rules of the array actions, one function per step, in the order in
// which they apply.

#include "service/sk_arrayactions.h"

#include "service/sk_raidapi.h"

#include <cstring>

namespace {

using A = SK_ArrayAction;

bool is(const char *field, const char *word)
{
    return std::strcmp(field, word) == 0;
}

bool isTierOrCache(const SK_ConfigArray &record)
{
    return is(record.Type, "RAIDTIER") || is(record.Type, "RAIDCACHE");
}

SK_CacheCheck cacheCheckFor(const char *policy)
{
    if (is(policy, "NC"))
        return SK_CacheCheck::None;
    if (is(policy, "R"))
        return SK_CacheCheck::Read;
    if (is(policy, "W"))
        return SK_CacheCheck::Write;
    if (is(policy, "RW"))
        return SK_CacheCheck::ReadWrite;
    return SK_CacheCheck::Unchanged;
}

// While a task runs it can be paused, resumed or removed (a transform can't be
// removed), and a check can be stopped; the array itself is left alone.
void enableForRunningTask(const SK_ConfigArray &record, SK_ArrayActions &actions)
{
    actions.enable({A::Priority, A::TaskMenu, A::RemoveTask});
    const bool paused = is(record.TransformState, "PAUSED");
    actions.setEnabled(A::Resume, paused);
    actions.setEnabled(A::Pause, !paused);
    if (is(record.TransformType, "CHECK")) {
        actions.disable({A::ConsistencyStart});
        actions.enable({A::ConsistencyStop, A::ConsistencyMenu});
    } else {
        actions.disable({A::ConsistencyMenu});
    }
    if (is(record.TransformType, "TRANSFORM"))
        actions.disable({A::RemoveTask});
    actions.disable({A::Transform, A::RemoveSpares, A::Name, A::ScanMenu, A::CacheMenu});
}

// An idle array can be changed in every way; its cache entry shows the current policy.
void enableForIdleArray(const SK_ConfigArray &record, SK_ArrayActionState &state)
{
    SK_ArrayActions &actions = state.actions;
    actions.disable({A::Resume, A::Pause, A::RemoveTask, A::TaskMenu});
    actions.enable(
        {A::Transform, A::SecureErase, A::Hide, A::PrepareRemove, A::Name, A::CacheMenu});
    actions.setEnabled(A::RemoveSpares, record.SpareCount > 0);
    state.cacheCheck = cacheCheckFor(record.Cache);
}

// An array of disks: the consistency check and scan always, then what its task allows.
void enableForArray(const SK_RaidApi &api, const SK_ConfigArray &record, SK_ArrayActionState &state)
{
    SK_ArrayActions &actions = state.actions;
    actions.enable({A::ConsistencyStart, A::ConsistencyMenu});
    actions.disable({A::ConsistencyStop});
    const bool scanning = (record.Attributes & 0x400) != 0;
    actions.setEnabled(A::ScanStart, !scanning);
    actions.setEnabled(A::ScanStop, scanning);
    if (api.ArrayHasTask(record.Device))
        enableForRunningTask(record, actions);
    else
        enableForIdleArray(record, state);
}

// A legacy array is only looked after, never reshaped, checked or erased.
void limitForLegacyArray(SK_ArrayActions &actions)
{
    actions.disable({A::ConsistencyMenu, A::ConsistencyStart, A::ConsistencyStop, A::RemoveSpares,
                     A::Transform, A::SecureErase, A::CacheMenu});
}

// A tier or cache pair can only be renamed, hidden or deleted.
void limitForTierOrCache(const SK_RaidApi &api, SK_ArrayActions &actions)
{
    actions = baseArrayActions(api, actions);
    actions.disable({A::ScanMenu, A::ConsistencyMenu, A::CacheMenu, A::TaskMenu, A::PrepareRemove,
                     A::Identify});
    actions.enable({A::Name, A::Hide, A::Delete});
}

// What the array's place and state forbid: a part of a tier or the system array stays,
// a plain array has nothing to check, a critical one isn't checked, an offline one
// takes no change, and an array on the system disk can't be prepared for removal.
void limitForRoleAndState(const SK_RaidApi &api, const SK_ConfigArray &record,
                          SK_ArrayActions &actions)
{
    const int id = record.Device;
    if (api.ArrayIsTierPart(id))
        actions.disable({A::Delete, A::Hide, A::PrepareRemove, A::SecureErase});
    if (api.ArrayIsSystem(id))
        actions.disable({A::Delete, A::Hide, A::PrepareRemove, A::SecureErase});
    if (!api.ArrayIsRedundant(id))
        actions.disable(
            {A::ConsistencyMenu, A::ConsistencyStart, A::ConsistencyStop, A::RemoveSpares});
    if (is(record.State, "CRITICAL")) {
        actions.disable({A::ConsistencyStart});
    } else if (is(record.State, "OFFLINE")) {
        actions.disable({A::Transform, A::RemoveSpares, A::SecureErase, A::Name, A::PrepareRemove,
                         A::Hide, A::Identify, A::Resume, A::Pause, A::RemoveTask, A::ScanStart,
                         A::ScanStop, A::ScanMenu, A::ConsistencyStart, A::ConsistencyStop,
                         A::ConsistencyMenu, A::CacheMenu});
    }
    if (actions.isEnabled(A::PrepareRemove) && api.ArrayUsesSystemDisk(id))
        actions.disable({A::PrepareRemove});
}

void limitForUser(const SK_ArrayActionContext &context, SK_ArrayActions &actions)
{
    actions.disable({A::DeleteMultiple, A::Delete, A::SecureErase, A::PrepareRemove, A::Hide});
    if (context.caching)
        actions.disable({A::CacheArrays});
}

} // namespace

SK_ArrayActions baseArrayActions(const SK_RaidApi &api, SK_ArrayActions previous)
{
    previous.disable({A::Transform, A::RemoveSpares, A::SecureErase, A::Delete, A::Name,
                      A::PrepareRemove, A::Hide, A::Identify, A::Resume, A::Pause, A::RemoveTask,
                      A::ScanStart, A::ScanStop, A::ConsistencyStart, A::ConsistencyStop,
                      A::ScanMenu, A::ConsistencyMenu, A::CacheMenu});
    previous.setEnabled(A::Initialize, api.AnyDiskCanBeInitialized(false));
    previous.setEnabled(A::ClearMetadata, api.AnyDiskCanBeInitialized(true));
    return previous;
}

SK_ArrayActionState allowedArrayActions(const SK_RaidApi &api, const SK_ArrayActionContext &context,
                                        SK_ArrayActions previous)
{
    SK_ArrayActionState state;
    SK_ArrayActions &actions = state.actions;
    actions = baseArrayActions(api, previous);
    if (context.arrayCount >= 2 && context.admin)
        actions.enable({A::DeleteMultiple});

    if (context.array > 0) {
        const SK_ConfigArray *record = api.GetArrayRecord(static_cast<int>(context.array), true);
        // A vanished array ends the rules here, before the rights are looked at.
        if (!record) {
            state.arrayVanished = true;
            return state;
        }
        state.hideText = api.ArrayIsHidden(static_cast<int>(context.array)) ? SK_HideText::UnHide
                                                                            : SK_HideText::Hide;
        actions.enable({A::Delete, A::ConsistencyMenu, A::ScanMenu, A::TaskMenu, A::Identify});
        const bool special = isTierOrCache(*record);
        if (special)
            actions.setEnabled(A::Hide, !api.ArrayHasTask(record->Device));
        else
            enableForArray(api, *record, state);
        if (is(record->Type, "LEGACY"))
            limitForLegacyArray(actions);
        if (special)
            limitForTierOrCache(api, actions);
        limitForRoleAndState(api, *record, actions);
    }

    if (!context.admin)
        limitForUser(context, actions);
    return state;
}
