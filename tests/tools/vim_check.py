#!/usr/bin/env python3
"""Vim knows a macro by its ending and colours a sample, and every command, as the language reads it.

usage: vim_check.py EDITORS/VIM SAMPLE.macro COMMANDS.md      77 without Vim and its syntax feature
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile

folder, sample, page = (os.path.abspath(path) for path in sys.argv[1:4])
vim = shutil.which("vim")
if not vim or "+syntax" not in subprocess.run([vim, "--version"], capture_output=True, text=True).stdout:
    sys.exit(77)

# Line, a piece of it, its group ("": none).
EXPECTED = [
    (1, "! not read", "Comment"), (2, "// a comment", "Comment"), (3, '# another, "no text"', "Comment"),
    (4, "% a third", "Comment"), (5, "debug.no", "Command"), (6, ":=", "Operator"), (6, "5", "Number"),
    (7, "b[2]", "Target"), (7, "|=", "Operator"), (7, '"two words"', "String"), (7, "'and more'", "String"),
    (7, "-1.5e3", "Number"), (8, "<", "Bracket"), (8, "3", "Number"), (9, "print", "Command"),
    (9, '"value ', "String"), (9, "@a.x", "At"), (9, "// the text ends here", "Comment"),
    (10, "'it \"s'", "String"), (10, "$ff", "Number"), (10, "%101", "Number"), (10, "#65", "Number"),
    (11, "for", "Keyword"), (12, "if", "Keyword"), (13, "then", "Keyword"), (13, "print", "Command"),
    (14, "else", "Keyword"), (14, "break", "Keyword"), (15, "of", "Keyword"), (15, "halt", "Keyword"),
    (16, "end", "Keyword"), (17, "variable", "Declaration"), (18, "SCALAR.LOAD", "Command"),
    (18, "scalar.input", "Variable"), (19, "vector.stream.random", "Command"), (19, "1000", "Number"),
    (20, "nonsense.load 8bit", ""), (21, "@@!", "Directive"), (22, "for.count", "Variable"),
]

lines = open(sample, encoding="utf-8").read().split("\n")[:-1]
names = []
in_keywords = False
for row in open(page, encoding="utf-8"):
    in_keywords = row.startswith("## Keywords") or (in_keywords and not row.startswith("## "))
    if row.startswith("| `") and not in_keywords:
        names += re.findall(r"`([^`]+)`", row[2:].split(" | ")[0])
with tempfile.TemporaryDirectory() as scratch:
    macro, script, out = (os.path.join(scratch, name) for name in ("all.macro", "run.vim", "out.txt"))
    with open(macro, "w", encoding="utf-8") as file:
        file.write("\n".join(lines + ["x " + name for name in names]) + "\n")
    asked = [(number, lines[number - 1].encode().index(piece.encode()) + 1, len(piece.encode()))
             for number, piece, _ in EXPECTED]
    asked += [(len(lines) + 1 + i, 3, len(name)) for i, name in enumerate(names)]
    with open(script, "w", encoding="utf-8") as file:
        file.write(f"set nocompatible runtimepath^={folder}\nfiletype on\nsyntax on\nedit {macro}\n"
                   "let found = [&filetype]\n"
                   f"for [line, first, length] in {[list(place) for place in asked]}\n"
                   "  let groups = {}\n"
                   "  for column in range(first, first + length - 1)\n"
                   "    let groups[synIDattr(synID(line, column, 1), 'name') . ':'] = 1\n"
                   "  endfor\n  call add(found, join(sort(keys(groups)), ' '))\nendfor\n"
                   f"call writefile(found, '{out}')\nqall!\n")
    done = subprocess.run([vim, "-N", "-u", "NONE", "-i", "NONE", "-es", "-S", script], capture_output=True,
                          text=True, timeout=120, stdin=subprocess.DEVNULL)
    if not os.path.exists(out):
        sys.exit(f"vim wrote nothing: {done.stdout} {done.stderr}")
    found = open(out, encoding="utf-8").read().split("\n")[:-1]

failures = 0
if found[0] != "morvane":
    print(f"the file type is {found[0]!r}")
    failures += 1
wanted = [(f"line {number}: {piece!r}", f"morvane{group}:" if group else ":")
          for number, piece, group in EXPECTED]
wanted += [(name, "morvaneCommand:") for name in names]
for (what, group), seen in zip(wanted, found[1:], strict=True):
    if seen != group:
        print(f"{what} is {seen!r}, not {group!r}")
        failures += 1
print(f"vim_check: {len(wanted)} pieces, {failures} failures")
sys.exit(1 if failures else 0)
