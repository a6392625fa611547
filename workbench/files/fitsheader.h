// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filefault.h"
#include "pictureinfo.h"

#include <QByteArray>
#include <QHash>
#include <QVector>

class QFile;

/// One header of a FITS file: its cards, and where the data behind it lies. Read here rather than by
/// CFITSIO, which trusts a header more than a damaged file deserves.
class FitsHeader
{
public:
    /// A file is made of blocks of this size.
    static constexpr qint64 blockBytes = 2880;

    /// Reads the header that begins at `offset`.
    bool Read(QFile &file, qint64 offset, FileFault &fault);

    /// Value of the first card of that name; `otherwise` if it is missing or no number.
    double Number(const QString &key, double otherwise) const;
    /// Empty if the card is missing or no text.
    QString Text(const QString &key) const;
    /// A card with the logical value T.
    bool IsTrue(const QString &key) const;
    /// Number of a row of numbered cards: NAXIS1, NAXIS2...
    double Number(const char *key, int index, double otherwise) const { return Number(key + QString::number(index), otherwise); }
    QString Text(const char *key, int index) const { return Text(key + QString::number(index)); }

    /// First byte behind the header.
    qint64 DataOffset() const { return m_dataOffset; }
    /// What the header says that its data takes, without the filling of the last block; as a floating
    /// point number, because a damaged header can say more than 64 bits hold.
    double DataBytes() const;

    /// What tells of the picture's making: all cards but those that describe how the data is stored.
    QVector<MetadataEntry> Metadata() const;

private:
    struct Card
    {
        QByteArray text; ///< 80 letters
        MetadataEntry entry;
    };

    static MetadataEntry Parsed(const QByteArray &card);
    void Append(const QByteArray &card);

    QVector<Card> m_cards;
    QHash<QString, int> m_index; ///< first card of each name
    qint64 m_dataOffset = 0;
};
