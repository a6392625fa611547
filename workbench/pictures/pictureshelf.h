// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picturerequest.h"

#include <QObject>
#include <QVector>

class PictureDocument;
class PictureLoader;

/// The opened pictures in the order in which they were opened; owns them, and has the loader make their
/// thumbnails. GUI thread.
class PictureShelf : public QObject
{
    Q_OBJECT

public:
    /// `loader` is borrowed and outlives this object.
    explicit PictureShelf(PictureLoader *loader, QObject *parent = nullptr);

    const QVector<PictureDocument *> &Documents() const { return m_documents; }
    bool IsEmpty() const { return m_documents.isEmpty(); }
    /// Those that are checked in the list; without any, those that are selected in it.
    QVector<PictureDocument *> Chosen() const;
    /// Those with changes that are in no file.
    QVector<PictureDocument *> Changed() const;
    void SetSelected(const QVector<PictureDocument *> &documents) { m_selected = documents; }
    /// Null when that file is not open.
    PictureDocument *Find(const QString &path) const;
    /// That of PictureAccess::FileName; null when it was closed.
    PictureDocument *FindId(quint64 id) const;
    /// The one there, or null: an object that came back from a widget.
    PictureDocument *Find(const QObject *document) const;
    /// The next one that stays when `document` goes; null when it is the last.
    PictureDocument *Neighbour(const PictureDocument *document) const;

    /// The one that is there when the file is open already.
    PictureDocument *Add(const QString &path);
    /// Deletes the document later: a slot of it may be running.
    void Remove(PictureDocument *document);

signals:
    void signalAdded(PictureDocument *document);
    /// It is not on the shelf any more.
    void signalRemoved(PictureDocument *document);
    /// No thumbnail could be made: the file cannot be shown.
    void signalFailed(PictureDocument *document, QString error);

private slots:
    void slotThumbnail(const PictureThumbnail &thumbnail);

private:
    PictureLoader *m_loader;
    QVector<PictureDocument *> m_documents;
    QVector<PictureDocument *> m_selected;
    quint64 m_lastId = 0;
};
