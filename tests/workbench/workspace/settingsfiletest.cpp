// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "settingsfile.h"

#include <QFile>
#include <QTemporaryDir>

/// A settings file that can't be used never stops a start, and is never thrown away.
class SettingsFileTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void firstStartWritesTheVersion()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("workbench.ini");
        {
            SettingsFile file(path);
            QVERIFY(file.KeptAside().isEmpty());
            file.Settings()->setValue("panels/left", false);
        }
        const SettingsFile again(path);
        QVERIFY(again.KeptAside().isEmpty());
        QCOMPARE(again.Settings()->value("panels/left").toBool(), false);
        QCOMPARE(again.Settings()->value("settings/version").toInt(), SettingsFile::Version);
    }

    void faultyFileIsKeptAside_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("fault");
        QTest::newRow("empty") << QByteArray() << "the file is empty";
        QTest::newRow("noise") << QByteArray("\x01\x02\xff\n\x80garbage\n[[[", 16) << "the file is damaged";
        QTest::newRow("no version") << QByteArray("[panels]\nleft=false\n") << "the file is damaged";
        QTest::newRow("version is no number") << QByteArray("[settings]\nversion=one\n[panels]\nleft=false\n")
                                              << "the file is damaged";
        QTest::newRow("version zero") << QByteArray("[settings]\nversion=0\n") << "the file is damaged";
        QTest::newRow("future") << QByteArray("[settings]\nversion=2\n[panels]\nleft=false\n")
                                << "a later version of the program wrote them (2, this one reads up to 1)";
    }

    void faultyFileIsKeptAside()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, fault);
        const QTemporaryDir folder;
        const QString path = folder.filePath("workbench.ini");
        Write(path, content);
        ExpectWarning(QRegularExpression(QRegularExpression::escape(path + ".bak-1")));

        const SettingsFile file(path);

        QCOMPARE(file.Fault(), fault);
        QCOMPARE(file.KeptAside(), path + ".bak-1");
        QCOMPARE(Read(path + ".bak-1"), content);
        QVERIFY(!file.Settings()->contains("panels/left"));
        QCOMPARE(file.Settings()->value("settings/version").toInt(), SettingsFile::Version);
    }

    void secondFaultyFileDoesNotReplaceTheFirst()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("workbench.ini");
        Write(path + ".bak-1", "the first one");
        Write(path, "the second one");
        ExpectWarning(QRegularExpression("bak-2"));

        const SettingsFile file(path);

        QCOMPARE(file.KeptAside(), path + ".bak-2");
        QCOMPARE(Read(path + ".bak-1"), QByteArray("the first one"));
        QCOMPARE(Read(path + ".bak-2"), QByteArray("the second one"));
    }

private:
    static void Write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), qint64(content.size()));
    }

    static QByteArray Read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

GUARDED_TEST_MAIN(SettingsFileTest)
#include "settingsfiletest.moc"
