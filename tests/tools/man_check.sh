#!/bin/sh
# man_check.sh PAGE: the manual page is read without a warning and has its sections; 77 without man.
command -v man >/dev/null && command -v groff >/dev/null || exit 77
failures=0
warnings=$(MANWIDTH=80 LC_ALL=C.UTF-8 man --warnings -l "$1" 2>&1 >/dev/null)
warnings=$warnings$(groff -man -ww -z "$1" 2>&1)
[ -z "$warnings" ] || { echo "$warnings"; failures=1; }
text=$(MANWIDTH=80 LC_ALL=C.UTF-8 MAN_KEEP_FORMATTING= man -l "$1" | col -bx)
for section in NAME SYNOPSIS DESCRIPTION OPTIONS 'THE LANGUAGE' KEYWORDS COMMANDS FILES \
    'EXIT STATUS' EXAMPLES 'SEE ALSO'; do
    printf '%s\n' "$text" | grep -qx "$section" || { echo "no section $section"; failures=1; }
done
printf '%s\n' "$text" | grep -q -- '-scalar.input=value' || { echo "a minus sign is lost"; failures=1; }
exit $failures
