// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sampleview.h"
#include "spectrumproduct.h"
#include "spectrumrecipe.h"

#include <QSize>

/// Makes spectra of one picture after another, for one thread.
class SpectrumEngine
{
public:
    void SetRecipe(const SpectrumRecipe &recipe);
    void SetDark(const Spectrum &dark) { m_corrections.SetDark(dark); }
    void SetReference(const Spectrum &reference) { m_corrections.SetReference(reference); }
    /// Of the pictures from now on; 0 when it is not known.
    void SetExposure(double exposureUs) { m_exposureUs = exposureUs; }
    /// The picture of this frame comes once more: it takes its own place among those before.
    void TakeBack(quint64 frameId);
    /// The band is looked for again with the next picture.
    void FindBandAgain();

    /// `sensor` and `camera` say what the picture shows; it was laid on the screen before it came here.
    SpectrumProduct Make(const SampleView &picture, quint64 frameId, const SensorFrame &sensor, const QString &camera);

private:
    void Bin(const SampleView &picture, SpectrumProduct *product);
    void BinTracks(const SampleView &picture, SpectrumProduct *product);
    Spectrum SpectrumOf(const SampleView &picture, const RowBand &band, bool isHorizontal, quint64 frameId) const;
    /// False while there is no light to find a band by.
    bool UpdateBand(const SampleView &picture);
    void MeasureFocus(const SampleView &picture, SpectrumProduct *product);

    SpectrumRecipe m_recipe;
    SpectrumCorrections m_corrections;
    std::vector<SpectrumCorrections> m_trackCorrections;
    double m_exposureUs = 0;
    QSize m_size;
    SensorFrame m_sensor;
    QString m_camera;
    RowBand m_band;
    bool m_isBandKnown = false;
    bool m_isBandNew = false;
    bool m_isBandTold = false; ///< each band is told once, though it is looked for in every picture without light
    int m_untilFocus = 0; ///< pictures
    std::vector<uchar> m_transposed; ///< the picture with level lines, laid so that they are upright
};

/// The light of each row, or of each column of a spectrum that runs along the columns.
std::vector<double> CrossProfile(const SampleView &picture, bool isHorizontal);
