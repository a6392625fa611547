// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationmodel.h"
#include "settingsfixture.h"

/// Which pixels a calibration belongs to, however they are laid on the screen.
class CalibrationFrameTest : public SettingsFixture
{
    Q_OBJECT

private slots:
    void init() override { SettingsFixture::init(); }
    void cleanup() override { SettingsFixture::cleanup(); }

    /// The columns of the sensor, from above and to the right, and turned by 90 degrees from the top down.
    void pointsStayWhenThePictureIsTurned()
    {
        m_settings->SetSensorFrame({QRect(0, 0, width, 100), 1, Orientation()});
        CalibrationModel model(m_settings.get(), m_stored.get());
        model.SetSpectrum(std::vector<double>(width, 100));
        model.AddPoint(200, 435.8335);
        m_settings->SetSensorFrame({QRect(0, 0, width, 100), 1, Orientation(false, 1)});
        m_settings->slotSetFrameSize(QSize(100, width));
        m_settings->SetHorizontal(false);
        QCOMPARE(model.SetSpectrum(std::vector<double>(width, 100)), 0);
        QCOMPARE(model.Points().size(), 1);
        m_settings->SetSensorFrame({QRect(0, 0, width, 100), 1, Orientation(false, 3)}); // from below
        QCOMPARE(model.SetSpectrum(std::vector<double>(width, 100)), 1);
        QVERIFY(model.Points().isEmpty());
    }

    /// One that was kept when the direction was not: the picture was upright.
    void pointsAlongColumnsStayWhenTheyAreReadBack()
    {
        m_settings->SetHorizontal(false);
        m_settings->SetSensorFrame({QRect(0, 0, 100, width), 1, Orientation()});
        m_settings->slotSetFrameSize(QSize(100, width));
        {
            CalibrationModel model(m_settings.get(), m_stored.get());
            model.SetSpectrum(std::vector<double>(width, 100));
            model.SetDegree(1);
            model.AddPoint(200, 435.8335);
            model.AddPoint(700, 546.0750);
            QVERIFY(model.Apply());
        }
        const QString key = "spectrum/calibration/frame";
        const QVariantList kept = m_stored->value(key).toList();
        QCOMPARE(kept.size(), 6);
        m_stored->setValue(key, kept.mid(0, 5));
        m_settings->SetCalibration(SpectralCalibration(), SpectralFrame());
        const CalibrationModel model(m_settings.get(), m_stored.get());
        // A file is taken to have it along its columns, as the picture had.
        const QSize size(width, width);
        m_settings->SetImage({1, size, QRect(QPoint(0, 0), size), Orientation(), SpectralAxis(), SpectralAxis()});
        m_settings->slotSetImageShown(true);
        double nm = 0;
        m_settings->SetHorizontal(false);
        QVERIFY(m_settings->Calculate(100, nm));
        m_settings->SetHorizontal(true);
        QVERIFY(!m_settings->Calculate(100, nm));
    }

private:
    static constexpr int width = 1000;
};

GUARDED_TEST_MAIN(CalibrationFrameTest)
#include "calibrationframetest.moc"
