// SPDX-License-Identifier: GPL-3.0-or-later
#include "uiplugin.h"

#include <QLabel>
#include <QObject>
#include <QPointer>

const char *TextOfTheLamp();

/// Uses a library that is nowhere when the plug-in is loaded.
class NeedsLibrary : public QObject, public UIPlugin
{
    Q_OBJECT
    Q_INTERFACES(UIPlugin)
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "q_needslibrary.json")

public:
    QWidget *GetWidget() override
    {
        if (!m_widget)
            m_widget = new QLabel(TextOfTheLamp());
        return m_widget;
    }
    void UpdateUI() override {}

private:
    QPointer<QLabel> m_widget;
};

#include "q_needslibrary.moc"
