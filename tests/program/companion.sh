#!/usr/bin/env bash
# Uses the companion on a folder of sample games: lists the games, copies the folder, marks it as mended, sets what is
# shown, damages it, checks and mends it, restores it; then while the program runs on it. The files are compared after
# each step. Ends at the first thing that is not as it must be.
#
#   tests/program/companion.sh BALLHAVEN BALLHAVEN_DATA BALLHAVEN_SAMPLE
set -uo pipefail
ballhaven=$1
companion=$2
sample=$3
source "$(dirname "${BASH_SOURCE[0]}")/desk.sh"

"$sample" "$folder" >/dev/null || fail "no sample games"
cp "$companion" "$folder/ballhaven-data"

# Runs a command on the folder that it lies in; what it says is in `said`.
run() { # exit code, command and its arguments
    local expected=$1 end
    shift
    said=$("$folder/ballhaven-data" "$@" 2>&1)
    end=$?
    [[ $end == "$expected" ]] || fail "$* ended with $end and not with $expected: $said"
}
says() { grep -Fq -- "$1" <<<"$said" || fail "\"$1\" is not in: $said"; }
data() { (cd "$folder" && sha256sum LOTTOSYS ./*.CDB); }
is_as() { [[ $(data) == "$1" ]] || fail "$2"; }
# Starts the program, and waits until it has the keyboard: a window manager loses the keys of one that has it not yet.
start_to_the_front() {
    start
    until_true "the window is the active one" is_active
}
is_active() { [[ $(xdotool getactivewindow) == "$window" ]]; }
# Changes bytes of a file: name, offset, text.
damage() { printf '%s' "$3" | dd of="$folder/$1" bs=1 seek="$2" conv=notrunc status=none; }

original=$(data)

echo "== looking"
run 0 games
says " 1  Harbour Six: numbers, 6 of 1 to 49; 600 draws"
says "20  (no game)"
run 0 check
says "nothing is wrong."
run 2 foretell
run 2 set 3
run 0 set --help
says "Example: ballhaven-data set"
is_as "$original" "looking has changed something"
[[ ! -e $folder/copies ]] || fail "looking has made a copy"

echo "== a backup"
run 0 backup "$work/monday.zip"
says "22 files"
run 1 backup "$work/monday.zip"
says "is there already"
is_as "$original" "a backup has changed something"

echo "== without its standard streams"
"$folder/ballhaven-data" guarantee "First Four Home" --numbers 1-10 --drawn 3 --hits 2 --proof "$work/proof.csv" \
    2>&- >"$work/lines"
[[ $(head -n 1 "$work/proof.csv") == pick1,pick2,pick3 ]] || fail "words for the errors are in the proof"
"$folder/ballhaven-data" backup "$work/tuesday.zip" <&- >&- 2>&- || fail "no backup without standard streams"
cmp "$work/monday.zip" "$work/tuesday.zip" || fail "the backup without standard streams is another one"
rm "$work/tuesday.zip"

echo "== settings"
run 0 set "three digits" --history-set 1000
run 0 set --shown 7
has_bytes LOTTOSYS 0 07 || fail "slot 7 is not the shown one"
has_bytes LOTTOSYS $((7 * 64 + 26)) 000 || fail "the history set is not that of all draws"

echo "== a mended folder"
run 0 mend
says "dates after 18 May 2011 are kept"
way_back=$(sed -n 's/.* restore "\(.*\)"$/\1/p' <<<"$said")
has_bytes LOTTOSYS 63 M || fail "the folder is not marked"
has_bytes GAME01.CDB 63 M || fail "the draws are not marked"
run 0 check
run 0 mend
says "is mended already"
run 0 restore "$way_back"
has_bytes LOTTOSYS 63 " " || fail "the mark has not gone"
has_bytes LOTTOSYS 0 07 || fail "the setting before has gone too"

echo "== damage"
settled=$(data)
damage GAME02.CDB $((5 * 64)) "    " # a date
damage GAME02.CDB $((9 * 64 + 7)) "x"
: >"$folder/PLAYS04.CDB.new"
damaged=$(data)
run 1 check
says "GAME02.CDB, record 6, columns 1-4 (date): holds \"    \", which is no date."
says "GAME02.CDB: no draw stands in record 6, before others."
says "PLAYS04.CDB.new: was left by a run that did not come to its end."
is_as "$damaged" "a check has changed something"
run 1 check --mend
says "mended: GAME02.CDB: no draw stands in record 6"
says "1 finding left"
[[ ! -e $folder/PLAYS04.CDB.new ]] || fail "what a crash has left is still there"
run 1 check
says "1 finding, of which \"check --mend\" repairs 0."

echo "== a restore"
cp "$work/monday.zip" "$work/bad.zip"
printf 'x' | dd of="$work/bad.zip" bs=1 seek=2000 conv=notrunc status=none
before=$(data)
run 1 restore "$work/bad.zip"
says "is no whole copy of a Ballhaven folder"
run 1 restore "$work/none.zip"
is_as "$before" "a copy that is none has changed something"
run 0 restore "$work/monday.zip"
is_as "$original" "the backup has not come back whole"
[[ $settled != "$original" ]] || fail "the settings were none"

echo "== while Ballhaven runs on the folder"
start_to_the_front
before=$(data)
for command in games check "check --mend" "backup $work/tuesday.zip" "restore $work/monday.zip" mend "set --shown 2"; do
    # shellcheck disable=SC2086
    run 1 $command
    says "is in use by Ballhaven"
done
is_as "$before" "a command has changed something under the program"
[[ ! -e $work/tuesday.zip ]] || fail "a backup was made under the program"
close_it
rm "$folder/GAME02.CDB" # a game that is shown gets its file
run 0 set --shown 2
start_to_the_front
until_true "the set slot is shown" test -s "$folder/GAME02.CDB"
close_it
run 0 check
echo "all as it must be"
