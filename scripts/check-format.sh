#!/usr/bin/env bash
# Every source file stands as clang-format 14 writes it. Other versions differ in trifles and are not asked.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

formatter=$(command -v clang-format-14 || command -v clang-format)
if ! "$formatter" --version | grep -q 'version 14\.'; then
    echo "Format not checked: $("$formatter" --version) is not version 14."
    exit 0
fi
find src tools tests bench fuzz -name '*.h' -o -name '*.cpp' | sort | xargs "$formatter" --dry-run -Werror
