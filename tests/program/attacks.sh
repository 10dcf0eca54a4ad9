#!/usr/bin/env bash
# Attacks the built program from outside: signals, the end of its display, limits of the system, idle visitors of its
# socket, a lock that is not given up, and a file of a gigabyte. Ends at the first thing that is not as it must be.
#
#   tests/program/attacks.sh BALLHAVEN BALLHAVEN_SAMPLE [FOLDER FOR SCREENSHOTS]
set -uo pipefail
set -m  # else the shell lets its children ignore SIGINT
ballhaven=$1
sample=$2
pictures=${3:-}
source "$(dirname "${BASH_SOURCE[0]}")/desk.sh"

log_cell() { click_at $((7750 + 600 * ($2 - 1) + 300)) $((720 + 225 * $1 + 100)); } # row and column from 1
"$sample" "$folder" >/dev/null || fail "no sample games"
draws=$(bytes GAME01.CDB 64 64000 | fold -w 64 | grep -c '^[0-9]')
has_pick() { has_bytes GAME01.CDB $((64 * (draws - 1) + 5)) "$1"; } # of the second newest draw
type_pick() {
    log_cell 2 1
    keys "${1:0:1}" "${1:1:1}" Return
    picture "pick-$1"
}
opened() { # a window's title
    until_true "$1 opens" has_title "$1"
    settle
}
open_calendar() { click_at $((1920 + 240)) 240; opened Calendar; }
open_dialog() { click_at $((1440 + 240)) 240; opened "Alter Game Configuration"; }
open_question() { click_at $((960 + 240)) 240; until_true "a question opens" has_other; }
open_list() { click_at 1100 970; }
open_nothing() { :; }

ended() { # what was done to it, and the exit code that it must have
    local code
    until_true "the program ends after $1" is_gone "$program"
    wait "$program"
    code=$?
    [[ $code == "$2" ]] || fail "after $1 the program ended with $code"
}

echo "== signals, over each kind of window"
pick=22 # from here on none is in the draw already
for each in "TERM nothing" "HUP nothing" "INT nothing" "TERM calendar" "HUP dialog" "INT question" "TERM list"; do
    read -r signal what <<<"$each"
    pick=$((pick + 1))
    start
    type_pick $pick
    "open_$what"
    kill -s "$signal" "$program"
    ended "SIG$signal over the $what" 0
    has_pick $pick || fail "SIG$signal over the $what has lost a pick"
done

# A second start, which must tell within three seconds that the folder is in use. What the system takes to start a program
# at all is not counted, and of three attempts one is enough: a machine that is busy elsewhere may hold one up.
now() { date +%s%N; }
tells_in_time() { # windows with its box, name of the picture
    local attempt begin box time
    for attempt in 1 2 3; do
        begin=$(now)
        "$folder/ballhaven" &
        second=$!
        until_true "a box tells of it" has_windows "$1"
        time=$((($(now) - begin - start_time) / 1000000))
        box=$(windows | grep -vx "${window:-none}" | tail -n 1)
        picture "$2" "$box"
        xdotool windowclose "$box"
        kill "$second" 2>/dev/null
        until_true "the second start ends" is_gone "$second"
        has_windows $(($1 - 1)) || fail "a second window is open"
        ((time <= 3000)) && return
    done
    fail "the box came after $time milliseconds"
}

echo "== a lock that an instance holds which hangs"
begin=$(now)
"$folder/ballhaven" &
program=$!
until_true "the window stands" main_window
start_time=$(($(now) - begin))
window=$(main_window)
settle
kill -STOP "$program"
tells_in_time 2 hanging
kill -CONT "$program"

echo "== a thousand idle visitors"
handles=$(find "/proc/$program/fd" -mindepth 1 | wc -l)
perl -MSocket -e '
    my @idle;
    my $ready = 0;
    for (1 .. 1000) {
        socket(my $visitor, PF_UNIX, SOCK_STREAM | 04000, 0) or last;  # nonblocking
        $ready++ if connect($visitor, pack_sockaddr_un($ARGV[0]));
        push @idle, $visitor;
        select(undef, undef, undef, 0.002);
    }
    print "$ready\n";
    $| = 1;
    sleep 30;
' "$(echo "$XDG_RUNTIME_DIR"/ballhaven-*)" >"$work/idle" &
idle=$!
most=0
for _ in {1..50}; do
    now=$(find "/proc/$program/fd" -mindepth 1 | wc -l)
    ((now > most)) && most=$now
    sleep 0.05
done
((most <= handles + 2)) || fail "idle visitors took $((most - handles)) handles"
"$folder/ballhaven" || fail "the second start ended with a failure"
has_windows 1 || fail "the first instance was not reached through the idle visitors"
kill $idle
wait $idle 2>/dev/null
type_pick 35
kill -TERM "$program"
ended "idle visitors and SIGTERM" 0
has_pick 35 || fail "idle visitors have lost a pick"

echo "== a lock that somebody holds who is no instance"
flock --exclusive "$folder" sleep 60 &
holder=$!
until_true "the folder is locked" bash -c "! flock --nonblock '$folder' true"
window=none
tells_in_time 1 locked
kill -- -$holder
wait $holder 2>/dev/null

echo "== another user's instance"
if [[ $EUID == 0 ]]; then
    other=65534
    mkdir "$work/other runtime"
    chown $other "$work/other runtime"
    chmod 700 "$work/other runtime"
    chmod 711 "$work"
    chmod -R a+rwX "$folder"
    XDG_RUNTIME_DIR="$work/other runtime" HOME="$work/other runtime" \
        setpriv --reuid=$other --regid=$other --clear-groups "$folder/ballhaven" &
    program=$!
    until_true "the other user's window stands" main_window
    window=$(main_window)
    settle
    tells_in_time 2 other-user
    kill -TERM "$program"
    ended "SIGTERM of the other user's instance" 0
else
    echo "left out: only root can start it"
fi

echo "== a limit on the length of files, and words to a broken pipe"
export QT_LOGGING_RULES='qt.*=true'
start 2>"$work/words"
close_it
[[ -s $work/words ]] || fail "the toolkit has no words for the pipe"
cp "$folder/GAME01.CDB" "$work/before.CDB"
(
    ulimit -f 1
    exec "$folder/ballhaven" 2> >(exec true)
) &
program=$!
until_true "the window stands" main_window
window=$(main_window)
settle
unset QT_LOGGING_RULES
type_pick 36
keys alt+F4
until_true "a box names the failure" has_other
picture too-large "$(others | tail -n 1)"
cmp -s "$folder/GAME01.CDB" "$work/before.CDB" || fail "the limit has changed a file"
[[ -z $(find "$folder" -name '*.new') ]] || fail "a temporary file was left"
kill -TERM "$program"
until_true "the program ends at a full disk" is_gone "$program"
cmp -s "$folder/GAME01.CDB" "$work/before.CDB" || fail "the limit has changed a file"

echo "== a file of a gigabyte, nearly all of it a hole"
truncate -s 1G "$folder/GAME01.CDB"
start
type_pick 37
begin=$SECONDS
close_it
((SECONDS - begin <= 5)) || fail "the save took $((SECONDS - begin)) seconds"
has_pick 37 || fail "the pick was not saved"
[[ $(stat -c %s "$folder/GAME01.CDB") == $((1 << 30)) ]] || fail "the file has another length"
(($(stat -c %b "$folder/GAME01.CDB") * 512 < 1 << 20)) || fail "the holes were filled"

echo "== the end of the display, over each kind of window"
kill_display() {
    kill -KILL "$server"
    wait "$server" 2>/dev/null
}
for what in nothing calendar question; do
    pick=$((pick + 1))
    start
    type_pick $pick
    "open_$what"
    kill_display
    ended "the end of the display over the $what" 1
    has_pick $pick || fail "the end of the display over the $what has lost a pick"
    open_display
done
echo "all as it must be"
