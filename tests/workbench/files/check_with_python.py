#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Compares the readers and writers with tifffile, astropy and Pillow, sample by sample.

usage: check_with_python.py PICTUREDUMP [DATA_FOLDER]
"""
import json
import pathlib
import shutil
import struct
import subprocess
import sys
import tempfile
import zlib

import numpy
import tifffile
from astropy.io import fits
from PIL import Image

TOOL = sys.argv[1]
DATA = pathlib.Path(sys.argv[2]) if len(sys.argv) > 2 else None
failures = []
checks = 0


def run(*arguments):
    return subprocess.run([TOOL, *map(str, arguments)], capture_output=True, text=True)


def dump(path, folder):
    """Facts and decoded frames, each an array of rows x columns (x 3)."""
    samples_path = folder / "samples.raw"
    result = run("dump", path, samples_path)
    if result.returncode != 0:
        raise RuntimeError(result.stderr.strip())
    facts = json.loads(result.stdout)
    raw = samples_path.read_bytes()
    frames = []
    offset = 0
    for frame in facts["frames"]:
        shape = (frame["height"], frame["width"]) + ((3,) if frame["channels"] == 3 else ())
        kind = numpy.dtype(frame["type"])
        size = int(numpy.prod(shape)) * kind.itemsize
        frames.append(numpy.frombuffer(raw[offset:offset + size], kind).reshape(shape))
        offset += size
    return facts, frames


def same(name, ours, theirs):
    """Same number of frames, shapes, sample types and samples; a NaN equals a NaN."""
    global checks
    checks += 1
    theirs = list(theirs)
    if len(ours) != len(theirs):
        failures.append(f"{name}: {len(ours)} frames, expected {len(theirs)}")
        return
    for index, (our, their) in enumerate(zip(ours, theirs)):
        their = numpy.asarray(their)
        our = our.astype(our.dtype.newbyteorder("="))
        native = their.astype(their.dtype.newbyteorder("="))
        is_float = native.dtype.kind == "f"
        if our.shape != native.shape or our.dtype != native.dtype or not numpy.array_equal(our, native, equal_nan=is_float):
            failures.append(f"{name}: frame {index} differs: {our.dtype}{our.shape} against {native.dtype}{native.shape}")
            return


def true(name, condition):
    global checks
    checks += 1
    if not condition:
        failures.append(name)


def check_file(name, path, folder, theirs):
    try:
        facts, ours = dump(path, folder)
    except RuntimeError as error:
        failures.append(f"{name}: {error}")
        return {}
    same(name, ours, theirs)
    return facts


# --- independent readers -------------------------------------------------------------------------

def tiff_pages(path):
    with tifffile.TiffFile(path) as tiff:
        return [page.asarray() for page in tiff.pages]


def fits_frames(path):
    """Planes of the first picture, top row first."""
    with fits.open(path) as hdus:
        hdu = next(h for h in hdus if h.is_image and h.header.get("NAXIS", 0) > 0)
        data = hdu.data
    with fits.open(path, do_not_scale_image_data=True) as hdus:
        # Scaled in double precision; astropy itself loses a bit when it scales to float32.
        header = hdus[0].header
        if header.get("BSCALE", 1) != 1:
            data = (hdus[0].data * header["BSCALE"] + header["BZERO"]).astype("f4")
        data = data.reshape((-1,) + data.shape[-2:]) if data.ndim > 1 else data.reshape(1, 1, -1)
        return [plane[::-1] for plane in data]


def png_samples(path):
    """A plain decoder: Pillow reduces 16-bit colour to 8 bits."""
    content = path.read_bytes()
    offset = 8
    packed = b""
    while offset < len(content):
        length, name = struct.unpack(">I4s", content[offset:offset + 8])
        body = content[offset + 8:offset + 8 + length]
        if name == b"IHDR":
            width, height, depth, colour = struct.unpack(">IIBB", body[:10])
        elif name == b"IDAT":
            packed += body
        offset += 12 + length
    channels = {0: 1, 2: 3, 4: 2, 6: 4}[colour]
    step = channels * depth // 8
    stride = width * step
    raw = zlib.decompress(packed)
    previous = bytearray(stride)
    rows = []
    for y in range(height):
        kind = raw[y * (stride + 1)]
        row = bytearray(raw[y * (stride + 1) + 1:(y + 1) * (stride + 1)])
        for x in range(stride):
            left = row[x - step] if x >= step else 0
            corner = previous[x - step] if x >= step else 0
            up = previous[x]
            guess = left + up - corner
            nearest = min((abs(guess - left), 0, left), (abs(guess - up), 1, up), (abs(guess - corner), 2, corner))[2]
            row[x] = (row[x] + (0, left, up, (left + up) // 2, nearest)[kind]) & 255
        rows.append(bytes(row))
        previous = row
    samples = numpy.frombuffer(b"".join(rows), ">u2" if depth == 16 else "u1").reshape(height, width, channels)
    return samples[:, :, 0] if channels == 1 else samples


# --- files to check with ---------------------------------------------------------------------------

random = numpy.random.default_rng(20240229)


def noise(shape, kind):
    kind = numpy.dtype(kind)
    if kind.kind == "f":
        values = (random.standard_normal(shape) * 1e3).astype(kind)
        values.flat[0] = numpy.nan
        return values
    info = numpy.iinfo(kind)
    return random.integers(info.min, info.max, shape, kind, endpoint=True)


def check_spectrum_files():
    """SPE files with fabio and xylib, where these are installed: neither reads every kind."""
    try:
        from fabio.speimage import SpeImage
    except ImportError:
        SpeImage = None
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        for path in sorted((DATA / "spe").iterdir()):
            facts, ours = dump(path, folder)
            if SpeImage and "regions" not in facts["detail"]:
                theirs = SpeImage().read(str(path)).data
                same(f"{path.name} in fabio", ours[:1], [theirs.reshape(ours[0].shape)])
            if shutil.which("xyconv") and facts["frames"][0]["height"] == 1 and "version 2" in facts["detail"]:
                check_with_xylib(path, folder, facts, ours)


def check_with_xylib(path, folder, facts, ours):
    subprocess.run(["xyconv", "-t", "spe", path, folder / "xy.txt"], check=True)
    rows = [line.split() for line in (folder / "xy.txt").read_text().splitlines() if line and not line.startswith("#")]
    theirs = numpy.array(rows[:ours[0].size], "f8")
    true(f"{path.name} in xylib: counts", numpy.array_equal(theirs[:, 1], ours[0].ravel().astype("f8")))
    axis = facts["frames"][0]["axis"]
    if axis and not facts["frames"][0]["raman"]:
        true(f"{path.name} in xylib: axis", numpy.allclose(theirs[:, 0], axis, atol=6e-7, rtol=0))


def check_real_files(folder):
    check_spectrum_files()
    for path in sorted((DATA / "tiff").iterdir()):
        check_file(path.name, path, folder, tiff_pages(path))
    for path in sorted((DATA / "fits").iterdir()):
        check_file(path.name, path, folder, fits_frames(path))
    facts, _ = dump(DATA / "tiff" / "IXMtest_A02_s9.tif", folder)
    true("channels of a hyperstack are named", facts["frames"][1]["description"] == "channel 2 of 3")


def check_tiff_variants(folder):
    path = folder / "variant.tif"
    for kind in ("u1", "i1", "u2", "i2", "u4", "i4", "f4", "f8"):
        for order in ("<", ">"):
            data = noise((37, 53), kind)
            tifffile.imwrite(path, data, byteorder=order)
            check_file(f"TIFF {order}{kind}", path, folder, [data])
    for options in ({"tile": (16, 32)}, {"rowsperstrip": 7}, {"bigtiff": True}, {"compression": "zlib"},
                    {"compression": "zlib", "predictor": True}, {"compression": "zlib", "tile": (32, 16)}):
        for kind in ("u1", "u2"):
            mono = noise((45, 70), kind)
            if options.get("predictor") is None or kind == "u2":
                tifffile.imwrite(path, mono, **options)
                check_file(f"TIFF {kind} {options}", path, folder, [mono])
            colour = noise((45, 70, 3), kind)
            tifffile.imwrite(path, colour, photometric="rgb", **options)
            check_file(f"TIFF RGB {kind} {options}", path, folder, [colour])
            planes = noise((3, 45, 70), kind)
            tifffile.imwrite(path, planes, photometric="rgb", planarconfig="separate", **options)
            check_file(f"TIFF RGB planes {kind} {options}", path, folder, [numpy.moveaxis(planes, 0, 2)])
    colour = noise((20, 30, 4), "u1")
    tifffile.imwrite(path, colour, photometric="rgb", extrasamples=["unassalpha"])
    check_file("TIFF RGB with transparency", path, folder, [colour[:, :, :3]])
    data = noise((20, 30), "u2")
    tifffile.imwrite(path, data, photometric="miniswhite")
    check_file("TIFF white is zero", path, folder, [65535 - data])
    palette = noise((3, 256), "u2")
    indices = noise((20, 30), "u1")
    tifffile.imwrite(path, indices, photometric="palette", colormap=palette)
    check_file("TIFF palette", path, folder, [numpy.moveaxis(palette[:, indices] >> 8, 0, 2).astype("u1")])


def check_pillow_tiffs(folder):
    path = folder / "pillow.tif"
    smooth = numpy.add.outer(numpy.arange(61), numpy.arange(83)).astype("u1")
    for compression in ("tiff_lzw", "packbits", "tiff_adobe_deflate", "tiff_deflate"):
        for data in (smooth, noise((61, 83), "u1"), noise((61, 83, 3), "u1")):
            Image.fromarray(data).save(path, compression=compression)
            check_file(f"TIFF {compression} {data.shape}", path, folder, [data])
    mask = noise((21, 43), "u1") > 127
    Image.fromarray(mask).save(path)
    check_file("TIFF of one bit", path, folder, [mask.astype("u1")])


def check_stacks(folder):
    path = folder / "stack.tif"
    stack = noise((2, 3, 4, 20, 30), "u2")
    for options in ({}, {"contiguous": False}, {"byteorder": "<"}):
        tifffile.imwrite(path, stack, imagej=True, metadata={"axes": "TZCYX"}, resolution=(2.5, 2.5),
                         **{k: v for k, v in options.items() if k == "byteorder"})
        facts = check_file(f"ImageJ hyperstack {options}", path, folder, stack.reshape(-1, 20, 30))
    true("ImageJ order", facts["frames"][5]["description"] == "channel 2 of 4, slice 2 of 3, time 1 of 2")

    path = folder / "stack.ome.tif"
    tifffile.imwrite(path, stack, metadata={"axes": "TZCYX", "PhysicalSizeX": 0.5, "PhysicalSizeXUnit": "µm",
                                            "PhysicalSizeY": 0.25, "PhysicalSizeYUnit": "µm"})
    facts = check_file("OME-TIFF", path, folder, stack.reshape(-1, 20, 30))
    true("OME order", facts["frames"][5]["description"] == "channel 2 of 4, slice 2 of 3, time 1 of 2")
    true("OME pixel size", (facts["dpiX"], facts["dpiY"]) == (50800, 101600))

    # One description, and the frames behind it: the convention of stacks beyond 4 GB.
    path = folder / "contiguous.tif"
    frames = noise((5, 20, 30), "u2").astype(">u2")
    tifffile.imwrite(path, frames[0], byteorder=">", metadata=None, description="ImageJ=1.53t\nimages=5\nslices=5\n")
    with path.open("r+b") as file:
        with tifffile.TiffFile(path) as tiff:
            file.seek(tiff.pages[0].dataoffsets[0])
        file.write(frames.tobytes())
    facts = check_file("frames without pages", path, folder, frames)
    true("no complaint about a whole stack", facts["warning"] == "")


def check_fits_variants(folder):
    path = folder / "variant.fits"
    for kind in ("u1", "i1", "u2", "i2", "u4", "i4", "f4", "f8"):
        data = noise((3, 19, 31), kind)
        fits.PrimaryHDU(data).writeto(path, overwrite=True)
        check_file(f"FITS {kind}", path, folder, data[:, ::-1])
    scaled = fits.PrimaryHDU(noise((19, 31), "i2"))
    scaled.header["BSCALE"] = 0.25
    scaled.header["BZERO"] = 10.0
    scaled.writeto(path, overwrite=True)
    check_file("FITS scaled", path, folder, fits_frames(path))
    fits.HDUList([fits.PrimaryHDU(), fits.ImageHDU(noise((19, 31), "f4"))]).writeto(path, overwrite=True)
    facts = check_file("FITS picture in an extension", path, folder, fits_frames(path))
    true("FITS extension is told", facts["detail"] == "in extension 1")
    check_compressed_fits(folder)


def check_compressed_fits(folder):
    path = folder / "compressed.fits"
    smooth = numpy.add.outer(numpy.arange(40), numpy.arange(64)) * 5
    for method in ("RICE_1", "GZIP_1", "GZIP_2"):
        for name, data in (("smooth", smooth.astype("i2")), ("noise u1", noise((40, 64), "u1")), ("noise i2", noise((40, 64), "i2")),
                           ("noise i4", noise((40, 64), "i4")), ("unsigned", noise((40, 64), "u2")), ("equal", numpy.full((40, 64), 7, "i4"))):
            for tile in (None, (64, 10), (20, 7)):
                options = {"tile_size": tile} if tile else {}
                fits.CompImageHDU(data, compression_type=method, **options).writeto(path, overwrite=True)
                facts = check_file(f"FITS {method} {name} {tile}", path, folder, [data[::-1]])
                true("FITS compression is told", facts.get("detail") == "compressed, in extension 1")
        cube = noise((3, 20, 30), "i2")
        fits.CompImageHDU(cube, compression_type=method).writeto(path, overwrite=True)
        check_file(f"FITS {method} cube", path, folder, cube[:, ::-1])
        # Samples with gaps are rounded to steps of the noise; how the steps are dithered is part of the format.
        measured = (random.standard_normal((40, 64)) * 10 + 100).astype("f4")
        measured[5:8, 3] = numpy.nan
        measured[20, 10:20] = 0
        for dither in (-1, 1, 2):
            for kind in ("f4", "f8"):
                fits.CompImageHDU(measured.astype(kind), compression_type=method, quantize_method=dither, quantize_level=4,
                                  dither_seed=3).writeto(path, overwrite=True)
                check_rounded_fits(f"FITS {method} {kind} dithered {dither}", path, folder)
        fits.CompImageHDU(measured, compression_type="GZIP_1", quantize_level=0).writeto(path, overwrite=True)
        check_file("FITS floats without loss", path, folder, [measured[::-1]])
    for method in ("HCOMPRESS_1", "PLIO_1"):
        fits.CompImageHDU(smooth.astype("i2"), compression_type=method).writeto(path, overwrite=True)
        result = run("dump", path, folder / "samples.raw")
        true(f"{method} is refused in words", result.returncode != 0 and f"its compression ({method}) is not supported" in result.stderr)


def check_rounded_fits(name, path, folder):
    try:
        _, ours = dump(path, folder)
    except RuntimeError as error:
        failures.append(f"{name}: {error}")
        return
    theirs = fits_frames(path)[0].astype("f8")
    true(f"{name}: undefined samples", numpy.array_equal(numpy.isnan(ours[0]), numpy.isnan(theirs)))
    # The last digits of single precision depend on the order of the operations.
    true(f"{name}: samples", numpy.nanmax(numpy.abs(ours[0] - theirs)) <= 1e-6 * numpy.nanmax(numpy.abs(theirs)))


def check_raster(folder):
    for kind, mode in (("u1", "L"), ("u2", "I;16")):
        data = noise((33, 47), kind)
        Image.fromarray(data, mode).save(folder / "grey.png")
        check_file(f"PNG {kind}", folder / "grey.png", folder, [data])
    colour = noise((33, 47, 3), "u1")
    for name in ("colour.png", "colour.bmp"):
        Image.fromarray(colour).save(folder / name)
        check_file(name, folder / name, folder, [colour])
    grey = noise((33, 47), "u1")
    Image.fromarray(grey).save(folder / "grey.bmp")
    check_file("grey.bmp", folder / "grey.bmp", folder, [grey])
    alpha = noise((33, 47, 4), "u1")
    Image.fromarray(alpha).save(folder / "alpha.png")
    check_file("PNG with transparency", folder / "alpha.png", folder, [alpha[:, :, :3]])
    pair = noise((33, 47, 2), "u1")
    Image.fromarray(pair, "LA").save(folder / "greyalpha.png")
    check_file("grey PNG with transparency", folder / "greyalpha.png", folder, [pair[:, :, 0]])
    smooth = numpy.add.outer(numpy.arange(64), numpy.arange(80)).astype("u1")
    Image.fromarray(smooth).save(folder / "grey.jpg", quality=90)
    check_file("JPEG", folder / "grey.jpg", folder, [numpy.asarray(Image.open(folder / "grey.jpg"))])


# --- what we write -----------------------------------------------------------------------------------

def convert(name, source, target, *options):
    result = run("convert", source, target, *options)
    true(f"{name}: {result.stderr.strip()}", result.returncode == 0)
    return result.returncode == 0


def check_writers(folder):
    source = folder / "source.tif"
    for kind in ("u1", "i1", "u2", "i2", "u4", "i4", "f4", "f8"):
        stack = noise((4, 23, 41), kind)
        tifffile.imwrite(source, stack, photometric="minisblack", description="cells, 20 x", datetime="2024:02:29 12:34:56", metadata=None,
                         resolution=(300, 150))
        target = folder / "written.tif"
        if convert(f"write TIFF {kind}", source, target):
            same(f"written TIFF {kind}", tiff_pages(target), stack)
            with tifffile.TiffFile(target) as tiff:
                tags = tiff.pages[0].tags
                true("TIFF texts", (tags["ImageDescription"].value, tags["DateTime"].value) == ("cells, 20 x", "2024:02:29 12:34:56"))
                true("TIFF resolution", tags["XResolution"].value == (300, 1) and tags["YResolution"].value == (150, 1))
        # tifffile needs further packages for predictors, so the compressed file is read by Pillow or by ourselves.
        if convert(f"write compressed TIFF {kind}", source, target, "compress"):
            check_file(f"written compressed TIFF {kind}", target, folder, stack)
        if kind in ("u1", "u2"):
            with Image.open(target) as image:
                for index in range(4):
                    image.seek(index)
                    same(f"compressed TIFF {kind} in Pillow", [numpy.asarray(image).astype(kind)], [stack[index]])
        target = folder / "written.fits"
        if convert(f"write FITS {kind}", source, target):
            same(f"written FITS {kind}", fits_frames(target), stack)
            with fits.open(target) as hdus:
                hdus.verify("exception")
    check_colour_writers(folder)


def check_colour_writers(folder):
    source = folder / "source.tif"
    for kind in ("u1", "u2"):
        colour = noise((23, 41, 3), kind)
        tifffile.imwrite(source, colour, photometric="rgb")
        for name, read in (("written.tif", lambda path: tiff_pages(path)[0]), ("written.png", png_samples)):
            if convert(f"write RGB {kind} {name}", source, folder / name):
                same(f"RGB {kind} {name}", [read(folder / name)], [colour])
        if convert(f"write RGB {kind} FITS", source, folder / "written.fits"):
            same(f"RGB {kind} FITS", fits_frames(folder / "written.fits"), numpy.moveaxis(colour, 2, 0))
        mono = noise((23, 41), kind)
        tifffile.imwrite(source, mono)
        if convert(f"write {kind} PNG", source, folder / "written.png"):
            same(f"{kind} PNG", [png_samples(folder / "written.png")], [mono])
    smooth = numpy.add.outer(numpy.arange(64), numpy.arange(80)).astype("u1")
    tifffile.imwrite(source, smooth)
    if convert("write JPEG", source, folder / "written.jpg"):
        written = numpy.asarray(Image.open(folder / "written.jpg")).astype("i4")
        true("JPEG is close to the original", abs(written - smooth).max() < 40 and abs(written - smooth).mean() < 3)


def check_fits_cards(folder):
    source = folder / "cards.fits"
    hdu = fits.PrimaryHDU(noise((9, 11), "u2"))
    hdu.header["EXPTIME"] = (12.5, "exposure in seconds")
    hdu.header["OBJECT"] = ("it's a star", "what")
    hdu.header["COOLED"] = (True, "")
    hdu.header["LONGTEXT"] = "word " * 30
    hdu.header["HIERARCH LAMP NAME"] = "HeAr"
    hdu.header["HIERARCH LAMP POWER"] = 4.5
    hdu.header["HISTORY"] = "bias subtracted"
    hdu.writeto(source, overwrite=True)
    target = folder / "cards2.fits"
    if convert("FITS cards", source, target):
        with fits.open(source) as before, fits.open(target) as after:
            for key in ("EXPTIME", "OBJECT", "COOLED", "LONGTEXT", "LAMP NAME", "LAMP POWER"):
                true(f"FITS card {key}", key in after[0].header and before[0].header[key] == after[0].header[key])
            true("FITS comment", after[0].header.comments["EXPTIME"] == "exposure in seconds")
            true("FITS history", "bias subtracted" in str(after[0].header["HISTORY"]))
    target = folder / "cards.png"
    if convert("FITS cards to PNG", source, target):
        true("PNG texts", Image.open(target).text.get("OBJECT") == "it's a star")
    target = folder / "cards.tif"
    if convert("FITS cards to TIFF", source, target):
        with tifffile.TiffFile(target) as tiff:
            true("TIFF description", "EXPTIME=12.5 / exposure in seconds" in tiff.pages[0].description)


def main():
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        if DATA:
            check_real_files(folder)
        for check in (check_tiff_variants, check_pillow_tiffs, check_stacks, check_fits_variants, check_raster,
                      check_writers, check_fits_cards):
            check(folder)
    print(f"{checks} checks, {len(failures)} failures")
    for failure in failures:
        print("FAILED", failure)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
