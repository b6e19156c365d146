#!/usr/bin/env python3
"""Reads written line files with other programs' eyes and compares them with each other.

usage: line_files_check.py DIRECTORY         lines.txt, .trk, .obj, .swc, .vtk of one cloud
       line_files_check.py MORVANE DIRECTORY makes them there first, from a text of its own

The text file is the reference: the TrackVis file is read by nibabel, the VTK file by a strict XML
parser, which may complain about nothing but the closing tag of its Lines block. Needs nibabel and
numpy (apt: python3-nibabel); exit code 77 without them. Ends with 0 when everything is equal.
"""
import os
import struct
import subprocess
import sys
import warnings
import xml.etree.ElementTree as xml

try:
    import nibabel
    import numpy
except ImportError:
    sys.exit(77)

LINES = """1.5\t2\t3\t4
-1\t0\t0.1
7\t8\t9.25\t0.5

1\t2
material:12
10\t10
20\t10
20\t20
10\t10
object:first
5\t6\t7
5.125\t6\t7
material:3
object:second
"""


def read_text(path):
    """The lines as lists of (x, y, z, t), and the material of each."""
    lines, materials, points = [], [], []

    def close(material):
        if points:
            lines.append(list(points))
            materials.append(material)
            points.clear()

    for row in open(path, encoding="utf-8"):
        row = row.strip()
        if row.startswith("material:"):
            close(int(row[9:]))
        elif not row or row.startswith("object:"):
            close(0)
        else:
            numbers = [float(part) for part in row.split("\t")]
            points.append(tuple(numbers + [0.0] * (4 - len(numbers))))
    return lines, materials


def check(condition, what):
    if not condition:
        sys.exit("FAILED: " + what)


def check_trackvis(path, lines):
    raw = open(path, "rb").read()
    check(struct.unpack_from("<i", raw, 996)[0] == 1000, "hdr_size is 1000")
    check(raw[:6] == b"TRACK\0", "id_string")
    with warnings.catch_warnings():
        warnings.simplefilter("ignore")  # vox_to_ras is not recorded in these files
        file = nibabel.streamlines.load(path)
        affine = nibabel.streamlines.trk.get_affine_trackvis_to_rasmm(file.header)
    check(len(file.streamlines) == len(lines), "count of tracks")
    check(file.header["nb_streamlines"] == len(lines), "n_count")
    inverse = numpy.linalg.inv(affine.astype(float))
    for track, line in zip(file.streamlines, lines):
        stored = nibabel.affines.apply_affine(inverse, track.astype(float))
        wanted = numpy.array(line, dtype=float)[:, :3]
        check(stored.shape == wanted.shape, "points of a track")
        scale = 1 + numpy.abs(wanted).max()
        check(numpy.abs(stored - wanted).max() < 1e-5 * scale, "place of a track point")


def check_obj(path, lines):
    vertices, elements = [], []
    for row in open(path, encoding="ascii"):
        word, *rest = row.split()
        if word == "v":
            vertices.append(tuple(map(float, rest)))
        elif word in "lfp":
            elements.append((word, [int(i) for i in rest]))
    check(vertices == [p[:3] for line in lines for p in line], "OBJ vertices")
    check(len(elements) == len(lines), "OBJ elements")
    for (word, indices), line in zip(elements, lines):
        places = [vertices[i - 1] for i in indices]
        closed = len(line) > 1 and line[0] == line[-1]
        check(word == ("p" if len(line) == 1 else "f" if closed else "l"), "OBJ element word")
        check(places == [p[:3] for p in (line[:-1] if closed else line)], "OBJ element")


def check_swc(path, lines, materials):
    rows = [row.split(" ") for row in open(path, encoding="ascii").read().splitlines()]
    check(all(len(row) == 7 for row in rows), "SWC columns")
    wanted, number = [], 0
    for line, material in zip(lines, materials):
        for i, point in enumerate(line):
            number += 1
            wanted.append((number, material, *point, -1 if i == 0 else number - 1))
    check([tuple(map(float, row)) for row in rows] == wanted, "SWC rows")


def check_vtk(path, lines):
    text = open(path, encoding="ascii").read()
    check(text.count("</Polys>") == 1 and "</Lines>" not in text, "VTK closing tag")
    root = xml.fromstring(text.replace("</Polys>", "</Lines>"))
    piece = root.find("PolyData/Piece")
    check(piece.get("NumberOfPoints") == str(sum(map(len, lines))), "VTK count of points")
    check(piece.get("NumberOfPolys") == str(len(lines)), "VTK count of lines")
    arrays = [[float(n) for n in array.text.split()] for array in piece.iter("DataArray")]
    check(arrays[0] == [c for line in lines for p in line for c in p[:3]], "VTK points")
    check(arrays[1] == list(range(sum(map(len, lines)))), "VTK connectivity")
    check(arrays[2] == list(numpy.cumsum([len(line) for line in lines])), "VTK offsets")


def make(program, directory):
    with open(os.path.join(directory, "source.txt"), "w", encoding="utf-8") as file:
        file.write(LINES)
    with open(os.path.join(directory, "lines.macro"), "w", encoding="utf-8") as file:
        file.write("line.load source.txt\n")
        for extension in ("txt", "trk", "obj", "swc", "vtk"):
            file.write("line.save lines." + extension + "\n")
    subprocess.run([os.path.abspath(program), "lines.macro"], cwd=directory, check=True,
                   stdout=subprocess.DEVNULL, timeout=60)


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    directory = sys.argv[-1]
    if len(sys.argv) == 3:
        os.makedirs(directory, exist_ok=True)
        make(sys.argv[1], directory)
    base = os.path.join(directory, "lines.")
    lines, materials = read_text(base + "txt")
    check(lines, "lines.txt holds lines")
    check_trackvis(base + "trk", lines)
    check_obj(base + "obj", lines)
    check_swc(base + "swc", lines, materials)
    check_vtk(base + "vtk", lines)
    print("equal:", len(lines), "lines,", sum(map(len, lines)), "points")


main()
