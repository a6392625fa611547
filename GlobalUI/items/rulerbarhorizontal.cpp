// SPDX-License-Identifier: GPL-3.0-or-later
#include "rulerbarhorizontal.h"

#include "rulertexts.h"

#include <QFontMetricsF>
#include <QPainter>

RulerBarHorizontal::RulerBarHorizontal(QString titleName, QWidget *parent)
    : RulerBarLayoutItem(titleName, parent)
{
    setStyleSheet("background-color:rgb(255,0,0)");
}

void RulerBarHorizontal::UpdateImageLength()
{
    imageLength = axesSwapped ? imageSize.height() : imageSize.width();
}

void RulerBarHorizontal::UpdateVisibleSpan()
{
    visibleStart = axesSwapped ? visibleRect.top() : visibleRect.left();
    visibleLength = axesSwapped ? visibleRect.height() : visibleRect.width();
}

void RulerBarHorizontal::BuildTicks()
{
    BuildHorizontalTicks(steps, Numbers(), Place(), &ticks);
}

void RulerBarHorizontal::ComputeSteps()
{
    ComputeStepsFor(itemSize.width());
}

void RulerBarHorizontal::DrawTitle(QPainter *painter)
{
    if (title.isEmpty())
        return;
    SetTextFont(painter);
    const QFontMetricsF metrics(painter->font());
    painter->drawText(HorizontalTitleOrigin(itemSize, metrics.horizontalAdvance(title), metrics.height()), title);
}

void RulerBarHorizontal::DrawLabels(QPainter *painter)
{
    SetTextFont(painter);
    const QFontMetricsF metrics(painter->font());
    for (int i = 0; i < ticks.majorLines.size(); ++i) {
        const QString &label = ticks.labels.at(i);
        const auto origin = HorizontalLabelOrigin(ticks.majorLines.at(i), metrics.horizontalAdvance(label),
                                                  metrics.height(), width());
        if (!origin)
            return; // nor is there room for the numbers after it
        painter->drawText(*origin, label);
    }
}
