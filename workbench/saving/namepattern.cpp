// SPDX-License-Identifier: GPL-3.0-or-later
#include "namepattern.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

namespace {

constexpr int LongestName = 200; // bytes; file systems take 255, and numbers and suffixes follow
constexpr int MostDigits = 9;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(NamePattern)
};

const QRegularExpression &Token()
{
    static const QRegularExpression token("\\{([^{}]*)\\}");
    return token;
}

/// 0 for "number", n for "number:n", -1 for anything else.
int DigitsOf(const QString &token)
{
    if (token == "number")
        return 0;
    static const QRegularExpression withDigits("^number:([1-9])$");
    const QRegularExpressionMatch match = withDigits.match(token);
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

/// What a file name can hold anywhere.
QString Clean(QString name)
{
    for (QChar &letter : name) {
        if (!letter.isPrint() || QString("/\\:*?\"<>|").contains(letter))
            letter = '_';
    }
    name = name.trimmed();
    if (name.startsWith('.'))
        name[0] = '_'; // it would be hidden
    while (name.toUtf8().size() > LongestName)
        name.chop(1);
    return name.isEmpty() ? QString("recording") : name;
}

QString NumberText(double value) { return QString::number(value, 'g', 9); }

} // namespace

NamePattern::NamePattern(const QString &pattern)
    : m_pattern(pattern)
{
    Check();
}

void NamePattern::Check()
{
    static const QSet<QString> known{ "camera", "date", "time", "exposure", "gain" };
    QString rest = m_pattern;
    QRegularExpressionMatchIterator tokens = Token().globalMatch(m_pattern);
    while (tokens.hasNext()) {
        const QString token = tokens.next().captured(1);
        const bool isNumber = DigitsOf(token) >= 0;
        m_hasNumber = m_hasNumber || isNumber;
        if (!isNumber && !known.contains(token) && m_fault.isEmpty()) {
            m_fault =
                Text::tr(
                    "\"{%1}\" is not known. There are {camera}, {date}, {time}, {exposure}, {gain}, {number} and {number:4}.")
                    .arg(token);
        }
    }
    rest.remove(Token());
    if (m_fault.isEmpty() && (rest.contains('{') || rest.contains('}')))
        m_fault = Text::tr("A brace is left open. Write {date}, for instance.");
    if (m_fault.isEmpty() && m_pattern.trimmed().isEmpty())
        m_fault = Text::tr("The name is empty.");
}

QString NamePattern::Name(const Values &values, int number) const
{
    QString name;
    int from = 0;
    QRegularExpressionMatchIterator tokens = Token().globalMatch(m_pattern);
    while (tokens.hasNext()) {
        const QRegularExpressionMatch match = tokens.next();
        const QString token = match.captured(1);
        name += m_pattern.mid(from, match.capturedStart() - from);
        from = match.capturedEnd();
        if (token == "camera")
            name += values.camera;
        else if (token == "date")
            name += values.start.toString("yyyyMMdd");
        else if (token == "time")
            name += values.start.toString("HHmmss");
        else if (token == "exposure")
            name += NumberText(values.exposureUs);
        else if (token == "gain")
            name += NumberText(values.gain);
        else
            name += QString("%1").arg(number, qMin(DigitsOf(token), MostDigits), 10, QChar('0'));
    }
    return Clean(name + m_pattern.mid(from));
}

QString NamePattern::NextFree(const QString &folder, const QString &suffix, const Values &values) const
{
    // One look into the folder: a name is taken with any ending, and as the start of a sequence.
    QSet<QString> taken;
    static const QRegularExpression frameNumber("_[0-9]{6}$");
    for (const QString &file :
         QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) {
        QString name = file;
        for (const QString &ending : { QString(".journal"), QString(".part"), QString(".tif"),
                                       QString(".fits"), QString(".png"), QString(".txt") }) {
            if (name.endsWith(ending))
                name.chop(ending.size());
        }
        taken.insert(name);
        taken.insert(name.remove(frameNumber));
    }
    for (int number = 1;; ++number) {
        QString name = Name(values, number);
        if (!m_hasNumber && number > 1)
            name += QString("_%1").arg(number);
        if (!taken.contains(name))
            return QDir(folder).filePath(name + '.' + suffix);
    }
}
