// SPDX-License-Identifier: GPL-3.0-or-later
#include <arv.h> // before Qt, whose "signals" GLib uses as a name

#include "camerafeatures.h"
#include "cameralink.h"
#include "camerasession.h"
#include "framecollector.h"
#include "frametee.h"
#include "guardedtest.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

constexpr int MsToWait = 60000;
constexpr guint64 ExposureAutoRegister = 0x8000; // of the memory that the simulated camera leaves free
constexpr guint64 LongestExposureRegister = 0x8004;
constexpr guint64 FastestRateRegister = 0x8008;
constexpr quint32 Off = 1;
constexpr quint32 Continuous = 2;

/// A feature of the vendor's own and the register behind it.
QByteArray OwnFeature(const QByteArray &name, const QByteArray &address)
{
    QByteArray feature = R"(
        <Integer Name="@" NameSpace="Custom"><pValue>@Register</pValue><Min>0</Min><Max>4294967295</Max></Integer>
        <IntReg Name="@Register" NameSpace="Custom">
            <Address>%</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>
            <Sign>Unsigned</Sign><Endianess>BigEndian</Endianess>
        </IntReg>)";
    return feature.replace('@', name).replace('%', address);
}

/// What Aravis' camera says of its features, with an automatic exposure, a command that sets the width, a way around
/// the panels to the pixel format, and limits that are settings themselves.
QByteArray FeaturesWithAutomaticExposure()
{
    ArvFakeCamera *plain = arv_fake_camera_new("plain");
    size_t size = 0;
    const char *text = arv_fake_camera_get_genicam_xml(plain, &size);
    QByteArray features(text, int(size));
    g_object_unref(plain);
    features.replace("<pFeature>GainAuto</pFeature>",
                     "<pFeature>GainAuto</pFeature><pFeature>ExposureAuto</pFeature>");
    features.replace("<Enumeration Name=\"GainAuto\"", R"(
        <Enumeration Name="ExposureAuto" NameSpace="Standard">
            <EnumEntry Name="Off" NameSpace="Standard"><Value>1</Value></EnumEntry>
            <EnumEntry Name="Continuous" NameSpace="Standard"><Value>2</Value></EnumEntry>
            <pValue>ExposureAutoRegister</pValue>
        </Enumeration>
        <IntReg Name="ExposureAutoRegister" NameSpace="Custom">
            <Address>0x8000</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>
            <Sign>Unsigned</Sign><Endianess>BigEndian</Endianess>
        </IntReg>
        <Enumeration Name="GainAuto")");
    features.replace(
        "<pFeature>TestRegister</pFeature>",
        "<pFeature>TestRegister</pFeature><pFeature>UserSetLoad</pFeature><pFeature>SampleKind</pFeature>"
        "<pFeature>LongestExposure</pFeature><pFeature>FastestRate</pFeature>");
    features.replace("</RegisterDescription>",
                     R"(<Command Name="UserSetLoad" NameSpace="Standard">
                            <pValue>WidthRegister</pValue><CommandValue>128</CommandValue>
                        </Command>)"
                         + OwnFeature("SampleKind", "0x128") + OwnFeature("LongestExposure", "0x8004")
                         + OwnFeature("FastestRate", "0x8008") + "</RegisterDescription>");
    features.replace("<Max>10000000.0</Max>", "<pMax>LongestExposure</pMax>");
    features.replace("<pValue>AcquisitionFrameRateConverter</pValue>",
                     "<pValue>AcquisitionFrameRateConverter</pValue><Min>0.1</Min><pMax>FastestRate</pMax>");
    return features;
}

/// As above, but no more frames than the exposure leaves time for.
QByteArray FeaturesWithRateOfExposure()
{
    QByteArray features = FeaturesWithAutomaticExposure();
    features.replace("<pMax>FastestRate</pMax>", "<pMax>RateOfExposure</pMax>");
    features.replace("</RegisterDescription>", R"(
        <SwissKnife Name="RateOfExposure" NameSpace="Custom">
            <pVariable Name="EXPOSURE">ExposureTimeAbs</pVariable><Formula>1000000 / EXPOSURE</Formula>
        </SwissKnife>
        </RegisterDescription>)");
    return features;
}

} // namespace

/// What a GenICam camera does by itself, and bins by itself, on one that runs in this process behind real sockets. Its
/// registers are looked at from the other side.
class GigEControlsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(WriteFile("features.xml", FeaturesWithAutomaticExposure()));
        QVERIFY(WriteFile("rateofexposure.xml", FeaturesWithRateOfExposure()));
    }

    void init() override
    {
        StartGuard();
        StartCamera(m_folder.filePath("features.xml"));
    }

    void cleanup() override
    {
        QVERIFY(CameraSession::WaitForTeardown(30000));
        g_clear_object(&m_camera);
        EndGuard();
    }

    void exposureAndGainAreLeftToTheCamera()
    {
        CameraSession session;
        QVERIFY(Open(&session));
        const ControlValues &controls = session.Controls();
        QVERIFY(controls.hasAutoExposure && controls.hasAutoGain);
        QVERIFY(!controls.isAutoExposure && !controls.isAutoGain);
        QSignalSpy set(&session, &CameraSession::signalControlSet);
        session.SetAutoExposure(true);
        session.SetAutoGain(true);
        Settle(session, set);
        QVERIFY(controls.isAutoExposure && controls.isAutoGain);
        QCOMPARE(Register(ExposureAutoRegister), Continuous);
        QCOMPARE(Register(ARV_FAKE_CAMERA_REGISTER_GAIN_MODE), Continuous);

        Put(ARV_FAKE_CAMERA_REGISTER_EXPOSURE_TIME_US, 4321); // the camera finds others
        Put(ARV_FAKE_CAMERA_REGISTER_GAIN_RAW, 7);
        QSignalSpy changed(&session, &CameraSession::signalControlsChanged);
        session.Refresh();
        QTRY_COMPARE(changed.count(), 1);
        QCOMPARE(controls.exposureUs, 4321.0);
        QCOMPARE(controls.gain, 7.0);
        session.Refresh();
        WaitForTurn(session);
        QCOMPARE(changed.count(), 1); // nothing new

        session.SetAutoExposure(false);
        session.SetAutoGain(false);
        Settle(session, set);
        QCOMPARE(Register(ExposureAutoRegister), Off);
        QCOMPARE(Register(ARV_FAKE_CAMERA_REGISTER_GAIN_MODE), Off);
        QCOMPARE(controls.exposureUs, 4321.0); // what it has found stays
        Put(ARV_FAKE_CAMERA_REGISTER_EXPOSURE_TIME_US, 999);
        session.Refresh();
        WaitForTurn(session);
        QCOMPARE(controls.exposureUs, 4321.0); // and is not asked for again
    }

    void whatTheCameraHasNotIsNotOffered()
    {
        g_clear_object(&m_camera);
        StartCamera(QString());
        CameraSession session;
        QVERIFY(Open(&session));
        QVERIFY(!session.Controls().hasAutoExposure);
        session.SetAutoExposure(true);
        QTRY_VERIFY(!session.IsSetting());
        QVERIFY(!session.Controls().isAutoExposure);
        QVERIFY(session.Controls().hasAutoGain);
    }

    void binningsAreTheCameras()
    {
        CameraSession session;
        QVERIFY(Open(&session));
        QCOMPARE(session.Format().binnings, QVector<int>({ 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16 }));
        QSignalSpy set(&session, &CameraSession::signalFormatSet);
        session.SetRegion(QRect(0, 0, 510, 300));
        session.SetBinning(3);
        Settle(session, set);
        QCOMPARE(Register(ARV_FAKE_CAMERA_REGISTER_BINNING_HORIZONTAL), 3u);
        QCOMPARE(Register(ARV_FAKE_CAMERA_REGISTER_BINNING_VERTICAL), 3u);
        QCOMPARE(session.Format().region, QRect(0, 0, 510, 300)); // in pixels of the sensor
        QCOMPARE(session.Format().FrameSize(), QSize(170, 100));
        FrameCollector frames;
        QVERIFY(session.Start(&frames));
        QVERIFY(frames.WaitFor(3, MsToWait));
        session.Stop();
        QCOMPARE(QSize(frames.Last().width, frames.Last().height), QSize(170, 100));
        session.SetBinning(17);
        QVERIFY(set.wait());
        QVERIFY2(set.last().first().toString().contains("17 x 17"), qPrintable(set.last().first().toString()));
        QCOMPARE(session.Format().binning, 3);
    }

    /// It was switched off and on meanwhile, and knows nothing any more.
    void lostCameraGetsItsAutomaticsAndItsBinningBack()
    {
        CameraLink link;
        OpenLink(link);
        link.SetBinning(2);
        link.SetRegion(QRect(0, 0, 256, 128));
        QSignalSpy set(link.Session(), &CameraSession::signalControlSet);
        link.Session()->SetAutoExposure(true);
        link.Session()->SetAutoGain(true);
        Settle(*link.Session(), set);
        QSignalSpy messages(&link, SIGNAL(signalMessage(QString)));
        g_clear_object(&m_camera);
        StartCamera(m_folder.filePath("features.xml"));
        QVERIFY(Register(ARV_FAKE_CAMERA_REGISTER_GAIN_MODE) != Continuous);
        emit link.Session()->signalControlLost();
        QTRY_COMPARE_WITH_TIMEOUT(link.GetState(), CameraLink::State::Open, MsToWait);
        QTRY_VERIFY_WITH_TIMEOUT(!messages.isEmpty(), MsToWait);
        QVERIFY(link.Session()->Controls().isAutoExposure && link.Session()->Controls().isAutoGain);
        QCOMPARE(Register(ExposureAutoRegister), Continuous);
        QCOMPARE(Register(ARV_FAKE_CAMERA_REGISTER_GAIN_MODE), Continuous);
        QCOMPARE(Register(ARV_FAKE_CAMERA_REGISTER_BINNING_HORIZONTAL), 2u);
        QCOMPARE(link.Session()->Format().region, QRect(0, 0, 256, 128));
        QVERIFY2(messages.last().first().toString().endsWith("is back."),
                 qPrintable(messages.last().first().toString()));
        link.Close();
    }

    /// A command may reload all settings: it is the width here, and what the camera had done to its exposure.
    void whatACommandChangesIsSeenEverywhere()
    {
        CameraLink link;
        OpenLink(link);
        link.SetRegion(QRect(0, 0, 256, 128));
        FrameCollector frames;
        QVERIFY(link.StartFrames(&frames));
        QVERIFY(frames.WaitFor(2, MsToWait));
        QTRY_VERIFY_WITH_TIMEOUT(!link.Session()->IsSetting(), MsToWait);
        QSignalSpy formats(&link, &CameraLink::signalFormatChanged);
        QSignalSpy controls(&link, &CameraLink::signalControlsChanged);
        Put(ARV_FAKE_CAMERA_REGISTER_EXPOSURE_TIME_US, 4321);
        SetFeature(link, "UserSetLoad", QVariant());
        QCOMPARE(link.Session()->Format().region, QRect(0, 0, 128, 128));
        QCOMPARE(link.Session()->Controls().exposureUs, 4321.0);
        QCOMPARE(formats.count(), 1);
        QCOMPARE(controls.count(), 1);
        QTRY_COMPARE_WITH_TIMEOUT(frames.Last().width, 128, MsToWait);
        SetFeature(link, "TestRegister", 5); // nothing of that
        QCOMPARE(formats.count(), 1);
        QCOMPARE(controls.count(), 1);
        link.Close();
    }

    void pixelFormatThatAFeatureChangesIsThatOfTheFrames()
    {
        CameraLink link;
        OpenLink(link);
        link.SetRegion(QRect(0, 0, 256, 128));
        FrameCollector frames;
        QVERIFY(link.StartFrames(&frames));
        QVERIFY(frames.WaitFor(2, MsToWait));
        QSignalSpy messages(&link, &CameraLink::signalMessage);
        SetFeature(link, "SampleKind", ARV_PIXEL_FORMAT_MONO_16);
        QCOMPARE(link.Session()->Format().layout, PixelLayout::Mono16);
        QTRY_COMPARE_WITH_TIMEOUT(frames.Last().layout, PixelLayout::Mono16, MsToWait);
        QCOMPARE(QSize(frames.Last().width, frames.Last().height), QSize(256, 128));
        QCOMPARE(messages.count(), 0);
        // One that nobody could show is taken back.
        SetFeature(link, "SampleKind", ARV_PIXEL_FORMAT_BAYER_RG_8);
        QCOMPARE(link.Session()->Format().layout, PixelLayout::Mono16);
        QCOMPARE(Register(ARV_FAKE_CAMERA_REGISTER_PIXEL_FORMAT), quint32(ARV_PIXEL_FORMAT_MONO_16));
        QCOMPARE(messages.count(), 1);
        QVERIFY2(messages.first().first().toString().endsWith("It is Mono16 again."),
                 qPrintable(messages.first().first().toString()));
        QVERIFY(frames.WaitForMore(2, MsToWait));
        QCOMPARE(frames.Last().layout, PixelLayout::Mono16);
        link.Close();
    }

    void limitsThatAFeatureChangesAreThoseOfThePanel()
    {
        CameraLink link;
        OpenLink(link);
        QCOMPARE(link.Session()->Controls().exposureRangeUs.maximum, 1e7);
        QCOMPARE(link.Session()->Controls().frameRateRange.maximum, 1000.0);
        QSignalSpy controls(&link, &CameraLink::signalControlsChanged);
        SetFeature(link, "LongestExposure", 50000);
        QCOMPARE(link.Session()->Controls().exposureRangeUs.maximum, 50000.0);
        SetFeature(link, "FastestRate", 30);
        QCOMPARE(link.Session()->Controls().frameRateRange.maximum, 30.0);
        QCOMPARE(controls.count(), 2);
        link.Close();
    }

    void wishedRateComesBackAfterALongExposure_data()
    {
        QTest::addColumn<double>("longExposureUs");
        QTest::addColumn<double>("slowRate");
        QTest::newRow("half a second") << 5e5 << 2.0;
        QTest::newRow("only one rate is left") << 1e7 << 0.1;
    }

    void wishedRateComesBackAfterALongExposure()
    {
        QFETCH(double, longExposureUs);
        QFETCH(double, slowRate);
        g_clear_object(&m_camera);
        StartCamera(m_folder.filePath("rateofexposure.xml"));
        CameraLink link;
        OpenLink(link);
        CameraSession &session = *link.Session();
        const ControlValues &controls = session.Controls();
        QSignalSpy set(&session, &CameraSession::signalControlSet);
        session.SetExposureUs(1000);
        session.SetFrameRate(40);
        Settle(session, set);
        QCOMPARE(controls.frameRate, 40.0);
        session.SetExposureUs(longExposureUs);
        Settle(session, set);
        QCOMPARE(controls.frameRate, slowRate);
        QCOMPARE(controls.frameRateRange.maximum, slowRate);
        SetFeature(link, "TestRegister", 5);
        QCOMPARE(controls.frameRate, slowRate);
        session.SetExposureUs(1000);
        Settle(session, set);
        QCOMPARE(controls.frameRate, 40.0);
        QCOMPARE(controls.frameRateRange.maximum, 1000.0);
        // One that is wished meanwhile waits for its exposure.
        session.SetExposureUs(longExposureUs);
        session.SetFrameRate(50);
        Settle(session, set);
        QCOMPARE(controls.frameRate, slowRate);
        session.SetExposureUs(1000);
        Settle(session, set);
        QCOMPARE(controls.frameRate, 50.0);
        QCOMPARE(Register(ARV_FAKE_CAMERA_REGISTER_ACQUISITION_FRAME_PERIOD_US), 20000u);
        link.Close();
    }

    /// Frames are asked for before anybody has noticed that the camera is gone.
    void framesOfACameraThatWentUnnoticedComeWhenItIsBack()
    {
        CameraLink link;
        OpenLink(link);
        link.SetRegion(QRect(0, 0, 256, 128));
        QTRY_VERIFY_WITH_TIMEOUT(!link.Session()->IsSetting(), MsToWait);
        QSignalSpy failed(&link, &CameraLink::signalFramesFailed);
        g_clear_object(&m_camera);
        FrameTee tee(&link);
        FrameCollector frames;
        QVERIFY(tee.StartFrames(&frames));
        QTRY_COMPARE_WITH_TIMEOUT(link.GetState(), CameraLink::State::Lost, MsToWait);
        QCOMPARE(failed.count(), 0);
        QVERIFY(tee.IsStarted());
        StartCamera(m_folder.filePath("features.xml"));
        QTRY_VERIFY_WITH_TIMEOUT(frames.Count() > 2, MsToWait);
        QCOMPARE(QSize(frames.Last().width, frames.Last().height), QSize(256, 128));
        tee.StopFrames();
        link.Close();
    }

private:
    static constexpr const char *Id = "Aravis-Fake-WB6";

    void StartCamera(const QString &features)
    {
        m_camera = arv_gv_fake_camera_new_full("127.0.0.1", "WB6",
                                               features.isEmpty() ? nullptr : QFile::encodeName(features).constData());
        QVERIFY(arv_gv_fake_camera_is_running(m_camera));
        Put(ExposureAutoRegister, Off);
        Put(LongestExposureRegister, 10000000);
        Put(FastestRateRegister, 1000);
        Put(ARV_FAKE_CAMERA_REGISTER_GAIN_MODE, Off);
    }

    bool WriteFile(const QString &name, const QByteArray &content) const
    {
        QFile file(m_folder.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    }

    bool Open(CameraSession *session)
    {
        QString error;
        const bool isOpen = session->Open(Id, &error);
        if (!isOpen)
            qWarning("%s", qPrintable(error));
        return isOpen;
    }

    static void OpenLink(CameraLink &link)
    {
        link.Open(Id);
        QTRY_COMPARE_WITH_TIMEOUT(link.GetState(), CameraLink::State::Open, MsToWait);
    }

    /// As the feature tree does it; until the camera has answered.
    static void SetFeature(CameraLink &link, const QString &name, const QVariant &value)
    {
        CameraFeatures features(&link);
        QVector<CameraFeature> all;
        connect(&features, &CameraFeatures::signalRead,
                [&all](const QVector<CameraFeature> &read) { all = read; });
        QSignalSpy fault(&features, &CameraFeatures::signalFault);
        features.SetWatched(true);
        QTRY_VERIFY_WITH_TIMEOUT(!all.isEmpty(), MsToWait);
        for (const CameraFeature &feature : QVector<CameraFeature>(all)) {
            if (feature.name == name)
                features.Set(feature, value);
        }
        QTRY_COMPARE_WITH_TIMEOUT(fault.count(), 1, MsToWait);
        QCOMPARE(fault.first().first().toString(), QString());
    }

    /// Until all that was set is answered, and without a fault.
    static void Settle(const CameraSession &session, const QSignalSpy &answers)
    {
        QTRY_VERIFY_WITH_TIMEOUT(!session.IsSetting(), MsToWait);
        for (const QList<QVariant> &answer : answers)
            QCOMPARE(answer.first().toString(), QString());
    }

    /// Until the camera was asked for all that it was to be asked for.
    void WaitForTurn(CameraSession &session)
    {
        bool isDone = false;
        QVERIFY(session.TakeTurn(nullptr, this, [&isDone] { isDone = true; }));
        QTRY_VERIFY_WITH_TIMEOUT(isDone, MsToWait);
    }

    void Put(guint64 address, quint32 value)
    {
        arv_fake_camera_write_register(arv_gv_fake_camera_get_fake_camera(m_camera), guint32(address), value);
    }

    quint32 Register(guint64 address) const
    {
        guint32 value = 0;
        arv_fake_camera_read_register(arv_gv_fake_camera_get_fake_camera(m_camera), guint32(address), &value);
        return value;
    }

    const QTemporaryDir m_folder;
    ArvGvFakeCamera *m_camera = nullptr;
};

GUARDED_TEST_MAIN(GigEControlsTest)
#include "gigecontrolstest.moc"
