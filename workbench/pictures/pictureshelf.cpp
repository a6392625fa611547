// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictureshelf.h"

#include "picturedocument.h"
#include "pictureloader.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

QString FullPath(const QString &path) { return QDir::cleanPath(QFileInfo(path).absoluteFilePath()); }

} // namespace

PictureShelf::PictureShelf(PictureLoader *loader, QObject *parent)
    : QObject(parent)
    , m_loader(loader)
{
    connect(loader, SIGNAL(signalThumbnail(PictureThumbnail)), this, SLOT(slotThumbnail(PictureThumbnail)));
}

QVector<PictureDocument *> PictureShelf::Chosen() const
{
    QVector<PictureDocument *> checked;
    std::copy_if(m_documents.begin(), m_documents.end(), std::back_inserter(checked),
                 [](const PictureDocument *document) { return document->IsChecked(); });
    return checked.isEmpty() ? m_selected : checked;
}

QVector<PictureDocument *> PictureShelf::Changed() const
{
    QVector<PictureDocument *> changed;
    std::copy_if(m_documents.begin(), m_documents.end(), std::back_inserter(changed),
                 [](const PictureDocument *document) { return document->IsChanged(); });
    return changed;
}

PictureDocument *PictureShelf::Find(const QString &path) const
{
    const QString wanted = FullPath(path);
    const auto found =
        std::find_if(m_documents.begin(), m_documents.end(),
                     [&](const PictureDocument *document) { return document->Path() == wanted; });
    return found == m_documents.end() ? nullptr : *found;
}

PictureDocument *PictureShelf::FindId(quint64 id) const
{
    const auto found = std::find_if(m_documents.begin(), m_documents.end(),
                                    [id](const PictureDocument *document) { return document->File().id == id; });
    return found == m_documents.end() ? nullptr : *found;
}

PictureDocument *PictureShelf::Find(const QObject *document) const
{
    const auto found = std::find(m_documents.begin(), m_documents.end(), document);
    return found == m_documents.end() ? nullptr : *found;
}

PictureDocument *PictureShelf::Neighbour(const PictureDocument *document) const
{
    const int index = m_documents.indexOf(const_cast<PictureDocument *>(document));
    return index + 1 < m_documents.size() ? m_documents.at(index + 1) : m_documents.value(index - 1);
}

PictureDocument *PictureShelf::Add(const QString &path)
{
    if (PictureDocument *present = Find(path))
        return present;
    auto *document = new PictureDocument(++m_lastId, FullPath(path), this);
    m_documents << document;
    emit signalAdded(document);
    m_loader->MakeThumbnail(document->File());
    return document;
}

void PictureShelf::Remove(PictureDocument *document)
{
    if (!m_documents.removeOne(document))
        return;
    m_selected.removeOne(document);
    m_loader->Close(document->File().id);
    emit signalRemoved(document);
    document->deleteLater();
}

void PictureShelf::slotThumbnail(const PictureThumbnail &thumbnail)
{
    PictureDocument *document = FindId(thumbnail.id);
    if (!document)
        return; // closed meanwhile
    if (!thumbnail.error.isEmpty()) {
        if (document->Info().frames == 0)
            emit signalFailed(document, thumbnail.error);
        return;
    }
    if (document->Info().frames == 0)
        document->SetInfo(thumbnail.info);
    if (document->Thumbnail().isNull())
        document->SetThumbnail(thumbnail.image);
}
