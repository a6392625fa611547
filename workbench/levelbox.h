// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "samplekind.h"

#include <QDoubleSpinBox>

struct SampleRange;

/// A number of the levels dialog, in the units of the samples: whole, or with as many digits as tell apart what a
/// picture shows, be it 1e-9 or 1e9. GUI thread.
class LevelBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit LevelBox(QWidget *parent = nullptr);

    /// `samples` are those that the picture has.
    void SetKind(const SampleKind &kind, const SampleRange &samples);

    /// Significant digits that tell a thousandth of the range, at its end farther from 0.
    static int DigitsFor(const SampleRange &range);
    /// A power of ten, between a two-hundredth and a two-thousandth of the range.
    static double StepFor(const SampleRange &range);

    QString textFromValue(double value) const override;
    double valueFromText(const QString &text) const override;
    QValidator::State validate(QString &text, int &position) const override;

private:
    bool m_isWhole = true;
    int m_digits = 6;
};
