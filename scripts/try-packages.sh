#!/usr/bin/env bash
# Tries the Debian package and the relocatable archive where nothing else is installed: an ordinary player plays a whole
# shift with each, starts again, and has his scores and replays; nothing is written elsewhere, and removal leaves nothing
# but what is his.
#
#     scripts/try-packages.sh ROOT VENTREL.deb VENTREL.tar.gz
#
# ROOT is a fresh Debian (debootstrap --variant=minbase bookworm ROOT) whose apt reaches its mirror; it is changed, so hand
# over a copy. Run it as root, on a machine that has what packages.txt names: screen and hand are this machine's.
set -euo pipefail

root=$(realpath "$1")
if [ -z "${VENTREL_MOUNTS_APART:-}" ]; then
    export VENTREL_MOUNTS_APART=yes # what is mounted in ROOT is gone when this ends
    exec unshare -m --propagation private "$0" "$root" "$(realpath "$2")" "$(realpath "$3")"
fi
deb=$2
archive=$3
source "$(dirname "${BASH_SOURCE[0]}")/../tests/window/real_window.sh"
patience=600 # a whole shift is played

mount --rbind /dev "$root/dev"
mount -t proc proc "$root/proc"
mount --rbind /sys "$root/sys"
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8
inside() { chroot "$root" "$@"; }
install_packages() { inside apt-get -qq install -y --no-install-recommends "$@" >"$work/installing" 2>&1 ||
    { cat "$work/installing"; fail "these do not install: $*"; }; }
# Everything but caches, lists of packages and logs.
list_files() {
    inside find / -xdev \( -path /proc -o -path /sys -o -path /dev -o -path /tmp -o -path /home -o -path /var/cache \
        -o -path /var/lib/apt -o -path /var/lib/dpkg -o -path /var/log -o -path /etc/ld.so.cache \) -prune -o -print | sort
}

# as_player PREFIX COMMAND...: as the player, with the folders of his own that stand in `home`.
as_player() {
    exec chroot --userspec=player:player "$root" env -i PATH=/usr/games:/usr/bin:/bin LC_ALL=C.UTF-8 HOME="$home" \
        XDG_CONFIG_HOME="$home/config" XDG_DATA_HOME="$home/my data" DISPLAY="$DISPLAY" SDL_VIDEODRIVER=x11 \
        SDL_AUDIODRIVER="$sound" "$@"
}
# start_game PROGRAM
start_game() {
    start as_player "$1" /NOSPLASH --seed 7
    until_true "the title" titled Ventrel
}
titled() { [ "$(xdotool getwindowname "$window" 2>/dev/null)" = "$1" ]; }
# A flight is ordered to 10,000 ft on the course that it has, and the clock moved on, until the table of scores has an
# entry: who leaves over an exit at that height earns points.
has_score() { [ -n "$(tr -d '\0' <"$root$home/my data/ventrel/hiscore.dat")" ]; }
new_game() {
    xdotool key alt+f
    xdotool key n
    xdotool key Return
}
skip_and_look() {
    has_score && return
    # A flight that was to land came in too high: another shift.
    if tail -qn 1 "$root$home/my data/ventrel/replays/"* 2>/dev/null | tail -n 1 | grep -q ' end '; then
        new_game
        sleep 2
    fi
    xdotool key Tab Prior Prior Prior Prior Prior Prior Prior Prior Prior Return space space
    has_score
}
leave() {
    may_end=yes
    xdotool key alt+F4
    sleep 0.5
    has_ended || xdotool key Return # a box asks whether the shift is given up
    sleep 0.5
    has_ended
}
end_game() {
    until_true "the end" leave
    wait "$program" || fail "it ended with $?"
    [ ! -s "$work/complaints" ] || fail "it complained"
    may_end=no
}

# play_and_return NAME PROGRAM: with options where an earlier version kept them, and an airspace of the player's own.
play_and_return() {
    home=/home/player/$1
    local data="$root$home/my data/ventrel" before
    mkdir -p "$data/apt"
    printf '[Options]\nResolution=2\nWindowed=1\nAirportSelect=1\nCustomPlanes=1\nCustomSched=60\n[Game]\nName=mary\nSkill=4\n' >"$data/ventrel.ini"
    chroot "$root" chown -R player:player "$home"

    start_game "$2"
    new_game
    until_true "a shift to its end" skip_and_look
    end_game
    [ -s "$root$home/config/ventrel/ventrel.ini" ] || fail "the options are not in the folder of configuration"
    [ ! -e "$data/ventrel.ini" ] || fail "the options lie where an earlier version kept them, too"
    ls "$data"/replays/* >/dev/null || fail "the shift was not kept as a replay"

    before=$(sha256sum <"$data/hiscore.dat")
    start_game "$2"
    end_game
    [ "$(sha256sum <"$data/hiscore.dat")" = "$before" ] || fail "the scores are others after the second start"
    [ -z "$(find "$root$home" -newer "$work/began" -type f -not -path "$data/*" -not -path "$root$home/config/*" \
        -not -path '*/Spiele für Jörg/*')" ] || fail "something was written elsewhere in the player's home folder"
    echo "$1: a shift of $(strings -n 3 "$data/hiscore.dat" | head -n 2 | tr '\n' ' ')was played, and is remembered"
}

home=/home/player
sound=dummy
open_display "try packages"
inside apt-get -qq update
inside id player >/dev/null 2>&1 || inside useradd -m player
list_files >"$work/before"
touch "$work/began"

# --- the Debian package, with what it declares and no more
cp "$deb" "$root/tmp/ventrel.deb"
install_packages /tmp/ventrel.deb
list_files >"$work/installed"
play_and_return deb ventrel
list_files | diff "$work/installed" - >"$work/written" || fail "playing wrote into the system: $(cat "$work/written")"
inside apt-get -qq purge -y ventrel >/dev/null 2>&1
inside apt-get -qq autoremove --purge -y >/dev/null 2>&1
list_files | diff "$work/before" - >"$work/left" || true
! grep -i ventrel "$work/left" || fail "removal left this behind"
echo "deb: removed; of its dependencies there stay: $(grep -c '^>' "$work/left" || true) files"
sed -n 's/^> /    /p' "$work/left"
[ -s "$root/home/player/deb/my data/ventrel/hiscore.dat" ] || fail "removal took the player's scores along"

# --- the archive, in a folder that the player may only read
install_packages libsdl2-2.0-0 libfreetype6 libpng16-16 libjpeg62-turbo libfluidsynth3
prefix="/home/player/archive/Spiele für Jörg"
mkdir -p "$root$prefix"
tar -xf "$archive" -C "$root$prefix" --strip-components=1
chmod -R a-w,a+rX "$root$prefix"
inside sh -c 'ldd "$0" | grep "not found"' "$prefix/bin/ventrel" && fail "the archive needs more libraries"
play_and_return archive "$prefix/bin/ventrel"
[ -z "$(find "$root$prefix" -newer "$work/began" -type f -newermt "$(date -r "$work/began" +%FT%T)")" ] ||
    fail "something was written into the unpacked archive"
