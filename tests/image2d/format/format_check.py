"""Compares raster files of this system with what other programs read and write.

format_check.py FORMAT_TOOL: every file that format_tool writes must give PIL and ImageMagick the
pixels that were put in, and pass pngcheck and tiffinfo; files that these two write must give
format_tool their pixels. A tool that is missing is left out; exit code 77: none is there.
"""

import gzip
import os
import shutil
import subprocess
import sys
import tempfile

try:
    from PIL import Image
except ImportError:
    Image = None
CONVERT = shutil.which("convert")
PNGCHECK = shutil.which("pngcheck")
TIFFINFO = shutil.which("tiffinfo")
if not (Image or CONVERT or PNGCHECK or TIFFINFO):
    sys.exit(77)

TOOL = sys.argv[1]
failures = []
checks = 0

# Kind: bytes a pixel, PIL's mode, ImageMagick's raw form and depth.
KINDS = {
    "gray": (1, "L", "gray", 8),
    "fullgray": (2, "I;16", "gray", 16),
    "rgb": (3, "RGB", "rgb", 8),
    "rgba": (4, "RGBA", "rgba", 8),
    "zrgb": (4, "RGBA", "rgba", 8),
}
# What PIL and ImageMagick cannot read; "rgb" is this system's own.
NOT_PIL = ("pam", "rgb")
NOT_MAGICK = ("rgb",)


def check(what, good):
    global checks
    checks += 1
    if not good:
        failures.append(what)
        print("FAILED:", what)


def read(path):
    with open(path, "rb") as file:
        return file.read()


def mean(pixels):
    return bytes(sum(pixels[i : i + 3]) // 3 for i in range(0, len(pixels), 3))


def bits(pixels):
    """A white byte for each pixel above half brightness."""
    return bytes(255 if sum(pixels[i : i + 3]) > 382 else 0 for i in range(0, len(pixels), 3))


def by_pil(path, mode):
    with Image.open(path) as image:
        image.load()
        if mode == "I;16" and image.mode != mode:
            values = [v for v in image.convert("I").getdata()]
            return b"".join(v.to_bytes(2, "little") for v in values)
        if image.mode == "1":
            image = image.convert("L")
        return image.tobytes() if image.mode in (mode, "L") else b"mode " + image.mode.encode()


def by_magick(path, form, depth):
    # The first row of a TGA file is its last one, which -auto-orient follows.
    command = [CONVERT, path, "-auto-orient", "-depth", str(depth), "-endian", "LSB", form + ":-"]
    return subprocess.run(command, capture_output=True, check=False).stdout


def check_written(folder, width, height):
    subprocess.run([TOOL, "write", folder, str(width), str(height)], check=True)
    for name in sorted(os.listdir(folder)):
        kind, extension = name.split(".", 1)
        if extension == "raw":
            continue
        path = os.path.join(folder, name)
        size, mode, form, depth = KINDS[kind]
        expected = read(os.path.join(folder, kind + ".raw"))
        if size == 3 and extension.startswith("pgm"):
            expected, mode, form = mean(expected), "L", "gray"
        if size == 3 and extension.startswith("pbm"):
            expected, mode, form = bits(expected), "L", "gray"
        what = f"{name} of {width}x{height}"
        if extension.endswith(".gz"):
            check(what + " by gzip", gzip.decompress(read(path)) == read(path[:-3]))
            continue
        if Image and extension not in NOT_PIL:
            check(what + " by PIL", by_pil(path, mode) == expected)
        if CONVERT and extension not in NOT_MAGICK:
            check(what + " by ImageMagick", by_magick(path, form, depth) == expected)
        if PNGCHECK and extension == "png":
            result = subprocess.run([PNGCHECK, "-v", path], capture_output=True, check=False)
            check(what + " by pngcheck", result.returncode == 0)
        if TIFFINFO and extension in ("tif", "tiff"):
            result = subprocess.run([TIFFINFO, "-D", path], capture_output=True, check=False)
            check(what + " by tiffinfo", result.returncode == 0 and not result.stderr)


def own(folder, kind, path):
    result = os.path.join(folder, "result.raw")
    code = subprocess.run([TOOL, "read", kind, path, result], capture_output=True, check=False)
    return read(result) if code.returncode == 0 else b"failed: " + code.stdout


def check_read(folder, width, height):
    """Files by PIL and ImageMagick, read by this system."""
    pixels = bytes((i * 7919 + i // 5) % 256 for i in range(3 * width * height))
    source = os.path.join(folder, "source.ppm")
    with open(source, "wb") as file:
        file.write(b"P6 %d %d 255\n" % (width, height) + pixels)
    check(f"PPM of {width}x{height}", own(folder, "rgb", source) == pixels)
    if Image:
        image = Image.open(source)
        for extension in ("ppm", "bmp"):
            path = os.path.join(folder, "pil." + extension)
            image.save(path)
            check(f"{path} by PIL", own(folder, "rgb", path) == pixels)
        for mode in ("L", "P", "1"):
            path = os.path.join(folder, f"pil_{mode}.bmp")
            reduced = image.convert(mode)
            reduced.save(path)
            expected = reduced.convert("RGB").tobytes()
            check(f"{path} by PIL", own(folder, "rgb", path) == expected)
            check(f"{path} by PIL as grey", own(folder, "gray", path) == mean(expected))
    if CONVERT:
        for extension, flags in (
            ("ppm", []),
            ("ppm", ["-compress", "none"]),
            ("bmp", ["-type", "TrueColor", "-define", "bmp:format=bmp3"]),
            ("bmp", ["-type", "TrueColor", "-define", "bmp:format=bmp2"]),
        ):
            path = os.path.join(folder, "magick." + extension)
            subprocess.run([CONVERT, source, *flags, path], check=True)
            check(f"{path} {flags} by ImageMagick", own(folder, "rgb", path) == pixels)
        path = os.path.join(folder, "magick16.pgm")
        for flags in ([], ["-compress", "none"]):
            command = [CONVERT, source, "-colorspace", "gray", "-depth", "16", *flags]
            subprocess.run([*command, path], check=True)
            expected = by_magick(path, "gray", 16)
            check(f"{path} {flags} by ImageMagick", own(folder, "fullgray", path) == expected)
        path = os.path.join(folder, "magick.pbm")
        for flags in ([], ["-compress", "none"]):
            subprocess.run([CONVERT, source, *flags, path], check=True)
            expected = by_magick(path, "gray", 8)
            check(f"{path} {flags} by ImageMagick", own(folder, "gray", path) == expected)


for width, height in ((1, 1), (2, 3), (7, 5), (64, 33), (1100, 1000)):
    with tempfile.TemporaryDirectory() as folder:
        check_written(folder, width, height)
    if width < 1000:
        with tempfile.TemporaryDirectory() as folder:
            check_read(folder, width, height)
print(f"{checks} comparisons, {len(failures)} failed")
sys.exit(1 if failures else 0)
