// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "countsettings.h"
#include "picture.h"

#include <QPointF>
#include <QVector>

/// One object that was counted. Pixels; the middle of the picture's first pixel is (0.5, 0.5).
struct CountedObject
{
    int area = 0;
    QPointF centroid;
    double meanIntensity = 0; ///< of the samples; of a colour picture the mean of the three channels
    double equivalentDiameter = 0; ///< of the disc of the same area
    double perimeter = 0;
    double circularity = 0;
};

/// Objects in the order in which their first pixels are read.
struct ObjectCount
{
    double level = 0; ///< that was used
    QVector<CountedObject> objects;
    /// For each pixel the number of its object, from 1 on, or 0; unsigned 32 bit.
    Picture labels;
};

/// Finds the objects of a picture: pixels that touch, also at a corner, are one object, until it is split. Null labels,
/// with the reason in `error`, when that is not possible. Throws std::bad_alloc when there is no memory.
ObjectCount CountObjects(const Picture &picture, const CountSettings &settings, QString &error);
