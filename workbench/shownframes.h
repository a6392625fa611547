// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QVector>

class LivePreview;
class QWidget;
class Workspace;

/// Counts the live pictures that were painted on the screen, on the picture page or on a spectrum page: a picture that
/// was replaced before a view painted is not among them. GUI thread.
class ShownFrames : public QObject
{
    Q_OBJECT

public:
    /// All are borrowed and outlive this object; the live view exists already. `page` has all views of the camera.
    ShownFrames(const LivePreview *preview, const Workspace *workspace, const QWidget *page, QObject *parent);

    quint64 Count() const { return m_count; }
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// A new picture is on the screen.
    void signalFrameShown();

private slots:
    void slotWatchViewport();

private:
    void Watch(QWidget *surface);

    const LivePreview *m_preview;
    const Workspace *m_workspace;
    QPointer<QWidget> m_viewport;
    QVector<QPointer<QWidget>> m_spectrumViews; ///< what they paint on
    quint64 m_deliveredWhenPainted = 0;
    quint64 m_count = 0;
};
