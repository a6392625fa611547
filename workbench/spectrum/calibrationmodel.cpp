// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationmodel.h"

#include "calibrationstore.h"
#include "spectrumsettings.h"

#include <algorithm>

namespace {

constexpr double snapPixels = 10;
constexpr double snapNm = 2;

bool IsBefore(const CalibrationPoint &a, const CalibrationPoint &b) { return a.pixel < b.pixel; }

} // namespace

CalibrationModel::CalibrationModel(SpectrumSettings *target, QSettings *stored, QObject *parent)
    : QObject(parent)
    , m_target(target)
    , m_stored(stored)
    , m_lamps({Lamp::Mercury, Lamp::Argon})
{
    m_thread.setMaxThreadCount(1);
    Restore();
    FitAgain();
}

CalibrationModel::~CalibrationModel() { m_thread.waitForDone(); }

/// What was kept may have been changed by hand.
void CalibrationModel::Restore()
{
    const StoredCalibration stored = LoadCalibration(*m_stored);
    CalibrationFit fit = FitCalibration(stored.points, stored.degree, stored.width);
    if (!fit.IsGood())
        return;
    m_points = m_appliedPoints = stored.points;
    m_degree = stored.degree;
    m_width = stored.width;
    m_frame = stored.frame;
    m_applied = std::move(fit);
    m_target->SetCalibration(m_applied.calibration, m_frame, stored.camera);
}

int CalibrationModel::SetSpectrum(const std::vector<double> &values, const std::vector<quint8> &saturated)
{
    ++m_question; // an answer that is still to come is of the spectrum before
    const int dropped = values.empty() ? 0 : BelongTo(int(values.size()), m_target->ShownFrame());
    m_values = values;
    m_peaks = FindPeaks(values, PeakRules(), saturated);
    FitAgain();
    emit signalChanged();
    return dropped;
}

/// A frame of another length is that of pictures to come. Where nothing is known, the width has to do. How the same pixels are
/// laid on the screen does not matter.
int CalibrationModel::BelongTo(int width, const SpectralFrame &shown)
{
    const SpectralFrame frame = shown.count == width ? shown : SpectralFrame();
    SpectralFrame before = m_frame;
    before.isHorizontal = frame.isHorizontal;
    const bool isOther = width != m_width || (!frame.IsNull() && frame != before);
    int dropped = 0;
    if (isOther) {
        dropped = m_points == m_appliedPoints ? 0 : m_points.size();
        m_points.clear();
        m_before.clear();
    }
    m_width = width;
    if (m_points.isEmpty() && m_before.isEmpty())
        m_frame = frame;
    return dropped;
}

void CalibrationModel::SetLamps(const QVector<Lamp> &lamps)
{
    m_lamps = lamps;
    emit signalChanged();
}

void CalibrationModel::SetRange(double firstNm, double lastNm)
{
    m_firstNm = firstNm;
    m_lastNm = lastNm;
}

void CalibrationModel::SetDegree(int degree)
{
    if (degree != m_degree)
        Change(m_points, degree);
}

double CalibrationModel::Snapped(double pixel) const
{
    const SpectralPeak *peak = NearestPeak(m_peaks, pixel, snapPixels);
    return peak ? peak->position : pixel;
}

bool CalibrationModel::IsSaturated(double pixel) const
{
    const SpectralPeak *peak = NearestPeak(m_peaks, pixel, snapPixels);
    return peak && peak->isSaturated && peak->position == pixel;
}

double CalibrationModel::ExpectedLine(double pixel) const
{
    return m_fit.IsGood() ? NearestLine(m_lamps, m_fit.calibration.Wavelength(pixel), snapNm).nm : 0;
}

void CalibrationModel::AddPoint(double pixel, double nm)
{
    CalibrationPoint point = NearestLine(m_lamps, nm, snapNm);
    if (point.nm == 0)
        point.nm = nm;
    point.pixel = Snapped(pixel);
    point.isSaturated = IsSaturated(point.pixel);
    Change(m_points + QVector<CalibrationPoint>{point}, m_degree);
}

void CalibrationModel::RemovePoint(int index)
{
    if (index < 0 || index >= m_points.size())
        return;
    QVector<CalibrationPoint> points = m_points;
    points.remove(index);
    Change(points, m_degree);
}

void CalibrationModel::SetWavelength(int index, double nm)
{
    if (index < 0 || index >= m_points.size())
        return;
    QVector<CalibrationPoint> points = m_points;
    const CalibrationPoint line = NearestLine(m_lamps, nm, snapNm);
    points[index].nm = line.nm > 0 ? line.nm : nm;
    points[index].line = line.line;
    Change(points, m_degree);
}

void CalibrationModel::Assign()
{
    AssignmentHints hints;
    hints.lamps = m_lamps;
    hints.width = m_width;
    hints.firstNm = m_firstNm;
    hints.lastNm = m_lastNm;
    hints.degree = m_degree;
    m_thread.start([this, peaks = m_peaks, hints, question = ++m_question] {
        QMetaObject::invokeMethod(
            this, [this, lines = AssignLines(peaks, hints), question] { TakeAssigned(lines, question); }, Qt::QueuedConnection);
    });
}

void CalibrationModel::TakeAssigned(const AssignedLines &lines, int question)
{
    if (question != m_question)
        return;
    m_assigned = lines;
    QVector<CalibrationPoint> marked = lines.points;
    for (CalibrationPoint &point : marked)
        point.isSaturated = IsSaturated(point.pixel);
    if (!marked.isEmpty())
        Change(marked, m_degree);
    emit signalAssigned(!marked.isEmpty());
}

void CalibrationModel::Undo()
{
    if (m_before.isEmpty())
        return;
    const State state = m_before.takeLast();
    m_points = state.points;
    m_degree = state.degree;
    FitAgain();
    emit signalChanged();
}

void CalibrationModel::Change(const QVector<CalibrationPoint> &points, int degree)
{
    m_before.append({m_points, m_degree});
    m_points = points;
    std::sort(m_points.begin(), m_points.end(), IsBefore);
    m_degree = degree;
    FitAgain();
    emit signalChanged();
}

void CalibrationModel::FitAgain() { m_fit = FitCalibration(m_points, m_degree, m_width); }

bool CalibrationModel::Apply()
{
    if (!m_fit.IsGood())
        return false;
    m_applied = m_fit;
    m_appliedPoints = m_points;
    const QString camera = m_frame.IsOfFile() ? QString() : m_target->Camera();
    StoreCalibration({m_points, m_degree, m_width, m_frame, camera}, m_stored);
    m_target->SetCalibration(m_fit.calibration, m_frame, camera);
    if (m_target->Unit() == SpectralUnit::Pixel)
        m_target->SetUnit(SpectralUnit::Nanometre);
    emit signalApplied();
    return true;
}

void CalibrationModel::TakeAway()
{
    m_applied = CalibrationFit();
    m_appliedPoints.clear();
    StoreCalibration({}, m_stored);
    m_target->SetCalibration(SpectralCalibration(), SpectralFrame());
    emit signalApplied();
}
