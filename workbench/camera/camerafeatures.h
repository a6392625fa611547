// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "camerafeature.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

class CameraLink;
typedef struct _ArvCamera ArvCamera;

/// The open camera's own feature tree. Read in the control thread while somebody watches, a few features at a time so
/// that nothing else waits for long; each change is read back, and so is what depends on it, all settings of the camera
/// among it. Used in the GUI thread.
class CameraFeatures : public QObject
{
    Q_OBJECT

public:
    /// `link` is borrowed and outlives this object.
    explicit CameraFeatures(CameraLink *link, QObject *parent = nullptr);

    /// Set by this program elsewhere, with what belongs to it: shown here, but not to be changed.
    static bool IsSetElsewhere(const QString &name);

    void SetWatched(bool watched);
    /// Changes a feature, or carries out a command.
    void Set(const CameraFeature &feature, const QVariant &value);

signals:
    /// All features, in the camera's order; empty without a camera.
    void signalRead(QVector<CameraFeature> features);
    /// What the camera said to a change; empty when it took it.
    void signalFault(QString text);

private slots:
    void slotCameraStateChanged();
    void slotRead();

private:
    struct Reading;

    bool TakeTurn(const std::function<void(ArvCamera *)> &task, const std::function<void()> &done);
    void ReadSome(const std::shared_ptr<Reading> &reading);
    void TakeSome(const std::shared_ptr<Reading> &reading);

    CameraLink *m_link;
    QTimer m_timer;
    bool m_isWatched = false;
    bool m_isReading = false;
    bool m_isStale = false; ///< changed while it was being read
    bool m_isSet = false;   ///< since everything else was read again
};
