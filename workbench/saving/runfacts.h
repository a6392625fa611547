// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cameraframe.h"
#include "frameledger.h"

#include <QDateTime>
#include <QRect>
#include <QSize>
#include <QString>

/// What a recording is taken with; known before its first frame and written into its file.
struct RunFacts
{
    QString vendor;
    QString model;
    QString serial;
    QString firmware;
    double exposureUs = 0;
    double gain = 0;          ///< in the camera's unit
    double framesPerSecond = 0;
    QRect region;             ///< of the sensor, in unbinned pixels
    QSize binning{ 1, 1 };
    QSize frameSize;          ///< of every frame of the run
    PixelLayout layout = PixelLayout::Mono8;
    int bitDepth = 8;         ///< bits of a sample that carry light
    double pixelSizeUm = 0;   ///< in the object; 0 when not calibrated
    QDateTime start;
    QString software;         ///< name and version of the program
};

/// The reason for which a run ended.
enum class RunEnd
{
    Complete, ///< all that was asked for
    Stopped,  ///< by the user
    CameraLost,
    DiskFault,
    Repaired ///< left behind by a program that died; found and closed later
};

/// How a run ended: what its file, its summary and its receipt say.
struct RunOutcome
{
    RunEnd end = RunEnd::Complete;
    QString reason;     ///< in words, empty when complete
    FrameCounts counts; ///< of this run alone
    double seconds = 0; ///< from the first frame to the last one
};
