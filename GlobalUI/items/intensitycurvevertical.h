// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "intensitycurvelayoutitem.h"

/// One image column along the height, intensity to the right.
class IntensityCurveVertical : public IntensityCurveLayoutItem
{
    Q_OBJECT

public:
    explicit IntensityCurveVertical(QWidget *parent);

public slots:
    /// Item pixels; its y counts.
    void changedAnchorPosition(QPointF position);

protected:
    void OnItemSizeChanged(QSize size) override;
    void BuildCurve() override;
    void DragTo(QPointF pos) override;
    void DrawAnchor(QPainter *painter) override;
    void MapToAxis(QPointF in, QPointF &out) override;

    int anchor = 0; ///< item pixels
};
