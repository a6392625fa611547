// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What numbers samples are. Samples of each kind have levels of their own.
class SampleKind
{
public:
    enum Number
    {
        Unsigned,
        Signed,
        Floating
    };

    /// Unsigned samples of so many bits, as a camera has them.
    SampleKind(int bits = 8) // a bit depth is a kind
        : SampleKind(Unsigned, bits)
    {
    }
    SampleKind(Number number, int bits)
        : m_number(number)
        , m_bits(bits)
    {
    }

    int Bits() const { return m_bits; }
    bool IsWhole() const { return m_number != Floating; }
    /// The range of levels: all values of whole samples; of others half of what a double can hold, so that the
    /// difference of two levels is a number.
    double Least() const;
    double Most() const;
    /// In the settings: "12bit", "16bitSigned", "32bitFloating".
    QString Name() const;

    bool operator==(const SampleKind &other) const
    {
        return m_number == other.m_number && m_bits == other.m_bits;
    }

private:
    Number m_number;
    int m_bits;
};
