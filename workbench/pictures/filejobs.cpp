// SPDX-License-Identifier: GPL-3.0-or-later
#include "filejobs.h"

#include "createpicture.h"
#include "csvwriter.h"
#include "filenametext.h"
#include "openpicture.h"
#include "pictureresolution.h"

#include <QFileInfo>
#include <QLocale>

#include <cmath>
#include <memory>
#include <new>

namespace {

/// Beside the picture, under a name that is free: "cells.csv", "cells (2).csv".
QString CsvPathOf(const QString &picturePath)
{
    const QFileInfo picture(picturePath);
    const QString base = picture.path() + '/' + picture.completeBaseName();
    QString path = base + ".csv";
    for (int number = 2; QFileInfo::exists(path); ++number)
        path = QString("%1 (%2).csv").arg(base).arg(number);
    return path;
}

QString FrameTitle(int frame, int frames)
{
    return frames > 1 ? QString("frame: %1 of %2").arg(frame + 1).arg(frames) : QString();
}

/// Calls `work`; a lack of memory is said in `error`.
template <typename Work>
bool Guarded(const QString &path, QString &error, const Work &work)
{
    try {
        return work();
    } catch (const std::bad_alloc &) {
        error = FileJobs::tr("There is not enough memory for \u201c%1\u201d. Close other pictures or programs.").arg(FileNameTextOf(path));
        return false;
    }
}

/// As the file has it: some formats hold whole numbers only, PNG pixels a metre.
QString ResolutionText(const QString &path)
{
    constexpr int hundredth = 100;
    QString error;
    const std::unique_ptr<PictureFile> file = OpenPicture(path, error);
    if (!file)
        return QString();
    return QLocale().toString(std::round(file->Info().dpiX * hundredth) / hundredth, 'g', QLocale::FloatingPointShortest);
}

bool IsAlike(const PictureInfo &one, const PictureInfo &other)
{
    return one.size == other.size && one.channels == other.channels && one.sampleType == other.sampleType;
}

QString KindText(const PictureInfo &info)
{
    return FileJobs::tr("%1 x %2 pixels, %3, channels: %4")
        .arg(info.size.width()).arg(info.size.height()).arg(SampleTypeName(info.sampleType)).arg(info.channels);
}

} // namespace

FileJobs::FileJobs(QObject *parent)
    : QObject(parent)
{
    m_worker.setMaxThreadCount(1);
}

FileJobs::~FileJobs()
{
    m_ends = true;
    m_worker.waitForDone();
}

void FileJobs::Start(const std::function<void()> &job)
{
    m_worker.start([this, job] {
        if (!m_ends)
            job();
    });
}

void FileJobs::Tell(const std::function<void()> &say)
{
    QMetaObject::invokeMethod(this, say, Qt::QueuedConnection);
}

void FileJobs::ConvertToCsv(const QStringList &paths)
{
    for (const QString &path : paths) {
        Start([this, path] {
            QString error;
            QString target;
            if (Guarded(path, error, [&] { return !(target = WriteCsv(path, error)).isEmpty(); }))
                Tell([this, path, target] { emit signalMessage(tr("\u201c%1\u201d was written as \u201c%2\u201d.").arg(FileNameTextOf(path), target)); });
            else
                Tell([this, error] { emit signalFault(error); });
        });
    }
}

/// The path of the new file; empty when there is none.
QString FileJobs::WriteCsv(const QString &path, QString &error)
{
    const std::unique_ptr<PictureFile> file = OpenPicture(path, error);
    if (!file)
        return QString();
    const QString target = CsvPathOf(path);
    CsvWriter writer(target);
    FileFault fault;
    bool isWritten = writer.Create(FileNameTextOf(path), fault);
    Picture frame;
    for (int index = 0; isWritten && index < file->Info().frames && !m_ends; ++index) {
        if (!file->ReadFrame(index, frame, error))
            return QString();
        isWritten = writer.Append(frame, FrameTitle(index, file->Info().frames), fault);
    }
    if (isWritten && !m_ends && writer.Commit(fault))
        return target;
    error = WriteFaultText(target, fault);
    return QString();
}

void FileJobs::ConvertToCsv(const Picture &samples, const QString &path, const QString &title)
{
    Start([this, samples, path, title] {
        const QString target = CsvPathOf(path);
        CsvWriter writer(target);
        FileFault fault;
        QString error;
        const bool isWritten = Guarded(path, error, [&] {
            return writer.Create(FileNameTextOf(path), fault) && writer.Append(samples, title, fault) && writer.Commit(fault);
        });
        if (isWritten)
            Tell([this, path, target] { emit signalMessage(tr("\u201c%1\u201d was written as \u201c%2\u201d.").arg(FileNameTextOf(path), target)); });
        else
            Tell([this, text = error.isEmpty() ? WriteFaultText(target, fault) : error] { emit signalFault(text); });
    });
}

void FileJobs::SetResolution(const QStringList &paths, double dpi)
{
    for (const QString &path : paths) {
        Start([this, path, dpi] {
            QString error;
            if (!Guarded(path, error, [&] { return SetPictureResolution(path, dpi, error); })) {
                Tell([this, error] { emit signalFault(error); });
                return;
            }
            Tell([this, path, written = ResolutionText(path)] {
                emit signalChanged(path);
                emit signalMessage(tr("\u201c%1\u201d has %2 pixels an inch now.").arg(FileNameTextOf(path), written));
            });
        });
    }
}

void FileJobs::Merge(const QStringList &paths, const QString &target)
{
    Start([this, paths, target] {
        QString error;
        if (Guarded(target, error, [&] { return WriteMerged(paths, target, error); }))
            Tell([this, target, count = paths.size()] {
                emit signalMessage(tr("%1 pictures were merged into \u201c%2\u201d.").arg(count).arg(FileNameTextOf(target)));
                emit signalMerged(target);
            });
        else
            Tell([this, error] { emit signalFault(error); });
    });
}

bool FileJobs::WriteMerged(const QStringList &paths, const QString &target, QString &error)
{
    // A look at all of them first: nothing is written for a last one that does not fit.
    PictureInfo kind;
    SaveOptions options;
    options.frameCount = 0;
    for (const QString &path : paths) {
        const std::unique_ptr<PictureFile> file = OpenPicture(path, error);
        if (!file)
            return false;
        if (options.frameCount == 0)
            kind = file->Info();
        if (!IsAlike(kind, file->Info())) {
            error = tr("The pictures were not merged: \u201c%1\u201d (%2) and \u201c%3\u201d (%4) differ. Choose pictures of one size "
                       "and one kind of samples.")
                        .arg(FileNameTextOf(paths.first()), KindText(kind), FileNameTextOf(path), KindText(file->Info()));
            return false;
        }
        options.frameCount += file->Info().frames;
    }
    options.dpiX = kind.dpiX;
    options.dpiY = kind.dpiY;
    const std::unique_ptr<PictureWriter> writer = CreatePicture(target, options, error);
    if (!writer)
        return false;
    Picture frame;
    for (const QString &path : paths) {
        const std::unique_ptr<PictureFile> file = OpenPicture(path, error);
        if (!file)
            return false;
        for (int index = 0; index < file->Info().frames; ++index) {
            if (m_ends || !file->ReadFrame(index, frame, error) || !writer->Append(frame, error))
                return false;
        }
    }
    return writer->Commit(error);
}
