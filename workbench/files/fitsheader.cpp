// SPDX-License-Identifier: GPL-3.0-or-later
#include "fitsheader.h"

#include <QRegularExpression>

namespace {

/// Where the text of a CONTINUE card begins.
constexpr int continuedColumn = 8;

bool IsCommentary(const QString &key)
{
    return key == "HISTORY" || key == "COMMENT";
}

/// A quoted text at the start: 'It''s ' / why -> It's; trailing blanks mean nothing. Null without one.
QString QuotedText(const char *value)
{
    static const QRegularExpression pattern("^\\s*'((?:[^']|'')*)'");
    const QRegularExpressionMatch match = pattern.match(QString::fromLatin1(value));
    if (!match.hasMatch())
        return QString();
    QString text = match.captured(1).replace("''", "'");
    while (text.endsWith(' '))
        text.chop(1);
    return text.isNull() ? QString("") : text;
}

/// Describes how the data is stored, or is written anew with every file.
bool IsStructural(char *card)
{
    switch (fits_get_keyclass(card)) {
    case TYP_STRUC_KEY:
    case TYP_CMPRS_KEY:
    case TYP_SCAL_KEY:
    case TYP_NULL_KEY:
    case TYP_DIM_KEY:
    case TYP_RANG_KEY:
    case TYP_HDUID_KEY:
    case TYP_CKSUM_KEY:
        return true;
    default:
        return false;
    }
}

/// Of FITS itself; several words are allowed behind HIERARCH. Keys of other formats have small letters.
bool IsKeyword(const QString &key)
{
    static const QRegularExpression pattern("^[A-Z0-9_-]+( [A-Z0-9_-]+)*$");
    return pattern.match(key).hasMatch();
}

/// FITS knows the printable letters of ASCII only.
QByteArray Printable(const QString &text)
{
    QByteArray bytes = text.toLatin1();
    for (char &byte : bytes) {
        if (byte == '\n' || byte == '\t' || byte == '\r')
            byte = ' ';
        else if (byte < ' ' || byte > '~')
            byte = '?';
    }
    return bytes;
}

void WriteKeyword(fitsfile *fits, const MetadataEntry &entry, int *status)
{
    constexpr int keyLetters = 8;
    constexpr int cardLetters = 80;
    const QByteArray key = Printable(entry.key);
    const QByteArray value = Printable(entry.value);
    const QByteArray comment = Printable(entry.comment);
    if (entry.isText) {
        fits_write_key_longstr(fits, key.constData(), value.constData(), comment.constData(), status);
        return;
    }
    const QByteArray name = key.size() <= keyLetters ? key.leftJustified(keyLetters) + "= " : "HIERARCH " + key + " = ";
    fits_write_record(fits, (name + value.rightJustified(20) + " / " + comment).left(cardLetters).constData(), status);
}

} // namespace

QVector<MetadataEntry> ReadFitsCards(fitsfile *fits)
{
    QVector<MetadataEntry> entries;
    int status = 0;
    int cards = 0;
    fits_get_hdrspace(fits, &cards, nullptr, &status);
    for (int i = 1; i <= cards && status == 0; ++i) {
        char card[FLEN_CARD] = "";
        char key[FLEN_KEYWORD] = "";
        char value[FLEN_VALUE] = "";
        char comment[FLEN_COMMENT] = "";
        fits_read_record(fits, i, card, &status);
        int cardStatus = status; // a card that makes no sense is passed over, the rest is read on
        fits_read_keyn(fits, i, key, value, comment, &cardStatus);
        if (cardStatus != 0 || key[0] == '\0' || IsStructural(card))
            continue;
        const QString name = key;
        if (name == "CONTINUE") {
            const QString more = QuotedText(card + continuedColumn);
            if (!entries.isEmpty() && entries.last().value.endsWith('&') && !more.isNull()) {
                entries.last().value.chop(1);
                entries.last().value += more;
            }
        } else if (IsCommentary(name)) {
            entries.append({name, QString::fromLatin1(comment).trimmed(), QString(), true});
        } else {
            const QString text = QuotedText(value);
            entries.append({name, text.isNull() ? QString(value) : text, QString::fromLatin1(comment), !text.isNull()});
        }
    }
    fits_clear_errmsg();
    return entries;
}

void WriteFitsCard(fitsfile *fits, const MetadataEntry &entry, int *status)
{
    if (entry.key == "HISTORY")
        fits_write_history(fits, Printable(entry.value).constData(), status);
    else if (entry.key == "COMMENT")
        fits_write_comment(fits, Printable(entry.value).constData(), status);
    else if (IsKeyword(entry.key))
        WriteKeyword(fits, entry, status);
    else
        fits_write_comment(fits, Printable(entry.key + ": " + entry.value).constData(), status);
}
