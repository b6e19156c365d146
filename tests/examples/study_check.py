#!/usr/bin/env python3
"""Runs the study of examples/fibres.macro and looks at its results with other programs' eyes.

usage: study_check.py MORVANE EXAMPLES VOLUME

- the same seed gives the same bytes with 1 and with 8 threads
- nibabel reads the vectors (unit length or zero, the frame of the volume) and the tracts
- the tracts hold the points of the text, to the precision of a 32-bit float
Exit code 77: nibabel is missing.
"""
import gzip
import os
import subprocess
import sys
import tempfile
import warnings

try:
    import nibabel
    import numpy
except ImportError:
    sys.exit(77)

program, examples, volume = sys.argv[1:4]
volume = os.path.abspath(volume)
failures = []


def check(what, good):
    if not good:
        failures.append(what)
        print("FAILED:", what)


def run(folder, threads):
    os.mkdir(folder)
    text = open(os.path.join(examples, "fibres.macro"), encoding="utf-8").read()
    with open(os.path.join(folder, "study.macro"), "w", encoding="utf-8") as macro:
        macro.write(f"thread.max := {threads}\n" + text)
    done = subprocess.run([program, "-strict", "-seed=1", f"-scalar.input={volume}", "study.macro"],
                          cwd=folder, capture_output=True, text=True, timeout=900)
    check(f"exit status with {threads} threads", done.returncode == 0)
    check("the summary is printed", "  streamlines: " in done.stdout)
    return {name: read(os.path.join(folder, name)) for name in
            ("vectors.nii.gz", "fibres.trk", "fibres.vtk", "fibres.obj", "fibres.swc", "fibres.txt")}


def read(name):
    if not os.path.exists(name):
        check(f"{os.path.basename(name)} is written", False)
        return b""
    data = open(name, "rb").read()
    return gzip.decompress(data) if name.endswith(".gz") else data


def text_lines(data):
    """The lines of a line text as lists of three numbers."""
    lines, current = [], []
    for row in data.decode().splitlines():
        if row and row[0] in "-0123456789":
            numbers = [float(x) for x in row.split("\t")] + [0.0] * 3
            current.append(numbers[:3])
        elif current:
            lines.append(current)
            current = []
    return lines


with tempfile.TemporaryDirectory() as scratch:
    one = run(os.path.join(scratch, "one"), 1)
    many = run(os.path.join(scratch, "many"), 8)
    for name in one:
        check(f"{name} does not depend on the threads", one[name] == many[name])

    source = nibabel.load(volume)
    vectors = nibabel.load(os.path.join(scratch, "one", "vectors.nii.gz"))
    check("vectors have the volume's size", vectors.shape[:3] == source.shape[:3])
    check("vectors have three components", vectors.shape[3:] == (1, 3))
    check("vectors have the volume's frame", numpy.allclose(vectors.affine, source.affine, atol=1e-4))
    length = numpy.linalg.norm(numpy.asarray(vectors.dataobj).reshape(-1, 3), axis=1)
    check("vectors are of unit length or zero", bool(((abs(length - 1) < 1e-9) | (length == 0)).all()))
    check("most structure has a direction", (length > 0).sum() > 10000)

    with warnings.catch_warnings():
        warnings.simplefilter("ignore")
        tracts = nibabel.streamlines.load(os.path.join(scratch, "one", "fibres.trk"), lazy_load=False)
    lines = text_lines(one["fibres.txt"])
    check("as many tracts as lines of text", len(lines) == int(tracts.header["nb_streamlines"]))
    stored = open(os.path.join(scratch, "one", "fibres.trk"), "rb").read()
    position, equal = 1000, True
    for line in lines:
        count = int(numpy.frombuffer(stored, "<i4", 1, position)[0])
        points = numpy.frombuffer(stored, "<f4", count * 3, position + 4).reshape(-1, 3)
        position += 4 + count * 12
        equal = equal and count == len(line) and bool((points == numpy.float32(line)).all())
    check("tracts hold the points of the text", equal and position == len(stored))

print(f"study_check: {len(failures)} failures")
sys.exit(1 if failures else 0)
