#!/usr/bin/env bash
# kill_while_writing.sh PROGRAM: kills enter_score at each of its system calls in turn, while it enters a score. Whenever
# that is, the table is then the old one or the new one, byte for byte, and the next score can be entered.
set -euo pipefail

program=$(realpath "$1")
skipped=77

command -v strace >/dev/null || { echo "strace is not here." && exit $skipped; }
strace -o /dev/null true 2>/dev/null || { echo "strace may not look into programs here." && exit $skipped; }
export ASAN_OPTIONS=detect_leaks=0 # which cannot be done while another looks

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
table=$work/hiscore.dat

enter() { "$@" "$program" "$table" Bob 900; }

"$program" "$table" Ann 500
cp "$table" "$work/old"
enter env
cp "$table" "$work/new"
! cmp -s "$work/old" "$work/new" || { echo "Nothing was entered." && exit 1; }

# Each system call of a run after the program's start, and the how many-th of its name it is.
cp "$work/old" "$table"
enter strace -qq -o "$work/calls"
mapfile -t calls < <(tail -n +2 "$work/calls" | sed -n 's/^\([a-z_0-9]*\)(.*/\1/p' | awk '{ print $1 ":signal=KILL:when=" ++count[$1] }')

declare -A seen=([old]=0 [new]=0)
for call in "${calls[@]}"; do
    cp "$work/old" "$table"
    if enter strace -qq -o /dev/null -e inject="$call" 2>/dev/null; then
        echo "It came to its end in spite of $call." && exit 1
    fi
    for state in old new none; do
        ! cmp -s "$table" "$work/$state" || break
    done
    [ $state != none ] || { echo "Killed at $call, it left neither the old table nor the new." && exit 1; }
    seen[$state]=$((seen[$state] + 1))
done
cp "$work/old" "$table"
enter env

echo "Killed at ${#calls[@]} system calls: ${seen[old]} times the old table stood, ${seen[new]} times the new."
[ "${seen[old]}" -gt 0 ] && [ "${seen[new]}" -gt 0 ]
cmp "$table" "$work/new"
