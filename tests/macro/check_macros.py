#!/usr/bin/env python3
"""morvane --check gives no false alarm on any script of the tests and the examples.

usage: check_macros.py MORVANE ROOT LIST

A finding is right when the run of that script fails so: the expected text beside it (NAME.out) names
the line in a report, or the file as missing. Every other finding, and a line of it that the run
passes over in silence, stands in LIST with its reason, as "path:line reason"; an entry of LIST
without its finding is an error, too.
"""
import glob
import os
import re
import subprocess
import sys

program, root, list_name = (os.path.abspath(name) for name in sys.argv[1:4])
FINDING = re.compile(r"^(.+?):(\d+):(\d+): (.*)$")

deliberate = set()
for entry in open(list_name, encoding="utf-8"):
    if entry.strip() and not entry.startswith("#"):
        deliberate.add(entry.split()[0])

failures = 0
seen = set()
scripts = sorted(glob.glob(os.path.join(root, "tests/macro/**/*.macro"), recursive=True)
                 + glob.glob(os.path.join(root, "examples/**/*.macro"), recursive=True))
for script in scripts:
    folder, name = os.path.split(script)
    done = subprocess.run([program, "--check", name], cwd=folder, capture_output=True, text=True,
                          timeout=60, stdin=subprocess.DEVNULL)
    out_name = script.removesuffix(".macro") + ".out"
    expected = open(out_name, encoding="utf-8").read() if os.path.exists(out_name) else ""
    lines = done.stdout.splitlines()
    clean = lines == [f"{name}: no findings"]
    if done.stderr or done.returncode != (0 if clean else 2):
        failures += 1
        print(f"{script}: status {done.returncode}", done.stdout, done.stderr, sep="\n")
    for line in [] if clean else lines:
        found = FINDING.match(line)
        if not found:
            failures += 1
            print(f"{script}: no finding: {line}")
            continue
        place, number, _, text = found.groups()
        key = f"{os.path.relpath(os.path.join(folder, place), root)}:{number}"
        missing = re.search(r"not found: (.*)$", text)
        if key in deliberate:
            seen.add(key)
        elif f"in line {number} ({place})" in expected or f"In line {number} ({place})" in expected:
            pass
        elif text.endswith("takes no parameter") and "error! No parameter needed." in expected:
            pass  # the one report without a line
        elif missing and f"({missing.group(1)}) not found" in expected:
            pass
        else:
            failures += 1
            print(f"{script}: the run does not fail so: {line}")

for key in sorted(deliberate - seen):
    failures += 1
    print(f"{list_name}: {key} has no finding")
if not scripts:
    failures += 1
print(f"{len(scripts)} scripts, {failures} failures")
sys.exit(1 if failures else 0)
