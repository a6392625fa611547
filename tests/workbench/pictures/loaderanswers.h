// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picturerequest.h"

#include <QObject>
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
        connect(loader, SIGNAL(signalSaved(QString, QString)), this, SLOT(slotSaved(QString, QString)));
    }

    QVector<LoadedPicture> loaded;
    QVector<PictureThumbnail> thumbnails;
    QVector<QString> saveErrors;

private slots:
    void slotLoaded(const LoadedPicture &picture) { loaded << picture; }
    void slotThumbnail(const PictureThumbnail &thumbnail) { thumbnails << thumbnail; }
    void slotSaved(const QString &, const QString &error) { saveErrors << error; }
};
