// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calibrationfit.h"
#include "lineassignment.h"
#include "spectralframe.h"

#include <QObject>
#include <QThreadPool>

class QSettings;
class SpectrumSettings;

/// The calibration that is being made on a lamp spectrum: points, degree, what the fit says, and the way back; and the
/// one that was applied, which is kept for the next start. GUI thread; lines are assigned in a thread of its own.
class CalibrationModel : public QObject
{
    Q_OBJECT

public:
    /// Both are borrowed and outlive this object. Applies the calibration that was kept, if it is good.
    CalibrationModel(SpectrumSettings *target, QSettings *stored, QObject *parent = nullptr);
    ~CalibrationModel() override;

    /// The lamp spectrum that lines are picked on, which is on the screen, and 1 where it is saturated; empty when that is
    /// not known. Points of a spectrum of another width, or of other pixels of the sensor, are forgotten: returns how
    /// many that were not applied.
    int SetSpectrum(const std::vector<double> &values, const std::vector<quint8> &saturated = {});
    const std::vector<double> &Values() const { return m_values; }
    const std::vector<SpectralPeak> &Peaks() const { return m_peaks; }
    /// Of the spectrum that the points belong to, pixels.
    int Width() const { return m_width; }

    void SetLamps(const QVector<Lamp> &lamps);
    const QVector<Lamp> &Lamps() const { return m_lamps; }
    /// About the wavelengths at both ends; equal when nothing is known.
    void SetRange(double firstNm, double lastNm);
    double FirstNm() const { return m_firstNm; }
    double LastNm() const { return m_lastNm; }
    void SetDegree(int degree);
    int Degree() const { return m_degree; }

    /// By rising pixel.
    const QVector<CalibrationPoint> &Points() const { return m_points; }
    const CalibrationFit &Fit() const { return m_fit; }
    /// Where the peak nearest to `pixel` is; `pixel` itself where there is none near.
    double Snapped(double pixel) const;
    /// The lamps' line that the fit so far expects at a pixel; 0 without one.
    double ExpectedLine(double pixel) const;
    /// Adds a point at the peak nearest to `pixel`, with the lamps' line nearest to `nm`; as they are where there is
    /// neither.
    void AddPoint(double pixel, double nm);
    void RemovePoint(int index);
    void SetWavelength(int index, double nm);
    /// Replaces all points by those found, some time later; signalAssigned() tells.
    void Assign();
    /// What the last assignment found and left out.
    const AssignedLines &Assigned() const { return m_assigned; }
    bool CanUndo() const { return !m_before.isEmpty(); }
    void Undo();

    /// Refused, with the reason in Fit(), when the fit is not good.
    bool Apply();
    /// From now on there is no calibration.
    void TakeAway();
    /// What is on the screen of it is what was applied.
    bool IsApplied() const { return m_applied.IsGood() && m_applied.calibration.Coefficients() == m_fit.calibration.Coefficients(); }
    /// The one that was applied last; not good when there is none.
    const CalibrationFit &Applied() const { return m_applied; }
    const QVector<CalibrationPoint> &AppliedPoints() const { return m_appliedPoints; }

signals:
    /// Spectrum, lamps, points, degree or fit are others.
    void signalChanged();
    /// False when no assignment fits; then nothing has changed.
    void signalAssigned(bool found);
    void signalApplied();

private:
    void Change(const QVector<CalibrationPoint> &points, int degree);
    void FitAgain();
    /// The top of the peak there is cut off.
    bool IsSaturated(double pixel) const;
    int BelongTo(int width, const SpectralFrame &shown);
    void TakeAssigned(const AssignedLines &lines, int question);
    void Restore();

    SpectrumSettings *m_target;
    QSettings *m_stored;
    std::vector<double> m_values;
    std::vector<SpectralPeak> m_peaks;
    int m_width = 0;
    SpectralFrame m_frame; ///< of the spectrum that the points belong to
    QVector<Lamp> m_lamps;
    double m_firstNm = 0;
    double m_lastNm = 0;
    struct State
    {
        QVector<CalibrationPoint> points;
        int degree;
    };
    QVector<State> m_before;
    QVector<CalibrationPoint> m_points;
    int m_degree = 3;
    CalibrationFit m_fit;
    CalibrationFit m_applied;
    QVector<CalibrationPoint> m_appliedPoints;
    AssignedLines m_assigned;
    int m_question = 0; ///< the newest one to the thread
    QThreadPool m_thread;
};
