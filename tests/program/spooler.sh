#!/usr/bin/env bash
# Prints a report of a sample game on a real printer queue: a spooler of its own, with a queue that keeps what it gets.
# Then on the same queue when it has been stopped. Where no spooler can be run the result is 77. Ends at the first thing
# that is not as it must be.
#
#   tests/program/spooler.sh BALLHAVEN BALLHAVEN_SAMPLE
set -uo pipefail
# shellcheck disable=SC2034
ballhaven=$1
sample=$2
tests=$(dirname "${BASH_SOURCE[0]}")/..
PATH=$PATH:/usr/sbin
for tool in cupsd lpadmin lpstat cupsdisable pdftotext; do
    if ! command -v "$tool" >/dev/null; then
        echo "no $tool here: the spooler is not tested"
        exit 77
    fi
done
source "$tests/program/desk.sh"

export HOME="$work/a home" XDG_CONFIG_HOME="$work/config" CUPS_SERVER="$work/spooler/socket"
unset PRINTER LPDEST
mkdir -p "$HOME" "$work"/spooler/{root,cache,state,spool/tmp,log}
chmod 711 "$work" "$work/spooler"
cat >"$work/spooler/cupsd.conf" <<CONF
Listen $work/spooler/socket
WebInterface No
Browsing No
PreserveJobFiles Yes
<Location />
Order allow,deny
Allow all
</Location>
<Policy default>
<Limit All>
Order allow,deny
Allow all
</Limit>
</Policy>
CONF
cat >"$work/spooler/cups-files.conf" <<CONF
FileDevice Yes
Sandboxing relaxed
ServerRoot $work/spooler/root
CacheDir $work/spooler/cache
StateDir $work/spooler/state
RequestRoot $work/spooler/spool
TempDir $work/spooler/spool/tmp
AccessLog $work/spooler/log/access
ErrorLog $work/spooler/log/error
PageLog $work/spooler/log/page
CONF
cupsd -f -c "$work/spooler/cupsd.conf" -s "$work/spooler/cups-files.conf" >"$work/spooler/said" 2>&1 &
until_answers() {
    for _ in $(seq 50); do
        lpstat -r 2>/dev/null | grep -q "is running" && return
        sleep 0.1
    done
    return 1
}
if ! until_answers || ! lpadmin -p haven -E -v "file:$work/spooler/paper" -m raw 2>/dev/null || ! lpadmin -d haven; then
    echo "no spooler can be run here: it is not tested"
    exit 77
fi

log_box() { click_in "$dialog" 0 400 307; }
print_button() { click_in "$dialog" 0 3300 1087; }
title="Print Data for Last 10 Games"
open_dialog() {
    click_at 240 240
    until_true "the dialog opens" has_title "$title"
    dialog=$(has_title "$title")
    settle
}
has_no_dialog() { [[ -z $(has_title "$title") ]]; }
document() { find "$work/spooler/spool" -name 'd*-001' | head -n 1; }
has_document() { [[ -n $(document) ]]; }

"$sample" "$folder" >/dev/null || fail "no sample games"
printf 010 | dd of="$folder/LOTTOSYS" bs=1 seek=$((64 + 26)) conv=notrunc status=none
start

echo "== a queue that prints"
open_dialog
log_box
print_button
until_true "the dialog closes" has_no_dialog
until_true "the queue has the report" has_document
until_true "its title is there" grep -q "Harbour Six Data Report" <(pdfinfo "$(document)")
pdftotext -layout "$(document)" - | grep -qE "^ *05/04/2011 +14 +18 +21 +31 +43$" || fail "the log is not on the paper"
[[ ! -e $HOME/Documents ]] || fail "a file was made beside the print"

echo "== a queue that is stopped"
cupsdisable haven
open_dialog
print_button
until_true "a box tells of it" has_windows 2
keys Return
until_true "the dialog closes" has_no_dialog
[[ $(find "$work/spooler/spool" -name 'd*-001' | wc -l) == 1 ]] || fail "the stopped queue got a report"

settle
close_it
echo "all as it must be"
