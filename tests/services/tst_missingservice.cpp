// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include <QProcess>

namespace {

const char *const RequiredServices[] = {
    "AdvancedProcessManager", "AlgSpectrometer", "AutoCountManager", "CameraConfigManager",
    "CameraNameManager", "CoverConfigManager", "DisplayModeUIManager", "FileSaveManager",
    "FluorescenceSynthesisManager", "FrameManager", "FrameProcessManager", "FrameSaveManager",
    "GlobalManager", "HistogramCalculateManager", "IntensityManager", "MeasureConfigManager",
    "PixelInfoManager", "PreviewManager", "ROIManager", "SpectrumManager",
    "SpectrumUIManager", "ThumbnailList", "UIConfigManager", "UseAreaManager",
};

struct Ending
{
    QProcess::ExitStatus status = QProcess::NormalExit;
    int code = 0;
    QString log;
};

/// Runs the program that asks for a service, to its end.
Ending Ask(const QStringList &arguments)
{
    QProcess process;
    process.start(ASK_FOR_SERVICE, arguments);
    Ending ending;
    if (!process.waitForFinished()) {
        process.kill();
        process.waitForFinished();
        ending.log = process.errorString();
    }
    ending.status = process.exitStatus();
    ending.code = process.exitCode();
    ending.log += QString::fromLocal8Bit(process.readAllStandardError());
    return ending;
}

} // namespace

class TestMissingService : public GuardedTest
{
    Q_OBJECT

private slots:
    void StopsTheProgramWithItsName_data()
    {
        QTest::addColumn<QString>("service");
        for (const char *service : RequiredServices)
            QTest::newRow(service) << QString(service);
    }

    void StopsTheProgramWithItsName()
    {
        QFETCH(QString, service);
        const Ending ending = Ask({service});
        QCOMPARE(ending.status, QProcess::CrashExit);
        QVERIFY2(ending.log.contains("GlobalUI: no " + service + " is installed"), qPrintable(ending.log));
    }

    void InstalledTwiceStopsTheProgram_data()
    {
        StopsTheProgramWithItsName_data();
        QTest::newRow("CameraMainManager") << "CameraMainManager";
    }

    void InstalledTwiceStopsTheProgram()
    {
        QFETCH(QString, service);
        const Ending ending = Ask({service, "twice"});
        QCOMPARE(ending.status, QProcess::CrashExit);
        QVERIFY2(ending.log.contains("GlobalUI: a second " + service + " is installed"),
                 qPrintable(ending.log));
    }

    void NoCameraIsAStateThatTheProgramGoesOnIn()
    {
        const Ending ending = Ask({"CameraMainManager"});
        QCOMPARE(ending.status, QProcess::NormalExit);
        QCOMPARE(ending.code, 0);
    }
};

GUARDED_TEST_MAIN(TestMissingService)
#include "tst_missingservice.moc"
