#!/usr/bin/env bash
# Whether two builds of what is under version control, in different folders, give the same bytes in every package. Takes
# the drawn pictures and the recordings from a build, since making them again is no part of this; compiles everything
# twice, without the compiler's cache.
#
#     scripts/check-same-packages.sh [build/release/ventrel]
set -euo pipefail
made=$(realpath "${1:-build/release/ventrel}")
cd "$(dirname "${BASH_SOURCE[0]}")/.."

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH CCACHE_DISABLE=1

# pack FOLDER: clones, builds and packs there; the packages are left in FOLDER/packages.
pack() {
    git clone -q . "$1"
    (
        cd "$1"
        cmake --preset play -DVENTREL_MADE_DATA="$made" >/dev/null
        cmake --build build/release -- --quiet
        (cd build/release && cpack -G DEB >/dev/null && cpack -G TGZ >/dev/null)
        mkdir packages
        mv build/release/*.deb build/release/*.tar.gz packages
        packaging/source_archive.sh build/release packages/ventrel-3.0.tar.gz
    )
}
pack "$work/one"
pack "$work/another folder, with blanks"

status=0
for package in "$work"/one/packages/*; do
    if cmp -s "$package" "$work/another folder, with blanks/packages/${package##*/}"; then
        echo "the same: ${package##*/}"
    else
        echo "differs: ${package##*/}" >&2
        status=1
    fi
done
exit $status
