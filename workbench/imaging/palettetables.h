// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

/// Published palettes: 0xRRGGBB from the darkest to the brightest.
namespace PaletteTables {

constexpr int Size = 256;

extern const quint32 Viridis[Size];
extern const quint32 Inferno[Size];
extern const quint32 Magma[Size];
extern const quint32 Cividis[Size];
extern const quint32 Turbo[Size];

} // namespace PaletteTables
