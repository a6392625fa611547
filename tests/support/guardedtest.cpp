// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QMutex>
#include <QMutexLocker>
#include <QRegularExpression>
#include <QThread>

#include <algorithm>

namespace {

QtMessageHandler testHandler = nullptr;
QMutex messagesMutex;
QStringList warnings;
QStringList debugLines;

/// Keeps what is logged and hands it on to QtTest's own handler.
void CollectMessages(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    {
        QMutexLocker lock(&messagesMutex);
        if (type == QtWarningMsg || type == QtCriticalMsg)
            warnings << message;
        else if (type == QtDebugMsg)
            debugLines << message;
    }
    if (testHandler)
        testHandler(type, context, message);
}

QStringList TakeWarnings()
{
    QMutexLocker lock(&messagesMutex);
    QStringList taken;
    taken.swap(warnings);
    return taken;
}

/// Names of this process's threads, with their ids.
QSet<QString> RunningThreads()
{
    // Threads of the platform, of OpenGL drivers, of GLib and of libusb, which live as long as the process.
    static const QRegularExpression platformThread(
        "^(QXcbEventQueue|libusb_event|QDBusConnection|QDBusConnection.*|llvmpipe.*|gmain|gdbus|pool.*|dconf.*|mesa.*"
        "|.*:disk\\$.*|.*:cs.*|.*:sh.*|.*:gl.*|.*:gdrv.*|swr.*|Thread \\(pooled\\)|.*:traceq.*|LeakSanitizer.*)$");
    QSet<QString> threads;
    const QStringList ids = QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &id : ids) {
        QFile file("/proc/self/task/" + id + "/comm");
        if (!file.open(QIODevice::ReadOnly))
            continue; // it has just ended
        const QString name = QString::fromLocal8Bit(file.readAll()).trimmed();
        if (!platformThread.match(name).hasMatch())
            threads.insert(name + " " + id);
    }
    return threads;
}

/// Threads that were not there before. One that has been waited for may still be in the list while
/// the kernel takes it down, so it is given a moment.
QSet<QString> ThreadsThatStay(const QSet<QString> &before)
{
    const QDeadlineTimer deadline(1000);
    QSet<QString> threads = RunningThreads() - before;
    while (!threads.isEmpty() && !deadline.hasExpired()) {
        QThread::msleep(1);
        threads = RunningThreads() - before;
    }
    return threads;
}

} // namespace

void GuardedTest::ExpectWarning(const QRegularExpression &pattern)
{
    m_expectedWarnings.append(pattern);
}

QStringList GuardedTest::DebugLines()
{
    QMutexLocker lock(&messagesMutex);
    return debugLines;
}

int GuardedTest::Run(GuardedTest *test, int argc, char **argv)
{
    QTest::setMainSourcePath(__FILE__);
    return QTest::qExec(test, argc, argv);
}

void GuardedTest::StartGuard()
{
    // QtTest installs its own handler when it starts; ours goes in front of it, once.
    QtMessageHandler previous = qInstallMessageHandler(CollectMessages);
    if (previous != CollectMessages)
        testHandler = previous;
    m_expectedWarnings.clear();
    QMutexLocker lock(&messagesMutex);
    warnings.clear();
    debugLines.clear();
    m_widgetsBefore = QApplication::topLevelWidgets();
    m_threadsBefore = RunningThreads();
}

void GuardedTest::EndGuard()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QStringList left;
    for (const QString &warning : TakeWarnings()) {
        const auto announced = std::find_if(m_expectedWarnings.begin(), m_expectedWarnings.end(),
                                            [&](const auto &pattern) { return pattern.match(warning).hasMatch(); });
        if (announced == m_expectedWarnings.end())
            left << "unexpected warning: " + warning;
        else
            m_expectedWarnings.erase(announced);
    }
    for (const QRegularExpression &pattern : qAsConst(m_expectedWarnings))
        left << "announced warning did not come: " + pattern.pattern();
    for (const QWidget *widget : QApplication::topLevelWidgets()) {
        if (!m_widgetsBefore.contains(const_cast<QWidget *>(widget)))
            left << QString("leaked top-level widget: %1 \"%2\"").arg(widget->metaObject()->className(), widget->objectName());
    }
    for (const QString &thread : ThreadsThatStay(m_threadsBefore))
        left << "thread still running: " + thread;
    if (!left.isEmpty())
        QFAIL(qPrintable(left.join("\n")));
}
