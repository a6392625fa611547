// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// The row of zoom buttons along the top of a compare half.
class ZoomUI : public QWidget
{
    Q_OBJECT

public:
    explicit ZoomUI(QWidget *parent);

signals:
    void signalZoomIn();
    void signalZoomOut();
    void signalZoom1v1();
    void signalZoomFit();

private slots:
    void on_pushButtonZoomIn_clicked();
    void on_pushButtonZoomOut_clicked();
    void on_pushButton1vs1_clicked();
    void on_pushButtonFit_clicked();
};
