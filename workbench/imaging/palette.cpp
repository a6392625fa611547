// SPDX-License-Identifier: GPL-3.0-or-later
#include "palette.h"

#include "palettetables.h"

#include <array>
#include <cstring>
#include <vector>

namespace {

/// Four bytes, so that a pixel is painted in one store; the fourth is painted over by the next pixel.
using Table = std::array<std::array<uchar, 4>, Palette::Size>;

struct Entry
{
    QString name;
    Table table;
};

template <typename ColourOf>
Entry Made(const char *name, ColourOf colourOf)
{
    Entry entry{name, {}};
    for (int i = 0; i < Palette::Size; ++i) {
        const quint32 colour = colourOf(i);
        entry.table[size_t(i)] = {uchar(colour >> 16), uchar(colour >> 8), uchar(colour), 0};
    }
    return entry;
}

Entry Published(const char *name, const quint32 *colours)
{
    return Made(name, [colours](int i) { return colours[i]; });
}

const std::vector<Entry> &Entries()
{
    static_assert(PaletteTables::Size == Palette::Size, "one colour for each grey");
    static const std::vector<Entry> entries = {
        Made("grey", [](int i) { return quint32(i) * 0x010101; }),
        Made("inverted", [](int i) { return quint32(Palette::Size - 1 - i) * 0x010101; }),
        Published("viridis", PaletteTables::Viridis),
        Published("inferno", PaletteTables::Inferno),
        Published("magma", PaletteTables::Magma),
        Published("cividis", PaletteTables::Cividis),
        Published("turbo", PaletteTables::Turbo),
    };
    return entries;
}

} // namespace

QStringList Palette::Names()
{
    QStringList names;
    for (const Entry &entry : Entries())
        names << entry.name;
    return names;
}

Palette::Palette(const QString &name)
    : m_index(qMax(0, Names().indexOf(name)))
{
}

QString Palette::Name() const { return Entries()[size_t(m_index)].name; }

QRgb Palette::Colour(int grey) const
{
    const std::array<uchar, 4> &colour = Entries()[size_t(m_index)].table[size_t(qBound(0, grey, Size - 1))];
    return qRgb(colour[0], colour[1], colour[2]);
}

QVector<QColor> Palette::Colours() const
{
    QVector<QColor> colours(Size);
    for (int i = 0; i < Size; ++i)
        colours[i] = QColor(Colour(i));
    return colours;
}

void Palette::Paint(const uchar *grey, int count, uchar *rgb) const
{
    if (count <= 0)
        return;
    const Table &table = Entries()[size_t(m_index)].table;
    for (int i = 0; i < count - 1; ++i)
        std::memcpy(rgb + 3 * i, table[grey[i]].data(), 4);
    std::memcpy(rgb + 3 * (count - 1), table[grey[count - 1]].data(), 3);
}
