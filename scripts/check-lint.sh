#!/usr/bin/env bash
# Names, likely faults and needless costs of src/ and tools/, by clang-tidy (.clang-tidy).
#
# A room is read at once, as one source file: that takes a tenth of the time, and shows where two of its files give
# one name to two things, which is an error here. A room that was found clean is read again when it has changed, or a
# header that it may include.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/llvm.sh
source scripts/prepare.sh

build=build/lint
commands=$build/compile_commands.json

# key_of ROOM: a text that changes with everything that the findings about the room's one source file hang on.
key_of() {
    local command folders
    command=$(grep -F -B 1 "\"file\": \"$1\"" $commands)
    mapfile -t folders < <(grep -o -- "-I[^ ]*" <<<"$command" | cut -c3- | sort -u)
    {
        echo "$command"
        "$linter" --version
        cat .clang-tidy "$1"
        sed -n 's|^#include "\(/.*\)"$|\1|p' "$1" | xargs cat
        find -L "${folders[@]}" -name '*.h' | sort | xargs cat
    } | sha256sum
}

# lint ROOM: silent when it is clean.
lint() {
    local clean key said
    clean=$build/clean/$(sha256sum <<<"$1" | cut -c1-16)
    key=$(key_of "$1")
    if [ "$key" = "$(cat "$clean" 2>/dev/null)" ]; then
        return
    fi
    said=$("$linter" -p $build --quiet "$1" 2>&1) || {
        printf '%s\n' "$said"
        return 1
    }
    echo "$key" >"$clean"
}

# So that no processor is left with a large room while the others have nothing to do.
largest_first() {
    grep -o '"file": "[^"]*"' $commands | cut -d'"' -f4 | sort -u | while IFS= read -r room; do
        echo "$(sed -n 's|^#include "\(/.*\)"$|\1|p' "$room" | xargs cat | wc -l) $room"
    done | sort -rn | cut -d' ' -f2
}

linter=$(llvm_program clang-tidy)
configure lint
mkdir -p $build/clean
export -f key_of lint
export linter build commands
largest_first | xargs -P "$(nproc)" -I ROOM bash -euo pipefail -c 'lint ROOM'
