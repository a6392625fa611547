// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineF>
#include <QPoint>
#include <QSize>

#include <optional>

// Where the texts of a ruler begin (left end of the baseline), in widget pixels.

/// Centred under the tick; none when the text would reach over the widget's right edge.
std::optional<QPoint> HorizontalLabelOrigin(const QLineF &tick, double textWidth, double lineHeight, int widgetWidth);
/// Left of the tick; none when the text would reach over the widget's upper or lower edge.
std::optional<QPoint> VerticalLabelOrigin(const QLineF &tick, double textWidth, double lineHeight, int widgetHeight);

QPoint HorizontalTitleOrigin(QSize itemSize, double textWidth, double lineHeight);
/// For a painter turned by 270 degrees.
QPoint VerticalTitleOrigin(QSize itemSize, double textWidth, double lineHeight);
