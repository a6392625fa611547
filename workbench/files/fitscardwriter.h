// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pictureinfo.h"

#include <fitsio.h>

/// Writes one entry as a card of the current header; what does not fit the rules of FITS (other letters
/// than ASCII) is made to, and entries of other formats become comments. Used within a FitsSession.
void WriteFitsCard(fitsfile *fits, const MetadataEntry &entry, int *status);
