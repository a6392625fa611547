// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "orientation.h"
#include "picture.h"
#include "processsettings.h"
#include "spectralaxis.h"

#include <QMetaType>
#include <QVector>

#include <optional>

/// What was done to an opened picture. The user turns, crops and processes what he sees. Any row of turns and crops comes
/// down to one region of the picture before it, laid in one of the eight ways; a step of processing ends such a row and
/// begins the next. A value; samples are only looked at in Applied().
class PictureEdit
{
public:
    bool IsNone() const { return m_steps.isEmpty() && m_last == Geometry(); }
    /// Of all turns together.
    Orientation GetOrientation() const;
    bool IsCropped() const;

    /// After a command of the tool bar, a RotateType.
    PictureEdit Turned(int rotateType) const;
    /// Only `seen` is left, in pixels of what is seen now; `fileSize` is that of the frame in the file.
    /// Unchanged when nothing would be left.
    PictureEdit Cropped(const QRect &seen, const QSize &fileSize) const;
    /// Then processed; unchanged without a setting.
    PictureEdit Processed(const ProcessSettings &settings) const;

    int StepCount() const { return m_steps.size(); }
    const ProcessSettings &Step(int index) const { return m_steps.at(index).process; }
    /// What was done before and in the first `count` steps of processing.
    PictureEdit FirstSteps(int count) const;
    bool HasSameSteps(const PictureEdit &other) const { return m_steps == other.m_steps; }

    /// Size of what is seen of a frame.
    QSize SeenSize(const QSize &fileSize) const;
    /// Pixels of the file, along each side, in a pixel that is seen.
    int PixelsJoined() const;
    struct Source
    {
        QRect region; ///< pixels of the file's frame
        Orientation orientation;
    };
    /// What is seen of the file's frame, and how it is laid; nothing when its pixels were joined.
    std::optional<Source> SourceOf(const QSize &fileSize) const;
    /// The same; nothing when they were turned either.
    std::optional<QRect> FileRegion(const QSize &fileSize) const;
    /// What the columns, or the rows, that are seen mean, by those of the file; empty when they were joined.
    SpectralAxis SeenAxis(const SpectralAxis &ofFile, const QSize &fileSize) const;
    /// Frames that are left of those of the file.
    int SeenFrames(int fileFrames) const;
    /// A frame as it comes out of the steps of processing before `step`, turned and cropped as it was until then, or at
    /// the end for StepCount(); null when it is too small for the region.
    Picture Applied(const Picture &processed, int step) const;

    bool operator==(const PictureEdit &other) const { return m_steps == other.m_steps && m_last == other.m_last; }
    bool operator!=(const PictureEdit &other) const { return !(*this == other); }

private:
    struct Geometry
    {
        QRect region; ///< pixels before it; null for all of them
        Orientation orientation;

        QRect RegionOf(const QSize &size) const;
        bool operator==(const Geometry &other) const
        {
            return region == other.region && orientation == other.orientation;
        }
    };
    struct ProcessStep
    {
        Geometry before;
        ProcessSettings process;

        bool operator==(const ProcessStep &other) const
        {
            return before == other.before && process == other.process;
        }
    };

    QSize SizeAfterSteps(const QSize &fileSize) const;

    QVector<ProcessStep> m_steps;
    Geometry m_last;
};
Q_DECLARE_METATYPE(PictureEdit)
