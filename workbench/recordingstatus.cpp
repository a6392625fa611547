// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingstatus.h"

#include "recordingdesk.h"

#include <QLabel>
#include <QTimer>

namespace {
constexpr int UpdatePeriodMs = 250;
constexpr double MsPerSecond = 1000.0;
constexpr double LongestForecast = 3600; // seconds; beyond it the disk keeps up

double SecondsTo(qint64 bytes, double bytesPerSecond)
{
    return bytesPerSecond > 0 ? qMax(0.0, double(bytes) / bytesPerSecond) : LongestForecast;
}
} // namespace

RecordingStatus::RecordingStatus(const RecordingDesk *desk, QLabel *label, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_label(label)
    , m_timer(new QTimer(this))
{
    m_label->hide();
    connect(desk, SIGNAL(signalStateChanged()), this, SLOT(slotStateChanged()));
    connect(m_timer, SIGNAL(timeout()), this, SLOT(slotUpdate()));
}

QString RecordingStatus::Text(const Facts &facts)
{
    QString text = facts.isToRam ? tr("in memory %1").arg(facts.inRam) : tr("saved %1").arg(facts.saved);
    if (facts.lost > 0)
        text += tr("  LOST %1").arg(facts.lost);
    text += tr("  waiting %1 (%2)").arg(facts.waiting).arg(ByteText(facts.waitingBytes));
    const double toQueue = SecondsTo(facts.budgetBytes - facts.waitingBytes, facts.growthBytesPerSecond);
    if (toQueue < LongestForecast)
        text += tr("  queue full in %1 s").arg(toQueue, 0, 'f', 0);
    const double toRoom = SecondsTo(facts.roomBytes, facts.keptBytesPerSecond);
    if (facts.roomBytes >= 0 && toRoom < LongestForecast)
        text += (facts.isToRam ? tr("  memory full in %1 s") : tr("  disk full in %1 s")).arg(toRoom, 0, 'f', 0);
    return text;
}

void RecordingStatus::slotStateChanged()
{
    if (m_desk->IsBusy()) {
        m_lastBytes = 0;
        m_sinceLast.start();
        m_sinceStart.start();
        SetLossSeen(false);
        m_timer->start(UpdatePeriodMs);
        m_label->show();
        slotUpdate();
        return;
    }
    m_timer->stop();
    const quint64 lost = m_desk->HasReceipt() ? m_desk->LastReceipt().outcome.counts.Lost() : 0;
    m_label->setVisible(lost > 0);
    m_label->setText(tr("last recording LOST %1").arg(lost));
    SetLossSeen(lost > 0);
}

void RecordingStatus::SetLossSeen(bool seen)
{
    if (m_isLossSeen == seen)
        return;
    m_isLossSeen = seen;
    emit signalLossSeen(seen);
}

void RecordingStatus::slotUpdate()
{
    const Facts facts = CurrentFacts();
    m_label->setText(Text(facts));
    SetLossSeen(facts.lost > 0);
}

RecordingStatus::Facts RecordingStatus::CurrentFacts()
{
    const FrameSaving *saving = m_desk->Saving();
    const FrameCounts counts = saving->Counts();
    Facts facts;
    facts.saved = counts.saved;
    facts.lost = counts.Lost();
    facts.waiting = saving->Queue().Count();
    facts.waitingBytes = saving->Queue().Bytes();
    facts.budgetBytes = saving->Queue().BudgetBytes();
    const qint64 elapsedMs = m_sinceLast.restart();
    if (elapsedMs > 0)
        facts.growthBytesPerSecond =
            double(facts.waitingBytes - m_lastBytes) * MsPerSecond / double(elapsedMs);
    m_lastBytes = facts.waitingBytes;

    facts.isToRam = saving->Order().settings.toRam && saving->FramesInRam() > 0;
    facts.inRam = saving->FramesInRam();
    const qint64 frameBytes = saving->Order().facts.FrameBytes();
    const qint64 kept = facts.isToRam ? saving->BytesInRam() : qint64(counts.saved) * frameBytes;
    const qint64 room = facts.isToRam ? saving->Order().ramBytes : m_desk->Resources().freeDiskBytes;
    if (room >= 0)
        facts.roomBytes = qMax(qint64(0), room - kept);
    facts.keptBytesPerSecond = double(kept) * MsPerSecond / double(qMax(qint64(1), m_sinceStart.elapsed()));
    return facts;
}
