#!/usr/bin/env bash
# Listens to the built program as a screen reader does: its window, the names of its lists and tables, what has the
# keyboard, and the days of the calendar. Ends at the first thing that is not as it must be, and with 77 where the system
# has no assistive technology.
#
#   tests/program/reader.sh BALLHAVEN BALLHAVEN_SAMPLE [FOLDER FOR SCREENSHOTS]
set -uo pipefail
ballhaven=$1
sample=$2
pictures=${3:-}
beside=$(dirname "${BASH_SOURCE[0]}")

if ! command -v dbus-run-session >/dev/null ||
    ! /usr/bin/python3 -c 'import gi; gi.require_version("Atspi", "2.0"); from gi.repository import Atspi' 2>/dev/null ||
    [[ ! -e /usr/share/dbus-1/services/org.a11y.Bus.service ]]; then
    echo "there is no assistive technology on this system"
    exit 77
fi
# On a bus of its own, where nobody else is told of.
[[ -n ${ballhaven_bus:-} ]] || ballhaven_bus=own exec dbus-run-session -- "${BASH_SOURCE[0]}" "$@"

source "$beside/desk.sh"
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1

listen() { /usr/bin/python3 "$beside/tree.py" >"$work/tree" 2>"$work/words"; }
hear() {
    until_true "the program is heard" listen
    [[ -z $pictures ]] || cp "$work/tree" "$pictures/$1.txt"
}
tells() { grep -Exq " *($1)" "$work/tree" || fail "nothing is told as: $1"; }
# What is told below a line, up to the next one that is no part of it.
inside() { # the line
    awk -v line="$1" '
        { depth = match($0, /[^ ]/) }
        part && depth <= part { part = 0 }
        part { print }
        !part && substr($0, depth) ~ "^(" line ")$" { part = depth }' "$work/tree"
}
counts() { # what, how many, lines
    [[ $(grep -Exc " *($1)" "$3") == "$2" ]] || fail "there are $(grep -Exc " *($1)" "$3") instead of $2: $1"
}
focused() { grep -E ', focused(, selected)?$' "$work/tree" | sed 's/^ *//'; }

"$sample" "$folder" >/dev/null || fail "no sample games"
start

echo "== the main window"
hear main-window
tells 'frame "Ballhaven"'
tells 'combo box ".+", labelled by "Select Game"'
tells 'combo box "Last 100 Games", labelled by "Select History Set"'
tells 'combo box "Hot Numbers", labelled by "Select Hot Table"'
tells 'label "1\.A"'
tells 'table "Play", .*'
tells 'table "Historical Log", rows 100, columns "Date" "Pick 1" "Pick 2" "Pick 3" "Pick 4" "Pick 5" "Pick 6".*'
tells 'table "Hot Numbers in last 100 games", rows 49, columns "Number" "Hits" "%" "Game Interval".*'
counts 'table ".*' 3 "$work/tree"
counts 'radio button .*' 0 "$work/tree" # there is nothing to choose
tells 'table cell "05/04/2011".*' # the newest draw
counts 'menu item "(File|Edit|View|Tools|Help)".*' 5 "$work/tree"

/usr/bin/python3 "$beside/focus.py" >>"$work/focus" &
until_true "the listener runs" grep -q listening "$work/focus"
# What is told to have got the keyboard by what is done: this one line, or nothing.
is_told() { # line, command
    : >"$work/focus"
    "${@:2}"
    settle
    [[ -z $1 ]] || until_true "this is told: $1" grep -Exq "$1" "$work/focus"
    sleep 0.5
    cp "$work/focus" "$work/told" # the listener goes on
    [[ $(grep -c . "$work/told") == "$(grep -c . <<<"$1")" ]] || fail "this has got the keyboard: $(<"$work/told")"
}

echo "== one thing at a time has the keyboard"
keys Down
is_told 'table cell "[0-9]+"' keys Right
hear focus
[[ $(focused | wc -l) == 1 ]] || fail "this has the keyboard: $(focused)"
[[ $(focused) == 'table cell '* ]] || fail "no cell has the keyboard, but $(focused)"
is_told 'table cell "[0-9]+"' keys Right
is_told 'table cell "[0-9]+"' keys Up

echo "== another hot table, by its caption; its cells do not have the keyboard"
click_at 1100 2310 # the list of hot tables
keys Home Escape
is_told '' keys Down
hear hot-pairs
tells 'combo box "Hot Pairs", labelled by "Select Hot Table", focused'
tells 'table "Hot Pairs in last 100 games".*'

echo "== a game with a bonus, and its options"
click_at 1100 970
keys Home Down Return
hear bonus
tells 'combo box "Lantern Five Plus", labelled by "Select Game"'
tells 'table "Historical Log", rows 50, columns "Date" "Pick 1" "Pick 2" "Pick 3" "Pick 4" "Pick 5" "Bonus 1".*'
for option in All Main "Bonus, mega, plus.."; do
    tells "radio button \"$option\".*"
done

echo "== the calendar"
click_at $((1920 + 240)) 240
until_true "the calendar opens" has_title Calendar
settle
hear calendar
tells 'dialog "Calendar".*'
inside 'dialog "Calendar".*' >"$work/calendar"
counts 'table cell "[0-9]+ [A-Z][a-z]+ [0-9]{4}".*' 42 "$work/calendar"
tells "table cell \"$(date '+%-d %B %Y')\", focused, selected"
counts '.*, selected' 1 "$work/calendar"
[[ $(focused | wc -l) == 1 ]] || fail "this has the keyboard: $(focused)"
calendar=$(has_title Calendar)
eval "$(xdotool getwindowgeometry --shell "$calendar")"
xdotool mousemove --window "$calendar" $((WIDTH - 8)) 7 # the arrow to the next month
is_told "table cell \"[0-9]+ $(date -d "$(date +%Y-%m-15) + 1 month" '+%B %Y')\"" xdotool click 1
keys Escape
until_true "the calendar closes" has_no_other
close_it
echo "all as it must be"
