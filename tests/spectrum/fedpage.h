// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "drawareaitem.h"
#include "spectrumpieces.h"

#include <algorithm>
#include <vector>

/// What the widget paints, on black.
inline QImage Painted(QWidget *item)
{
    QImage image(item->size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    item->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/// A page in Physics mode that shows a frame of 2048 x 512, two pixels of it on one of the screen, and red curves.
class FedPage : public SpectrumPage
{
public:
    FedPage()
        : SpectrumPage(QSize(1164, 436), // 1024 x 256 for the image
                       [](FakeServices &services) {
                           services.frame.frameWidth = 2048;
                           services.frame.frameHeight = 512;
                           services.spectrumUI.displayModePhysics = true;
                           services.spectrumUI.lineColor = Qt::red;
                       })
        , row(Find<IntensityCurveHorizontal>())
        , column(Find<IntensityCurveVertical>())
    {
        ShowLive(QSize(2048, 512));
        CallLog::Clear();
    }

    /// How far from the upper (left) edge the curve lies in this column (row) of its widget; -1 without one.
    int RowAt(int x) const { return FirstRed(Painted(row), QPoint(x, 1), QPoint(0, 1)); }
    int ColumnAt(int y) const { return FirstRed(Painted(column), QPoint(1, y), QPoint(1, 0)); }
    QWidget *GrayRuler() const { return page->layout()->itemAt(1)->widget(); }
    QWidget *PixelRuler() const { return page->layout()->itemAt(4)->layout()->itemAt(0)->widget(); }
    CrossItem *Cross() const
    {
        for (QGraphicsItem *item : view->scene()->items()) {
            if (auto *cross = dynamic_cast<CrossItem *>(item))
                return cross;
        }
        return nullptr;
    }
    DrawAreaItem *Area() const
    {
        for (QGraphicsItem *item : view->scene()->items()) {
            if (auto *area = dynamic_cast<DrawAreaItem *>(item))
                return area;
        }
        return nullptr;
    }

    IntensityCurveHorizontal *row;
    IntensityCurveVertical *column;

private:
    static int FirstRed(const QImage &image, QPoint pos, const QPoint &step)
    {
        for (int way = 1; image.rect().contains(pos); pos += step, ++way) {
            if (image.pixelColor(pos) == QColor(Qt::red))
                return way;
        }
        return -1;
    }
};

/// A row whose samples are 100 from `from` to `to` and 0 elsewhere.
inline std::vector<int> Bump(int size, int from, int to)
{
    std::vector<int> samples(size_t(size), 0);
    std::fill(samples.begin() + from, samples.begin() + to, 100);
    return samples;
}
