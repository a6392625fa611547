// SPDX-License-Identifier: GPL-3.0-or-later
#include "testpanel.h"

#include <QCoreApplication>
#include <QVariant>
#include <QWidget>

#include <stdexcept>

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
    if (m_widget && m_widget->property("fails").toBool())
        throw std::runtime_error("the lamp went out");
    QVariantList updates = qApp->property("panelUpdates").toList();
    updates << TEST_PANEL_ID;
    qApp->setProperty("panelUpdates", updates);
}
