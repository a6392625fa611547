// SPDX-License-Identifier: GPL-3.0-or-later
#include "programrun.h"
#include "guardedtest.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

/// The program as it is started from a shell.
class ProgramTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void unknownCameraIsRefusedWithTheChoices()
    {
        const ProgramOutcome outcome = Run({"--camera", "Nobody_7"});
        QCOMPARE(outcome.exitCode, 2);
        QCOMPARE(outcome.output, QString());
        QCOMPARE(outcome.errors.count('\n'), 1);
        QVERIFY2(outcome.errors.startsWith("workbench: no camera is called \"Nobody_7\". Choose one of: "),
                 qPrintable(outcome.errors));
        QVERIFY(outcome.errors.contains("Fake_1"));
    }

    void unknownSceneIsRefusedWithTheChoices()
    {
        const ProgramOutcome outcome = Run({"--scene", "moon"});
        QCOMPARE(outcome.exitCode, 2);
        QCOMPARE(outcome.output, QString());
        QCOMPARE(outcome.errors,
                 QString("workbench: no scene is called \"moon\". Choose one of: specimen, spectrograph, testchart\n"));
    }

    void helpAndVersionNeedNoDisplay()
    {
        for (const char *option : {"--help", "--version"}) {
            const ProgramOutcome outcome = Run({option}, {"DISPLAY=", "WAYLAND_DISPLAY="});
            QCOMPARE(outcome.exitCode, 0);
            QVERIFY(outcome.output.contains("workbench"));
            QCOMPARE(outcome.errors, QString());
        }
    }

    void framesAreShownMeasuredAndPictured()
    {
        const QString pictureName = m_folder.filePath("window.png");
        const ProgramOutcome outcome = Run({"--scene", "testchart", "--frames", "20", "--screenshot", pictureName});
        QCOMPARE(outcome.exitCode, 0);

        static const QRegularExpression line("^captured (\\d+), shown (\\d+), lost (\\d+), (\\d+\\.\\d) frames/s, "
                                             "first frame after (\\d+) ms, peak memory (\\d+) MB, "
                                             "panels loaded in (\\d+) ms\n$");
        const QRegularExpressionMatch facts = line.match(outcome.output);
        QVERIFY2(facts.hasMatch(), qPrintable(outcome.output));
        const int shown = facts.captured(2).toInt();
        QVERIFY(shown >= 20);
        QVERIFY(facts.captured(1).toInt() >= shown);
        QCOMPARE(facts.captured(3).toInt(), 0);
        QVERIFY(facts.captured(4).toDouble() > 0);
        QVERIFY(facts.captured(5).toInt() > 0);
        QVERIFY(facts.captured(6).toInt() > 0);
        QVERIFY(facts.captured(7).toInt() > 0);
        QVERIFY(facts.captured(7).toInt() < facts.captured(5).toInt());

        const QImage picture(pictureName);
        QVERIFY(picture.width() >= 800);
        QVERIFY(Greys(picture) >= 60); // the chart has 64 patches of different grey
    }

    void pictureThatCanNotBeSavedIsAFailure()
    {
        const ProgramOutcome outcome = Run({"--screenshot", m_folder.filePath("no/such/folder/x.png")});
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY(outcome.errors.contains("could not be saved as"));
    }

    void pluginsOfALabAreLoadedOrSaidWhyNot()
    {
        const QString folder = m_folder.filePath("lab/plugins/measure/ui");
        QVERIFY(QDir().mkpath(folder));
        for (const char *name : {"b_histogrampage.so", "n_otherqt.so", "o_throws.so"})
            QVERIFY(QFile::copy(QDir(TEST_PLUGIN_FOLDER).filePath(name), QDir(folder).filePath(name)));
        const ProgramOutcome outcome =
            Run({"--list-plugins"}, {"DISPLAY=", "QT_QPA_PLATFORM=", "GLOBALUI_PLUGIN_PATH=" + m_folder.filePath("lab")});
        QCOMPARE(outcome.exitCode, 1);
        const QStringList lines = outcome.output.split('\n');
        QVERIFY2(lines.contains("Histogram(Live)\t31\t" + folder + "/b_histogrampage.so\tLoaded"),
                 qPrintable(outcome.output));
        QVERIFY2(lines.contains("Test 46\t46\t" + folder
                                + "/o_throws.so\tNot loaded: it failed when it was made: no lamp is connected"),
                 qPrintable(outcome.output));
        QVERIFY2(outcome.output.contains("n_otherqt.so\tNot loaded: it was built for Qt 5.99"),
                 qPrintable(outcome.output));
    }

    void faultySettingsDoNotStopTheStart()
    {
        QDir(m_folder.path()).mkpath("globalui-workbench");
        const QString path = m_folder.filePath("globalui-workbench/workbench.ini");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[settings]\nversion=999\n");
        file.close();
        const ProgramOutcome outcome = Run({"--frames", "1"});
        QCOMPARE(outcome.exitCode, 0);
        QVERIFY2(outcome.errors.contains(path + ".bak-1"), qPrintable(outcome.errors));
        QVERIFY(QFile::exists(path + ".bak-1"));
    }

private:
    ProgramOutcome Run(const QStringList &arguments, const QStringList &environment = {}) const
    {
        return RunProgram(m_folder.path(), arguments, environment);
    }

    /// How many shades of pure grey are in the picture.
    static int Greys(const QImage &picture)
    {
        QSet<int> greys;
        for (int y = 0; y < picture.height(); y += 5) {
            for (int x = 0; x < picture.width(); x += 5) {
                const QRgb pixel = picture.pixel(x, y);
                if (qRed(pixel) == qGreen(pixel) && qGreen(pixel) == qBlue(pixel))
                    greys.insert(qRed(pixel));
            }
        }
        return greys.size();
    }

    const QTemporaryDir m_folder;
};

GUARDED_TEST_MAIN(ProgramTest)
#include "programtest.moc"
