// SPDX-License-Identifier: GPL-3.0-or-later
#include "acquireprogressui.h"

#include "displayscale.h"
#include "fakeservices.h"
#include "guardedtest.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QLayout>
#include <QProgressBar>
#include <QScopedPointer>
#include <QThread>

#include <functional>

namespace {

/// The panel on a host, with the services it follows.
struct Panel
{
    explicit Panel(double scale = 1.0)
        : displayScale(scale)
        , panel(new AcquireProgressUI(&host))
        , bar(panel->findChild<QProgressBar *>("progressBar"))
        , frames(panel->findChild<QLabel *>("labelFrames"))
        , time(panel->findChild<QLabel *>("labelTime"))
    {
        host.resize(800, 600);
    }

    void SetLimit(bool frameCount, int limit)
    {
        services.frameSave.autoStop = true;
        services.frameSave.totalFrameChecked = frameCount;
        services.frameSave.progressBarMaxValue = limit;
    }
    FakeFrameSaveManager &Saver() { return services.frameSave; }

    DisplayScale displayScale;
    FakeServices services;
    QWidget host;
    AcquireProgressUI *panel;
    QProgressBar *bar;
    QLabel *frames;
    QLabel *time;
};

} // namespace

class TestAcquireProgressUI : public GuardedTest
{
    Q_OBJECT

private slots:
    void form_data();
    void form();
    void frameText_data();
    void frameText();
    void savedFramesMoveTheBar_data();
    void savedFramesMoveTheBar();
    void conversionShowsThePanel();
    void totalNumberBecomesTheMaximum();
    void totalTime_data();
    void totalTime();
    void totalTimeMovesTheBarOfATimedRun();
    void delayTime_data();
    void delayTime();
    void height_data();
    void height();
    void startOfARun_data();
    void startOfARun();
    void startOfARunBringsThePanelToTheFront();
    void endOfARunHidesThePanelAfterHalfASecond();
    void tickDuringARunLeavesThePanel();
    void newRunWithinHalfASecondKeepsThePanel();
    void endOfATimedPhase_data();
    void endOfATimedPhase();
    void timedPhaseEndsAfterTheRun();
    void signalsOfTheSaveThreadArriveInTheGuiThread();
};

void TestAcquireProgressUI::form_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("gap");
    QTest::addColumn<int>("barHeight");
    QTest::newRow("design size") << 1.0 << 200 << 5 << 10;
    QTest::newRow("twice") << 2.0 << 400 << 10 << 20;
}

void TestAcquireProgressUI::form()
{
    QFETCH(double, scale);
    QFETCH(int, width);
    QFETCH(int, gap);
    QFETCH(int, barHeight);
    Panel p(scale);

    QCOMPARE(p.panel->objectName(), QString("AcquireProgressUI"));
    QCOMPARE(p.panel->windowTitle(), QString("Form"));
    QVERIFY(p.panel->isHidden());
    QCOMPARE(p.panel->minimumWidth(), width);
    QCOMPARE(p.panel->maximumWidth(), width);
    QCOMPARE(p.panel->height(), 67);

    auto *layout = p.panel->findChild<QVBoxLayout *>("verticalLayout");
    QCOMPARE(p.panel->layout(), layout);
    QCOMPARE(layout->contentsMargins(), QMargins(gap, gap, gap, gap));
    QCOMPARE(layout->spacing(), gap);
    QCOMPARE(layout->itemAt(0)->widget(), p.bar);
    QCOMPARE(layout->itemAt(1)->widget(), p.frames);
    QCOMPARE(layout->itemAt(2)->widget(), p.time);

    QCOMPARE(p.bar->value(), 10);
    QCOMPARE(p.bar->minimumHeight(), barHeight);
    QCOMPARE(p.bar->maximumHeight(), barHeight);
    QCOMPARE(p.bar->maximumWidth(), 16777215);
    QCOMPARE(p.frames->font().family(), QString("Arial"));
    QCOMPARE(p.frames->font().pointSize(), 12);
    QCOMPARE(p.frames->alignment(), Qt::AlignCenter);
    QCOMPARE(p.time->alignment(), Qt::AlignCenter);
}

void TestAcquireProgressUI::frameText_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<bool>("record");
    QTest::addColumn<bool>("autoStop");
    QTest::addColumn<bool>("frameCount");
    QTest::addColumn<QString>("text");
    QTest::newRow("disk, open end") << "disk" << false << false << false << "To Disk : 42";
    QTest::newRow("disk, frame limit") << "disk" << false << true << true << "To Disk : 42 / 500";
    QTest::newRow("disk, time limit") << "disk" << false << true << false << "To Disk : 42";
    QTest::newRow("disk, count set but open end") << "disk" << false << false << true << "To Disk : 42";
    QTest::newRow("recording, open end") << "disk" << true << false << false << "Record : 42";
    QTest::newRow("recording, frame limit") << "disk" << true << true << true << "Record : 42 / 500";
    QTest::newRow("RAM, open end") << "RAM" << false << false << false << "To RAM : 42";
    QTest::newRow("RAM, frame limit") << "RAM" << false << true << true << "To RAM : 42 / 500";
    QTest::newRow("RAM while recording") << "RAM" << true << false << false << "To RAM : 42";
    QTest::newRow("conversion, open end") << "convert" << false << false << false << "Converting to TIF : 42 / 500";
    QTest::newRow("conversion, frame limit") << "convert" << true << true << true << "Converting to TIF : 42 / 500";
}

void TestAcquireProgressUI::frameText()
{
    QFETCH(QString, mode);
    QFETCH(bool, record);
    QFETCH(bool, autoStop);
    QFETCH(bool, frameCount);
    QFETCH(QString, text);
    Panel p;
    p.Saver().recordMode = record;
    p.Saver().autoStop = autoStop;
    p.Saver().totalFrameChecked = frameCount;
    emit p.Saver().signalSetTotalSaveNumber(500);

    if (mode == "disk")
        emit p.Saver().signalUpdateSaveNumber(42);
    else if (mode == "RAM")
        emit p.Saver().signalUpdateRAMSaveFrames(42);
    else
        emit p.Saver().signalUpdateSenExtractNumber(42);
    QCOMPARE(p.frames->text(), text);
}

void TestAcquireProgressUI::savedFramesMoveTheBar_data()
{
    QTest::addColumn<bool>("toRAM");
    QTest::addColumn<bool>("autoStop");
    QTest::addColumn<bool>("frameCount");
    QTest::addColumn<bool>("saveToRAMFlag");
    QTest::addColumn<bool>("barHidden");
    QTest::addColumn<int>("value");
    QTest::newRow("RAM, frame limit") << true << true << true << false << false << 42;
    QTest::newRow("RAM, time limit: frames don't count") << true << true << false << false << false << 0;
    QTest::newRow("RAM, open end") << true << false << false << true << true << 0;
    QTest::newRow("disk, frame limit") << false << true << true << false << false << 42;
    QTest::newRow("disk, time limit: frames don't count") << false << true << false << false << false << 0;
    QTest::newRow("disk from RAM, time limit") << false << true << false << true << false << 42;
    QTest::newRow("disk from RAM, open end") << false << false << false << true << true << 42;
    QTest::newRow("disk, open end") << false << false << true << false << true << 0;
}

void TestAcquireProgressUI::savedFramesMoveTheBar()
{
    QFETCH(bool, toRAM);
    QFETCH(bool, autoStop);
    QFETCH(bool, frameCount);
    QFETCH(bool, saveToRAMFlag);
    QFETCH(bool, barHidden);
    QFETCH(int, value);
    Panel p;
    p.Saver().autoStop = autoStop;
    p.Saver().totalFrameChecked = frameCount;
    p.Saver().progressBarMaxValue = 500;
    p.services.fileSave.saveToRAM = saveToRAMFlag;
    p.bar->setRange(0, 500);
    p.bar->setValue(0);

    if (toRAM)
        emit p.Saver().signalUpdateRAMSaveFrames(42);
    else
        emit p.Saver().signalUpdateSaveNumber(42);
    QCOMPARE(p.bar->isHidden(), barHidden);
    QCOMPARE(p.bar->value(), value);
}

void TestAcquireProgressUI::conversionShowsThePanel()
{
    Panel p;
    emit p.Saver().signalSetTotalSaveNumber(500);
    emit p.Saver().signalUpdateSenExtractNumber(77);
    QVERIFY(!p.panel->isHidden());
    QCOMPARE(p.bar->value(), 77);
    QCOMPARE(p.frames->text(), QString("Converting to TIF : 77 / 500"));
}

void TestAcquireProgressUI::totalNumberBecomesTheMaximum()
{
    Panel p;
    emit p.Saver().signalSetTotalSaveNumber(1234);
    QCOMPARE(p.bar->maximum(), 1234);
    QVERIFY(p.panel->isHidden());
}

void TestAcquireProgressUI::totalTime_data()
{
    QTest::addColumn<bool>("autoStop");
    QTest::addColumn<bool>("frameCount");
    QTest::addColumn<QString>("text");
    QTest::newRow("open end") << false << false << "Total Time : 01 : 15";
    QTest::newRow("open end, count set") << false << true << "Total Time : 01 : 15";
    QTest::newRow("frame limit") << true << true << "Total Time : 01 : 15";
    QTest::newRow("ten minute run") << true << false << "Total Time : 01 : 15 / 10 : 00";
}

void TestAcquireProgressUI::totalTime()
{
    QFETCH(bool, autoStop);
    QFETCH(bool, frameCount);
    QFETCH(QString, text);
    Panel p;
    p.Saver().autoStop = autoStop;
    p.Saver().totalFrameChecked = frameCount;
    emit p.Saver().signalSetTotalSaveNumber(600);
    emit p.Saver().signalUpdateTotalTime(75);
    QCOMPARE(p.time->text(), text);
    QVERIFY(!p.time->isHidden());
}

void TestAcquireProgressUI::totalTimeMovesTheBarOfATimedRun()
{
    Panel p;
    p.SetLimit(false, 600);
    emit p.Saver().signalSaveThreadRunningChanged(true);
    emit p.Saver().signalUpdateTotalTime(75);
    QCOMPARE(p.bar->value(), 75);

    p.SetLimit(true, 600);
    emit p.Saver().signalUpdateTotalTime(80);
    QCOMPARE(p.bar->value(), 75); // frames count now; the time leaves the bar where it is

    p.Saver().autoStop = false;
    emit p.Saver().signalUpdateTotalTime(90);
    QVERIFY(p.bar->isHidden());
}

void TestAcquireProgressUI::delayTime_data()
{
    QTest::addColumn<int>("minutes");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<int>("milliseconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("ten seconds") << 0 << 10 << 0 << "Delaying : 00 : 03 / 00 : 10";
    QTest::newRow("minutes") << 2 << 5 << 0 << "Delaying : 00 : 03 / 02 : 05";
    QTest::newRow("parts of a second are cut off") << 0 << 4 << 999 << "Delaying : 00 : 03 / 00 : 04";
}

void TestAcquireProgressUI::delayTime()
{
    QFETCH(int, minutes);
    QFETCH(int, seconds);
    QFETCH(int, milliseconds);
    QFETCH(QString, text);
    Panel p;
    p.services.fileSave.configuredTime = {minutes, seconds, milliseconds};
    const int value = p.bar->value();
    emit p.Saver().signalUpdateDelayTime(3);
    QCOMPARE(p.time->text(), text);
    QVERIFY(!p.time->isHidden());
    QCOMPARE(p.panel->height(), 75);
    QCOMPARE(p.bar->value(), value);
}

void TestAcquireProgressUI::height_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<bool>("autoStop");
    QTest::addColumn<bool>("timeShown");
    QTest::addColumn<int>("height");
    QTest::newRow("time and bar") << 1.0 << true << true << 75;
    QTest::newRow("bar alone") << 1.0 << true << false << 50;
    QTest::newRow("time without bar") << 1.0 << false << true << 50;
    QTest::newRow("neither") << 1.0 << false << false << 50;
    QTest::newRow("time and bar, twice the size") << 2.0 << true << true << 150;
    QTest::newRow("time without bar, twice the size") << 2.0 << false << true << 100;
}

void TestAcquireProgressUI::height()
{
    QFETCH(double, scale);
    QFETCH(bool, autoStop);
    QFETCH(bool, timeShown);
    QFETCH(int, height);
    Panel p(scale);
    p.Saver().autoStop = autoStop;
    p.Saver().progressBarMaxValue = 60;
    emit p.Saver().signalSaveThreadRunningChanged(true);
    if (timeShown)
        emit p.Saver().signalUpdateTotalTime(5);
    QCOMPARE(p.time->isHidden(), !timeShown);
    QCOMPARE(p.bar->isHidden(), !autoStop);
    QCOMPARE(p.panel->minimumHeight(), height);
    QCOMPARE(p.panel->maximumHeight(), height);
}

void TestAcquireProgressUI::startOfARun_data()
{
    QTest::addColumn<bool>("saveToRAM");
    QTest::addColumn<bool>("record");
    QTest::addColumn<bool>("frameCount");
    QTest::addColumn<QString>("text");
    QTest::newRow("to disk, frame limit") << false << false << true << "To Disk : 0 / 500";
    QTest::newRow("to disk, time limit") << false << false << false << "To Disk : 0";
    QTest::newRow("recording") << false << true << true << "Record : 0 / 500";
    QTest::newRow("to RAM") << true << false << true << "To RAM : 0 / 500";
}

void TestAcquireProgressUI::startOfARun()
{
    QFETCH(bool, saveToRAM);
    QFETCH(bool, record);
    QFETCH(bool, frameCount);
    QFETCH(QString, text);
    Panel p;
    auto *inFront = new QWidget(&p.host);
    p.host.show();
    QVERIFY(QTest::qWaitForWindowExposed(&p.host));
    p.SetLimit(frameCount, 500);
    p.Saver().recordMode = record;
    p.services.fileSave.saveToRAM = saveToRAM;
    p.time->setText("of the run before");

    emit p.Saver().signalSaveThreadRunningChanged(true);
    QCOMPARE(p.bar->minimum(), 0);
    QCOMPARE(p.bar->maximum(), 500);
    QCOMPARE(p.bar->value(), 0);
    QVERIFY(p.bar->isVisible());
    QCOMPARE(p.frames->text(), text);
    QCOMPARE(p.time->text(), QString());
    QVERIFY(p.time->isHidden());
    QCOMPARE(p.panel->height(), 50);
    QVERIFY(p.panel->isVisible());
    const QObjectList children = p.host.children();
    QVERIFY(children.indexOf(p.panel) > children.indexOf(inFront)); // the last child lies in front
}

void TestAcquireProgressUI::startOfARunBringsThePanelToTheFront()
{
    Panel p;
    QWidget above(&p.host);
    QCOMPARE(p.host.children().last(), &above);
    emit p.Saver().signalSaveThreadRunningChanged(true);
    QCOMPARE(p.host.children().last(), p.panel); // the last one is painted over the others
}

void TestAcquireProgressUI::endOfARunHidesThePanelAfterHalfASecond()
{
    Panel p;
    emit p.Saver().signalSaveThreadRunningChanged(true);
    QVERIFY(!p.panel->isHidden());
    QElapsedTimer timer;
    timer.start();
    emit p.Saver().signalSaveThreadRunningChanged(false);
    QCOMPARE(CallLog::Calls(), QStringList("PreviewManager::RestoreStopPreview()"));
    QVERIFY(!p.panel->isHidden());
    QTRY_VERIFY(p.panel->isHidden());
    QVERIFY(timer.elapsed() >= 450); // Qt's coarse timers may come 5 % early
}

void TestAcquireProgressUI::tickDuringARunLeavesThePanel()
{
    Panel p;
    p.SetLimit(true, 500);
    emit p.Saver().signalSaveThreadRunningChanged(true);
    emit p.Saver().signalUpdateTotalTime(3);
    QVERIFY(!p.time->text().isEmpty());
    emit p.Saver().signalUpdateTotalTime(-1);
    QTRY_COMPARE(p.time->text(), QString()); // the tick has come
    QVERIFY(!p.panel->isHidden());
}

void TestAcquireProgressUI::newRunWithinHalfASecondKeepsThePanel()
{
    Panel p;
    p.SetLimit(true, 500);
    emit p.Saver().signalSaveThreadRunningChanged(true);
    emit p.Saver().signalSaveThreadRunningChanged(false);
    emit p.Saver().signalSaveThreadRunningChanged(true);
    emit p.Saver().signalUpdateTotalTime(1);
    QTRY_COMPARE(p.time->text(), QString()); // the tick of the first run's end
    QVERIFY(!p.panel->isHidden());
}

void TestAcquireProgressUI::endOfATimedPhase_data()
{
    QTest::addColumn<bool>("record");
    QTest::addColumn<bool>("frameCount");
    QTest::addColumn<bool>("delay");
    QTest::addColumn<QString>("timeLeft");
    QTest::newRow("frame count: the time goes") << false << true << false << "";
    QTest::newRow("frame count after a delay: the time goes") << false << true << true << "";
    QTest::newRow("recording: the time stays") << true << true << false << "Total Time : 00 : 07";
    QTest::newRow("time limit: the time stays") << false << false << false << "Total Time : 00 : 07 / 08 : 20";
}

void TestAcquireProgressUI::endOfATimedPhase()
{
    QFETCH(bool, record);
    QFETCH(bool, frameCount);
    QFETCH(bool, delay);
    QFETCH(QString, timeLeft);
    Panel p;
    p.SetLimit(frameCount, 500);
    p.Saver().recordMode = record;
    emit p.Saver().signalSaveThreadRunningChanged(true);
    emit p.Saver().signalUpdateTotalTime(7);
    p.panel->setFixedHeight(20); // the tick adjusts it again

    if (delay)
        emit p.Saver().signalUpdateDelayTime(-1);
    else
        emit p.Saver().signalUpdateTotalTime(-1);
    QCOMPARE(p.panel->height(), 75); // the end of the phase adjusts the height at once
    p.panel->setFixedHeight(20);
    QTRY_COMPARE(p.panel->height(), timeLeft.isEmpty() ? 50 : 75);
    QCOMPARE(p.time->text(), timeLeft);
    QCOMPARE(p.time->isHidden(), timeLeft.isEmpty());
    QVERIFY(!p.panel->isHidden());
}

void TestAcquireProgressUI::timedPhaseEndsAfterTheRun()
{
    Panel p;
    p.SetLimit(true, 500);
    emit p.Saver().signalSaveThreadRunningChanged(true);
    emit p.Saver().signalUpdateTotalTime(7);
    emit p.Saver().signalSaveThreadRunningChanged(false);
    emit p.Saver().signalUpdateTotalTime(-1); // takes the wish to hide back
    QTRY_COMPARE(p.time->text(), QString());
    QVERIFY(!p.panel->isHidden());
}

void TestAcquireProgressUI::signalsOfTheSaveThreadArriveInTheGuiThread()
{
    Panel p;
    p.SetLimit(true, 500);
    QScopedPointer<QThread> saveThread(QThread::create([&p] {
        emit p.Saver().signalSaveThreadRunningChanged(true);
        emit p.Saver().signalUpdateRAMSaveFrames(42);
    }));
    saveThread->start();
    QVERIFY(saveThread->wait());
    QVERIFY(p.panel->isHidden()); // nothing is touched from the other thread
    QTRY_COMPARE(p.frames->text(), QString("To RAM : 42 / 500"));
    QVERIFY(!p.panel->isHidden());
    QCOMPARE(p.bar->value(), 42);
}

GUARDED_TEST_MAIN(TestAcquireProgressUI)
#include "tst_acquireprogressui.moc"
