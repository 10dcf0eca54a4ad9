#!/usr/bin/env bash
# Looks into the built program for what makes it hard to attack: addresses of the system's choice, tables that are
# read-only once it runs, a stack that cannot be run, guards of the stack, and no library that takes in what others send;
# and into the build of the release for checked copies and for marks where indirect jumps may land. Ends at the first
# thing that is missing.
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
    local told
    told=$(readelf --wide "${@:3}" "$ballhaven") || fail "the program cannot be looked into"
    grep -Eq "$1" <<<"$told" || fail "$2"
}

shows 'Type: +DYN .*Position-Independent' "no position-independent executable" --file-header
shows 'FLAGS_1.* NOW.* PIE' "not all symbols are bound at the start" --dynamic
shows 'GNU_RELRO' "tables stay writable" --program-headers
shows 'GNU_STACK.* RW +0x' "the stack can be run" --program-headers
shows 'UND __stack_chk_fail' "no guard of the stack" --dyn-syms

needed=$(readelf --wide --dynamic "$ballhaven" | grep NEEDED) || fail "the program needs no library"
[[ $needed != *Qt6Network* ]] || fail "Qt Network is linked"
[[ $needed != *Qt6Svg* ]] || fail "Qt Svg is linked"

build=$(mktemp -d)
trap 'rm -rf "$build"' EXIT
cmake -S "$sources" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DBALLHAVEN_TESTS=OFF >/dev/null ||
    fail "CMake cannot set up a release"
commands=$(grep '"command":.* -c .*/src/[^ ]*\.cpp' "$build/compile_commands.json")
[[ -n $commands ]] || fail "the release compiles nothing"
every_source_has() { # flag, what is missing without it
    local without
    without=$(grep -vc -- "$1" <<<"$commands")
    [[ $without == 0 ]] || fail "$without sources of the release are built without $2"
}
every_source_has -D_FORTIFY_SOURCE=2 "checked copies"
# The system's own start files have no marks, so that the program as a whole does not tell of them.
[[ $(uname -m) != x86_64 ]] || every_source_has -fcf-protection "marks where indirect jumps may land"
echo "all as it must be"
