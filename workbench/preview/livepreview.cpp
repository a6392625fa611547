// SPDX-License-Identifier: GPL-3.0-or-later
#include "livepreview.h"

#include "frameanalysis.h"
#include "framesource.h"
#include "livelevels.h"
#include "liveorientation.h"
#include "orientedimage.h"

#include <algorithm>
#include <utility>

namespace {
/// How long the thread waits for a frame before it looks again whether it is to go on.
constexpr int TakeTimeoutMs = 500;
/// How long it sleeps before it looks again whether other work still wants the processor.
constexpr int PauseMs = 10;
}

LivePreview::LivePreview(FrameSource *source, LiveOrientation *orientation, LiveLevels *levels, QObject *parent)
    : PreviewManager(parent)
    , m_source(source)
    , m_orientation(orientation)
    , m_maker(levels)
{
    setObjectName("LivePreview");
    connect(m_orientation, SIGNAL(signalOrientationChanged()), this, SLOT(slotShowAgain()));
    connect(levels, SIGNAL(signalPictureWanted()), this, SLOT(slotShowAgain()));
}

LivePreview::~LivePreview()
{
    StopPreview();
}

bool LivePreview::StartPreview()
{
    if (isRunning())
        return true;
    m_slot.Restart();
    m_gate.Open();
    if (!m_source->StartFrames(this))
        return false;
    start();
    return true;
}

bool LivePreview::StopPreview()
{
    if (!isRunning())
        return false;
    m_source->StopFrames();
    requestInterruption();
    m_slot.Stop();
    m_gate.Close();
    wait();
    return true;
}

/// Saving never stops the preview, so there is nothing to bring back; one that the user stopped stays so.
void LivePreview::RestoreStopPreview() {}

void LivePreview::FrameSave(bool record, bool single)
{
    emit signalCaptureWanted(record, single);
}

const RawCameraFrame *LivePreview::GetCurrentRawFrame() const
{
    return m_rawFrames.Front();
}

void LivePreview::Forget()
{
    m_shownFrame = CameraFrame();
    m_shownSize = QSize();
}

void LivePreview::AddAnalysis(FrameAnalysis *analysis)
{
    m_analyses.push_back(analysis);
}

void LivePreview::OnFrame(const CameraFrame &frame)
{
    m_slot.Put(frame);
}

void LivePreview::run()
{
    QElapsedTimer sinceLast;
    while (!isInterruptionRequested() && m_gate.Enter()) {
        KeepPeriod(&sinceLast);
        CameraFrame frame;
        while (frame.IsNull() && !isInterruptionRequested())
            frame = m_slot.Take(TakeTimeoutMs);
        if (frame.IsNull())
            m_gate.Leave();
        else
            SendPicture(frame);
    }
}

void LivePreview::KeepPeriod(QElapsedTimer *sinceLast)
{
    const auto rest = [&] { return sinceLast->isValid() ? m_leastPeriodMs() - sinceLast->elapsed() : 0; };
    for (qint64 ms = rest(); ms > 0 && !isInterruptionRequested(); ms = rest())
        msleep(ulong(std::min(ms, qint64(PauseMs))));
    sinceLast->start();
}

/// Inside the gate; the GUI thread leaves it. The three deliveries stay in this order.
void LivePreview::SendPicture(const CameraFrame &frame)
{
    const Orientation orientation = m_orientation->Get();
    const QImage picture = OrientedImage(m_maker.Make(frame), orientation);
    {
        const std::lock_guard<std::mutex> lock(m_handOver);
        m_rawFrames.FillBack(picture);
        m_frameOnItsWay = frame;
        m_sizeOnItsWay = picture.size();
        m_orientationOnItsWay = orientation;
    }
    QMetaObject::invokeMethod(this, "slotPictureArrives", Qt::QueuedConnection);
    emit signalPreviewImage(picture);
    // What comes of it finds the picture and its size delivered.
    for (FrameAnalysis *analysis : m_analyses)
        analysis->Analyse({PictureMaker::ViewOf(frame), orientation, m_maker.UsedLevels()});
    QMetaObject::invokeMethod(this, "slotPictureDelivered", Qt::QueuedConnection);
}

void LivePreview::slotPictureArrives()
{
    QSize size;
    {
        const std::lock_guard<std::mutex> lock(m_handOver);
        m_rawFrames.Swap();
        m_shownFrame = std::exchange(m_frameOnItsWay, CameraFrame());
        m_shownOrientation = m_orientationOnItsWay;
        size = m_sizeOnItsWay;
    }
    if (m_shownSize == size)
        return;
    m_shownSize = size;
    emit signalPictureSizeChanged(m_shownSize);
    emit signalImageSizeChanged();
}

void LivePreview::slotPictureDelivered()
{
    ++m_delivered;
    m_gate.Leave();
    emit signalPictureDelivered();
}

void LivePreview::slotShowAgain()
{
    if (isRunning() || m_shownFrame.IsNull())
        return;
    if (m_gate.IsTaken()) {
        if (!std::exchange(m_isAskedAgain, true))
            QMetaObject::invokeMethod(this, &LivePreview::ShowWhenFree, Qt::QueuedConnection);
        return;
    }
    m_gate.Open();
    if (m_gate.Enter())
        SendPicture(m_shownFrame);
}

void LivePreview::ShowWhenFree()
{
    m_isAskedAgain = false;
    slotShowAgain();
}

void LivePreview::slotManualROI(int x, int y, int width, int height, bool apply)
{
    if (!apply || m_shownFrame.IsNull())
        return;
    const QSize frameSize(m_shownFrame.width, m_shownFrame.height);
    const Orientation orientation = m_orientation->Get();
    const QSize seenSize = orientation.Map(frameSize);
    const QRect seen = QRect(x, y, width, height) & QRect(QPoint(0, 0), seenSize);
    emit signalRegionWanted(orientation.Inverse().Map(seen, seenSize));
}
