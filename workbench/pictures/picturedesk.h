// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QUndoStack>
#include <QVector>

class OpenedPicture;
class PictureDocument;
class PictureLoader;
class PictureShelf;
class QUndoGroup;
struct SaveRequest;

/// What the user does with opened pictures: opens and closes files, renames them, chooses which are
/// compared. Which page is shown is not decided here. GUI thread.
class PictureDesk : public QObject
{
    Q_OBJECT

public:
    /// All are borrowed and outlive this object.
    PictureDesk(PictureLoader *loader, PictureShelf *shelf, OpenedPicture *mainPicture,
                OpenedPicture *comparePicture, QObject *parent = nullptr);

    PictureShelf *Shelf() const { return m_shelf; }
    OpenedPicture *MainPicture() const { return m_main; }
    OpenedPicture *ComparePicture() const { return m_compare; }

    /// The steps done to the picture that is worked on.
    QUndoGroup *UndoGroup() const { return m_undoGroup; }

    /// All go to the shelf; the last that is no folder is shown in `place`, the main or the compare
    /// picture. A file that is open already is read anew.
    void Open(const QStringList &paths, OpenedPicture *place);
    void Show(PictureDocument *document, OpenedPicture *place);
    /// The document's neighbour takes its place.
    void Close(PictureDocument *document);
    void Close(const QVector<PictureDocument *> &documents);
    void CloseAll();
    /// As the user wishes: at once when nothing is lost by it, else signalCloseQuestion() comes, one for all that were
    /// asked for at a time.
    void RequestClose(PictureDocument *document);
    void RequestCloseAll();
    /// Renames the file on the disk; its folder stays.
    void Rename(PictureDocument *document, const QString &name);

    /// Sees to it that the main picture shows something to compare the live picture with: the only one that is
    /// checked or selected in the list, else what is open. False when nothing is.
    bool ChooseForLiveCompare();
    /// Lays out two pictures: those that are checked or selected in the list; when that is one, the main picture and
    /// it; else the main picture and the one before it. False when there are no two.
    bool ChooseForCompare();
    /// Lays out these two files, opened before or not.
    void ChooseForCompare(const QString &mainPath, const QString &comparePath);

    /// The steps done to files on the file page; borrowed.
    void SetFileUndoStack(QUndoStack *stack);
    /// The steps done on the live page; borrowed.
    void SetLiveUndoStack(QUndoStack *stack);

public slots:
    /// Another picture is worked on, or another view is shown.
    void slotUpdateUndo();
    /// The file has another path.
    void slotFileMoved(const QString &from, const QString &to);
    /// The file was written anew, with the same samples.
    void slotFileChanged(const QString &path);
    /// Another file stands at this path.
    void slotFileReplaced(const QString &path);

signals:
    /// The main picture that the user asked for is ready.
    void signalOpened();
    /// The last picture was closed.
    void signalLastClosed();
    /// These are to be closed, and changes would be lost by it.
    void signalCloseQuestion(QVector<PictureDocument *> documents);
    /// A file of this picture was written, or could not be; `isWhole`: with all frames and all that was done to it.
    void signalSaveEnded(PictureDocument *document, bool isWhole);
    /// The second picture of a comparison is gone, or cannot be shown.
    void signalCompareLost();
    /// A sentence for the status bar.
    void signalMessage(QString text);
    /// What the user asked for was not done, and why.
    void signalFault(QString text);

private slots:
    void slotFailed(PictureDocument *document, QString error);
    void slotMainShown();
    void slotCompareFailed();
    void slotAdded(PictureDocument *document);
    void slotSaved(const SaveRequest &request, const QString &error);
    void slotAskToClose();

private:
    void Reread(PictureDocument *document);
    void Reopen(PictureDocument *document);
    PictureDocument *PartnerOf(const PictureDocument *document) const;
    /// Checked or selected in the list; null when that is none or more than one.
    PictureDocument *OnlyChosen() const;

    PictureLoader *m_loader;
    PictureShelf *m_shelf;
    OpenedPicture *m_main;
    OpenedPicture *m_compare;
    QUndoGroup *m_undoGroup;
    QPointer<QUndoStack> m_fileUndoStack;
    QPointer<QUndoStack> m_liveUndoStack;
    QVector<PictureDocument *> m_toClose; ///< to be asked for; some may be gone
    bool m_isAskedFor = false;          ///< the next main picture is one that the user asked for
    QPointer<PictureDocument> m_shown;  ///< in the main picture
    QPointer<PictureDocument> m_before; ///< was shown there before
};
