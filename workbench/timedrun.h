// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>

class CameraLink;
class QWidget;
class ShownFrames;

/// A run that ends by itself: after so many frames, or with an opened picture, it saves a picture of the window, prints what was
/// measured in one line and ends the program. GUI thread.
class TimedRun : public QObject
{
    Q_OBJECT

public:
    /// What was measured.
    struct Facts
    {
        quint64 captured = 0;
        quint64 shown = 0;
        quint64 lost = 0;
        double framesPerSecond = 0; ///< shown
        qint64 firstFrameMs = 0;    ///< from the start of the process to the first frame on the screen
        int peakMemoryMB = 0;
        int panelLoadMs = 0; ///< of the first frame's time
    };

    /// All are borrowed and outlive this object. `screenshot` may be empty; without `frames` the run
    /// ends with an opened picture.
    TimedRun(const CameraLink *link, const ShownFrames *shown, QWidget *window, int frames,
             const QString &screenshot, QObject *parent);

    static QString Line(const Facts &facts);

public slots:
    /// A picture file is shown, for which alone the program was started.
    void slotPictureOpened();
    void slotPictureFailed(QString error);

private slots:
    void slotFrameShown();
    void slotCameraStateChanged();
    void slotEndWithPicture();

private:
    Facts Measure() const;
    bool SaveScreenshot() const;
    void End();

    const CameraLink *m_link;
    const ShownFrames *m_shown;
    QWidget *m_window;
    const quint64 m_frames;
    const QString m_screenshot;
    QElapsedTimer m_sinceFirstFrame;
    qint64 m_firstFrameMs = -1;
    bool m_ended = false;
};
