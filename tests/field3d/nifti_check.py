"""Compares NIfTI files of this system with what nibabel reads, and the other way round.

nifti_check.py NIFTI_TOOL DATA_FOLDER: files that nifti_tool writes must hold the voxels and the
frame that were put in; real files in DATA_FOLDER must give nifti_tool the voxels and the frame
that nibabel sees. Exit code 77: nibabel is missing.
"""

import glob
import os
import re
import subprocess
import sys
import tempfile
import zlib

try:
    import nibabel
    import numpy
except ImportError:
    sys.exit(77)

failures = []


def check(what, good):
    if not good:
        failures.append(what)
        print("FAILED:", what)


def close(a, b):
    return numpy.allclose(a, b, rtol=1e-5, atol=1e-5)


AFFINE = numpy.array([[0.5, -0.25, 0, -12.5], [0.25, 0.5, 0.125, 30.25], [0, 0, 2, 7], [0, 0, 0, 1]])


def expected(kind):
    x, y, z = numpy.meshgrid(range(1, 8), range(1, 6), range(1, 4), indexing="ij")
    if kind == "gray":
        return ((x + 10 * y + 100 * z) % 256).astype("u1")
    if kind == "fullgray":
        return numpy.minimum(190 * (x + 10 * y + 100 * z), 65535).astype("u2")
    result = numpy.zeros((7, 5, 3), dtype=[("R", "u1"), ("G", "u1"), ("B", "u1")])
    result["R"], result["G"], result["B"] = x, 10 * y, 80 * z
    return result


def check_written(tool):
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([tool, "write", folder], check=True, stdout=subprocess.DEVNULL)
        for kind in ("gray", "fullgray", "rgb"):
            for extension in (".nii", ".nii.gz", ".hdr"):
                name = kind + extension
                image = nibabel.load(os.path.join(folder, name))
                values = numpy.asanyarray(image.dataobj)
                wanted = expected(kind)
                if wanted.dtype.names:
                    same = all((values[c] == wanted[c]).all() for c in "RGB")
                else:
                    same = values.dtype == wanted.dtype and (values == wanted).all()
                check(name + " voxels", values.shape == wanted.shape and same)
                check(name + " frame", close(image.affine, AFFINE))
                check(name + " zooms", close(image.header.get_zooms()[:3],
                                             [5**0.5 / 4, 5**0.5 / 4, (4 + 1 / 64) ** 0.5]))
                check(name + " codes", int(image.header["sform_code"]) == 1
                      and int(image.header["qform_code"]) == 1)


def numbers(text):
    return [float(n) for n in re.findall(r"-?\d[\d.eE+-]*", text)]


def frame_of(image):
    """The affine by this system's rules: srow, else qform (qfac is the code), else pixdim."""
    header = image.header
    if int(header.get("sform_code", 0)) > 0:
        return header.get_sform()
    if int(header.get("qform_code", 0)) > 0:
        affine = header.get_qform()
        qfac = -1.0 if header["pixdim"][0] < 0 else 1.0
        affine[:3, 2] *= int(header["qform_code"]) / qfac
        return affine
    return numpy.diag(list(header["pixdim"][1:4]) + [1])


def check_read(tool, path):
    name = os.path.basename(path)
    image = nibabel.load(path)
    stored = image.dataobj.get_unscaled()
    if stored.dtype.kind not in "iu" or stored.ndim < 3:
        return
    for stack in range(1, (stored.shape[3] if stored.ndim > 3 else 1) + 1):
        volume = stored[..., stack - 1] if stored.ndim > 3 else stored
        plain = numpy.clip(volume.astype("i8"), 0, 65535).astype("<u2")
        crc = zlib.crc32(plain.tobytes(order="F"))
        output = subprocess.run([tool, "read", path, "16", str(stack)], check=True,
                                capture_output=True, text=True).stdout
        fields = [line for line in output.splitlines() if line.startswith("RESULT")][0].split("\t")
        check(name + " size", numbers(fields[1]) == list(volume.shape))
        check("%s voxels of stack %d" % (name, stack), int(fields[2]) == crc)
        affine = frame_of(image)
        check(name + " matrix", close(numpy.array(numbers(fields[3])).reshape(3, 3).T,
                                      affine[:3, :3]))
        check(name + " offset", close(numbers(fields[4]), affine[:3, 3]))


def main(tool, folder):
    check_written(tool)
    files = glob.glob(folder + "/*.nii") + glob.glob(folder + "/*.nii.gz") + glob.glob(folder + "/*.hdr")
    for path in sorted(files):
        if not any(word in path for word in ("bit1", "version2")):
            check_read(tool, path)
    print("nifti_check:", "%d failed" % len(failures) if failures else "all good")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2]))
