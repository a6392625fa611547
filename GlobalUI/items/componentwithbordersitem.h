// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "componentitem.h"

#include <QColor>

/// An item with a thin rectangular border, painted below its content.
class ComponentWithBordersItem : public ComponentItem
{
    Q_OBJECT

public:
    explicit ComponentWithBordersItem(QWidget *parent);

protected:
    void DrawBorders(QPainter *painter) override;
    virtual void DrawExtra(QPainter *painter);

    int borderWidth = 1; ///< px
    QColor borderColor = Qt::white;
};
