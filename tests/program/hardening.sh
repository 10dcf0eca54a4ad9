#!/usr/bin/env bash
# Looks into the built program for what makes it hard to attack: addresses of the system's choice, tables that are
# read-only once it runs, a stack that cannot be run, guards of the stack, marks where indirect jumps may land; and into
# the build of the release for checked copies. Ends at the first thing that is missing.
#
#   tests/program/hardening.sh BALLHAVEN SOURCES
set -uo pipefail
ballhaven=$1
sources=$2

fail() {
    echo "FAILED: $1" >&2
    exit 1
}
shows() { # pattern, what is missing without it, options of readelf
    readelf --wide "${@:3}" "$ballhaven" | grep -Eq "$1" || fail "$2"
}

shows 'Type: +DYN .*Position-Independent' "no position-independent executable" --file-header
shows 'FLAGS_1.* NOW.* PIE' "not all symbols are bound at the start" --dynamic
shows 'GNU_RELRO' "tables stay writable" --program-headers
shows 'GNU_STACK.* RW +0x' "the stack can be run" --program-headers
shows 'UND __stack_chk_fail' "no guard of the stack" --dyn-syms
if [[ $(uname -m) == x86_64 ]]; then
    # The program's own routines begin with a mark; a few of the system's start files have them everywhere.
    marks=$(objdump --disassemble --no-show-raw-insn "$ballhaven" | grep -c 'endbr64')
    ((marks > 1000)) || fail "only $marks places are marked for indirect jumps"
fi

build=$(mktemp -d)
trap 'rm -rf "$build"' EXIT
cmake -S "$sources" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DBALLHAVEN_TESTS=OFF >/dev/null ||
    fail "CMake cannot set up a release"
commands=$(grep '"command":' "$build/compile_commands.json" | grep -v '_autogen')
[[ -n $commands ]] || fail "the release compiles nothing"
unchecked=$(grep -vc -- '-D_FORTIFY_SOURCE=2' <<<"$(grep ' -c [^ ]*/src/' <<<"$commands")")
[[ $unchecked == 0 ]] || fail "$unchecked sources of the release are built without checked copies"
echo "all as it must be"
