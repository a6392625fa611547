// SPDX-License-Identifier: GPL-3.0-or-later
#include "ledgerline.h"

#include "spectrumledger.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(LedgerLine)
};

} // namespace

QString LedgerLine(const SpectrumLedger &ledger)
{
    const quint64 missed = ledger.missed;
    if (missed == 0)
        return Text::tr("Spectra of %1 of %2 frames, none missed.").arg(ledger.computed).arg(ledger.taken);
    return Text::tr("Spectra of %1 of %2 frames; %3 came too fast and were missed.")
        .arg(ledger.computed).arg(ledger.taken).arg(missed);
}
