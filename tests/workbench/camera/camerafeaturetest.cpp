// SPDX-License-Identifier: GPL-3.0-or-later
#include "araviserror.h"

#include "camerafeature.h"
#include "guardedtest.h"

Q_DECLARE_METATYPE(CameraFeature::Kind)

using Kind = CameraFeature::Kind;

/// Aravis' own simulated camera has a feature of nearly every kind.
class CameraFeatureTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        arv_enable_interface("Fake");
        m_camera = arv_camera_new("Fake_1", nullptr);
        QVERIFY(m_camera);
    }
    void cleanupTestCase() { g_object_unref(m_camera); }

    void featuresStandInTheCamerasOrder()
    {
        QStringList names;
        for (const CameraFeatureAccess::Place &place : CameraFeatureAccess::List(Device()))
            names << place.category + '/' + place.name;
        QCOMPARE(names.first(), QString("DeviceControl/DeviceVendorName"));
        QVERIFY(names.indexOf("ImageFormatControl/Width") < names.indexOf("AcquisitionControl/TriggerMode"));
        QCOMPARE(names.removeDuplicates(), 0);
        QVERIFY(!names.contains("/DeviceControl")); // a category is no feature
    }

    void featureIsTold_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<bool>("isWritable");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("text") << "DeviceModelName" << Kind::Text << false << QVariant("Fake");
        QTest::newRow("whole number") << "SensorWidth" << Kind::Integer << false << QVariant(2048);
        QTest::newRow("choice") << "TriggerMode" << Kind::Choice << true << QVariant("Off");
        QTest::newRow("number") << "ExposureTimeAbs" << Kind::Float << true << QVariant(10000.0);
        QTest::newRow("command") << "TriggerSoftware" << Kind::Command << true << QVariant();
    }

    void featureIsTold()
    {
        QFETCH(QString, name);
        QFETCH(Kind, kind);
        QFETCH(bool, isWritable);
        QFETCH(QVariant, value);
        const CameraFeature feature = Read(name);
        QCOMPARE(feature.kind, kind);
        QCOMPARE(feature.isWritable, isWritable);
        QCOMPARE(feature.value.isValid(), value.isValid());
        QCOMPARE(feature.value.toString(), value.toString());
    }

    void limitsAndChoicesAreTheCameras()
    {
        const CameraFeature exposure = Read("ExposureTimeAbs");
        QCOMPARE(exposure.minimum, 10.0);
        QCOMPARE(exposure.maximum, 1e7);
        QCOMPARE(Read("TriggerMode").choices, QStringList({"Off", "On"}));
        QVERIFY(Read("ExposureTimeAbs").toolTip.contains("microseconds"));
    }

    void whatIsNotThereIsNotRead()
    {
        CameraFeature feature;
        QVERIFY(!CameraFeatureAccess::Read(Device(), {"", "NoSuchFeature"}, &feature));
        QVERIFY(!CameraFeatureAccess::Read(Device(), {"", "DeviceControl"}, &feature));
    }

    void numberIsMovedToLimitAndStep_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("fitted");
        // 10 to 100 in steps of 8: 10, 18, ... 98.
        QTest::newRow("on a step") << 26.0 << 26.0;
        QTest::newRow("between") << 29.0 << 26.0;
        QTest::newRow("nearer to the next") << 31.0 << 34.0;
        QTest::newRow("below") << -5.0 << 10.0;
        QTest::newRow("above: the last step, not the limit") << 1e9 << 98.0;
        QTest::newRow("not a number") << qQNaN() << 10.0;
        QTest::newRow("infinite") << qInf() << 10.0;
    }

    void numberIsMovedToLimitAndStep()
    {
        QFETCH(double, value);
        QFETCH(double, fitted);
        CameraFeature feature;
        feature.minimum = 10;
        feature.maximum = 100;
        feature.step = 8;
        QCOMPARE(CameraFeatureAccess::Fitted(feature, value), fitted);
        feature.step = 0;
        QCOMPARE(CameraFeatureAccess::Fitted(feature, 29.5), 29.5);
        feature.maximum = 5; // nonsense from a camera
        QCOMPARE(CameraFeatureAccess::Fitted(feature, 29.5), 10.0);
    }

    void changesReachTheCamera()
    {
        QString error;
        QVERIFY2(CameraFeatureAccess::Write(Device(), Read("TriggerSource"), "Software", &error), qPrintable(error));
        QCOMPARE(Read("TriggerSource").value.toString(), QString("Software"));
        QVERIFY(CameraFeatureAccess::Write(Device(), Read("ExposureTimeAbs"), 1e12, &error));
        QCOMPARE(Read("ExposureTimeAbs").value.toDouble(), 1e7);
        QVERIFY(CameraFeatureAccess::Write(Device(), Read("TriggerSoftware"), true, &error));
        QVERIFY(error.isEmpty());
    }

    void refusalIsInTheCamerasWords()
    {
        QString error;
        QVERIFY(!CameraFeatureAccess::Write(Device(), Read("TriggerSource"), "NoSuchSource", &error));
        QVERIFY(!error.isEmpty());
        QCOMPARE(Read("TriggerMode").value.toString(), QString("Off"));
    }

private:
    ArvDevice *Device() const { return arv_camera_get_device(m_camera); }

    CameraFeature Read(const QString &name) const
    {
        CameraFeature feature;
        if (!CameraFeatureAccess::Read(Device(), {"", name}, &feature))
            qWarning("%s can't be read", qPrintable(name));
        return feature;
    }

    ArvCamera *m_camera = nullptr;
};

GUARDED_TEST_MAIN(CameraFeatureTest)
#include "camerafeaturetest.moc"
