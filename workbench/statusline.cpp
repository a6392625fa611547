// SPDX-License-Identifier: GPL-3.0-or-later
#include "statusline.h"

#include "cameralink.h"
#include "livepreview.h"
#include "shownframes.h"

#include <QLabel>
#include <QStatusBar>

namespace {
constexpr int UpdatePeriodMs = 500;
constexpr int RatePeriodMs = 1000;
constexpr int MessageMs = 8000;
constexpr double MsPerSecond = 1000.0;
}

StatusLine::StatusLine(const CameraLink *link, const LivePreview *preview, const ShownFrames *shown,
                       QStatusBar *bar, QObject *parent)
    : QObject(parent)
    , m_link(link)
    , m_preview(preview)
    , m_shown(shown)
    , m_bar(bar)
    , m_camera(AddField("labelStatusCamera"))
    , m_size(AddField("labelStatusSize"))
    , m_depth(AddField("labelStatusDepth"))
    , m_rate(AddField("labelStatusRate"))
    , m_counts(AddField("labelStatusCounts"))
{
    connect(link, SIGNAL(signalStateChanged()), this, SLOT(slotCameraStateChanged()));
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(slotUpdate()));
    m_timer.start(UpdatePeriodMs);
    m_sinceRate.start();
    slotCameraStateChanged();
}

QLabel *StatusLine::AddField(const char *name)
{
    auto *label = new QLabel; // reparented by the status bar
    label->setObjectName(name);
    m_bar->addPermanentWidget(label);
    return label;
}

QString StatusLine::LostText(const CameraLink &link)
{
    const QString lost = tr("Camera \"%1\" was lost").arg(link.Name());
    if (link.HasGivenUp())
        return tr("%1 and did not come back. Check its cable and power, then choose Camera > Reconnect.").arg(lost);
    if (link.SecondsToNextTry() == 0)
        return tr("%1; trying again now (%2 of %3)").arg(lost).arg(link.TriesMade()).arg(CameraLink::ReconnectTries);
    return tr("%1; trying again in %2 s (%3 of %4)")
        .arg(lost)
        .arg(link.SecondsToNextTry())
        .arg(link.TriesMade())
        .arg(CameraLink::ReconnectTries);
}

void StatusLine::slotShowMessage(QString text)
{
    m_bar->showMessage(text, MessageMs);
}

void StatusLine::slotCameraStateChanged()
{
    switch (m_link->GetState()) {
    case CameraLink::State::NoCamera:
        m_camera->setText(tr("No camera"));
        break;
    case CameraLink::State::Opening:
        m_camera->setText(tr("Opening %1").arg(m_link->Name()));
        break;
    case CameraLink::State::Open:
        m_camera->setText(m_link->Name());
        break;
    case CameraLink::State::Lost:
        m_camera->setText(tr("%1 (lost)").arg(m_link->Name()));
        break;
    }
    slotUpdate();
}

void StatusLine::slotUpdate()
{
    const bool isLost = m_link->GetState() == CameraLink::State::Lost;
    if (isLost)
        m_bar->showMessage(LostText(*m_link));
    else if (m_saysLost)
        m_bar->clearMessage();
    m_saysLost = isLost;
    UpdateFormat();
    UpdateRate();
    UpdateCounts();
}

void StatusLine::UpdateFormat()
{
    const CameraFrame &frame = m_preview->ShownFrame();
    m_size->setVisible(!frame.IsNull());
    m_depth->setVisible(!frame.IsNull());
    m_size->setText(tr("%1 x %2").arg(frame.width).arg(frame.height));
    m_depth->setText(frame.layout == PixelLayout::Rgb8 ? tr("RGB 8 bit") : tr("%1 bit").arg(frame.BitDepth()));
}

void StatusLine::UpdateRate()
{
    const qint64 elapsedMs = m_sinceRate.elapsed();
    const quint64 captured = m_link->Counts().captured;
    const bool isStreaming = m_preview->isRunning() && m_link->GetState() == CameraLink::State::Open;
    m_rate->setVisible(isStreaming);
    if (elapsedMs < RatePeriodMs)
        return;
    const quint64 frames = captured >= m_capturedAtRate ? captured - m_capturedAtRate : captured;
    m_rate->setText(tr("%1 frames/s").arg(frames * MsPerSecond / elapsedMs, 0, 'f', 1));
    m_capturedAtRate = captured;
    m_sinceRate.restart();
}

void StatusLine::UpdateCounts()
{
    m_counts->setText(tr("shown %1  lost %2").arg(m_shown->Count()).arg(m_link->Counts().Lost()));
}
