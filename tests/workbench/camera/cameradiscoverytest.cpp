// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameradiscovery.h"
#include "guardedtest.h"

#include <QSignalSpy>
#include <QThread>
#include <algorithm>

class CameraDiscoveryTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void SimulatedCameraIsKnownAtOnce();
    void SearchRunsBesideTheCaller();
    void EndsWhileSearching();
};

void CameraDiscoveryTest::SimulatedCameraIsKnownAtOnce()
{
    const QVector<CameraInfo> cameras = CameraDiscovery::ImmediateCameras();
    QCOMPARE(cameras.size(), 1);
    QCOMPARE(cameras.first().id, QString("Fake_1"));
    QCOMPARE(cameras.first().interfaceName, QString("Fake"));
}

void CameraDiscoveryTest::SearchRunsBesideTheCaller()
{
    CameraDiscovery discovery;
    QSignalSpy found(&discovery, SIGNAL(signalCamerasFound(QVector<CameraInfo>)));
    QThread *slotThread = nullptr;
    connect(
        &discovery, &CameraDiscovery::signalCamerasFound, this,
        [&] { slotThread = QThread::currentThread(); }, Qt::DirectConnection);
    discovery.Start();
    discovery.Start(); // one search at a time
    QVERIFY(discovery.IsRunning()); // it was not waited for
    QVERIFY(found.wait(20000));
    QVERIFY(!discovery.IsRunning());
    QCOMPARE(found.count(), 1);
    QCOMPARE(slotThread, QThread::currentThread());

    // What is known at once agrees with what the search tells of the simulated camera.
    const auto cameras = found.first().first().value<QVector<CameraInfo>>();
    const CameraInfo simulated = CameraDiscovery::ImmediateCameras().first();
    const auto match = std::find_if(cameras.begin(), cameras.end(),
                                    [&](const CameraInfo &camera) { return camera.id == simulated.id; });
    QVERIFY(match != cameras.end());
    QCOMPARE(match->vendor, simulated.vendor);
    QCOMPARE(match->model, simulated.model);
    QCOMPARE(match->serial, simulated.serial);
    QCOMPARE(match->interfaceName, simulated.interfaceName);
}

void CameraDiscoveryTest::EndsWhileSearching()
{
    bool isTold = false;
    {
        CameraDiscovery discovery;
        connect(&discovery, &CameraDiscovery::signalCamerasFound, this, [&] { isTold = true; });
        discovery.Start();
    }
    QCoreApplication::processEvents();
    QVERIFY(!isTold);
}

GUARDED_TEST_MAIN(CameraDiscoveryTest)
#include "cameradiscoverytest.moc"
