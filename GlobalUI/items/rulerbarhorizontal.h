// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rulerbarlayoutitem.h"

/// The ruler along the columns: ticks hang from the top edge, numbers below them, title at the bottom.
class RulerBarHorizontal : public RulerBarLayoutItem
{
    Q_OBJECT

public:
    RulerBarHorizontal(QString title, QWidget *parent);

protected:
    void UpdateImageLength() override;
    void UpdateVisibleSpan() override;
    void BuildTicks() override;
    void ComputeSteps() override;
    void DrawTitle(QPainter *painter) override;
    void DrawLabels(QPainter *painter) override;
};
