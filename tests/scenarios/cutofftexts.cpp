// SPDX-License-Identifier: GPL-3.0-or-later
#include "cutofftexts.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QTextDocument>

namespace {

/// Wrapped text has all the width that it wants.
bool HasWholeText(const QWidget *widget)
{
    if (auto *label = qobject_cast<const QLabel *>(widget))
        return !label->wordWrap() && !label->text().isEmpty() && !Qt::mightBeRichText(label->text());
    if (auto *button = qobject_cast<const QAbstractButton *>(widget))
        return !button->text().isEmpty();
    return qobject_cast<const QGroupBox *>(widget);
}

} // namespace

QStringList CutOffTexts(const QWidget *window)
{
    QStringList names;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        const int needed = widget->minimumSizeHint().width();
        if (widget->isVisible() && HasWholeText(widget) && widget->width() < needed)
            names << QString("%1 of %2: needs %3, has %4")
                         .arg(widget->objectName(), widget->parentWidget()->metaObject()->className())
                         .arg(needed)
                         .arg(widget->width());
    }
    return names;
}
