// SPDX-License-Identifier: GPL-3.0-or-later
#include "calllog.h"

#include <QMutex>
#include <QMutexLocker>

namespace {
QMutex mutex;
QStringList calls;

QString Joined(std::initializer_list<double> numbers)
{
    QStringList texts;
    for (double number : numbers)
        texts << QString::number(number);
    return "(" + texts.join(", ") + ")";
}
} // namespace

void CallLog::Add(const QString &operation, const QStringList &arguments)
{
    QMutexLocker lock(&mutex);
    calls << operation + "(" + arguments.join(", ") + ")";
}

QStringList CallLog::Calls()
{
    QMutexLocker lock(&mutex);
    return calls;
}

int CallLog::Count(const QString &call)
{
    return Calls().count(call);
}

void CallLog::Clear()
{
    QMutexLocker lock(&mutex);
    calls.clear();
}

QString Text(bool value)
{
    return value ? "true" : "false";
}

QString Text(const QPoint &value)
{
    return Joined({double(value.x()), double(value.y())});
}

QString Text(const QPointF &value)
{
    return Joined({value.x(), value.y()});
}

QString Text(const QRect &value)
{
    return Joined({double(value.x()), double(value.y()), double(value.width()), double(value.height())});
}

QString Text(const QRectF &value)
{
    return Joined({value.x(), value.y(), value.width(), value.height()});
}
