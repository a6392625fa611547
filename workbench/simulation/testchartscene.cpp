// SPDX-License-Identifier: GPL-3.0-or-later
#include "testchartscene.h"

#include <algorithm>
#include <cstring>

namespace {
constexpr int kPatchesPerSide = 8;
constexpr int kLastPatch = kPatchesPerSide * kPatchesPerSide - 1;

int PatchNumber(int x, int y, int width, int height)
{
    const int column = int(qint64(x) * kPatchesPerSide / width);
    const int row = int(qint64(y) * kPatchesPerSide / height);
    return row * kPatchesPerSide + column;
}

/// First pixel after the patch that holds `position`, along an axis of `length` pixels.
int PatchEnd(int position, int length)
{
    const qint64 next = qint64(position) * kPatchesPerSide / length + 1;
    return int((next * length + kPatchesPerSide - 1) / kPatchesPerSide);
}

template <typename Sample>
void FillMonoRow(const SceneFrame &frame, int y, Sample *row)
{
    int x = 0;
    while (x < frame.width) {
        const int sensorX = frame.offsetX + x;
        const int end = std::min(frame.width, PatchEnd(sensorX, frame.sensorWidth) - frame.offsetX);
        // The marker differs from its patch; what follows it is taken from the next pixel on.
        const int flatEnd = (sensorX == 0 && y == 0) ? x + 1 : end;
        const quint16 value =
            TestChartScene::ExpectedValue(sensorX, y, frame.sensorWidth, frame.sensorHeight, frame.bitDepth);
        std::fill(row + x, row + flatEnd, Sample(value));
        x = flatEnd;
    }
}

void FillColourRow(const SceneFrame &frame, int y, uchar *row)
{
    for (int x = 0; x < frame.width; ++x) {
        const QRgb colour =
            TestChartScene::ExpectedColour(frame.offsetX + x, y, frame.sensorWidth, frame.sensorHeight);
        *row++ = uchar(qRed(colour));
        *row++ = uchar(qGreen(colour));
        *row++ = uchar(qBlue(colour));
    }
}

void FillRow(const SceneFrame &frame, int y, uchar *row)
{
    if (frame.isColour)
        FillColourRow(frame, y, row);
    else if (frame.bitDepth > 8)
        FillMonoRow(frame, y, reinterpret_cast<quint16 *>(row));
    else
        FillMonoRow(frame, y, row);
}

size_t RowBytes(const SceneFrame &frame)
{
    return size_t(frame.width) * (frame.isColour ? 3 : frame.bitDepth > 8 ? 2 : 1);
}
} // namespace

QString TestChartScene::SceneName() { return QStringLiteral("testchart"); }

QString TestChartScene::Name() const { return SceneName(); }

quint16 TestChartScene::ExpectedValue(int x, int y, int width, int height, int bitDepth)
{
    const int fullScale = (1 << bitDepth) - 1;
    if (x == 0 && y == 0)
        return quint16(fullScale);
    return quint16((PatchNumber(x, y, width, height) * fullScale + kLastPatch / 2) / kLastPatch);
}

QRgb TestChartScene::ExpectedColour(int x, int y, int width, int height)
{
    if (x == 0 && y == 0)
        return qRgb(255, 255, 255);
    const int patch = PatchNumber(x, y, width, height);
    const int level = ((patch + 1) * 255 + (kLastPatch + 1) / 2) / (kLastPatch + 1);
    switch (patch % kPatchesPerSide / 2) {
    case 0:
        return qRgb(level, 0, 0);
    case 1:
        return qRgb(0, level, 0);
    case 2:
        return qRgb(0, 0, level);
    default:
        return qRgb(level, level, level);
    }
}

void TestChartScene::Fill(const SceneFrame &frame)
{
    const uchar *previous = nullptr;
    int patchEnd = 0;
    for (int row = 0; row < frame.height; ++row) {
        const int y = frame.offsetY + row;
        uchar *pixels = frame.pixels + qptrdiff(row) * frame.strideBytes;
        // The first sensor row carries the corner marker, so it is not a model for the next one.
        if (previous && y < patchEnd && y > 1)
            std::memcpy(pixels, previous, RowBytes(frame));
        else
            FillRow(frame, y, pixels);
        previous = pixels;
        patchEnd = PatchEnd(y, frame.sensorHeight);
    }
}
