// SPDX-License-Identifier: GPL-3.0-or-later
#include "rulerbarlayoutitem.h"

#include "globalclass.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int TextSize = 12; // design pixels
constexpr double NoRange = -1.0;
constexpr double SmallestRange = 5.0;

bool IsFinite(const QRectF &rect)
{
    return qIsFinite(rect.x()) && qIsFinite(rect.y()) && qIsFinite(rect.width()) && qIsFinite(rect.height());
}

} // namespace

RulerBarLayoutItem::RulerBarLayoutItem(const QString &titleName, QWidget *parent)
    : ComponentItem(parent)
    , title(titleName)
{
}

void RulerBarLayoutItem::ApplyGeometry(QRect rect)
{
    if (itemSize != rect.size())
        update();
    itemSize = rect.size();
    setGeometry(rect);
    ComputeSteps();
    RebuildTicks();
}

void RulerBarLayoutItem::RebuildTicks()
{
    const RulerTicks before = ticks;
    BuildTicks();
    if (!(ticks == before))
        update();
}

void RulerBarLayoutItem::changedActualSize(QSize size)
{
    imageSize = size;
    UpdateImageLength();
}

void RulerBarLayoutItem::changedActualRect(QRectF rect, bool change)
{
    if (!IsFinite(rect))
        return;
    const QSize previous = visibleRect.size();
    visibleRect = rect.toRect();
    UpdateVisibleSpan();
    const bool sameSize =
        qFuzzyCompare(double(previous.width()), rect.width()) && qFuzzyCompare(double(previous.height()), rect.height());
    if (!sameSize || change)
        ComputeSteps();
    RebuildTicks();
}

void RulerBarLayoutItem::changedTitleName(QString titleName)
{
    title = titleName;
    update();
}

void RulerBarLayoutItem::changedShowValueRange(double min, double max)
{
    if (!qIsFinite(min) || !qIsFinite(max) || min < 0.0 || max < 0.0) {
        min = NoRange;
        max = NoRange;
    }
    rangeMax = max;
    rangeMin = std::min(min, max - SmallestRange);
    RebuildTicks();
}

void RulerBarLayoutItem::DrawContent(QPainter *painter)
{
    QPen pen(penColor);
    pen.setWidth(penWidth);
    painter->setPen(pen);
    painter->drawLines(ticks.lines);
    DrawLabels(painter);
    DrawTitle(painter);
}

void RulerBarLayoutItem::ComputeStepsFor(int itemLength)
{
    steps = ComputeRulerSteps(imageLength, visibleLength, itemLength, majorDivisions, minorDivisions);
}

RulerNumbers RulerBarLayoutItem::Numbers() const
{
    return ComputeRulerNumbers(steps.minorStep, imageLength, rangeMin, rangeMax, labelDecimals);
}

RulerPlace RulerBarLayoutItem::Place() const
{
    return {itemSize, visibleStart, zoom, majorTickLength, minorTickLength};
}

void RulerBarLayoutItem::SetTextFont(QPainter *painter)
{
    QFont font = painter->font();
    font.setPixelSize(GlobalClass::GetActualSize(TextSize));
    painter->setFont(font);
}
