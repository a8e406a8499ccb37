#!/usr/bin/env bash
# Starts a copy of the game that has a program folder of its own, in the home folder of the moment, so that nobody's
# options and no other running copy matter: in a window of 1024 x 768, for Mary, Easy, over a black map of Atlanta, and
# with the same shift always.
# An airspace of the player's own, also of Atlanta, stands behind the program's.
# Started again, it plays on in that folder.
set -euo pipefail

program=$1
folder=$HOME/game
if [ ! -d "$folder" ]; then
    mkdir "$folder"
    cp "$program" "$folder/ventrel"
    for data in apt fonts grf lessons mci; do
        ln -s "$(dirname "$program")/$data" "$folder/$data"
    done
    mkdir "$folder/snd" # no voices: the shift is that of a silent machine
    ln -s "$(dirname "$program")"/snd/*.snd "$folder/snd"
    printf '[Options]\nResolution=3\nWindowed=1\nVoice=0\nAirportSelect=1\nMapDetails=0\n[Game]\nName=mary\nSkill=0\n' >"$folder/ventrel.ini"
fi
own=$XDG_DATA_HOME/ventrel/apt
mkdir -p "$own"
cp "$folder/apt/atlanta10.apt" "$own/home.apt"
printf 'home\0' | dd of="$own/home.apt" bs=1 seek=2 conv=notrunc status=none
export XDG_RUNTIME_DIR=$folder
exec "$folder/ventrel" /NOSPLASH --seed 7
