// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelfield.h"
#include "panelservicesexport.h"

#include <QObject>

class QAbstractItemModel;

/// What stands behind a panel: the application tells the fields and their values, and takes what the user sets.
/// Panels find it by its name while it lives. GUI thread.
class WORKBENCH_PANELSERVICES_EXPORT FieldSource : public QObject
{
    Q_OBJECT

public:
    /// The names that the application gives its sources.
    static const char CameraName[];
    static const char AcquisitionName[];
    static const char CameraAdjustmentName[];
    static const char ImageAdjustmentName[];
    static const char ProcessName[];
    static const char CountName[];
    static const char HistogramName[];
    static const char AnalysisName[];
    static const char ToolName[];
    static const char ReportName[];
    static const char SpectrumName[];
    static const char ClassCountName[];
    static const char CalibrationName[];

    ~FieldSource() override;
    /// Null when no such source is there, as in another host.
    static FieldSource *Find(const QString &name);

    QString Name() const { return m_name; }
    /// All fields, in the order they are shown.
    virtual PanelFields Fields() const = 0;
    /// Sets a field, or carries out an action. A number outside its limits is moved to the nearest one. Unknown keys
    /// are ignored. signalChanged() tells what became of it.
    virtual void Set(const QString &key, const QVariant &value) = 0;
    /// Somebody shows the fields, or nobody any more: then what costs something to know need not be kept up to date.
    virtual void SetWatched(bool watched) { Q_UNUSED(watched) }
    /// What belongs to the fields but is a table; null without one. Set("saveTable", path) writes it as CSV.
    virtual QAbstractItemModel *Table() { return nullptr; }
    /// Said in place of the table's rows while there are none.
    virtual QString TableNote() const { return QString(); }

signals:
    /// Fields, values or limits are different now.
    void signalChanged();
    /// A setting was not taken; the reason, for the user. Empty when all is well again.
    void signalFault(QString text);

protected:
    /// A second one with the same name takes its place until it goes.
    explicit FieldSource(const QString &name, QObject *parent = nullptr);

private:
    QString m_name;
};
