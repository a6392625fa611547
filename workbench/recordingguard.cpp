// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingguard.h"

#include "recordingdesk.h"

#include <QMessageBox>
#include <QPushButton>

RecordingGuard::RecordingGuard(RecordingDesk *desk, QWidget *window)
    : QObject(window)
    , m_desk(desk)
    , m_window(window)
{
    connect(desk, SIGNAL(signalStateChanged()), this, SLOT(slotStateChanged()), Qt::QueuedConnection);
}

void RecordingGuard::Do(const QString &question, const std::function<void()> &action)
{
    if (!m_desk->IsBusy()) {
        action();
        return;
    }
    if (m_isAsking)
        return;
    m_isAsking = true;
    QMessageBox box(QMessageBox::Question, tr("Recording"), tr("A recording is running. %1").arg(question),
                    QMessageBox::NoButton, m_window);
    box.setObjectName("RecordingQuestion");
    QPushButton *finish = box.addButton(tr("&Finish It"), QMessageBox::AcceptRole);
    finish->setToolTip(tr("Keep what was recorded until now"));
    QPushButton *discard = box.addButton(tr("&Discard It"), QMessageBox::DestructiveRole);
    QPushButton *goOn = box.addButton(tr("&Go On Recording"), QMessageBox::RejectRole);
    box.setDefaultButton(finish);
    box.setEscapeButton(goOn);
    box.exec();
    m_isAsking = false;
    if (box.clickedButton() != finish && box.clickedButton() != discard)
        return;
    m_action = action;
    if (box.clickedButton() == finish)
        m_desk->slotStop();
    else
        m_desk->slotDiscard();
    slotStateChanged(); // it may have ended by itself while the question stood
}

void RecordingGuard::slotStateChanged()
{
    if (!m_action || m_desk->IsBusy())
        return;
    const std::function<void()> action = std::move(m_action);
    m_action = nullptr;
    action();
}
