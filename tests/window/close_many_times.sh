#!/usr/bin/env bash
# Starts a program in a real window and closes it like a person, again and again: it must end with 0 each time.
#
#     close_many_times.sh COUNT PROGRAM [ARGUMENTS...]
#
# The display and its window manager stay for all of them. Alt+F4 is pressed as soon as the window is active.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/real_window.sh"

count=$1
shift
open_display closing

# A window manager that has only just come up may not listen to the key yet.
is_closed() {
    local look
    xdotool key alt+F4
    for look in {1..100}; do
        ! has_ended || return 0
        sleep 0.02
    done
    return 1
}

bad=0
for ((try = 1; try <= count; ++try)); do
    use_home "$(mktemp -d -p "$work")"
    start "$@"
    may_end=yes
    until_true "the end" is_closed
    code=0
    wait "$program" || code=$?
    if [ "$code" -ne 0 ]; then
        bad=$((bad + 1))
        echo "Try $try ended with $code:"
        cat "$work/said" "$work/complaints"
    fi
done
echo "$((count - bad)) of $count ended with 0."
[ "$bad" -eq 0 ]
