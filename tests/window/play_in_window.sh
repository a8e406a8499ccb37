#!/usr/bin/env bash
# Plays a program in a real window, by real keys and mouse events, on a display of its own.
#
#     play_in_window.sh PLAY PROGRAM [ARGUMENTS...]
#
# A play is a text file, one step a line:
#
#     key alt+f              a key as xdotool names it, with its modifiers (alt+ ctrl+ shift+)
#     place comma            the key that lies there on the keyboard of the United States, whatever is written on it
#     layout fr              the keyboard becomes that of another country
#     type mary              a text
#     move X Y               the mouse, in the pixels of the window
#     click X Y [right]      doubleclick X Y
#     wheel X Y N            turned there by N notches, away from the person when N is above 0
#     drag X Y DX DY         pressed there, moved by so much, let go
#     says LINE              the program writes that line, after those that were found before
#     sees X Y RRGGBB        that pixel of the window gets that colour
#     titled TITLE           the window gets that title
#     sized WxH              the window gets that size
#     stands X Y             its upper left corner is there
#     close                  the person closes the window
#     ends CODE              the program ends with that code
#     again                  the program is started once more, after it has ended
#     second CODE TEXT       another copy is started beside it: it opens no window, writes TEXT, ends with CODE
#
# Steps that look (says, sees, titled, sized, ends) wait until it is so; nothing else waits, and nothing is timed.
# Plays without keyboards, sizes and other copies run without a window too (tests/platform/window_play.h).
# When a step fails, the screen and what the program wrote are left in the current folder.
set -euo pipefail

source "$(dirname "${BASH_SOURCE[0]}")/real_window.sh"

play=$1
shift
open_display "$(basename "$play" .play)"
use_home "$work"
export SDL_MOUSE_DOUBLE_CLICK_TIME=5000 # a busy machine is slow with the second click

said=0 # lines that were found
begin() {
    said=0
    start "$@"
}
begin "$@"

says() {
    local line
    line=$(tail -n "+$((said + 1))" "$work/said" | grep -Fxn -m 1 -- "$1") || return 1
    said=$((said + ${line%%:*}))
}
sees() {
    import -silent -window "$window" -crop "1x1+$1+$2" -depth 8 txt:- 2>/dev/null | grep -qi "#$3"
}
# The places are those of the server's own keyboard, by number.
declare -A places=([i]=31 [o]=32 [l]=46 [period]=60 [comma]=59 [m]=58 [j]=44 [u]=30 [k]=45 [p]=33
    [bracketleft]=34 [bracketright]=35 [f]=41 [n]=57 [s]=39)
place() { xdotool key "${places[$1]}"; }
# has_geometry PATTERN: its size and place as "WxH at X Y".
has_geometry() {
    local WIDTH=0 HEIGHT=0 X=0 Y=0
    eval "$(xdotool getwindowgeometry --shell "$window" 2>/dev/null | grep -E '^(WIDTH|HEIGHT|X|Y)=-?[0-9]+$')"
    # shellcheck disable=SC2053 # the pattern is one
    [[ "${WIDTH}x$HEIGHT at $X $Y" = $1 ]]
}
sized() { has_geometry "$1 at *"; }
stands() { has_geometry "* at $1 $2"; }
drag() {
    local step
    move "$1" "$2"
    xdotool mousedown 1
    for step in 1 2 3 4 5; do # the window manager takes over in between
        sleep 0.1
        xdotool mousemove_relative -- $(($3 * step / 5 - $3 * (step - 1) / 5)) $(($4 * step / 5 - $4 * (step - 1) / 5))
    done
    sleep 0.1
    xdotool mouseup 1
}
wheel() {
    move "$1" "$2"
    if [ "$3" -gt 0 ]; then xdotool click --repeat "$3" 4; else xdotool click --repeat "${3#-}" 5; fi
}
# second CODE TEXT COMMAND...
second() {
    local wanted=$1 text=$2 code=0
    shift 2
    timeout "$patience" "$@" >"$work/second" 2>&1 || code=$?
    [ "$code" -eq "$wanted" ] || fail "the second copy ended with $code instead of $wanted"
    grep -Fq -- "$text" "$work/second" || fail "the second copy wrote: $(cat "$work/second")"
    has_ended && fail "the first copy ended with the second"
    is_open || fail "the first copy is not in front any more"
}
titled() { [ "$(xdotool getwindowname "$window" 2>/dev/null)" = "$1" ]; }
move() { xdotool mousemove --window "$window" "$1" "$2"; }

command=("$@")
step() {
    local verb=$1 rest=$2
    # shellcheck disable=SC2086 # the words of the rest are the step's arguments
    set -- $rest
    case $verb in
    key) xdotool key "$1" ;;
    place) place "$1" ;;
    layout) setxkbmap "$1" ;;
    type) xdotool type --delay 20 "$rest" ;;
    move) move "$1" "$2" ;;
    click)
        move "$1" "$2"
        if [ "${3:-left}" = right ]; then xdotool click 3; else xdotool click 1; fi
        ;;
    doubleclick)
        move "$1" "$2"
        xdotool click --repeat 2 --delay 40 1
        ;;
    wheel) wheel "$@" ;;
    drag) drag "$@" ;;
    says) until_true "says $rest" says "$rest" ;;
    sees) until_true "sees $rest" sees "$@" ;;
    titled) until_true "titled $rest" titled "$rest" ;;
    sized) until_true "sized $rest" sized "$1" ;;
    stands) until_true "stands $rest" stands "$@" ;;
    close) xdotool key alt+F4 ;;
    again) begin "${command[@]}" ;;
    second) second "$1" "${rest#* }" "${command[@]}" ;;
    ends)
        may_end=yes
        until_true "ends $rest" has_ended
        local code=0
        wait "$program" || code=$?
        [ "$code" -eq "$1" ] || fail "ended with $code instead of $1"
        ;;
    *) fail "no such step: $verb" ;;
    esac
}

steps=0
while read -r verb rest <&4 || [ -n "$verb" ]; do
    case $verb in '' | '#'*) continue ;; esac
    step "$verb" "$rest"
    steps=$((steps + 1))
done 4<"$play"
echo "$play: $steps steps, as they should be."
