// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picturerequest.h"
#include "savetask.h"

#include <QObject>
#include <QStringList>
#include <QVector>

/// Answers of a loader as the GUI thread gets them.
class LoaderAnswers : public QObject
{
    Q_OBJECT

public:
    explicit LoaderAnswers(const QObject *loader)
    {
        connect(loader, SIGNAL(signalLoaded(LoadedPicture)), this, SLOT(slotLoaded(LoadedPicture)));
        connect(loader, SIGNAL(signalThumbnail(PictureThumbnail)), this,
                SLOT(slotThumbnail(PictureThumbnail)));
        connect(loader, SIGNAL(signalReadAhead(int)), this, SLOT(slotReadAhead(int)));
        connect(loader, SIGNAL(signalSaved(SaveRequest, QString)), this, SLOT(slotSaved(SaveRequest, QString)));
    }

    QVector<LoadedPicture> loaded;
    QVector<PictureThumbnail> thumbnails;
    QVector<QString> saveErrors;
    QVector<int> readAhead;
    QStringList order; ///< of all but the saves

private slots:
    void slotLoaded(const LoadedPicture &picture) 
    {
        loaded << picture;
        order << QString("frame %1").arg(picture.request.frame);
    }
    void slotThumbnail(const PictureThumbnail &thumbnail) 
    {
        thumbnails << thumbnail;
        order << "thumbnail";
    }
    void slotReadAhead(int frame)
    {
        readAhead << frame;
        order << QString("ahead %1").arg(frame);
    }
    void slotSaved(const SaveRequest &, const QString &error) { saveErrors << error; }
};
