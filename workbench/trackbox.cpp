// SPDX-License-Identifier: GPL-3.0-or-later
#include "trackbox.h"

#include "spectrumpipeline.h"
#include "spectrumuimanager.h"

#include <QWidget>

#include <qwt3d_plot.h>

TrackBox::TrackBox(const SpectrumPipeline *spectra, const SpectrumUIManager *settings, QWidget *centre, QObject *parent)
    : QObject(parent)
    , m_spectra(spectra)
    , m_settings(settings)
    , m_centre(centre)
{
    connect(spectra, &SpectrumPipeline::signalSpectrumShown, this, &TrackBox::slotSpectrumShown);
}

void TrackBox::slotSpectrumShown()
{
    const SpectrumProduct &shown = m_spectra->Shown();
    const int count = int(shown.tracks.size());
    const int width = shown.frameSize.width();
    if (count == 0 || (count == m_count && width == m_width))
        return;
    // The box is made of the listed tracks, which a spectrum may be older or newer than.
    const QList<QRectF> tracks = m_settings->GetMultiTrackList();
    if (tracks.size() != count || int(tracks.first().width()) != width)
        return;
    m_count = count;
    m_width = width;
    for (const Qwt3D::Plot3D *plot : m_centre->findChildren<Qwt3D::Plot3D *>())
        QMetaObject::invokeMethod(plot->parentWidget(), "SlotZoomReset");
}
