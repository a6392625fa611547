// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelservicesexport.h"

#include <QDoubleSpinBox>

/// A spin box that lets any number be typed and, when it is done, moves it to the nearest limit: who types too much sees
/// what the limit is, instead of keys that do nothing. A value is told when it is whole, not with each digit.
class WORKBENCH_PANELSERVICES_EXPORT NumberBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit NumberBox(QWidget *parent = nullptr);

    /// As QDoubleSpinBox, but a value that is being typed is left alone and nothing is emitted.
    void Show(double minimum, double maximum, double value);

protected:
    QValidator::State validate(QString &text, int &position) const override;
    double valueFromText(const QString &text) const override;
    void fixup(QString &text) const override;

private:
    bool Parse(const QString &text, double *value) const;
};
