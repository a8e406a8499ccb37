#!/usr/bin/env bash
# room_sees.sh COMPILER FOLDER ROOM: with the room's own flags, a file that includes all that floors.txt allows the room
# compiles, and a file that includes any other room does not.
set -euo pipefail

compiler=$1 folder=$2 room=$3
floors=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)/floors.txt
cd "$folder" # a file from standard input sees what lies where it is compiled

allowed=$(sed -n "s/^$room: *//p" "$floors")
grep -q "^$room:" "$floors" || {
    echo "tests/rooms/floors.txt does not say what $room may include."
    exit 1
}

include() { printf '#include "%s"\n' "$(cat "$folder/$1.sample")"; }

compiles() { "$compiler" "@$folder/$room.flags" -fsyntax-only -x c++ - 2>&1; }

broken=0
if ! said=$(for other in $room $allowed; do include "$other"; done | compiles); then
    echo "$room cannot include what it may:" && echo "$said"
    broken=1
fi

for sample in "$folder"/*.sample; do
    other=$(basename "$sample" .sample)
    case " $room $allowed " in *" $other "*) continue ;; esac
    if said=$(include "$other" | compiles); then
        echo "$room may not include $other, but $(cat "$sample") compiles there."
        broken=1
    elif ! grep -q "$(cat "$sample"): No such file\|'$(cat "$sample")' file not found" <<<"$said"; then
        echo "$room cannot include $other, but for another reason:" && echo "$said"
        broken=1
    fi
done
exit "$broken"
