// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QTimer>

class CameraLink;
class QCheckBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QString;
struct ValueRange;

/// Exposure, gain and frame rate of the open camera, within its limits; what it does not have is disabled. Values are
/// shown as the camera took them. GUI thread.
class CameraDialog : public QDialog
{
    Q_OBJECT

public:
    /// Borrowed; outlives this object.
    CameraDialog(CameraLink *link, QWidget *parent);

private slots:
    void slotCameraStateChanged();
    void slotRefresh();
    void slotSetExposure();
    void slotSetGain();
    void slotSetFrameRate();
    void slotSetAutoExposure(bool isAuto);
    void slotSetAutoGain(bool isAuto);

private:
    QDoubleSpinBox *AddValue(QFormLayout *form, const QString &text, const char *name, const QString &suffix,
                             QCheckBox *automatic);
    void UpdateUI();
    void Show(bool done, const QString &error);

    CameraLink *m_link;
    QTimer m_refresh; ///< while the camera changes values by itself
    QCheckBox *m_autoExposure;
    QCheckBox *m_autoGain;
    QDoubleSpinBox *m_exposure;
    QDoubleSpinBox *m_gain;
    QDoubleSpinBox *m_rate;
    QLabel *m_error;
};
