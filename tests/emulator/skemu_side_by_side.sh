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

$skemu --state "$state" init >/dev/null || fail "init ended with status $?"
first=$($skemu --state "$state" events | sed -n 's/^next event number \([0-9]*\),.*/\1/p')

appends() {
    i=0
    while [ "$i" -lt "$count" ]; do
        $skemu --state "$state" event 1037 "$1" "$i" >/dev/null ||
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

last=$($skemu --state "$state" events | sed -n 's/^next event number \([0-9]*\),.*/\1/p')
kept=$($skemu --state "$state" events | grep -c -E '\(01037\) [12] ')
echo "events before $first, after $last, $kept appended entries kept"
[ "$last" -eq $((first + 2 * count)) ] && [ "$kept" -eq $((2 * count)) ]
