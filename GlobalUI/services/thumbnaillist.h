// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QWidget>
#include <QImage>
#include <QString>

class CompareSaver;

/// The list of opened pictures, shown under "File Preview". The module places it; the host makes it
/// and lets the module's widgets own it.
class GLOBALUI_SERVICES_EXPORT ThumbnailList : public QWidget
{
    Q_OBJECT

public:
    static ThumbnailList *GetInstance();
    ~ThumbnailList() override;

    virtual void SetCompareSubMenuChecked(bool checked) = 0;
    virtual CompareSaver *GetCompareSaver() const = 0;

public slots:
    virtual void slotSetSelectButtonVisible(bool visible) = 0;
    virtual void slotAddThumbnail(QImage thumbnail) = 0;
    virtual void slotAddToThumbnailList(QString fileName) = 0;

signals:
    void sglShowFileThumbnail(QString folder);
    void signalSetFileView();
    void signalCompare();
    void signalSwitchToPreviousView();
    void signalRename(QObject *image, QString fileName);
    void signalCloseAllOpenedImage();
    void signalCloseImage(QObject *image);
    void signalSetImageChecked(QObject *image, bool checked);
    void signalSetAllImageChecked(bool checked);
    void signalOpenImage(QString fileName, QObject *image);

protected:
    explicit ThumbnailList(QWidget *parent = nullptr);
};
