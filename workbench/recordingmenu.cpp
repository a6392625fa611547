// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingmenu.h"

#include "cameralink.h"
#include "livepreview.h"
#include "picturedesk.h"
#include "receiptdialog.h"
#include "recordingdesk.h"
#include "workbenchservices.h"
#include "workspaceconfig.h"

#include <QMessageBox>
#include <QPushButton>

RecordingMenu::RecordingMenu(WorkbenchServices *services, QWidget *parent)
    : QMenu(tr("&Recording"), parent)
    , m_services(services)
{
    LivePreview *preview = services->Preview();
    m_capture = addAction(
        tr("&Capture"), [preview] { preview->FrameSave(false, false); }, QKeySequence("F10"));
    m_single = addAction(
        tr("Capture &One Frame"), [preview] { preview->FrameSave(false, true); }, QKeySequence("Shift+F10"));
    m_discard = addAction(tr("&Discard"), services->Recording(), SLOT(slotDiscard()));
    addSeparator();
    m_settings = addAction(tr("&Settings"), this, SLOT(slotShowSettings()), QKeySequence("Ctrl+Shift+R"));
    m_receipt = addAction(tr("&Last Recording…"), this, SLOT(slotShowReceipt()));

    RecordingDesk *desk = services->Recording();
    connect(desk, SIGNAL(signalStateChanged()), this, SLOT(slotUpdate()));
    connect(desk, SIGNAL(signalRoomIsShort(QString, bool)), this, SLOT(slotRoomIsShort(QString, bool)));
    connect(desk, SIGNAL(signalRunEnded(RunReceipt)), this, SLOT(slotRunEnded(RunReceipt)));
    connect(services->Link(), SIGNAL(signalStateChanged()), this, SLOT(slotUpdate()));
    slotUpdate();
}

void RecordingMenu::slotUpdate()
{
    const RecordingDesk *desk = m_services->Recording();
    const bool isBusy = desk->IsBusy();
    m_capture->setText(isBusy ? tr("&Stop") : tr("&Capture"));
    m_capture->setEnabled(isBusy || m_services->Link()->Session());
    m_single->setEnabled(!isBusy && m_services->Link()->Session());
    m_discard->setEnabled(isBusy);
    m_settings->setEnabled(!isBusy);
    m_receipt->setEnabled(desk->HasReceipt());
}

void RecordingMenu::slotShowSettings()
{
    m_services->Config()->ShowCameraPanel(CameraPanel::Acquisition);
}

void RecordingMenu::slotRoomIsShort(QString warning, bool canBeShortened)
{
    RecordingDesk *desk = m_services->Recording();
    QMessageBox box(QMessageBox::Warning, tr("Recording"), warning, QMessageBox::NoButton, parentWidget());
    box.setObjectName("RoomIsShort");
    QPushButton *shorten =
        canBeShortened ? box.addButton(tr("&Record What Fits"), QMessageBox::AcceptRole) : nullptr;
    QPushButton *goOn = box.addButton(tr("Record &Anyway"), QMessageBox::DestructiveRole);
    box.setEscapeButton(box.addButton(QMessageBox::Cancel));
    box.exec();
    if (shorten && box.clickedButton() == shorten)
        desk->GoOnShortened();
    else if (box.clickedButton() == goOn)
        desk->GoOn();
    else
        desk->CancelPreparedRun();
}

/// What went wrong is shown without being asked for.
void RecordingMenu::slotRunEnded(RunReceipt receipt)
{
    if (!receipt.IsWhole())
        slotShowReceipt();
}

void RecordingMenu::slotShowReceipt()
{
    auto *dialog = new ReceiptDialog(m_services->Recording()->LastReceipt(), parentWidget());
    connect(dialog, &ReceiptDialog::signalOpenFile, m_services->Desk(),
            [desk = m_services->Desk()](const QString &path) { desk->Open({ path }, desk->MainPicture()); });
    dialog->show();
}
