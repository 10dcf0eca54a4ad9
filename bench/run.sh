#!/usr/bin/env bash
# Measures the works that have a budget, each beside its rival, and prints the table of docs/performance.md.
#
#   bench/run.sh       medians of 25 runs, a few minutes
#   bench/run.sh N     medians of N runs
#
# The runs of all works are interleaved in a random order, so that a slow spell of the machine meets ours and rivals
# alike. Run it on a machine that does nothing else.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh

runs=${1:-25}
if [[ ! $runs =~ ^[1-9][0-9]*$ ]]; then
    sed -n '2,5s/^# \{0,1\}//p' bench/run.sh
    exit 2
fi
need_packages "${run_packages[@]}" libbenchmark-dev libsqlite3-dev sqlite3 xvfb jq

cmake --preset bench >/dev/null
cmake --build --preset bench >&2

# The data files lie on the disk of the project: a temporary folder in memory would make flushes cost nothing.
results=build/bench/results
export TMPDIR=$PWD/build/bench/data
mkdir -p "$results"
mkdir -p -m 700 "$TMPDIR"
export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$TMPDIR}

echo "Ballhaven: load of the machine before the runs:$(uptime | sed 's/.*average://')" >&2
for program in ballhaven_bench ballhaven_screen_bench; do
    "build/bench/$program" --benchmark_repetitions="$runs" --benchmark_min_time=0.05 \
        --benchmark_enable_random_interleaving=true --benchmark_report_aggregates_only=true \
        --benchmark_out="$results/$program.json" --benchmark_out_format=json >&2
done
jq --slurp '{context: .[0].context, benchmarks: map(.benchmarks) | add}' "$results"/*.json |
    jq --raw-output --arg runs "$runs" --from-file bench/table.jq
