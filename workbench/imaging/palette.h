// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QStringList>
#include <QVector>

/// The colours in which the greys of a mono picture are shown; a colour picture keeps its own. Touches the screen only,
/// never a sample. A small value, cheap to copy.
class Palette
{
public:
    static constexpr int Size = 256;

    /// "grey", "inverted" and the perceptually uniform "viridis", "inferno", "magma", "cividis", and "turbo".
    static QStringList Names();

    /// Grey.
    Palette() = default;
    /// A name that is not among them is grey.
    explicit Palette(const QString &name);

    QString Name() const;
    /// Greys are shown as they are.
    bool IsGrey() const { return m_index == 0; }
    QRgb Colour(int grey) const;
    QVector<QColor> Colours() const;
    /// Three bytes a pixel: red, green, blue.
    void Paint(const uchar *grey, int count, uchar *rgb) const;

    bool operator==(const Palette &other) const { return m_index == other.m_index; }
    bool operator!=(const Palette &other) const { return m_index != other.m_index; }

private:
    int m_index = 0;
};
