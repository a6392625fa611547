// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "camerafeatures.h"
#include "featuretree.h"

#include <QHash>

class QStandardItem;
class QStandardItemModel;

/// The features of the open camera as a tree that a panel shows. Rows stay while the camera's features are the same,
/// so that what is open in a view stays open. GUI thread.
class CameraFeatureTree : public FeatureTree
{
    Q_OBJECT

public:
    /// `link` is borrowed and outlives this object.
    explicit CameraFeatureTree(CameraLink *link, QObject *parent = nullptr);

    QAbstractItemModel *Model() const override;
    void Set(const QModelIndex &index, const QVariant &value) override;
    void SetWatched(bool watched) override;

private slots:
    void slotRead(QVector<CameraFeature> features);

private:
    void Build();
    void ShowFeature(const CameraFeature &feature, QStandardItem *text, QStandardItem *value) const;

    CameraFeatures m_source;
    QStandardItemModel *m_model;
    QVector<CameraFeature> m_features;
    QHash<QString, QStandardItem *> m_values; ///< item of the value column by the feature's name
};
