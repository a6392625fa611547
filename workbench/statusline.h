// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class CameraLink;
class LivePreview;
class QLabel;
class QStatusBar;
class ShownFrames;

/// What the status bar says of the camera: its name, the size and depth of its frames, their rate,
/// and how many were shown and lost; while the camera is lost, what is being done. GUI thread.
class StatusLine : public QObject
{
    Q_OBJECT

public:
    /// All are borrowed and outlive this object.
    StatusLine(const CameraLink *link, const LivePreview *preview, const ShownFrames *shown, QStatusBar *bar,
               QObject *parent);

    /// What is to be said of a camera that is lost.
    static QString LostText(const CameraLink &link);

public slots:
    void slotShowMessage(QString text);

private slots:
    void slotCameraStateChanged();
    void slotUpdate();

private:
    QLabel *AddField(const char *name);
    void UpdateFormat();
    void UpdateRate();
    void UpdateCounts();

    const CameraLink *m_link;
    const LivePreview *m_preview;
    const ShownFrames *m_shown;
    QStatusBar *m_bar;
    QLabel *m_camera;
    QLabel *m_size;
    QLabel *m_depth;
    QLabel *m_rate;
    QLabel *m_counts;
    QTimer m_timer;
    QElapsedTimer m_sinceRate;
    quint64 m_capturedAtRate = 0;
    bool m_saysLost = false;
};
