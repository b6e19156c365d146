#!/bin/sh
# zsh_completion_check.sh COMPLETION: zsh reads it, and offers what it should; 77 without zsh.
command -v zsh >/dev/null || exit 77
completion=$(realpath "$1")
zsh -n "$completion" || exit 1
scratch=$(mktemp -d) || exit 1
trap 'rm -rf "$scratch"' EXIT
cp "$completion" "$scratch/_morvane"
touch "$scratch/fibres.macro" "$scratch/block.nii.gz"
cat >"$scratch/drive.zsh" <<'END'
# A shell in a pseudo terminal is sent a begun line and a tab; what the line became is read back.
zmodload zsh/zpty
cd $1
zpty shell "zsh -f -i"
zpty -w shell "PS1='ready>'; fpath=($1 \$fpath); autoload -Uz compinit; compinit -u -d $1/dump; \
LISTMAX=9999; zstyle ':completion:*' list-prompt ''; show() { print -r -- \"line:\$BUFFER:\"; BUFFER=; zle redisplay }; \
zle -N show; bindkey '^Y' show; print set-'up'"
zpty -r shell text '*set-up*'
integer failures=0
expect() { # expect LINE WANTED
    local text
    zpty -w -n shell "$1"$'\t'$'\C-y'
    zpty -r shell text '*line:*:*'
    text=${${text##*line:}%%:*}
    [[ $text == $2 ]] && return
    print -r -- "$1"$'\n'"    becomes $text"$'\n'"    not     $2"
    failures=1
}
expect 'morvane hel' 'morvane help '
expect 'morvane fib' 'morvane fibres.macro '
expect 'morvane --check fib' 'morvane --check fibres.macro '
expect 'morvane -mesh.ty' 'morvane -mesh.type='
expect 'morvane -mesh.type=o' 'morvane -mesh.type=obj '
expect 'morvane +verb' 'morvane +verbose '
expect 'morvane -scalar.input=bl' 'morvane -scalar.input=block.nii.gz '
expect 'morvane help vector.stream.stop.a' 'morvane help vector.stream.stop.angle '
zpty -d shell
exit $failures
END
HOME=$scratch zsh -f "$scratch/drive.zsh" "$scratch"
