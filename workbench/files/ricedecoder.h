// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <vector>

/// Decodes `values.size()` integers of RICE_1 coding as the FITS standard describes it: differences of
/// neighbours, in blocks of `blockSize` with as many low bits as suit the block. Samples of one byte
/// are unsigned, of two and four bytes signed. False when the bytes end too soon.
bool DecodeRice(const QByteArray &bytes, int bytesPerSample, int blockSize, std::vector<double> &values);
