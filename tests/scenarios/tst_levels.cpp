// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerasession.h"
#include "createpicture.h"
#include "levelsmodel.h"
#include "livelevels.h"
#include "openedpicture.h"
#include "picturedesk.h"
#include "pixelinfomanager.h"
#include "scenariotest.h"
#include "testchartscene.h"
#include "workspaceconfig.h"

#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QSignalSpy>

#include <memory>

namespace {

constexpr int SensorSize = 2048;
constexpr int PatchSize = SensorSize / 8;
/// Places in the darkest, a middle and the saturated patch of the chart.
constexpr QPoint Dark(PatchSize / 2, PatchSize / 2);
constexpr QPoint Middle(3 * PatchSize + PatchSize / 2, 4 * PatchSize + PatchSize / 3);
constexpr QPoint Saturated(7 * PatchSize + PatchSize / 2, 7 * PatchSize + PatchSize / 3);

int Sample(const QPoint &place, int bitDepth)
{
    return TestChartScene::ExpectedValue(place.x(), place.y(), SensorSize, SensorSize, bitDepth);
}

} // namespace

/// A person sets how the live picture is shown; the values under the mouse stay those of the camera.
class LevelsScenario : public ScenarioTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<QTemporaryDir>();
        Start();
    }

    void cleanup() override
    {
        End();
        EndGuard();
    }

    void saturatedPixelsTurnRedAndStaySoAfterARestart_data()
    {
        QTest::addColumn<QString>("drawing");
        QTest::addColumn<PixelLayout>("layout");
        for (const char *drawing : {"CPU", "GPU (OpenGL)"}) {
            QTest::addRow("%s, 8 bit", drawing) << QString(drawing) << PixelLayout::Mono8;
            QTest::addRow("%s, 12 bit", drawing) << QString(drawing) << PixelLayout::Mono12;
            QTest::addRow("%s, RGB", drawing) << QString(drawing) << PixelLayout::Rgb8;
        }
    }

    void saturatedPixelsTurnRedAndStaySoAfterARestart()
    {
        QFETCH(QString, drawing);
        QFETCH(PixelLayout, layout);
        m_workbench->link.SetPixelLayout(layout);
        m_workbench->Action(drawing)->trigger();
        QTRY_COMPARE(m_workbench->OnScreen(Saturated), QColor(Qt::white));

        m_workbench->Action("Mark Saturated Pixels")->trigger();
        QTRY_COMPARE(m_workbench->OnScreen(Saturated), QColor(255, 0, 0));
        QVERIFY(m_workbench->OnScreen(Middle) != QColor(255, 0, 0));

        End();
        Start();
        QVERIFY(m_workbench->Action("Mark Saturated Pixels")->isChecked());
        QVERIFY(m_workbench->Action(drawing)->isChecked());
        QTRY_COMPARE(m_workbench->OnScreen(Saturated), QColor(255, 0, 0));
        m_workbench->Action("Mark Saturated Pixels")->trigger();
        QTRY_COMPARE(m_workbench->OnScreen(Saturated), QColor(Qt::white));
    }

    void manualLevelsChangeThePictureAndNotTheValue()
    {
        m_workbench->link.SetPixelLayout(PixelLayout::Mono12);
        QVERIFY(m_workbench->WaitForNextPicture());
        m_workbench->Action("Levels…")->trigger();
        auto *mode = m_workbench->window.findChild<QComboBox *>("comboBoxLevelsMode");
        auto *left = m_workbench->window.findChild<QDoubleSpinBox *>("spinBoxLevelsLeft");
        auto *right = m_workbench->window.findChild<QDoubleSpinBox *>("spinBoxLevelsRight");
        QTRY_COMPARE(right->maximum(), 4095.0);
        QTRY_VERIFY(mode->isEnabled());
        while (mode->currentText() != "Manual")
            QTest::keyClick(mode, Qt::Key_Down);
        left->setValue(1000);
        right->setValue(3000);
        QVERIFY(m_workbench->WaitForNextPicture());
        mode->window()->close();

        QTRY_COMPARE(m_workbench->OnScreen(Dark), QColor(Qt::black));
        QTRY_COMPARE(m_workbench->OnScreen(Saturated), QColor(Qt::white));
        const int grey = qRound(255.0 * (Sample(Middle, 12) - 1000) / 2000);
        QTRY_COMPARE(m_workbench->OnScreen(Middle), QColor(grey, grey, grey));

        PixelInfoManager *readout = PixelInfoManager::GetInstance();
        QSignalSpy values(readout, SIGNAL(signalUpdatePixelInfo(QPointF, QString)));
        readout->slotUpdateMousePosition(Middle);
        QCOMPARE(values.at(0).at(1).toString(), QString::number(Sample(Middle, 12)));
    }

    void fullRangeShowsTheGreyOfTheSample()
    {
        m_workbench->link.SetPixelLayout(PixelLayout::Mono16);
        m_workbench->services.Levels()->Model()->SetSetting(16, {LevelsMode::FullRange, 0, 65535, 1.0});
        QVERIFY(m_workbench->WaitForNextPicture());
        const int grey = qRound(255.0 * Sample(Middle, 16) / 65535);
        QTRY_COMPARE(m_workbench->OnScreen(Middle), QColor(grey, grey, grey));
    }

    void openedPictureIsSetByTheSameDialog()
    {
        WriteRamp(m_folder->filePath("ramp.tif"));
        m_workbench->Action("Levels…")->trigger();
        auto *mode = m_workbench->window.findChild<QComboBox *>("comboBoxLevelsMode");
        auto *depth = m_workbench->window.findChild<QLabel *>("labelLevelsDepth");
        auto *right = m_workbench->window.findChild<QDoubleSpinBox *>("spinBoxLevelsRight");
        OpenedPicture *picture = m_workbench->services.Desk()->MainPicture();
        QTRY_COMPARE(depth->text(), QString("8 bit samples, 0 to 255")); // the live picture
        m_workbench->services.Desk()->Open({m_folder->filePath("ramp.tif")}, picture);
        QTRY_COMPARE(depth->text(), QString("16 bit samples, 0 to 65535"));
        QTRY_COMPARE(right->value(), 99.0 * 40); // 0.1 % of a hundred columns is less than one
        QCOMPARE(picture->Shown().image.pixelColor(99, 0), QColor(Qt::white));

        while (mode->currentText() != "Manual")
            QTest::keyClick(mode, Qt::Key_Down);
        right->setValue(8000);
        const int grey = qRound(255.0 * 99 * 40 / 8000);
        QTRY_COMPARE(picture->Shown().image.pixelColor(99, 0), QColor(grey, grey, grey));
        QCOMPARE(right->value(), 8000.0);

        m_workbench->services.Config()->SetCameraView();
        QTRY_COMPARE(depth->text(), QString("8 bit samples, 0 to 255"));
        mode->window()->close();
    }

    void aFloatingPointPictureIsSetInItsOwnUnits()
    {
        Picture ramp(100, 60, 1, SampleType::F32);
        for (int i = 0; i < 6000; ++i) // columns from -0.5 to 0.49
            ramp.Samples<float>(0)[i] = float(i % 100 - 50) / 100;
        QString error;
        const QString path = m_folder->filePath("ramp.tif");
        QVERIFY2(SavePicture(path, ramp, SaveOptions(), error), qPrintable(error));
        OpenedPicture *picture = m_workbench->services.Desk()->MainPicture();
        m_workbench->services.Desk()->Open({path}, picture);
        m_workbench->Action("Levels…")->trigger();
        auto *mode = m_workbench->window.findChild<QComboBox *>("comboBoxLevelsMode");
        auto *depth = m_workbench->window.findChild<QLabel *>("labelLevelsDepth");
        auto *left = m_workbench->window.findChild<QDoubleSpinBox *>("spinBoxLevelsLeft");
        auto *right = m_workbench->window.findChild<QDoubleSpinBox *>("spinBoxLevelsRight");
        QTRY_COMPARE(depth->text(), QString("32 bit floating point samples"));
        QCOMPARE(left->text(), QString("-0.5"));
        QCOMPARE(right->text(), QString("0.49"));
        while (mode->currentText() != "Manual")
            QTest::keyClick(mode, Qt::Key_Down);
        left->setValue(-0.25);
        right->setValue(0.75);
        const int grey = qRound(255.0 * 0.74);
        QTRY_COMPARE(picture->Shown().image.pixelColor(99, 0), QColor(grey, grey, grey));
        QCOMPARE(picture->Shown().image.pixelColor(20, 0), QColor(Qt::black));

        End(); // levels stay for the next picture of the kind
        Start();
        picture = m_workbench->services.Desk()->MainPicture();
        m_workbench->services.Desk()->Open({path}, picture);
        QTRY_VERIFY(!picture->IsNonImage());
        QCOMPARE(picture->Shown().image.pixelColor(99, 0), QColor(grey, grey, grey));
    }

private:
    /// A hundred columns of samples 40 apart.
    static void WriteRamp(const QString &path)
    {
        Picture picture(100, 60, 1, SampleType::U16);
        for (int y = 0; y < 60; ++y) {
            for (int x = 0; x < 100; ++x)
                picture.Samples<quint16>(y)[x] = quint16(40 * x);
        }
        QString error;
        QVERIFY2(SavePicture(path, picture, SaveOptions(), error), qPrintable(error));
    }

    void Start()
    {
        m_workbench = std::make_unique<RunningWorkbench>(m_folder->path());
        QVERIFY(m_workbench->WaitForPicture());
    }

    void End()
    {
        m_workbench.reset();
        QVERIFY(CameraSession::WaitForTeardown(5000));
    }

};

GUARDED_TEST_MAIN(LevelsScenario)
#include "tst_levels.moc"
