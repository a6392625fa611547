// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// `text` in the letters that a header of FITS may hold, the printable ones of ASCII: accents go, line breaks
/// and tabs become spaces, and what has no likeness becomes a question mark.
QByteArray FitsText(const QString &text);
