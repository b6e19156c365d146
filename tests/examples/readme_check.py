#!/usr/bin/env python3
"""The macro in README.md prints what README.md says.

usage: readme_check.py MORVANE ROOT
"""
import os
import re
import subprocess
import sys
import tempfile

program, root = (os.path.abspath(path) for path in sys.argv[1:3])
blocks = re.findall(r"```\n(.*?)```", open(os.path.join(root, "README.md"), encoding="utf-8").read(), re.S)
macro = next(block for block in blocks if block.startswith("debug.no"))
expected = next(block for block in blocks if block.startswith("Script runs..."))
with tempfile.TemporaryDirectory() as scratch:
    os.symlink(os.path.join(root, "examples"), os.path.join(scratch, "examples"))
    with open(os.path.join(scratch, "first.macro"), "w", encoding="utf-8") as file:
        file.write(macro)
    done = subprocess.run([program, "-seed=1", "first.macro"], cwd=scratch, capture_output=True,
                          text=True, timeout=600)


def steady(text):
    """The lines without what depends on the machine: times and the number of threads."""
    text = re.sub(r"\(\d[^()]* of \d[^()]*\)", "(times)", text)
    return re.sub(r"Parallel: \d+", "Parallel: n", text).splitlines()


start = done.stdout.find("Script runs...")
end = done.stdout.find("Script ends.") + len("Script ends.\n")
found, wanted = steady(done.stdout[start:end]), steady(expected)
if found != wanted:
    print("README.md says:", *wanted, "the program prints:", *found, sep="\n")
    sys.exit(1)
