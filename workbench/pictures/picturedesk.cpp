// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturedesk.h"

#include "filenametext.h"
#include "globalmanager.h"
#include "openedpicture.h"
#include "picturedocument.h"
#include "pictureloader.h"
#include "pictureshelf.h"
#include "savetask.h"
#include "uiconfigmanager.h"
#include "viewcodes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUndoGroup>

PictureDesk::PictureDesk(PictureLoader *loader, PictureShelf *shelf, OpenedPicture *mainPicture,
                         OpenedPicture *comparePicture, QObject *parent)
    : QObject(parent)
    , m_loader(loader)
    , m_shelf(shelf)
    , m_main(mainPicture)
    , m_compare(comparePicture)
    , m_undoGroup(new QUndoGroup(this))
{
    connect(shelf, SIGNAL(signalFailed(PictureDocument *, QString)), this,
            SLOT(slotFailed(PictureDocument *, QString)));
    for (OpenedPicture *picture : { mainPicture, comparePicture }) {
        connect(picture, SIGNAL(signalFailed(PictureDocument *, QString)), this,
                SLOT(slotFailed(PictureDocument *, QString)));
        connect(picture, SIGNAL(signalMessage(QString)), this, SIGNAL(signalMessage(QString)));
    }
    connect(mainPicture, SIGNAL(signalShown()), this, SLOT(slotMainShown()));
    connect(comparePicture, SIGNAL(signalShown()), this, SLOT(slotUpdateUndo()));
    connect(comparePicture, SIGNAL(signalGivenUp()), this, SLOT(slotCompareFailed()));
    connect(shelf, SIGNAL(signalAdded(PictureDocument *)), this, SLOT(slotAdded(PictureDocument *)));
    connect(loader, SIGNAL(signalSaved(SaveRequest, QString)), this, SLOT(slotSaved(SaveRequest, QString)));
}

void PictureDesk::Open(const QStringList &paths, OpenedPicture *place)
{
    PictureDocument *last = nullptr;
    for (const QString &path : paths) {
        PictureDocument *document = m_shelf->Find(path);
        if (document)
            Reread(document);
        else
            document = m_shelf->Add(path);
        if (!QFileInfo(path).isDir())
            last = document;
    }
    if (last)
        Show(last, place);
}

void PictureDesk::Show(PictureDocument *document, OpenedPicture *place)
{
    m_isAskedFor = place == m_main;
    if (place->WantedDocument() != document)
        place->Show(document);
    else if (m_isAskedFor && place->Document() == document)
        slotMainShown(); // it is there already
}

void PictureDesk::Close(PictureDocument *document)
{
    const bool isMain = m_main->WantedDocument() == document;
    const bool isCompare = m_compare->WantedDocument() == document;
    PictureDocument *next = m_shelf->Neighbour(document);
    m_isAskedFor = false; // the one that takes its place is not
    m_shelf->Remove(document);
    if (isCompare || (isMain && next && next == m_compare->WantedDocument()))
        emit signalCompareLost();
    if (isMain && next)
        m_main->Show(next);
    if (m_shelf->IsEmpty()) {
        m_main->CloseImage();
        emit signalLastClosed();
    }
}

void PictureDesk::Close(const QVector<PictureDocument *> &documents)
{
    if (documents.size() == m_shelf->Documents().size()) {
        CloseAll();
        return;
    }
    for (PictureDocument *document : documents)
        Close(document);
}

void PictureDesk::RequestClose(PictureDocument *document)
{
    if (!document->IsChanged()) {
        Close(document);
        return;
    }
    if (m_toClose.isEmpty())
        QMetaObject::invokeMethod(this, "slotAskToClose", Qt::QueuedConnection); // others may follow
    if (!m_toClose.contains(document))
        m_toClose << document;
}

void PictureDesk::RequestCloseAll()
{
    if (m_shelf->Changed().isEmpty())
        CloseAll();
    else
        emit signalCloseQuestion(m_shelf->Documents());
}

void PictureDesk::slotAskToClose()
{
    QVector<PictureDocument *> documents;
    for (const QObject *wanted : qAsConst(m_toClose)) {
        if (PictureDocument *document = m_shelf->Find(wanted))
            documents << document;
    }
    m_toClose.clear();
    if (!documents.isEmpty())
        emit signalCloseQuestion(documents);
}

void PictureDesk::CloseAll()
{
    const QVector<PictureDocument *> documents = m_shelf->Documents();
    for (PictureDocument *document : documents)
        m_shelf->Remove(document);
    m_main->CloseImage();
    m_compare->CloseImage();
    emit signalLastClosed();
}

void PictureDesk::Rename(PictureDocument *document, const QString &name)
{
    if (name == document->Name())
        return;
    const QString path = QFileInfo(document->Path()).dir().filePath(name);
    QFile file(document->Path());
    QString reason;
    if (name.isEmpty() || name.contains('/') || name == "." || name == "..")
        reason = tr("that is no file name");
    else if (QFileInfo::exists(path))
        reason = tr("there is a file of that name already");
    else if (!file.rename(path))
        reason = file.errorString();

    if (reason.isEmpty()) {
        m_loader->Rename(document->File().id, path);
        document->SetPath(path);
        return;
    }
    emit document->signalChanged(); // the list takes the old name back
    emit signalFault(
        tr("\u201c%1\u201d was not renamed to \u201c%2\u201d: %3.").arg(document->ShownName(), FileNameText(name), reason));
}

PictureDocument *PictureDesk::OnlyChosen() const
{
    const QVector<PictureDocument *> chosen = m_shelf->Chosen();
    return chosen.size() == 1 ? chosen.first() : nullptr;
}

bool PictureDesk::ChooseForLiveCompare()
{
    PictureDocument *picture = OnlyChosen();
    if (!picture)
        picture = m_main->WantedDocument();
    if (!picture && m_shelf->IsEmpty()) {
        emit signalMessage(tr("Open a picture first: the live picture is compared with it."));
        return false;
    }
    if (!picture)
        picture = m_shelf->Documents().last();
    if (picture != m_main->WantedDocument())
        m_main->Show(picture);
    return true;
}

bool PictureDesk::ChooseForCompare()
{
    PictureDocument *left = m_main->WantedDocument();
    PictureDocument *right = nullptr;
    const QVector<PictureDocument *> chosen = m_shelf->Chosen();
    if (chosen.size() == 2) {
        left = chosen.contains(left) ? left : chosen.first();
        right = chosen.first() == left ? chosen.last() : chosen.first();
    } else if (left) {
        right = OnlyChosen();
        if (!right || right == left)
            right = PartnerOf(left);
    }
    if (!left || !right) {
        emit signalMessage(tr("Open a second picture first: two are compared."));
        return false;
    }
    if (left != m_main->WantedDocument())
        m_main->Show(left);
    m_compare->Show(right);
    return true;
}

void PictureDesk::ChooseForCompare(const QString &mainPath, const QString &comparePath)
{
    m_main->Show(m_shelf->Add(mainPath));
    m_compare->Show(m_shelf->Add(comparePath));
}

void PictureDesk::SetFileUndoStack(QUndoStack *stack)
{
    m_fileUndoStack = stack;
    m_undoGroup->addStack(stack);
}

void PictureDesk::SetLiveUndoStack(QUndoStack *stack)
{
    m_liveUndoStack = stack;
    m_undoGroup->addStack(stack);
    slotUpdateUndo();
}

void PictureDesk::slotFileMoved(const QString &from, const QString &to)
{
    if (PictureDocument *document = m_shelf->Find(from)) {
        m_loader->Rename(document->File().id, to);
        document->SetPath(to);
    }
}

void PictureDesk::slotFileChanged(const QString &path)
{
    if (PictureDocument *document = m_shelf->Find(path))
        Reopen(document);
}

/// What was done to the old file does not belong to the new one.
void PictureDesk::slotFileReplaced(const QString &path)
{
    if (PictureDocument *document = m_shelf->Find(path)) {
        document->Reset();
        Reread(document);
    }
}

PictureDocument *PictureDesk::PartnerOf(const PictureDocument *document) const
{
    return m_before && m_before != document ? m_before.data() : m_shelf->Neighbour(document);
}

void PictureDesk::slotMainShown()
{
    if (m_shown != m_main->Document())
        m_before = m_shown;
    m_shown = m_main->Document();
    slotUpdateUndo();
    if (m_isAskedFor)
        emit signalOpened();
    m_isAskedFor = false;
}

/// A file that was never shown leaves the shelf again; one that was shown before stays.
void PictureDesk::slotFailed(PictureDocument *document, QString error)
{
    if (!m_shelf->Find(static_cast<QObject *>(document)))
        return; // told already
    emit signalFault(error);
    m_main->GiveUp(document);
    m_compare->GiveUp(document);
    if (document->Info().frames > 0)
        return;
    PictureDocument *next = m_shelf->Neighbour(document);
    m_shelf->Remove(document);
    if (m_main->WantedDocument())
        return;
    if (next)
        m_main->Show(next);
    else
        m_isAskedFor = false;
}

void PictureDesk::slotCompareFailed()
{
    if (m_compare->IsNonImage())
        emit signalCompareLost();
}

void PictureDesk::slotUpdateUndo()
{
    const int view = UIConfigManager::GetInstance()->GetCurrentView();
    if (view == FileView) {
        m_undoGroup->setActiveStack(m_fileUndoStack);
        return;
    }
    if (view == CameraView) {
        m_undoGroup->setActiveStack(m_liveUndoStack);
        return;
    }
    const bool isCompare = GlobalManager::GetInstance()->GetActiveImageManager() == m_compare;
    const PictureDocument *document = (isCompare ? m_compare : m_main)->Document();
    m_undoGroup->setActiveStack(document ? document->UndoStack() : nullptr);
}

void PictureDesk::slotAdded(PictureDocument *document) { m_undoGroup->addStack(document->UndoStack()); }

void PictureDesk::slotSaved(const SaveRequest &request, const QString &error)
{
    PictureDocument *source = request.image.isNull() ? m_shelf->FindId(request.file.id) : nullptr; // its name may be another
    bool isWhole = false;
    if (!error.isEmpty()) {
        emit signalFault(error);
    } else {
        emit signalMessage(tr("\u201c%1\u201d was saved.").arg(FileNameTextOf(request.target)));
        const bool isAsSeen = source && source->Edit() == request.edit;
        isWhole = isAsSeen && request.frameCount >= request.edit.SeenFrames(source->Info().frames);
        if (isWhole)
            source->SetSaved(request.edit);
        if (source && !isAsSeen && source == m_shelf->Find(request.target))
            emit signalFault(tr("\u201c%1\u201d was changed while it was saved onto its own file: what was done meanwhile "
                                "is lost. Do it again.")
                                 .arg(source->ShownName()));
        slotFileReplaced(request.target); // what was done is in it
    }
    if (source)
        emit signalSaveEnded(source, isWhole);
}

/// The file may be another one now.
void PictureDesk::Reread(PictureDocument *document)
{
    document->ForgetRanges();
    document->SetFrame(0);
    Reopen(document);
}

/// With the frame and the levels that were shown.
void PictureDesk::Reopen(PictureDocument *document)
{
    m_loader->Close(document->File().id);
    for (OpenedPicture *picture : { m_main, m_compare }) {
        if (picture->WantedDocument() == document)
            picture->Show(document);
    }
}
