// SPDX-License-Identifier: GPL-3.0-or-later
#include "sceneexposure.h"

#include <algorithm>
#include <cstring>

namespace {
constexpr int kPaddingBytes = 6;
constexpr uchar kPaddingValue = 0xA5;
} // namespace

SceneExposure::SceneExposure(int width, int height, int bitDepth, bool isColour)
{
    m_frame.width = m_frame.sensorWidth = width;
    m_frame.height = m_frame.sensorHeight = height;
    m_frame.bitDepth = bitDepth;
    m_frame.isColour = isColour;
    m_frame.strideBytes = RowBytes() + kPaddingBytes;
    m_frame.strideBytes += m_frame.strideBytes % 2; // 16-bit rows start at even addresses
}

void SceneExposure::Expose(Scene &scene)
{
    m_bytes.assign(size_t(m_frame.strideBytes) * size_t(m_frame.height), kPaddingValue);
    m_frame.pixels = m_bytes.data();
    scene.Fill(m_frame);
}

int SceneExposure::SampleAt(int x, int y, int channel) const
{
    const uchar *row = m_bytes.data() + size_t(y) * size_t(m_frame.strideBytes);
    if (m_frame.isColour)
        return row[3 * x + channel];
    if (m_frame.bitDepth <= 8)
        return row[x];
    quint16 sample;
    std::memcpy(&sample, row + 2 * x, sizeof sample);
    return sample;
}

double SceneExposure::Mean() const
{
    double sum = 0;
    for (int y = 0; y < m_frame.height; ++y) {
        for (int x = 0; x < m_frame.width; ++x) {
            for (int channel = 0; channel < Channels(); ++channel)
                sum += SampleAt(x, y, channel);
        }
    }
    return sum / (double(m_frame.width) * m_frame.height * Channels());
}

int SceneExposure::Maximum() const
{
    int maximum = 0;
    for (int y = 0; y < m_frame.height; ++y) {
        for (int x = 0; x < m_frame.width; ++x) {
            for (int channel = 0; channel < Channels(); ++channel)
                maximum = std::max(maximum, SampleAt(x, y, channel));
        }
    }
    return maximum;
}

bool SceneExposure::IsPaddingUntouched() const
{
    for (int y = 0; y < m_frame.height; ++y) {
        const auto row = m_bytes.begin() + qptrdiff(y) * m_frame.strideBytes;
        if (!std::all_of(row + RowBytes(), row + m_frame.strideBytes,
                         [](uchar byte) { return byte == kPaddingValue; }))
            return false;
    }
    return true;
}

int SceneExposure::RowBytes() const
{
    return m_frame.width * (m_frame.isColour ? 3 : m_frame.bitDepth > 8 ? 2 : 1);
}
