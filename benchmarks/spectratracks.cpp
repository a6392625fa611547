// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks.h"

#include "fakeservices.h"
#include "line3d.h"
#include "rosenbrock.h"
#include "spectrum3ddrawviewbase.h"
#include "spectrumlinepayload.h"
#include "trackplot.h"

#include <QApplication>
#include <QMutex>

#include <memory>
#include <vector>

namespace {

constexpr double TracksBound = 1.3;
constexpr int Rounds = 40;
constexpr QSize PageSize(1200, 900);
constexpr int Tracks = 20;
constexpr int Width = 2048;
constexpr int Brightest = 50000;

std::vector<unsigned> Values(int first)
{
    std::vector<unsigned> values(size_t(Tracks) * Width);
    for (size_t i = 0; i < values.size(); ++i)
        values[i] = unsigned((i + size_t(first)) * 37 % Brightest);
    return values;
}

/// The page with the tracks, and what it is fed with.
class TrackPage
{
public:
    TrackPage()
    {
        m_services.frame.frameWidth = Width;
        m_services.spectrumUI.displayMode3D = true;
        for (int track = 0; track < Tracks; ++track)
            m_services.spectrumUI.multiTrackList << QRectF(0, track * 10, Width, 8);
        m_view = std::make_unique<Spectrum3DDrawViewBase>(nullptr);
        m_view->setFixedSize(PageSize);
        m_view->show();
        m_payload.fill = m_values[0].data();
        m_payload.show = m_values[1].data();
        m_payload.lock = &m_lock;
        m_payload.maximum = Brightest;
    }

    Qwt3D::Plot3D *Plot() const { return m_view->findChild<Qwt3D::Plot3D *>(); }

    void Show()
    {
        m_view->SlotUpdateMultiTrack(&m_payload);
        QApplication::processEvents();
    }

private:
    FakeServices m_services;
    QMutex m_lock;
    std::vector<unsigned> m_values[2] = { Values(0), Values(11) };
    SpectrumLinePayload m_payload{};
    std::unique_ptr<Spectrum3DDrawViewBase> m_view;
};

/// The library alone: a plot of the same size and view, with the same lines, that is told of new data.
class BareTracks
{
public:
    explicit BareTracks(const Qwt3D::Plot3D *like)
    {
        m_function = std::make_unique<Rosenbrock>(&m_plot);
        m_function->setMesh(5, 5);
        m_function->setDomain(0, Width, 0, Depth);
        m_function->setMinZ(0);
        m_function->setMaxZ(Highest);
        m_function->create();
        m_plot.setFixedSize(like->size());
        m_plot.setCoordinateStyle(Qwt3D::BOX);
        m_plot.setRotation(like->xRotation(), like->yRotation(), like->zRotation());
        m_plot.setZoom(like->zoom());
        Qwt3D::Line3D lines;
        lines.configure(3.0, true);
        m_lines = static_cast<Qwt3D::Line3D *>(m_plot.addEnrichment(lines));
        const std::vector<unsigned> values = Values(0);
        std::vector<Qwt3D::TripleField> fields(Tracks);
        for (int track = 0; track < Tracks; ++track) {
            for (int i = 0; i < Width; ++i)
                fields[size_t(track)].emplace_back(i, track * Depth / Tracks,
                                                   values[size_t(track * Width + i)] * Highest / Brightest);
        }
        m_lines->setLines(fields, Qwt3D::Qt2GL(Qt::blue));
        m_plot.show();
    }

    void Show()
    {
        m_plot.updateData();
        m_plot.update();
        QApplication::processEvents();
    }

private:
    static constexpr double Depth = 2000; ///< of 20 tracks that are 2048 pixels wide
    static constexpr double Highest = 100;

    TrackPlot m_plot;
    std::unique_ptr<Rosenbrock> m_function;
    Qwt3D::Line3D *m_lines = nullptr; ///< the plot owns it
};

} // namespace

BenchmarkResult BenchmarkTracks()
{
    TrackPage page;
    page.Show();
    BareTracks bare(page.Plot());
    QApplication::processEvents();
    return MeasureRatio("20 tracks of 2048 samples in 3D, payload to screen", TracksBound, Rounds, [&] { bare.Show(); },
                        [&] { page.Show(); });
}
