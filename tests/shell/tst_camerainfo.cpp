// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerainfo.h"

#include "globalui.h"
#include "guardedtest.h"
#include "programfile.h"
#include "shellfixture.h"

#include <QFile>
#include <QLabel>

class CameraInfoTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void withoutCamera();
    void withCamera_data();
    void withCamera();
    void numbersHaveFourHexDigits();
    void missingInterfaceTextIsEmpty();
    void textsAreDecoded();
    void tellsTheVersionOfTheCameraLibrary();
    void panelIsNewOnEachCall();
};

void CameraInfoTest::withoutCamera()
{
    FakeServices services;
    QCOMPARE(CameraInfo(), QStringList({ "Name", "No Camera" }));
}

void CameraInfoTest::withCamera_data()
{
    QTest::addColumn<int>("interfaceId");
    QTest::addColumn<bool>("showSerial");
    QTest::addColumn<QStringList>("info");
    const QStringList serials{ "Firmware Serial No.", "1.2.3", "SN", "A-42" };
    const QStringList begin{ "Name", "Model One" };
    const QStringList ids{ "VID", "0x0547", "PID", "0x0A1B" };
    const QStringList end{ "SDK Serial No.", "" };
    QTest::newRow("USB") << 0 << true << begin + QStringList{ "USB", "USB 3.0" } + ids + serials + end;
    QTest::newRow("USB, no serials") << 0 << false << begin + QStringList{ "USB", "USB 3.0" } + ids + end;
    QTest::newRow("other") << 1 << true << begin + QStringList{ "Type", "USB 3.0" } + ids + serials + end;
}

void CameraInfoTest::withCamera()
{
    QFETCH(int, interfaceId);
    QFETCH(bool, showSerial);
    FakeServices services;
    services.cameraName.cameraName = "Model One";
    FakeCameraMainManager camera;
    camera.communicationInterface = "USB 3.0";
    camera.communicationInterfaceID = interfaceId;
    camera.vid = 0x547;
    camera.pid = 0xA1B;
    camera.supportDisplayFWAndSN = showSerial;
    camera.firmwareVersion = "1.2.3";
    camera.serialNumber = "A-42";
    QTEST(CameraInfo(), "info");
}

void CameraInfoTest::numbersHaveFourHexDigits()
{
    FakeServices services;
    FakeCameraMainManager camera;
    camera.vid = 0;
    camera.pid = 0xFFFF;
    const QStringList info = CameraInfo();
    QCOMPARE(info.at(info.indexOf("VID") + 1), QString("0x0000"));
    QCOMPARE(info.at(info.indexOf("PID") + 1), QString("0xFFFF"));
}

void CameraInfoTest::missingInterfaceTextIsEmpty()
{
    FakeServices services;
    FakeCameraMainManager camera;
    camera.communicationInterface = nullptr;
    const QStringList info = CameraInfo();
    QCOMPARE(info.at(info.indexOf("USB") + 1), QString());
}

void CameraInfoTest::textsAreDecoded()
{
    FakeServices services;
    FakeCameraMainManager camera;
    camera.supportDisplayFWAndSN = true;
    camera.firmwareVersion = "\xB5";
    const QString serial = QString::fromUtf8("S\xC2\xB5");
    camera.serialNumber = serial.toLocal8Bit();
    const QStringList info = CameraInfo();
    QCOMPARE(info.at(info.indexOf("Firmware Serial No.") + 1), QString(QChar(0xB5)));
    QCOMPARE(info.at(info.indexOf("SN") + 1), QString::fromLocal8Bit(serial.toLocal8Bit()));
}

void CameraInfoTest::tellsTheVersionOfTheCameraLibrary()
{
    FakeServices services;
    FakeCameraMainManager camera;
    QFile library(QCoreApplication::applicationDirPath() + "/Kelvo.dll");
    QVERIFY(!library.exists());
    QVERIFY(library.open(QIODevice::WriteOnly));
    library.write(ProgramFile(".rsrc", VersionInformation(StringRecord("FileVersion", "1.0")
                                                          + StringRecord("ProductVersion", "57.25.10.3"))));
    library.close();
    const QStringList info = CameraInfo();
    QVERIFY(library.remove());
    QCOMPARE(info.mid(info.size() - 2), QStringList({ "SDK Serial No.", "57.25.10.3" }));
}

void CameraInfoTest::panelIsNewOnEachCall()
{
    ShellHost host;
    const QScopedPointer<QWidget> first(host.ui->GetCameraInfoUI());
    const QScopedPointer<QWidget> second(host.ui->GetCameraInfoUI());
    QVERIFY(first != second);
    QVERIFY(!first->parent());
    QStringList texts;
    for (const QLabel *label : first->findChildren<QLabel *>())
        texts << label->text();
    QVERIFY2(texts.contains("Name") && texts.contains("No Camera"), qPrintable(texts.join(", ")));
}

GUARDED_TEST_MAIN(CameraInfoTest)
#include "tst_camerainfo.moc"
