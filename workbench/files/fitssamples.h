// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture.h"

#include <QByteArray>

#include <vector>

/// Samples as FITS stores them, the highest byte first, into numbers; a double holds all of them but
/// large 64-bit integers exactly. The bytes of a sample follow from the sizes; false for sizes that
/// FITS does not have.
bool ConvertFitsSamples(const QByteArray &bytes, bool isFloat, std::vector<double> &values);

/// Puts numbers into row y of a picture from column x on, within the limits of its sample type.
void StoreSamples(const double *values, int count, Picture &picture, int x, int y);
