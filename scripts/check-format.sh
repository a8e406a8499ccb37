#!/usr/bin/env bash
# Every source file stands as clang-format 19 writes it, the version that Debian 12 and 13 share: others differ in
# trifles. With --fix the files are written that way.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/llvm.sh

formatter=$(llvm_program clang-format)
files() { find src tools tests bench fuzz -name '*.h' -o -name '*.cpp' | sort; }
if [ "${1:-}" = --fix ]; then
    files | xargs "$formatter" -i
else
    files | xargs "$formatter" --dry-run -Werror || {
        echo "scripts/check-format.sh --fix puts it right." >&2
        exit 1
    }
fi
