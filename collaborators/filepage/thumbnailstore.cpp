// SPDX-License-Identifier: GPL-3.0-or-later
#include "thumbnailstore.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <cstdio>
#include <sys/stat.h>

namespace {

constexpr mode_t OwnerOnlyFolder = 0700;
constexpr mode_t OwnerOnlyFile = 0600;
/// A file of the store that claims more is none of ours.
constexpr int MostEdge = 1024;

const QString UriKey = "Thumb::URI";
const QString ModifiedKey = "Thumb::MTime";
const QString SizeKey = "Thumb::Size";
const QString SoftwareKey = "Software";
const QString FaultKey = "Description";

QString FileNameOf(const QString &picturePath)
{
    const QByteArray uri = ThumbnailStore::UriOf(picturePath);
    return QString::fromLatin1(QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex()) + ".png";
}

QString FolderOf(int edge)
{
    return edge <= ThumbnailStore::NormalEdge ? QString("normal") : QString("large");
}

/// The standard counts whole seconds.
QString ModifiedText(const ThumbnailStore::Subject &subject)
{
    return QString::number(subject.modifiedMs / 1000);
}

/// Null when it is of another file, or of another state of it. (The reader's own texts are cut at a colon.)
QImage Read(const QString &path, const ThumbnailStore::Subject &subject)
{
    QImageReader reader(path, "png");
    if (!reader.canRead() || reader.size().width() > MostEdge || reader.size().height() > MostEdge)
        return QImage();
    const QImage image = reader.read();
    const bool isOf = image.text(UriKey).toLatin1() == ThumbnailStore::UriOf(subject.path)
                      && image.text(ModifiedKey) == ModifiedText(subject);
    return isOf ? image : QImage();
}

/// For its owner alone, whatever new folders usually get.
bool MakeFolder(const QString &path)
{
    if (QFileInfo(path).isDir())
        return true;
    const QString parent = QFileInfo(path).path();
    if (parent == path || !MakeFolder(parent))
        return false;
    return ::mkdir(QFile::encodeName(path).constData(), OwnerOnlyFolder) == 0 || QFileInfo(path).isDir();
}

} // namespace

ThumbnailStore::ThumbnailStore(const QString &root)
    : m_root(QDir::cleanPath(root))
{
}

QString ThumbnailStore::StandardRoot()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + "/thumbnails";
}

QByteArray ThumbnailStore::UriOf(const QString &path)
{
    // Exactly what the other programs of the desktop leave as it is, or the names would differ.
    return "file://" + QFile::encodeName(QDir::cleanPath(path)).toPercentEncoding("!$&'()*+,=:@/");
}

QString ThumbnailStore::PathOf(const QString &picturePath, int edge) const
{
    return m_root + '/' + FolderOf(edge) + '/' + FileNameOf(picturePath);
}

QString ThumbnailStore::FailurePathOf(const QString &picturePath) const
{
    const QString program = QCoreApplication::applicationName() + '-' + QCoreApplication::applicationVersion();
    return m_root + "/fail/" + program + '/' + FileNameOf(picturePath);
}

QImage ThumbnailStore::Find(const Subject &subject, int edge) const
{
    return Read(PathOf(subject.path, edge), subject);
}

bool ThumbnailStore::Save(const Subject &subject, int edge, const QImage &thumbnail) const
{
    return Write(PathOf(subject.path, edge), subject, thumbnail, QString());
}

bool ThumbnailStore::HasFailed(const Subject &subject, QString &fault) const
{
    const QImage note = Read(FailurePathOf(subject.path), subject);
    fault = note.text(FaultKey);
    return !note.isNull();
}

bool ThumbnailStore::SaveFailure(const Subject &subject, const QString &fault) const
{
    QImage empty(1, 1, QImage::Format_ARGB32);
    empty.fill(Qt::transparent);
    return Write(FailurePathOf(subject.path), subject, empty, fault);
}

void ThumbnailStore::Forget(const QString &picturePath) const
{
    for (const int edge : {NormalEdge, LargeEdge})
        QFile::remove(PathOf(picturePath, edge));
    QFile::remove(FailurePathOf(picturePath));
}

bool ThumbnailStore::IsInside(const QString &path) const
{
    return QDir::cleanPath(path).startsWith(m_root + '/');
}

bool ThumbnailStore::Write(const QString &target, const Subject &subject, QImage image, const QString &fault) const
{
    // Thumbnails of thumbnails would go on for ever.
    if (IsInside(subject.path) || !MakeFolder(QFileInfo(target).path()))
        return false;
    image.setText(UriKey, QString::fromLatin1(UriOf(subject.path)));
    image.setText(ModifiedKey, ModifiedText(subject));
    image.setText(SizeKey, QString::number(subject.bytes));
    image.setText(SoftwareKey, QCoreApplication::applicationName());
    if (!fault.isEmpty())
        image.setText(FaultKey, fault);
    // Others read the folder meanwhile: the file takes its name when it is whole.
    QTemporaryFile file(QFileInfo(target).path() + "/.XXXXXX");
    if (!file.open() || !image.save(&file, "png") || !file.flush())
        return false;
    file.close();
    const QByteArray temporary = QFile::encodeName(file.fileName());
    if (::chmod(temporary.constData(), OwnerOnlyFile) != 0
        || std::rename(temporary.constData(), QFile::encodeName(target).constData()) != 0)
        return false;
    file.setAutoRemove(false);
    return true;
}
