// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cameraframe.h"
#include "framesink.h"
#include "newestframeslot.h"
#include "orientation.h"
#include "picturegate.h"
#include "picturemaker.h"
#include "previewmanager.h"
#include "rawframebuffers.h"

#include <QElapsedTimer>
#include <QRect>
#include <QSize>

#include <functional>
#include <mutex>
#include <vector>

class FrameAnalysis;
class FrameSource;
class LiveLevels;
class LiveOrientation;

/// The live picture. The camera's stream thread puts frames into a one-place slot; this thread takes
/// the newest, makes a picture of it and hands it to the GUI thread, one picture at a time. Frames
/// that come faster than pictures are delivered are skipped. All but OnFrame() and run() belongs to
/// the GUI thread.
class LivePreview : public PreviewManager, public FrameSink
{
    Q_OBJECT

public:
    /// Milliseconds from one picture to the next while frames are recorded: 15 a second are enough to see what is
    /// recorded, and 4 while more than one frame waits to be saved.
    static int PeriodBesideRecording(int waitingFrames) { return waitingFrames > 1 ? 250 : 66; }

    /// All are borrowed and outlive this object.
    LivePreview(FrameSource *source, LiveOrientation *orientation, LiveLevels *levels,
                QObject *parent = nullptr);
    ~LivePreview() override;

    bool StartPreview() override;
    bool StopPreview() override;
    void RestoreStopPreview() override;
    void FrameSave(bool record, bool single) override;
    const RawCameraFrame *GetCurrentRawFrame() const override;

    /// The frame whose picture was delivered last; null before the first.
    const CameraFrame &ShownFrame() const { return m_shownFrame; }
    /// How it was laid on the screen.
    Orientation ShownOrientation() const { return m_shownOrientation; }
    /// Pictures delivered to the GUI thread.
    quint64 DeliveredCount() const { return m_delivered; }
    /// Frames that were too many for the display.
    quint64 SkippedCount() const { return m_slot.SkippedCount(); }
    /// Pictures come no faster than that, so that other work finds the processor free; 0 sets no limit.
    using LeastPeriod = std::function<int()>;
    /// Asked by the thread of this preview, as often as it waits; only while it does not run.
    void SetLeastPeriod(const LeastPeriod &milliseconds) { m_leastPeriodMs = milliseconds; }
    /// Forgets the frame and its size: the camera was closed.
    void Forget();
    /// Is given every frame that is shown from now on; only while the preview does not run. Borrowed.
    void AddAnalysis(FrameAnalysis *analysis);

    void OnFrame(const CameraFrame &frame) override;

public slots:
    void slotManualROI(int x, int y, int width, int height, bool apply) override;
    /// Makes and delivers a standing picture anew; a running preview does it with its next frame.
    void slotShowAgain();

signals:
    /// After signalPreviewImage() was delivered.
    void signalPictureDelivered();
    /// The size of the picture as it is shown has changed; comes before the picture itself.
    void signalPictureSizeChanged(QSize size);
    /// A capture is to begin, or the one that runs to end.
    void signalCaptureWanted(bool record, bool single);
    /// A region to be read out of the camera, in pixels of the frame.
    void signalRegionWanted(QRect region);

protected:
    void run() override;

private slots:
    void slotPictureArrives();
    void slotPictureDelivered();

private:
    void SendPicture(const CameraFrame &frame);
    void KeepPeriod(QElapsedTimer *sinceLast);
    void ShowWhenFree();

    FrameSource *m_source;
    LiveOrientation *m_orientation;
    std::vector<FrameAnalysis *> m_analyses;
    NewestFrameSlot m_slot;
    PictureGate m_gate;
    PictureMaker m_maker; ///< belongs to whoever is inside the gate
    std::mutex m_handOver; ///< held while the next four are filled or taken over
    CameraFrame m_frameOnItsWay;
    QSize m_sizeOnItsWay;
    Orientation m_orientationOnItsWay;
    RawFrameBuffers m_rawFrames;

    CameraFrame m_shownFrame;
    QSize m_shownSize;
    Orientation m_shownOrientation;
    quint64 m_delivered = 0;
    bool m_isAskedAgain = false; ///< slotShowAgain() waits for the gate
    LeastPeriod m_leastPeriodMs = [] { return 0; };
};
