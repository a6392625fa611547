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
double Converted(double value, SpectralUnit from, SpectralUnit to)
{
    const bool isInverse = (from == SpectralUnit::Nanometre && to == SpectralUnit::Wavenumber)
        || (from == SpectralUnit::Wavenumber && to == SpectralUnit::Nanometre);
    return isInverse && value != 0 ? nanometresPerCentimetre / value : value;
}

} // namespace

bool CalibratedAxis::IsCalibrated() const
{
    return !m_fileAxis.IsEmpty() || (!m_calibration.IsNull() && m_calibration.Width() == m_width);
}

SpectralUnit CalibratedAxis::Unit() const
{
    if (!IsCalibrated() || m_unit == SpectralUnit::Pixel)
        return SpectralUnit::Pixel;
    return m_fileAxis.unit == SpectralUnit::RamanShift ? SpectralUnit::RamanShift : m_unit;
}

double CalibratedAxis::At(double pixel) const
{
    if (Unit() == SpectralUnit::Pixel)
        return pixel;
    if (m_fileAxis.IsEmpty())
        return Converted(m_calibration.Wavelength(pixel), SpectralUnit::Nanometre, Unit());
    return Converted(FileValue(pixel), m_fileAxis.unit, Unit());
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
