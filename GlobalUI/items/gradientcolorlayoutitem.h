// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "componentwithbordersitem.h"

#include <QRectF>
#include <QVector>

/// The pseudo-colour bar: a strip of flat cells that shows the palette of the spectrum image.
class GradientColorLayoutItem : public ComponentWithBordersItem
{
    Q_OBJECT

public:
    /// Starts with 256 greys, and without cells until it is given a size.
    explicit GradientColorLayoutItem(QWidget *parent);

public slots:
    /// Index 0 is the low end. An empty palette shows the border alone.
    void changedPalette(QVector<QColor> pal);

signals:
    /// The palette that is shown now.
    void changeColors(QVector<QColor> color);

protected:
    void OnItemSizeChanged(QSize size) override;
    void DrawContent(QPainter *painter) override;

    QVector<QRectF> cells;
    QVector<QColor> colors;
};
