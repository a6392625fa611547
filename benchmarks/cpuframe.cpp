// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarkframes.h"
#include "benchmarks.h"
#include "drawviewbase.h"
#include "moduleview.h"

#include <QApplication>
#include <QGraphicsView>

namespace {

constexpr double CpuFrameBound = 1.2;

/// The least that Qt can do: a graphics view of the host's size whose scene has the frame as its
/// background brush.
class BareView
{
public:
    explicit BareView(int side)
    {
        m_view.setScene(&m_scene);
        m_view.setFrameShape(QFrame::NoFrame);
        m_view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_scene.setSceneRect(0, 0, side, side);
        m_view.setFixedSize(ModuleView::HostSize);
        m_view.show();
    }

    void SetZoom(double zoom) { m_view.setTransform(QTransform::fromScale(zoom, zoom)); }

    void Show(const QImage &frame)
    {
        m_scene.setBackgroundBrush(QBrush(QPixmap::fromImage(frame, Qt::NoFormatConversion)));
        QApplication::processEvents();
    }

private:
    QGraphicsScene m_scene;
    QGraphicsView m_view;
};

} // namespace

QVector<BenchmarkResult> BenchmarkCpuFrame()
{
    QVector<BenchmarkResult> results;
    for (int side : {2048, 4096}) {
        const QVector<QImage> frames = RandomFrames(QSize(side, side), QImage::Format_Grayscale8);
        BareView bare(side);
        ModuleView module(ModuleView::Drawing::Cpu);
        module.Show(frames.first());
        for (double zoom : {0.0, 1.0, 8.0, 32.0}) {
            if (zoom > 0.0)
                module.View()->slotSetScaleFactor(zoom);
            else
                module.View()->slotZoomFit();
            bare.SetZoom(module.View()->transform().m11());
            QApplication::processEvents();
            int n = 0;
            const QString name = QString("live frame, CPU, %1 x %1, %2")
                                     .arg(side)
                                     .arg(zoom > 0.0 ? QString("zoom %1").arg(zoom) : "fit");
            results << MeasureRatio(
                name, CpuFrameBound, 60, [&] { bare.Show(frames.at(n++ % frames.size())); },
                [&] { module.Show(frames.at(n++ % frames.size())); });
        }
    }
    return results;
}
