#!/usr/bin/env bash
# Builds Ballhaven's tests and runs all of them. The last line counts them: "N passed, M failed".
#
#   ./test.sh             the tests as they are
#   ./test.sh sanitize    the same tests under the address and undefined-behaviour sanitizers
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")" || exit 1
source scripts/packages.sh

preset=${1:-test}
build=build/$preset

# Nothing could be run: that counts as one failure.
give_up() {
    echo "Ballhaven: $1" >&2
    echo "0 passed, 1 failed"
    exit 1
}

case $preset in
    test | sanitize) ;;
    *) give_up "there are two sets of tests, test and sanitize; \"$preset\" is neither" ;;
esac
need_packages "${test_packages[@]}" || give_up "the tests need these packages"
cmake --preset "$preset" >/dev/null || give_up "CMake cannot set up the build"
cmake --build --preset "$preset" || give_up "the build failed"

# The tests write thousands of small files and wait for each to reach the disk: in memory that takes a tenth of the time.
[[ -w /dev/shm ]] && export TMPDIR=/dev/shm

rm -f "$build/Testing/Temporary/LastTest.log"
ctest --preset "$preset"
verdict=$?
counts=$(awk -f scripts/count-tests.awk "$build/Testing/Temporary/LastTest.log") || give_up "no test left a record"

if [[ $verdict != 0 && $counts == *" 0 failed" ]]; then
    counts="${counts% 0 failed} 1 failed"
fi
echo "$counts"
[[ $verdict == 0 && $counts == *" 0 failed" ]]
