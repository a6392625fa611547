// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "componentitem.h"
#include "rulersteps.h"
#include "rulerticks.h"

#include <QColor>
#include <QRect>

/// A scale along the spectrum image: ticks at round steps of image pixels, numbers at the long ones,
/// a title. The numbers are image pixels, or a physical value once a range is set.
class RulerBarLayoutItem : public ComponentItem
{
    Q_OBJECT

public:
    RulerBarLayoutItem(const QString &title, QWidget *parent);

    /// Takes this geometry (parent's pixels) and works everything out again for it.
    void ApplyGeometry(QRect rect);

public slots:
    /// Size of the whole image. Rebuilds nothing.
    void changedActualSize(QSize size);
    /// The visible part in image pixels; the steps are worked out again when its size differs or on `change`.
    void changedActualRect(QRectF rect, bool change);
    void changedTitleName(QString title);
    /// Values at the two ends of the image, at least 5 apart; a negative end shows image pixels.
    void changedShowValueRange(double min, double max);

protected:
    virtual void UpdateImageLength() = 0;
    virtual void UpdateVisibleSpan() = 0;
    virtual void BuildTicks() = 0;
    virtual void ComputeSteps() = 0;
    virtual void DrawTitle(QPainter *painter) = 0;
    virtual void DrawLabels(QPainter *painter) = 0;

    void DrawContent(QPainter *painter) override;

    /// Builds the ticks, and repaints where they are others than before: a ruler is told its range with every frame.
    void RebuildTicks();
    void ComputeStepsFor(int itemLength);
    RulerNumbers Numbers() const;
    RulerPlace Place() const;
    /// Gives the painter the font of labels and title.
    static void SetTextFont(QPainter *painter);

    int penWidth = 1;
    QColor penColor = Qt::white;
    QString title;
    int majorDivisions = 5; ///< majors that should span the visible length
    int minorDivisions = 5; ///< minors that should span a major
    RulerSteps steps;
    int majorTickLength = 6; ///< px
    int minorTickLength = 3; ///< px
    QSize imageSize{400, 400};
    QRect visibleRect{0, 0, 400, 400}; ///< image pixels
    RulerTicks ticks;
    int labelDecimals = 0;
    double rangeMin = -1.0; ///< negative: no range
    double rangeMax = -1.0;
    double zoom = 1.0;
    bool axesSwapped = false;
    int imageLength = 400;   ///< image pixels along the ruler
    int visibleLength = 400; ///< image pixels along the ruler
    int visibleStart = 0;    ///< image pixels along the ruler
    bool ticksHidden = false;
};
