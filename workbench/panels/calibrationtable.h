// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fieldsource.h"

#include <QStandardItemModel>
#include <QThreadPool>

class CalibrationModel;

/// The calibration that is applied: its lines, what they were taken for, and how far each lies from the fit. GUI thread;
/// files are written in a thread of its own.
class CalibrationTable : public FieldSource
{
    Q_OBJECT

public:
    /// `calibration` is borrowed and outlives this object.
    explicit CalibrationTable(CalibrationModel *calibration, QObject *parent = nullptr);
    ~CalibrationTable() override;

    PanelFields Fields() const override;
    /// Only "saveTable".
    void Set(const QString &key, const QVariant &value) override;
    QAbstractItemModel *Table() override { return &m_table; }
    QString TableNote() const override;

signals:
    /// A sentence for the status bar.
    void signalMessage(QString text);
    /// What could not be saved and why, for the user.
    void signalNotSaved(QString text);

private:
    void Fill();
    QByteArray Csv() const;
    void Save(const QString &path);
    void Tell(const QString &path, const QString &fault);

    CalibrationModel *m_calibration;
    QStandardItemModel m_table;
    QThreadPool m_writer;
};
