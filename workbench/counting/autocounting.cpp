// SPDX-License-Identifier: GPL-3.0-or-later
#include "autocounting.h"

#include "wholefile.h"

AutoCounting::AutoCounting(QObject *parent)
    : AutoCountManager(parent)
{
    m_writer.setMaxThreadCount(1);
}

AutoCounting::~AutoCounting() { m_writer.waitForDone(); }

void AutoCounting::SetCounting(bool counts) { m_isCounting = counts; }

void AutoCounting::SetObjects(const QVector<CountedObject> &objects)
{
    m_table.SetObjects(objects);
    emit signalAutoCountDataChanged();
}

void AutoCounting::Save(const QString &path)
{
    m_writer.start([this, path, bytes = m_table.Csv()] {
        const QString fault = WriteWholeFile(path, bytes);
        QMetaObject::invokeMethod(this, [this, path, fault] { emit signalSaved(path, fault); }, Qt::QueuedConnection);
    });
}
