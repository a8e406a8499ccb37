#!/usr/bin/env bash
# Makes the picture of the game in play that README and the metadata of software centres show: the game is started in a
# real window of 800 x 600 with the same shift always, and a flight is selected a while later.
#
#     scripts/draw-play.sh build/release docs/pictures/play.jpg
set -euo pipefail
build=$(realpath "$1")
picture=$(realpath -m "$2")
source "$(dirname "${BASH_SOURCE[0]}")/../tests/window/real_window.sh"

skips=40                # of 15 seconds on the clock
quality=72
largest=$((100 * 1000)) # bytes

open_display "draw play"
use_home "$work"
game=$work/game
mkdir -p "$game/snd"
cp "$build/ventrel/ventrel" "$game"
ln -s "$build"/ventrel/{apt,fonts,grf,lessons,mci} "$game"
ln -s "$build"/ventrel/snd/*.snd "$game/snd" # no voices: the shift is that of a silent machine
cat >"$game/ventrel.ini" <<'INI'
[Options]
Resolution=2
Windowed=1
Voice=0
AirportSelect=5
[Game]
Name=mary
Skill=1
INI
export XDG_RUNTIME_DIR=$work
start "$game/ventrel" /NOSPLASH --seed 7
titled() { [ "$(xdotool getwindowname "$window")" = "$1" ]; }
until_true "the title" titled Ventrel
xdotool key alt+f
xdotool key n
xdotool key Return
sleep 2
for ((skipped = 0; skipped < skips; skipped++)); do
    xdotool key space
    sleep 0.1
done
xdotool key Tab Tab
xdotool mousemove 10 10 # the pointer is not part of it
sleep 2
mkdir -p "$(dirname "$picture")"
import -silent -window "$window" "$work/play.png"
convert "$work/play.png" -strip -sampling-factor 4:2:0 -quality "$quality" "$picture"
[ "$(stat -c %s "$picture")" -le "$largest" ] || fail "$picture has more than $largest bytes"
