// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QString>
#include <QStringList>

/// What the fakes were asked to do, in order: "PreviewManager::StartPreview()",
/// "UIConfigManager::SetLeftUIChecked(true)". Pointers are left out of the arguments.
class CallLog
{
public:
    static void Add(const QString &operation, const QStringList &arguments);
    /// The calls since the last Clear().
    static QStringList Calls();
    /// How often this call was made, e.g. Count("ROIManager::SetManualROIChecked(false)").
    static int Count(const QString &call);
    static void Clear();
};

QString Text(bool value);
QString Text(const QPoint &value);
QString Text(const QPointF &value);
QString Text(const QRect &value);
/// The four numbers as they stand: x, y, width, height.
QString Text(const QRectF &value);
