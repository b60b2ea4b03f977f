#!/bin/sh
# Two skemu processes append events to one state file side by side; with the file's
# lock every append survives, however the two interleave.
#   skemu_side_by_side.sh "SKEMU COMMAND" STATE_FILE APPENDS_EACH
set -u
skemu=$1
state=$2
count=$3
rm -f "$state" "$state.lock" "$state.tmp"

fail() {
    echo "skemu_side_by_side: $*" >&2
    exit 1
}

# skemu ends with 0, 1 or 2 and says why. Any other status means the process never ran
# to its end (under Wine one now and then fails to start), so the call is made once
# more. Should a half-run append have landed after all, the count at the end shows it.
run() {
    $skemu --state "$state" "$@"
    status=$?
    if [ "$status" -gt 2 ]; then
        echo "skemu_side_by_side: skemu $* ended with status $status; once more" >&2
        $skemu --state "$state" "$@"
        status=$?
    fi
    return "$status"
}

next_event_number() {
    run events | sed -n 's/^next event number \([0-9]*\),.*/\1/p'
}

run init >/dev/null || fail "init ended with status $?"
first=$(next_event_number)

appends() {
    i=0
    while [ "$i" -lt "$count" ]; do
        run event 1037 "$1" "$i" >/dev/null ||
            fail "append $i of writer $1 ended with status $?"
        i=$((i + 1))
    done
}
appends 1 &
one=$!
appends 2 &
two=$!
wait "$one" || fail "writer 1 stopped early"
wait "$two" || fail "writer 2 stopped early"

last=$(next_event_number)
kept=$(run events | grep -c -E '\(01037\) [12] ')
echo "events before $first, after $last, $kept appended entries kept"
[ "$last" -eq $((first + 2 * count)) ] && [ "$kept" -eq $((2 * count)) ]
