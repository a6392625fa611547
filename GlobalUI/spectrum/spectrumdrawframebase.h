// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>
#include <QScrollArea>

class SpectrumDrawViewBase;

/// The scroll area around the spectrum image. It has no bars: the view scrolls it to the zoomed part.
/// Its parent is the widget whose size bounds the view.
class SpectrumDrawFrameBase : public QScrollArea
{
    Q_OBJECT

public:
    explicit SpectrumDrawFrameBase(QWidget *parent);

    SpectrumDrawViewBase *GetDrawView() const { return m_drawView; }

public slots:
    /// Screen pixels.
    void SlotSetSliderPosition(QPointF point);
    void SlotValueChange(int value);

protected:
    void resizeEvent(QResizeEvent *event) override;
    /// The wheel neither scrolls nor zooms.
    void wheelEvent(QWheelEvent *event) override;

private:
    /// A hidden area learns the sizes late; the position needs the ranges at once.
    void UpdateScrollRanges();

    SpectrumDrawViewBase *m_drawView;
};
