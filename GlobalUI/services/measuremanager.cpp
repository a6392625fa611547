// SPDX-License-Identifier: GPL-3.0-or-later
#include "measuremanager.h"

#include <QVector>

#include <algorithm>

namespace {
QVector<MeasureManager *> managers;
}

MeasureManager::MeasureManager(QObject *parent)
    : QObject(parent)
{
    managers.append(this);
}

MeasureManager::~MeasureManager()
{
    managers.removeAll(this);
}

void MeasureManager::Init()
{
    for (MeasureManager *manager : qAsConst(managers))
        manager->InitMeasuring();
}

void MeasureManager::SetParentWidget(QWidget *parent)
{
    for (MeasureManager *manager : qAsConst(managers))
        manager->SetDialogParent(parent);
}

bool MeasureManager::IsMeasuring()
{
    return std::any_of(managers.cbegin(), managers.cend(),
                       [](const MeasureManager *manager) { return manager->IsMeasurementInProgress(); });
}
