#!/usr/bin/env bash
# Sets games up as a person does: a first start in an empty folder leads to a game, a second game is added, one is
# deleted, and a twenty-first is refused; the table of games is compared after each. Ends at the first thing that is not
# as it must be.
#
#   tests/program/setup.sh BALLHAVEN [FOLDER FOR SCREENSHOTS]
set -uo pipefail
ballhaven=$1
pictures=${2:-}
source "$(dirname "${BASH_SOURCE[0]}")/desk.sh"

free_record() { record "$1" un-defined 0 1 99 10 0 1 99; }
record_is() { has_bytes LOTTOSYS $((64 * $1)) "$2"; } # slot, record

wait_for_dialog() {
    until_true "the game dialog opens" has_title "Add a New Game"
    dialog=$(has_title "Add a New Game" | tail -n 1)
    settle
}
choose_in_dialog() { # x and y of a list, entry from 0
    click_in "$dialog" 0 "$1" "$2"
    # shellcheck disable=SC2046
    keys Home $(times Down "$3") Return
}
save_dialog() {
    picture "$1" "$dialog"
    click_in "$dialog" 0 7800 4600
    until_true "the game dialog closes" has_no_other
}

middle() { # of a window, in pixels
    eval "$(xdotool getwindowgeometry --shell "$1")"
    echo $((X + WIDTH / 2)) $((Y + HEIGHT / 2))
}
# A box stands in the middle of the main window, but for frames, title bars and menus.
stands_over_window() {
    local box window_x window_y box_x box_y
    box=$(others | tail -n 1)
    read -r window_x window_y <<<"$(middle "$window")"
    read -r box_x box_y <<<"$(middle "$box")"
    (((box_x - window_x) ** 2 <= 25 ** 2 && (box_y - window_y) ** 2 <= 25 ** 2)) ||
        fail "the middle of the box is at $box_x,$box_y, and that of the window at $window_x,$window_y"
}

echo "== a first start, beside a window of somebody else's, so that the desktop moves ours away from the corner"
xlogo -geometry 900x500+0+0 2>/dev/null &
neighbour=$!
until_true "the other window stands" has_title xlogo
start
until_true "a box asks" has_other
settle
stands_over_window
kill $neighbour
answer first-start
wait_for_dialog
xdotool type "Six of 49"
keys Return
choose_in_dialog 5400 2640 5
choose_in_dialog 5400 3840 48
save_dialog game-dialog-number
until_true "the game is stored" record_is 1 "$(record 1 "Six of 49" 0 1 49 06 0 - 00)"
record_is 2 "$(free_record 2)" || fail "the second slot has changed"
picture first-game

echo "== a second game"
click_at $((480 + 240)) 240
wait_for_dialog
# The free slot's record stands in the place of the shown game's from now on.
record_is 1 "$(free_record 2)" || fail "the shown game's slot has not been given up"
xdotool type "Five cards"
keys Return Down Down Down
choose_in_dialog 5400 2640 4
save_dialog game-dialog-card
until_true "the second game is stored" record_is 2 "$(record 2 "Five cards" 3 1 52 05 0 1 52)"
has_bytes LOTTOSYS 0 02 || fail "the second game is not the shown one"
picture second-game

echo "== a game deleted"
click_at $((960 + 240)) 240
agree delete
until_true "the slot is free again" record_is 2 "$(free_record 2)"
[[ $(wc -c <"$folder/GAME02.CDB") == 64064 ]] || fail "the file of draws has not kept its size"
close_it

echo "== twenty games and no more"
for slot in {1..20}; do
    record "$slot" "Game $slot" 0 1 49 06 0 - 00 | dd of="$folder/LOTTOSYS" bs=64 seek="$slot" conv=notrunc status=none
done
cp "$folder/LOTTOSYS" "$work/twenty"
start
click_at $((480 + 240)) 240
answer twenty-games
until_true "the box has gone" has_no_other
close_it
cmp "$folder/LOTTOSYS" "$work/twenty" || fail "the refusal changed the table of games"
echo "all as it must be"
