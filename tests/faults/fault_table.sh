#!/usr/bin/env bash
# Makes the table of faults: what a player is told, and what works still.
#
#     fault_table.sh PROGRAM DOCUMENT          compares it with the one that stands in the document
#     fault_table.sh PROGRAM DOCUMENT write    puts it there
#     fault_table.sh PROGRAM DOCUMENT all      every file of the program's folder in turn, to standard output (an hour)
#
# PROGRAM is a built ventrel among its data, with the build's tests/ beside its folder. Rows with a window bring an X server
# of their own. An administrator, whom no permission stops, becomes an ordinary user for it. Nothing is timed: what has to
# come is waited for.
set -euo pipefail

skipped=77
patience=120 # seconds until something that must happen is given up
begin_mark='<!-- table of faults: tests/faults/fault_table.sh -->'
end_mark='<!-- end of the table of faults -->'

command -v Xvfb >/dev/null || { echo "Xvfb is not here." && exit $skipped; }
program=$(realpath "$1")
document=$2
mode=${3:-compare}

as_player=()
if [ "$(id -u)" -eq 0 ]; then
    command -v setpriv >/dev/null || { echo "setpriv is not here." && exit $skipped; }
    as_player=(setpriv --reuid=65534 --regid=65534 --clear-groups)
    "${as_player[@]}" true 2>/dev/null || { echo "Nobody else can be become here." && exit $skipped; }
fi

work=$(mktemp -d)
jobs_to_end=()
cleanup() {
    local job
    for job in "${jobs_to_end[@]}"; do
        kill -CONT "$job" 2>/dev/null || true
        kill -KILL "$job" 2>/dev/null || true
    done
    wait 2>/dev/null || true
    chmod -R u+rwX "$work" 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT

# A copy that the player owns, whatever he may see of the build.
cp -RL "$(dirname "$program")" "$work/game"
# As it is installed: what somebody has played there before is not his.
rm -rf "$work/game/"{hiscore.dat,ventrel.ini,shifts.txt,replays}
mkdir "$work/home"
for tool in fault_rows write_file; do
    cp "$(dirname "$program")/../tests/$tool" "$work/"
done
cp "$(dirname "${BASH_SOURCE[0]}")/../known_leaks.txt" "$(dirname "${BASH_SOURCE[0]}")/../program/kill_while_writing.sh" "$work/"
export LSAN_OPTIONS=suppressions=$work/known_leaks.txt:print_suppressions=0
export HOME=$work/home TMPDIR=$work SDL_AUDIODRIVER=dummy
unset XDG_DATA_HOME XDG_CONFIG_HOME XDG_RUNTIME_DIR WAYLAND_DISPLAY SDL_VIDEODRIVER
if [ ${#as_player[@]} -gt 0 ]; then chown -R 65534:65534 "$work"; fi

fail() {
    echo "fault_table.sh: $1" >&2
    cat "$work/complaints" >&2 2>/dev/null || true
    exit 1
}
source "$(dirname "${BASH_SOURCE[0]}")/../waiting.sh"

row() { printf '| %s | %s | %s | %s |\n' "$1" "$2" "${3:-none}" "$4"; }

# The whole program, as a person starts it ------------------------------------------------------------------------------

open_display() {
    # Not the player's: it is taken away from him.
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$work/display" 2>/dev/null &
    server=$!
    jobs_to_end+=("$server")
    until_true "a display" test -s "$work/display"
    DISPLAY=:$(cat "$work/display")
    export DISPLAY
}
# What it says beside the window, in one line, without the words of libraries, which differ.
said() { grep '^ventrel: ' "$work/complaints" | sed "s|^ventrel: ||; s|$work/game/||g" | paste -sd ' ' || true; }
start_shift() {
    "${as_player[@]}" "$work/game/ventrel" --daily >"$work/said" 2>"$work/complaints" &
    started=$!
    jobs_to_end+=("$started")
    until_true "a shift" has_replay
}
has_replay() { [ -n "$(find "$work/game/replays" -name '*.replay' -size +0 2>/dev/null)" ]; }
ended() {
    code=0
    wait "$started" 2>"$work/words_of_bash" || code=$?
    started=
}
# What there is of options, scores and the shift so far.
kept() {
    local what="options **lost**"
    ! grep -qx 'Name=mary' "$work/game/ventrel.ini" || what=options
    ! grep -q '^Picture=' "$work/game/ventrel.ini" || what+=", the window's place"
    [ "$(stat -c %s "$work/game/hiscore.dat" 2>/dev/null)" = 1040 ] && what+=", scores"
    "$work/game/ventrel-sim" --replay "$(find "$work/game/replays" -name '*.replay')" >"$work/played" 2>"$work/complaints.replay" || true
    ! grep -q '^{"type":"shift"' "$work/played" || what+=" and the replay so far"
    echo "$what kept"
}
fresh() {
    rm -rf "$work/game/replays" "$work/game/hiscore.dat"
    printf '[Options]\nWindowed=1\nResolution=2\n[Game]\nName=mary\nSkill=0\n' >"$work/game/ventrel.ini"
    if [ ${#as_player[@]} -gt 0 ]; then chown 65534:65534 "$work/game/ventrel.ini"; fi
}

whole_program() {
    local code=0
    fresh
    cp "$work/game/ventrel.ini" "$work/options"
    env -u DISPLAY SDL_VIDEODRIVER=x11 "${as_player[@]}" "$work/game/ventrel" 2>"$work/complaints" || code=$?
    row "display" "none" "on the terminal: a line that begins with $(said | cut -d: -f1)" "ends with $code; $(cmp -s "$work/options" "$work/game/ventrel.ini" && echo "options left as they are" || echo "options **differ**")"
    open_display
    start_shift
    code=0
    "${as_player[@]}" "$work/game/ventrel" 2>"$work/complaints.second" || code=$?
    kill -0 "$started" || fail "the first copy ended"
    row "the program" "started a second time" "on the terminal: $(sed 's/^ventrel: //' "$work/complaints.second")" "the second ends with $code, the first plays on"
    kill -STOP "$started"
    sleep 1
    kill -CONT "$started"
    kill -TERM "$started"
    ended
    row "the program" "stopped and continued in play, then ended by a signal" "$(said)" "ends with $code; $(kept)"
    fresh
    start_shift
    kill -KILL "$started"
    ended
    row "the program" "killed in play" "" "$(kept)"
    fresh
    start_shift
    kill -KILL "$server"
    ended
    row "display" "gone in play" "the window system's own, on the terminal" "ends with $code; $(kept)"
}

# Where the system lets one look into programs: a row that other machines leave out.
kills() {
    local code=0
    "${as_player[@]}" "$work/kill_while_writing.sh" "$work/write_file" score options shift replay >"$work/kills" 2>&1 || code=$?
    [ "$code" -eq $skipped ] ||
        row "options, scores, shifts, replays" "killed at any system call of their writing" "" \
            "$([ "$code" -eq 0 ] && echo "the old file or the new, whole; of a replay all lines before; nothing stays beside" || cat "$work/kills")"
}

table() {
    printf '| What | Fault | Message | What works still |\n|---|---|---|---|\n'
    "${as_player[@]}" "$work/fault_rows" "$work" "$@"
    whole_program
    kills
}

case $mode in
all)
    table all
    exit 0
    ;;
write | compare) table >"$work/table" ;;
*) echo "No such mode: $mode" >&2 && exit 2 ;;
esac

if [ "$mode" = write ]; then
    awk -v begin="$begin_mark" -v end="$end_mark" -v table="$work/table" '
        $0 == begin { print; while ((getline line < table) > 0) print line; inside = 1 }
        $0 == end { inside = 0 }
        !inside && $0 != begin' "$document" >"$work/document"
    cat "$work/document" >"$document"
else
    sed -n "\\|^$begin_mark\$|,\\|^$end_mark\$|p" "$document" | sed '1d;$d' >"$work/wanted"
    if ! grep -q 'killed at any system call' "$work/table"; then
        sed -i '/killed at any system call/d' "$work/wanted"
    fi
    diff "$work/wanted" "$work/table" ||
        fail "the table of faults is another one. Look at it, then write it: tests/faults/fault_table.sh $1 docs/reliability.md write"
fi
