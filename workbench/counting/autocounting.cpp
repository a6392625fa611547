// SPDX-License-Identifier: GPL-3.0-or-later
#include "autocounting.h"

#include <QFileInfo>
#include <QSaveFile>

namespace {

/// Empty when it was written.
QString WriteFault(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return QString();
    return AutoCounting::tr("The table was not saved as \u201c%1\u201d: %2. Choose another folder or name.")
        .arg(QFileInfo(path).fileName(), file.errorString());
}

} // namespace

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
        const QString fault = WriteFault(path, bytes);
        QMetaObject::invokeMethod(this, [this, path, fault] { emit signalSaved(path, fault); }, Qt::QueuedConnection);
    });
}
