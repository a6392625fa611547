// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingdesk.h"

#include "cameralink.h"
#include "camerasession.h"
#include "frametee.h"
#include "liveorientation.h"
#include "savesettings.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {
/// Of the free memory, what frames kept in memory may take.
constexpr double RamShare = 0.9;
} // namespace

RecordingDesk::RecordingDesk(const Parts &parts, QObject *parent)
    : QObject(parent)
    , m_parts(parts)
{
    m_worker.setMaxThreadCount(1);
    connect(parts.link, SIGNAL(signalStateChanged()), this, SLOT(slotCameraStateChanged()));
    connect(parts.saving, SIGNAL(signalRunEnded(RunReceipt)), this, SLOT(slotRunEnded(RunReceipt)));
}

RecordingDesk::~RecordingDesk()
{
    m_worker.waitForDone();
    m_parts.tee->StopRecording();
}

bool RecordingDesk::IsBusy() const { return m_isPreparing || m_parts.saving->IsBusy(); }

void RecordingDesk::slotCapture(bool record, bool single)
{
    if (IsBusy()) {
        slotStop();
        return;
    }
    RecordingSettings settings = m_parts.settings->Get();
    if (single)
        settings.mode = RecordingSettings::Mode::Single;
    QString error;
    if (!MakeOrder(settings, QString(), &error)) {
        emit signalMessage(error);
        return;
    }
    m_order.isRecord = record;
    SetPreparing(true);
    m_worker.start([this, folder = settings.Folder()] {
        const RunResources resources = RunResources::Read(folder);
        QMetaObject::invokeMethod(
            this, [this, resources] { TakeResources(resources); }, Qt::QueuedConnection);
    });
}

bool RecordingDesk::Start(const RecordingSettings &settings, const QString &path, QString *error)
{
    if (IsBusy()) {
        *error = tr("A recording is running already.");
        return false;
    }
    return MakeOrder(settings, path, error) && Begin(error);
}

bool RecordingDesk::MakeOrder(const RecordingSettings &settings, const QString &path, QString *error)
{
    CameraSession *session = m_parts.link->Session();
    if (!session) {
        *error = tr("There is no camera to record from. Choose one in the Camera menu.");
        return false;
    }
    m_order = RunOrder();
    m_order.settings = settings.Valid();
    m_order.path = path;
    m_order.camera = m_parts.link->Name();
    m_order.orientation = m_parts.orientation->Get();
    RunFacts &facts = m_order.facts;
    facts.vendor = session->Info().vendor;
    facts.model = session->Info().model;
    facts.serial = session->Info().serial;
    facts.firmware = session->Info().firmware;
    facts.exposureUs = session->Controls().ExposureUs();
    facts.gain = session->Controls().Gain();
    facts.framesPerSecond = session->Controls().FrameRate();
    facts.region = session->Format().Region();
    facts.binning = QSize(session->Format().Binning(), session->Format().Binning());
    facts.frameSize = session->Format().FrameSize();
    facts.layout = session->Format().Layout();
    facts.start = QDateTime::currentDateTimeUtc().addMSecs(settings.DelayMs());
    facts.software =
        QString("%1 %2").arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion());
    return true;
}

void RecordingDesk::TakeResources(const RunResources &resources)
{
    if (!m_isPreparing)
        return; // stopped meanwhile
    if (resources.freeMemoryBytes >= 0)
        m_order.ramBytes = qint64(double(resources.freeMemoryBytes) * RamShare);
    m_estimate = RunEstimate::Make(m_order.settings, m_order.facts.FrameBytes(),
                                   m_order.facts.framesPerSecond, resources);
    if (m_estimate.warning.isEmpty())
        GoOn();
    else
        emit signalRoomIsShort(m_estimate.warning, m_estimate.framesThatFit > 0);
}

void RecordingDesk::GoOn()
{
    QString error;
    if (m_isPreparing && !Begin(&error))
        emit signalMessage(error);
    SetPreparing(false);
}

void RecordingDesk::GoOnShortened()
{
    m_order.settings.mode = RecordingSettings::Mode::Count;
    m_order.settings.frames = int(qMin(m_estimate.framesThatFit, qint64(RecordingSettings::MostFrames)));
    GoOn();
}

void RecordingDesk::CancelPreparedRun() { SetPreparing(false); }

void RecordingDesk::SetPreparing(bool preparing)
{
    if (m_isPreparing == preparing)
        return;
    m_isPreparing = preparing;
    emit signalStateChanged();
}

bool RecordingDesk::Begin(QString *error)
{
    if (!m_parts.link->Session()) {
        *error = tr("The camera was lost before the recording could begin.");
        return false;
    }
    m_parts.settings->SetRun(&m_order.settings);
    m_parts.link->HoldFormat(true);
    m_parts.saving->StartRun(m_order);
    if (!m_parts.tee->StartRecording(m_parts.saving))
        m_parts.saving->StopRun(RunEnd::CameraLost, tr("the camera could not be started"));
    emit signalStateChanged();
    return true;
}

void RecordingDesk::slotStop()
{
    CancelPreparedRun();
    m_parts.saving->StopRun();
}

void RecordingDesk::slotDiscard()
{
    CancelPreparedRun();
    m_parts.saving->DiscardRun();
}

void RecordingDesk::slotCameraStateChanged()
{
    if (m_parts.saving->IsBusy() && m_parts.link->GetState() != CameraLink::State::Open)
        m_parts.saving->StopRun(RunEnd::CameraLost, tr("%1 does not answer").arg(m_parts.link->Name()));
}

void RecordingDesk::slotRunEnded(RunReceipt receipt)
{
    m_parts.tee->StopRecording();
    m_parts.link->HoldFormat(false);
    m_parts.settings->SetRun(nullptr);
    m_receipt = receipt;
    m_hasReceipt = true;
    emit signalStateChanged();
    emit signalMessage(EndSentence(receipt));
    emit signalRunEnded(receipt);
}

QString RecordingDesk::EndSentence(const RunReceipt &receipt)
{
    if (!receipt.error.isEmpty())
        return receipt.error;
    if (receipt.files.isEmpty())
        return tr("The recording was discarded.");
    const QString saved = tr("%1 frames saved as %2")
                              .arg(receipt.outcome.counts.saved)
                              .arg(QFileInfo(receipt.files.first()).fileName());
    const quint64 lost = receipt.outcome.counts.Lost();
    return lost == 0 ? tr("%1, none lost.").arg(saved) : tr("%1, %2 LOST.").arg(saved).arg(lost);
}
