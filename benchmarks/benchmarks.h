// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ratiobenchmark.h"

/// A group of figures that share their set-up.
struct BenchmarkGroup
{
    const char *name;
    QVector<BenchmarkResult> (*run)();
};

QVector<BenchmarkGroup> BenchmarkGroups();

/// One live frame in CPU mode against a bare graphics view with the same background brush.
QVector<BenchmarkResult> BenchmarkCpuFrame();
/// One live frame in GPU mode against the bare upload and drawing of it through the same driver.
QVector<BenchmarkResult> BenchmarkGpuFrame();
/// What the hand feels: wheel zoom and drag of a large picture, until it is painted.
QVector<BenchmarkResult> BenchmarkZoom();
/// 16-bit samples to display samples through levels, against memcpy of the frame.
QVector<BenchmarkResult> BenchmarkLevels();
/// The next frame of a stack that is browsed, and one far from it, until its picture is there, against libtiff's own
/// read of a page; and the first frame of a file, against libtiff's own opening and reading.
QVector<BenchmarkResult> BenchmarkStack();
/// The lines of an intensity curve and the ticks of a ruler, each in its own time.
QVector<BenchmarkResult> BenchmarkItems();
/// The row and the column profile of a frame, of single lines and of the widest bands, against reading its samples once.
QVector<BenchmarkResult> BenchmarkProfiles();
/// One live frame on the spectrum page, with all its aids, against the same picture alone.
QVector<BenchmarkResult> BenchmarkSpectrumFrame();
/// Spectra: a curve and tracks from payload to screen against the plotting libraries alone, binning against memory, and
/// a stream of 100 a second.
QVector<BenchmarkResult> BenchmarkSpectra();
BenchmarkResult BenchmarkTracks();
QVector<BenchmarkResult> BenchmarkSpectrumStream();
/// A recording: to disk against plain writing, while shown against not shown, and what fast and long runs lose.
QVector<BenchmarkResult> BenchmarkRecord();
/// A folder of pictures, until its first screen of thumbnails is painted.
QVector<BenchmarkResult> BenchmarkThumbnails();
/// The whole program: first frame on screen, peak memory, growth over 10,000 frames.
QVector<BenchmarkResult> BenchmarkStart();
