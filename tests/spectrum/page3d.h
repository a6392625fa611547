// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "drawviewfixture.h"
#include "line3d.h"
#include "plotpage.h"
#include "spectrum3ddrawframebase.h"
#include "spectrum3ddrawviewbase.h"
#include "spectrumzoomui.h"

#include <QPushButton>
#include <QTest>

#include <qwt3d_surfaceplot.h>

#include <memory>

/// The plot's enrichments.
struct PlotLines : Qwt3D::SurfacePlot
{
    static QList<const Qwt3D::Line3D *> Of(const Qwt3D::SurfacePlot *plot)
    {
        QList<const Qwt3D::Line3D *> lines;
        for (const Qwt3D::Enrichment *enrichment : plot->*(&PlotLines::elist_p))
            lines << dynamic_cast<const Qwt3D::Line3D *>(enrichment);
        return lines;
    }
};

/// The 3D page, 600 x 400, in 3D mode, without a window manager's decoration.
struct Page3D
{
    explicit Page3D(int tracks = 3, int width = 300)
    {
        services.spectrumUI.displayModeGeneral = false;
        services.spectrumUI.displayMode3D = true;
        services.frame.frameWidth = quint16(width);
        SetTracks(tracks, width);
        page.setWindowFlag(Qt::FramelessWindowHint);
        page.resize(600, 400);
        view = page.findChild<Spectrum3DDrawViewBase *>();
        plot = page.findChild<Qwt3D::SurfacePlot *>();
    }

    void SetTracks(int count, int width)
    {
        services.spectrumUI.multiTrackList.clear();
        for (int i = 0; i < count; ++i)
            services.spectrumUI.multiTrackList << QRectF(0, 5 * i, width, 10); // each over half of the next
    }

    bool Show()
    {
        page.show();
        return QTest::qWaitForWindowExposed(&page);
    }

    /// Data of this height; every track is flat.
    void Update(int maximum = 65535)
    {
        const QList<QRectF> tracks = services.spectrumUI.multiTrackList;
        const size_t width = tracks.isEmpty() ? 1 : size_t(qMax(1.0, tracks.first().width()));
        payload =
            std::make_unique<LinePayload>(Values(width * size_t(qMax(1, tracks.size())), unsigned(maximum)));
        payload->record.maximum = maximum;
        view->SlotUpdateMultiTrack(payload->Param());
    }

    void Click(const char *name) const
    {
        page.findChild<SpectrumZoomUI *>()->findChild<QPushButton *>(name)->click();
    }

    QString Scales() const
    {
        return QString("%1 %2 %3").arg(plot->xScale()).arg(plot->yScale()).arg(plot->zScale());
    }

    DisplayScale scale{ 1.0 };
    FakeServices services;
    Spectrum3DDrawFrameBase page{ nullptr };
    Spectrum3DDrawViewBase *view;
    Qwt3D::SurfacePlot *plot;
    std::unique_ptr<LinePayload> payload;
};

inline QString Text(const Qwt3D::Triple &triple)
{
    return QString("%1 %2 %3").arg(triple.x).arg(triple.y).arg(triple.z);
}
