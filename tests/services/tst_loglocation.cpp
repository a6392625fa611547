// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "loglocation.h"

class TestLogLocation : public GuardedTest
{
    Q_OBJECT

private slots:
    void location_data();
    void location();
};

void TestLogLocation::location_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("location");
    QTest::newRow("slashes") << "/src/GlobalUI/camera/panel.cpp" << "[panel.cpp:12 Panel::Update]";
    QTest::newRow("backslashes") << "src\\GlobalUI\\camera\\panel.cpp" << "[panel.cpp:12 Panel::Update]";
    QTest::newRow("both: the backslash counts") << "src\\camera/panel.cpp" << "[camera/panel.cpp:12 Panel::Update]";
    QTest::newRow("name alone") << "panel.cpp" << "[panel.cpp:12 Panel::Update]";
    QTest::newRow("percent signs stay") << "/src/%2.cpp" << "[%2.cpp:12 Panel::Update]";
}

void TestLogLocation::location()
{
    QFETCH(QString, path);
    QFETCH(QString, location);
    QCOMPARE(LogLocation(qPrintable(path), 12, "Panel::Update"), location);
}

GUARDED_TEST_MAIN(TestLogLocation)
#include "tst_loglocation.moc"
