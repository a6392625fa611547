// SPDX-License-Identifier: GPL-3.0-or-later
#include "colourbutton.h"

#include <QColorDialog>
#include <QPainter>

ColourButton::ColourButton(const QString &title, QWidget *parent)
    : QPushButton(parent)
    , m_title(title)
{
    setAccessibleName(title);
    connect(this, &QPushButton::clicked, this, &ColourButton::Choose);
}

void ColourButton::SetColour(const QColor &colour)
{
    if (m_colour == colour)
        return;
    m_colour = colour;
    QPixmap swatch(iconSize());
    swatch.fill(colour);
    QPainter painter(&swatch);
    painter.setPen(palette().color(QPalette::Mid)); // white on white is still seen
    painter.drawRect(swatch.rect().adjusted(0, 0, -1, -1));
    setIcon(swatch);
    setText(colour.name());
}

void ColourButton::Choose()
{
    auto *dialog = new QColorDialog(m_colour, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(m_title);
    connect(dialog, &QColorDialog::colorSelected, this, &ColourButton::signalChosen);
    dialog->open();
}
