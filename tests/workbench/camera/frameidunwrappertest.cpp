// SPDX-License-Identifier: GPL-3.0-or-later
#include "frameidunwrapper.h"
#include "guardedtest.h"

using Ids = QVector<quint64>;
Q_DECLARE_METATYPE(Ids)

class FrameIdUnwrapperTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void CountsOn_data();
    void CountsOn();
    void ManyRoundsLoseNothing();
    void ResetStartsANewRun();
};

void FrameIdUnwrapperTest::CountsOn_data()
{
    QTest::addColumn<Ids>("cameraIds");
    QTest::addColumn<Ids>("ids");
    QTest::addColumn<quint64>("missing");
    QTest::newRow("in sequence") << Ids{ 7, 8, 9 } << Ids{ 7, 8, 9 } << quint64(0);
    QTest::newRow("three missing") << Ids{ 7, 11 } << Ids{ 7, 11 } << quint64(3);
    QTest::newRow("wrap, 0 is not used")
        << Ids{ 65534, 65535, 1, 2 } << Ids{ 65534, 65535, 65536, 65537 } << quint64(0);
    QTest::newRow("65535 missing") << Ids{ 65534, 1 } << Ids{ 65534, 65536 } << quint64(1);
    QTest::newRow("1 missing after the wrap") << Ids{ 65535, 2 } << Ids{ 65535, 65537 } << quint64(1);
    QTest::newRow("gap over the wrap") << Ids{ 65530, 4 } << Ids{ 65530, 65539 } << quint64(8);
    QTest::newRow("camera counts anew") << Ids{ 100, 1, 2 } << Ids{ 100, 101, 102 } << quint64(0);
    QTest::newRow("same id twice") << Ids{ 5, 5, 6 } << Ids{ 5, 6, 7 } << quint64(0);
    QTest::newRow("long ids") << Ids{ 65535, 65536, 70000 } << Ids{ 65535, 65536, 70000 } << quint64(4463);
    QTest::newRow("ids from 0") << Ids{ 0, 1, 2 } << Ids{ 0, 1, 2 } << quint64(0);
}

void FrameIdUnwrapperTest::CountsOn()
{
    QFETCH(Ids, cameraIds);
    QFETCH(Ids, ids);
    QFETCH(quint64, missing);
    FrameIdUnwrapper unwrapper;
    Ids unwrapped;
    quint64 lost = 0;
    for (const quint64 cameraId : cameraIds) {
        const FrameIdUnwrapper::Step step = unwrapper.Next(cameraId);
        unwrapped.append(step.id);
        lost += step.missing;
    }
    QCOMPARE(unwrapped, ids);
    QCOMPARE(lost, missing);
}

void FrameIdUnwrapperTest::ManyRoundsLoseNothing()
{
    FrameIdUnwrapper unwrapper;
    quint64 cameraId = 65401;
    quint64 lost = 0;
    quint64 last = 0;
    for (int frame = 0; frame < 200000; ++frame) {
        const FrameIdUnwrapper::Step step = unwrapper.Next(cameraId);
        lost += step.missing;
        last = step.id;
        cameraId = cameraId == 65535 ? 1 : cameraId + 1;
    }
    QCOMPARE(lost, quint64(0));
    QCOMPARE(last, quint64(65401 + 199999));
}

void FrameIdUnwrapperTest::ResetStartsANewRun()
{
    FrameIdUnwrapper unwrapper;
    unwrapper.Next(500);
    unwrapper.Reset();
    const FrameIdUnwrapper::Step step = unwrapper.Next(900);
    QCOMPARE(step.id, quint64(900));
    QCOMPARE(step.missing, quint64(0));
}

GUARDED_TEST_MAIN(FrameIdUnwrapperTest)
#include "frameidunwrappertest.moc"
