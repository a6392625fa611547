// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QVector>

#include <functional>

class OpenedPicture;
class PictureDesk;
class PictureDialogs;
class PictureDocument;
class QMessageBox;

/// What was done to opened pictures is not lost by accident: closing one that has changes in no file asks first, once for
/// all that are closed at a time. The question does not hold up the live picture. GUI thread.
class UnsavedGuard : public QObject
{
    Q_OBJECT

public:
    /// All are borrowed and outlive this object.
    UnsavedGuard(PictureDesk *desk, PictureDialogs *dialogs, QWidget *window);

    /// Does it at once when no opened picture has changes; otherwise asks, and does it when they may be lost, or never.
    void DoLosingAll(const std::function<void()> &action);

private:
    void AskToClose(const QVector<PictureDocument *> &documents);
    /// Null while another question stands.
    QMessageBox *NewBox(const QVector<PictureDocument *> &changed);
    void AddAnswers(const QString &discard, const std::function<void()> &action);
    void SaveAndClose(PictureDocument *document);
    void ForgetUnwanted();
    void AskWhereToSave(const OpenedPicture *picture);
    void CloseSaved(PictureDocument *document, bool isWhole);

    PictureDesk *m_desk;
    PictureDialogs *m_dialogs;
    QWidget *m_window;
    QPointer<QMessageBox> m_box;
    QPointer<PictureDocument> m_toShow;  ///< and then to be saved
    QPointer<PictureDocument> m_toClose; ///< when it is saved
};
