// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>

class CalibrationModel;
class LiveHistogram;
class PeakFinding;
class SpectrumPipeline;
class SpectrumSettings;
class TrackDesk;

/// What stands behind the panels beside and below the picture: histogram, analysis, tool, report, spectrum, and the tables
/// of counting and calibration. Made after the services and before the module, so that the panels find it. GUI thread.
class PanelSources : public QObject
{
    Q_OBJECT

public:
    /// All are borrowed and outlive this object.
    struct Parts
    {
        LiveHistogram *histogram = nullptr;
        SpectrumSettings *spectrum = nullptr;
        SpectrumPipeline *spectra = nullptr;
        TrackDesk *tracks = nullptr;
        CalibrationModel *calibration = nullptr;
        std::function<bool()> isOpenedSaturated; ///< of the curve of the opened picture
        const PeakFinding *peaks = nullptr;
    };

    explicit PanelSources(const Parts &parts, QObject *parent = nullptr);

signals:
    /// A sentence for the status bar.
    void signalMessage(QString text);
    /// What could not be saved and why, for the user.
    void signalNotSaved(QString text);

private:
    void AddReport();
    void AddSpectrum();
    void AddTables();

    Parts m_parts;
};
