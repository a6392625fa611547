// SPDX-License-Identifier: GPL-3.0-or-later
#include "receiptdialog.h"
#include "guardedtest.h"
#include "runchecksum.h"

#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSemaphore>
#include <QSignalSpy>
#include <QThreadPool>

#include <atomic>

Q_DECLARE_METATYPE(RunEnd)

namespace {
constexpr int MsToWait = 20000;
}

/// What a run has come to, in a window.
class ReceiptDialogTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void tellsWhatTheRunHasComeTo_data()
    {
        QTest::addColumn<RunEnd>("end");
        QTest::addColumn<QString>("reason");
        QTest::addColumn<quint64>("lost");
        QTest::addColumn<QString>("error");
        QTest::addColumn<QString>("warning");
        QTest::addColumn<QStringList>("told");
        QTest::newRow("whole") << RunEnd::Complete << "" << quint64(0) << "" << ""
                               << QStringList{ "complete", "/disk/run.tif", "0" };
        QTest::newRow("camera lost") << RunEnd::CameraLost << "C-1 does not answer" << quint64(0) << "" << ""
                                     << QStringList{ "the camera was lost (C-1 does not answer)" };
        QTest::newRow("frames lost") << RunEnd::Complete << "" << quint64(3) << "" << ""
                                     << QStringList{ "3 (3 arrived incomplete)" };
        QTest::newRow("an error and a warning") << RunEnd::Fault << "" << quint64(0) << "the disk is full"
                                                << "no summary" << QStringList{ "the disk is full", "no summary" };
    }

    void tellsWhatTheRunHasComeTo()
    {
        QFETCH(RunEnd, end);
        QFETCH(QString, reason);
        QFETCH(quint64, lost);
        QFETCH(QString, error);
        QFETCH(QString, warning);
        QFETCH(QStringList, told);
        RunReceipt receipt = Receipt();
        receipt.outcome.end = end;
        receipt.outcome.reason = reason;
        receipt.outcome.counts.lostAt[size_t(LossStage::Transfer)] = lost;
        receipt.error = error;
        receipt.warning = warning;
        const ReceiptDialog dialog(receipt, nullptr);
        QStringList texts;
        for (const QLabel *label : dialog.findChildren<QLabel *>())
            texts << label->text();
        for (const QString &text : told)
            QVERIFY2(texts.contains(text), qPrintable(text + " is not in " + texts.join(" | ")));
    }

    void nothingToVerifyWithoutFiles()
    {
        const ReceiptDialog dialog(RunReceipt(), nullptr);
        QVERIFY(!dialog.findChild<QPushButton *>("pushButtonVerify")->isEnabled());
        QVERIFY(!dialog.findChild<QPushButton *>("pushButtonOpen")->isEnabled());
    }

    void verdict_data()
    {
        QTest::addColumn<bool>("isSame");
        QTest::addColumn<QString>("error");
        QTest::addColumn<QString>("text");
        QTest::newRow("same") << true << "" << "The files hold exactly what was captured.";
        QTest::newRow("other") << false << "" << "The files do NOT hold what was captured: checksum 0000000000000007.";
        QTest::newRow("not to be read") << true << "run.tif can't be read." << "run.tif can't be read.";
    }

    void verdict()
    {
        QFETCH(bool, isSame);
        QFETCH(QString, error);
        QFETCH(QString, text);
        const RunReceipt receipt = Receipt();
        const quint64 seen = isSame ? RunChecksum::OfRun(receipt.stamps) : 7;
        QStringList read;
        ReceiptDialog dialog(
            receipt,
            [&](const QStringList &files, quint64 *checksum, QString *fault, const std::function<bool()> &) {
                read = files;
                *checksum = seen;
                *fault = error;
                return error.isEmpty();
            },
            nullptr);
        auto *verify = dialog.findChild<QPushButton *>("pushButtonVerify");
        verify->click();
        QVERIFY(!verify->isEnabled());
        QTRY_COMPARE_WITH_TIMEOUT(dialog.findChild<QLabel *>("labelVerdict")->text(), text, MsToWait);
        QVERIFY(verify->isEnabled());
        QCOMPARE(read, receipt.files);
    }

    /// A network folder that went away keeps a reader for ever.
    void closesWhileTheDiskDoesNotAnswer()
    {
        QSemaphore begun;
        QSemaphore answer;
        std::atomic<bool> wasCancelled{ false };
        QPointer<ReceiptDialog> dialog = new ReceiptDialog(
            Receipt(),
            [&](const QStringList &, quint64 *, QString *, const std::function<bool()> &isCancelled) {
                begun.release();
                answer.acquire();
                wasCancelled = isCancelled();
                return false;
            },
            nullptr);
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        dialog->findChild<QPushButton *>("pushButtonVerify")->click();
        QVERIFY(begun.tryAcquire(1, MsToWait));
        dialog->close();
        QTRY_VERIFY_WITH_TIMEOUT(!dialog, MsToWait);
        QVERIFY(!wasCancelled); // the reader is still at its frame
        answer.release();
        QVERIFY(QThreadPool::globalInstance()->waitForDone(MsToWait));
        QVERIFY(wasCancelled);
    }

    void opensTheFile()
    {
        ReceiptDialog dialog(Receipt(), nullptr);
        QSignalSpy opened(&dialog, SIGNAL(signalOpenFile(QString)));
        dialog.findChild<QPushButton *>("pushButtonOpen")->click();
        QCOMPARE(opened.count(), 1);
        QCOMPARE(opened.first().first().toString(), QString("/disk/run.tif"));
    }

private:
    static RunReceipt Receipt()
    {
        RunReceipt receipt;
        receipt.files = QStringList{ "/disk/run.tif", "/disk/run.txt" };
        receipt.stamps = { { 1, 0, 0, 11 }, { 2, 1000, 1000, 12 } };
        receipt.outcome.counts.captured = 2;
        receipt.outcome.counts.saved = 2;
        return receipt;
    }
};

GUARDED_TEST_MAIN(ReceiptDialogTest)
#include "receiptdialogtest.moc"
