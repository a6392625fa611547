// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editedframes.h"
#include "picturewriter.h"
#include "samplerange.h"

#include <QImage>
#include <QMetaType>

#include <memory>

class PictureDisplay;

/// What is to be saved: frames of an opened file as they are seen, or a picture of the screen.
struct SaveRequest
{
    PictureAccess::FileName file;
    int firstFrame = 0;
    int frameCount = 1;
    PictureEdit edit;
    /// For formats that hold less than the samples, of each kind of frame (see PictureInfo).
    QVector<SampleRange> ranges;
    /// Of the columns or rows as they are seen, instead of what the file says; may be empty.
    QVector<MetadataEntry> calibration;
    QImage image;      ///< instead of a file's frames, Grayscale8 or RGB888
    QString target;
    bool compress = false;
};

Q_DECLARE_METATYPE(SaveRequest)

/// Saves one request, one frame a step, so that the thread that does it can do other work in between.
class SaveTask
{
public:
    explicit SaveTask(const SaveRequest &request);

    const SaveRequest &Request() const { return m_request; }
    /// False when the task has ended, for good or, with a text in Error(), for bad.
    bool Step(EditedFrames &frames, PictureDisplay &display);
    const QString &Error() const { return m_error; }

private:
    /// `fileSize` is that of the first frame in the file.
    bool Begin(PictureAccess &access, const QSize &fileSize);
    bool Frame(EditedFrames &frames, Picture &frame, QSize &fileSize);

    SaveRequest m_request;
    std::unique_ptr<PictureWriter> m_writer;
    int m_framesDone = 0;
    QString m_error;
};

/// What a format cannot keep of a picture, for the user before he saves; empty when it keeps all samples as they are.
QString SavingLossText(PictureFormat format, SampleType type, int channels);
