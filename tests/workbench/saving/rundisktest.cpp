// SPDX-License-Identifier: GPL-3.0-or-later
#include "rundisk.h"
#include "guardedtest.h"

#include <QFile>
#include <QTemporaryDir>

#include <cerrno>

/// What a disk answers, in words.
class RunDiskTest : public GuardedTest
{
    Q_OBJECT

private slots:
    /// This file of the system's is on a disk that is always full.
    void aFullDiskIsSaid()
    {
        RunDisk disk;
        FileFault fault;
        QVERIFY(disk.OpenExisting("/dev/full", fault));
        const QByteArray bytes(100000, 'x');
        QVERIFY(!disk.Write(bytes.constData(), bytes.size(), fault));
        QCOMPARE(fault.what, QString("the disk is full"));
        QVERIFY2(fault.advice.contains("Free some space or record to another disk"), qPrintable(fault.advice));
        QVERIFY(fault.isDiskFull && !fault.isNameTaken);
    }

    void whatTheSystemSaysIsSaidInWords_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("reason");
        QTest::addColumn<QString>("advice");
        QTest::addColumn<bool>("isDiskFull");
        for (const int code : { ENOSPC, EDQUOT })
            QTest::addRow("full, %d", code) << code << "the disk is full" << "Free some space" << true;
        QTest::newRow("too large") << EFBIG << "the file has become larger than this disk allows" << "Record fewer frames" << true;
        for (const int code : { EIO, ENODEV, ENXIO })
            QTest::addRow("gone, %d", code) << code << "the disk does not answer" << "Check that it is still connected" << false;
        for (const int code : { EACCES, EPERM, EROFS })
            QTest::addRow("forbidden, %d", code) << code << "you may not write in that folder" << "Choose another folder" << false;
        for (const int code : { ENOENT, ENOTDIR, ENAMETOOLONG })
            QTest::addRow("no folder, %d", code) << code << "that folder does not exist" << "Choose a folder that is there" << false;
        QTest::newRow("taken") << EEXIST << "a file of that name is there already" << "Choose another name" << false;
        QTest::newRow("anything else") << ETXTBSY << "Text file busy" << "Check the disk" << false;
    }

    void whatTheSystemSaysIsSaidInWords()
    {
        QFETCH(int, code);
        QFETCH(QString, reason);
        QFETCH(QString, advice);
        QFETCH(bool, isDiskFull);
        FileFault fault;
        QVERIFY(!RunDisk::SetSystemFault(fault, code));
        QCOMPARE(fault.what, reason);
        QVERIFY2(fault.advice.startsWith(advice), qPrintable(fault.advice));
        QCOMPARE(fault.isDiskFull, isDiskFull);
        QCOMPARE(fault.isNameTaken, code == EEXIST);
    }

    void aNameThatIsTakenIsNotGivenAgain()
    {
        const QTemporaryDir folder;
        QFile mine(folder.filePath("mine"));
        QFile theirs(folder.filePath("theirs"));
        QVERIFY(mine.open(QIODevice::WriteOnly) && mine.write("mine") == 4);
        QVERIFY(theirs.open(QIODevice::WriteOnly) && theirs.write("their") == 5);
        mine.close();
        theirs.close();
        FileFault fault;
        QVERIFY(!RunDisk::Rename(mine.fileName(), theirs.fileName(), fault));
        QVERIFY(fault.isNameTaken);
        QCOMPARE(theirs.size(), qint64(5));
        QVERIFY(RunDisk::Rename(mine.fileName(), folder.filePath("free"), fault));
        QVERIFY(!mine.exists() && QFile::exists(folder.filePath("free")));
    }
};

GUARDED_TEST_MAIN(RunDiskTest)
#include "rundisktest.moc"
