#!/usr/bin/env python3
"""The editors' grammar classifies a sample macro as the language reads it.

usage: grammar_check.py GRAMMAR.tmLanguage.json SAMPLE.macro COMMANDS.md

Every command of the page is classified as one, too.

The grammar is applied as editors do: at each place of a line the pattern that begins first wins,
among those at one place the first of the list; an open begin/end pair goes on behind its end.
"""
import json
import re
import sys

grammar = json.load(open(sys.argv[1], encoding="utf-8"))
lines = open(sys.argv[2], encoding="utf-8").read().split("\n")[:-1]
patterns = {}


def compiled(text):
    if text not in patterns:
        patterns[text] = re.compile(text)
    return patterns[text]


def rules(group):
    for rule in group.get("patterns", []):
        if "include" in rule:
            yield from rules(grammar["repository"][rule["include"][1:]])
        else:
            yield rule


def first_match(group, line, place, is_first_line):
    best = None
    for rule in rules(group):
        text = rule.get("match") or rule["begin"]
        if text.startswith("\\A") and not is_first_line:
            continue
        found = compiled(text).search(line, place)
        if found and (best is None or found.start() < best[1].start()):
            best = rule, found
    return best


def classify(line, is_first_line):
    """One name a character, None where there is none."""
    names = [None] * len(line)
    place = 0
    while place <= len(line):
        found = first_match(grammar, line, place, is_first_line)
        if not found:
            break
        rule, match = found
        end = match.end()
        if "begin" in rule:
            inner = match.end()
            closing = compiled(rule["end"]).search(line, inner)
            end = closing.end() if closing else len(line)
            names[match.start():end] = [rule["name"]] * (end - match.start())
            stop = closing.start() if closing else len(line)
            while (part := first_match(rule, line, inner, False)) and part[1].start() < stop:
                at = part[1]
                names[at.start():at.end()] = [part[0]["name"]] * (at.end() - at.start())
                inner = max(at.end(), inner + 1)
        else:
            if "name" in rule:
                names[match.start():end] = [rule["name"]] * (end - match.start())
            for number, capture in rule.get("captures", {}).items():
                begin, stop = match.span(int(number))
                names[begin:stop] = [capture["name"]] * (stop - begin)
        place = end if end > place else place + 1
    return names


# Line, a piece of it, the name that its characters have (its beginning; None: no name).
EXPECTED = [
    (1, "! not read: the first line of a script that begins so", "comment"),
    (2, "// a comment", "comment"),
    (3, '# another, "no text"', "comment"),
    (4, "   % a third", "comment"),
    (5, "debug.no", "support.function.core"),
    (6, "a", "variable.other.assignment"),
    (6, ":=", "keyword.operator.assignment"),
    (6, "5", "constant.numeric"),
    (7, "b[2]", "variable.other.assignment"),
    (7, "|=", "keyword.operator.assignment"),
    (7, '"two words"', "string.quoted.double"),
    (7, "'and more'", "string.quoted.single"),
    (7, "-1.5e3", "constant.numeric"),
    (8, "<", "punctuation.brackets"),
    (8, "3", "constant.numeric"),
    (8, ">", "punctuation.brackets"),
    (9, "print", "support.function.core"),
    (9, '"value ', "string.quoted.double"),
    (9, "@a.x", "variable.other.interpolated"),
    (9, " of", "string.quoted.double"),
    (9, " // the text ends here", "comment"),
    (10, "'it \"s'", "string.quoted.single"),
    (10, "$ff", "constant.numeric.hex"),
    (10, "%101", "constant.numeric.binary"),
    (10, "#65", "constant.character"),
    (11, "for", "keyword.control"),
    (12, "if", "keyword.control"),
    (13, "then", "keyword.control"),
    (13, "print", "support.function.core"),
    (13, "random", "support.function.core"),
    (14, "else", "keyword.control"),
    (14, "break", "keyword.control"),
    (15, "of", "keyword.control"),
    (15, "3", "constant.other"),
    (15, "halt", "keyword.control"),
    (16, "end", "keyword.control"),
    (17, "variable", "storage.type"),
    (17, "x", None),
    (18, "SCALAR.LOAD", "support.function.scalar"),
    (18, "scalar.input", "variable.language"),
    (19, "vector.stream.random", "support.function.vector"),
    (19, "1000", "constant.numeric"),
    (20, "nonsense.load 8bit", None),
    (21, "@@!", "keyword.control.directive"),
    (22, "a//b", None),
    (22, "for.count", "variable.language"),
]
failures = 0
for rule in list(rules(grammar)):
    for key in ("match", "begin", "end"):
        if key in rule:
            compiled(rule[key])
            if re.search(r"\(\?<[=!][^)]*[*+]", rule[key]):
                print(f"a look-behind without a fixed width: {rule[key][:60]}")
                failures += 1
for number, piece, wanted in EXPECTED:
    line = lines[number - 1]
    names = classify(line, number == 1)
    begin = line.index(piece)
    found = set(names[begin:begin + len(piece)])
    name = next(iter(found))
    if len(found) > 1 or (name is None) != (wanted is None) or not (name or "").startswith(wanted or ""):
        print(f"line {number}: {piece!r} is {found}, not {wanted}")
        failures += 1
commands = []
for section in re.split(r"^## ", open(sys.argv[3], encoding="utf-8").read(), flags=re.M)[1:]:
    for row in section.split("\n"):
        if row.startswith("| `") and not section.startswith("Keywords"):
            commands += re.findall(r"`([^`]+)`", row.split(" | ")[0])
for name in commands:
    found = set(classify("x " + name, False)[2:])
    if len(found) != 1 or not (found.pop() or "").startswith("support.function"):
        print(f"{name} is not classified as a command")
        failures += 1
if not commands:
    sys.exit("no commands on the page")
print(f"grammar_check: {len(commands)} commands, {len(EXPECTED)} pieces, {len(patterns)} patterns, {failures} failures")
sys.exit(1 if failures else 0)
