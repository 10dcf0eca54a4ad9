#!/usr/bin/env bash
# Fills plays in as a person does, in a game of numbers and in a game of cards with bonus picks: three plays on the main
# window, two on the second slip, a line and a slip erased, the winners turned red, closed and started again; the file of
# plays is compared byte for byte. Ends at the first thing that is not as it must be.
#
#   tests/program/plays.sh BALLHAVEN BALLHAVEN_SAMPLE [FOLDER FOR SCREENSHOTS]
set -uo pipefail
ballhaven=$1
sample=$2
pictures=${3:-}
source "$(dirname "${BASH_SOURCE[0]}")/desk.sh"

# The boards, in twips from the client area: cells of the main window's, and of the slip's five.
row_height=180
cell_on_main() { echo $((75 + 30 + $1 % columns * 2010 / columns + 1005 / columns)) $((3555 + $1 / columns * row_height + 90)); }
cell_on_slip() { # board from 0, cell
    echo $((30 + 15 + 2010 * $1 + $2 % columns * 2010 / columns + 1005 / columns)) $((1095 + $2 / columns * row_height + 90))
}
fill_main() { # cells
    local cell
    for cell in "$@"; do
        # shellcheck disable=SC2046
        click_at $(cell_on_main "$cell")
    done
}
fill_slip() { # board, cells
    local board=$1 cell
    shift
    for cell in "$@"; do
        # shellcheck disable=SC2046
        click_in "$slips" 18 $(cell_on_slip "$board" "$cell")
    done
}
previous_play() { click_at 1710 3375; }
next_play() { click_at 1990 3375; }
press_on_slip() { click_in "$slips" 18 "$1" "$2"; }
next_slip() { press_on_slip 4890 255; }
previous_slip() { press_on_slip 3030 255; }
erase_slip() { press_on_slip 5310 255; }
erase_line() { press_on_slip $((30 + 40 + 2010 * $1 + 150)) 705; } # board from 0
hilite_winners() { press_on_slip 1680 240; }

# The ground of a cell, below its digits: red, black or white.
ground_is() { # colour, window, x, y
    local at_x=$(($3 * scale / 15)) at_y=$((18 * scale + ($4 + 60) * scale / 15))
    [[ $(color_in "$2" "$at_x" "$at_y") == "$1" ]]
}
main_is() { # colour, cell
    # shellcheck disable=SC2046
    until_true "cell $2 of the main window is $1" ground_is "$1" "$window" $(cell_on_main "$2")
}
slip_is() { # colour, board, cell
    # shellcheck disable=SC2046
    until_true "cell $3 of board $2 is $1" ground_is "$1" "$slips" $(cell_on_slip "$2" "$3")
}
red=ff0000 black=000000 white=ffffff

open_slips() {
    keys alt+v s
    until_true "the Play Slips window opens" has_title "Play Slips"
    slips=$(has_title "Play Slips" | tail -n 1)
    settle
}

# A play's record: its main picks, a bar, its bonus picks; "_" for an empty slot.
play() {
    local record='     ' pick fields=0
    for pick in "$@"; do
        if [[ $pick == '|' ]]; then
            while ((fields < 10)); do
                record+='   '
                fields=$((fields + 1))
            done
        else
            [[ $pick == _ ]] && pick=''
            record+=$(printf '%2s ' "$pick")
            fields=$((fields + 1))
        fi
    done
    printf '%-64.64s' "$record"
}
# The picks of the newest draw of a game, which has as many of them as are asked for, as cells.
newest_draw() { # game, picks
    local row pick picks=()
    row=$(bytes "GAME$1.CDB" 64 64000 | fold -w 64 | grep '^ *[0-9]' | tail -n 1)
    for ((pick = 0; pick < $2; pick++)); do
        picks+=($((10#${row:$((5 + 3 * pick)):2} - 1)))
    done
    echo "${picks[@]}"
}
expect_plays() { # file, records of plays 1, 2, ...
    local file=$1
    shift
    printf '%-320000s' "$(printf '%s' "$@")" >"$work/expected"
    cmp "$folder/$file" "$work/expected" || fail "$file is not what it must be"
}

"$sample" "$folder" >/dev/null || fail "no sample games"
rm "$folder"/PLAYS*.CDB

echo "== a game of numbers"
columns=9
read -r won also_won _ <<<"$(newest_draw 01 5)"
start
fill_main "$won" 48 0 "$also_won"
picture play-of-numbers
next_play
fill_main 0 1 2 3 4 5 6
until_true "a box says that the play is full" has_other
keys Return
until_true "the box has gone" has_no_other
next_play
fill_main 9 10 9 11
open_slips
next_slip
fill_slip 0 "$won" 48
fill_slip 3 1 2 3
fill_slip 4 44
next_slip
fill_slip 2 5 6 7
picture slip-of-numbers "$slips"

echo "== a line and a slip erased"
erase_slip
keys Return # stands on No
settle
slip_is $black 2 5
erase_slip
until_true "a question stands" has_title Ballhaven
keys alt+y
slip_is $white 2 5
previous_slip
erase_line 4
slip_is $white 4 44
slip_is $black 3 1

echo "== the winners"
hilite_winners
slip_is $red 0 "$won"
picture winners-of-numbers "$slips"
previous_play
previous_play
picture winners-on-main
main_is $red "$won"
main_is $red "$also_won"
main_is $black 0

echo "== closed and started again"
close_it
numbers=("$(play "$won" 48 0 "$also_won")" "$(play 0 1 2 3 4 5)" "$(play 11 10)" "$(play)" "$(play)"
    "$(play "$won" 48)" "$(play)" "$(play)" "$(play 1 2 3)")
expect_plays PLAYS01.CDB "${numbers[@]}"
start
main_is $black "$won"

echo "== a game of cards with bonus picks"
columns=6
click_at 1100 970
keys Home Down Down Down Down Down Return
until_true "the game is shown" has_bytes LOTTOSYS 0 06
expect_plays PLAYS01.CDB "${numbers[@]}"
read -r first second third fourth bonus _ <<<"$(newest_draw 06 5)"
fill_main "$first" "$second" "$third" $((72 + bonus)) $((72 + first))
picture play-of-cards
next_play
fill_main 1 1 2 66 69
open_slips
next_slip
fill_slip 0 "$fourth" $((72 + bonus))
fill_slip 1 51 $((72 + 51)) 55 68
hilite_winners
slip_is $red 0 "$fourth"
slip_is $red 0 $((72 + bonus))
slip_is $black 1 51
picture winners-of-cards "$slips"
erase_line 1
previous_play
main_is $red "$first"
main_is $black $((72 + first))
close_it
cards=("$(play "$first" "$second" "$third" '|' "$bonus" "$first")" "$(play 2)" "$(play)" "$(play)" "$(play)"
    "$(play "$fourth" '|' "$bonus")")
expect_plays PLAYS06.CDB "${cards[@]}"
expect_plays PLAYS01.CDB "${numbers[@]}"
echo "all as it must be"
