# What a person does with the draws of a game, on the desk of `desk.sh`: chooses dates in the calendar, types picks, goes to a
# row of the log; and what the file of draws then holds. Sourced by the scripts beside it.

# Days: counted from the beginning of the program's calendar, and the one in the third row of a month's page, which
# begins with the Monday on or before its first day.
serial() { echo $((($(date -u -d "$1" +%s) - $(date -u -d 1984-01-01 +%s)) / 86400)); }
first_of_month() { date -u -d "$(date -u +%Y-%m-01) $1 month" +%F; } # months from now
third_row() {                                                        # first day of the month, column from 0
    date -u -d "$1 $((15 - $(date -u -d "$1" +%u) + $2)) days" +%F
}
# A row of the file: the day's number, of which four digits fit, and the picks. In a file that keeps five, the number is
# whole.
row() {
    printf '%-4.4s ' "$(serial "$1")"
    shift
    printf '%2s ' "$@"
}
whole_row() {
    printf '%-5s' "$(serial "$1")"
    shift
    printf '%2s ' "$@"
}
row_is() { has_bytes "$1" $((64 * $2)) "$3"; } # file, row from 1, text

wait_for_calendar() {
    until_true "the calendar opens" has_title Calendar
    calendar=$(has_title Calendar | tail -n 1)
    settle
}
in_calendar() { click_in "$calendar" 0 $(($1 * 15)) $(($2 * 15)); } # pixels at scale 1
previous_month() { in_calendar 8 9; }
next_month() { in_calendar 169 9; }
third_row_day() { in_calendar $((20 + 24 * $1)) 73; } # column from 0
take_date() {
    picture "$1" "$calendar"
    in_calendar 45 158
}
add_draw() {
    click_at $((1920 + 240)) 240
    wait_for_calendar
}
# The log has the new draw and the keyboard: the timer has brought it in.
until_brought_in() {
    until_true "the calendar closes" has_no_other
    sleep 2
    settle
}
type_picks() {
    local pick
    for pick in "${@:1:$#-1}"; do
        xdotool type "$pick"
        xdotool key Tab
    done
    xdotool type "${*: -1}"
    keys Return
}
log_date() { click_at 7000 $((720 + 225 * $1 + 100)); }                             # row from 1
log_pick() { click_at $((8175 + $3 * ($2 - 1) + 300)) $((720 + 225 * $1 + 100)); } # row and pick from 1, width
