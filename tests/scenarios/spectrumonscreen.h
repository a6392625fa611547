// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>
#include <QString>
#include <QVector>

class QColor;
class QGraphicsView;
class QSignalSpy;
class QWidget;

/// The page with the spectrum image that is seen in a window, live or of a file, and the mouse over it.
class SpectrumOnScreen
{
public:
    /// `window` is borrowed.
    explicit SpectrumOnScreen(const QWidget *window);

    /// Waits until the page is seen.
    bool WaitForImage();
    QGraphicsView *Image() const;
    /// Those of the page that can be seen; null and 0 without one.
    QWidget *Aid(const char *className) const;
    int Aids(const char *className) const;

    /// With the left button, in picture pixels that are seen; a way of no length is a click.
    void Drag(const QPointF &from, const QPointF &to) const;
    /// Within a pixel of the screen.
    bool IsNear(const QPointF &place, const QPointF &expected) const;
    /// The frame shows this part of the picture: left, right, top, bottom; within a pixel of the screen.
    bool IsSeen(const QVector<double> &part) const;
    /// How many pixels below the upper edge of the row curve its first pixel of that colour is on the screen, at a column
    /// of the picture; -1 where there is none.
    int RowCurveAt(double column, const QColor &colour) const;

private:
    const QWidget *m_window;
};

/// The numbers that came with the newest signal; clears the spy.
QVector<double> Newest(QSignalSpy *spy);
