// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pictureinfo.h"

#include <fitsio.h>

/// The cards of the current header that tell of the picture's making: all but those that describe how
/// the data is stored. Long texts that go on in CONTINUE cards are joined.
QVector<MetadataEntry> ReadFitsCards(fitsfile *fits);

/// Writes one entry as a card; what does not fit the rules of FITS (other letters than ASCII) is made to.
void WriteFitsCard(fitsfile *fits, const MetadataEntry &entry, int *status);
