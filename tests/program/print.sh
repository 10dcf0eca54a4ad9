#!/usr/bin/env bash
# Prints the reports of a sample game as a person does: ticks all sections and the plays in the dialog by mouse, prints
# them on a machine without a printer, and compares the two PDF files with the pages of tests/printing/golden. Then the
# same where the folder of documents takes no file. Ends at the first thing that is not as it must be.
#
#   tests/program/print.sh BALLHAVEN BALLHAVEN_SAMPLE [FOLDER FOR SCREENSHOTS AND PAGES]
set -uo pipefail
ballhaven=$1
sample=$2
pictures=${3:-}
tests=$(dirname "${BASH_SOURCE[0]}")/..
source "$tests/program/desk.sh"

without_printer

# The places of the dialog's controls, in twips.
box() { click_in "$dialog" 0 400 $((307 + 360 * $1)); }
plays_box() { click_in "$dialog" 0 400 2707; }
print_button() { click_in "$dialog" 0 3300 1087; }
cancel_button() { click_in "$dialog" 0 3300 367; }

open_dialog() {
    click_at 240 240
    until_true "the dialog opens" has_title "Print Data for Last 10 Games"
    dialog=$(has_title "Print Data for Last 10 Games")
    settle
}
has_no_dialog() { [[ -z $(has_title "Print Data for Last 10 Games") ]]; }
has_file() { [[ -s "$documents/$1" ]]; }

# Pages as lines of words, parted by "-----": how many blanks stand for a column is the reader's affair.
words() { sed -E 's/ +/ /g; s/^ //; s/ $//' | sed '/^$/d'; }
text_of() { pdftotext -layout "$documents/$1" - | sed 's/^\f/-----\n/' | sed '$d' | words; }
same_pages() { # the PDF, the golden text
    diff <(words <"$tests/printing/golden/$2") <(text_of "$1") || fail "$1 does not hold what it must"
    [[ -z $pictures ]] || pdftoppm -r 80 -png "$documents/$1" "$pictures/${2%.txt}"
}
# All words that are the first of their kind in a column stand at the same place, in points from the left edge.
stands_at() { # the PDF, a word as a pattern, the place
    pdftotext -bbox "$documents/$1" - | grep -E ">$2</word>" | sed -E 's/.*xMin="([0-9.]+)".*/\1/' >"$work/places"
    awk -v place="$3" '$1 < place - 0.6 || $1 > place + 0.6 { wrong = 1 } END { exit wrong || NR == 0 }' "$work/places" ||
        fail "$2 does not stand at $3 in $1"
}

"$sample" "$folder" >/dev/null || fail "no sample games"
printf 010 | dd of="$folder/LOTTOSYS" bs=1 seek=$((64 + 26)) conv=notrunc status=none
start

echo "== the boxes are kept"
open_dialog
for section in 0 1 2 3 4 5; do
    box $section
done
until_true "all six are kept" has_bytes LOTTOSYS 7 111111
picture print-dialog "$dialog"
cancel_button
until_true "the dialog closes" has_no_dialog
[[ ! -e $documents ]] || fail "something was printed"

echo "== both reports"
open_dialog
plays_box
picture print-dialog-ticked "$dialog"
print_button
until_true "the dialog closes" has_no_dialog
until_true "the data report is there" has_file "Harbour Six Data Report.pdf"
until_true "the plays are there" has_file "Harbour Six Play Slips.pdf"
same_pages "Harbour Six Data Report.pdf" sample-data.txt
same_pages "Harbour Six Play Slips.pdf" sample-plays.txt
until_true "the data report is shown" grep -q "/a%20home/Documents/Harbour%20Six%20Data%20Report.pdf$" "$HOME/shown"
until_true "the plays are shown" grep -q "/a%20home/Documents/Harbour%20Six%20Play%20Slips.pdf$" "$HOME/shown"
[[ $(ls -A "$documents" | wc -l) == 2 ]] || fail "something was left beside the reports"

echo "== once more, from the Play Slips window"
click_at 4080 240
until_true "the Play Slips window opens" has_title "Play Slips"
slips=$(has_title "Play Slips")
settle
click_in "$slips" 18 240 240
until_true "the dialog opens" has_title "Print Data for Last 10 Games"
dialog=$(has_title "Print Data for Last 10 Games")
settle
print_button
until_true "a second file is there" has_file "Harbour Six Data Report (2).pdf"
same_pages "Harbour Six Data Report (2).pdf" sample-data.txt
until_true "the dialog closes" has_no_dialog

echo "== the columns"
# The paper has a margin of 18 points, and a column 7.0: the 20th begins 133 points to the right of the first.
stands_at "Harbour Six Data Report.pdf" "[0-9]{2}/[0-9]{2}/20[0-9]{2}" 46
stands_at "Harbour Six Data Report.pdf" "Picks" 151
stands_at "Harbour Six Play Slips.pdf" "[0-9]+[.][A-E]" 46

echo "== a folder that takes no file"
mv "$documents" "$work/kept"
echo "no folder" >"$documents"
xdotool windowactivate "$window"
settle
open_dialog
plays_box
print_button
for report in first second; do
    until_true "a box tells of the $report report" has_windows 2
    [[ $report == second ]] || picture not-ready "$(xdotool getactivewindow)"
    keys Return
done
until_true "the dialog closes" has_no_dialog
has_windows 1 || fail "a box is left"

close_it
echo "all as it must be"
