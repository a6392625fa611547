// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QThread>
#include <QImage>

struct RawCameraFrame;

/// The live preview; its thread runs while preview does, so isRunning() tells whether it does.
class GLOBALUI_SERVICES_EXPORT PreviewManager : public QThread
{
    Q_OBJECT

public:
    static PreviewManager *GetInstance();
    ~PreviewManager() override;

    virtual bool StartPreview() = 0;
    virtual bool StopPreview() = 0;
    /// Brings the preview back that was stopped for a save run.
    virtual void RestoreStopPreview() = 0;
    /// Starts a capture; the module always passes false, false.
    virtual void FrameSave(bool record, bool single) = 0;
    /// The current raw frame, or null; valid and unchanged while the GUI thread paints.
    virtual const RawCameraFrame *GetCurrentRawFrame() const = 0;

public slots:
    /// A region of interest drawn on the picture, in picture pixels.
    virtual void slotManualROI(int x, int y, int width, int height, bool apply) = 0;

signals:
    /// Every live frame that is to be shown.
    void signalPreviewImage(QImage image);
    void signalSetUpdatesEnabled(bool enabled);
    void signalImageSizeChanged();

protected:
    explicit PreviewManager(QObject *parent = nullptr);
};
