// SPDX-License-Identifier: GPL-3.0-or-later
#include "uiplugin.h"

#include <QLabel>
#include <QObject>
#include <QPointer>

/// A bottom page for camera and image; its id puts it before the histogram.
class CalibrationPage : public QObject, public UIPlugin
{
    Q_OBJECT
    Q_INTERFACES(UIPlugin)
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "c_calibrationpage.json")

public:
    QWidget *GetWidget() override
    {
        if (!m_widget)
            m_widget = new QLabel("calibration page");
        return m_widget;
    }
    void UpdateUI() override { m_widget->setProperty("updates", m_widget->property("updates").toInt() + 1); }

private:
    QPointer<QLabel> m_widget;
};

#include "c_calibrationpage.moc"
