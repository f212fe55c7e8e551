#!/usr/bin/env bash
# Kills a program while its user types, again and again at random moments, starts it anew and looks what the menu
# offers and what Open brings back: nothing but what was typed, in order and whole, and no less than what a copy on
# the disk already held.
#
#   recovery_kills.sh PROBE SAMPLE [ROUNDS]
#
# PROBE is the program built from recovery_probe.cpp. Exit status: 0 all held, 1 something did not.

set -u
export LC_ALL=C QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS="detect_leaks=0:${ASAN_OPTIONS:-}" # a program that is killed has no time to tidy up

probe=${1:?which program}
sample=${2:?which database}
rounds=${3:-12}
failures=0
offered=0
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$sample" "$work/Sample.Lto"

fail() {
    echo "FAILED: round $round, $kind: $1" >&2
    failures=$((failures + 1))
}

# last WORD: the number behind the last line "WORD number" that the killed program printed; 0 without one.
last() {
    sed -n "s/^$1 \([0-9]*\)\$/\1/p" "$work/said" | tail -n 1 | grep . || echo 0
}

for ((round = 1; round <= rounds; ++round)); do
    ((round % 3 == 0)) && kind=rows || kind=draws
    : >"$work/said"
    "$probe" "$kind" "$work/state/recovery" "$work/Sample.Lto" >"$work/said" 2>/dev/null &
    child=$!
    ((round % 4 == 0)) && begun='^typed' || begun='^kept' # now and then perhaps before the first copy
    for ((wait = 0; wait < 500; ++wait)); do
        grep -q "$begun" "$work/said" && break
        sleep 0.02
    done
    sleep "$(printf '0.%03d' $((RANDOM % 400)))"
    kill -KILL "$child"
    wait "$child" 2>/dev/null

    typed=$(last typed)
    kept=$(last kept)
    timeout 60 "$probe" "open-$kind" "$work/state/recovery" "$work/Sample.Lto" >"$work/back" 2>"$work/trouble"
    status=$?
    back=$(tail -n 1 "$work/back")
    case $status in
    0)
        offered=$((offered + 1))
        ((back >= kept)) || fail "$back came back, but $kept were kept"
        ((back <= typed + 1)) || fail "$back came back, but only $typed were typed"
        ;;
    4) ((kept == 0)) || fail "nothing was offered, but $kept were kept" ;;
    *) fail "exit status $status: $(cat "$work/trouble")" ;;
    esac
    # A program that was killed before its first copy leaves its lock, which is swept later.
    left=$(find "$work/state/recovery" -name '*.Lto' -o -name '*.inv' 2>/dev/null)
    [[ -z $left ]] || fail "left behind after a clean end: $left"
    cmp -s "$sample" "$work/Sample.Lto" || fail "the user's own file was written"
done

echo "$offered of $rounds kills were followed by an offer, $failures failures"
((offered > rounds / 2)) || { echo "FAILED: hardly any kill found a copy" >&2; exit 1; }
((failures == 0))
