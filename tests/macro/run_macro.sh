#!/bin/sh
# run_macro.sh PROGRAM NAME.macro: runs one script test and compares what it prints.
#
# The folder of NAME.macro is copied to a scratch place first, so a test may read files beside it
# and write what it likes. The program is called there as
#     morvane -strict +verbose NAME.macro
# "+verbose" stands between for a reason: a word behind a bare "-strict" would be the value of
# that option, and no script would be named. A file NAME.options may hold further options, one
# line, put before the script's name.
#
# NAME.out holds the expected lines from the first "Script runs..." to the last "Script ends.", or
# to the end where the script halts the process. NAME.status holds the expected exit status; without it, it is 0.
# Tests say debug.no where the trace is not their subject.
set -u
program=$1
macro=$2
name=$(basename "$macro" .macro)
[ -f "$macro" ] || { echo "$macro: there is no such script"; exit 1; }
folder=$(cd "$(dirname "$macro")" && pwd) || exit 1

scratch=$(mktemp -d) || exit 1
trap 'rm -rf "$scratch"' EXIT
cp -R "$folder/." "$scratch" || exit 1
cd "$scratch" || exit 1

options=
[ -f "$name.options" ] && options=$(cat "$name.options")
# shellcheck disable=SC2086 # the options are words
MORVANE_FREEIMAGE= MORVANE_IMAGEMAGICK= \
    "$program" -strict +verbose $options "$name.macro" >all.txt 2>errors.txt </dev/null
status=$?
awk '/^Script runs\.\.\.$/ {on = 1}
    # How long a work took and the whole run, as "(2 sec of 1:3 min)", hangs on the machine.
    {gsub(/\([0-9:]+ [a-z0-9]+ of [0-9:]+ [a-z0-9]+\)/, "(0 sec of 0 sec)")}
    on {line[++count] = $0}
    on && /^Script ends\.$/ {last = count}
    END {for (i = 1; i <= (last ? last : count); ++i) print line[i]}' all.txt >found.txt

result=0
if ! diff -u "$folder/$name.out" found.txt; then
    echo "$name: the console's text differs from $name.out"
    result=1
fi
expected=0
[ -f "$name.status" ] && expected=$(cat "$name.status")
if [ "$status" != "$expected" ]; then
    echo "$name: exit status $status instead of $expected"
    cat errors.txt
    result=1
fi
if [ -s errors.txt ]; then
    echo "$name: standard error holds:"
    cat errors.txt
    result=1
fi
exit $result
