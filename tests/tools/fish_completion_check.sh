#!/bin/sh
# fish_completion_check.sh COMPLETION: what fish offers behind a begun line; 77 without fish.
command -v fish >/dev/null || exit 77
completion=$(realpath "$1")
scratch=$(mktemp -d) || exit 1
trap 'rm -rf "$scratch"' EXIT
cd "$scratch" || exit 1
touch fibres.macro block.nii.gz
failures=0
HOME=$scratch
export HOME

# expect "OFFERS" LINE: the offered words in order, parted by "|".
expect() {
    found=$(fish --no-config -c "source '$completion'; complete -C '$2'" |
        cut -f1 | sort | tr '\n' '|')
    [ "${found%|}" = "$1" ] && return
    printf '%s\n    offers %s\n    not    %s\n' "$2" "${found%|}" "$1"
    failures=1
}

fish --no-execute "$completion" || failures=1
expect 'help' 'morvane hel'
expect 'fibres.macro' 'morvane fib'
expect 'fibres.macro' 'morvane --check fib'
expect 'ifzero|ifzero.filesize' 'morvane help ifzer'
expect 'vector.stream.stop.angle' 'morvane help vector.stream.stop.a'
expect '--version' 'morvane --ver'
expect '+verbose' 'morvane +verb'
expect 'obj' 'morvane -mesh.type o'
exit $failures
