// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "intensitycurvelayoutitem.h"

/// One image row along the width, intensity upward.
class IntensityCurveHorizontal : public IntensityCurveLayoutItem
{
    Q_OBJECT

public:
    explicit IntensityCurveHorizontal(QWidget *parent);

public slots:
    /// Item pixels; its x counts.
    void changedAnchorPosition(QPointF position);

protected:
    void OnItemSizeChanged(QSize size) override;
    void BuildCurve() override;
    void DragTo(QPointF pos) override;
    void DrawAnchor(QPainter *painter) override;
    void MapToAxis(QPointF in, QPointF &out) override;

    int anchor = 0; ///< item pixels
};
