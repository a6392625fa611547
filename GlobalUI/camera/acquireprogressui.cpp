// SPDX-License-Identifier: GPL-3.0-or-later
#include "acquireprogressui.h"

#include "acquireprogresstext.h"
#include "filesavemanager.h"
#include "framesavemanager.h"
#include "globalclass.h"
#include "previewmanager.h"

#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace {
constexpr int HideDelayMs = 500;
}

AcquireProgressUI::AcquireProgressUI(QWidget *parent)
    : QFrame(parent)
{
    BuildForm();
    hide();
    connect(&m_hideTimer, SIGNAL(timeout()), this, SLOT(slotSetHide()));
    ConnectFrameSaveManager();

    m_progressBar->setFixedHeight(GlobalClass::GetActualSize(10));
    setFixedWidth(GlobalClass::GetActualSize(200));
}

void AcquireProgressUI::BuildForm()
{
    setObjectName("AcquireProgressUI");
    setWindowTitle(tr("Form"));
    resize(221, 67);
    auto *column = new QVBoxLayout(this);
    column->setObjectName("verticalLayout");
    const int gap = GlobalClass::GetActualSize(5);
    column->setContentsMargins(gap, gap, gap, gap);
    column->setSpacing(gap);

    m_progressBar = new QProgressBar(this);
    m_progressBar->setObjectName("progressBar");
    m_progressBar->setMaximumSize(QWIDGETSIZE_MAX, 10);
    m_progressBar->setValue(10);
    column->addWidget(m_progressBar);

    m_frames = new QLabel(this);
    m_frames->setObjectName("labelFrames");
    m_frames->setFont(QFont("Arial", 12));
    m_frames->setAlignment(Qt::AlignCenter);
    column->addWidget(m_frames);

    m_time = new QLabel(this);
    m_time->setObjectName("labelTime");
    m_time->setAlignment(Qt::AlignCenter);
    column->addWidget(m_time);

    QMetaObject::connectSlotsByName(this);
}

void AcquireProgressUI::ConnectFrameSaveManager()
{
    FrameSaveManager *saver = FrameSaveManager::GetInstance();
    connect(saver, SIGNAL(signalUpdateRAMSaveFrames(int)), this, SLOT(slotUpdateRAMSaveFrames(int)));
    connect(saver, SIGNAL(signalUpdateSenExtractNumber(int)), this, SLOT(slotUpdateSenExtractNumber(int)));
    connect(saver, SIGNAL(signalUpdateTotalTime(int)), this, SLOT(slotUpdateTotalTime(int)));
    connect(saver, SIGNAL(signalUpdateDelayTime(int)), this, SLOT(slotUpdateDelayTime(int)));
    connect(saver, SIGNAL(signalUpdateSaveNumber(int)), this, SLOT(slotUpdateSaveNumber(int)));
    connect(saver, SIGNAL(signalSetTotalSaveNumber(int)), this, SLOT(slotSetTotalSaveNumber(int)));
    connect(saver, &FrameSaveManager::signalSaveThreadRunningChanged,
            this, &AcquireProgressUI::onFrameSaveThreadRunningChanged);
}

void AcquireProgressUI::slotSetHide()
{
    m_hideTimer.stop();
    if (m_hideRequested && !m_saveRunning) {
        hide();
        return;
    }
    const FrameSaveManager *saver = FrameSaveManager::GetInstance();
    if (!saver->IsRecordMode() && saver->IsTotalFrameChecked())
        m_time->clear();
    AdjustHeight();
}

void AcquireProgressUI::slotUpdateRAMSaveFrames(int value)
{
    ShowFrames(FrameMode::RAM, value);
    ShowProgress(value, -1);
}

void AcquireProgressUI::slotUpdateSenExtractNumber(int value)
{
    show();
    ShowFrames(FrameMode::Convert, value);
    m_progressBar->setValue(value);
}

void AcquireProgressUI::slotUpdateTotalTime(int time)
{
    if (time < 0) {
        EndTimedPhase();
        return;
    }
    ShowProgress(-1, time);
    ShowTime(time, TimeMode::Total);
    AdjustHeight();
}

void AcquireProgressUI::slotUpdateDelayTime(int time)
{
    if (time < 0) {
        EndTimedPhase();
        return;
    }
    ShowTime(time, TimeMode::Delay);
    AdjustHeight();
}

void AcquireProgressUI::slotUpdateSaveNumber(int value)
{
    ShowFrames(FrameMode::Disk, value);
    if (FileSaveManager::GetInstance()->IsSaveToRAM())
        m_progressBar->setValue(value);
    ShowProgress(value, -1);
}

void AcquireProgressUI::slotSetTotalSaveNumber(int value)
{
    m_progressBar->setMaximum(value);
}

void AcquireProgressUI::onFrameSaveThreadRunningChanged(bool saveRunning)
{
    m_saveRunning = saveRunning;
    if (!saveRunning) {
        m_hideRequested = true;
        m_hideTimer.start(HideDelayMs);
        PreviewManager::GetInstance()->RestoreStopPreview();
        return;
    }
    m_progressBar->setRange(0, FrameSaveManager::GetInstance()->GetProgressBarMaxValue());
    ShowProgress(0, -1);
    ShowProgress(-1, 0);
    ShowFrames(FileSaveManager::GetInstance()->IsSaveToRAM() ? FrameMode::RAM : FrameMode::Disk, 0);
    m_time->clear();
    AdjustHeight();
    show();
    raise();
}

void AcquireProgressUI::ShowFrames(FrameMode mode, int value)
{
    const FrameSaveManager *saver = FrameSaveManager::GetInstance();
    const QString ofTotal = CountOfTotalText(value, m_progressBar->maximum());
    if (mode == FrameMode::Convert) {
        m_frames->setText(tr("Converting to TIF : ") + ofTotal);
        return;
    }
    QString prefix = tr("To RAM : ");
    if (mode == FrameMode::Disk)
        prefix = saver->IsRecordMode() ? tr("Record : ") : tr("To Disk : ");
    const bool hasFrameLimit = saver->IsTotalFrameChecked() && saver->IsAutoStop();
    m_frames->setText(prefix + (hasFrameLimit ? ofTotal : QString::number(value)));
}

void AcquireProgressUI::ShowProgress(int frames, int seconds)
{
    const FrameSaveManager *saver = FrameSaveManager::GetInstance();
    m_progressBar->setVisible(saver->IsAutoStop());
    if (saver->IsAutoStop())
        m_progressBar->setValue(saver->IsTotalFrameChecked() ? frames : seconds); // the bar ignores -1
}

void AcquireProgressUI::ShowTime(int seconds, TimeMode mode)
{
    if (mode == TimeMode::Delay) {
        const FileSaveManager *files = FileSaveManager::GetInstance();
        const int delaySeconds = files->GetTimeInMs(files->GetConfiguredTime()) / 1000;
        m_time->setText(tr("Delaying : ") + MinutesAndSecondsText(seconds, delaySeconds));
        return;
    }
    const FrameSaveManager *saver = FrameSaveManager::GetInstance();
    const bool hasTimeLimit = saver->IsAutoStop() && !saver->IsTotalFrameChecked();
    m_time->setText(tr("Total Time : ")
                    + (hasTimeLimit ? MinutesAndSecondsText(seconds, m_progressBar->maximum())
                                    : MinutesAndSecondsText(seconds)));
}

void AcquireProgressUI::EndTimedPhase()
{
    m_hideRequested = false;
    m_hideTimer.start(HideDelayMs);
    AdjustHeight();
}

void AcquireProgressUI::AdjustHeight()
{
    const bool hasTime = !m_time->text().isEmpty();
    m_time->setVisible(hasTime);
    const bool needsTallPanel = hasTime && !m_progressBar->isHidden();
    setFixedHeight(GlobalClass::GetActualSize(needsTallPanel ? 75 : 50));
}
