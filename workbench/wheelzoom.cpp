// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheelzoom.h"

#include "spectrumuimanager.h"

#include <qcustomplot.h>

namespace {

/// Beside the curve and its counts the wheel does nothing.
bool IsZoom(const QCustomPlot &plot, const QWheelEvent &event)
{
    const QPointF place = event.position();
    return event.angleDelta().y() != 0
           && (plot.axisRect()->rect().contains(place.toPoint()) || plot.yAxis->selectTest(place, false) >= 0);
}

} // namespace

WheelZoom::WheelZoom(SpectrumUIManager *settings, QWidget *centre, QObject *parent)
    : QObject(parent)
{
    for (const QCustomPlot *plot : centre->findChildren<QCustomPlot *>()) {
        connect(plot, &QCustomPlot::mouseWheel, this, [settings, plot](const QWheelEvent *event) {
            if (IsZoom(*plot, *event))
                settings->SetZoomAutoFlag(false);
        });
    }
}
