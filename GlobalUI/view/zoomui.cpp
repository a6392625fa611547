// SPDX-License-Identifier: GPL-3.0-or-later
#include "zoomui.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace {
void AddButton(QHBoxLayout *row, const char *name, const QString &text)
{
    auto *button = new QPushButton(text, row->parentWidget());
    button->setObjectName(name);
    row->addWidget(button);
}
} // namespace

ZoomUI::ZoomUI(QWidget *parent)
    : QWidget(parent)
{
    setWindowTitle(tr("Form"));
    resize(462, 65);
    auto *row = new QHBoxLayout(this);
    const QMargins margins = row->contentsMargins();
    row->setContentsMargins(margins.left(), 0, margins.right(), 0);
    AddButton(row, "pushButtonZoomIn", tr("Zoom In"));
    AddButton(row, "pushButtonZoomOut", tr("Zoom Out"));
    AddButton(row, "pushButton1vs1", tr("1 : 1"));
    AddButton(row, "pushButtonFit", tr("Fit"));

    QMetaObject::connectSlotsByName(this);
}

void ZoomUI::on_pushButtonZoomIn_clicked()
{
    emit signalZoomIn();
}

void ZoomUI::on_pushButtonZoomOut_clicked()
{
    emit signalZoomOut();
}

void ZoomUI::on_pushButton1vs1_clicked()
{
    emit signalZoom1v1();
}

void ZoomUI::on_pushButtonFit_clicked()
{
    emit signalZoomFit();
}
