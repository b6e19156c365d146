#!/bin/sh
# reference_refresh.sh PROGRAM: the command reference is a script that writes itself anew.
#
# A copy of PROGRAM in an empty folder writes morvane.macro; a line is put at its end; the program
# is called again and runs it. The list must then be as it was first written, and the run halts with
# status 0 before the list itself.
set -u
program=$1
scratch=$(mktemp -d) || exit 1
trap 'rm -rf "$scratch"' EXIT
cp "$program" "$scratch/morvane" && cd "$scratch" || exit 1

./morvane -strict >first.txt </dev/null || exit 1
cp morvane.macro written.macro
echo "print added" >>morvane.macro
./morvane -strict >second.txt </dev/null
status=$?

if [ "$status" != 0 ]; then
    echo "exit status $status instead of 0"
    exit 1
fi
if ! cmp morvane.macro written.macro; then
    echo "the list was not written anew"
    exit 1
fi
for line in "Delete file (morvane.macro)." "Write file (morvane.macro)." \
    "This is your first run of the program, please specify the file morvane.macro!" \
    "Script & program halt. Terminate everything."; do
    if ! grep -qxF "$line" second.txt; then
        echo "missing: $line"
        exit 1
    fi
done
if grep -q "added" second.txt; then
    echo "the list behind halt was run"
    exit 1
fi
