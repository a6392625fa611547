// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "autocountmanager.h"
#include "objectcount.h"
#include "objecttable.h"

#include <QThreadPool>

/// Automatic counting of the opened picture: whether it goes on, and the objects that it found last. GUI thread.
class AutoCounting : public AutoCountManager
{
    Q_OBJECT

public:
    explicit AutoCounting(QObject *parent = nullptr);
    ~AutoCounting() override;

    bool IsCounting() const override { return m_isCounting; }
    /// The objects stay in the table when counting ends.
    void SetCounting(bool counts);
    ObjectTable *Table() { return &m_table; }
    /// Brings the table to the front.
    void SetObjects(const QVector<CountedObject> &objects);
    /// Writes the table in the background; signalSaved() tells when.
    void Save(const QString &path);

signals:
    /// `error` is empty when the table is saved.
    void signalSaved(QString path, QString error);

private:
    ObjectTable m_table;
    bool m_isCounting = false;
    QThreadPool m_writer;
};
