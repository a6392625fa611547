// SPDX-License-Identifier: GPL-3.0-or-later
#include "madepictures.h"

#include "createpicture.h"
#include "openpicture.h"

#include <QFile>

int MadePictures::Value(int x, int y, int frame) { return 1000 * frame + 20 * y + x; }

Picture MadePictures::Numbered(const QSize &size, int frame)
{
    Picture picture(size.width(), size.height(), 1, SampleType::U16);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            picture.Samples<quint16>(y)[x] = quint16(Value(x, y, frame));
    }
    return picture;
}

void MadePictures::Write(const QString &path, const QSize &size, int frames)
{
    SaveOptions options;
    options.frameCount = frames;
    QString error;
    const auto writer = CreatePicture(path, options, error);
    bool isWritten = writer != nullptr;
    for (int frame = 0; isWritten && frame < frames; ++frame)
        isWritten = writer->Append(Numbered(size, frame), error);
    if (!isWritten || !writer->Commit(error))
        qFatal("%s", qPrintable(error));
}

void MadePictures::WriteBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
}

Picture MadePictures::Read(const QString &path, int frame)
{
    QString error;
    const auto file = OpenPicture(path, error);
    Picture picture;
    return file && file->ReadFrame(frame, picture, error) ? picture : Picture();
}

int MadePictures::Frames(const QString &path)
{
    QString error;
    const auto file = OpenPicture(path, error);
    return file ? file->Info().frames : 0;
}
