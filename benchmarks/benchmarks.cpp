// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks.h"

QVector<BenchmarkGroup> BenchmarkGroups()
{
    return {{"cpuframe", BenchmarkCpuFrame}, {"gpuframe", BenchmarkGpuFrame}, {"zoom", BenchmarkZoom},
            {"levels", BenchmarkLevels},     {"stack", BenchmarkStack},       {"items", BenchmarkItems},
            {"profiles", BenchmarkProfiles}, {"spectrum", BenchmarkSpectrumFrame}, {"spectra", BenchmarkSpectra},
            {"record", BenchmarkRecord},     {"thumbnails", BenchmarkThumbnails},
            {"start", BenchmarkStart}};
}
