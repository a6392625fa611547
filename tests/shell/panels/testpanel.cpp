// SPDX-License-Identifier: GPL-3.0-or-later
#include "testpanel.h"

#include <QCoreApplication>
#include <QVariant>
#include <QWidget>

QWidget *TestPanel::GetWidget()
{
    if (!m_widget) {
        m_widget = new QWidget; // reparented by the manager
        m_widget->setObjectName("panel" + QString::number(TEST_PANEL_ID));
        m_widget->setProperty("plugin", QVariant::fromValue<QObject *>(this));
    }
    return m_widget;
}

void TestPanel::UpdateUI()
{
    QVariantList updates = qApp->property("panelUpdates").toList();
    updates << TEST_PANEL_ID;
    qApp->setProperty("panelUpdates", updates);
}
