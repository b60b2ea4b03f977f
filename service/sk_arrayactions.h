#pragma once
// Which array actions the selected array allows, decided without any widget: the window
// maps the flags onto its actions, and tests read them straight from the host.

#include <QtGlobal>

#include <bitset>

class SK_RaidApi;

// Every entry whose enablement follows the selected array, the submenus included.
enum class SK_ArrayAction {
    Transform,
    RemoveSpares,
    SecureErase,
    Delete,
    Name,
    PrepareRemove,
    Hide,
    Identify,
    Priority,
    Resume,
    Pause,
    RemoveTask,
    ScanStart,
    ScanStop,
    ConsistencyStart,
    ConsistencyStop,
    ScanMenu,
    ConsistencyMenu,
    CacheMenu,
    TaskMenu,
    DeleteMultiple,
    CacheArrays,
    Initialize,
    ClearMetadata,
    Count
};

class SK_ArrayActions
{
public:
    bool isEnabled(SK_ArrayAction action) const { return m_bits.test(index(action)); }
    void setEnabled(SK_ArrayAction action, bool on) { m_bits.set(index(action), on); }
    void enable(std::initializer_list<SK_ArrayAction> actions) { setAll(actions, true); }
    void disable(std::initializer_list<SK_ArrayAction> actions) { setAll(actions, false); }
    bool operator==(const SK_ArrayActions &other) const { return m_bits == other.m_bits; }
    bool operator!=(const SK_ArrayActions &other) const { return m_bits != other.m_bits; }

private:
    static std::size_t index(SK_ArrayAction action) { return static_cast<std::size_t>(action); }
    void setAll(std::initializer_list<SK_ArrayAction> actions, bool on)
    {
        for (SK_ArrayAction action : actions)
            setEnabled(action, on);
    }

    std::bitset<static_cast<std::size_t>(SK_ArrayAction::Count)> m_bits;
};

// The cache entry to check: the array's policy, or Unchanged when the rules leave the
// checks as they are (no idle array selected, or a policy the menu doesn't name).
enum class SK_CacheCheck { Unchanged, None, Read, Write, ReadWrite };

// The hide entry's text, which is only set while an array is selected.
enum class SK_HideText { Unchanged, Hide, UnHide };

struct SK_ArrayActionState
{
    SK_ArrayActions actions;
    SK_CacheCheck cacheCheck = SK_CacheCheck::Unchanged;
    SK_HideText hideText = SK_HideText::Unchanged;
    bool arrayVanished = false; // the selected array is gone: the window drops it
};

struct SK_ArrayActionContext
{
    quint32 array = 0;    // the selected array's id, 0 for none
    int arrayCount = 0;   // entries of the array list
    bool admin = false;   // the console runs with administrator rights
    bool caching = false; // "Cache Arrays" exists
};

// The base state: every entry that depends on an array off; "Priority", the task
// submenu, "Delete Multiple Arrays" and "Cache Arrays" keep what they had, and the
// disk entries follow their own tests.
SK_ArrayActions baseArrayActions(const SK_RaidApi &api, SK_ArrayActions previous);

// The rules for the selected array, applied in their order on top of `previous`: later
// steps overrule earlier ones, so the order is the rule.
SK_ArrayActionState allowedArrayActions(const SK_RaidApi &api, const SK_ArrayActionContext &context,
                                        SK_ArrayActions previous);
