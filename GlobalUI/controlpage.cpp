// SPDX-License-Identifier: GPL-3.0-or-later
#include "controlpage.h"

#include <QVBoxLayout>
#include <QWidget>

QWidget *MakeControlPage(QWidget *bar, QWidget *tabs)
{
    auto *page = new QWidget; // reparented by the left stack
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(0, 10, 0, 0);
    column->addWidget(bar);
    column->addWidget(tabs);
    return page;
}
