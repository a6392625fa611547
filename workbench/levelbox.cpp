// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelbox.h"

#include "samplerange.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// The box keeps a value as it is, all decimals that a double can have; only the text has fewer.
constexpr int AllDecimals =
    std::numeric_limits<double>::max_exponent10 + std::numeric_limits<double>::digits10;

/// 3 for 1000 and for 5000.
int PowerOfTen(double value) { return int(std::floor(std::log10(value))); }

/// Of halves, so that it is never infinite; 0 for one single value.
double HalfWidth(const SampleRange &range) { return range.right / 2 - range.left / 2; }

} // namespace

LevelBox::LevelBox(QWidget *parent)
    : QDoubleSpinBox(parent)
{
    setAccelerated(true);
    setKeyboardTracking(false); // a number that is still being typed is no level
}

void LevelBox::SetKind(const SampleKind &kind, const SampleRange &samples)
{
    m_isWhole = kind.IsWhole();
    m_digits = DigitsFor(samples);
    setDecimals(m_isWhole ? 0 : AllDecimals);
    setRange(kind.Least(), kind.Most());
    setSingleStep(m_isWhole ? 1 : StepFor(samples));
}

int LevelBox::DigitsFor(const SampleRange &range)
{
    const double most = std::max(std::abs(range.left), std::abs(range.right));
    const double halfWidth = HalfWidth(range);
    constexpr int least = 4;
    if (!(halfWidth > 0))
        return least;
    return std::clamp(PowerOfTen(most) - PowerOfTen(halfWidth) + least, least,
                      std::numeric_limits<double>::max_digits10);
}

double LevelBox::StepFor(const SampleRange &range)
{
    const double halfWidth = HalfWidth(range);
    return halfWidth > 0 ? std::pow(10.0, PowerOfTen(halfWidth) - 2) : 0.01;
}

QString LevelBox::textFromValue(double value) const
{
    QLocale numbers = locale();
    numbers.setNumberOptions(QLocale::OmitGroupSeparator);
    return m_isWhole ? numbers.toString(value, 'f', 0) : numbers.toString(value, 'g', m_digits);
}

double LevelBox::valueFromText(const QString &text) const
{
    // Enter on a number that was not touched does not cut it down to its text.
    return text == textFromValue(value()) ? value() : locale().toDouble(text);
}

QValidator::State LevelBox::validate(QString &text, int &) const
{
    bool isNumber = false;
    const double number = locale().toDouble(text, &isNumber);
    if (isNumber && std::isfinite(number) && (!m_isWhole || number == std::floor(number)))
        return number >= minimum() && number <= maximum() ? QValidator::Acceptable : QValidator::Intermediate;
    // On the way to a number: "-", "1e", "1e-".
    const QString signs = QString("+-eE") + locale().decimalPoint();
    const bool isBegun =
        std::all_of(text.cbegin(), text.cend(), [&](QChar c) { return c.isDigit() || signs.contains(c); });
    return isBegun ? QValidator::Intermediate : QValidator::Invalid;
}
