// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include "programfile.h"
#include "versionresource.h"

#include <QTemporaryDir>
#include <QtEndian>

#include <random>

namespace {

QByteArray SampleStrings()
{
    return StringRecord("CompanyName", "Someone") + StringRecord("FileVersion", "1.0")
           + StringRecord("ProductVersion", "57.25.10.3")
           + StringRecord("ProductName", QString::fromUtf8("Kamera größe"));
}

} // namespace

class TestVersionResource : public GuardedTest
{
    Q_OBJECT

private slots:
    void FindsAStringByItsKey_data();
    void FindsAStringByItsKey();
    void FindsTheInformationBehindOtherResources();
    void ReadsTheResourceSectionOfAProgramFile();
    void AnotherFileHasNoResources_data();
    void AnotherFileHasNoResources();
    void LengthsThatLieAreNotFollowed();
    void DamagedFilesAreReadSafely();

private:
    QString WriteFile(const QByteArray &content);

    QTemporaryDir m_folder;
};

QString TestVersionResource::WriteFile(const QByteArray &content)
{
    const QString path = m_folder.filePath("library.dll");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        return QString();
    return path;
}

void TestVersionResource::FindsAStringByItsKey_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::newRow("first") << "CompanyName" << "Someone";
    QTest::newRow("middle") << "ProductVersion" << "57.25.10.3";
    QTest::newRow("not only ASCII") << "ProductName" << QString::fromUtf8("Kamera größe");
    QTest::newRow("not there") << "Comments" << "";
    QTest::newRow("a part of a key") << "Version" << "";
    QTest::newRow("the beginning of a key") << "Product" << "";
    QTest::newRow("other case") << "productversion" << "";
    QTest::newRow("a value") << "57.25.10.3" << "";
    QTest::newRow("a table") << "StringFileInfo" << "";
    QTest::newRow("no key") << "" << "";
}

void TestVersionResource::FindsAStringByItsKey()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QCOMPARE(VersionString(VersionInformation(SampleStrings()), key), value);
}

void TestVersionResource::FindsTheInformationBehindOtherResources()
{
    const QByteArray section =
        QByteArray(1002, '\x11') + VersionInformation(SampleStrings()) + QByteArray(100, '\x22');
    QCOMPARE(VersionString(section, "ProductVersion"), QString("57.25.10.3"));
}

void TestVersionResource::ReadsTheResourceSectionOfAProgramFile()
{
    const QByteArray section = VersionInformation(SampleStrings());
    const QString path = WriteFile(ProgramFile(".rsrc", section));
    QCOMPARE(ReadResourceSection(path), section);
}

void TestVersionResource::AnotherFileHasNoResources_data()
{
    const QByteArray program = ProgramFile(".rsrc", VersionInformation(SampleStrings()));
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("MZ is how it begins, and that is all.");
    QTest::newRow("another format") << QByteArray("\x7f" "ELF") + program.mid(4);
    QTest::newRow("no PE header") << QByteArray(program).replace(0x80, 2, "XX");
    QTest::newRow("other section only") << ProgramFile(".text", QByteArray(64, 'x'));
    QTest::newRow("cut in the headers") << program.left(0x90);
    QTest::newRow("cut in the section") << program.left(program.size() - 1);
}

void TestVersionResource::AnotherFileHasNoResources()
{
    QFETCH(QByteArray, content);
    QCOMPARE(ReadResourceSection(WriteFile(content)), QByteArray());
    QCOMPARE(ReadResourceSection(m_folder.filePath("nowhere.dll")), QByteArray());
}

void TestVersionResource::LengthsThatLieAreNotFollowed()
{
    const QByteArray good = VersionInformation(StringRecord("ProductVersion", "1.2"));
    const int key = good.indexOf(Wide("ProductVersion"));
    QByteArray longRecord = good;
    qToLittleEndian<quint16>(0xFFFF, longRecord.data() + key - 6);
    QCOMPARE(VersionString(longRecord, "ProductVersion"), QString());
    QByteArray longValue = good;
    qToLittleEndian<quint16>(0xFFFF, longValue.data() + key - 4);
    QCOMPARE(VersionString(longValue, "ProductVersion"), QString("1.2"));
    QByteArray shortRecord = good;
    qToLittleEndian<quint16>(8, shortRecord.data() + key - 6);
    QCOMPARE(VersionString(shortRecord, "ProductVersion"), QString());
    QByteArray longInformation = good;
    qToLittleEndian<quint16>(0xFFFF, longInformation.data());
    QCOMPARE(VersionString(longInformation, "ProductVersion"), QString("1.2"));
    QCOMPARE(VersionString(good.left(key + 10), "ProductVersion"), QString());
}

void TestVersionResource::DamagedFilesAreReadSafely()
{
    const QByteArray program = ProgramFile(".rsrc", VersionInformation(SampleStrings()));
    std::mt19937 random(20240501); // repeatable
    for (int round = 0; round < 500; ++round) {
        QByteArray damaged = program.left(1 + int(random() % unsigned(program.size())));
        for (int i = 0; i < 8; ++i)
            damaged[int(random() % unsigned(damaged.size()))] = char(random());
        const QString value = VersionString(ReadResourceSection(WriteFile(damaged)), "ProductVersion");
        QVERIFY(value.size() * 2 <= program.size());
        const QString direct = VersionString(damaged, "ProductVersion");
        QVERIFY(direct.size() * 2 <= program.size());
    }
}

GUARDED_TEST_MAIN(TestVersionResource)
#include "tst_versionresource.moc"
