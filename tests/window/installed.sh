#!/usr/bin/env bash
# Installs a build into a folder with blanks and umlauts in its name, plays there as a player who may not write to it
# would, and looks where his things are kept; what an earlier version kept elsewhere is found.
#
#     installed.sh BUILD-FOLDER
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/real_window.sh"

open_display installed
prefix="$work/Spiele für Jörg"
cmake --install "$1" --prefix "$prefix" >"$work/installing" || fail "cmake --install failed"
for folder in apt fonts grf lessons mci snd; do
    diff -rq "$1/ventrel/$folder" "$prefix/share/ventrel/$folder" || fail "$folder was not installed whole"
done
chmod -R a-w "$prefix"
trap 'chmod -R u+w "$prefix"; cleanup' EXIT

use_home "$work/home"
export XDG_CONFIG_HOME=$HOME/config XDG_DATA_HOME=$HOME/data
mkdir -p "$XDG_DATA_HOME/ventrel"
printf '[Options]\nResolution=2\nWindowed=1\n' >"$XDG_DATA_HOME/ventrel/ventrel.ini"

start "$prefix/bin/ventrel" /NOSPLASH
titled() { [ "$(xdotool getwindowname "$window")" = Ventrel ]; }
until_true "the title" titled
[ "$(xprop -id "$window" WM_CLASS)" = 'WM_CLASS(STRING) = "ventrel", "ventrel"' ] ||
    fail "the window's class is $(xprop -id "$window" WM_CLASS)"
may_end=yes
ended() {
    xdotool key alt+F4
    sleep 0.2
    has_ended
}
until_true "the end" ended
wait "$program" || fail "it ended with $?"

grep -qx 'Windowed=1' "$XDG_CONFIG_HOME/ventrel/ventrel.ini" || fail "the options were not found and moved"
[ ! -e "$XDG_DATA_HOME/ventrel/ventrel.ini" ] || fail "the options lie in the old place still"
[ -s "$XDG_DATA_HOME/ventrel/hiscore.dat" ] || fail "there is no table of scores"
[ -z "$(find "$prefix" -name 'hiscore.dat' -o -name '*.ini')" ] || fail "something was written into the installation"
"$prefix/bin/ventrel-sim" "$prefix/share/ventrel/apt/atlanta8.apt" --log --until 600 >"$work/log"
for page in "$prefix"/share/man/man*/*.gz; do
    ! gzip -dc "$page" | grep -n '@' || fail "$page was not filled in"
done
# Every notice that the page about others' work names lies with it.
docs=$prefix/share/doc/ventrel
named=0
for notice in $(sed -n '/^## Used/q; s/^|.*| \([^|]*`[^|]*\) |$/\1/p' "$docs/docs/third-party.md" | grep -oE '`[^`]+`' | tr -d '`'); do
    [ -s "$docs/notices/$notice.txt" ] || [ -s "$docs/$notice" ] || [ -s "$docs/assets/airspaces/outlines/$notice" ] ||
        fail "the notice $notice is missing"
    named=$((named + 1))
done
[ "$named" -ge 4 ] || fail "third-party.md names only $named notices"
for link in $(grep -oE '\]\([^):#]+' "$docs/README.md" | cut -c 3-); do
    [ -e "$docs/$link" ] || fail "the README leads to $link, which is not there"
done
# What completes a program is looked for under its name.
for program in "$prefix"/bin/*; do
    [ -s "$prefix/share/bash-completion/completions/${program##*/}" ] || fail "nothing completes ${program##*/}"
    [ -s "$prefix/share/man/man6/${program##*/}.6.gz" ] || fail "${program##*/} has no man page"
done
