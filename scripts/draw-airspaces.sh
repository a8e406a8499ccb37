#!/usr/bin/env bash
# draw-airspaces.sh BUILD: draws the pictures of docs/airspaces.md from the airport files of that build, such as
# build/release. It needs imagemagick.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

program=$1/ventrel
map=$(mktemp --suffix=.png)
trap 'rm -f "$map"' EXIT
mkdir -p docs/airspaces
for source in assets/airspaces/*.toml; do
    name=$(basename "$source" .toml)
    "$program/ventrel-apt" draw "$program/apt/${name}10.apt" -o "$map"
    convert "$map" -strip -resize 400x400 -quality 85 "docs/airspaces/$name.jpg"
done
