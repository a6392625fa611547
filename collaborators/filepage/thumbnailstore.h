// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>

/// Thumbnails kept on the disk as the freedesktop.org thumbnail standard says, so that all programs of the
/// desktop share them: PNG files named by the MD5 of the picture's URI, for their owner alone. Any thread.
class ThumbnailStore
{
public:
    /// Edges of the pictures kept.
    static constexpr int NormalEdge = 128;
    static constexpr int LargeEdge = 256;

    /// Which picture, in which state.
    struct Subject
    {
        QString path;
        qint64 modifiedMs = 0;
        qint64 bytes = 0;
    };

    /// `root` is the folder of all thumbnails.
    explicit ThumbnailStore(const QString &root = StandardRoot());

    /// ~/.cache/thumbnails, wherever the cache of this user is.
    static QString StandardRoot();
    static QByteArray UriOf(const QString &path);

    const QString &Root() const { return m_root; }
    /// Of a picture that is shown in `edge` pixels.
    QString PathOf(const QString &picturePath, int edge) const;
    /// Null when there is none, or it is of an older state of the file.
    QImage Find(const Subject &subject, int edge) const;
    bool Save(const Subject &subject, int edge, const QImage &thumbnail) const;
    /// No thumbnail of this state of the file could be made; says why, or nothing.
    bool HasFailed(const Subject &subject, QString &fault) const;
    bool SaveFailure(const Subject &subject, const QString &fault) const;
    /// The file is not there under this name any more.
    void Forget(const QString &picturePath) const;

private:
    QString FailurePathOf(const QString &picturePath) const;
    bool IsInside(const QString &path) const;
    bool Write(const QString &target, const Subject &subject, QImage image, const QString &fault) const;

    QString m_root;
};
