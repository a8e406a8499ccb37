#!/usr/bin/env bash
# Makes the source archive: everything that is under version control, and the drawn pictures and recordings, so that it
# builds without drawing and speech programs.
#
#     source_archive.sh BUILD-FOLDER OUT.tar.gz
#
# BUILD-FOLDER is one in which the pictures, sounds and music were made. The same source gives the same archive.
set -euo pipefail
build=$(realpath "$1")
out=$(realpath -m "$2")
cd "$(dirname "${BASH_SOURCE[0]}")/.."

name=$(basename "$out" .tar.gz)
date=@$(git log -1 --format=%ct)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

for made in ventrel/grf/main.avi ventrel/snd/pcm20 ventrel/mci/game.mci icons/icon.svg notices/flite.txt; do
    [ -e "$build/$made" ] || { echo "$build/$made has not been made" >&2; exit 1; }
done
mkdir -p "$work/$name/made/ventrel"
git archive HEAD | tar -x -C "$work/$name"
cp -r "$build/ventrel/grf" "$build/ventrel/snd" "$build/ventrel/mci" "$work/$name/made/ventrel/"
cp -r "$build/icons" "$build/notices" "$work/$name/made/"
tar --sort=name --mtime="$date" --owner=0 --group=0 --numeric-owner --mode=go=rX,u+rw -C "$work" -c "$name" | gzip -9n >"$out"
