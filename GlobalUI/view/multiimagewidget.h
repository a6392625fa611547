// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class MultiImageToolUI;
class QVBoxLayout;

/// A picture view above the frame browser of files with several frames.
class MultiImageWidget : public QWidget
{
    Q_OBJECT

public:
    explicit MultiImageWidget(QWidget *parent);

    /// Hosts the view above the browser; the layout makes it this widget's child.
    void SetView(QWidget *view);

public slots:
    /// The user chose this frame (from 0).
    void SlotScrollValueChanged(int value);
    /// A file with `value` frames has been opened.
    void SlotCurrentFileFrameNumber(int value);
    /// Of its frames this one (from 0) is shown.
    void SlotCurrentFrame(int index);

private:
    QWidget *m_view = nullptr;
    QVBoxLayout *m_layout = nullptr;
    MultiImageToolUI *m_tool = nullptr;
};
