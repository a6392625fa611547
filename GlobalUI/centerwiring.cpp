// SPDX-License-Identifier: GPL-3.0-or-later
#include "centerwiring.h"

#include "advancedprocessmanager.h"
#include "camerastackedwidget.h"
#include "comparesaver.h"
#include "drawviewbase.h"
#include "filesystemview.h"
#include "filethumbnail.h"
#include "fluorescencesynthesismanager.h"
#include "globalmanager.h"
#include "imagemanager.h"
#include "imagestackedwidget.h"
#include "thumbnaillist.h"
#include "uiconfigmanager.h"

#include <QShortcut>

void ConnectThumbnails(FileThumbnail *fileThumbnail, FileSystemView *fileSystemView)
{
    UIConfigManager *config = UIConfigManager::GetInstance();
    GlobalManager *global = GlobalManager::GetInstance();
    ThumbnailList *list = ThumbnailList::GetInstance();
    QObject::connect(config, SIGNAL(signalSetMergeButtonVisible(bool)), fileThumbnail,
                     SLOT(slotSetMergeButtonVisible(bool)));
    QObject::connect(config, SIGNAL(signalSetSelectButtonVisible(bool)), list,
                     SLOT(slotSetSelectButtonVisible(bool)));
    QObject::connect(fileThumbnail, SIGNAL(signalMergeImages(QList<QString>)),
                     ImageManager::GetAdvancedProcessManager(), SLOT(slotMergeImages(QList<QString>)));
    fileSystemView->BindingConnectionsWithWidget(fileThumbnail);
    QObject::connect(list, SIGNAL(sglShowFileThumbnail(QString)), fileThumbnail,
                     SLOT(slotOpenFileDirectory(QString)));
    QObject::connect(list, SIGNAL(signalSetFileView()), config, SLOT(slotSetFileView()));
    QObject::connect(list, SIGNAL(signalCompare()), global, SLOT(slotSetCompareView()));
    QObject::connect(list, SIGNAL(signalSwitchToPreviousView()), config, SLOT(slotFileViewReturn()));
    QObject::connect(list, SIGNAL(signalRename(QObject *, QString)), global,
                     SLOT(slotRename(QObject *, QString)));
    QObject::connect(list, SIGNAL(signalCloseAllOpenedImage()), global, SLOT(slotCloseAllImage()));
    QObject::connect(list, SIGNAL(signalCloseImage(QObject *)), global, SLOT(slotCloseImage(QObject *)));
    QObject::connect(list, SIGNAL(signalSetImageChecked(QObject *, bool)), global,
                     SLOT(slotSetImageChecked(QObject *, bool)));
    QObject::connect(list, SIGNAL(signalSetAllImageChecked(bool)), global,
                     SLOT(slotSetAllImageChecked(bool)));
    QObject::connect(list->GetCompareSaver(), SIGNAL(signalSaveCompare()), global, SLOT(slotSaveCompare()));
    QObject::connect(list, SIGNAL(signalOpenImage(QString, QObject *)), global,
                     SLOT(slotOpenImage(QString, QObject *)));
}

void ConnectImageCommands(CameraStackedWidget *cameraStack, ImageStackedWidget *imageStack)
{
    GlobalManager *global = GlobalManager::GetInstance();
    ImageManager *activeImage = global->GetActiveImageManager();
    ThumbnailList *list = ThumbnailList::GetInstance();
    auto *saveKey = new QShortcut(QKeySequence(Qt::Key_F8), imageStack);
    saveKey->setContext(Qt::WindowShortcut);
    QObject::connect(saveKey, SIGNAL(activated()), activeImage, SLOT(slotSaveImageAs()));
    QObject::connect(activeImage, SIGNAL(sglAddThumbnail(QImage)), list, SLOT(slotAddThumbnail(QImage)));
    QObject::connect(UIConfigManager::GetInstance(), SIGNAL(signalAddToThumbnailList(QString)), list,
                     SLOT(slotAddToThumbnailList(QString)));
    QObject::connect(cameraStack->GetMainDrawView(), SIGNAL(signalGraphicsViewPressed(QGraphicsScene *)),
                     global, SLOT(slotSetGraphicsScene(QGraphicsScene *)));
    QObject::connect(imageStack->GetMainDrawView(), SIGNAL(signalGraphicsViewPressed(QGraphicsScene *)),
                     global, SLOT(slotSetGraphicsScene(QGraphicsScene *)));
}

void ConnectImageCopies()
{
    ImageManager *mainImage = GlobalManager::GetInstance()->GetMainImageManager();
    QObject::connect(ImageManager::GetAdvancedProcessManager(), SIGNAL(signalNewImageCopy(void *)), mainImage,
                     SLOT(slotNewImageCopy(void *)));
    QObject::connect(ImageManager::GetFluorescenceSynthesisManager(), SIGNAL(signalNewImageCopy(void *)),
                     mainImage, SLOT(slotNewImageCopy(void *)));
}
