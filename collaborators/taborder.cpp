// SPDX-License-Identifier: GPL-3.0-or-later
#include "taborder.h"

#include <QWidget>

namespace {

/// What of the area may have the focus, in its order. The line of a number box, say, belongs to the box.
QVector<QWidget *> Stops(QWidget *area)
{
    QVector<QWidget *> stops;
    QWidget *widget = area;
    do {
        const bool isInside = widget == area || area->isAncestorOf(widget);
        if (isInside && widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy())
            stops << widget;
        widget = widget->nextInFocusChain();
    } while (widget != area);
    return stops;
}

} // namespace

void ChainTabOrder(const QVector<QWidget *> &areas)
{
    QWidget *before = nullptr;
    for (QWidget *area : areas) {
        for (QWidget *stop : Stops(area)) {
            if (before)
                QWidget::setTabOrder(before, stop);
            before = stop;
        }
    }
}
