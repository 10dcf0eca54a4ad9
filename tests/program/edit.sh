#!/usr/bin/env bash
# Keeps a game's draws as a person does: enters ten draws of a number game and three of a card game from nothing by mouse
# and keyboard, changes a date, deletes a draw, hi-lites one, closes the program, and compares the files of draws with
# what they must hold. Ends at the first thing that is not as it must be.
#
#   tests/program/edit.sh BALLHAVEN [FOLDER FOR SCREENSHOTS]
set -uo pipefail
ballhaven=$1
pictures=${2:-}
source "$(dirname "${BASH_SOURCE[0]}")/desk.sh"
source "$(dirname "${BASH_SOURCE[0]}")/draws.sh"

first_record() { printf '01/1/1/000000%51s' ''; }
{
    first_record
    record 1 "Six of 49" 0 1 49 06 0 - 00
    record 2 "Five cards" 3 1 52 05 0 1 52
    for slot in {3..20}; do record "$slot" un-defined 0 1 99 10 0 1 99; done
} >"$folder/LOTTOSYS"

echo "== ten draws of numbers"
today=$(date +%F)
next=$(third_row "$(first_of_month +1)" 0)
start
add_draw
take_date calendar-today
until_brought_in
type_picks 1 2 3 4 5 6
add_draw
next_month
third_row_day 0
take_date calendar-next-month
until_brought_in
type_picks 11 12 13 14 15 16
for draw in {3..10}; do
    add_draw
    take_date "calendar-$draw"
    until_brought_in
    type_picks $((draw + 10)) $((draw + 12)) $((draw + 14)) $((draw + 16)) $((draw + 18)) $((draw + 20))
done
picture ten-draws

echo "== a date changed, a draw deleted, one hi-lited"
log_date 1
click_at 8030 $((720 + 225 + 100))
wait_for_calendar
previous_month
third_row_day 1
take_date calendar-change
until_true "a box asks" has_title Ballhaven
sleep 0.5
keys Return
until_brought_in
log_pick 3 1 600
click_at $((2400 + 240)) 240
agree delete-draw
until_brought_in
log_pick 4 2 600
click_at 6200 $((720 + 225 * 4 + 110))
picture hi-lited-draw

echo "== three draws of cards"
click_at 1100 970
keys Home Down Return
until_true "the card game is shown" has_bytes LOTTOSYS 0 02
card() { click_at $((7920 + 285 + 240 * $1)) $((1200 + 540 + 180 * ($2 - 1) + 90)); } # suit from 0, rank
for draw in 1 2 3; do
    add_draw
    if [[ $draw == 2 ]]; then
        next_month
        third_row_day 0
    fi
    take_date "calendar-card-$draw"
    until_brought_in
    for pick in {1..5}; do
        log_pick "$draw" "$pick" 720
        [[ $pick == 3 ]] && picture "card-picker-$draw"
        card $(((draw + pick) % 4)) $((draw + pick))
    done
done
picture three-draws
close_it

changed=$(third_row "$(first_of_month -1)" 1)
row_is GAME01.CDB 1 "$(row "$changed" 1 2 3 4 5 6)" || fail "the changed date: $(bytes GAME01.CDB 64 64)"
row_is GAME01.CDB 2 "$(row "$next" 11 12 13 14 15 16)" || fail "the second draw: $(bytes GAME01.CDB 128 64)"
for draw in {4..10}; do
    day=$(date -u -d "$next $((draw - 2)) days" +%F)
    picks=$(row "$day" $((draw + 10)) $((draw + 12)) $((draw + 14)) $((draw + 16)) $((draw + 18)) $((draw + 20)))
    row_is GAME01.CDB $((draw - 1)) "$picks" || fail "draw $draw: $(bytes GAME01.CDB $((64 * (draw - 1))) 64)"
done
row_is GAME01.CDB 10 "$(printf '%64s' '')" || fail "more draws than nine"
days=("$today" "$next" "$(date -u -d "$next 1 day" +%F)")
for draw in 1 2 3; do
    picks=()
    for pick in {1..5}; do picks+=($((13 * ((draw + pick) % 4) + draw + pick))); done
    row_is GAME02.CDB "$draw" "$(row "${days[draw - 1]}" "${picks[@]}")" ||
        fail "card draw $draw: $(bytes GAME02.CDB $((64 * draw)) 64)"
done
echo "all as it must be"
