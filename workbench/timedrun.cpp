// SPDX-License-Identifier: GPL-3.0-or-later
#include "timedrun.h"

#include "cameralink.h"
#include "processfacts.h"
#include "shownframes.h"
#include "uimanagerbase.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <cstdio>

namespace {
constexpr double MsPerSecond = 1000.0;
}

TimedRun::TimedRun(const CameraLink *link, const ShownFrames *shown, QWidget *window, int frames,
                   const QString &screenshot, QObject *parent)
    : QObject(parent)
    , m_link(link)
    , m_shown(shown)
    , m_window(window)
    , m_frames(quint64(frames))
    , m_screenshot(screenshot)
{
    connect(shown, SIGNAL(signalFrameShown()), this, SLOT(slotFrameShown()));
    connect(link, SIGNAL(signalStateChanged()), this, SLOT(slotCameraStateChanged()));
}

QString TimedRun::Line(const Facts &facts)
{
    return QString("captured %1, shown %2, lost %3, %4 frames/s, first frame after %5 ms, peak memory %6 MB, panels loaded in %7 ms")
        .arg(facts.captured)
        .arg(facts.shown)
        .arg(facts.lost)
        .arg(facts.framesPerSecond, 0, 'f', 1)
        .arg(facts.firstFrameMs)
        .arg(facts.peakMemoryMB)
        .arg(facts.panelLoadMs);
}

void TimedRun::slotFrameShown()
{
    if (m_firstFrameMs < 0) {
        m_firstFrameMs = ProcessFacts::AgeMs();
        m_sinceFirstFrame.start();
    }
    if (m_frames > 0 && m_shown->Count() >= m_frames)
        End();
}

void TimedRun::slotPictureOpened()
{
    constexpr int settleMs = 500; // the thumbnails come, and the screen takes it all
    QTimer::singleShot(settleMs, this, SLOT(slotEndWithPicture()));
}

void TimedRun::slotEndWithPicture()
{
    QCoreApplication::exit(SaveScreenshot() ? EXIT_SUCCESS : EXIT_FAILURE);
}

void TimedRun::slotPictureFailed(QString error)
{
    fprintf(stderr, "workbench: %s\n", qPrintable(error));
    QCoreApplication::exit(EXIT_FAILURE);
}

void TimedRun::slotCameraStateChanged()
{
    const bool isGone = m_link->GetState() == CameraLink::State::NoCamera || m_link->HasGivenUp();
    if (m_ended || !isGone || m_frames == 0)
        return;
    m_ended = true;
    fprintf(stderr, "workbench: the camera is gone after %llu of %llu frames.\n",
            static_cast<unsigned long long>(m_shown->Count()), static_cast<unsigned long long>(m_frames));
    QCoreApplication::exit(EXIT_FAILURE);
}

TimedRun::Facts TimedRun::Measure() const
{
    const FrameCounts counts = m_link->Counts();
    Facts facts;
    facts.captured = counts.captured;
    facts.lost = counts.Lost();
    facts.shown = m_shown->Count();
    const double seconds = m_sinceFirstFrame.nsecsElapsed() / 1e6 / MsPerSecond;
    facts.framesPerSecond = seconds > 0 ? (facts.shown - 1) / seconds : 0;
    facts.firstFrameMs = m_firstFrameMs;
    facts.peakMemoryMB = ProcessFacts::PeakMemoryMB();
    facts.panelLoadMs = UIManagerBase::PluginLoadMs();
    return facts;
}

void TimedRun::End()
{
    if (m_ended)
        return;
    m_ended = true;
    const Facts facts = Measure();
    const bool isSaved = SaveScreenshot();
    printf("%s\n", qPrintable(Line(facts)));
    QCoreApplication::exit(isSaved ? EXIT_SUCCESS : EXIT_FAILURE);
}

/// Taken from the screen, where OpenGL drawing is seen too; from the window where there is no access
/// to the screen.
bool TimedRun::SaveScreenshot() const
{
    if (m_screenshot.isEmpty())
        return true;
    QPixmap picture = m_window->windowHandle()->screen()->grabWindow(m_window->winId());
    if (picture.isNull())
        picture = m_window->grab();
    if (picture.save(m_screenshot))
        return true;
    fprintf(stderr, "workbench: the picture of the window could not be saved as %s. Check the folder and the suffix.\n",
            qPrintable(m_screenshot));
    return false;
}
