// SPDX-License-Identifier: GPL-3.0-or-later
#include "commandline.h"
#include "guardedtest.h"

/// What each command line asks for, and what is said of one that makes no sense.
class CommandLineTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void nothingAskedForRunsTheDefault()
    {
        const CommandLine line = CommandLine::Parse({"workbench"});
        QCOMPARE(line.action, CommandLine::Action::Run);
        QCOMPARE(line.cameraId, QString());
        QCOMPARE(line.scene, QString("specimen"));
        QCOMPARE(line.frames, 0);
        QCOMPARE(line.screenshot, QString());
    }

    void everythingAskedFor()
    {
        const CommandLine line = CommandLine::Parse(
            {"workbench", "--camera", "Fake_1", "--scene", "testchart", "--frames", "120", "--screenshot", "a b.png"});
        QCOMPARE(line.action, CommandLine::Action::Run);
        QCOMPARE(line.cameraId, QString("Fake_1"));
        QCOMPARE(line.scene, QString("testchart"));
        QCOMPARE(line.frames, 120);
        QCOMPARE(line.screenshot, QString("a b.png"));
    }

    void sceneWithSettings()
    {
        const CommandLine line = CommandLine::Parse({"workbench", "--scene", "spectrograph:tracks=5,smile=6"});
        QCOMPARE(line.action, CommandLine::Action::Run);
        QCOMPARE(line.scene, QString("spectrograph:tracks=5,smile=6"));
    }

    void pluginsAreListedAlone()
    {
        QVERIFY(CommandLine::Parse({"workbench", "--list-plugins"}).listPlugins);
        const CommandLine line = CommandLine::Parse({"workbench", "--list-plugins", "--frames", "3"});
        QCOMPARE(line.action, CommandLine::Action::Fail);
        QCOMPARE(line.text, QString("workbench: --list-plugins goes alone."));
    }

    void pictureAloneNeedsOneFrame()
    {
        QCOMPARE(CommandLine::Parse({"workbench", "--screenshot", "x.png"}).frames, 1);
    }

    void filesAreOpened()
    {
        const CommandLine line = CommandLine::Parse({"workbench", "a b.tif", "--screenshot", "x.png", "c.fits"});
        QCOMPARE(line.action, CommandLine::Action::Run);
        QCOMPARE(line.files, QStringList({"a b.tif", "c.fits"}));
        QCOMPARE(line.screenshot, QString("x.png"));
        QCOMPARE(line.frames, 0);
    }

    void recordingsAreToldTheirFormat_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<int>("format");
        QTest::newRow("tif") << QStringList{"--record", "a.tif"} << int(RunFormat::Tiff);
        QTest::newRow("TIFF") << QStringList{"--record", "a.TIFF"} << int(RunFormat::Tiff);
        QTest::newRow("fits") << QStringList{"--record", "a.fits"} << int(RunFormat::Fits);
        QTest::newRow("fit") << QStringList{"--record", "a.fit"} << int(RunFormat::Fits);
        QTest::newRow("png") << QStringList{"--record", "a.png"} << int(RunFormat::Png);
        QTest::newRow("the option wins") << QStringList{"--record", "a.tif", "--format", "fits"} << int(RunFormat::Fits);
    }

    void recordingsAreToldTheirFormat()
    {
        QFETCH(QStringList, options);
        QFETCH(int, format);
        const CommandLine line = CommandLine::Parse(QStringList{"workbench"} + options + QStringList{"--seconds", "7"});
        QCOMPARE(line.action, CommandLine::Action::Run);
        QCOMPARE(line.record, options.at(1));
        QCOMPARE(line.seconds, 7);
        QCOMPARE(line.frames, 0);
        QCOMPARE(int(line.format), format);
    }

    void mistakesAreSaidInOneLine_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("text");
        QTest::newRow("scene") << QStringList{"--scene", "moon"}
                               << "workbench: no scene is called \"moon\". Choose one of: specimen, spectrograph, testchart";
        QTest::newRow("scene settings") << QStringList{"--scene", "spectrograph:tracks=99"}
                                        << "workbench: --scene: \"tracks=99\" needs a whole number from 1 to 20.";
        QTest::newRow("frames: word") << QStringList{"--frames", "many"}
                                      << "workbench: --frames needs a whole number of 1 or more, not \"many\".";
        QTest::newRow("frames: zero") << QStringList{"--frames", "0"}
                                      << "workbench: --frames needs a whole number of 1 or more, not \"0\".";
        QTest::newRow("frames: negative") << QStringList{"--frames=-3"}
                                          << "workbench: --frames needs a whole number of 1 or more, not \"-3\".";
        QTest::newRow("frames: too many") << QStringList{"--frames", "99999999999"}
                                          << "workbench: --frames needs a whole number of 1 or more, not \"99999999999\".";
        QTest::newRow("frames: nothing") << QStringList{"--frames"}
                                         << "workbench: Missing value after '--frames'. Try --help.";
        QTest::newRow("camera: empty") << QStringList{"--camera", ""} << "workbench: --camera needs the id of a camera.";
        QTest::newRow("screenshot: empty") << QStringList{"--screenshot", ""}
                                           << "workbench: --screenshot needs the name of a file.";
        QTest::newRow("unknown option") << QStringList{"--fast"} << "workbench: Unknown option 'fast'. Try --help.";
        QTest::newRow("record: empty") << QStringList{"--record", ""} << "workbench: --record needs the name of a file.";
        QTest::newRow("record: no end") << QStringList{"--record", "a.tif"}
                                        << "workbench: --record needs --frames N or --seconds S.";
        QTest::newRow("record: unknown ending") << QStringList{"--record", "a.avi", "--frames", "3"}
                                                << "workbench: no format is called \"avi\". Choose one of: tif, fits, png";
        QTest::newRow("record: unknown format") << QStringList{"--record", "a.tif", "--frames", "3", "--format", "avi"}
                                                << "workbench: no format is called \"avi\". Choose one of: tif, fits, png";
        QTest::newRow("record and a window") << QStringList{"--record", "a.tif", "--frames", "3", "--screenshot", "b.png"}
                                             << "workbench: --record shows no window. Leave out --screenshot and other files.";
        QTest::newRow("seconds: word") << QStringList{"--record", "a.tif", "--seconds", "long"}
                                       << "workbench: --seconds needs a whole number of 1 or more, not \"long\".";
        QTest::newRow("seconds without record") << QStringList{"--seconds", "3"} << "workbench: --seconds goes with --record.";
        QTest::newRow("format without record") << QStringList{"--format", "tif"} << "workbench: --format goes with --record.";
        QTest::newRow("frames of a file") << QStringList{"--frames", "3", "picture.tif"}
                                          << "workbench: --frames counts live pictures. Leave out either it or the files.";
    }

    void mistakesAreSaidInOneLine()
    {
        QFETCH(QStringList, options);
        QFETCH(QString, text);
        const CommandLine line = CommandLine::Parse(QStringList("workbench") + options);
        QCOMPARE(line.action, CommandLine::Action::Fail);
        QCOMPARE(line.text, text);
    }

    void helpNamesEveryOptionAndScene()
    {
        const CommandLine line = CommandLine::Parse({"workbench", "--help"});
        QCOMPARE(line.action, CommandLine::Action::Print);
        for (const char *word : {"--camera ID", "--scene NAME", "--frames N", "--screenshot FILE", "--version", "--help",
                                 "specimen", "spectrograph", "testchart"})
            QVERIFY2(line.text.contains(word), word);
    }

    void versionIsTheProjects()
    {
        QCOMPARE(CommandLine::Parse({"workbench", "--version"}).text, QString("workbench " WORKBENCH_VERSION "\n"));
    }
};

GUARDED_TEST_MAIN(CommandLineTest)
#include "commandlinetest.moc"
