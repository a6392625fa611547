// SPDX-License-Identifier: GPL-3.0-or-later
#include "rulerbarvertical.h"

#include "rulertexts.h"

#include <QFontMetricsF>
#include <QPainter>

namespace {

constexpr double BottomToTop = 270.0; // degrees

} // namespace

RulerBarVertical::RulerBarVertical(QString titleName, QWidget *parent, bool fromBottom)
    : RulerBarLayoutItem(titleName, parent)
    , bottomUp(fromBottom)
{
}

void RulerBarVertical::UpdateImageLength()
{
    imageLength = axesSwapped ? imageSize.width() : imageSize.height();
}

void RulerBarVertical::UpdateVisibleSpan()
{
    visibleStart = axesSwapped ? visibleRect.left() : visibleRect.top();
    visibleLength = axesSwapped ? visibleRect.width() : visibleRect.height();
}

void RulerBarVertical::BuildTicks()
{
    if (ticksHidden)
        ticks.Clear();
    else
        BuildVerticalTicks(steps, Numbers(), Place(), bottomUp, &ticks);
}

void RulerBarVertical::ComputeSteps()
{
    ComputeStepsFor(itemSize.height());
}

void RulerBarVertical::DrawTitle(QPainter *painter)
{
    if (title.isEmpty())
        return;
    SetTextFont(painter);
    const QFontMetricsF metrics(painter->font());
    painter->save();
    painter->rotate(BottomToTop);
    painter->drawText(VerticalTitleOrigin(itemSize, metrics.horizontalAdvance(title), metrics.height()), title);
    painter->restore();
}

void RulerBarVertical::DrawLabels(QPainter *painter)
{
    SetTextFont(painter);
    const QFontMetricsF metrics(painter->font());
    for (int i = 0; i < ticks.majorLines.size(); ++i) {
        const QString &label = ticks.labels.at(i);
        const auto origin = VerticalLabelOrigin(ticks.majorLines.at(i), metrics.horizontalAdvance(label),
                                                metrics.height(), height());
        if (origin)
            painter->drawText(*origin, label);
    }
}
