// SPDX-License-Identifier: GPL-3.0-or-later
#include "fitstext.h"

namespace {

bool IsSpace(QChar letter)
{
    return letter == '\n' || letter == '\r' || letter == '\t';
}

QByteArray AsciiOf(QChar letter)
{
    constexpr ushort greekMu = 0x3bc; // the decomposed micro sign
    constexpr ushort sharpS = 0xdf;
    if (letter.unicode() == greekMu)
        return "u";
    if (letter.unicode() == sharpS)
        return "ss";
    if (IsSpace(letter))
        return " ";
    return letter < ' ' || letter > '~' ? QByteArray("?") : QByteArray(1, letter.toLatin1());
}

} // namespace

QByteArray FitsText(const QString &text)
{
    QByteArray ascii;
    for (const QChar letter : text.normalized(QString::NormalizationForm_KD)) {
        if (!letter.isMark())
            ascii += AsciiOf(letter);
    }
    return ascii;
}
