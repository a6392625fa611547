// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerasession.h"
#include "framecollector.h"
#include "settingsfixture.h"

#include <QTranslator>

namespace {

/// While it lives, the program speaks German of cameras.
class German : public QTranslator
{
public:
    German() { QCoreApplication::installTranslator(this); }
    ~German() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return qstrcmp(source, "Simulated Camera") == 0 ? QString("Simulierte Kamera") : QString();
    }
};

} // namespace

/// The camera that a calibration was made with, in a program that speaks another language since.
class CalibratedCameraTest : public SettingsFixture
{
    Q_OBJECT

private slots:
    void init() override { SettingsFixture::init(); }
    void cleanup() override
    {
        QVERIFY(CameraSession::WaitForTeardown(20000));
        SettingsFixture::cleanup();
    }

    void isTheSameInEachLanguage()
    {
        const SensorFrame sensor{QRect(0, 0, 1000, 500), 1, Orientation()};
        m_settings->SetSensorFrame(sensor);
        const QString before = NameInAFrame();
        QVERIFY(!before.isEmpty());
        m_settings->SetCalibration(SpectralCalibration({660, 270}, 1000), SpectralFrame::Of(sensor, true), before);

        const German german;
        m_settings->SetCamera(NameInAFrame());
        QCOMPARE(m_settings->CameraNote(), QString());
        m_settings->SetCamera("Another");
        QVERIFY2(m_settings->CameraNote().contains(" Simulierte Kamera:"), qPrintable(m_settings->CameraNote()));
    }

private:
    /// What the simulated camera writes into its frames.
    static QString NameInAFrame()
    {
        FrameCollector frames;
        CameraSession session;
        if (!session.Open("Fake_1") || !session.Start(&frames) || !frames.WaitFor(1))
            return QString();
        const QString name = frames.Last().origin.camera;
        session.Stop();
        return name;
    }
};

GUARDED_TEST_MAIN(CalibratedCameraTest)
#include "calibratedcameratest.moc"
