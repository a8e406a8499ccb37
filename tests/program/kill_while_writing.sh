#!/usr/bin/env bash
# kill_while_writing.sh PROGRAM WHAT...: kills write_file at each system call from the moment when it knows its file, while
# it writes a score, the options, a list of shifts (score, options, shift) or a replay. Whenever that is, the old file
# stands there or the new one, byte for byte, and of a replay all that was written before. The next writing succeeds, and
# takes away what the killed one has left beside.
set -euo pipefail

program=$(realpath "$1")
shift
skipped=77

command -v strace >/dev/null || { echo "strace is not here." && exit $skipped; }
strace -o /dev/null true 2>/dev/null || { echo "strace may not look into programs here." && exit $skipped; }
export ASAN_OPTIONS=detect_leaks=0 # which cannot be done while another looks

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/at"
file=$work/at/file

fail() {
    echo "$what: $1" >&2
    exit 1
}
put_old() {
    rm -f "$file"
    [ ! -e "$work/old" ] || cp "$work/old" "$file"
}
write() { "$@" "$program" "$what" "$file"; }
# Lines "NAME COUNT" of the system calls from the first that names the file, COUNT being the how many-th of its name.
calls() {
    sed -n 's/^\([a-z_0-9]*\)(\(.*\)/\1 \2/p' "$work/calls" | awk -v file="$file" '
        { ++count[$1]; if (NR > 1 && index($0, file)) begun = 1; if (begun) print $1 ":signal=KILL:when=" count[$1] }'
}
is_beginning() { cmp -s "$file" <(head -c "$(stat -c %s "$file")" "$work/new"); }
state() {
    if [ "$what" = replay ]; then
        if [ ! -e "$file" ]; then echo old; elif cmp -s "$file" "$work/new"; then echo new; else is_beginning && echo old; fi
    elif cmp -s "$file" "$work/old"; then
        echo old
    else
        cmp -s "$file" "$work/new" && echo new
    fi
}

for what in "$@"; do
    rm -f "$file" "$work/old" "$work/new"
    if [ "$what" != replay ]; then
        write env
        cp "$file" "$work/old"
    fi
    write env
    cp "$file" "$work/new"
    put_old
    write strace -qq -o "$work/calls"
    declare -A seen=([old]=0 [new]=0)
    for call in $(calls); do
        put_old
        if write strace -qq -o /dev/null -e inject="$call" 2>/dev/null; then
            fail "it came to its end in spite of $call"
        fi
        now=$(state) || fail "killed at $call, it left neither the old file nor the new"
        seen[$now]=$((seen[$now] + 1))
    done
    put_old
    write env
    cmp "$file" "$work/new" || fail "what is written afterwards differs"
    [ "$what" = replay ] || [ "$(find "$work/at" -type f | wc -l)" -eq 1 ] || fail "left: $(ls -A "$work/at")"
    echo "$what: killed at $((seen[old] + seen[new])) system calls, ${seen[old]} times the old file stood, ${seen[new]} times the new."
    [ "${seen[old]}" -gt 0 ] && [ "${seen[new]}" -gt 0 ] || fail "too few"
done
