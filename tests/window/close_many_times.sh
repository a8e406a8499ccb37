#!/usr/bin/env bash
# Starts a program in a real window and closes it like a person, again and again: it must end with 0 each time.
#
#     close_many_times.sh COUNT PROGRAM [ARGUMENTS...]
#
# The display and its window manager stay for all of them. Alt+F4 is pressed as soon as the window is active.
set -euo pipefail

patience=60 # seconds until a window is there, and until it is gone

count=$1
shift
home=$(mktemp -d)
jobs_to_end=()

cleanup() {
    local job
    for job in "${jobs_to_end[@]}"; do
        kill "$job" 2>/dev/null || true
    done
    wait 2>/dev/null || true
    rm -rf "$home"
}
trap cleanup EXIT

until_true() {
    local what=$1 end=$((SECONDS + patience))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || { echo "waited $patience seconds for this: $what" >&2 && exit 1; }
        sleep 0.02
    done
}

Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$home/display" 2>/dev/null &
jobs_to_end+=($!)
unset WAYLAND_DISPLAY DISPLAY
until_true "a display" test -s "$home/display"
DISPLAY=:$(cat "$home/display")
export DISPLAY SDL_VIDEODRIVER=x11 SDL_AUDIODRIVER=dummy
LSAN_OPTIONS=suppressions=$(dirname "${BASH_SOURCE[0]}")/known_leaks.txt:print_suppressions=0
export LSAN_OPTIONS
openbox >/dev/null 2>&1 &
jobs_to_end+=($!)
has_manager() { xdotool get_num_desktops >/dev/null 2>&1; }
until_true "a window manager" has_manager

program=
is_open() {
    local window
    window=$(xdotool search --onlyvisible --pid "$program" 2>/dev/null | tail -n 1)
    [ -n "$window" ] && [ "$(xdotool getactivewindow 2>/dev/null)" = "$window" ]
}
has_ended() { ! kill -0 "$program" 2>/dev/null; }
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
    HOME=$(mktemp -d -p "$home")
    export HOME
    export XDG_CONFIG_HOME=$HOME XDG_CACHE_HOME=$HOME XDG_DATA_HOME=$HOME
    "$@" >"$home/said" 2>&1 &
    program=$!
    jobs_to_end[2]=$program
    until_true "the window, active" is_open
    until_true "the end" is_closed
    code=0
    wait "$program" || code=$?
    if [ "$code" -ne 0 ]; then
        bad=$((bad + 1))
        echo "Try $try ended with $code:"
        cat "$home/said"
    fi
done
echo "$((count - bad)) of $count ended with 0."
[ "$bad" -eq 0 ]
