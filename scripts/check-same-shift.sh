#!/usr/bin/env bash
# One shift of every airspace, traced by the release, the debug and the sanitized program, is the same to the byte.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# trace PRESET: the shifts as that build tells them. Fails when one cannot be flown.
trace() {
    local airspace
    for airspace in build/release/ventrel/apt/*.apt; do
        "build/$1/ventrel/ventrel-sim" "$airspace" --seed 7 --skill 3 || return 1
    done
}

agreed=
for preset in release debug sanitize; do
    sum=$(trace "$preset" | sha256sum)
    if [ "$sum" != "${agreed:=$sum}" ]; then
        echo "The $preset build traces different shifts: $sum instead of $agreed"
        exit 1
    fi
done
echo "Release, debug and sanitized builds agree: ${agreed%% *}"
