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
/// 16-bit samples to display samples through levels, against memcpy of the frame.
QVector<BenchmarkResult> BenchmarkLevels();
/// The whole program: first frame on screen, peak memory, growth over 10,000 frames.
QVector<BenchmarkResult> BenchmarkStart();
