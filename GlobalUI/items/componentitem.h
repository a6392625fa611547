// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QWidget>

class QPainter;

/// Base of the self-painting widgets around the spectrum image. It fixes the order of painting
/// (borders, content, foreground); a subclass fills in the hooks and draws from `itemSize`, not from
/// the widget's size. Who places an item resizes and repaints it. GUI thread.
class ComponentItem : public QWidget
{
    Q_OBJECT

public:
    explicit ComponentItem(QWidget *parent);

    /// Widget pixels, cut to whole ones. Neither resizes nor repaints; what is no number is ignored.
    void SetItemSize(double width, double height);

protected:
    virtual void OnItemSizeChanged(QSize size);
    virtual void DrawContent(QPainter *painter);
    virtual void DrawForeground(QPainter *painter);
    virtual void DrawBorders(QPainter *painter);

    void paintEvent(QPaintEvent *event) override;

    QSize itemSize{400, 400}; ///< widget pixels
};
