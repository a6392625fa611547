// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QPushButton;
class QVBoxLayout;

/// The bar at the top of the image control page: back to the live camera, and "Apply" for an
/// adjusted image. Made without a parent by the image panel; the control page takes it.
class ImageNavigateUI : public QWidget
{
    Q_OBJECT

public:
    explicit ImageNavigateUI(QWidget *parent);

public slots:
    /// There is a way back only while a camera is present.
    void slotUpdateUI();

private slots:
    void on_pushButtonCamera_clicked();
    void on_pushButtonNewImageCopy_clicked();

private:
    void SetupForm();
    QVBoxLayout *MakeColumn(const QString &layoutName, QPushButton *button, const QString &labelName,
                            const QString &labelText);

    QPushButton *m_cameraButton;
    QPushButton *m_newImageCopyButton;
};
