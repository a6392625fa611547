// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>

constexpr int fitsBlockBytes = 2880;

/// Filled up to whole blocks.
inline QByteArray FitsBlocks(const QByteArray &bytes, char fill = '\0')
{
    return bytes.leftJustified((bytes.size() + fitsBlockBytes - 1) / fitsBlockBytes * fitsBlockBytes, fill);
}

/// A header of FITS, card by card, without CFITSIO, so that it can be as wrong as a test needs it.
inline QByteArray FitsHeader(const QList<QByteArray> &cards)
{
    constexpr int cardBytes = 80;
    QByteArray header;
    for (const QByteArray &card : cards)
        header += card.leftJustified(cardBytes, ' ', true);
    header += QByteArray("END").leftJustified(cardBytes, ' ');
    return FitsBlocks(header, ' ');
}

/// The cards of a primary picture.
inline QList<QByteArray> FitsPictureCards(int bitpix, const QList<qint64> &axes)
{
    QList<QByteArray> cards{"SIMPLE  =                    T", "BITPIX  = " + QByteArray::number(bitpix).rightJustified(20),
                            "NAXIS   = " + QByteArray::number(axes.size()).rightJustified(20)};
    for (int i = 0; i < axes.size(); ++i)
        cards << ("NAXIS" + QByteArray::number(i + 1)).leftJustified(8) + "= " + QByteArray::number(axes[i]).rightJustified(20);
    return cards;
}
