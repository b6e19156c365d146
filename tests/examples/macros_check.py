#!/usr/bin/env python3
"""Runs the short studies of examples/ and works their results out a second time.

usage: macros_check.py MORVANE EXAMPLES

- batch.macro: the row of each volume, from the voxels as nibabel reads them
- sweep.macro: the rows of the log, cut by a regular expression
- threshold.macro: the threshold, tried value by value
Exit code 77: nibabel is missing.
"""
import csv
import glob
import os
import re
import subprocess
import sys
import tempfile

try:
    import nibabel
    import numpy
except ImportError:
    sys.exit(77)

program, examples = (os.path.abspath(path) for path in sys.argv[1:3])
failures = []


def check(what, found, wanted):
    if found != wanted:
        failures.append(what)
        print(f"FAILED: {what}: {found!r} instead of {wanted!r}")


def run(folder, name, *options):
    done = subprocess.run([program, "-strict", "+verbose", *options, os.path.join(examples, name)], cwd=folder,
                          stdin=subprocess.DEVNULL, capture_output=True, text=True, timeout=300)
    check(f"{name}: exit status", done.returncode, 0)
    check(f"{name}: reports", [line for line in done.stdout.splitlines() if "error" in line.lower()], [])
    return done.stdout


def rows(path):
    with open(path, encoding="utf-8", newline="") as file:
        return list(csv.reader(file))


def voxels(path):
    return numpy.asarray(nibabel.load(path).dataobj).astype(numpy.int64)


def last_line(text):
    lines = text[:text.index("Script ends.")].splitlines()
    return lines[-1]


data = os.path.join(examples, "data")
with tempfile.TemporaryDirectory() as folder:
    text = run(folder, "batch.macro", f"-folder={data}")
    wanted, shares = [["file", "voxels", "smallest", "largest", "percent"]], []
    for path in sorted(glob.glob(os.path.join(data, "*.nii.gz"))):
        grey = voxels(path)
        low, high = int(grey.min()), int(grey.max())
        share = f"{100 * (2 * grey > low + high).sum() / grey.size:.2f}"
        shares.append(float(share))
        wanted.append([os.path.basename(path)[:-7], str(grey.size), str(low), str(high), share])
    found = rows(os.path.join(folder, "batch.csv"))
    check("batch.csv", found[:-1], wanted)
    check("mean of the shares", found[-1], ["mean", "", "", "", f"{sum(shares) / len(shares):.2f}"])
    check("batch.macro's summary", last_line(text),
          f"{len(shares)} volumes, bright voxels {min(shares)} to {max(shares)} percent")
    check("no file is told", "no file fits" in run(folder, "batch.macro", f"-folder={data}", "-mask=*.none"), True)

    text = run(folder, "sweep.macro", f"-log={os.path.join(data, 'sweep.log')}")
    log = open(os.path.join(data, "sweep.log"), encoding="utf-8").read()
    runs = re.findall(r"run angle (\d+) lines (\d+) points (\d+)", log)
    check("sweep.csv", rows(os.path.join(folder, "sweep.csv")),
          [["angle", "lines", "points", "mean"]] +
          [[a, l, p, f"{int(p) / int(l):.2f}"] for a, l, p in runs])
    check("sweep.macro's summary", last_line(text),
          f"points of a line: {int(runs[0][2]) / int(runs[0][1]):.2f} at the smallest angle, "
          f"{int(runs[-1][2]) / int(runs[-1][1]):.2f} at the largest")
    check("no file is left over", os.path.exists(os.path.join(folder, "sweep.part")), False)

    for name, share in (("fibres_ct_64x128x128", 0.25), ("nuclei3d_synthetic_uint16", 0.1)):
        path = os.path.join(data, name + ".nii.gz")
        text = run(folder, "threshold.macro", f"-scalar.input={path}", f"-share={share}")
        grey = voxels(path)
        threshold = next(t for t in range(int(grey.min()), 65536) if (grey > t).sum() <= share * grey.size)
        check(f"threshold of {name}", last_line(text).split(", in")[0],
              f"threshold {threshold}: {(grey > threshold).sum()} of {grey.size} voxels above it")
print(f"macros_check: {len(failures)} failures")
sys.exit(1 if failures else 0)
