#!/usr/bin/env python3
"""Image files through FreeImage and ImageMagick, compared with the pixels that PIL reads.

usage: external_check.py MORVANE

Each library alone, both and none; switched off by command and by option; cut files. Ends with 77
(skipped) where PIL or both libraries are missing.
"""
import os
import subprocess
import sys
import tempfile

try:
    import numpy
    from PIL import Image
except ImportError:
    print("PIL or numpy is not installed: skipped")
    sys.exit(77)

morvane = os.path.abspath(sys.argv[1])
os.chdir(tempfile.mkdtemp())
failures = 0
FREE, MAGICK = "freeimage", "imagemagick"
VARIABLES = {FREE: "MORVANE_FREEIMAGE", MAGICK: "MORVANE_IMAGEMAGICK"}
MARKS = {FREE: "(FI", MAGICK: "(IM"}
OFF = "freeimage.disable\nimagemagick.disable\n"
ON = "freeimage.enable\nimagemagick.enable\n"


def check(holds, words):
    global failures
    if not holds:
        failures += 1
        print("FAILED:", words)


def run(script, libraries=(FREE, MAGICK), options=()):
    """The console text of a script when only these libraries are searched for."""
    environment = dict(os.environ)
    for library, variable in VARIABLES.items():
        environment.pop(variable, None)
        if library not in libraries:
            environment[variable] = ""
    with open("test.macro", "w", encoding="utf-8") as file:
        file.write("debug.no\n" + script)
    done = subprocess.run([morvane, "-strict", "+verbose", *options, "test.macro"], env=environment,
                          capture_output=True, text=True, timeout=120, stdin=subprocess.DEVNULL)
    check(done.returncode == 0, f"status {done.returncode} of\n{script}")
    check(done.stderr == "", f"standard error holds {done.stderr!r} after\n{script}")
    return done.stdout


def row(library, text):
    return next((line for line in text.splitlines() if line.startswith(f"  +/-{library} : ")), "")


def pixels(name):
    return numpy.array(Image.open(name)).astype(numpy.int64)


listing = run("nop\n")
present = [library for library in (FREE, MAGICK) if row(library, listing)]
if not present:
    print("neither library is installed: skipped")
    sys.exit(77)

generator = numpy.random.default_rng(1)
gray = generator.integers(0, 256, (13, 17)).astype(numpy.uint8)  # odd sizes: padded rows
gray16 = (numpy.arange(13 * 17).reshape(13, 17) * 293 + 7).astype(numpy.uint16)
colour = generator.integers(0, 256, (13, 17, 3)).astype(numpy.uint8)
clear = generator.integers(0, 256, (13, 17, 4)).astype(numpy.uint8)
smooth = numpy.dstack([numpy.add.outer(numpy.arange(64) * k, numpy.arange(48)) for k in (1, 2, 3)])
smooth = smooth.astype(numpy.uint8)
for ending in ("png", "tif"):
    Image.fromarray(gray).save("gray." + ending)
    Image.fromarray(gray16).save("gray16." + ending)
    Image.fromarray(colour).save("colour." + ending)
    Image.fromarray(clear).save("clear." + ending)
Image.fromarray(smooth).save("smooth.jpg", quality=98, subsampling=0)
Image.fromarray(colour).quantize(16).save("palette.png")
Image.fromarray(gray).convert("1").save("bits.tif")
Image.fromarray(gray).save("gray.bmp")
Image.fromarray(gray).save("gray.pgm")
Image.fromarray(gray).save("gray.gif")
Image.fromarray(colour).save("colour.tga")


def load(bits, name, own, libraries):
    """Loads with the libraries, saves with the own writer, reads that with PIL."""
    text = run(f"image.{bits}bit\nimage.use a\nimage.load {name}\n{OFF}image.save {own}\n", libraries)
    return text, pixels(own) if os.path.exists(own) else numpy.zeros((0, 0))


def same(found, wanted, most, words):
    fits = found.shape == wanted.shape
    check(fits and numpy.abs(found - wanted).max() <= most, words)


def check_loading(libraries):
    first = MARKS[libraries[0]]
    for bits, name, own, wanted, most in (
            (8, "gray.png", "a.pgm", gray, 0), (8, "gray.tif", "a.pgm", gray, 0),
            (16, "gray16.png", "a.png", gray16, 0), (16, "gray16.tif", "a.png", gray16, 0),
            (16, "gray.png", "a.png", gray, 0), (8, "gray16.png", "a.pgm", gray16 // 256, 0),
            (24, "colour.png", "a.ppm", colour, 0), (24, "colour.tif", "a.ppm", colour, 0),
            (32, "clear.png", "a.png", clear, 0), (24, "colour.tga", "a.ppm", colour, 0),
            (24, "palette.png", "a.ppm", pixels_rgb("palette.png"), 0),
            (8, "bits.tif", "a.pgm", pixels("bits.tif") * 255, 0),
            (8, "gray.bmp", "a.pgm", gray, 0), (8, "gray.pgm", "a.pgm", gray, 0),
            (8, "gray.gif", "a.pgm", gray, 0),
            (24, "smooth.jpg", "a.ppm", pixels("smooth.jpg"), 2)):
        if os.path.exists(own):
            os.remove(own)
        text, found = load(bits, name, own, libraries)
        words = f"{name} on {bits} bits with {libraries}"
        check(first in text, words + ": not read by the first library")
        same(found, wanted.astype(numpy.int64), most, words)


def pixels_rgb(name):
    return numpy.array(Image.open(name).convert("RGB")).astype(numpy.int64)


def check_saving(libraries):
    for bits, source, targets, wanted in (
            (8, "gray.png", ("b.png", "b.tif", "b.bmp", "b.pgm"), gray),
            (16, "gray16.png", ("b.png", "b.tif"), gray16),
            (24, "colour.png", ("b.png", "b.tif", "b.bmp", "b.ppm", "b.tga"), colour),
            (32, "clear.png", ("b.png", "b.tif"), clear),
            (40, "clear.png", ("b.tif",), clear)):
        for target in targets:
            if os.path.exists(target):
                os.remove(target)
            text = run(f"image.{bits}bit\nimage.use a\nimage.load {source}\nimage.save {target}\n", libraries)
            words = f"{target} from {bits} bits with {libraries}"
            check(text.count(MARKS[libraries[0]]) == 2, words + ": not written by the first library")
            found = pixels(target)
            if found.ndim == 3 and wanted.ndim == 2:  # grey as three equal components
                check((found == found[:, :, :1]).all(), words + ": not grey")
                found = found[:, :, 0]
            same(found, wanted.astype(numpy.int64), 0, words)
    run("image.24bit\nimage.use a\nimage.load smooth.jpg\nimage.save b.jpg\n", libraries)
    same(pixels("b.jpg"), pixels("smooth.jpg"), 3, f"JPEG with {libraries}")


def check_cut(libraries):
    for name in ("colour.png", "colour.tif", "smooth.jpg"):
        whole = open(name, "rb").read()
        lines = "image.24bit\nimage.use a\n"
        for step in range(12):
            cut = f"cut{step}.{name[-3:]}"
            with open(cut, "wb") as file:
                file.write(whole[:len(whole) * step // 12])
            lines += f"image.load {cut}\nprint {step} image.size\n"
        text = run(lines, libraries)
        for step in range(12):
            check(f"\n{step}<0, 0>\n" in text, f"{name} cut to {step}/12 with {libraries}: not empty")


def check_absent():
    text = run("image.8bit\nimage.use a\nimage.load gray.png\nprint image.size\nimage.load gray.pgm\n"
               "print image.size\nimage.save own.png\nfreeimage.enable\nimage.load gray.png\nprint image.size\n", ())
    check("+/-freeimage" not in text and "+/-imagemagick" not in text, "missing libraries are listed")
    check("(FI" not in text and "(IM" not in text, "missing libraries are used")
    check(text.count("Couldn't read File (gray.png)! Create empty field.") == 2, "PNG is read without a library")
    check(text.count("\n<0, 0>\n") == 2 and "\n<17, 13>\n" in text, "the own readers don't stand in")
    same(pixels("own.png"), gray.astype(numpy.int64), 0, "own PNG")


def check_switches():
    off = run(OFF + "image.8bit\nimage.use a\nimage.load gray.pgm\n" + ON + "image.load gray.pgm\n")
    check(off.count("(FI") + off.count("(IM") == 1, "the commands switch the libraries off and on")
    options = ["-freeimage=off", "-imagemagick=off"]
    text = run(ON + "image.8bit\nimage.use a\nimage.load gray.pgm\n", options=options)
    for library in present:
        check(row(library, text).endswith(" = off"), f"the listing of {library} when it is off")
        check(row(library, listing).endswith(" = on"), f"the listing of {library}")
    check("(FI" not in text and "(IM" not in text, "an option holds for the whole run")


def check_useless():
    """A file that is no such library is told and the system runs without it."""
    os.environ["MORVANE_FREEIMAGE"] = "libz.so.1"
    environment = dict(os.environ, MORVANE_IMAGEMAGICK="")
    done = subprocess.run([morvane, "-strict", "+verbose", "test.macro"], env=environment, capture_output=True,
                          text=True, timeout=120, stdin=subprocess.DEVNULL)
    os.environ.pop("MORVANE_FREEIMAGE")
    for words in ("Wrong ProcName: FreeImage_Load\n", "Freeimage could not be initialised!\n", "Script ends."):
        check(words in done.stdout, f"with a wrong library: {words}")
    check("+/-freeimage" not in done.stdout, "a wrong library is listed")


for choice in [(library,) for library in present] + [tuple(present)]:
    check_loading(choice)
    check_saving(choice)
    check_cut(choice)
check_absent()
check_switches()
check_useless()
print(f"external_check: {', '.join(present)}; {failures} failures")
sys.exit(1 if failures else 0)
