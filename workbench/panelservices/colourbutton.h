// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelservicesexport.h"

#include <QPushButton>

/// Shows a colour and, when it is pressed, lets another be chosen. GUI thread.
class WORKBENCH_PANELSERVICES_EXPORT ColourButton : public QPushButton
{
    Q_OBJECT

public:
    /// `title` says what has the colour.
    explicit ColourButton(const QString &title, QWidget *parent = nullptr);

    void SetColour(const QColor &colour);
    QColor Colour() const { return m_colour; }

signals:
    void signalChosen(QColor colour);

private:
    void Choose();

    QString m_title;
    QColor m_colour;
};
