// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingdesk.h"

#include "cameralink.h"
#include "camerasession.h"
#include "filenametext.h"
#include "frametee.h"
#include "liveorientation.h"
#include "savesettings.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {
constexpr int RefreshPeriodMs = 1000; // of what the camera chooses by itself
constexpr qint64 BytesPerMB = 1 << 20;
} // namespace

RecordingDesk::RecordingDesk(const Parts &parts, QObject *parent)
    : QObject(parent)
    , m_parts(parts)
{
    m_worker.setMaxThreadCount(1);
    connect(parts.link, SIGNAL(signalStateChanged()), this, SLOT(slotCameraStateChanged()));
    connect(parts.saving, SIGNAL(signalRunEnded(RunReceipt)), this, SLOT(slotRunEnded(RunReceipt)));
    connect(parts.link, SIGNAL(signalControlsChanged()), this, SLOT(slotControlsChanged()));
    m_refresh.setInterval(RefreshPeriodMs);
    connect(&m_refresh, SIGNAL(timeout()), this, SLOT(slotRefresh()));
    connect(parts.link, SIGNAL(signalFramesFailed()), this, SLOT(slotFramesFailed()));
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
    if (!IsCameraThere(&error)) {
        emit signalMessage(error);
        return;
    }
    TakeTurn(settings, QString(), record);
}

/// The run begins with what was set until now, not with what the camera still had when it was asked for.
void RecordingDesk::TakeTurn(const RecordingSettings &settings, const QString &path, bool record)
{
    SetPreparing(true);
    CameraSession *session = m_parts.link->Session();
    session->Refresh();
    const auto prepare = [this, settings, path, record, preparation = m_preparation] {
        if (preparation == m_preparation)
            Prepare(settings, path, record);
    };
    if (!session->TakeTurn(nullptr, this, prepare))
        LoseCamera();
}

void RecordingDesk::Prepare(const RecordingSettings &settings, const QString &path, bool record)
{
    MakeOrder(settings, path);
    m_order.isRecord = record;
    const QString folder = path.isEmpty() ? settings.Folder() : QFileInfo(path).absolutePath();
    m_worker.start([this, folder, preparation = m_preparation] {
        const RunResources resources = RunResources::Read(folder);
        QMetaObject::invokeMethod(
            this,
            [this, resources, preparation] {
                if (preparation == m_preparation)
                    TakeResources(resources);
            },
            Qt::QueuedConnection);
    });
}

bool RecordingDesk::Start(const RecordingSettings &settings, const QString &path, QString *error)
{
    if (IsBusy()) {
        *error = tr("A recording is running already.");
        return false;
    }
    if (!IsCameraThere(error))
        return false;
    TakeTurn(settings, path, false);
    return true;
}

bool RecordingDesk::IsCameraThere(QString *error) const
{
    if (m_parts.link->Session())
        return true;
    *error = tr("There is no camera to record from. Choose one in the Camera menu.");
    return false;
}

void RecordingDesk::MakeOrder(const RecordingSettings &settings, const QString &path)
{
    const CameraSession *session = m_parts.link->Session();
    const FormatValues &format = session->Format();
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
    TakeSettings();
    facts.region = format.region;
    facts.binning = QSize(format.binning, format.binning);
    facts.frameSize = format.FrameSize();
    facts.layout = format.layout;
    if (m_parts.calibration)
        facts.calibration = m_parts.calibration();
    facts.software =
        QString("%1 %2").arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion());
}

void RecordingDesk::TakeResources(const RunResources &resources)
{
    UseResources(resources);
    if (m_estimate.warning.isEmpty())
        GoOn();
    else
        emit signalRoomIsShort(m_estimate.warning, m_estimate.framesThatFit > 0);
}

/// Frames that wait for the disk and frames that stay in memory are held to the memory that the estimate counts on.
void RecordingDesk::UseResources(const RunResources &resources)
{
    m_resources = resources;
    m_order.ramBytes = resources.MemoryForFrames();
    if (m_order.ramBytes >= 0)
        m_order.settings.queueMB = int(qMin(qint64(m_order.settings.queueMB), m_order.ramBytes / BytesPerMB));
    m_estimate = RunEstimate::Make(m_order.settings, m_order.facts.FrameBytes(),
                                   m_order.facts.framesPerSecond, resources);
}

SettingsChange RecordingDesk::CurrentSettings() const
{
    const ControlValues &controls = m_parts.link->Session()->Controls();
    SettingsChange settings;
    settings.exposureUs = controls.exposureUs;
    settings.isAutoExposure = controls.isAutoExposure;
    settings.gain = controls.gain;
    settings.isAutoGain = controls.isAutoGain;
    settings.framesPerSecond = controls.frameRate;
    return settings;
}

void RecordingDesk::TakeSettings()
{
    const SettingsChange settings = CurrentSettings();
    m_toldControls = m_parts.link->Session()->Controls();
    RunFacts &facts = m_order.facts;
    facts.exposureUs = settings.exposureUs;
    facts.isAutoExposure = settings.isAutoExposure;
    facts.gain = settings.gain;
    facts.isAutoGain = settings.isAutoGain;
    facts.framesPerSecond = settings.framesPerSecond;
}

/// Exposure, gain and rate may be changed in mid-run, by the user or by the camera itself; the file tells it.
void RecordingDesk::slotControlsChanged()
{
    const CameraSession *session = m_parts.link->Session();
    if (!m_refresh.isActive() || !session || session->Controls().HasSameSettings(m_toldControls))
        return; // a limit is no change of the frames
    m_toldControls = session->Controls();
    m_parts.saving->ChangeSettings(CurrentSettings());
}

void RecordingDesk::slotRefresh()
{
    if (m_parts.link->Session())
        m_parts.link->Session()->Refresh();
}

void RecordingDesk::GoOn()
{
    if (m_isPreparing)
        Begin();
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
    ++m_preparation;
    m_parts.link->HoldFormat(IsBusy());
    emit signalStateChanged();
}

void RecordingDesk::Begin()
{
    TakeSettings(); // the question about the room may have stood for minutes
    m_parts.settings->SetRun(&m_order.settings);
    m_parts.link->HoldFormat(true);
    m_refresh.start();
    m_parts.saving->StartRun(m_order);
    if (!m_parts.tee->StartRecording(m_parts.saving))
        slotFramesFailed();
    emit signalStateChanged();
}

void RecordingDesk::slotFramesFailed()
{
    if (m_parts.saving->IsBusy())
        m_parts.saving->StopRun(RunEnd::CameraLost, tr("the camera could not be started"));
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

void RecordingDesk::LoseCamera()
{
    CancelPreparedRun();
    emit signalMessage(tr("The camera was lost before the recording could begin."));
}

void RecordingDesk::slotCameraStateChanged()
{
    if (m_isPreparing && !m_parts.link->Session())
        LoseCamera();
    if (m_parts.saving->IsBusy() && m_parts.link->GetState() != CameraLink::State::Open)
        m_parts.saving->StopRun(RunEnd::CameraLost, tr("%1 does not answer").arg(m_parts.link->Name()));
}

void RecordingDesk::slotRunEnded(RunReceipt receipt)
{
    m_refresh.stop();
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
                              .arg(FileNameTextOf(receipt.files.first()));
    const quint64 lost = receipt.outcome.counts.Lost();
    const QString sentence = lost == 0 ? tr("%1, none lost.").arg(saved) : tr("%1, %2 LOST.").arg(saved).arg(lost);
    if (receipt.IsWhole() || receipt.outcome.reason.isEmpty())
        return sentence;
    return tr("The recording ended early: %1. %2").arg(receipt.outcome.reason, sentence);
}
