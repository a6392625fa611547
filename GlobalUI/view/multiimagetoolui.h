// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QLabel;
class QScrollBar;

/// The thin frame browser below a picture: a scroll bar and "frame/frames".
class MultiImageToolUI : public QFrame
{
    Q_OBJECT

public:
    explicit MultiImageToolUI(QWidget *parent);

    void SetFrameCount(int count);
    /// `index` counts from 0. Moving the scroll bar this way is announced like the user's own move.
    void SetCurrentFrame(int index);

signals:
    /// The frame to show, from 0.
    void SignalScrollbarValueChanged(int value);

private slots:
    void on_horizontalScrollBar_valueChanged(int value);

private:
    void BuildForm();
    void UpdateLabel();

    QScrollBar *m_scrollBar = nullptr;
    QLabel *m_pageInfo = nullptr;
    qint32 m_currentFrame = 0;
    qint32 m_frameCount = 0;
};
