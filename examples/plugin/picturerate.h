// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QTimer>

/// Says how many live pictures came in the last second. GUI thread.
class PictureRate : public QLabel
{
    Q_OBJECT

public:
    explicit PictureRate(QWidget *parent = nullptr);

public slots:
    /// Shows the state of the services anew.
    void slotUpdate();

private slots:
    void slotPictureCame();
    void slotSecondPassed();

private:
    QTimer m_second;
    int m_pictures = 0; ///< since the last full second
};
