#!/usr/bin/env bash
# Breaks the system under the program's save commands and checks that the file is always whole: it holds the
# old content or the new, to the last byte, and a save that did not work does not say that it did. So for the
# lottery, the settings and the statement.
#
#   save_faults.sh full-disk PROBE    saves to a disk without room, and to one that is read-only
#   save_faults.sh calls PROBE        lets every system call of a save fail, and kills the program at every one
#
# The calls of the settings and of the statement are those of the lottery, so that only their small files are
# gone through and only one way of making the new file, unless QUILLABY_FAULTS=all is in the environment.
#
# PROBE is the program built from save_probe.cpp. Exit status: 0 all held, 1 something did not, 77 this machine
# cannot run the test.

set -u
export LC_ALL=C
export ASAN_OPTIONS="detect_leaks=0:${ASAN_OPTIONS:-}" # the leak checker cannot run under strace

what=${1:?which test}
probe=${2:?which program}
everything=${QUILLABY_FAULTS:-}
failures=0
checks=0
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

skip() {
    echo "skipped: $1"
    exit 77
}

fail() {
    echo "FAILED: $1" >&2
    failures=$((failures + 1))
}

finish() {
    echo "$checks checks, $failures failures"
    ((failures == 0)) && exit 0
    exit 1
}

# take KIND: the kind of file that is saved from now on, and how it is called.
take() {
    kind=$1
    case $kind in
    lottery) name=Mine.Lto ;;
    settings) name=Personal.Lot ;;
    statement) name=Mine.inv ;;
    esac
}

# seed_of FILE SIZE: the seed of the content the file holds, "none" when it is not whole.
seed_of() {
    "$probe" seed "$kind" "$1" "$2" || echo none
}

# expect_names FOLDER PATTERN STEP: every name in the folder matches the pattern.
expect_names() {
    local found
    while read -r found; do
        [[ $found =~ ^($2)$ ]] || fail "$3: \"$found\" was left behind"
    done < <(find "$1" -mindepth 1 -printf '%f\n')
}

# save FILE SIZE SEED: runs the probe; its exit status in $status, what it said in $said.
save() {
    said=$("$probe" save "$kind" "$@" 2>&1)
    status=$?
    checks=$((checks + 1))
}

# expect_refused FILE SIZE STEP [REASON]: the last save was refused for want of room, or for that reason, and
# the file holds seed 1.
expect_refused() {
    local seed
    seed=$(seed_of "$1" "$2")
    [[ $status == 3 ]] || fail "$3: exit status $status, not 3"
    [[ $said == *"${4:-No space left on device}"* ]] || fail "$3: the reason is \"$said\""
    [[ $seed == 1 ]] || fail "$3: the file holds $seed and not the old content"
}

full_disk() {
    local how
    if [[ ${SAVE_FAULTS_INSIDE:-} != yes ]]; then
        mkdir "$work/try"
        for how in "unshare -m" "unshare -rm"; do # as root, and as an ordinary user
            if $how mount -t tmpfs -o size=64k none "$work/try" 2>/dev/null; then
                SAVE_FAULTS_INSIDE=yes $how "$BASH" "$0" "$what" "$probe"
                exit $?
            fi
        done
        skip "no file system can be mounted here"
    fi

    disk=$work/disk
    mkdir "$disk"
    mount -t tmpfs -o size=64k none "$disk" || skip "no file system can be mounted here"
    umount "$disk"
    for what in lottery settings statement; do
        take "$what"
        full_disk_of_kind
    done
    finish
}

full_disk_of_kind() {
    local file=$disk/$name
    mount -t tmpfs -o size=64k none "$disk"
    save "$file" 300 1
    [[ $status == 0 ]] || fail "$kind, an empty disk: exit status $status: $said"
    cat /dev/zero >"$disk/filler" 2>/dev/null
    save "$file" 300 2
    expect_refused "$file" 300 "$kind, no room at all"
    if [[ $kind != settings ]]; then # which have one name only
        save "$disk/new.${name#*.}" 300 2
        [[ $status == 3 ]] || fail "$kind, a new file without room: exit status $status"
    fi
    expect_names "$disk" "$name|filler" "$kind, no room at all"

    rm "$disk/filler"
    save "$file" 300 2
    [[ $status == 0 && $(seed_of "$file" 300) == 2 ]] || fail "$kind, room again: exit status $status: $said"

    save "$file" 40000 1
    [[ $status == 0 ]] || fail "$kind, a larger file: exit status $status: $said"
    save "$file" 40000 2
    expect_refused "$file" 40000 "$kind, room for a part of the new file"
    expect_names "$disk" "$name" "$kind, room for a part of the new file"

    mount -o remount,ro "$disk"
    save "$file" 40000 2
    expect_refused "$file" 40000 "$kind, a read-only file system" "is not writable"
    if [[ $kind != settings ]]; then
        save "$disk/new.${name#*.}" 300 2
        [[ $status == 3 && $said == *"Read-only file system"* ]] ||
            fail "$kind, a new file on a read-only file system: exit status $status: $said"
    fi
    expect_names "$disk" "$name" "$kind, a read-only file system"
    umount "$disk"

    mount -t tmpfs -o size=64k,nr_inodes=2 none "$disk"
    mkdir -p "$work/whole"
    save "$work/whole/$name" 300 1
    cat "$work/whole/$name" >"$file"
    save "$file" 300 2
    expect_refused "$file" 300 "$kind, no room for one more file"
    expect_names "$disk" "$name" "$kind, no room for one more file"
    umount "$disk"
}

changing="?open,openat,?chmod,fchmod,?fchmodat,write,?writev,?pwrite64,ftruncate,fsync,fdatasync,?link,linkat,\
?rename,?renameat,?renameat2,?unlink,?unlinkat"
looking="?access,?faccessat,?faccessat2,?stat,?lstat,?fstat,?newfstatat,?statx,lseek,close,read,getdents64,\
?readlink,?readlinkat,getcwd"
traced=$changing,$looking

# trace_save OPTION...: a save under strace with these options more; the trace in $work/trace.
trace_save() {
    cp "$work/1" "$file" # as it was before
    said=$(strace -o "$work/trace" -e trace="$traced" "$@" "$probe" save "$kind" "$file" "$size" 2 2>&1)
    status=$?
}

# calls_of_a_save: a line "NAME ORDINAL" for every traced call from the first that names its folder on.
calls_of_a_save() {
    awk -v folder="\"$folder" '/^[a-z_0-9]+\(/ {
        name = $0; sub(/\(.*/, "", name); ++ordinal[name]
        if (index($0, folder)) begun = 1
        if (begun) print name, ordinal[name] }' "$work/trace"
}

# check_fault CALL ORDINAL FAULT [OPTION...]: that call fails so; the options come before.
check_fault() {
    local call=$1 ordinal=$2 fault=$3 step="$kind, $1 number $2, $3, $size bytes$way" seed
    shift 3
    rm -rf "$folder"
    mkdir "$folder"
    trace_save "$@" -e inject="$call:$fault:when=$ordinal"
    checks=$((checks + 1))
    seed=none
    cmp -s "$work/1" "$file" && seed=1
    cmp -s "$work/2" "$file" && seed=2
    [[ $seed != none ]] || fail "$step: the file is not whole"
    [[ $(stat -c %a "$file") == [67]* ]] || fail "$step: its owner may not read or write the file"
    if [[ $fault == signal=KILL ]]; then
        [[ $status == 137 ]] || fail "$step: exit status $status, not killed"
        expect_names "$folder" "$name|$name\.[A-Za-z]{6}" "$step"
        return
    fi
    expect_names "$folder" "$name" "$step"
    grep -q INJECTED "$work/trace" || fail "$step: nothing was injected"
    case $status in
    0)
        [[ $seed == 2 ]] || fail "$step: said to be saved, but the old content is there"
        case $call in
        write | writev | pwrite64 | fsync | rename*)
            fail "$step: said to be saved"
            ;;
        esac
        ;;
    3)
        [[ -n $said ]] || fail "$step: no reason"
        # The new content under a refusal is only what a fault after the file was put in its place leaves.
        local owned_up=no
        [[ $said == *"The new file is in its place"* ]] && owned_up=yes
        if [[ ($seed == 2 && $owned_up == no) || ($seed == 1 && $owned_up == yes) ]]; then
            fail "$step: the file holds $seed, and the reason is \"$said\""
        fi
        ;;
    *) fail "$step: exit status $status: $said" ;;
    esac
}

# check_all_calls [OPTION...]: every call of a save made under these options.
check_all_calls() {
    local forced=$* call ordinal
    trace_save "$@"
    [[ $status == 0 ]] || fail "no fault at all$way: exit status $status: $said"
    calls_of_a_save >"$work/calls"
    grep -q '^write ' "$work/calls" || fail "no write was seen$way"
    # A power cut cannot be tried here; that the content is forced onto the disk before it takes the old one's place,
    # and the folder's entry after it, can.
    awk '/^fsync / { if (placed) after = 1; else before = 1 }
        /^(rename|link)/ { placed = 1; after = 0 }
        END { exit !(before && placed && after) }' "$work/calls" || fail "$kind: not forced onto the disk$way"
    while read -r call ordinal; do
        [[ $forced == *"inject=$call:"* ]] && continue # a call can be given one fault only
        check_fault "$call" "$ordinal" error=EIO "$@"
        check_fault "$call" "$ordinal" signal=KILL "$@"
        if [[ $call == write || $call == linkat ]]; then
            check_fault "$call" "$ordinal" error=ENOSPC "$@"
        fi
    done <"$work/calls"
}

calls() {
    command -v strace >/dev/null || skip "strace is not installed"
    strace -o /dev/null -e trace=write -e inject=write:error=ENOSPC:when=1 true 2>/dev/null ||
        skip "strace may not trace here"
    folder=$work/folder
    mkdir "$folder"
    for what in lottery settings statement; do
        take "$what"
        for size in 300 40000; do
            [[ $size == 300 || $kind == lottery || $everything == all ]] && calls_of_kind
        done
    done
    finish
}

# calls_of_kind: every call of a save of that kind and size.
calls_of_kind() {
    local proc seed
    file=$folder/$name
    # The larger file differs only in how it gets to the disk.
    [[ $size == 300 ]] && traced=$changing,$looking || traced=$changing
    for seed in 1 2; do # what to compare with
        save "$file" "$size" "$seed"
        [[ $status == 0 ]] || fail "$kind, no fault at all: exit status $status: $said"
        cp "$file" "$work/$seed"
    done

    way=", unnamed new file"
    check_all_calls

    [[ $kind == lottery || $everything == all ]] || return
    # Where files cannot be made without a name, a named one beside the target is written. Without /proc that is
    # so everywhere.
    way=", named new file"
    traced+=",?access,?faccessat,?faccessat2"
    trace_save
    proc=$(awk '/^[a-z_0-9]+\(/ { name = $0; sub(/\(.*/, "", name); ++ordinal[name]
        if (index($0, "\"/proc/version\"")) { print name ":error=ENOENT:when=" ordinal[name]; exit } }' \
        "$work/trace")
    if [[ -n $proc ]]; then
        check_all_calls -e inject="$proc"
    else
        echo "the named way cannot be forced with this version of Qt"
    fi
}

case $what in
full-disk) full_disk ;;
calls) calls ;;
*) fail "there is no test $what" && exit 1 ;;
esac
