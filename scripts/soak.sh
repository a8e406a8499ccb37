#!/usr/bin/env bash
# soak.sh SHIFTS [FOLDER]: the monkey plays that many shifts in the sanitized build, on all cores (or on as many as the
# variable SOAK_JOBS says), and what it found and used is told at the end. Ends with 0 when it found nothing.
#
# FOLDER, build/soak without one, gets of each job its log (with a line of figures every twenty evenings), the journal of
# its present evening, and pictures that were wrong. Evening SEED once more:
#     build/sanitize/tests/ventrel-soak --seeds SEED
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/prepare.sh

shifts=${1:?"soak.sh SHIFTS [FOLDER]"}
folder=${2:-build/soak}
jobs=${SOAK_JOBS:-$(nproc)}
readonly seeds_of_a_job=1000000

configure release
build release airspaces lessons pictures fonts sounds music
configure sanitize
build sanitize ventrel-soak
mkdir -p "$folder"
rm -f "$folder"/job*

export ASAN_OPTIONS=${ASAN_OPTIONS:-}:detect_stack_use_after_return=1
pids=()
for ((job = 0; job < jobs; ++job)); do
    first=$((job * seeds_of_a_job + 1))
    build/sanitize/tests/ventrel-soak --seeds $first..$((first + seeds_of_a_job - 1)) \
        --shifts $(((shifts + jobs - 1) / jobs)) --journal "$folder/job$job.journal" --pictures "$folder" \
        >"$folder/job$job.log" 2>&1 &
    pids+=($!)
done

status=0
for ((job = 0; job < jobs; ++job)); do
    wait "${pids[job]}" || status=1
    if ! grep -q '^summary' "$folder/job$job.log"; then
        echo "Job $job died in this evening, after these inputs:"
        head -n 1 "$folder/job$job.journal"
        tail -n 30 "$folder/job$job.journal"
    fi
    grep -v '^so-far' "$folder/job$job.log" || true
done

# The figures of all jobs together: numbers are added, what grew or was left open stands in each job's own line.
grep -h '^summary' "$folder"/job*.log | awk '
    { for (i = 2; i <= NF; ++i) { split($i, part, "="); if (part[2] !~ /\.\./ && part[1] != "most-growth") {
          if (!(part[1] in sum)) { names[++count] = part[1] } sum[part[1]] += part[2] } } }
    END { printf "all"; for (i = 1; i <= count; ++i) { printf " %s=%s", names[i], sum[names[i]] } print "" }'
exit $status
