// SPDX-License-Identifier: GPL-3.0-or-later
#include "unsavedguard.h"

#include "openedpicture.h"
#include "picturedesk.h"
#include "picturedialogs.h"
#include "picturedocument.h"
#include "pictureshelf.h"
#include "savedialog.h"

#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

UnsavedGuard::UnsavedGuard(PictureDesk *desk, PictureDialogs *dialogs, QWidget *window)
    : QObject(window)
    , m_desk(desk)
    , m_dialogs(dialogs)
    , m_window(window)
{
    connect(desk, &PictureDesk::signalCloseQuestion, this, &UnsavedGuard::AskToClose);
    connect(desk, &PictureDesk::signalSaveEnded, this, &UnsavedGuard::CloseSaved);
    const OpenedPicture *picture = desk->MainPicture();
    connect(picture, &OpenedPicture::signalShowPicture, this, &UnsavedGuard::ForgetUnwanted);
    connect(picture, &OpenedPicture::signalGivenUp, this, &UnsavedGuard::ForgetUnwanted);
    connect(picture, &OpenedPicture::signalShown, this, [this, picture] {
        if (m_toShow && picture->Document() == m_toShow)
            AskWhereToSave(picture);
    });
}

void UnsavedGuard::DoLosingAll(const std::function<void()> &action)
{
    const QVector<PictureDocument *> changed = m_desk->Shelf()->Changed();
    if (changed.isEmpty()) {
        action();
    } else if (NewBox(changed)) {
        AddAnswers(tr("&Discard All"), action);
        m_box->open();
    }
}

void UnsavedGuard::AskToClose(const QVector<PictureDocument *> &documents)
{
    QVector<PictureDocument *> changed;
    std::copy_if(documents.begin(), documents.end(), std::back_inserter(changed),
                 [](const PictureDocument *document) { return document->IsChanged(); });
    if (!NewBox(changed))
        return;
    if (documents.size() == 1) {
        auto *save = m_box->addButton(tr("&Save As\u2026"), QMessageBox::AcceptRole);
        m_box->setDefaultButton(save);
        connect(save, &QPushButton::clicked, this,
                [this, document = QPointer<PictureDocument>(documents.first())] { SaveAndClose(document); },
                Qt::QueuedConnection);
    }
    AddAnswers(documents.size() == 1 ? tr("&Discard") : tr("&Discard All"), [this, documents] {
        QVector<PictureDocument *> present; // some may be gone since the question was asked
        for (const QObject *wanted : documents) {
            if (PictureDocument *document = m_desk->Shelf()->Find(wanted))
                present << document;
        }
        m_desk->Close(present);
    });
    m_box->open();
}

QMessageBox *UnsavedGuard::NewBox(const QVector<PictureDocument *> &changed)
{
    if (m_box && m_box->isVisible())
        return nullptr;
    const QString text = changed.size() == 1
        ? tr("\u201c%1\u201d has changes that are not saved.").arg(changed.first()->ShownName())
        : tr("%n pictures have changes that are not saved.", nullptr, changed.size());
    m_box = new QMessageBox(QMessageBox::Question, tr("Unsaved Changes"), text, QMessageBox::NoButton, m_window);
    m_box->setObjectName("UnsavedQuestion");
    m_box->setAttribute(Qt::WA_DeleteOnClose);
    m_box->setTextFormat(Qt::PlainText);
    m_box->setInformativeText(tr("Closing loses what was done."));
    return m_box;
}

void UnsavedGuard::AddAnswers(const QString &discardText, const std::function<void()> &action)
{
    const QPushButton *discard = m_box->addButton(discardText, QMessageBox::DestructiveRole);
    // After the box is gone: what is done may end the program.
    connect(discard, &QPushButton::clicked, this, action, Qt::QueuedConnection);
    QPushButton *cancel = m_box->addButton(QMessageBox::Cancel);
    m_box->setEscapeButton(cancel);
    if (!m_box->defaultButton())
        m_box->setDefaultButton(cancel);
}

/// What is saved is what is seen: it is shown first.
void UnsavedGuard::SaveAndClose(PictureDocument *document)
{
    if (!document)
        return;
    for (const OpenedPicture *picture : { m_desk->MainPicture(), m_desk->ComparePicture() }) {
        if (picture->Document() == document && picture->WantedDocument() == document) {
            AskWhereToSave(picture);
            return;
        }
    }
    m_toShow = document;
    m_desk->Show(document, m_desk->MainPicture());
    if (m_desk->MainPicture()->Document() == document) // still there: another was on its way
        AskWhereToSave(m_desk->MainPicture());
}

/// It could not be shown, or the user went on to another picture: to see it later is no wish to save it.
void UnsavedGuard::ForgetUnwanted()
{
    if (m_desk->MainPicture()->WantedDocument() != m_toShow)
        m_toShow.clear();
}

void UnsavedGuard::AskWhereToSave(const OpenedPicture *picture)
{
    m_toShow.clear();
    const QPointer<PictureDocument> document = picture->Document();
    connect(m_dialogs->AskWhereToSaveAll(picture), &SaveDialog::accepted, this,
            [this, document] { m_toClose = document; });
}

void UnsavedGuard::CloseSaved(PictureDocument *document, bool isWhole)
{
    if (document != m_toClose)
        return;
    m_toClose.clear();
    if (isWhole)
        m_desk->Close(document);
}
