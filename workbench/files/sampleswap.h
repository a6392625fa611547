// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Picture;

/// Turns the bytes of every sample around, between big and little endian.
void SwapSampleBytes(Picture &picture);
