// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spectralaxis.h"

#include <QByteArray>
#include <QString>

/// A calibration as the header of version 2 holds one for each direction: a polynomial of the pixel, which counts from 1.
class SpeCalibration
{
public:
    static constexpr int structureBytes = 489;

    /// As many bytes as that.
    explicit SpeCalibration(const QByteArray &bytes);

    /// Otherwise the file means its pixels.
    bool IsValid() const { return Byte(98) == 1; }
    /// Of so many columns, in nanometres, 1/cm or as a Raman shift, whatever the polynomial gives; empty without one.
    /// `fault` says, as part of a sentence, when there is one that cannot be used.
    SpectralAxis Axis(int width, QString *fault) const;

private:
    /// What values of the polynomial are, times `factor`.
    struct Unit
    {
        SpectralUnit unit = SpectralUnit::Pixel;
        double factor = 1;
    };

    /// Pixels when the label names nothing that is known.
    static Unit UnitOfLabel(const QString &label);
    Unit UnitOfPolynomial() const;
    /// That the writer gave its own unit.
    QString Label() const;
    double Value(int pixel) const;
    int Byte(int offset) const { return uchar(m_bytes[offset]); }
    double Number(int offset) const;

    QByteArray m_bytes;
};
