#pragma once
// The service's named results. Their values are the numbers the callers have always
// been given, so a result can still travel as a plain int (the worker's signals, the
// verdict tables' rows).

// What preparing an array for removal ended with (PrepareArrayRemoval, and the
// volume steps under it: DismountAndEject, RequestDeviceEject).
enum SK_RemovalResult : int {
    // The array is offline and hidden and its hot-swap disks are prepared: it can be
    // pulled. Also the eject's success.
    SK_REMOVAL_READY = 1,
    // No such array, the system array, a busy array, or the hide or the offline was
    // refused (an array hidden by this removal is shown again).
    SK_REMOVAL_REFUSED = 3,
    // A member disk also belongs to another array, which would go down with it.
    SK_REMOVAL_SHARED_DISK = -9,
    // The array's volume could not be locked and dismounted: something uses it.
    SK_REMOVAL_VOLUME_IN_USE = -10,
    // The volume's device number matched no device instance to eject.
    SK_REMOVAL_NO_DEVICE_INSTANCE = -100,
    // Every eject attempt was vetoed or failed. The eject is optional: the removal goes
    // on without it.
    SK_REMOVAL_EJECT_FAILED = -101,
};

// The verdicts CreateArray gives before anything is sent, in the order its tests
// raise them. Row verdict + 100 of createErrorList holds the text; rows no verdict
// names are the dialog's own or unused.
namespace SK_CreateVerdict {
enum Value : int {
    TooManyArrays = -100,
    SizeTooSmall = -99,
    SkipInitWithZero = -98,
    LeaveDataWithZero = -97,
    NoDisks = -96,
    SubMemberNotAvailable = -92,
    SkipInitNotAvailable = -91,
    VolumeTooMany = -90,
    RaidableNotOne = -89,
    Raid0Count = -87,
    Raid1Count = -86,
    Raid1nTooFew = -85,
    Raid1nTooMany = -84,
    Raid10Count = -82,
    Raid10nTooFew = -79,
    Raid10nSubCount = -78,
    Raid5TooFew = -75,
    Raid5TooMany = -74,
    TierWithDisks = -72,
    TierWithoutArrays = -71,
    Raid6TooFew = -69,
    Raid6TooMany = -68,
    Raid50TooFew = -65,
    Raid50SubMember = -64,
    Raid60TooFew = -61,
    NoType = -59,
    DiskNotUsable = -58,
    SmartErrors = -57,
    LevelDisabled = -56,
    NoMaximum = -55,
};
} // namespace SK_CreateVerdict

// The verdicts TransformArray gives before anything is sent. Row verdict + 100 of
// transformErrorList holds the text.
namespace SK_TransformVerdict {
enum Value : int {
    ArrayNotFound = -100,
    SizeTooSmall = -99,
    NoDisks = -98,
    VolumeTooMany = -91,
    RaidableNotOne = -90,
    Raid0Count = -88,
    Raid1Count = -87,
    Raid1nTooFew = -86,
    Raid1nTooMany = -85,
    Raid10Count = -84,
    Raid10nTooFew = -82,
    Raid10nSubMember = -80,
    Raid5TooFew = -79,
    Raid5TooMany = -78,
    Raid6Count = -76,
    NoType = -73,
    DiskNotUsable = -72,
    SmartErrors = -71,
    NoMaximum = -69,
};
} // namespace SK_TransformVerdict
