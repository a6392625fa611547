// SPDX-License-Identifier: GPL-3.0-or-later
#include "plotpage.h"

#include <QTest>

LinePayload::LinePayload(const Values &filled, const Values &shown)
    : first(filled)
    , second(shown)
{
    second.resize(first.size());
    record.fill = first.data();
    record.show = second.data();
    record.lock = &lock;
}

CurvePayload::CurvePayload(const std::vector<int> &newRow, const std::vector<int> &newColumn)
    : row(newRow)
    , column(newColumn)
    , oldRow(newRow.size())
    , oldColumn(newColumn.size())
{
    record.horizontalSize = qint32(row.size());
    record.verticalSize = qint32(column.size());
    record.horizontalFill = row.data();
    record.verticalFill = column.data();
    record.horizontalShow = oldRow.data();
    record.verticalShow = oldColumn.data();
    record.lock = &lock;
}

PlotPage::PlotPage(const Preparation &prepare)
{
    services.frame.frameWidth = 10;
    services.frame.frameHeight = 6;
    SetMode2D();
    if (prepare)
        prepare(services);
    page = std::make_unique<Spectrum2DDrawFrameBase>(nullptr);
    plot = page->findChild<QCustomPlot *>();
    page->resize(600, 400);
    CallLog::Clear();
}

bool PlotPage::Show()
{
    page->setWindowFlag(Qt::FramelessWindowHint);
    page->show();
    if (!QTest::qWaitForWindowExposed(page.get()))
        return false;
    plot->replot(QCustomPlot::rpImmediateRefresh); // lays out the axes
    return true;
}

void PlotPage::SetMode2D()
{
    SetOtherMode();
    services.spectrumUI.displayMode2D = true;
}

void PlotPage::SetMode2DPeak()
{
    SetOtherMode();
    services.spectrumUI.displayMode2DPeak = true;
}

void PlotPage::SetOtherMode()
{
    services.spectrumUI.displayModeGeneral = false;
    services.spectrumUI.displayMode2D = false;
    services.spectrumUI.displayMode2DPeak = false;
}

void PlotPage::DrawLine(const Values &values)
{
    services.frame.frameWidth = quint16(values.size());
    LinePayload payload(values);
    page->SlotUpdateFVB(payload.Param());
}

void PlotPage::Send(QEvent::Type type, const QPointF &pos) const
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, pos, button, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(plot, &event);
}

QPoint PlotPage::PixelOf(double x) const
{
    return QPoint(qRound(plot->xAxis->coordToPixel(x)), plot->axisRect()->center().y());
}

void PlotPage::Drag(double from, double to) const { Drag(PixelOf(from), PixelOf(to)); }

void PlotPage::Drag(const QPoint &from, const QPoint &to) const
{
    Send(QEvent::MouseButtonPress, from);
    Send(QEvent::MouseMove, to);
    Send(QEvent::MouseButtonRelease, to);
    plot->replot();
}

QVector<double> PlotPage::Keys() const
{
    QVector<double> keys;
    for (const QCPGraphData &sample : *plot->graph(0)->data())
        keys << sample.key;
    return keys;
}

QVector<double> PlotPage::DrawnValues() const
{
    QVector<double> values;
    for (const QCPGraphData &sample : *plot->graph(0)->data())
        values << sample.value;
    return values;
}

QString Text(const QCPRange &range)
{
    return QString("%1..%2").arg(range.lower, 0, 'g', 12).arg(range.upper, 0, 'g', 12);
}
