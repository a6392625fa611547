// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerafields.h"
#include "cameralink.h"
#include "camerasession.h"
#include "connectedcameras.h"
#include "devicelist.h"
#include "guardedtest.h"
#include "regionofinterest.h"

#include <QSemaphore>
#include <QSignalSpy>

#include <memory>

/// What a panel is told of the simulated camera, and what the camera then says itself.
class CameraFieldsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override;
    void cleanup() override;
    void withoutACameraOnlyItsChoiceIsShown();
    void valuesAreTheCamerasOwn_data();
    void valuesAreTheCamerasOwn();
    void valuesBeyondTheLimitsAreTheLimits_data();
    void valuesBeyondTheLimitsAreTheLimits();
    void formatsAreThoseOfTheCamera();
    void regionIsFittedToTheSensor_data();
    void regionIsFittedToTheSensor();
    void whatIsWishedIsShownUntilTheCameraAnswers();
    void refusedWishIsTakenBack();
    void reasonStaysUntilThatSettingIsTaken();
    void sidesOfTheRegionThatWaitCountTogether();
    void whatTheCameraLacksIsDisabled();
    void otherCameraIsAskedFor();

private:
    void OpenCamera();
    /// Waits until the camera has answered to all that was set.
    void Settle();
    PanelField Field(const QString &key) const;
    QStringList Keys() const;

    std::unique_ptr<CameraLink> m_link;
    std::unique_ptr<ConnectedCameras> m_cameras;
    std::unique_ptr<RegionOfInterest> m_region;
    std::unique_ptr<CameraFields> m_fields;
};

void CameraFieldsTest::init()
{
    StartGuard();
    m_link = std::make_unique<CameraLink>();
    m_cameras = std::make_unique<ConnectedCameras>();
    m_region = std::make_unique<RegionOfInterest>();
    m_fields = std::make_unique<CameraFields>(m_link.get(), m_cameras.get(), m_region.get());
}

void CameraFieldsTest::cleanup()
{
    m_fields.reset();
    m_region.reset();
    m_cameras.reset();
    m_link.reset();
    QVERIFY(CameraSession::WaitForTeardown(5000));
    EndGuard();
}

void CameraFieldsTest::OpenCamera()
{
    m_link->Open(SimulatedCameraInfo().id);
    QTRY_COMPARE(m_link->GetState(), CameraLink::State::Open);
}

void CameraFieldsTest::Settle()
{
    QTRY_VERIFY(!m_link->Session()->IsSetting());
}

PanelField CameraFieldsTest::Field(const QString &key) const
{
    for (const PanelField &field : m_fields->Fields()) {
        if (field.key == key)
            return field;
    }
    return PanelField();
}

QStringList CameraFieldsTest::Keys() const
{
    QStringList keys;
    for (const PanelField &field : m_fields->Fields())
        keys << field.key;
    return keys;
}

void CameraFieldsTest::withoutACameraOnlyItsChoiceIsShown()
{
    QCOMPARE(Keys(), QStringList({"device", "search"}));
    QCOMPARE(Field("device").value.toInt(), -1);
    QCOMPARE(Field("device").choices, QStringList("Simulated Camera"));
    m_fields->Set("exposure", 3.0);
    m_fields->Set("device", 7);
    QSignalSpy changed(m_fields.get(), &FieldSource::signalChanged);
    OpenCamera();
    QVERIFY(changed.count() > 0);
    QCOMPARE(Field("device").value.toInt(), 0);
    QVERIFY(Keys().contains("exposure"));
}

void CameraFieldsTest::valuesAreTheCamerasOwn_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<double>("value");
    QTest::newRow("exposure in ms") << "exposure" << 4.5;
    QTest::newRow("gain") << "gain" << 3.0;
    QTest::newRow("frame rate") << "frameRate" << 12.5;
}

void CameraFieldsTest::valuesAreTheCamerasOwn()
{
    QFETCH(QString, key);
    QFETCH(double, value);
    OpenCamera();
    m_fields->Set(key, value);
    Settle();
    QCOMPARE(Field(key).value.toDouble(), value);
    const ControlValues &controls = m_link->Session()->Controls();
    const double told = key == "exposure" ? controls.exposureUs / 1000
                        : key == "gain"   ? controls.gain
                                          : controls.frameRate;
    QCOMPARE(told, value);
}

void CameraFieldsTest::valuesBeyondTheLimitsAreTheLimits_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<double>("set");
    QTest::addColumn<double>("taken");
    // The simulated camera: 10 us to 10 s, gain 0 to 10.
    QTest::newRow("too long") << "exposure" << 99999.0 << 10000.0;
    QTest::newRow("too short") << "exposure" << 0.0 << 0.01;
    QTest::newRow("too much gain") << "gain" << 11.0 << 10.0;
    QTest::newRow("too little gain") << "gain" << -1.0 << 0.0;
}

void CameraFieldsTest::valuesBeyondTheLimitsAreTheLimits()
{
    QFETCH(QString, key);
    QFETCH(double, set);
    QFETCH(double, taken);
    OpenCamera();
    QSignalSpy changed(m_fields.get(), &FieldSource::signalChanged);
    m_fields->Set(key, set);
    QVERIFY(changed.wait());
    Settle();
    QCOMPARE(Field(key).value.toDouble(), taken);
    QVERIFY(taken == Field(key).minimum || taken == Field(key).maximum);
}

void CameraFieldsTest::formatsAreThoseOfTheCamera()
{
    OpenCamera();
    const FormatValues &format = m_link->Session()->Format();
    QCOMPARE(Field("pixelFormat").choices.size(), format.layouts.size());
    const int mono12 = format.layouts.indexOf(PixelLayout::Mono12);
    m_fields->Set("pixelFormat", mono12);
    Settle();
    QCOMPARE(format.layout, PixelLayout::Mono12);
    QCOMPARE(Field("pixelFormat").value.toInt(), mono12);
    m_fields->Set("pixelFormat", 1000);
    m_fields->Set("pixelFormat", -1);
    QVERIFY(!m_link->Session()->IsSetting());
    QCOMPARE(format.layout, PixelLayout::Mono12);
    QCOMPARE(Field("pixelFormat").value.toInt(), mono12);
    m_fields->Set("binning", format.binnings.indexOf(2));
    Settle();
    QCOMPARE(format.FrameSize(), QSize(1024, 1024));
}

void CameraFieldsTest::regionIsFittedToTheSensor_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("value");
    QTest::addColumn<QRect>("region");
    // From a region of 512 x 256 at 1024, 512 on a sensor of 2048 x 2048.
    QTest::newRow("left") << "left" << 100 << QRect(100, 512, 512, 256);
    QTest::newRow("left, so that it does not fit") << "left" << 1900 << QRect(1536, 512, 512, 256);
    QTest::newRow("top") << "top" << 0 << QRect(1024, 0, 512, 256);
    QTest::newRow("width") << "width" << 640 << QRect(1024, 512, 640, 256);
    QTest::newRow("width, so that it does not fit") << "width" << 2048 << QRect(0, 512, 2048, 256);
    QTest::newRow("height") << "height" << 1024 << QRect(1024, 512, 512, 1024);
    QTest::newRow("not a side") << "depth" << 3 << QRect(1024, 512, 512, 256);
}

void CameraFieldsTest::regionIsFittedToTheSensor()
{
    QFETCH(QString, key);
    QFETCH(int, value);
    QFETCH(QRect, region);
    OpenCamera();
    m_link->SetRegion(QRect(1024, 512, 512, 256));
    m_fields->Set(key, value);
    Settle();
    QCOMPARE(m_link->Session()->Format().region, region);
    QCOMPARE(Field("left").value.toInt(), region.left());
    QCOMPARE(Field("width").value.toInt(), region.width());
    m_fields->Set("fullSensor", QVariant());
    Settle();
    QCOMPARE(m_link->Session()->Format().region, QRect(0, 0, 2048, 2048));
    QVERIFY(!Field("fullSensor").isEnabled);
}

void CameraFieldsTest::whatIsWishedIsShownUntilTheCameraAnswers()
{
    OpenCamera();
    QSemaphore answer;
    QVERIFY(m_link->Session()->TakeTurn([&answer](ArvCamera *) { answer.acquire(); }, this, [] {}));
    // Each step on an arrow counts from the one before.
    for (int i = 0; i < 5; ++i)
        m_fields->Set("gain", Field("gain").value.toDouble() + 1);
    QCOMPARE(Field("gain").value.toDouble(), 5.0);
    m_fields->Set("exposure", 99999.0);
    QCOMPARE(Field("exposure").value.toDouble(), 10000.0);
    m_fields->Set("binning", 1);
    QCOMPARE(Field("binning").value.toInt(), 1);
    QCOMPARE(m_link->Session()->Controls().gain, 0.0);
    QCOMPARE(m_link->Session()->Format().binning, 1);

    QSignalSpy fault(m_fields.get(), &FieldSource::signalFault);
    answer.release();
    Settle();
    QCOMPARE(m_link->Session()->Controls().gain, 5.0);
    QCOMPARE(m_link->Session()->Controls().exposureUs, 1e7);
    QCOMPARE(m_link->Session()->Format().binning, 2);
    for (const QList<QVariant> &text : fault)
        QCOMPARE(text.first().toString(), QString());
    // From now on the camera's own values count again.
    m_link->Session()->SetGain(1);
    Settle();
    QCOMPARE(Field("gain").value.toDouble(), 1.0);
}

void CameraFieldsTest::refusedWishIsTakenBack()
{
    OpenCamera();
    m_link->HoldFormat(true);
    QSignalSpy changed(m_fields.get(), &FieldSource::signalChanged);
    m_fields->Set("width", 100);
    QVERIFY(changed.count() > 0);
    QCOMPARE(Field("width").value.toInt(), 2048);
}

void CameraFieldsTest::reasonStaysUntilThatSettingIsTaken()
{
    OpenCamera();
    QSignalSpy fault(m_fields.get(), &FieldSource::signalFault);
    const auto shown = [&fault] { return fault.isEmpty() ? QString() : fault.last().first().toString(); };
    emit m_link->Session()->signalControlSet("The exposure was refused.", "exposure");
    QCOMPARE(shown(), QString("The exposure was refused."));
    m_fields->Set("gain", 2.0);
    Settle();
    QCOMPARE(m_link->Session()->Controls().gain, 2.0);
    QCOMPARE(shown(), QString("The exposure was refused."));
    emit m_link->Session()->signalControlSet("The gain was refused.", "gain");
    QCOMPARE(shown(), QString("The exposure was refused.\nThe gain was refused."));
    m_fields->Set("exposure", 3.0);
    Settle();
    QCOMPARE(shown(), QString("The gain was refused."));
    m_link->Close();
    QCOMPARE(shown(), QString());
}

void CameraFieldsTest::sidesOfTheRegionThatWaitCountTogether()
{
    OpenCamera();
    m_link->SetRegion(QRect(0, 0, 512, 256));
    m_fields->Set("left", 100);
    m_fields->Set("left", 120);
    m_fields->Set("top", 60);
    m_fields->Set("height", 300);
    Settle();
    QCOMPARE(m_link->Session()->Format().region, QRect(120, 60, 512, 300));
}

void CameraFieldsTest::whatTheCameraLacksIsDisabled()
{
    OpenCamera();
    QVERIFY(!Field("autoExposure").isEnabled);
    QVERIFY(!Field("autoGain").isEnabled);
    QVERIFY(Field("exposure").isEnabled);
    m_fields->Set("drawRegion", true);
    QVERIFY(m_region->IsROIChecked());
    QVERIFY(Field("drawRegion").value.toBool());
}

void CameraFieldsTest::otherCameraIsAskedFor()
{
    CameraInfo other;
    other.id = "Other-1";
    other.vendor = "Maker";
    other.model = "M1";
    other.serial = "42";
    other.interfaceName = "GigEVision";
    QSignalSpy wanted(m_fields.get(), &CameraFields::signalCameraWanted);
    QSignalSpy search(m_fields.get(), &CameraFields::signalSearchWanted);
    QSignalSpy changed(m_fields.get(), &FieldSource::signalChanged);
    m_cameras->SetCameras({SimulatedCameraInfo(), other});
    QCOMPARE(changed.count(), 1);
    QCOMPARE(Field("device").choices, QStringList({"Simulated Camera", "Maker M1 42 (GigEVision)"}));
    m_fields->Set("device", 1);
    QCOMPARE(wanted.count(), 1);
    QCOMPARE(wanted.first().first().toString(), QString("Other-1"));
    m_fields->Set("search", QVariant());
    QCOMPARE(search.count(), 1);
}

GUARDED_TEST_MAIN(CameraFieldsTest)
#include "camerafieldstest.moc"
