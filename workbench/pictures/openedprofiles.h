// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture.h"
#include "picturecurves.h"

#include <QObject>

class PictureLevels;

/// The profiles of an opened picture through the point that was picked last: as curves for the pages, and as values in the
/// units of its file. Owned by its OpenedPicture, which hands over every picture that it shows, and its levels, which say what the
/// curves count. GUI thread.
class OpenedProfiles : public QObject
{
    Q_OBJECT

public:
    explicit OpenedProfiles(PictureLevels *levels, QObject *parent = nullptr);

    /// The picture on the screen.
    void SetPicture(const Picture &picture);
    /// Nothing is on the screen and no point picked any more.
    void Forget();
    /// See PictureCurves::Pick().
    void Pick(const QPointF &point, const QRectF &region);
    /// The middle of the picture and all of the curves, until the page picks; a point stays unless `isAnew`.
    void PickMiddle(bool isAnew);

    /// Empty when no point was picked.
    std::vector<double> Values(bool alongRow) const;
    /// Where a sample of it is saturated, see PictureCurves::Saturated().
    std::vector<quint8> Saturated(bool alongRow) const { return m_curves.Saturated(m_picture, alongRow); }
    bool IsSaturated(bool alongRow) const;
    /// The rows, or columns, that it is the mean of.
    ProfileBand Lines(bool alongRow) const;

public slots:
    /// Neighbouring lines that a curve is the mean of.
    void slotSetLines(int lines);
    /// Tells the curves, if a point was picked; the plot gets all of them.
    void slotAnnounce();

signals:
    /// The samples are there until the next call; `count` of them from `offset` on are visible.
    void signalRow(int *samples, int size, int offset, int count);
    void signalColumn(int *samples, int size, int offset, int count);

private:
    /// Beside the picture a curve is seen between the levels; the plot has a zoom and an axis of its own.
    void Prepare(PictureCurves::Curve *curve, bool isOfPlot);

    PictureLevels *m_levels;
    Picture m_picture;
    PictureCurves m_curves;
};
