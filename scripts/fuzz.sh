#!/bin/bash
# Looks for crashes in the readers: every target of fuzz/, or those that are named, in turn and on one core.
#     scripts/fuzz.sh SECONDS [TARGETS...]
# Inputs that reach something new are kept in build/fuzz/reached/TARGET, findings in build/fuzz/findings/.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/prepare.sh

[[ "${1:-}" =~ ^[0-9]+$ ]] || { echo "usage: scripts/fuzz.sh SECONDS [TARGETS...]" >&2; exit 2; }
seconds=$1
shift
(($# > 0)) || set -- $(ls fuzz/corpus)

install_packages play fuzz
configure fuzz
build fuzz "${@/%/_fuzz}"
mkdir -p build/fuzz/findings

status=0
for target in "$@"; do
    reached=build/fuzz/reached/$target
    mkdir -p "$reached"
    # Bad texts are told on the terminal a thousand times a second: only the fuzzer's own words are kept.
    log=build/fuzz/$target.log
    build/fuzz/fuzz/"${target}"_fuzz -max_total_time="$seconds" -timeout=25 -rss_limit_mb=2048 -close_fd_mask=3 \
        -print_final_stats=1 -artifact_prefix=build/fuzz/findings/"$target"- \
        "$reached" fuzz/corpus/"$target" > "$log" 2>&1 || { status=1; tail -n 20 "$log"; }
    echo "$target: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") inputs"
done
exit $status
