#!/usr/bin/env bash
# Looks with clang-tidy for faults in the sources that differ from origin's main branch, header and source of a room
# together. Where nothing differs, or there is no such branch, in all of them, the ones changed last first, for as many
# seconds as are given. Needs the folder of a build for the commands of the compiler.
#
#   scripts/tidy.sh BUILD SECONDS
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1
build=$1
seconds=$2

# The compiler's commands without the headers that it compiled beforehand, which only itself can read.
commands=$(mktemp -d)
trap 'rm -rf "$commands"' EXIT
sed -E 's/ -include (\\"[^"]*|[^ "]*)cmake_pch\.hxx(\\")?//' "$build/compile_commands.json" >"$commands/compile_commands.json"

# The sources that the build compiles, by their names in the project.
compiled=$(sed -n "s|^ *\"file\": \"$PWD/\(.*\.cpp\)\".*|\1|p" "$build/compile_commands.json" | sort -u)

# Of the files named in the input, those that the build compiles, each once; for a header its source, or else the first
# source that includes it.
sources_of() {
    local file source
    while read -r file; do
        source=$file
        if [[ $file == *.h ]]; then
            source=${file%.h}.cpp
            [[ -f $source ]] || source=$(grep -rlF "#include \"${file#*/}\"" --include='*.cpp' src tests tools | sort | head -n 1)
        fi
        grep -qxF -- "$source" <<<"$compiled" && echo "$source"
    done | awk '!seen[$0]++'
}

base=$(git merge-base HEAD origin/main 2>/dev/null)
files=
if [[ -n $base ]]; then
    files=$({ git diff --name-only --diff-filter=d "$base"; git ls-files --others --exclude-standard; } | sources_of)
fi
if [[ -z $files ]]; then
    files=$({ git log --format= --name-only -- '*.cpp'; git ls-files '*.cpp'; } | sources_of)
fi

found=$(timeout "$seconds" xargs -n 1 -P "$(nproc)" clang-tidy-14 -p "$commands" --quiet <<<"$files" 2>/dev/null)
status=$?
if [[ $status == 124 ]]; then
    echo "clang-tidy: the time was up before all sources were looked through"
    status=0
fi
[[ -n $found ]] && echo "$found"
[[ $status == 0 && -z $found ]]
