// SPDX-License-Identifier: GPL-3.0-or-later
#include "fitscardwriter.h"

#include "fitstext.h"

#include <QRegularExpression>

namespace {

/// Of FITS itself; several words are allowed behind HIERARCH. Keys of other formats have small letters.
bool IsKeyword(const QString &key)
{
    static const QRegularExpression pattern("^[A-Z0-9_-]+( [A-Z0-9_-]+)*$");
    return pattern.match(key).hasMatch();
}

void WriteKeyword(fitsfile *fits, const MetadataEntry &entry, int *status)
{
    constexpr int keyLetters = 8;
    constexpr int cardLetters = 80;
    const QByteArray key = FitsText(entry.key);
    const QByteArray value = FitsText(entry.value);
    const QByteArray comment = FitsText(entry.comment);
    if (entry.isText) {
        fits_write_key_longstr(fits, key.constData(), value.constData(), comment.constData(), status);
        return;
    }
    const QByteArray name = key.size() <= keyLetters ? key.leftJustified(keyLetters) + "= " : "HIERARCH " + key + " = ";
    fits_write_record(fits, (name + value.rightJustified(20) + " / " + comment).left(cardLetters).constData(), status);
}

} // namespace

void WriteFitsCard(fitsfile *fits, const MetadataEntry &entry, int *status)
{
    if (entry.key == "HISTORY")
        fits_write_history(fits, FitsText(entry.value).constData(), status);
    else if (entry.key == "COMMENT")
        fits_write_comment(fits, FitsText(entry.value).constData(), status);
    else if (IsKeyword(entry.key))
        WriteKeyword(fits, entry, status);
    else
        fits_write_comment(fits, FitsText(entry.key + ": " + entry.value).constData(), status);
}
