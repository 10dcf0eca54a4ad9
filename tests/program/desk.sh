# A desk for using the built program as a person does: an X server without a monitor, a window manager, a program folder,
# and hands. Sourced by the scripts beside it, which set `ballhaven` and may set `pictures`, a folder for screenshots.

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
others() { xdotool search --onlyvisible --class ballhaven | grep -vx "$window"; }
has_manager() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }
has_other() { [[ -n $(others) ]]; }
has_no_other() { [[ -z $(others) ]]; }
has_title() { xdotool search --onlyvisible --name "^$1\$"; }

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

# The colour of a pixel of a window, as rrggbb. A dump of the screen has a head of words with the highest byte first: its
# size, and where the lines and the colours are; then the colours' table, then the pixels with blue first.
color_in() { # window, x, y
    local dump=$work/dump head
    xwd -silent -id "$1" >"$dump" || return 1
    # shellcheck disable=SC2207
    head=($(od -An -v -N 100 -t u4 --endian=big "$dump"))
    od -An -v -j $((head[0] + head[19] * 12 + $3 * head[12] + $2 * 4)) -N 3 -t x1 "$dump" | awk '{ print $3 $2 $1 }'
}

# A click in a window: twips from the top left corner of its client area, as the layout has them, and the pixels that a
# menu bar takes above it.
scale=${QT_SCALE_FACTOR:-1}
click_in() { # window, pixels of its menu bar, x, y
    xdotool mousemove --window "$1" $(($3 * scale / 15)) $(($2 * scale + $4 * scale / 15)) click 1
    settle
}
click_at() { click_in "$window" 18 "$1" "$2"; }
keys() {
    xdotool key --clearmodifiers "$@"
    settle
}
picture() { # name, and the window, the main one if it is not said
    settle
    [[ -z ${pictures:-} ]] || import -window "${2:-$window}" "$pictures/$1.png"
}
times() { # a key, so many times
    for ((i = 0; i < $2; i++)); do echo "$1"; done
}
# The main window among those that bear its title, which boxes bear too.
main_window() {
    local each
    for each in $(windows); do
        eval "$(xdotool getwindowgeometry --shell "$each")"
        ((WIDTH > 600 * scale)) && echo "$each" && return
    done
    return 1
}
start() {
    "$folder/ballhaven" &
    program=$!
    until_true "the window stands" main_window
    window=$(main_window)
    settle
}
close_it() {
    keys alt+F4
    until_true "the process ends" is_gone "$program"
    wait "$program" || fail "the program ended with a failure"
}

# Records of the table of games: the slot's name and rules in their columns, 64 in all.
record() { # slot, name, kind, low, high, main picks, bonus picks, bonus low, bonus high
    printf '%-2s/%-20s  /010/%s/%s/%s/ / /N/N/%-2s/%s/N /  /%s/%s/   ' "$@"
}

# Answers the box in front with the button on which it stands.
answer() {
    until_true "a box asks" has_other
    picture "$1" "$(others | tail -n 1)"
    keys Return
}
# Says Yes to a question about a loss, which stands on No.
agree() {
    until_true "a box asks" has_other
    picture "$1" "$(others | tail -n 1)"
    keys alt+y
}

# A home of its own for the program, without a spooler, and with a viewer that only notes what it is given. What is printed
# is in the folder `documents`.
without_printer() {
    export HOME="$work/a home" XDG_CONFIG_HOME="$work/config" CUPS_SERVER="$work/no spooler"
    documents=$HOME/Documents
    mkdir -p "$HOME" "$work/bin"
    cat >"$work/bin/xdg-open" <<'VIEWER'
#!/bin/sh
echo "$1" >>"$HOME/shown"
VIEWER
    chmod +x "$work/bin/xdg-open"
    export PATH="$work/bin:$PATH"
    unset PRINTER LPDEST BROWSER
}

# Opens a display of its own, with a window manager.
open_display() {
    : >"$work/display"
    Xvfb -displayfd 3 -screen 0 1800x1300x24 3>"$work/display" >/dev/null 2>&1 &
    server=$!
    until_true "the X server runs" test -s "$work/display"
    DISPLAY=:$(head -n 1 "$work/display")
    export DISPLAY
    openbox >/dev/null 2>&1 &
    until_true "the window manager runs" has_manager
}
open_display

cp "$ballhaven" "$folder/ballhaven"
