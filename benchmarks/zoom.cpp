// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarkframes.h"
#include "benchmarks.h"
#include "drawviewbase.h"
#include "moduleview.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

namespace {

constexpr double OneFrameMs = 1000.0 / 60.0;
constexpr int Side = 4096;
constexpr int WheelNotch = 120;
constexpr int StepsUpTheLadder = 5;
constexpr int Rounds = 100;
constexpr double DragZoom = 1.0;

/// The wheel over a place off the middle, until the view is painted.
void Wheel(DrawViewBase *view, int delta)
{
    const QPoint place = view->viewport()->rect().center() / 2;
    QWheelEvent event(place, view->viewport()->mapToGlobal(place), QPoint(), QPoint(0, delta), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view->viewport(), &event);
    QApplication::processEvents();
}

void Mouse(DrawViewBase *view, QEvent::Type type, const QPoint &screenPos)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, view->viewport()->mapFromGlobal(screenPos), screenPos, button, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &event);
    QApplication::processEvents();
}

QVector<BenchmarkResult> MeasureZoom(ModuleView::Drawing drawing, const QString &name)
{
    const QImage frame = RandomFrames(QSize(Side, Side), QImage::Format_Grayscale8).first();
    ModuleView module(drawing);
    DrawViewBase *view = module.View();
    module.Show(frame);

    int step = 0;
    QVector<BenchmarkResult> results;
    results << MeasureTime(QString("wheel zoom, %1, %2 x %2").arg(name).arg(Side), OneFrameMs, Rounds, [&] {
        const bool isUp = step++ / StepsUpTheLadder % 2 == 0;
        Wheel(view, isUp ? WheelNotch : -WheelNotch);
    });

    view->slotSetScaleFactor(DragZoom);
    QApplication::processEvents();
    const QPoint start = view->viewport()->mapToGlobal(QPoint(400, 300));
    Mouse(view, QEvent::MouseButtonPress, start);
    int moved = 0;
    results << MeasureTime(QString("drag, %1, %2 x %2").arg(name).arg(Side), OneFrameMs, Rounds, [&] {
        ++moved;
        Mouse(view, QEvent::MouseMove, start - QPoint(3 * moved, 2 * moved));
    });
    Mouse(view, QEvent::MouseButtonRelease, start);
    return results;
}

} // namespace

QVector<BenchmarkResult> BenchmarkZoom()
{
    return MeasureZoom(ModuleView::Drawing::Cpu, "CPU") + MeasureZoom(ModuleView::Drawing::Gpu, "GPU");
}
