// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QObject>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <QTest>
#include <QVector>
#include <QWidgetList>

/// Base of every test class. A test function fails when it leaves behind what a user would meet as
/// a fault: a warning on the Qt log that was not announced with ExpectWarning() (a failed connect
/// is one), a top-level widget, or a running thread. An announced warning that does not come fails
/// it too. Debug lines are checked with QTest::ignoreMessage(QtDebugMsg, ...) or DebugLines().
/// A subclass that needs its own init() or cleanup() calls StartGuard() or EndGuard() from it.
class GuardedTest : public QObject
{
    Q_OBJECT

public:
    /// For GUARDED_TEST_MAIN: runs all functions of `test` under the guard.
    static int Run(GuardedTest *test, int argc, char **argv);

protected:
    /// Announces one warning of this test function; `pattern` must match somewhere in it.
    void ExpectWarning(const QRegularExpression &pattern);
    /// The debug lines since init().
    static QStringList DebugLines();

    /// Forgets what was logged so far and remembers what is alive.
    void StartGuard();
    /// Fails the test function for what it leaves behind.
    void EndGuard();

private slots:
    virtual void init() { StartGuard(); }
    virtual void cleanup() { EndGuard(); }

private:
    QWidgetList m_widgetsBefore;
    QSet<QString> m_threadsBefore;
    QVector<QRegularExpression> m_expectedWarnings;
};

#define GUARDED_TEST_MAIN(TestClass)                                                                         \
    int main(int argc, char **argv)                                                                          \
    {                                                                                                        \
        QApplication application(argc, argv);                                                                \
        TestClass test;                                                                                      \
        return GuardedTest::Run(&test, argc, argv);                                                          \
    }
