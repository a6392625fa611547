// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "displayscale.h"
#include "fakeservices.h"
#include "spectrum2ddrawframebase.h"
#include "spectrumcurvepayload.h"
#include "spectrumlinepayload.h"

#include <QMutex>

#include <qcustomplot.h>

#include <functional>
#include <memory>
#include <vector>

using Values = std::vector<unsigned int>;

/// What the producer of lines hands over: it has just filled the fill buffer.
class LinePayload
{
public:
    explicit LinePayload(const Values &filled, const Values &shown = {});

    void *Param() { return &record; }

    Values first;
    Values second;
    QMutex lock;
    SpectrumLinePayload record{};
};

/// What the producer of row and column profiles hands over.
class CurvePayload
{
public:
    CurvePayload(const std::vector<int> &row, const std::vector<int> &column);

    void *Param() { return &record; }

    std::vector<int> row;
    std::vector<int> column;
    std::vector<int> oldRow;
    std::vector<int> oldColumn;
    QMutex lock;
    SpectrumCurvePayload record{};
};

/// The 2D page, 600 x 400, among its services, in 2D mode and wide enough to draw; frames are 10 x 6.
class PlotPage
{
public:
    using Preparation = std::function<void(FakeServices &)>;

    explicit PlotPage(const Preparation &prepare = {});

    /// Shows the page and waits until the plot has its place.
    bool Show();
    void SetMode2D();
    void SetMode2DPeak();
    void SetOtherMode();
    /// A new FVB line, as many values as the frame is then wide.
    void DrawLine(const Values &values);
    /// A mouse event at a place of the plot.
    void Send(QEvent::Type type, const QPointF &pos) const;
    /// Where an x of the plot is, in the middle of its height.
    QPoint PixelOf(double x) const;
    /// With the left button from one x to another.
    void Drag(double from, double to) const;
    void Drag(const QPoint &from, const QPoint &to) const;

    QVector<double> Keys() const;
    QVector<double> DrawnValues() const;
    QCPRange X() const { return plot->xAxis->range(); }
    QCPRange Y() const { return plot->yAxis->range(); }
    /// Items of one class, in the order they were made.
    template <class Item>
    QList<Item *> Items() const
    {
        QList<Item *> items;
        for (int i = 0; i < plot->itemCount(); ++i) {
            if (auto *item = qobject_cast<Item *>(plot->item(i)))
                items << item;
        }
        return items;
    }

    DisplayScale scale{ 1.0 };
    FakeServices services;
    std::unique_ptr<Spectrum2DDrawFrameBase> page;
    QCustomPlot *plot = nullptr;
};

/// "lower..upper", for a comparison that tells both when it fails.
QString Text(const QCPRange &range);
