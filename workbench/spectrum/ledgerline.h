// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

struct SpectrumLedger;

/// What became of the frames that spectra were wanted of, for the user. Any thread.
QString LedgerLine(const SpectrumLedger &ledger);
