// SPDX-License-Identifier: GPL-3.0-or-later
#include "hardwarepanel.h"

#include "featuretree.h"
#include "featureview.h"

QWidget *HardwarePanel::GetWidget()
{
    if (!m_view) {
        m_view = new FeatureView(FeatureTree::GetInstance());
        m_view->setObjectName("HardwarePanel");
    }
    return m_view;
}
