// SPDX-License-Identifier: GPL-3.0-or-later
#include "speregions.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(SpeRegions)
};

using Regions = QVector<SpeSensorRegion>;

/// A sensor reads each of its pixels once.
bool MakeSense(const Regions &regions, QString *reason)
{
    for (int i = 0; i < regions.size(); ++i) {
        if (regions[i].pixels.isEmpty() || regions[i].Size().isEmpty()) {
            *reason = Text::tr("what it says of region %1 makes no sense").arg(i + 1);
            return false;
        }
        for (int k = 0; k < i; ++k) {
            if (!regions[i].pixels.intersects(regions[k].pixels))
                continue;
            *reason = Text::tr("it says that regions %1 and %2 overlap").arg(k + 1).arg(i + 1);
            return false;
        }
    }
    return true;
}

/// Below each other in their order; empty unless that fills the rectangle.
QVector<QRect> PlacesBelowEachOther(const Regions &regions, const QSize &rectangle)
{
    QVector<QRect> places;
    int row = 0;
    for (const SpeSensorRegion &region : regions) {
        if (region.Size().width() != rectangle.width())
            return {};
        places << QRect(QPoint(0, row), region.Size());
        row += region.Size().height();
    }
    return row == rectangle.height() ? places : QVector<QRect>();
}

/// With the filler between them; empty unless the rectangle is the one around all of them.
QVector<QRect> PlacesAsOnSensor(const Regions &regions, const QSize &rectangle)
{
    const QSize binning = regions.first().binning;
    QRect around;
    for (const SpeSensorRegion &region : regions)
        around |= region.pixels;
    if (SpeSensorRegion{ around, binning }.Size() != rectangle)
        return {};
    QVector<QRect> places;
    for (const SpeSensorRegion &region : regions) {
        const QPoint offset = region.pixels.topLeft() - around.topLeft();
        if (region.binning != binning || offset.x() % binning.width() != 0
            || offset.y() % binning.height() != 0)
            return {};
        places << QRect(QPoint(offset.x() / binning.width(), offset.y() / binning.height()), region.Size());
    }
    return places;
}

bool GoDownTheSensor(const Regions &regions)
{
    for (int i = 1; i < regions.size(); ++i) {
        if (regions[i].pixels.top() <= regions[i - 1].pixels.bottom())
            return false;
    }
    return true;
}

} // namespace

QString SpeSensorRegion::Text() const
{
    return QString("columns %1 to %2, rows %3 to %4 of the sensor, binned by %5 x %6")
        .arg(pixels.left())
        .arg(pixels.right())
        .arg(pixels.top())
        .arg(pixels.bottom())
        .arg(binning.width())
        .arg(binning.height());
}

QString SpeRegionKey(int region, int regions)
{
    return regions == 1 ? QString("Region") : QString("Region%1").arg(region + 1);
}

bool IsSpeRegionKey(const QString &key)
{
    static const QRegularExpression pattern("^Region[0-9]*$");
    return pattern.match(key).hasMatch();
}

QVector<QRect> PlaceSpeRegions(const QVector<SpeSensorRegion> &regions, const QSize &rectangle,
                               QString *reason)
{
    if (!MakeSense(regions, reason))
        return {};
    const QVector<QRect> below = PlacesBelowEachOther(regions, rectangle);
    const QVector<QRect> asOnSensor = PlacesAsOnSensor(regions, rectangle);
    if (below.isEmpty() && asOnSensor.isEmpty()) {
        *reason = Text::tr("they neither fill its frames of %1 x %2 pixels nor lie in them as on the sensor")
                      .arg(rectangle.width())
                      .arg(rectangle.height());
        return {};
    }
    if (!below.isEmpty() && below != asOnSensor && !GoDownTheSensor(regions)) {
        *reason = Text::tr("they may lie in the order of their numbers or in that of the sensor");
        return {};
    }
    return below.isEmpty() ? asOnSensor : below;
}
