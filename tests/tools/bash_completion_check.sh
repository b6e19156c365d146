#!/bin/bash
# bash_completion_check.sh COMPLETION: calls the completion function as the shell does and compares
# what it offers.
set -u
. "$1" || exit 1
scratch=$(mktemp -d) || exit 1
trap 'rm -rf "$scratch"' EXIT
cd "$scratch" || exit 1
mkdir sub
touch fibres.macro 'two words.macro' block.nii.gz notes.ini
failures=0

# expect "OFFERS" WORD...: what is offered behind the words, parted by "|".
expect() {
    local wanted=$1 found
    shift
    COMP_WORDS=(morvane "$@")
    COMP_CWORD=$#
    COMPREPLY=()
    _morvane
    found=$(IFS='|'; printf '%s' "${COMPREPLY[*]}")
    [ "$found" = "$wanted" ] && return
    printf 'morvane %s\n    offers %s\n    not    %s\n' "$*" "$found" "$wanted"
    failures=$((failures + 1))
}

expect 'fibres.macro|sub|two words.macro|help' ''
expect 'help' hel
expect 'two words.macro' two
expect 'fibres.macro|sub|two words.macro' --check ''
expect 'fibres.macro|sub|two words.macro' -macro = ''
expect 'fibres.macro|sub|two words.macro' -macro =
expect '-macro=fibres.macro' -macro=fib
expect 'block.nii.gz|fibres.macro|notes.ini|sub|two words.macro' -scalar.input ''
expect 'block.nii.gz' -scalar.input = bl
expect '-mesh.type=' -mesh.ty
expect 'hdr|nii|nii.gz|fld|am' -vector.type =
expect 'obj' -mesh.type = o
expect '-mesh.type=obj' -mesh.type=o
expect 'on|off' -verbose = ''
expect 'on|off' -verbose ''
expect '+verbose' +verb
expect '--version' --ver
expect '-?' '-?'
expect 'vector.stream.stop.angle' help vector.stream.stop.a
expect 'ifzero|ifzero.filesize' help ifzer
expect '' help nonsense
expect 'fibres.macro' -strict fib

offered=$(printf '%s\n' $(COMP_WORDS=(morvane help ''); COMP_CWORD=2; _morvane; echo "${COMPREPLY[@]}"))
for name in scalar.load print if line.save random scalar keywords; do
    printf '%s\n' "$offered" | grep -qx -- "$name" || { echo "help offers no $name"; failures=1; }
done
exit $((failures > 0))
