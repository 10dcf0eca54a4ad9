#!/usr/bin/env bash
# Reads the help of the built program as a person does: opens the instructions and what is said about the program by
# mouse, from the main window and from the Play Slips window, scrolls, prints the instructions on a machine without a
# printer, takes the focus away and sees them close. Ends at the first thing that is not as it must be.
#
#   tests/program/help.sh BALLHAVEN BALLHAVEN_SAMPLE [FOLDER FOR SCREENSHOTS AND PAGES]
set -uo pipefail
ballhaven=$1
sample=$2
pictures=${3:-}
source "$(dirname "${BASH_SOURCE[0]}")/desk.sh"
without_printer

title="Ballhaven Help"
has_help() { has_title "$title"; }
has_no_help() { [[ -z $(has_title "$title") ]]; }

# The entries of the last menu, in twips from the window's top left corner.
instructions=420
about=750
open_help() { # window, middle of the word Help in its menu bar, entry
    click_in "$1" 0 "$2" 135
    click_in "$1" 0 $(($2 + 600)) "$3"
    until_true "the help opens" has_help
    help=$(has_help)
    settle
    until_true "the help is in front" is_active "$help"
}
open_from_main() { open_help "$window" 2460 "$1"; }
open_from_slips() { open_help "$slips" 1935 "$1"; }
is_active() { [[ $(xdotool getactivewindow) == "$1" ]]; }
looks() { xwd -silent -id "$help" | cksum; }

# What is printed, as lines without the blanks before them; how often a line of a pattern is there.
paper() { pdftotext -layout "$documents/Ballhaven Instructions.pdf" - | tr -d '\f' | sed 's/^ *//'; }
lines_of() { paper | grep -cE "^$1\$"; }
expect_lines() { # how many, pattern
    [[ $(lines_of "$2") == "$1" ]] || fail "on the paper are not $1 lines of $2"
}

# Another program beside this one.
open_note() {
    xmessage -geometry "+$((1000 * scale))+0" -title Note "Call the agency on Friday" &
    until_true "the note stands" has_title Note
    note=$(has_title Note)
    settle
}

"$sample" "$folder" >/dev/null || fail "no sample games"
start
open_note

echo "== the instructions from the main window"
open_from_main $instructions
picture instructions "$help"
first=$(looks)
keys Next
[[ $(looks) != "$first" ]] || fail "the instructions do not scroll"
keys Home
[[ $(looks) == "$first" ]] || fail "the instructions do not scroll back"
click_in "$help" 0 420 240
until_true "the instructions are printed" test -s "$documents/Ballhaven Instructions.pdf"
until_true "they are shown" grep -q "/Ballhaven%20Instructions.pdf$" "$HOME/shown"
pages=$(pdfinfo "$documents/Ballhaven Instructions.pdf" | awk '/^Pages:/ { print $2 }')
((pages > 3)) || fail "the instructions have only $pages pages"
expect_lines "$pages" "Ballhaven Instructions"
for ((page = 1; page <= pages; page++)); do
    expect_lines 1 "[0-9/]+ +Page $page"
done
expect_lines 12 "-{102}"
expect_lines 1 "Main Screen: \(Select Game, History Set, Hot Table\)"
expect_lines 1 "wheel. When it reaches the last pick in the shuffle grid, it starts over"
expect_lines 1 "you move in the Historical Log."
[[ -z $pictures ]] || pdftoppm -r 80 -png "$documents/Ballhaven Instructions.pdf" "$pictures/paper"
click_at 6000 7500
has_help >/dev/null || fail "a click on the main window closed what is modal to it"
click_in "$note" 0 300 100
until_true "the help closes" has_no_help

echo "== about the program"
open_from_main $about
picture about "$help"
[[ $(looks) != "$first" ]] || fail "the two texts look the same"
keys alt+F4
until_true "the help closes" has_no_help
until_true "the main window is in front" is_active "$window"

echo "== from the Play Slips window"
click_at 4080 240
until_true "the Play Slips window opens" has_title "Play Slips"
slips=$(has_title "Play Slips")
settle
open_from_slips $instructions
picture instructions-beside-slips "$help"
[[ $(looks) == "$first" ]] || fail "the instructions look otherwise"
click_at 11000 7800
until_true "the help closes" has_no_help
until_true "the main window is in front" is_active "$window"
xdotool windowactivate "$slips"
settle
open_from_slips $about
click_in "$slips" 18 1500 3000 # left of the help
until_true "the help closes" has_no_help
until_true "the Play Slips window is in front" is_active "$slips"

xdotool windowactivate "$window"
settle
close_it
echo "all as it must be"
