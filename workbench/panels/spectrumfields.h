// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fieldsource.h"

#include <QElapsedTimer>
#include <QTimer>

#include <functional>

class PeakFinding;
class SpectrumPipeline;
class SpectrumSettings;
class TrackDesk;
struct CorrectionSettings;
struct PlotStyle;
struct SpectrumRecipe;

/// Spectra as a panel sets them: what is shown of them, which rows make them, what is corrected, and how the plots look.
/// GUI thread.
class SpectrumFields : public FieldSource
{
    Q_OBJECT

public:
    /// All are borrowed and outlive this object.
    SpectrumFields(SpectrumSettings *settings, SpectrumPipeline *spectra, TrackDesk *tracks, QObject *parent = nullptr);

    /// Says whether pixels of the curve of the opened picture are at the end of their range.
    void SetOpenedSaturation(const std::function<bool()> &isSaturated) { m_isOpenedSaturated = isSaturated; }

    /// Tells how many peaks of the curve are marked; `peaks` are borrowed and outlive this object.
    void SetPeaks(const PeakFinding *peaks);

    PanelFields Fields() const override;
    void Set(const QString &key, const QVariant &value) override;

public slots:
    /// What is on the screen is another one, live or opened.
    void slotSpectrumShown();

private:
    bool IsMissedNews() const;
    bool IsSaturated() const;
    void AddDisplay(PanelFields &fields) const;
    void AddBinning(PanelFields &fields) const;
    void AddTracks(PanelFields &fields) const;
    void AddReferences(PanelFields &fields) const;
    void AddFilters(PanelFields &fields) const;
    void AddLook(PanelFields &fields) const;
    bool Do(const QString &key);
    bool SetDisplay(const QString &key, const QVariant &value);
    bool SetTrack(const QString &key, const QVariant &value);
    bool SetRows(const QString &key, const QVariant &value);
    bool SetCorrection(const QString &key, const QVariant &value);
    bool SetLook(const QString &key, const QVariant &value);

    SpectrumSettings *m_settings;
    SpectrumPipeline *m_spectra;
    TrackDesk *m_tracks;
    std::function<bool()> m_isOpenedSaturated;
    const PeakFinding *m_peaks = nullptr;
    QTimer m_peakNews; ///< until the next numbers of peaks are told
    QString m_corrections; ///< the line as it was told last
    int m_samples = 0;     ///< of it; 0 without one
    int m_rows = 0;        ///< of its frame
    quint64 m_missed = 0;  ///< frames that no spectrum was made of, as it was told last
    QElapsedTimer m_sinceMissed; ///< was told
    int m_linesAcross = 0; ///< as they were told last
    bool m_isSaturated = false; ///< some value of it, or of the tracks
};
