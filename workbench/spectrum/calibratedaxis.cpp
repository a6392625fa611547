// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibratedaxis.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

constexpr double nanometresPerCentimetre = 1e7;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CalibratedAxis)
};

/// Nanometres and wavenumbers are each other's inverse; a Raman shift stays what it is.
bool AreInverse(SpectralUnit from, SpectralUnit to)
{
    return (from == SpectralUnit::Nanometre && to == SpectralUnit::Wavenumber)
        || (from == SpectralUnit::Wavenumber && to == SpectralUnit::Nanometre);
}

} // namespace

void CalibratedAxis::SetCalibration(const SpectralCalibration &calibration, const SpectralFrame &frame)
{
    m_calibration = calibration;
    m_calibrated = frame;
    Fit();
}

void CalibratedAxis::SetFileAxis(const SpectralAxis &axis)
{
    m_fileAxis = axis;
    Fit();
}

void CalibratedAxis::SetSpectrum(int width, const SpectralFrame &frame)
{
    m_width = width;
    m_frame = frame;
    Fit();
}

SpectralFrame CalibratedAxis::Calibrated() const
{
    if (!m_frame.IsOfFile() || m_calibrated.IsOfFile() || !m_fileAxis.IsEmpty())
        return m_calibrated;
    SpectralFrame assumed;
    assumed.isHorizontal = assumed.isAlongRows = m_calibrated.isHorizontal; // as it was seen
    assumed.count = assumed.fileExtent = m_calibration.Width();
    return assumed;
}

void CalibratedAxis::Fit()
{
    m_fitting = SpectralCalibration();
    if (m_calibration.IsNull())
        return;
    const SpectralFrame calibrated = Calibrated();
    if (m_frame.IsNull()) {
        if (m_calibration.Width() == m_width)
            m_fitting = m_calibration;
    } else if (m_frame.count == m_width && m_frame.IsWithin(calibrated)) { // else its pixels are about to change
        const double first = calibrated.SampleAt(m_frame.OnSensor(0));
        const double second = calibrated.SampleAt(m_frame.OnSensor(1));
        m_fitting = m_calibration.Along(first, second - first, m_width);
    }
}

SpectralRecord CalibratedAxis::Record() const
{
    SpectralRecord record;
    record.coefficients = m_fitting.PixelCoefficients();
    record.width = m_fitting.Width();
    record.side = m_frame.Side();
    if (!m_frame.IsNull() && !m_frame.IsOfFile()) // for programs too: English
        record.origin = QString("%1 %2 to %3 of the sensor, binned by %4%5")
                            .arg(m_frame.isAlongRows ? "columns" : "rows").arg(m_frame.first)
                            .arg(m_frame.first + m_frame.count * m_frame.binning - 1).arg(m_frame.binning)
                            .arg(m_frame.isReversed ? ", mirrored" : "");
    return record;
}

double CalibratedAxis::PixelHere(double calibrated) const
{
    const SpectralFrame made = Calibrated();
    return m_frame.IsNull() || made.IsNull() ? calibrated : m_frame.SampleAt(made.OnSensor(calibrated));
}

QString CalibratedAxis::Misfit() const
{
    if (m_calibration.IsNull() || !m_fitting.IsNull() || m_width <= 0)
        return QString();
    if (m_frame.IsNull())
        return Text::tr("The calibration was made for spectra of %1 pixels and this one has %2: positions are in pixels.")
            .arg(m_calibration.Width()).arg(m_width);
    if (m_frame.count != m_width)
        return QString();
    if (m_calibrated.IsNull() || m_calibrated.IsOfFile())
        return Text::tr("The calibration was made on an opened picture, which does not say what pixels of the sensor it shows: live "
                        "spectra stay in pixels. Calibrate on a live one to have it there too.");
    if (m_frame.isAlongRows != m_calibrated.isAlongRows)
        return Text::tr("The calibration was made along the other side of the sensor: positions are in pixels. Change the direction or "
                        "rotate the picture back, or calibrate anew.");
    return Text::tr("The calibration was made for the sensor's pixels %1 to %2, and this spectrum has others too: positions are in "
                    "pixels. Choose a region among those, or calibrate anew.")
        .arg(m_calibrated.first).arg(m_calibrated.first + m_calibrated.count * m_calibrated.binning - 1);
}

bool CalibratedAxis::IsCalibrated() const { return IsByFile() || !m_fitting.IsNull(); }

SpectralUnit CalibratedAxis::Unit() const
{
    if (!IsCalibrated() || m_unit == SpectralUnit::Pixel)
        return SpectralUnit::Pixel;
    const SpectralUnit own = OwnUnit();
    return AreInverse(own, m_unit) && HasInverse() ? m_unit : own;
}

SpectralUnit CalibratedAxis::OwnUnit() const
{
    return IsByFile() ? m_fileAxis.unit : SpectralUnit::Nanometre;
}

double CalibratedAxis::OwnValue(double pixel) const
{
    return IsByFile() ? FileValue(pixel) : m_fitting.Wavelength(pixel);
}

/// Rulers and plots ask for the pixel behind the last one too.
bool CalibratedAxis::HasInverse() const { return OwnValue(0) > 0 && OwnValue(m_width) > 0; }

double CalibratedAxis::At(double pixel) const
{
    const SpectralUnit unit = Unit();
    if (unit == SpectralUnit::Pixel)
        return pixel;
    const double value = OwnValue(pixel);
    return AreInverse(OwnUnit(), unit) ? nanometresPerCentimetre / value : value;
}

/// Between the values straight, and beyond them on with the last step.
double CalibratedAxis::FileValue(double pixel) const
{
    const QVector<double> &values = m_fileAxis.values;
    if (values.size() == 1)
        return values.first();
    const int left = std::clamp(int(std::floor(pixel)), 0, values.size() - 2);
    return values[left] + (pixel - left) * (values[left + 1] - values[left]);
}

QString CalibratedAxis::Title() const
{
    switch (Unit()) {
    case SpectralUnit::Nanometre: return Text::tr("Wavelength [nm]");
    case SpectralUnit::Wavenumber: return Text::tr("Wavenumber [1/cm]");
    case SpectralUnit::RamanShift: return Text::tr("Raman Shift [1/cm]");
    case SpectralUnit::Pixel: break;
    }
    return Text::tr("Pixel Number");
}
