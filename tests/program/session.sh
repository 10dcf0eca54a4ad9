#!/usr/bin/env bash
# Ends the session of a desktop, as a logout does, by a session manager that the built program knows by its protocol
# alone: over each kind of window the program saves what was typed and ends.
#
#   tests/program/session.sh BALLHAVEN BALLHAVEN_SAMPLE [FOLDER FOR SCREENSHOTS]
set -uo pipefail
ballhaven=$1
sample=$2
pictures=${3:-}
source "$(dirname "${BASH_SOURCE[0]}")/desk.sh"

"$sample" "$folder" >/dev/null || fail "no sample games"
draws=$(bytes GAME01.CDB 64 64000 | fold -w 64 | grep -c '^[0-9]')
has_pick() { has_bytes GAME01.CDB $((64 * (draws - 1) + 5)) "$1"; } # of the second newest draw

# What the session manager starts.
cat >"$work/member" <<MEMBER
#!/bin/sh
echo \$\$ >"$work/program"
exec "$folder/ballhaven"
MEMBER
chmod +x "$work/member"

begin_session() { # its name
    export HOME=$work/$1 SM_SAVE_DIR=$work/$1 ICEAUTHORITY=$work/$1/authority
    mkdir "$HOME"
    echo "$work/member" >"$HOME/.xsmstartup"
    rm -f "$work/program"
    xsm -session "$1" >"$HOME/log" 2>&1 &
    manager=$!
    until_true "the session has its member" test -s "$work/program"
    program=$(<"$work/program")
    until_true "the window stands" main_window
    window=$(main_window)
    settle
}
type_pick() { # and leave it in its cell's editor
    click_at $((7750 + 300)) $((720 + 225 * 2 + 100))
    keys "${1:0:1}" "${1:1:1}"
    picture "session-$1"
}
open_calendar() { click_at $((1920 + 240)) 240; until_true "it opens" has_title Calendar; }
open_dialog() { click_at $((1440 + 240)) 240; until_true "it opens" has_title "Alter Game Configuration"; }
open_question() { click_at $((960 + 240)) 240; until_true "it opens" has_other; }
open_nothing() { :; }

pick=22 # from here on none is in the draw already
for each in nothing calendar dialog question; do
    echo "== the end of a session over the $each"
    pick=$((pick + 1))
    begin_session "$each"
    type_pick $pick
    "open_$each"
    kill -TERM "$manager"
    until_true "the program ends with its session" is_gone "$program"
    until_true "the session ends" is_gone "$manager"
    has_pick $pick || fail "the end of the session over the $each has lost a pick"
done
echo "All is as it must be."
