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
constexpr int WatchPeriodMs = 20;   // of values that are known without asking the camera
constexpr int RefreshPeriodMs = 1000; // of those that the camera chooses
constexpr qint64 BytesPerMB = 1 << 20;

bool AreSame(const SettingsChange &a, const SettingsChange &b)
{
    return a.exposureUs == b.exposureUs && a.isAutoExposure == b.isAutoExposure && a.gain == b.gain
           && a.isAutoGain == b.isAutoGain && a.framesPerSecond == b.framesPerSecond;
}
} // namespace

RecordingDesk::RecordingDesk(const Parts &parts, QObject *parent)
    : QObject(parent)
    , m_parts(parts)
{
    m_worker.setMaxThreadCount(1);
    connect(parts.link, SIGNAL(signalStateChanged()), this, SLOT(slotCameraStateChanged()));
    connect(parts.saving, SIGNAL(signalRunEnded(RunReceipt)), this, SLOT(slotRunEnded(RunReceipt)));
    m_watch.setInterval(WatchPeriodMs);
    connect(&m_watch, SIGNAL(timeout()), this, SLOT(slotWatchSettings()));
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

bool RecordingDesk::Start(const RecordingSettings &settings, const QString &path, QString *warning,
                          QString *error)
{
    if (IsBusy()) {
        *error = tr("A recording is running already.");
        return false;
    }
    if (!MakeOrder(settings, path, error))
        return false;
    UseResources(RunResources::Read(QFileInfo(path).absolutePath()));
    *warning = m_estimate.warning;
    return Begin(error);
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
    TakeSettings();
    facts.region = session->Format().Region();
    facts.binning = QSize(session->Format().Binning(), session->Format().Binning());
    facts.frameSize = session->Format().FrameSize();
    facts.layout = session->Format().Layout();
    facts.software =
        QString("%1 %2").arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion());
    return true;
}

void RecordingDesk::TakeResources(const RunResources &resources)
{
    if (!m_isPreparing)
        return; // stopped meanwhile
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
    const CameraControls &controls = m_parts.link->Session()->Controls();
    SettingsChange settings;
    settings.exposureUs = controls.ExposureUs();
    settings.isAutoExposure = controls.IsAutoExposure();
    settings.gain = controls.Gain();
    settings.isAutoGain = controls.IsAutoGain();
    settings.framesPerSecond = controls.FrameRate();
    return settings;
}

void RecordingDesk::TakeSettings()
{
    m_parts.link->Session()->Controls().Refresh();
    m_lastSettings = CurrentSettings();
    RunFacts &facts = m_order.facts;
    facts.exposureUs = m_lastSettings.exposureUs;
    facts.isAutoExposure = m_lastSettings.isAutoExposure;
    facts.gain = m_lastSettings.gain;
    facts.isAutoGain = m_lastSettings.isAutoGain;
    facts.framesPerSecond = m_lastSettings.framesPerSecond;
}

/// Exposure, gain and rate may be changed in mid-run, by the user or by the camera itself; the file tells it.
void RecordingDesk::slotWatchSettings()
{
    if (!m_parts.link->Session())
        return;
    if (m_sinceRefresh.elapsed() >= RefreshPeriodMs) {
        m_sinceRefresh.start();
        m_parts.link->Session()->Controls().Refresh();
    }
    const SettingsChange now = CurrentSettings();
    if (AreSame(now, m_lastSettings))
        return;
    m_lastSettings = now;
    m_parts.saving->ChangeSettings(now);
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
    TakeSettings(); // the question about the room may have stood for minutes
    m_parts.settings->SetRun(&m_order.settings);
    m_parts.link->HoldFormat(true);
    m_sinceRefresh.start();
    m_watch.start();
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
    m_watch.stop();
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
    const QString sentence = lost == 0 ? tr("%1, none lost.").arg(saved) : tr("%1, %2 LOST.").arg(saved).arg(lost);
    if (receipt.IsWhole() || receipt.outcome.reason.isEmpty())
        return sentence;
    return tr("The recording ended early: %1. %2").arg(receipt.outcome.reason, sentence);
}
