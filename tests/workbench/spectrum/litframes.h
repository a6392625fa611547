// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spectrumpipeline.h"

#include <QMutex>
#include <QObject>

#include <cmath>

/// Frames with a line of light for the spectrum's pipeline, and a plot that takes what it delivers.
namespace LitFrames {

constexpr int width = 300;
constexpr int height = 80;

/// Every sample 100, rows 20 to 39 a line of light at column 150 above it.
inline CameraFrame Frame(quint64 id, int lightTop = 20, int lightBottom = 40)
{
    auto samples = std::make_shared<std::vector<quint16>>(size_t(width) * height, 100);
    for (int y = lightTop; y < lightBottom; ++y) {
        for (int x = 140; x <= 160; ++x)
            (*samples)[size_t(y) * width + size_t(x)] = quint16(100 + 5000 * std::exp(-0.5 * std::pow((x - 150) / 2.5, 2)) + (x + y) % 3);
    }
    CameraFrame frame;
    frame.pixels = std::shared_ptr<const uchar>(samples, reinterpret_cast<const uchar *>(samples->data()));
    frame.width = width;
    frame.height = height;
    frame.strideBytes = 2 * width;
    frame.layout = PixelLayout::Mono16;
    frame.frameId = id;
    frame.hostTimeNs = qint64(id) * 1000000000;
    return frame;
}

inline SpectrumRecipe Binning(BinnedRows rows = BinnedRows::All)
{
    SpectrumRecipe recipe;
    recipe.isBinning = true;
    recipe.rows = rows;
    return recipe;
}

/// What a plot does: exchanges the buffers in an event of its own.
class Plot : public QObject
{
public:
    Plot(SpectrumPipeline *pipeline, void (SpectrumManager::*signal)(void *), int count)
    {
        connect(pipeline, signal, this, [this, count](void *param) {
            auto *payload = static_cast<SpectrumLinePayload *>(param);
            {
                const QMutexLocker lock(payload->lock);
                std::swap(payload->fill, payload->show);
            }
            shown.clear();
            if (!payload->show)
                return; // there are no lines any more
            shown = QVector<unsigned>(payload->show, payload->show + count);
            least = payload->minimum;
            most = payload->maximum;
            ++times;
        }, Qt::QueuedConnection);
    }

    QVector<unsigned> shown;
    int least = 0;
    int most = 0;
    int times = 0;
};

} // namespace LitFrames
