#!/usr/bin/env bash
# One shift, traced by the release, the debug and the sanitized program, is the same to the byte.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

sums=$(for preset in release debug sanitize; do
    folder=build/$preset/ventrel
    for airspace in "$folder"/apt/*.apt; do
        "$folder/ventrel-sim" "$airspace" --seed 7 --skill 3
    done | sha256sum
done | sort -u)
if [ "$(wc -l <<<"$sums")" -ne 1 ]; then
    echo "The builds trace different shifts:"
    echo "$sums"
    exit 1
fi
echo "Release, debug and sanitized builds agree: ${sums%% *}"
