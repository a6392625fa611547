// SPDX-License-Identifier: GPL-3.0-or-later
#include "framesaving.h"
#include "recordingscenario.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QTimer>
#include <QWindow>

/// Nothing ends a recording by accident, and none that cannot end well begins without a question.
class RecordingGuardScenario : public RecordingScenario
{
    Q_OBJECT

private slots:
    void closingTheProgramAsks_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("closes");
        QTest::addColumn<int>("files");
        QTest::newRow("finish") << "Finish It" << true << 1;
        QTest::newRow("discard") << "Discard It" << true << 0;
        QTest::newRow("go on") << "Go On Recording" << false << 1;
    }

    void closingTheProgramAsks()
    {
        QFETCH(QString, answer);
        QFETCH(bool, closes);
        QFETCH(int, files);
        m_settings.mode = RecordingSettings::Mode::UntilStopped;
        Apply();
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->Counts().saved > 3, MsToWait);
        Answer(answer);
        m_workbench->window.close();
        if (!closes) {
            QVERIFY(m_workbench->window.isVisible() && Desk()->IsBusy());
            Desk()->slotStop();
        }
        Receipt();
        QTRY_COMPARE_WITH_TIMEOUT(m_workbench->window.isVisible(), !closes, MsToWait);
        QCOMPARE(QDir(m_folder->path()).entryList({ "run*.tif" }).size(), files);
    }

    void aRecordingThatEndsWhileItAsksLetsTheProgramClose()
    {
        m_settings.mode = RecordingSettings::Mode::UntilStopped;
        Apply();
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->Counts().saved > 3, MsToWait);
        QTimer::singleShot(0, Desk(), &RecordingDesk::slotStop); // the question stands by then
        connect(Desk(), &RecordingDesk::signalRunEnded, this, [this] { Answer("Finish It"); });
        m_workbench->window.close();
        QTRY_VERIFY_WITH_TIMEOUT(!m_workbench->window.isVisible(), MsToWait);
        QVERIFY(m_isAnswered);
    }

    void aRunThatDoesNotFitAsksFirst_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("records");
        QTest::newRow("cancel") << "Cancel" << false;
        QTest::newRow("what fits") << "Record What Fits" << true;
        QTest::newRow("anyway") << "Record Anyway" << true;
    }

    void aRunThatDoesNotFitAsksFirst()
    {
        QFETCH(QString, answer);
        QFETCH(bool, records);
        m_workbench->link.SetRegion(QRect(0, 0, 2048, 2048));
        m_settings.frames = RecordingSettings::MostFrames; // 17 TB
        Apply();
        Answer(answer);
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QTRY_COMPARE_WITH_TIMEOUT(m_isAnswered, true, MsToWait);
        if (!records) {
            QTRY_VERIFY(!Desk()->IsBusy());
            QCOMPARE(m_ended->count(), 0);
            return;
        }
        QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->Counts().saved > 0, MsToWait);
        const int frames = Desk()->Saving()->Order().settings.frames;
        QCOMPARE(frames < RecordingSettings::MostFrames, answer == "Record What Fits");
        Desk()->slotDiscard();
        Receipt();
    }

    void closingTheCameraAsks()
    {
        m_settings.mode = RecordingSettings::Mode::UntilStopped;
        Apply();
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->Counts().saved > 3, MsToWait);
        Answer("Finish It");
        m_workbench->Action("Close Camera")->trigger();
        const RunReceipt receipt = Receipt();
        QVERIFY2(receipt.IsWhole(), qPrintable(receipt.Text()));
        CompareWithTheScene(receipt, receipt.stamps.size());
        QTRY_VERIFY_WITH_TIMEOUT(m_workbench->link.GetState() == CameraLink::State::NoCamera, MsToWait);
    }

private:
    /// Presses that button of the question as soon as it is there.
    void Answer(const QString &text)
    {
        m_isAnswered = false;
        auto *timer = new QTimer(&m_workbench->window);
        connect(timer, &QTimer::timeout, this, [this, timer, text] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box || !box->isActiveWindow() || !box->windowHandle()->isExposed())
                return; // a person clicks what is on the screen
            m_isAnswered = true;
            timer->stop();
            timer->deleteLater();
            for (QAbstractButton *button : box->buttons()) {
                if (button->text().remove('&') == text)
                    button->click();
            }
        });
        timer->start(20);
    }

    bool m_isAnswered = false;
};

GUARDED_TEST_MAIN(RecordingGuardScenario)
#include "tst_recordingguard.moc"
