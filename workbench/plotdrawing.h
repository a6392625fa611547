// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QColor>
#include <QPointF>
#include <QPolygonF>
#include <QSizeF>
#include <QString>

#include <optional>
#include <vector>

class QFont;
class QPainter;

/// What is seen of a 3D plot, as lines and texts. Lengths are pixels of the plot's window, from its upper left corner. A value.
struct PlotDrawing
{
    struct Stroke
    {
        QPolygonF points;
        QColor color;
        double width;
    };

    struct Label
    {
        QString text;
        QPointF anchor;
        Qt::Alignment side; ///< of the text that the anchor is at
        QColor color;
        double pointSize;
    };

    QSizeF size;
    QColor background;
    std::vector<Stroke> strokes;
    std::vector<Label> labels;

    /// What the vector writer of the 3D plots says in its EPS, with texts of its own; nothing when that is not whole. That
    /// file itself is of no use to a person: it lies on its side, and its texts are in Courier and without umlauts.
    static std::optional<PlotDrawing> FromEps(const QByteArray &eps);

    /// Texts in `font`, for a screen of so many dots per inch; the size is that of each label.
    void Paint(QPainter *painter, const QFont &font, double dotsPerInch) const;
};
