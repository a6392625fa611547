// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QtEndian>

#include <cstring>

/// An SPE file written by hand, so that it can be as wrong as a test needs it.
class SpeBytes
{
public:
    static constexpr int HeaderBytes = 4100;

    SpeBytes(int width, int height, int typeCode, int frames, float version = 2.2F)
        : m_bytes(HeaderBytes, '\0')
    {
        Set<quint16>(42, quint16(width));
        Set<quint16>(656, quint16(height));
        Set<qint16>(108, qint16(typeCode));
        Set<qint32>(1446, frames);
        Set<quint32>(2996, 0x01234567);
        SetFloat(1992, version);
    }

    template <typename T>
    SpeBytes &Set(int offset, T value)
    {
        qToLittleEndian(value, m_bytes.data() + offset);
        return *this;
    }

    SpeBytes &SetFloat(int offset, float value)
    {
        quint32 bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        return Set(offset, bits);
    }

    SpeBytes &SetDouble(int offset, double value)
    {
        quint64 bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        return Set(offset, bits);
    }

    /// Calibrated by a polynomial in the pixel, counted from 1; lowest power first.
    SpeBytes &Calibrate(quint8 unit, quint8 shownUnit, quint8 order, std::initializer_list<double> coefficients)
    {
        Set<quint8>(3098, 1);
        Set<quint8>(3100, unit);
        Set<quint8>(3016, shownUnit);
        Set<quint8>(3101, order);
        int offset = 3263;
        for (const double coefficient : coefficients) {
            SetDouble(offset, coefficient);
            offset += 8;
        }
        return *this;
    }

    SpeBytes &Append(const QByteArray &data)
    {
        m_bytes += data;
        return *this;
    }

    /// Counts up from `first`.
    SpeBytes &AppendRamp(int count, quint16 first = 0)
    {
        for (int i = 0; i < count; ++i) {
            char bytes[2];
            qToLittleEndian(quint16(first + i), bytes);
            m_bytes.append(bytes, sizeof bytes);
        }
        return *this;
    }

    /// The description of version 3 from here on.
    SpeBytes &AppendFooter(const QByteArray &xml)
    {
        Set<quint64>(678, quint64(m_bytes.size()));
        m_bytes += xml;
        return *this;
    }

    const QByteArray &Bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
};
