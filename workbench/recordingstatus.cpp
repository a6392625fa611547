// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingstatus.h"

#include "recordingdesk.h"

#include <QLabel>
#include <QTimer>

namespace {
constexpr int UpdatePeriodMs = 250;
constexpr double MsPerSecond = 1000.0;
constexpr double LongestForecast = 3600; // seconds; beyond it the disk keeps up
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
    QString text = tr("saved %1").arg(facts.saved);
    if (facts.lost > 0)
        text += tr("  LOST %1").arg(facts.lost);
    text += tr("  waiting %1 (%2)").arg(facts.waiting).arg(ByteText(facts.waitingBytes));
    const double seconds = facts.growthBytesPerSecond > 0
                               ? double(facts.budgetBytes - facts.waitingBytes) / facts.growthBytesPerSecond
                               : LongestForecast;
    if (seconds < LongestForecast)
        text += tr("  queue full in %1 s").arg(qMax(0.0, seconds), 0, 'f', 0);
    return text;
}

void RecordingStatus::slotStateChanged()
{
    if (m_desk->IsBusy()) {
        m_lastBytes = 0;
        m_sinceLast.start();
        m_timer->start(UpdatePeriodMs);
        m_label->show();
        slotUpdate();
        return;
    }
    m_timer->stop();
    const quint64 lost = m_desk->HasReceipt() ? m_desk->LastReceipt().outcome.counts.Lost() : 0;
    m_label->setVisible(lost > 0);
    m_label->setText(tr("last recording LOST %1").arg(lost));
}

void RecordingStatus::slotUpdate()
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
    m_label->setText(Text(facts));
}
