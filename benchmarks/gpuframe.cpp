// SPDX-License-Identifier: GPL-3.0-or-later
#include "baretextureview.h"
#include "benchmarkframes.h"
#include "benchmarks.h"
#include "drawviewbase.h"
#include "moduleview.h"

#include <QApplication>

namespace {

constexpr double GpuFrameBound = 1.1;
constexpr int Rounds = 60;

BenchmarkResult MeasureGpuFrame(int side, QImage::Format format, const QString &kind)
{
    const QVector<QImage> frames = RandomFrames(QSize(side, side), format);
    ModuleView module(ModuleView::Drawing::Gpu);
    module.Show(frames.first());
    QApplication::processEvents();

    // A window and a viewport of the module's size, so that both pay the same for bringing it on the screen.
    QWidget window;
    window.setFixedSize(ModuleView::HostSize);
    auto *bare = new BareTextureView(&window);
    const QSize size = module.View()->viewport()->size();
    bare->setGeometry(QRect(QPoint((window.width() - size.width()) / 2, 0), size));
    window.show();
    bare->Show(frames.first());

    int n = 0;
    return MeasureRatio(
        QString("live frame, GPU, %1 x %1, %2").arg(side).arg(kind), GpuFrameBound, Rounds,
        [&] { bare->Show(frames.at(n++ % frames.size())); },
        [&] { module.Show(frames.at(n++ % frames.size())); });
}

} // namespace

QVector<BenchmarkResult> BenchmarkGpuFrame()
{
    QVector<BenchmarkResult> results;
    for (int side : {2048, 4096}) {
        results << MeasureGpuFrame(side, QImage::Format_Grayscale8, "mono");
        results << MeasureGpuFrame(side, QImage::Format_RGB888, "RGB");
    }
    return results;
}
