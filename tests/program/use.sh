#!/usr/bin/env bash
# Uses the built program as a person does, on an X server without a monitor: starts it twice, shows every sample game,
# changes set and order, types a pick and one that is refused, closes it, and compares the files with what they must
# hold. Ends at the first thing that is not as it must be.
#
#   tests/program/use.sh BALLHAVEN BALLHAVEN_SAMPLE [FOLDER FOR SCREENSHOTS]
set -uo pipefail
ballhaven=$1
sample=$2
pictures=${3:-}

work=$(mktemp -d)
folder="$work/program folder"
mkdir "$folder" "$work/runtime"
chmod 700 "$work/runtime"
export XDG_RUNTIME_DIR=$work/runtime QT_QPA_PLATFORM=xcb LC_ALL=C
unset WAYLAND_DISPLAY

tidy_up() {
    # shellcheck disable=SC2046
    kill $(jobs -p) 2>/dev/null
    wait 2>/dev/null
    rm -rf "$work"
}
trap tidy_up EXIT

fail() {
    echo "FAILED: $1" >&2
    exit 1
}

# Waits until a command succeeds, half a minute at most.
until_true() {
    local what=$1
    shift
    for _ in $(seq 300); do
        "$@" >/dev/null 2>&1 && return
        sleep 0.1
    done
    fail "waited in vain until $what"
}

# Bytes of a file in the folder: name, first byte from 0, how many.
bytes() { dd if="$folder/$1" bs=1 skip="$2" count="$3" status=none; }
has_bytes() { [[ $(bytes "$1" "$2" "${#3}") == "$3" ]]; }
is_gone() { ! kill -0 "$1"; }
windows() { xdotool search --onlyvisible --name '^Ballhaven$'; }
has_windows() { [[ $(windows | wc -l) == "$1" ]]; }
boxes() { xdotool search --onlyvisible --class ballhaven | grep -vx "$window"; }
has_box() { [[ -n $(boxes) ]]; }
has_no_box() { [[ -z $(boxes) ]]; }

# The screen is the same twice in a row, a third of a second apart: what was asked for has been drawn.
settle() {
    local before now=
    for _ in $(seq 30); do
        before=$now
        now=$(xwd -silent -root | cksum)
        [[ $now == "$before" ]] && return
        sleep 0.35
    done
}

# Clicks in the main window: twips from the top left corner of its client area, as the layout has them.
menu_height=18
scale=${QT_SCALE_FACTOR:-1}
click_at() {
    xdotool mousemove --window "$window" $(($1 * scale / 15)) $((menu_height * scale + $2 * scale / 15)) click 1
    settle
}
keys() {
    xdotool key --clearmodifiers "$@"
    settle
}
picture() {
    settle
    [[ -z $pictures ]] || import -window "$window" "$pictures/$1.png"
}

# The places of controls, in twips.
game_list() { click_at 1100 970; }
set_list() { click_at 1100 1640; }
log_cell() { click_at $((7750 + 600 * ($2 - 1) + 300)) $((720 + 225 * $1 + 100)); }  # row and column from 1

choose() { # list, entry from 0
    "$1"
    # shellcheck disable=SC2046
    keys Home $(for ((i = 0; i < $2; i++)); do echo Down; done) Return
}

exec 3<>"$work/display"
Xvfb -displayfd 3 -screen 0 1800x1300x24 >/dev/null 2>&1 &
until_true "the X server runs" test -s "$work/display"
DISPLAY=:$(head -n 1 "$work/display")
export DISPLAY
openbox >/dev/null 2>&1 &
until_true "the window manager runs" xprop -root _NET_SUPPORTING_WM_CHECK

cp "$ballhaven" "$folder/ballhaven"
"$sample" "$folder" >/dev/null || fail "no sample games"
cp -r "$folder" "$work/before"

echo "== started"
"$folder/ballhaven" &
program=$!
until_true "the window stands" has_windows 1
window=$(windows)
settle
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
until_true "a box refuses the pick" has_box
picture refused
keys Return
until_true "the box has gone" has_no_box
keys Escape

echo "== closed"
keys alt+F4
until_true "the process ends" is_gone $program
wait $program || fail "the program ended with a failure"

# The second newest draw has 49 as its first pick; all else is as it was, but for the set of game 1.
draws=$(bytes GAME01.CDB 64 64000 | fold -w 64 | grep -c '^[0-9]')
place=$((64 * (draws - 1) + 5))
printf 49 | dd of="$work/before/GAME01.CDB" bs=1 seek=$place conv=notrunc status=none
printf 050 | dd of="$work/before/LOTTOSYS" bs=1 seek=$((64 + 26)) conv=notrunc status=none
diff -r "$folder" "$work/before" || fail "the files are not what they must be"
echo "all as it must be"
