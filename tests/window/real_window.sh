# Sourced by the scripts beside it, which have set -euo pipefail: a display of its own with a window manager, and a
# program in a window on it. Nothing is timed: what has to come is waited for.

patience=60 # seconds until a wait gives up
screen=1280x1024x24

work=$(mktemp -d)
jobs_to_end=()
cleanup() {
    local job
    for job in "${jobs_to_end[@]}"; do
        kill "$job" 2>/dev/null || true
    done
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT

name= # of what is going on, for the words about a failure

# fail TEXT: leaves the screen as a picture in the current folder, and tells what the program wrote.
fail() {
    echo "$name: $1" >&2
    if [ -n "${DISPLAY:-}" ]; then
        import -silent -window root "$name.failed.png" 2>/dev/null && echo "The screen: $PWD/$name.failed.png" >&2
    fi
    echo "The program wrote:" >&2
    cat "$work/said" "$work/complaints" >&2 2>/dev/null || true
    exit 1
}

program= # its process, once it runs
may_end=no
has_ended() { ! kill -0 "$program" 2>/dev/null; }
has_ended_early() { [ -n "$program" ] && [ "$may_end" = no ] && has_ended; }

# until_true WHAT COMMAND...: until the command succeeds.
until_true() {
    local what=$1 end=$((SECONDS + patience))
    shift
    until "$@"; do
        ! has_ended_early || fail "the program ended by itself while this was waited for: $what"
        [ "$SECONDS" -lt "$end" ] || fail "waited $patience seconds for this: $what"
        sleep 0.02
    done
}

has_manager() { xdotool get_num_desktops >/dev/null 2>&1; }

# open_display NAME: failures are told under that name. With the variable WITHOUT_MANAGER no window manager runs on it.
open_display() {
    local tool
    name=$1
    for tool in Xvfb openbox xdotool setxkbmap import; do
        command -v "$tool" >/dev/null || fail "$tool is missing; packages.txt names its package"
    done
    unset WAYLAND_DISPLAY SDL_VIDEODRIVER DISPLAY
    # The server finds a free number by itself.
    Xvfb -displayfd 3 -screen 0 "$screen" -nolisten tcp -noreset 3>"$work/display" 2>"$work/server" &
    jobs_to_end+=($!)
    until_true "a display" test -s "$work/display"
    DISPLAY=:$(cat "$work/display")
    export DISPLAY SDL_VIDEODRIVER=x11 SDL_AUDIODRIVER=dummy
    LSAN_OPTIONS=suppressions=$(dirname "${BASH_SOURCE[0]}")/../known_leaks.txt:print_suppressions=0
    export LSAN_OPTIONS
    if [ -z "${WITHOUT_MANAGER:-}" ]; then
        openbox >"$work/manager" 2>&1 &
        jobs_to_end+=($!)
        until_true "a window manager" has_manager
    fi
}

# use_home FOLDER: whoever is started from now on keeps its files there.
use_home() {
    export HOME=$1 XDG_CONFIG_HOME=$1 XDG_CACHE_HOME=$1 XDG_DATA_HOME=$1
}

window=
is_open() {
    window=$(xdotool search --onlyvisible --pid "$program" 2>/dev/null | tail -n 1)
    [ -n "$window" ] && { [ -n "${WITHOUT_MANAGER:-}" ] || [ "$(xdotool getactivewindow 2>/dev/null)" = "$window" ]; }
}

# start COMMAND...: until its window is there and active.
start() {
    may_end=no
    "$@" >"$work/said" 2>"$work/complaints" &
    program=$!
    jobs_to_end[2]=$program
    until_true "the window, active" is_open
}
