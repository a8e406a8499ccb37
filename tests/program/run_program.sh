#!/usr/bin/env bash
# Runs the program in a home of its own, without a screen, and looks at how it ends and at what it leaves there.
#
#     run_program.sh CASE PROGRAM
set -euo pipefail
set -m # jobs answer to an interrupt

case=$1
program=$(realpath "$2")
patience=30 # seconds until something that must happen is given up
skipped=77

work=$(mktemp -d)
jobs_to_end=()
cleanup() {
    local job
    for job in "${jobs_to_end[@]}"; do
        kill -KILL "$job" 2>/dev/null || true
    done
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT

export HOME=$work/home SDL_VIDEODRIVER=dummy SDL_AUDIODRIVER=dummy
LSAN_OPTIONS=suppressions=$(dirname "${BASH_SOURCE[0]}")/../known_leaks.txt:print_suppressions=0
export LSAN_OPTIONS
unset XDG_DATA_HOME XDG_RUNTIME_DIR
mkdir "$HOME" "$work/game"
options=$work/game/ventrel.ini
copy=$work/game/ventrel # in a program folder of its own, which can be written
cp "$program" "$copy"
for data in apt fonts grf mci snd; do
    ln -s "$(dirname "$program")/$data" "$work/game/$data"
done

fail() {
    echo "$case: $1" >&2
    cat "$work"/complaints* "$options" >&2 2>/dev/null || true
    exit 1
}

source "$(dirname "${BASH_SOURCE[0]}")/../waiting.sh"

# A hang-up is seen to from the moment when the window is open.
hang_up_bit=1 terminate_bit=0x4000
is_open() { [ "/proc/$1/exe" -ef "$copy" ] && (((0x$(sed -n 's/^SigCgt:\t//p' "/proc/$1/status" 2>/dev/null || echo 0) & ${2:-hang_up_bit}) != 0)); }

start() {
    "$copy" "$@" 2>"$work/complaints" &
    started=$!
    jobs_to_end+=("$started")
    until_true "the window" is_open "$started"
}

ends_with() { # CODE
    local code=0
    wait "$started" || code=$?
    started=
    [ "$code" -eq "$1" ] || fail "ended with $code instead of $1"
}

stop() { # SIGNAL
    kill "-$1" "$started"
    ends_with 0
}

has_line() { grep -Fxq -- "$1" "$options" || fail "no line $1"; }

refused() { # NAME ARGUMENTS...
    local name=$1 code=0
    shift
    "$copy" "$@" >"$work/said" 2>"$work/complaints" || code=$?
    [ "$code" -eq 2 ] && [ ! -s "$work/said" ] || fail "'$*' was not refused"
    grep -Fq -- "'$name'" "$work/complaints" && grep -Fq -- "--help" "$work/complaints" ||
        fail "'$*' was not refused by name"
}

words() {
    [ "$("$copy" --version)" = "ventrel ${VENTREL_VERSION:?}" ] || fail "another version"
    "$copy" --help | grep -q "ventrel /NOSPLASH" || fail "no help"
    refused wrong wrong
    refused "/nosplash " "/nosplash "
    refused extra /NOSPLASH extra
    refused more --version more
    refused "?[2J" $'\e[2J'
    refused 7x --seed 7x
    refused "" /noSplash --seed
    refused wrong --daily wrong
}

first_run() {
    start
    stop TERM
    [ "$(grep -c = "$options")" -ge 17 ] || fail "options are missing"
    grep -Eqx "Resolution=[23]" "$options" || fail "no resolution was chosen"
    ! grep -q SingleSound "$options" || fail "SingleSound was written"
}

signals() {
    local signal
    for signal in TERM INT HUP; do
        rm -f "$options"
        start
        stop "$signal"
        has_line Music=1
    done
    (trap '' HUP && exec "$copy" 2>"$work/complaints") & # to go on without its terminal
    started=$!
    jobs_to_end+=("$started")
    until_true "the window" is_open "$started" "$terminate_bit"
    kill -HUP "$started"
    sleep 0.2
    stop TERM
}

# What stands in the file counts at the next start, and comes back as it stood.
restart() {
    printf '; mine\n[Options]\nWindowed=1\nResolution=2\nVoice=0\nSingleSound=4\n' >"$options"
    printf '[Window]\nPicture=800\nLeft=40\nTop=30\nWidth=900\nHeight=700\n' >>"$options"
    start
    stop TERM
    local line
    for line in "; mine" Windowed=1 Resolution=2 Voice=0 SingleSound=4 Left=40 Top=30 Width=900 Height=700; do
        has_line "$line"
    done
    printf '[Options]\nWindowed=1\nResolution=2\n[Window]\nPicture=800\nLeft=9000\nTop=30\nWidth=900\nHeight=700\n' >"$options"
    start
    stop TERM
    ! grep -q Left=9000 "$options" || fail "the window stood where no screen is"
}

unreadable() {
    mkdir "$options"
    start
    stop TERM
    [ -d "$options" ] || fail "the folder was replaced"
    rmdir "$options"
    head -c 1048577 /dev/zero >"$options"
    start
    stop TERM
    [ "$(stat -c %s "$options")" -eq 1048577 ] || fail "a file too large to be read was written over"
}

# It says so in a box, which waits, and nothing else: no library complains on the standard error.
no_sound() {
    export SDL_AUDIODRIVER=none
    start
    sleep 1
    kill -0 "$started" || fail "ended without sound"
    stop TERM
    [ ! -s "$work/complaints" ] || fail "complained"
    has_line Music=1
}

second_copy() {
    start
    local runtime
    for runtime in "" "$work"; do
        XDG_RUNTIME_DIR=$runtime "$program" 2>"$work/complaints.second" || fail "a second copy failed"
        grep -q "another copy" "$work/complaints.second" || fail "a second copy said nothing"
    done
    stop TERM
    start
    stop TERM
}

lost_screen() {
    command -v Xvfb >/dev/null || exit "$skipped"
    Xvfb -displayfd 3 -nolisten tcp 3>"$work/display" 2>/dev/null &
    local server=$!
    jobs_to_end+=("$server")
    until_true "a display" test -s "$work/display"
    DISPLAY=:$(cat "$work/display")
    export DISPLAY SDL_VIDEODRIVER=x11
    printf '[Options]\nWindowed=1\n' >"$options"
    start
    until_true "the console" test -e "$(dirname "$options")/hiscore.dat" # the screen is open before it is cared for
    kill -KILL "$server"
    ends_with 1
    has_line Music=1
    has_line Picture=1024
}

# What comes from a file or a pipe is named, cut short, and never reaches the terminal as it is.
orders() {
    local said="$work/said" orders code
    printf '0 0 \e[2J%0100d 0 0 0 0\n' 0 >"$work/orders"
    for orders in "$work/orders" <(yes "0 0 5 90 0 -1 0"); do
        code=0
        "$(dirname "$program")/ventrel-sim" "$(dirname "$program")"/apt/new_york8.apt --orders "$orders" \
            >"$said" 2>>"$work/complaints" || code=$?
        [ "$code" -eq 2 ] && [ ! -s "$said" ] || fail "wrong orders were not refused"
    done
    grep -Fq "orders:1: altitude must be a whole number from 1 to 10, not '?[2J000" "$work/complaints" &&
        grep -Fq "too large: at most 16777216 bytes" "$work/complaints" &&
        [ "$(wc -c <"$work/complaints")" -lt 400 ] || fail "not the right words"
}

"$case"
