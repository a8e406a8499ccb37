#!/usr/bin/env bash
# Names, likely faults and needless costs of src/ and tools/, by clang-tidy (.clang-tidy).
#
# A room is read at once, as one source file: that takes a tenth of the time, and shows where two of its files give
# one name to two things, which is an error here.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/llvm.sh
source scripts/prepare.sh

linter=$(llvm_program clang-tidy)
configure lint
grep -o '"file": "[^"]*"' build/lint/compile_commands.json | cut -d'"' -f4 | sort -u |
    xargs -P "$(nproc)" -n 1 "$linter" -p build/lint --quiet
