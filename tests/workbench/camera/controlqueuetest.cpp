// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerasessionfixture.h"
#include "guiwatchdog.h"

#include <QElapsedTimer>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTimer>

/// A session whose camera does not answer: what is asked for meanwhile waits in order, and nobody waits for it.
class ControlQueueTest : public CameraSessionFixture
{
    Q_OBJECT

private slots:
    void SetsReturnAtOnceWhileTheCameraDoesNotAnswer();
    void NewestOfManySetsWins();
    void WhatWasSetBeforeAStartHoldsInIt();
    void StopAndStartWhileTheCameraDoesNotAnswer();
    void ClosedWithWorkThatWaits();

private:
    /// The camera does not answer to anything until that is released.
    void Block(QSemaphore *answer);
};

void ControlQueueTest::Block(QSemaphore *answer)
{
    QSemaphore isBlocked;
    QVERIFY(m_session->TakeTurn(
        [answer, &isBlocked](ArvCamera *) {
            isBlocked.release();
            answer->acquire();
        },
        this, [] {}));
    QVERIFY(isBlocked.tryAcquire(1, 5000));
}

void ControlQueueTest::SetsReturnAtOnceWhileTheCameraDoesNotAnswer()
{
    OpenWithChart();
    m_session->SetRegion(QRect(0, 0, 64, 64));
    QVERIFY(m_session->Start(&m_frames));
    Settle();
    QVERIFY(m_frames.WaitFor(1));
    const ControlValues before = m_session->Controls();
    QSemaphore answer;
    Block(&answer);

    GuiWatchdog watchdog;
    m_session->SetExposureUs(1);
    m_session->SetGain(99);
    m_session->SetFrameRate(12);
    m_session->SetRegion(QRect(10, 10, 32, 32));
    m_session->SetBinning(2);
    m_session->SetPixelLayout(PixelLayout::Mono12);
    m_session->Refresh();
    QVERIFY(m_session->IsSetting());
    int beats = 0;
    QTimer beat;
    connect(&beat, &QTimer::timeout, this, [&beats] { ++beats; });
    beat.start(10);
    QTRY_VERIFY(beats >= 50); // the window lives on
    QVERIFY2(watchdog.LongestMs() < 50, watchdog.Text("a camera that does not answer"));
    // What was known of it can be read all the time.
    QVERIFY(m_session->Controls() == before);
    QCOMPARE(m_session->Format().region, QRect(0, 0, 64, 64));
    QVERIFY(m_session->IsSetting());

    QSignalSpy controlSet(m_session.get(), &CameraSession::signalControlSet);
    QSignalSpy formatSet(m_session.get(), &CameraSession::signalFormatSet);
    answer.release();
    Settle();
    QCOMPARE(controlSet.count(), 3);
    QCOMPARE(formatSet.count(), 3);
    QCOMPARE(m_session->Controls().exposureUs, 10.0); // as clamped
    QCOMPARE(m_session->Controls().gain, 10.0);
    QCOMPARE(m_session->Controls().frameRate, 12.0);
    QCOMPARE(m_session->Format().region, QRect(10, 10, 32, 32));
    QCOMPARE(m_session->Format().binning, 2);
    QCOMPARE(m_session->Format().layout, PixelLayout::Mono12);
    QVERIFY(m_frames.WaitForMore(2));
    QCOMPARE(QSize(m_frames.Last().width, m_frames.Last().height), QSize(16, 16));
}

void ControlQueueTest::NewestOfManySetsWins()
{
    OpenWithChart();
    QSemaphore answer;
    Block(&answer);
    QSignalSpy set(m_session.get(), &CameraSession::signalControlSet);
    QSignalSpy changed(m_session.get(), &CameraSession::signalControlsChanged);
    QSignalSpy formatSet(m_session.get(), &CameraSession::signalFormatSet);
    for (int i = 1; i <= 100; ++i) {
        m_session->SetExposureUs(1000 + i);
        m_session->SetGain(i / 100.0);
        for (const QString side : { "left", "top" })
            m_session->ChangeRegion(side, [side, i](const QRect &region) {
                return side == "left" ? QRect(i, region.y(), 64, 64) : QRect(region.x(), 2 * i, 64, 64);
            });
    }
    answer.release();
    Settle();
    QCOMPARE(set.count(), 2); // one of each setting
    QCOMPARE(formatSet.count(), 2);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(m_session->Controls().exposureUs, 1100.0);
    QCOMPARE(m_session->Controls().gain, 1.0);
    QCOMPARE(m_session->Format().region, QRect(100, 200, 64, 64)); // the one side counts with the other
}

void ControlQueueTest::WhatWasSetBeforeAStartHoldsInIt()
{
    OpenWithChart();
    QSemaphore answer;
    Block(&answer);
    m_session->SetRegion(QRect(0, 0, 64, 48));
    m_session->SetExposureUs(1000);
    m_session->SetExposureUs(2000);
    double exposureAtTurn = 0;
    QRect regionAtTurn;
    QVERIFY(m_session->TakeTurn(nullptr, this, [&] {
        exposureAtTurn = m_session->Controls().exposureUs;
        regionAtTurn = m_session->Format().region;
    }));
    QVERIFY(m_session->Start(&m_frames));
    m_session->SetExposureUs(3000); // too late for that turn
    answer.release();
    Settle();
    QCOMPARE(exposureAtTurn, 2000.0);
    QCOMPARE(regionAtTurn, QRect(0, 0, 64, 48));
    QCOMPARE(m_session->Controls().exposureUs, 3000.0);
    QVERIFY(m_frames.WaitFor(2));
    for (const CameraFrame &frame : m_frames.Frames())
        QCOMPARE(QSize(frame.width, frame.height), QSize(64, 48));
}

void ControlQueueTest::StopAndStartWhileTheCameraDoesNotAnswer()
{
    OpenWithChart();
    m_session->SetRegion(QRect(0, 0, 64, 64));
    QVERIFY(m_session->Start(&m_frames));
    QVERIFY(m_frames.WaitFor(2));
    QSemaphore answer;
    Block(&answer);
    QElapsedTimer timer;
    timer.start();
    m_session->Stop();
    const size_t countAtStop = m_frames.Count();
    FrameCollector never;
    QVERIFY(m_session->Start(&never));
    QCOMPARE(m_session->MillisecondsSinceLastFrame(), qint64(0));
    FrameCollector last;
    QVERIFY(m_session->Start(&last));
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    answer.release();
    QVERIFY(last.WaitFor(3));
    m_session->Stop();
    QCOMPARE(m_frames.Count(), countAtStop);
    QCOMPARE(never.Count(), size_t(0));
    QCOMPARE(m_session->Ledger().Counts().captured, quint64(last.Count()));
}

void ControlQueueTest::ClosedWithWorkThatWaits()
{
    OpenWithChart();
    m_session->SetRegion(QRect(0, 0, 64, 64));
    QVERIFY(m_session->Start(&m_frames));
    QVERIFY(m_frames.WaitFor(1));
    QSemaphore answer;
    Block(&answer);
    const auto owned = std::make_shared<int>(0);
    bool isDone = false;
    QVERIFY(m_session->TakeTurn([owned](ArvCamera *) { ++*owned; }, this, [&isDone] { isDone = true; }));
    m_session->SetExposureUs(1000);
    QVERIFY(m_session->Start(&m_frames));
    QSignalSpy set(m_session.get(), &CameraSession::signalControlSet);
    QElapsedTimer timer;
    timer.start();
    m_session->Close();
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(!m_session->IsSetting());
    QCOMPARE(owned.use_count(), 1L); // what waited is gone
    const size_t countAtClose = m_frames.Count();
    OpenWithChart(); // another camera need not wait for it
    m_session->SetGain(2);
    Settle();
    answer.release();
    QVERIFY(CameraSession::WaitForTeardown(10000));
    QCoreApplication::processEvents();
    QCOMPARE(*owned, 0);
    QVERIFY(!isDone);
    QCOMPARE(set.count(), 1);
    QCOMPARE(m_frames.Count(), countAtClose);
}

GUARDED_TEST_MAIN(ControlQueueTest)
#include "controlqueuetest.moc"
