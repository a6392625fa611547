// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "openpicture.h"

#include <QFile>
#include <QTemporaryDir>

/// A folder of its own for the files of a test.
class PictureFolder
{
public:
    QString Path(const QString &name) const { return m_folder.filePath(name); }

    QString Write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(Path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("%s: %s", qPrintable(file.fileName()), qPrintable(file.errorString()));
        return file.fileName();
    }

    static QByteArray Read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// All files, hidden ones too.
    QStringList Names() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }

    /// Why a file cannot be opened, or else why its first frame cannot be read; empty if both can.
    static QString ErrorOf(const QString &path)
    {
        QString error;
        const auto file = OpenPicture(path, error);
        Picture picture;
        if (file)
            file->ReadFrame(0, picture, error);
        return error;
    }

private:
    QTemporaryDir m_folder;
};

/// The samples of a picture as numbers, row after row.
inline QVector<double> SamplesOf(const Picture &picture)
{
    QVector<double> numbers;
    VisitSampleType(picture.Type(), [&](auto sample) {
        const auto *samples = picture.Samples<decltype(sample)>(0);
        for (qint64 i = 0; i < picture.ByteCount() / qint64(sizeof sample); ++i)
            numbers << double(samples[i]);
    });
    return numbers;
}
