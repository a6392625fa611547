// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;
class SpectrumPipeline;
class SpectrumUIManager;

/// Has the 3D plots set up anew when the tracks are others in number or in width: their box is made for the tracks that
/// they show first, and others would leave it. GUI thread.
class TrackBox : public QObject
{
    Q_OBJECT

public:
    /// `spectra`, `settings` and `centre`, the pages with the plots, are borrowed and outlive this object.
    TrackBox(const SpectrumPipeline *spectra, const SpectrumUIManager *settings, QWidget *centre, QObject *parent);

private:
    /// Comes before the plots take the tracks of the same spectrum, which is done by the event queue.
    void slotSpectrumShown();

    const SpectrumPipeline *m_spectra;
    const SpectrumUIManager *m_settings;
    QWidget *m_centre;
    int m_count = 0;
    int m_width = 0; ///< pixels
};
