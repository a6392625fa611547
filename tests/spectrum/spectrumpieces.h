// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "crossitem.h"
#include "gradientcolorlayoutitem.h"
#include "intensitycurvehorizontal.h"
#include "intensitycurvevertical.h"
#include "rulerbarhorizontal.h"
#include "rulerbarvertical.h"
#include "spectrumpage.h"

#include <QGraphicsScene>
#include <QVBoxLayout>

/// The pieces of the page.
struct Pieces
{
    explicit Pieces(const SpectrumPage &p)
        : colorBar(p.page->findChild<GradientColorLayoutItem *>())
        , verticalRuler(p.page->findChild<RulerBarVertical *>())
        , verticalCurve(p.page->findChild<IntensityCurveVertical *>())
        , horizontalCurve(p.page->findChild<IntensityCurveHorizontal *>())
        , layout(qobject_cast<QVBoxLayout *>(p.page->layout()))
        , grayRuler(qobject_cast<RulerBarHorizontal *>(layout->itemAt(1)->widget()))
        , pixelRuler(qobject_cast<RulerBarHorizontal *>(layout->itemAt(4)->layout()->itemAt(0)->widget()))
        , cross(dynamic_cast<CrossItem *>(p.view->scene()->items().value(0)))
        , frame(p.frame)
    {
    }

    /// Axes, curves, colour card, frame and cross, as they are shown.
    QString Shown() const
    {
        QStringList shown;
        const auto add = [&shown](const QWidget *first, const QWidget *second, const QString &name) {
            if (first->isVisibleTo(first->parentWidget()) && second->isVisibleTo(second->parentWidget()))
                shown << name;
            else if (!first->isHidden() || !second->isHidden())
                shown << "half of " + name;
        };
        add(verticalRuler, pixelRuler, "axes");
        add(verticalCurve, horizontalCurve, "curves");
        add(grayRuler, colorBar, "card");
        if (!frame->isHidden() && frame->isEnabled())
            shown << "frame";
        if (cross->isVisible())
            shown << "cross";
        return shown.join(", ");
    }

    /// What stands left of the ruler (row 4) or the curve (row 5) below the image.
    int LeftMargin(int row) const { return layout->itemAt(row)->layout()->contentsMargins().left(); }

    GradientColorLayoutItem *colorBar;
    RulerBarVertical *verticalRuler;
    IntensityCurveVertical *verticalCurve;
    IntensityCurveHorizontal *horizontalCurve;
    QVBoxLayout *layout;
    RulerBarHorizontal *grayRuler;
    RulerBarHorizontal *pixelRuler;
    CrossItem *cross;
    SpectrumDrawFrameBase *frame;
};
