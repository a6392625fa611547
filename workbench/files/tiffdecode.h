// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filefault.h"
#include "picture.h"
#include "tiffpage.h"

class TiffHandle;

/// Decodes the current page of a TIFF file, whose blocks were checked before: packed samples get a
/// sample type of their own, planes are interleaved, a palette becomes RGB (a palette that is a plain
/// grey ramp: the samples themselves), white-is-zero is inverted.
bool DecodeTiffPage(TiffHandle &tiff, const TiffPage &page, Picture &picture, FileFault &fault);
