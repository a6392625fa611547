// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarkframes.h"
#include "benchmarks.h"

#include "bothhalves.h"
#include "fakeservices.h"
#include "rowbinning.h"
#include "spectrum2ddrawframebase.h"
#include "spectrumlinepayload.h"

#include <qcustomplot.h>

#include <QApplication>
#include <QMutex>

#include <memory>
#include <vector>

namespace {

constexpr double CurveBound = 1.3;
constexpr double BinningBound = 2.0; ///< half of the bandwidth
constexpr int CurveRounds = 200;
constexpr int BinningRounds = 100;
constexpr QSize PageSize(1200, 900);
constexpr int Samples = 4096;
constexpr int FrameSide = 2048;
constexpr int FramesInTurn = 12; ///< 96 MiB: more than any cache

const QPen Pen(Qt::blue, 1);

unsigned Sample(int pixel, int curve) { return unsigned((pixel + curve) * 37 % 60000); }

/// The page with one spectrum, and what it is fed with.
class CurvePage
{
public:
    CurvePage()
    {
        m_services.frame.frameWidth = Samples;
        m_services.spectrumUI.displayMode2D = true;
        m_services.spectrumUI.linePen = Pen;
        m_page = std::make_unique<Spectrum2DDrawFrameBase>(nullptr);
        m_page->setFixedSize(PageSize);
        m_page->show();
        for (int i = 0; i < Samples; ++i) {
            m_lines[0][size_t(i)] = Sample(i, 0);
            m_lines[1][size_t(i)] = Sample(i, 1);
        }
        m_payload.fill = m_lines[0].data();
        m_payload.show = m_lines[1].data();
        m_payload.lock = &m_lock;
    }

    QSize PlotSize() const { return m_page->findChild<QCustomPlot *>()->size(); }

    void Show()
    {
        m_page->SlotUpdateFVB(&m_payload);
        QApplication::processEvents();
    }

private:
    FakeServices m_services;
    QMutex m_lock;
    std::vector<unsigned> m_lines[2] = { std::vector<unsigned>(Samples), std::vector<unsigned>(Samples) };
    SpectrumLinePayload m_payload{};
    std::unique_ptr<Spectrum2DDrawFrameBase> m_page;
};

/// The library alone, with the same samples on the same axes.
class BareCurve
{
public:
    explicit BareCurve(const QSize &size)
    {
        m_plot.addGraph()->setPen(Pen);
        m_plot.setFixedSize(size);
        m_plot.xAxis->setRange(0, Samples);
        m_plot.yAxis->setRange(0, 75000);
        m_plot.show();
        for (int i = 0; i < Samples; ++i) {
            m_x << i;
            m_curves[0] << Sample(i, 0);
            m_curves[1] << Sample(i, 1);
        }
    }

    void Show()
    {
        m_plot.graph(0)->setData(m_x, m_curves[++m_shown % 2]);
        m_plot.replot(QCustomPlot::rpQueuedReplot);
        QApplication::processEvents();
    }

private:
    QCustomPlot m_plot;
    QVector<double> m_x;
    QVector<double> m_curves[2];
    int m_shown = 0;
};

/// Every word is read, by as many threads as binning has.
quint64 ReadAll(const SpecimenFrame &frame)
{
    const auto *words = reinterpret_cast<const quint64 *>(frame.View().samples);
    quint64 halves[2] = { 0, 0 };
    ForBothHalves(frame.ByteCount() / sizeof(quint64), size_t(1), [&](size_t from, size_t to) {
        quint64 sum = 0;
        for (size_t i = from; i < to; ++i)
            sum += words[i];
        halves[from > 0] = sum;
    });
    return halves[0] + halves[1];
}

BenchmarkResult BenchmarkCurve()
{
    CurvePage page;
    page.Show();
    BareCurve bare(page.PlotSize());
    QApplication::processEvents();
    return MeasureRatio("curve of 4096 samples, payload to screen", CurveBound, CurveRounds, [&] { bare.Show(); },
                        [&] { page.Show(); });
}

/// Of all rows, or along the columns.
BenchmarkResult BenchmarkBinning(const QString &name, void (*bin)(const SampleView &, int, int, BinnedLine *))
{
    std::vector<SpecimenFrame> frames;
    for (int i = 0; i < FramesInTurn; ++i)
        frames.emplace_back(FrameSide, i);
    BinnedLine line;
    size_t read = 0;
    size_t binned = 0;
    volatile quint64 sum = 0; // so that the reading is not left out
    return MeasureRatio(
        name, BinningBound, BinningRounds,
        [&] { sum = ReadAll(frames[read++ % frames.size()]); },
        [&] { bin(frames[binned++ % frames.size()].View(), 0, FrameSide, &line); });
}

} // namespace

QVector<BenchmarkResult> BenchmarkSpectra()
{
    QVector<BenchmarkResult> results = { BenchmarkCurve(), BenchmarkTracks(),
                                         BenchmarkBinning("full vertical binning, 2048 x 2048, 16 bit", BinRows),
                                         BenchmarkBinning("the same along the columns", BinColumns) };
    return results + BenchmarkSpectrumStream();
}
