#!/usr/bin/env bash
# Uses the built program as a person does: starts it twice, shows every sample game, changes set and order, types a pick
# and one that is refused, closes it, and compares the files with what they must hold. Ends at the first thing that is
# not as it must be.
#
#   tests/program/use.sh BALLHAVEN BALLHAVEN_SAMPLE [FOLDER FOR SCREENSHOTS]
set -uo pipefail
ballhaven=$1
sample=$2
pictures=${3:-}
source "$(dirname "${BASH_SOURCE[0]}")/desk.sh"

# The places of controls, in twips.
game_list() { click_at 1100 970; }
set_list() { click_at 1100 1640; }
log_cell() { click_at $((7750 + 600 * ($2 - 1) + 300)) $((720 + 225 * $1 + 100)); }  # row and column from 1

choose() { # list, entry from 0
    "$1"
    # shellcheck disable=SC2046
    keys Home $(times Down "$2") Return
}

"$sample" "$folder" >/dev/null || fail "no sample games"
cp -r "$folder" "$work/before"

echo "== started"
start
picture number-game

echo "== started twice"
"$folder/ballhaven" || fail "the second start ended with a failure"
has_windows 1 || fail "the second start left a window"
[[ $(xdotool getactivewindow) == "$window" ]] || fail "the first start's window is not in front"
diff -r "$folder" "$work/before" >/dev/null || fail "the second start changed a file"

echo "== every kind of game"
for game in 2 3 4 5 6 7 8 9 10 1; do
    choose game_list $((game - 1))
    until_true "game $game is shown" has_bytes LOTTOSYS 0 "$(printf '%02d' $game)"
    picture "game-$game"
done

echo "== another set and order"
choose set_list 4
until_true "the set of 50 is stored" has_bytes LOTTOSYS $((64 + 26)) 050
click_at $((2880 + 240)) 240
until_true "the order is stored" has_bytes LOTTOSYS 3 1
click_at $((3360 + 240)) 240
until_true "the order is stored" has_bytes LOTTOSYS 3 0

echo "== a pick, and one that is refused"
log_cell 2 1
keys 4 9 Return
log_cell 3 2
keys 5 0 Return
until_true "a box refuses the pick" has_other
picture refused
keys Return
until_true "the box has gone" has_no_other
keys Escape

echo "== closed"
close_it

# The second newest draw has 49 as its first pick; all else is as it was, but for the set of game 1.
draws=$(bytes GAME01.CDB 64 64000 | fold -w 64 | grep -c '^[0-9]')
place=$((64 * (draws - 1) + 5))
printf 49 | dd of="$work/before/GAME01.CDB" bs=1 seek=$place conv=notrunc status=none
printf 050 | dd of="$work/before/LOTTOSYS" bs=1 seek=$((64 + 26)) conv=notrunc status=none
diff -r "$folder" "$work/before" || fail "the files are not what they must be"
echo "all as it must be"
