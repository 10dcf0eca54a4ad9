#!/bin/sh
# Runs the fuzzers of the readers of data files and copies and of the importer, one after the other:
# fuzz/run.sh [seconds for each, 60 if not given]. Ends with an error at the first finding and keeps it in
# build/fuzz/findings. Needs clang++-14.
set -eu

seconds=${1:-60}
cd "$(dirname "$0")/.."

cmake --preset fuzz >/dev/null
readers="CopyArchive DrawImport GameTable HistoryFile PlayFile ShuffleFile"
cmake --build build/fuzz --target $(printf 'fuzz_%s ' $readers)

# Files in memory: the fuzzers do little else than write and read.
work=$(mktemp -d "$([ -d /dev/shm ] && echo /dev/shm || echo /tmp)/ballhaven-fuzz.XXXXXX")
trap 'rm -rf "$work"' EXIT
export TMPDIR="$work"
mkdir -p build/fuzz/findings

for reader in $readers; do
    dictionary=fuzz/records.dict
    [ "$reader" != DrawImport ] || dictionary=fuzz/csv.dict
    [ "$reader" != CopyArchive ] || dictionary=fuzz/zip.dict
    mkdir -p "build/fuzz/corpus/$reader"
    if ! "build/fuzz/fuzz/fuzz_$reader" -max_total_time="$seconds" -max_len=4096 -dict="$dictionary" \
        -artifact_prefix="build/fuzz/findings/$reader-" -print_final_stats=1 \
        "build/fuzz/corpus/$reader" >"$work/$reader.log" 2>&1; then
        tail -40 "$work/$reader.log"
        echo "fuzz_$reader: a finding, kept in build/fuzz/findings"
        exit 1
    fi
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$work/$reader.log")
    echo "fuzz_$reader: $runs runs in $seconds seconds, no finding"
done
