#!/usr/bin/env python3
"""Checks charts as other programs see them: svg_check.py FOLDER.

FOLDER holds pairs NAME.svg and NAME.png of one drawing. The SVG has to pass an XML parser, every
number in it has to be a plain one, and drawn by rsvg-convert (and by Chromium where it is
installed) it has to look like the PNG. Exit code 77: a tool is missing."""
import gzip
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET

NUMBER = re.compile(r"-?\d+(\.\d+)?")
NUMERIC = ("x", "y", "x1", "y1", "x2", "y2", "cx", "cy", "r", "rx", "ry", "width", "height")
SVG = "{http://www.w3.org/2000/svg}"
BLOCK = 24  # pixels a side over which pictures are compared, in a picture 640 wide
# Largest and mean difference of two blocks in grey levels of 255: letters are other ones in the two,
# shapes differ by rounding alone.
WITH_TEXT, SHAPES_ALONE = (45, 2.5), (4, 0.5)


def check_xml(path):
    data = path.read_bytes()
    root = ET.fromstring(gzip.decompress(data) if path.suffix == ".svgz" else data)
    assert root.tag == SVG + "svg", root.tag
    groups = [child for child in root if child.tag == SVG + "g"]
    assert len(groups) == 1, "one group holds all shapes"
    assert {child.tag for child in root} <= {SVG + "g", SVG + "defs"}
    for element in root.iter():
        for name in NUMERIC:
            value = element.get(name)
            assert value is None or NUMBER.fullmatch(value), (path, name, value)
        for word in re.split(r"[ ,]+", element.get("d", "")):
            word = word.lstrip("MLQAZ")
            assert not word or NUMBER.fullmatch(word), (path, "d", word)
        if element.tag == SVG + "text":
            assert re.fullmatch(r"\d+(\.\d+)?em", element.get("font-size")), path
            assert element.text, path
    return int(root.get("width")), int(root.get("height"))


def blocks(image, Image):
    block = BLOCK * max(round(image.width / 640), 1)
    size = (-(-image.width // block), -(-image.height // block))
    return image.convert("L").resize(size, Image.BOX).getdata()


def check_browser(svg, picture, Image, shot):
    """Where Chromium is installed: it shows the drawing, close to the picture."""
    if not shutil.which("chromium"):
        return
    subprocess.run(["chromium", "--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars",
                    f"--window-size={picture.width},{picture.height}", f"--screenshot={shot}",
                    svg.resolve().as_uri()], check=True, capture_output=True, timeout=120)
    shown = Image.open(shot).convert("RGB")
    assert shown.size == picture.size, (svg, "in the browser", shown.size)
    differences = [abs(x - y) for x, y in zip(blocks(picture, Image), blocks(shown, Image))]
    mean = sum(differences) / len(differences)
    print(f"{svg.name}: in the browser mean {mean:.2f}, largest {max(differences)}")
    assert mean <= WITH_TEXT[1], (svg, "in the browser", mean)


def check_picture(svg, png, size, Image):
    with tempfile.TemporaryDirectory() as folder:
        other = pathlib.Path(folder) / "svg.png"
        subprocess.run(["rsvg-convert", str(svg), "-o", str(other)], check=True)
        a, b = Image.open(png).convert("RGB"), Image.open(other).convert("RGB")
        assert a.size == size and b.size == size, (svg, a.size, b.size)
        differences = [abs(x - y) for x, y in zip(blocks(a, Image), blocks(b, Image))]
        mean = sum(differences) / len(differences)
        print(f"{svg.name}: block difference mean {mean:.2f}, largest {max(differences)}")
        check_browser(svg, a, Image, pathlib.Path(folder) / "browser.png")
        largest, middle = WITH_TEXT if "<text" in svg.read_text() else SHAPES_ALONE
        assert max(differences) <= largest and mean <= middle, svg


def main():
    folder = pathlib.Path(sys.argv[1])
    files = sorted(folder.glob("*.svg")) + sorted(folder.glob("*.svgz"))
    assert files, "no chart in " + str(folder)
    sizes = {path: check_xml(path) for path in files}
    try:
        from PIL import Image
    except ImportError:
        Image = None
    if Image is None or not shutil.which("rsvg-convert"):
        print("python3-pil or rsvg-convert is missing: the look is not compared")
        return 77
    for path, size in sizes.items():
        if path.with_suffix(".png").exists() and path.suffix == ".svg":
            check_picture(path, path.with_suffix(".png"), size, Image)
    return 0


if __name__ == "__main__":
    sys.exit(main())
