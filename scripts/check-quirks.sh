#!/usr/bin/env bash
# Every oddity that is kept stands in three places under one id: a QUIRK comment at its line, an entry in
# docs/not-bugs.md, and a test that names it. Names what is missing.
#
#   scripts/check-quirks.sh FOLDER OF THE PROJECT
set -uo pipefail
cd "$1" || exit 1

marked=$(grep -rhoE 'QUIRK [A-Z0-9-]+' src | sed 's/QUIRK //' | sort -u)
told=$(sed -n 's/^### //p' docs/not-bugs.md | sort -u)
tested=$(grep -rhoE '[A-Z][A-Z0-9]*(-[A-Z0-9]+)*-[0-9]+ in docs/not-bugs.md' tests | sed 's/ in .*//' | sort -u)

missing=0
# Names each id of the first list that the second lacks.
compare() {
    local id
    for id in $(comm -23 <(echo "$1") <(echo "$2")); do
        echo "$id $3"
        missing=1
    done
}
compare "$marked" "$told" "has no entry in docs/not-bugs.md"
compare "$told" "$marked" "is told in docs/not-bugs.md and marked at no line of src/"
compare "$marked" "$tested" "is named by no test"
exit $missing
