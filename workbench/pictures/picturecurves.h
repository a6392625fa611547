// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pickedprofiles.h"

#include <QPointF>
#include <QRectF>
#include <QSize>

class Picture;

/// The row and column profile of an opened picture through the point that was picked last, from its samples of any type.
/// GUI thread: bands are narrow, so that even a large picture takes a few milliseconds at most.
class PictureCurves
{
public:
    /// A profile, and the part of it that is visible.
    struct Curve
    {
        std::vector<double> values; ///< those of the file; 0 for what is no number or infinite
        std::vector<int> samples;   ///< as they are told
        int offset = 0;
        int count = 0;

        /// For samples that tell the values to eight digits: 1 for whole numbers, else a power of ten.
        double FinestFactor() const;
        /// The samples are the values times this, rounded.
        void Tell(double factor);
        /// All samples count as visible.
        void ShowAll();
    };

    /// `point` in picture pixels; `region` holds left, top, right and bottom as parts of the picture. A point that is no
    /// number picks nothing.
    void Pick(const QPointF &point, const QRectF &region);
    void Forget() { m_isPicked = false; }
    bool IsPicked() const { return m_isPicked; }
    /// Of each profile; see PickedProfiles.
    void SetLines(int lines);

    /// The values and visible parts of both. False when nothing is picked or there are no samples.
    bool Make(const Picture &picture);
    /// Of the row or column profile: 1 where a sample was at the end of its type's range. Empty when that says nothing:
    /// of fractions, and of samples of more than 8 bits none of which is there, as the camera may have had fewer.
    std::vector<quint8> Saturated(const Picture &picture, bool alongRow) const;
    Curve &Row() { return m_row; }
    Curve &Column() { return m_column; }
    /// The rows, or columns, of a picture that the row profile, or the column profile, is the mean of.
    ProfileBand RowBand(const QSize &picture) const;
    ProfileBand ColumnBand(const QSize &picture) const;

private:
    void TakeUnsigned(const Picture &picture, const QPoint &point);
    void TakeAny(const Picture &picture, const QPoint &point);

    bool m_isPicked = false;
    QPointF m_point;
    QRectF m_region;
    int m_lines = 1;
    PickedProfiles m_profiles;
    Curve m_row;
    Curve m_column;
};
