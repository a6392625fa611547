// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QPointF>
#include <QPointer>
#include <QString>
#include <QVector>

class CompareFrame;
class DrawViewBase;
class GPUDrawFrame;
class QCheckBox;
class QGraphicsScene;
class QLabel;
class QVBoxLayout;
class ZoomUI;

/// One half of the compare view: a lent picture frame under a row of zoom buttons, the picture's
/// name and its zoom. Without a frame it stands empty and follows nothing.
class CompareChildFrame : public QFrame
{
    Q_OBJECT

public:
    explicit CompareChildFrame(CompareFrame *parent);

    void SetChecked(bool checked);
    /// Takes the lent frame in, in the place of an earlier one. `infoSource` announces the picture's
    /// name and size with signalUpdateFileNameAndSize(QString) and signalResetImageInfo(); null when
    /// nobody does.
    void AttachFrame(GPUDrawFrame *frame, QObject *infoSource, const QString &text);
    /// Lets the frame go as it is: its owner takes it back.
    void DetachFrame();
    /// The lent frame and its view; null while empty.
    GPUDrawFrame *GetFrame() const;
    DrawViewBase *GetView() const;

    /// Repeat what was done in the other half: a wheel zoom with the slider positions it led to,
    /// and a drag in view pixels.
    void ApplyCompareScale(int delta, QPointF point);
    void ApplyCompareMove(QPointF delta);

public slots:
    void slotUpdateScaleFactor(double percentage);
    void slotUpdateFileNameAndSize(QString text);
    void slotResetImageInfo();

signals:
    void signalFramePressed(QGraphicsScene *graphicsScene);
    void signalFrameChecked(QObject *frame);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void ConnectInfoSource();
    void ConnectView();
    void FitView();

    QPointer<QObject> m_infoSource;
    QVBoxLayout *m_layout = nullptr;
    QCheckBox *m_name = nullptr;
    QLabel *m_scalePercent = nullptr;
    ZoomUI *m_zoomUI = nullptr;
    QPointer<GPUDrawFrame> m_frame;
    /// What ties us to the info source and the view while a frame is attached.
    QVector<QMetaObject::Connection> m_connections;
};
