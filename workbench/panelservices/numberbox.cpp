// SPDX-License-Identifier: GPL-3.0-or-later
#include "numberbox.h"

#include <QLineEdit>
#include <QRegularExpression>

#include <cmath>

namespace {
constexpr double SmallestDifference = 1e-9;
}

NumberBox::NumberBox(QWidget *parent)
    : QDoubleSpinBox(parent)
{
    setKeyboardTracking(false);
}

void NumberBox::Show(double minimum, double maximum, double value)
{
    const QSignalBlocker blocker(this);
    const bool isTyping = hasFocus() && lineEdit()->isModified();
    const QString typed = lineEdit()->text();
    const int cursor = lineEdit()->cursorPosition();
    setRange(minimum, maximum);
    if (std::abs(this->value() - value) > SmallestDifference)
        setValue(value);
    if (isTyping && lineEdit()->text() != typed) {
        lineEdit()->setText(typed);
        lineEdit()->setCursorPosition(cursor);
        lineEdit()->setModified(true);
    }
}

/// Without prefix and suffix, in the user's way of writing numbers or the programmer's.
bool NumberBox::Parse(const QString &text, double *value) const
{
    QString bare = text;
    if (!prefix().isEmpty() && bare.startsWith(prefix()))
        bare.remove(0, prefix().size());
    if (!suffix().isEmpty() && bare.endsWith(suffix()))
        bare.chop(suffix().size());
    bare = bare.trimmed();
    bool isNumber = false;
    *value = locale().toDouble(bare, &isNumber);
    if (!isNumber)
        *value = bare.toDouble(&isNumber);
    return isNumber && std::isfinite(*value);
}

QValidator::State NumberBox::validate(QString &text, int &position) const
{
    double value = 0;
    if (!specialValueText().isEmpty() && text == specialValueText())
        return QValidator::Acceptable;
    if (!Parse(text, &value)) {
        // On the way to a number, whatever the limits are.
        static const QRegularExpression begun(QStringLiteral("^[-+0-9.,eE\\s]*$"));
        const QString bare = QString(text).remove(prefix()).remove(suffix());
        return begun.match(bare).hasMatch() ? QValidator::Intermediate : QDoubleSpinBox::validate(text, position);
    }
    return value < minimum() || value > maximum() ? QValidator::Intermediate : QValidator::Acceptable;
}

double NumberBox::valueFromText(const QString &text) const
{
    double value = 0;
    if (Parse(text, &value))
        return qBound(minimum(), value, maximum());
    return QDoubleSpinBox::valueFromText(text);
}

void NumberBox::fixup(QString &text) const
{
    double value = 0;
    if (Parse(text, &value))
        text = prefix() + textFromValue(qBound(minimum(), value, maximum())) + suffix();
}
