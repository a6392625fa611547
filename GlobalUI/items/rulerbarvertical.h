// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rulerbarlayoutitem.h"

/// The ruler along the rows: ticks come in from the right edge, numbers left of them, the title reads
/// from bottom to top.
class RulerBarVertical : public RulerBarLayoutItem
{
    Q_OBJECT

public:
    /// `bottomUp`: ticks are laid from the bottom edge upward.
    RulerBarVertical(QString title, QWidget *parent, bool bottomUp);

protected:
    void UpdateImageLength() override;
    void UpdateVisibleSpan() override;
    void BuildTicks() override;
    void ComputeSteps() override;
    void DrawTitle(QPainter *painter) override;
    void DrawLabels(QPainter *painter) override;

    bool bottomUp;
};
