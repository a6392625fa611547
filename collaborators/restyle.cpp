// SPDX-License-Identifier: GPL-3.0-or-later
#include "restyle.h"

#include <QStyle>
#include <QWidget>

void RenameAndRestyle(QWidget *widget, const QString &objectName)
{
    widget->setObjectName(objectName);
    // Makes the style look again, but only below a widget that has a style sheet.
    widget->setStyleSheet("");
    // With the application's style sheet alone this does.
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->update();
}
