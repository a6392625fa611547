// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordrun.h"

#include "cameralink.h"
#include "recordingdesk.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>

namespace {
constexpr int MsPerSecond = 1000;
}

RecordRun::RecordRun(const CameraLink *link, RecordingDesk *desk, const RecordingSettings &settings,
                     const QString &path, int longestSeconds, QObject *parent)
    : QObject(parent)
    , m_link(link)
    , m_desk(desk)
    , m_settings(settings)
    , m_path(path)
    , m_longestSeconds(longestSeconds)
{
    connect(link, SIGNAL(signalStateChanged()), this, SLOT(slotCameraStateChanged()));
    connect(link, SIGNAL(signalMessage(QString)), this, SLOT(slotMessage(QString)));
    connect(desk, SIGNAL(signalRoomIsShort(QString, bool)), this, SLOT(slotRoomIsShort(QString)));
    connect(desk, SIGNAL(signalStateChanged()), this, SLOT(slotRecordingStateChanged()));
    connect(desk, SIGNAL(signalRunEnded(RunReceipt)), this, SLOT(slotRunEnded(RunReceipt)));
}

void RecordRun::slotMessage(QString text)
{
    if (!m_hasBegun && m_link->GetState() == CameraLink::State::NoCamera)
        Fail(text);
}

void RecordRun::slotCameraStateChanged()
{
    if (m_hasBegun || m_link->GetState() != CameraLink::State::Open)
        return;
    m_hasBegun = true;
    QString error;
    if (!m_desk->Start(m_settings, m_path, &error))
        Fail(error);
    else if (m_longestSeconds > 0)
        QTimer::singleShot(m_longestSeconds * MsPerSecond, m_desk, SLOT(slotStop()));
}

/// Nobody is there to be asked.
void RecordRun::slotRoomIsShort(QString warning)
{
    fprintf(stderr, "workbench: %s\n", qPrintable(warning));
    m_desk->GoOn();
}

/// A run that was given up before it began ends without a receipt.
void RecordRun::slotRecordingStateChanged()
{
    if (m_hasBegun && !m_desk->IsBusy() && !m_desk->HasReceipt())
        Fail(tr("The recording did not begin: the camera was lost, or did not answer in time."));
}

void RecordRun::slotRunEnded(RunReceipt receipt)
{
    if (receipt.files.isEmpty()) {
        Fail(receipt.error.isEmpty() ? tr("No frame came from the camera.") : receipt.error);
        return;
    }
    printf("%s", qPrintable(receipt.Text()));
    fflush(stdout);
    QCoreApplication::exit(receipt.IsWhole() ? EXIT_SUCCESS : LossExitCode);
}

void RecordRun::Fail(const QString &error)
{
    fprintf(stderr, "workbench: %s\n", qPrintable(error));
    QCoreApplication::exit(LossExitCode);
}
