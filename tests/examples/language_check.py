#!/usr/bin/env python3
"""Every example of a document does what the document says.

usage: language_check.py MORVANE DOCUMENT.md...

Fenced blocks, in order, in one scratch folder a chapter (a heading of level 2), with a link to
examples/ in it:
    ```file NAME      the file NAME lies in the folder
    ```macro [WORDS]  a script; WORDS are options of the call. "trace" among them shows the trace,
                      "alone" marks a script that is shown but not run
    ```output         what the script above prints between "Script runs..." and "Script ends."
    ```result NAME    the file NAME holds this now
A macro without an output block prints nothing.
"""
import os
import re
import subprocess
import sys
import tempfile

program = os.path.abspath(sys.argv[1])
examples = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "examples")
failures = 0
checked = 0


def fail(place, text, *lines):
    global failures
    failures += 1
    print(f"{place}: {text}", *lines, sep="\n    ")


def run(text, options, folder):
    """The console's lines between start and end; the script stands from its line 1 on."""
    trace = "trace" in options
    with open(os.path.join(folder, "example.macro"), "w", encoding="utf-8") as file:
        file.write(("" if trace else "debug.no\n") + text)
    words = [word for word in options if word != "trace"]
    done = subprocess.run([program, "-strict", "+verbose", "-seed=1", *words, "example.macro"], cwd=folder,
                          stdin=subprocess.DEVNULL, capture_output=True, text=True, timeout=300)
    out = done.stdout
    out = out[out.find("Script runs...\n") + 15:]
    if "Script ends.\n" in out:
        out = out[:out.rfind("Script ends.\n")]
    if not trace:
        out = out.removeprefix("  debug.no|\n")
        out = re.sub(r"line (\d+) \(example\.macro\)",
                     lambda found: f"line {int(found.group(1)) - 1} (example.macro)", out)
    out = re.sub(r"\(\d[^()\n]* of \d[^()\n]*\)", "(times)", out)
    return out + done.stderr


def check_output(place, wanted, found):
    wanted = re.sub(r"\(\d[^()\n]* of \d[^()\n]*\)", "(times)", wanted)
    if [line.rstrip() for line in found.splitlines()] != [line.rstrip() for line in wanted.splitlines()]:
        fail(place, "the document says", *wanted.splitlines(), "-- the program prints", *found.splitlines())


for document in sys.argv[2:]:
    chapters = re.split(r"^(?=## )", open(document, encoding="utf-8").read(), flags=re.M)
    line = 1
    for chapter in chapters:
        with tempfile.TemporaryDirectory() as folder:
            os.symlink(examples, os.path.join(folder, "examples"))
            shown = None  # what the last macro printed and no output block has taken yet
            for block in re.finditer(r"^```(\w+)([^\n]*)\n(.*?)^```$", chapter, re.S | re.M):
                kind, words, text = block.group(1), block.group(2).split(), block.group(3)
                place = f"{os.path.basename(document)}:{line + chapter[:block.start()].count(chr(10))}"
                if kind == "output":
                    check_output(place, text, shown[1] if shown else "")
                    shown = None
                    continue
                if shown and kind != "result":
                    check_output(shown[0], "", shown[1])
                    shown = None
                if kind == "file":
                    path = os.path.join(folder, words[0])
                    os.makedirs(os.path.dirname(path), exist_ok=True)
                    open(path, "w", encoding="utf-8").write(text)
                elif kind == "macro" and "alone" not in words:
                    shown = (place, run(text, words, folder))
                    checked += 1
                elif kind == "result":
                    path = os.path.join(folder, words[0])
                    found = open(path, encoding="utf-8").read() if os.path.exists(path) else "(no file)"
                    if found != text:
                        fail(place, f"{words[0]} shall hold", *text.splitlines(), "-- it holds", *found.splitlines())
            if shown:
                check_output(shown[0], "", shown[1])
        line += chapter.count("\n")
print(f"language_check: {checked} examples, {failures} failures")
sys.exit(1 if failures or not checked else 0)
