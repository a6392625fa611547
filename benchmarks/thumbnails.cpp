// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks.h"

#include "createpicture.h"
#include "filethumbnail.h"
#include "picturethumbnails.h"
#include "thumbnailstore.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QListView>
#include <QPixmap>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <algorithm>

namespace {

constexpr int Files = 2000;
constexpr int Rounds = 5;
constexpr double FirstScreenBoundMs = 500.0;
constexpr double MadeBoundMs = 2000.0;
constexpr QSize PageSize(1280, 800);
constexpr int PictureEdge = 256;
constexpr int AgeSeconds = 3600; ///< so that the store keeps what is made of them
constexpr qint64 TimeoutMs = 60000;

/// Noise, which no format makes small.
void WritePicture(const QString &path)
{
    Picture picture(PictureEdge, PictureEdge, 1, SampleType::U16);
    QRandomGenerator random(1);
    for (int y = 0; y < PictureEdge; ++y) {
        for (int x = 0; x < PictureEdge; ++x)
            picture.Samples<quint16>(y)[x] = quint16(random.bounded(4096));
    }
    QString error;
    if (!SavePicture(path, picture, SaveOptions(), error))
        qFatal("%s", qPrintable(error));
}

void FillFolder(const QString &folder)
{
    const QString first = folder + "/frame0.tif";
    WritePicture(first);
    for (int i = 0; i < Files; ++i) {
        QFile file(folder + QString("/frame%1.tif").arg(i));
        if (i > 0)
            QFile::copy(first, file.fileName());
        if (!file.open(QIODevice::ReadWrite)
            || !file.setFileTime(QDateTime::currentDateTime().addSecs(-AgeSeconds), QFileDevice::FileModificationTime))
            qFatal("%s", qPrintable(file.errorString()));
    }
}

void FillStore(const QString &folder)
{
    const ThumbnailStore store;
    QString fault;
    const QImage thumbnail = PictureThumbnails().Make(folder + "/frame0.tif", ThumbnailStore::NormalEdge, fault);
    for (int i = 0; i < Files; ++i) {
        const QFileInfo file(folder + QString("/frame%1.tif").arg(i));
        store.Save({file.filePath(), file.lastModified().toMSecsSinceEpoch(), file.size()}, ThumbnailStore::NormalEdge,
                   thumbnail);
    }
}

/// All files that are seen have their thumbnails.
bool IsFirstScreenThere(const QListView *list)
{
    const QRect seen = list->viewport()->rect();
    const QAbstractItemModel *model = list->model();
    if (model->rowCount() < Files)
        return false;
    for (int row = 0; row < Files && list->visualRect(model->index(row, 0)).intersects(seen); ++row) {
        if (model->index(row, 0).data(Qt::DecorationRole).value<QPixmap>().isNull())
            return false;
    }
    return true;
}

/// From the wish to see the folder until its first screen is painted.
double FirstScreenMs(const QString &folder, PictureThumbnails *maker)
{
    FileThumbnail page(nullptr);
    page.SetThumbnailMaker(maker);
    page.resize(PageSize);
    page.show();
    QCoreApplication::processEvents();
    auto *list = page.findChild<QListView *>("listViewFiles");
    QElapsedTimer time;
    time.start();
    page.slotOpenFileDirectory(folder);
    while (!IsFirstScreenThere(list)) {
        if (time.elapsed() > TimeoutMs)
            qFatal("The thumbnails do not come.");
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    list->viewport()->repaint();
    return double(time.nsecsElapsed()) / 1e6;
}

double MedianMs(const QString &folder, PictureThumbnails *maker)
{
    QVector<double> times;
    for (int round = 0; round < Rounds; ++round)
        times << FirstScreenMs(folder, maker);
    std::sort(times.begin(), times.end());
    return times.at(Rounds / 2);
}

} // namespace

QVector<BenchmarkResult> BenchmarkThumbnails()
{
    const QTemporaryDir folder;
    const QTemporaryDir cache;
    const QByteArray cacheBefore = qgetenv("XDG_CACHE_HOME");
    qputenv("XDG_CACHE_HOME", QFile::encodeName(cache.path()));
    FillFolder(folder.path());
    PictureThumbnails maker;
    const double madeMs = FirstScreenMs(folder.path(), &maker);
    FillStore(folder.path());
    const double storedMs = MedianMs(folder.path(), &maker);
    if (cacheBefore.isNull())
        qunsetenv("XDG_CACHE_HOME");
    else
        qputenv("XDG_CACHE_HOME", cacheBefore);
    return {{"first screen of 2,000 pictures, thumbnails from the cache", "ms", 0.0, storedMs, FirstScreenBoundMs},
            {"first screen of 2,000 pictures, thumbnails made", "ms", 0.0, madeMs, MadeBoundMs}};
}
