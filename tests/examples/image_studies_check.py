#!/usr/bin/env python3
"""Runs the image studies of examples/ and works their results out a second time.

usage: image_studies_check.py MORVANE EXAMPLES

- nuclei.macro: the count and the place of the nuclei against the labels that were drawn by hand
- collagen.macro: the mean angle against a structure tensor, the classes against a recount
- focus.macro: the fused image is closer to the sharp original than any input
- stain.macro: the shares and strengths of both stains from the pixels
- fibre_pictures.macro: the slices against the voxels, the mean axis against a structure tensor
Every picture opens with the size that it should have; the studies give the same without any image
library; the pictures of docs/gallery.md are those of the studies. Exit code 77: PIL or numpy is
missing.
"""
import csv
import filecmp
import gzip
import os
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

try:
    import numpy
    from PIL import Image
except ImportError:
    sys.exit(77)

program, examples = (os.path.abspath(path) for path in sys.argv[1:3])
data = os.path.join(examples, "data")
failures = []


def check(what, good, found=""):
    if not good:
        failures.append(what)
        print(f"FAILED: {what} {found}")


def run(folder, study, source, *options, kind="image"):
    """What the study prints last; -image.input or -scalar.input names its source."""
    done = subprocess.run([program, "-strict", "+verbose", *options, f"-{kind}.input={os.path.join(data, source)}",
                           os.path.join(examples, study + ".macro")], cwd=folder, stdin=subprocess.DEVNULL,
                          capture_output=True, text=True, timeout=300)
    check(f"{study}: exit status", done.returncode == 0, done.stdout[-2000:])
    check(f"{study}: no report of an error", "error" not in done.stdout.lower(), done.stdout[-2000:])
    if "Script ends." not in done.stdout:
        return ""
    return done.stdout[:done.stdout.index("Script ends.")].splitlines()[-1]


def table(folder, name):
    with open(os.path.join(folder, name), encoding="utf-8", newline="") as file:
        return list(csv.DictReader(file))


def pixels(path, kind="L"):
    return numpy.array(Image.open(path).convert(kind)).astype(float)


def picture_size(folder, name, size, mode):
    with Image.open(os.path.join(folder, name)) as picture:
        picture.load()
        found = picture.size, picture.mode
        check(f"{name} is a picture of {size}", found == (size, mode), found)


def nuclei(folder):
    last = run(folder, "nuclei", "nuclei_fluorescence.pgm")
    grey = pixels(os.path.join(data, "nuclei_fluorescence.pgm"))
    labels = pixels(os.path.join(data, "nuclei_labels.pgm"))
    rows = table(folder, "nuclei.csv")
    found = [row for row in rows if row["nucleus"].isdigit()]
    drawn = len(numpy.unique(labels)) - 1
    check("35 nuclei were drawn", drawn == 35, drawn)
    # Neighbours that touch may count as one, dim ones at the border may be lost.
    check("the count is within 4 of the drawn nuclei", abs(len(found) - drawn) <= 4, len(found))
    check("the count is printed", last.startswith(f"{len(found)} nuclei, "), last)
    check("nuclei are numbered by area", all(int(a["area"]) >= int(b["area"]) for a, b in zip(found, found[1:])))

    # The middle of each lies on a drawn nucleus, and few of those share one.
    hit = {labels[round(float(row["y"])) - 1, round(float(row["x"])) - 1] for row in found} - {0}
    check("at least 28 of the drawn nuclei are hit", len(hit) >= 28, len(hit))
    areas = numpy.array([int(row["area"]) for row in found])
    share = areas.sum() / (labels > 0).sum()
    check("the area together is within 10 % of the drawn one", abs(share - 1) < 0.1, share)
    light = sum(float(row["brightness"]) * int(row["area"]) for row in found) / areas.sum()
    check("the nuclei's brightness is within 10 % of the drawn ones'",
          abs(light / grey[labels > 0].mean() - 1) < 0.1, light)
    mean, deviation = (next(row for row in rows if row["nucleus"] == name) for name in ("mean", "sd"))
    check("the row of means", abs(float(mean["area"]) - areas.mean()) < 1e-9, mean)
    check("the row of deviations", abs(float(deviation["area"]) - areas.std(ddof=1)) < 1e-9, deviation)

    picture_size(folder, "nuclei.png", (768, 768), "RGB")
    colours = pixels(os.path.join(folder, "nuclei.png"), "RGB")
    outlines = numpy.unique(colours[colours.max(2) != colours.min(2)], axis=0)
    check("each outline has a colour of its own", len(outlines) == len(found), len(outlines))


def smoothed(values, radius, times):
    """Means over a square, the border repeated."""
    for _ in range(times):
        for axis in (0, 1):
            border = [(radius, radius) if axis == i else (0, 0) for i in (0, 1)]
            padded = numpy.pad(values, border, mode="edge")
            length = values.shape[axis]
            values = sum(padded.take(range(i, i + length), axis) for i in range(2 * radius + 1)) / (2 * radius + 1)
    return values


def mean_angle(grey):
    """Of the structure tensor of the whole picture: degrees, rising counted positive."""
    y, x = numpy.gradient(smoothed(grey, 1, 2))
    across = 0.5 * numpy.degrees(numpy.arctan2(2 * (x * y).sum(), (x * x).sum() - (y * y).sum()))
    return (-(across + 90) + 90) % 180 - 90


def collagen(folder):
    for name in ("polymer_fibres", "brick", "collagen_shg_roi1"):
        last = run(folder, "collagen", name + ".pgm", "-length=8")
        grey = pixels(os.path.join(data, name + ".pgm"))
        words = last.replace(",", "").split()
        told, wanted = float(words[words.index("angle") + 1]), mean_angle(grey)
        apart = abs((told - wanted + 90) % 180 - 90)
        check(f"{name}: the mean angle is within 5 degrees of the structure tensor's", apart <= 5, (told, wanted))
        rows = table(folder, "collagen.csv")
        counts = numpy.array([int(row["pixels"]) for row in rows])
        angles = [float(row["angle"]) for row in rows]
        check(f"{name}: classes of 15 degrees", angles == [15 * i - 82.5 for i in range(12)], angles)
        check(f"{name}: the classes hold all pixels with a direction", counts.sum() == int(words[0]), counts)
        check(f"{name}: the shares", all(abs(float(row["percent"]) - 100 * n / counts.sum()) <= 0.0501
                                         for row, n in zip(rows, counts)), rows)
        # 3x3 means of the values without 0; at the border fewer pixels change the count a little.
        fibres = (smoothed(numpy.maximum(grey, 1), 1, 1) >= 21).sum()
        check(f"{name}: nearly all pixels of fibres have a direction", 0.95 < counts.sum() / fibres < 1.01,
              counts.sum() / fibres)
        doubled = numpy.exp(2j * numpy.radians(angles)) @ counts
        apart = abs((numpy.degrees(numpy.angle(doubled)) / 2 - wanted + 90) % 180 - 90)
        check(f"{name}: the classes lean as the structure does", apart <= 10, apart)

        picture_size(folder, "collagen.png", tuple(2 * n for n in grey.shape[::-1]), "RGB")
        picture_size(folder, "collagen_angles.png", (520, 220), "RGB")
        chart = pixels(os.path.join(folder, "collagen_angles.png"), "RGB")
        bars = [(chart[:210, 42 * i + 20] != 255).any(1).sum() for i in range(12)]
        check(f"{name}: bars as high as their shares",
              all(abs(bar - 200 * n / counts.max()) <= 1.5 for bar, n in zip(bars, counts)), bars)


def focus(folder):
    run(folder, "focus", "gravel.pgm")
    sharp = pixels(os.path.join(data, "gravel.pgm"))
    names = [f"focus_{i}" for i in range(1, 5)] + ["focus"]
    apart = {name: abs(pixels(os.path.join(folder, name + ".png")) - sharp).mean() for name in names}
    for name in names:
        picture_size(folder, name + ".png", (200, 200), "L")
    check("the fused image is ten times closer to the sharp one than any input",
          all(10 * apart["focus"] < apart[name] for name in names[:-1]), apart)
    for row in table(folder, "focus.csv"):
        check(f"distance of {row['image']}", abs(float(row["distance"]) - apart[row["image"]]) < 0.006, apart)
    for i in range(4):
        blur = abs(pixels(os.path.join(folder, f"focus_{i + 1}.png")) - sharp)
        bands = [blur[:, 50 * j:50 * j + 50].mean() for j in range(4)]
        check(f"image {i + 1} is sharp in band {i + 1} alone",
              bands[i] == 0 and all(bands[j] > 3 for j in range(4) if j != i), bands)

    stack = os.path.join(folder, "stack")
    os.mkdir(stack)
    for i in range(1, 5):
        Image.open(os.path.join(folder, f"focus_{i}.png")).save(os.path.join(stack, f"{i}.pgm"))
    once = open(os.path.join(folder, "focus.png"), "rb").read()
    last = run(folder, "focus", "gravel.pgm", "-folder=stack")
    check("the same from a folder", last == "4 images fused" and
          open(os.path.join(folder, "focus.png"), "rb").read() == once, last)
    last = run(folder, "focus", "gravel.pgm", "-folder=nowhere")
    check("an empty folder is told", "no file fits nowhere/*.pgm" in last or last.startswith("Script stop"), last)


def stain(folder):
    last = run(folder, "stain", "ihc_rgb.ppm")
    rgb = pixels(os.path.join(data, "ihc_rgb.ppm"), "RGB").astype(int)
    low, middle, high = numpy.sort(rgb, axis=2).transpose(2, 0, 1)
    first, lowest = rgb.argmax(2), rgb.argmin(2)
    # One primary colour, or two together, beyond grey; ties have a share of 0 and do not matter.
    brown = numpy.where(first == 0, high - middle, 0) + numpy.where(lowest == 2, middle - low, 0)
    blue = numpy.where(first == 2, high - middle, 0) + numpy.where(lowest == 0, middle - low, 0)
    rows = {row["stain"]: row for row in table(folder, "stain.csv")}
    for name, values, limit in (("brown", brown, 40), ("blue", blue, 12)):
        inside = values[values >= limit]
        row = rows[name]
        check(f"{name}: count", int(row["pixels"]) == inside.size, (row, inside.size))
        check(f"{name}: share", abs(float(row["percent"]) - 100 * inside.size / values.size) <= 0.0501, row)
        check(f"{name}: strength", abs(float(row["strength"]) - inside.mean()) <= 0.0501, row)
    told = f"brown {rows['brown']['percent']} %, blue {rows['blue']['percent']} %"
    check("the shares are printed", last == told, last)
    for name in ("stain", "stain_brown", "stain_blue"):
        picture_size(folder, name + ".png", (400, 400), "RGB")
    both = pixels(os.path.join(folder, "stain.png"), "RGB")[1::2, 1::2]
    reddish, bluish = both[brown > blue + 30], both[blue > brown + 15]
    check("brown pixels are reddish in the picture", (reddish[:, 0] > reddish[:, 2]).all())
    check("blue pixels are bluish in the picture", (bluish[:, 2] > bluish[:, 0]).all())


def fibre_pictures(folder):
    source = "fibres_ct_64x128x128.nii.gz"
    last = run(folder, "fibre_pictures", source, kind="scalar")
    stored = gzip.decompress(open(os.path.join(data, source), "rb").read())
    x, y, z = (int(n) for n in numpy.frombuffer(stored, "<i2", 3, 42))
    begin = int(numpy.frombuffer(stored, "<f4", 1, 108)[0])
    voxels = numpy.frombuffer(stored, numpy.uint8, x * y * z, begin).reshape(z, y, x)
    slices = {"xy": voxels[z // 2], "xz": voxels[:, y // 2], "yz": voxels[:, :, x // 2]}
    for plane, values in slices.items():
        name = f"slice_{plane}.png"
        picture_size(folder, name, tuple(4 * n for n in values.shape[::-1]), "L")
        shown = pixels(os.path.join(folder, name))[3::4, 3::4]  # nearest pixels
        limits = [(shown[values == v].min(), shown[values == v].max()) for v in numpy.unique(values)]
        check(f"{name}: one brightness for a grey value", all(low == high for low, high in limits))
        check(f"{name}: brighter for higher values", limits == sorted(limits))
        check(f"{name}: the whole range", limits[0][0] == 0 and limits[-1][1] == 255, limits)
        check(f"{name}: one percent is cut at each end",
              all(0 < (shown == end).mean() < 0.03 for end in (0, 255)), ((shown == 0).mean(), (shown == 255).mean()))
    picture_size(folder, "orientation.png", (256, 512), "RGB")
    words = last.replace(",", "").split()
    told = -float(words[words.index("y:") + 1])
    wanted = mean_angle(slices["xy"].astype(float))
    check("the slice's mean axis is within 5 degrees of the structure tensor's",
          abs((told - wanted + 90) % 180 - 90) <= 5, (told, wanted))
    chart = xml.etree.ElementTree.parse(os.path.join(folder, "histogram.svg")).getroot()
    check("the histogram is a picture of vectors", chart.tag.endswith("}svg"), chart.tag)


def gallery(folders):
    """Pictures on the page that a study makes look as it makes them now (tools/make_gallery)."""
    docs = os.path.join(examples, "..", "docs")
    text = open(os.path.join(docs, "gallery.md"), encoding="utf-8").read()
    shown = {os.path.join(docs, name) for name in re.findall(r"\((gallery/[a-z0-9_]+\.png)\)", text)}
    kept = {os.path.join(docs, "gallery", name) for name in os.listdir(os.path.join(docs, "gallery"))}
    check("the gallery shows every picture that is kept for it", shown == kept, shown ^ kept)
    check("the gallery's pictures are small", sum(os.path.getsize(path) for path in kept) < 1000000)
    for path in sorted(kept):
        name = os.path.basename(path)
        made = [os.path.join(folder, name) for folder in folders if os.path.exists(os.path.join(folder, name))]
        if made:
            old, new = pixels(path, "RGB"), pixels(made[0], "RGB")
            check(f"{name} of the gallery is up to date", old.shape == new.shape and abs(old - new).mean() < 0.5)
        else:
            check(f"{name} of the gallery is a source", name.endswith("_source.png"))


with tempfile.TemporaryDirectory() as scratch:
    for study, picture in ((nuclei, "nuclei_fluorescence"), (collagen, "collagen_shg_roi1"), (focus, "gravel"),
                           (stain, "ihc_rgb")):
        name = study.__name__
        folders = [os.path.join(scratch, name + end) for end in ("", "_own")]
        for folder in folders:
            os.mkdir(folder)
        study(folders[0])
        kind = ".ppm" if name == "stain" else ".pgm"
        run(folders[1], name, picture + kind, "-freeimage=off", "-imagemagick=off")
        tables = [entry for entry in os.listdir(folders[1]) if entry.endswith(".csv")]
        check(f"{name}: a table without image libraries", len(tables) == 1, tables)
        check(f"{name}: the same table without image libraries",
              all(filecmp.cmp(os.path.join(folders[0], entry), os.path.join(folders[1], entry), False)
                  for entry in tables))
        for entry in os.listdir(folders[1]):
            if entry.endswith(".png"):
                check(f"{entry}: the same pixels without image libraries",
                      (pixels(os.path.join(folders[0], entry), "RGB") ==
                       pixels(os.path.join(folders[1], entry), "RGB")).all())
    gallery([os.path.join(scratch, name) for name in ("nuclei", "collagen", "focus", "stain")])
    folder = os.path.join(scratch, "fibre_pictures")
    os.mkdir(folder)
    fibre_pictures(folder)
print(f"image_studies_check: {len(failures)} failures")
sys.exit(1 if failures else 0)
