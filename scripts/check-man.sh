#!/bin/sh
# Sets the manual page and tells of every warning: scripts/check-man.sh PAGE. Ends with 77 where there is no groff.
set -eu

command -v groff >/dev/null || exit 77
warnings=$(groff -man -ww -z -Tutf8 -k "$1" 2>&1)
if [ -n "$warnings" ]; then
    echo "$warnings"
    exit 1
fi
