// SPDX-License-Identifier: GPL-3.0-or-later
#include "fitsheader.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>

#include <cmath>
#include <fitsio.h>

namespace {

constexpr int cardBytes = 80;
constexpr int keyBytes = 8;
/// Far more than any header has; a file that never ends its header is not read whole.
constexpr int mostCards = 100000;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(FitsHeader)
};

/// A quoted text at the start: 'It''s ' / why -> It's; trailing blanks mean nothing. Null without one.
QString QuotedText(const QString &field, QString &rest)
{
    static const QRegularExpression pattern("^\\s*'((?:[^']|'')*)'");
    const QRegularExpressionMatch match = pattern.match(field);
    if (!match.hasMatch())
        return QString();
    rest = field.mid(match.capturedEnd());
    QString text = match.captured(1).replace("''", "'");
    while (text.endsWith(' '))
        text.chop(1);
    return text.isNull() ? QString("") : text;
}

/// "value / comment" into its parts.
void SetValue(const QString &field, MetadataEntry &entry)
{
    QString rest;
    const QString text = QuotedText(field, rest);
    entry.isText = !text.isNull();
    if (entry.isText) {
        entry.value = text;
    } else {
        const int slash = field.indexOf('/');
        entry.value = field.left(slash).trimmed();
        rest = slash < 0 ? QString() : field.mid(slash);
    }
    entry.comment = rest.section('/', 1).trimmed();
}

/// Describes how the data is stored, or is written anew with every file.
bool IsStructural(QByteArray card)
{
    switch (fits_get_keyclass(card.data())) {
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

} // namespace

bool FitsHeader::Read(QFile &file, qint64 offset, FileFault &fault)
{
    *this = FitsHeader();
    for (qint64 place = offset; file.seek(place) && m_cards.size() < mostCards; place += blockBytes) {
        const QByteArray block = file.read(blockBytes);
        for (int start = 0; start + cardBytes <= block.size(); start += cardBytes) {
            const QByteArray card = block.mid(start, cardBytes);
            if (card.startsWith("END     ")) {
                m_dataOffset = place + blockBytes;
                return true;
            }
            Append(card);
        }
        if (block.size() < blockBytes)
            break;
    }
    return fault.Set(Text::tr("the header that begins at byte %1 has no end").arg(offset), DamagedAdvice());
}

void FitsHeader::Append(const QByteArray &card)
{
    const MetadataEntry entry = Parsed(card);
    if (!m_index.contains(entry.key))
        m_index.insert(entry.key, m_cards.size());
    m_cards.append({card, entry});
}

MetadataEntry FitsHeader::Parsed(const QByteArray &card)
{
    MetadataEntry entry;
    const QString text = QString::fromLatin1(card);
    entry.key = text.left(keyBytes).trimmed();
    const int equals = text.indexOf('=');
    if (entry.key == "HIERARCH" && equals > keyBytes) {
        entry.key = text.mid(keyBytes, equals - keyBytes).simplified();
        SetValue(text.mid(equals + 1), entry);
    } else if (text.mid(keyBytes, 2) == "= ") {
        SetValue(text.mid(keyBytes + 2), entry);
    } else {
        entry.value = text.mid(keyBytes).trimmed(); // HISTORY, COMMENT, CONTINUE
    }
    return entry;
}

double FitsHeader::Number(const QString &key, double otherwise) const
{
    const int card = m_index.value(key, -1);
    if (card < 0 || m_cards[card].entry.isText)
        return otherwise;
    bool isNumber = false;
    const double value = QString(m_cards[card].entry.value).replace('D', 'E').toDouble(&isNumber); // 1.5D3 is allowed
    return isNumber && std::isfinite(value) ? value : otherwise;
}

QString FitsHeader::Text(const QString &key) const
{
    const int card = m_index.value(key, -1);
    return card >= 0 && m_cards[card].entry.isText ? m_cards[card].entry.value : QString();
}

bool FitsHeader::IsTrue(const QString &key) const
{
    const int card = m_index.value(key, -1);
    return card >= 0 && !m_cards[card].entry.isText && m_cards[card].entry.value == "T";
}

double FitsHeader::DataBytes() const
{
    const int axes = int(qBound(0.0, Number("NAXIS", 0), 999.0));
    double samples = axes > 0 ? 1 : 0;
    for (int axis = 1; axis <= axes; ++axis)
        samples *= std::max(0.0, Number("NAXIS", axis, 0));
    return std::abs(Number("BITPIX", 8)) / 8 * Number("GCOUNT", 1) * (std::max(0.0, Number("PCOUNT", 0)) + samples);
}

QVector<MetadataEntry> FitsHeader::Metadata() const
{
    QVector<MetadataEntry> entries;
    for (const Card &card : m_cards) {
        const MetadataEntry &entry = card.entry;
        if (entry.key.isEmpty() || IsStructural(card.text))
            continue;
        if (entry.key == "CONTINUE") {
            QString rest;
            const QString more = QuotedText(entry.value, rest);
            if (!entries.isEmpty() && entries.last().value.endsWith('&') && !more.isNull()) {
                entries.last().value.chop(1);
                entries.last().value += more;
            }
            continue;
        }
        entries.append(entry);
    }
    return entries;
}
