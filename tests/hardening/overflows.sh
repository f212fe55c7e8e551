#!/bin/bash
# Code of ours that writes beyond the end of an array is stopped there and then.
#
# Usage: tests/hardening/overflows.sh OVERFLOW_PROBE
set -uo pipefail

probe=$1
said=$(mktemp)
trap 'rm -f "$said"' EXIT
failed=0
ulimit -c 0

# expect STATUS TEXT ARGUMENT...: the probe ends so and says so.
expect() {
    local status=$1 text=$2 ended=0
    shift 2
    "$probe" "$@" >"$said" 2>&1 || ended=$?
    if [ "$ended" -ne "$status" ] || ! grep -q -F -e "$text" "$said"; then
        echo "$* ended with $ended instead of $status, or without \"$text\":"
        cat "$said"
        failed=1
    fi
}

aborted=$((128 + 6))
expect 0 "copied sixt" copy 16
expect $aborted "buffer overflow detected" copy 17
expect 0 "filled x" fill 16
expect $aborted "stack smashing detected" fill 48
exit $failed
