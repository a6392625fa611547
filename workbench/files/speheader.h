// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "specalibration.h"
#include "speregions.h"
#include "spetext.h"

#include <QByteArray>
#include <QString>
#include <QtEndian>

/// The fixed, little-endian header of an SPE file. Offsets are those of the format's own table.
class SpeHeader
{
public:
    /// At least SpeLayout::headerBytes.
    explicit SpeHeader(const QByteArray &bytes);

    double Version() const { return Float(1992); }
    int Width() const { return Number<quint16>(42); }
    int Height() const { return Number<quint16>(656); }
    int TypeCode() const { return Number<qint16>(108); }
    int Frames() const { return Number<qint32>(1446); }
    quint64 FooterOffset() const { return Number<quint64>(678); }
    double ExposureSeconds() const { return Float(10); }
    double TemperatureCelsius() const { return Float(36); }
    /// Regions that were read out together, at least 1; version 2 lays them into one rectangle.
    int Regions() const;
    static constexpr int mostRegionsTold = 10;
    /// One of those that the header has room for; without pixels when it makes no sense.
    SpeSensorRegion Region(int index) const;
    /// The samples were turned or mirrored after they had been read out.
    bool IsTurned() const { return Number<quint16>(600) != 0; }
    int Accumulations() const { return Number<qint32>(668); }
    QString Date() const { return SpeText(m_bytes, 20, 10); }
    QString LocalTime() const { return SpeText(m_bytes, 172, 7); }
    QString Comment(int line) const { return SpeText(m_bytes, 200 + 80 * line, 80); }
    SpeCalibration OfColumns() const
    {
        return SpeCalibration(m_bytes.mid(3000, SpeCalibration::structureBytes));
    }
    SpeCalibration OfRows() const
    {
        return SpeCalibration(m_bytes.mid(3489, SpeCalibration::structureBytes));
    }

private:
    template <typename T>
    T Number(int offset) const { return qFromLittleEndian<T>(m_bytes.constData() + offset); }
    double Float(int offset) const { return double(Number<float>(offset)); }

    QByteArray m_bytes;
};
