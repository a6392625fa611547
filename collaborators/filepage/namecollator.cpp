// SPDX-License-Identifier: GPL-3.0-or-later
#include "namecollator.h"

QCollator NameCollator()
{
    // The C locale knows neither numbers nor letters in both sizes.
    const QLocale system = QLocale::system();
    QCollator collator(system.language() == QLocale::C ? QLocale(QLocale::English) : system);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}
