// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumonscreen.h"

#include <QApplication>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <cmath>

SpectrumOnScreen::SpectrumOnScreen(const QWidget *window)
    : m_window(window)
{
}

bool SpectrumOnScreen::WaitForImage()
{
    return QTest::qWaitFor([&] { return Image() != nullptr; });
}

QGraphicsView *SpectrumOnScreen::Image() const
{
    return qobject_cast<QGraphicsView *>(Aid("SpectrumDrawViewBase"));
}

QWidget *SpectrumOnScreen::Aid(const char *className) const
{
    for (QWidget *widget : m_window->findChildren<QWidget *>()) {
        if (widget->inherits(className) && widget->isVisible())
            return widget;
    }
    return nullptr;
}

int SpectrumOnScreen::Aids(const char *className) const
{
    int count = 0;
    for (const QWidget *widget : m_window->findChildren<QWidget *>())
        count += widget->inherits(className) && widget->isVisible();
    return count;
}

void SpectrumOnScreen::Drag(const QPointF &from, const QPointF &to) const
{
    QGraphicsView *image = Image();
    QWidget *viewport = image->viewport();
    const QPoint first = image->mapFromScene(from);
    const QPoint last = image->mapFromScene(to);
    QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, first);
    QMouseEvent move(QEvent::MouseMove, last, viewport->mapToGlobal(last), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(viewport, &move);
    QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, last);
}

bool SpectrumOnScreen::IsNear(const QPointF &place, const QPointF &expected) const
{
    const double pixel = 1.0 / Image()->transform().m11() + 1.0;
    return std::abs(place.x() - expected.x()) <= 2 * pixel && std::abs(place.y() - expected.y()) <= 2 * pixel;
}

bool SpectrumOnScreen::IsSeen(const QVector<double> &part) const
{
    const QGraphicsView *image = Image();
    const QWidget *frame = image->parentWidget();
    const double scale = image->transform().m11();
    const QPointF first = QPointF(-image->pos()) / scale;
    const QPointF last = first + QPointF(frame->width(), frame->height()) / scale;
    const QVector<double> seen{ first.x(), last.x(), first.y(), last.y() };
    for (int side = 0; side < 4; ++side) {
        if (std::abs(part.value(side) - seen.at(side)) > 2.0 / scale)
            return false;
    }
    return part.size() == 4;
}

int SpectrumOnScreen::RowCurveAt(double column, const QColor &colour) const
{
    const QGraphicsView *image = Image();
    const QWidget *curve = Aid("IntensityCurveHorizontal");
    if (!curve)
        return -1;
    // The curve stands below what is seen of the image, as wide as it.
    const int x = image->mapFromScene(QPointF(column, 0)).x() + image->x();
    const QPoint top = curve->mapToGlobal(QPoint(x, 0));
    const QImage line =
        QGuiApplication::primaryScreen()->grabWindow(0, top.x() - 1, top.y(), 3, curve->height()).toImage();
    for (int y = 0; y < line.height(); ++y) {
        for (int beside = 0; beside < line.width(); ++beside) {
            if (line.pixelColor(beside, y) == colour)
                return y;
        }
    }
    return -1;
}

QVector<double> Newest(QSignalSpy *spy)
{
    QVector<double> numbers;
    if (!spy->isEmpty()) {
        for (const QVariant &argument : spy->last())
            numbers << argument.toDouble();
    }
    spy->clear();
    return numbers;
}
