#!/usr/bin/env bash
# Enters two draws of this month in a mended folder and in an ordinary one, by mouse and keyboard, closes the program and
# opens it again: the mended folder has them, the ordinary one has other dates. Then one damaged byte in the mended folder
# costs its own draw and no other. Ends at the first thing that is not as it must be.
#
#   tests/program/mended.sh BALLHAVEN BALLHAVEN_MENDED [FOLDER FOR SCREENSHOTS]
set -uo pipefail
ballhaven=$1
mended=$2
pictures=${3:-}
source "$(dirname "${BASH_SOURCE[0]}")/desk.sh"
source "$(dirname "${BASH_SOURCE[0]}")/draws.sh"

today=$(date +%F)
other=$(third_row "$(first_of_month +0)" 0)
other_column=0
if [[ $other == "$today" ]]; then
    other_column=1
    other=$(third_row "$(first_of_month +0)" 1)
fi
if [[ $other < $today ]]; then
    rows=("$other 11 12 13 14 15 16" "$today 1 2 3 4 5 6")
else
    rows=("$today 1 2 3 4 5 6" "$other 11 12 13 14 15 16")
fi
blank_row=$(printf '%64s' '')

set_up_game() { record 1 "Six of 49" 0 1 49 06 0 - 00 | dd of="$folder/LOTTOSYS" bs=64 seek=1 conv=notrunc status=none; }

# Enters both draws, and closes the program.
enter_draws() {
    start
    add_draw
    take_date "$1-calendar"
    until_brought_in
    type_picks 1 2 3 4 5 6
    add_draw
    third_row_day "$other_column"
    take_date "$1-calendar-other"
    until_brought_in
    type_picks 11 12 13 14 15 16
    picture "$1-entered"
    close_it
}
# Opens the program and has it save the draws as it has read them.
open_again() {
    start
    picture "$1"
    log_pick 1 1 600
    close_it
}
# The file has these rows, each a day and six picks, made by `row` or `whole_row`, and no more.
has_rows() {
    local shape=$1 place=0 each
    shift
    for each in "$@"; do
        place=$((place + 1))
        # shellcheck disable=SC2086
        row_is GAME01.CDB "$place" "$("$shape" $each)" || fail "row $place: $(bytes GAME01.CDB $((64 * place)) 64)"
    done
    row_is GAME01.CDB $((place + 1)) "$blank_row" || fail "more draws than $place"
}

echo "== a mended folder keeps the dates of today"
"$mended" "$folder" || fail "the folder has not been made"
has_bytes LOTTOSYS 63 M || fail "the folder bears no mark"
set_up_game
enter_draws mended
has_bytes GAME01.CDB 0 "$(printf '10-26-2002%53sM' '')" || fail "the header: $(bytes GAME01.CDB 0 64)"
has_rows whole_row "${rows[@]}"
open_again mended-opened-again
has_rows whole_row "${rows[@]}"
"$mended" "$folder" 2>/dev/null && fail "a folder with data has been made anew"

echo "== one damaged byte costs its own draw"
printf 'x' | dd of="$folder/GAME01.CDB" bs=1 seek=64 conv=notrunc status=none
open_again mended-damaged
has_rows whole_row "${rows[1]}"

echo "== an ordinary folder keeps four digits"
rm "$folder"/LOTTOSYS "$folder"/*.CDB
{
    printf '01/1/1/000000%51s' ''
    record 1 "Six of 49" 0 1 49 06 0 - 00
    for slot in {2..20}; do record "$slot" un-defined 0 1 99 10 0 1 99; done
} >"$folder/LOTTOSYS"
enter_draws ordinary
has_bytes GAME01.CDB 0 "$(printf '10-26-2002%54s' '')" || fail "the header: $(bytes GAME01.CDB 0 64)"
has_rows row "${rows[@]}"
open_again ordinary-opened-again
has_rows row "${rows[@]}"
has_bytes LOTTOSYS 63 ' ' || fail "the ordinary folder bears a mark"
echo "all as it must be"
