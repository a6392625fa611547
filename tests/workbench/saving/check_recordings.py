# SPDX-License-Identifier: GPL-3.0-or-later
"""Reads recordings back with other readers: tifffile, astropy and Pillow. Usage: check_recordings.py RECORDSAMPLE"""
import os
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

import numpy
import tifffile
from astropy.io import fits
from PIL import Image

TIFF, FITS, PNG = 0, 1, 2
LAYOUTS = {0: (8, 1), 1: (12, 1), 2: (16, 1), 3: (8, 3)}  # bit depth, channels
WIDTH, HEIGHT, FRAMES = 37, 21, 5
OME = "{http://www.openmicroscopy.org/Schemas/OME/2016-06}"

checks = 0


def check(condition, what):
    global checks
    checks += 1
    if not condition:
        sys.exit("FAILED: " + what)


def expected(layout, frame):
    depth, channels = LAYOUTS[layout]
    samples = (7 * numpy.arange(WIDTH * HEIGHT * channels) + 31 * frame) % (1 << depth)
    shape = (HEIGHT, WIDTH, 3) if channels == 3 else (HEIGHT, WIDTH)
    return samples.astype(numpy.uint8 if depth == 8 else numpy.uint16).reshape(shape)


def record(program, path, kind, layout):
    subprocess.run([program, path, str(kind), str(layout), str(WIDTH), str(HEIGHT), str(FRAMES)], check=True,
                   stdout=subprocess.DEVNULL)


def check_tiff(path, layout):
    depth, channels = LAYOUTS[layout]
    with tifffile.TiffFile(path) as tiff:
        check(tiff.is_ome and not tiff.is_bigtiff, path + " is an OME-TIFF")
        check(len(tiff.pages) == FRAMES, path + " has its frames")
        for frame, page in enumerate(tiff.pages):
            check(numpy.array_equal(page.asarray(), expected(layout, frame)), f"{path}, frame {frame}")
        stack = tiff.series[0].asarray()
        check(stack.shape[0] == FRAMES and numpy.array_equal(stack[3], expected(layout, 3)), path + " is one series")
        root = ElementTree.fromstring(tiff.ome_metadata)
    pixels = root.find(f"{OME}Image/{OME}Pixels")
    check(pixels.get("SignificantBits") == str(depth), path + " tells its bit depth")
    check(pixels.get("SizeT") == str(FRAMES), path + " tells its frames")
    check(pixels.get("PhysicalSizeX") is None, path + " claims no calibration")
    planes = pixels.findall(f"{OME}Plane")
    check([float(plane.get("DeltaT")) for plane in planes] == [0.0, 0.001, 0.002, 0.003, 0.004], path + " tells the times")
    check(all(plane.get("ExposureTime") == "0.0125" for plane in planes), path + " tells the exposure")
    check(root.find(f"{OME}Instrument/{OME}Detector").get("SerialNumber") == "S/N 42", path + " tells the camera")
    entries = {m.get("K"): m.text for m in root.iter(OME + "M")}
    check(entries["Frames saved"] == str(FRAMES) and entries["Frames lost"] == "0", path + " has the ledger")
    check(entries["4"].startswith("frame id 104; camera time 4000000 ns; host time 1763700000008000000"), path + " has the stamps")


def check_fits(path, layout):
    with fits.open(path) as hdus:
        hdus.verify("exception")
        cube = hdus[0].data
        check(cube.shape == (FRAMES, HEIGHT, WIDTH), path + " has its frames")
        for frame in range(FRAMES):
            check(numpy.array_equal(cube[frame][::-1], expected(layout, frame)), f"{path}, frame {frame}")
        check(hdus[0].header["EXPTIME"] == 0.0125 and hdus[0].header["SERIALNO"] == "S/N 42", path + " tells the truth")
        check(hdus[0].header["BITDEPTH"] == LAYOUTS[layout][0], path + " tells its bit depth")
        table = hdus["FRAMES"].data
        check(list(table["FRAMEID"]) == [100, 101, 102, 103, 104], path + " has the ids")
        check(list(table["CAMTIME"]) == [0, 1000000, 2000000, 3000000, 4000000], path + " has the times")


def check_png(path, layout):
    for frame in range(FRAMES):
        name = path.replace(".png", f"_{frame + 1:06d}.png")
        with Image.open(name) as image:
            check(numpy.array_equal(numpy.array(image), expected(layout, frame)), name)
            if frame == 0:
                check(image.text["Framessaved"] == str(FRAMES) and image.text["Frameslost"] == "0", name + " has the ledger")
            check(image.text["FrameId"] == str(100 + frame) and image.text["Serialnumber"] == "S/N 42", name + " tells the truth")


with tempfile.TemporaryDirectory() as folder:
    for layout in LAYOUTS:
        for kind, suffix, look in ((TIFF, "tif", check_tiff), (FITS, "fits", check_fits), (PNG, "png", check_png)):
            if kind == FITS and LAYOUTS[layout][1] == 3:
                continue
            path = os.path.join(folder, f"run{layout}.{suffix}")
            record(sys.argv[1], path, kind, layout)
            look(path, layout)
            summary = os.path.join(folder, f"run{layout}.txt") if kind == TIFF else path + ".txt"
            with open(summary, encoding="utf-8") as text:
                check(text.readline().startswith(f"Recording: run{layout}") and suffix in summary or kind == TIFF, summary + " is its own")
print(checks, "checks")
