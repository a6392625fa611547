// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cameraframe.h"
#include "frameledger.h"
#include "pictureinfo.h"

#include <QDateTime>
#include <QJsonObject>
#include <QMetaType>
#include <QRect>
#include <QSize>
#include <QString>
#include <QVector>

#include <utility>

/// Frames of one recording: what is told of each of them at the end of its file has to fit into memory.
constexpr int MostRunFrames = 4000000;

enum class RunFormat
{
    Tiff,
    Fits,
    Png
};

/// What was set anew while a run went on.
struct SettingsChange
{
    int frame = 0; ///< of the recording, from 0: the first one taken with it
    double exposureUs = 0;
    bool isAutoExposure = false;
    double gain = 0;
    bool isAutoGain = false;
    double framesPerSecond = 0;
};

/// What a recording is taken with; known before its first frame, but for what is changed later, and written into its
/// file.
struct RunFacts
{
    QString vendor;
    QString model;
    QString serial;
    QString firmware;
    double exposureUs = 0;
    bool isAutoExposure = false; ///< found by the camera, frame by frame; `exposureUs` is that of the start
    double gain = 0; ///< in the camera's unit
    bool isAutoGain = false;
    double framesPerSecond = 0;
    int intervalMs = 0; ///< of a time-lapse; 0 when every frame was wanted
    QVector<SettingsChange> changes; ///< in the order of their frames; not in the JSON
    QRect region; ///< of the sensor, in unbinned pixels
    QSize binning{ 1, 1 };
    QSize frameSize; ///< of every frame of the run
    PixelLayout layout = PixelLayout::Mono8;
    double pixelSizeUm = 0; ///< of a frame's pixel, in the object; 0 when not calibrated
    /// Spectral, of the columns or rows of every frame as it is written; may be empty.
    QVector<MetadataEntry> calibration;
    QDateTime start;
    QString software; ///< name and version of the program

    /// Of one frame without padding.
    qint64 FrameBytes() const
    {
        return qint64(frameSize.width()) * frameSize.height() * BytesPerPixel(layout);
    }
    int Channels() const { return layout == PixelLayout::Rgb8 ? 3 : 1; }
    int BitsPerSample() const { return ::BitDepth(layout) > 8 ? 16 : 8; }
    /// Bits of a sample that carry light.
    int BitDepth() const { return ::BitDepth(layout); }
    /// As they held for one frame of the recording.
    RunFacts At(int frame) const;
    /// For people: what it is, and its value with the unit.
    QVector<std::pair<QString, QString>> Lines() const;

    QJsonObject ToJson() const;
    /// False when the size or the layout makes no sense.
    static bool FromJson(const QJsonObject &json, RunFacts *facts);
};

/// What is known of one frame of a recording.
struct FrameStamp
{
    quint64 frameId = 0;
    qint64 cameraTimeNs = 0; ///< by the camera's clock
    qint64 hostTimeNs = 0;   ///< since 1970
    quint64 checksum = 0;    ///< of the frame's samples, see RunChecksum
};

/// Frame ids that are missing: so many from the first one on.
struct IdGap
{
    quint64 first = 0;
    quint64 count = 0;
};

/// The reason for which a run ended.
enum class RunEnd
{
    Complete, ///< all that was asked for
    Stopped,  ///< by the user
    CameraLost,
    Fault,   ///< a frame could not be kept
    Repaired ///< left behind by a program that died; found and closed later
};

/// How a run ended: what its file, its summary and its receipt say.
struct RunOutcome
{
    RunEnd end = RunEnd::Complete;
    QString reason;           ///< in words, empty when complete
    FrameCounts counts;       ///< of this run alone
    QVector<IdGap> lostIds;   ///< the first ones and the last one, if many

    QString EndText() const;
};

Q_DECLARE_METATYPE(RunFormat)
