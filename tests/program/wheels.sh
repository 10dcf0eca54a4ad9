#!/usr/bin/env bash
# Makes plays of favourite numbers as a person does: eight of them are chosen by mouse and made into a full wheel, a
# partial wheel and a shuffle, the plays in use cleared before or kept; the program is closed and started again between
# them, and the files of plays and of chosen picks are compared, where chance has a part by what holds for any shuffle.
# Ends at the first thing that is not as it must be.
#
#   tests/program/wheels.sh BALLHAVEN [FOLDER FOR SCREENSHOTS]
set -uo pipefail
ballhaven=$1
pictures=${2:-}
source "$(dirname "${BASH_SOURCE[0]}")/desk.sh"

favourites=(6 48 0 12 24 30 18 40) # as cells, from 0
{
    printf '01/1/1/000000%51s' ''
    record 1 "Six of 49" 0 1 49 06 0 - 00
    for slot in {2..20}; do record "$slot" un-defined 0 1 99 10 0 1 99; done
} >"$folder/LOTTOSYS"

# The window, in twips from its client area.
click_in_wheels() { click_in "$wheels" 0 "$1" "$2"; }
click_favourite() { click_in_wheels $((270 + $1 % 9 * 220 + 110)) $((720 + $1 / 9 * 180 + 90)); }
choose_option() { click_in_wheels 5300 $((120 + 330 + 140 + 390 * $1 + ($1 == 2 ? 345 : 0))); }
press_start() { click_in_wheels 7950 3350; }
open_wheels() {
    start
    click_at $((5760 + 240)) 240
    until_true "the Wheel and Shuffle window opens" has_title "Wheel and Shuffle"
    wheels=$(has_title "Wheel and Shuffle" | tail -n 1)
    settle
}
finish() {
    keys alt+F4
    until_true "the Wheel and Shuffle window closes" has_no_other
    close_it
}
# Asks for so many plays and says Yes or No, on which it stands, to the question about those in use.
run() { # name of the screenshot, total, key
    xdotool type "$2"
    press_start
    until_true "a box asks" has_windows 2
    keys "$3"
    until_true "the box has gone" has_windows 1
    picture "$1" "$wheels"
    finish
}

# A play's record: how it was made, and its six cells.
play() {
    local record
    record=$(printf '%-2s   ' "$1")$(printf '%2s ' "${@:2}")
    printf '%-64.64s' "$record"
}
plays_are() { # records of plays, of which all behind must be empty
    local expected
    expected=$(printf '%s' "$@")
    [[ $(<"$folder/PLAYS01.CDB") == "$expected$(printf "%$((320000 - ${#expected}))s" '')" ]]
}
picks_are() { # option
    local list
    list=$(printf '%-3s' "${favourites[@]}")
    has_bytes SHUFFLE.CDB 0 "$(printf '%-299s%s' "$list" "$1")"
}

# All sixes of the eight in the order of a wheel, told by the two that are left out: first the last two.
rows=()
for first in {6..0}; do
    for ((second = 7; second > first; second--)); do
        rest=("${favourites[@]}")
        unset "rest[$first]" "rest[$second]"
        rows+=("${rest[*]}")
    done
done
made_by() { # code, rows by their places from 0
    local row
    for row in "${@:2}"; do
        # shellcheck disable=SC2086
        play "$1" ${rows[row]}
    done
}

# Whether the plays from one to another, from 1, are shuffles: six different ones of the favourites each.
are_shuffles() {
    local each picks pick
    for ((each = $1; each <= $2; each++)); do
        has_bytes PLAYS01.CDB $((64 * (each - 1))) "SH   " || return 1
        read -ra picks <<<"$(bytes PLAYS01.CDB $((64 * (each - 1) + 5)) 59)"
        [[ ${#picks[@]} == 6 && $(printf '%s\n' "${picks[@]}" | sort -u | wc -l) == 6 ]] || return 1
        for pick in "${picks[@]}"; do
            [[ " ${favourites[*]} " == *" $pick "* ]] || return 1
        done
    done
}
# Whether all plays behind one are empty.
nothing_behind() {
    [[ $(bytes PLAYS01.CDB $((64 * $1)) $((320000 - 64 * $1))) == "$(printf "%$((320000 - 64 * $1))s" '')" ]]
}

echo "== a full wheel of eight favourites"
open_wheels
for cell in "${favourites[@]}"; do click_favourite "$cell"; done
picks_are SH || fail "the picks are not saved as they are chosen: $(bytes SHUFFLE.CDB 0 40)"
choose_option 2
press_start
picture full-wheel "$wheels"
finish
# shellcheck disable=SC2046
plays_are "$(made_by FW {0..27})" || fail "the full wheel: $(bytes PLAYS01.CDB 0 192)"
picks_are FW || fail "the stored option: $(bytes SHUFFLE.CDB 0 301)"

echo "== a partial wheel in place of it, and one more"
open_wheels
choose_option 1
run partial-wheel 5 alt+y
plays_are "$(made_by PW 0 2 4 1 3)" || fail "the partial wheel: $(bytes PLAYS01.CDB 0 320)"
open_wheels
choose_option 1
run partial-wheel-behind 3 Return
plays_are "$(made_by PW 0 2 1 1 3)" || fail "the partial wheel over plays in use: $(bytes PLAYS01.CDB 0 320)"
picks_are PW || fail "the stored option: $(bytes SHUFFLE.CDB 0 301)"

echo "== a shuffle in place of it, and one behind"
open_wheels
choose_option 0
run shuffle 10 alt+y
are_shuffles 1 10 || fail "the shuffle: $(bytes PLAYS01.CDB 0 640)"
nothing_behind 10 || fail "the shuffle has made more than ten plays"
before=$(bytes PLAYS01.CDB 0 640)
open_wheels
choose_option 0
run shuffle-behind 4 Return
has_bytes PLAYS01.CDB 0 "$before" || fail "the second shuffle has changed plays in use"
are_shuffles 11 14 || fail "the second shuffle: $(bytes PLAYS01.CDB 640 256)"
nothing_behind 14 || fail "the second shuffle has made more than four plays"
picks_are SH || fail "the stored option: $(bytes SHUFFLE.CDB 0 301)"
echo "all as it must be"
