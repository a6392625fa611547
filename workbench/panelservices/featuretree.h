// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelservicesexport.h"

#include <QObject>

class QAbstractItemModel;
class QModelIndex;

/// A camera's own features for a panel: a tree of categories with their features, text and value in two columns. GUI
/// thread.
class WORKBENCH_PANELSERVICES_EXPORT FeatureTree : public QObject
{
    Q_OBJECT

public:
    enum Column { TextColumn, ValueColumn, ColumnCount };
    /// How a value is edited; of the value column, as are the roles below.
    enum class Editor { None, Number, Choice, Check, Text, Command };
    enum Role {
        EditorRole = Qt::UserRole, ///< an Editor, as int
        ValueRole,                 ///< the value itself: number, text or bool
        MinimumRole,               ///< double
        MaximumRole,               ///< double
        StepRole,                  ///< double; 0: any
        DecimalsRole,              ///< int
        ChoicesRole,               ///< QStringList
        ExpertRole,                ///< bool, of both columns: not for beginners
        SearchRole                 ///< QString, of both columns: all that a search may find
    };

    ~FeatureTree() override;
    /// Null when there is none, as in another host.
    static FeatureTree *GetInstance();

    virtual QAbstractItemModel *Model() const = 0;
    /// Sets a feature or carries out a command; the index is one of Model(). What the camera makes of it is read back.
    virtual void Set(const QModelIndex &index, const QVariant &value) = 0;
    /// The features are kept up to date only while somebody looks.
    virtual void SetWatched(bool watched) = 0;

signals:
    /// What the camera said to the last change; empty when it took it.
    void signalFault(QString text);

protected:
    explicit FeatureTree(QObject *parent = nullptr);
};
