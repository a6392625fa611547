// SPDX-License-Identifier: GPL-3.0-or-later
#include "filefolder.h"
#include "filemoves.h"
#include "guardedtest.h"

#include <QFile>

#include <sys/stat.h>

namespace {

QByteArray Content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

} // namespace

/// Renaming, the trash and the way back.
class FileMovesTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<FileFolder>();
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder->Path("data/of/new/user")));
    }
    void cleanup() override
    {
        m_folder.reset();
        EndGuard();
    }

    void renamesWithoutOverwriting()
    {
        const QString a = m_folder->Write("a.tif", "a");
        const QString b = m_folder->Write("b.tif", "b");
        const QString c = m_folder->Path("c.tif");
        QString fault;
        QVERIFY(FileMoves::Rename({a, c}, fault));
        QCOMPARE(Content(c), QByteArray("a"));
        QVERIFY(!FileMoves::Rename({c, b}, fault));
        QCOMPARE(fault, QString("\u201cc.tif\u201d was not renamed to \u201cb.tif\u201d: there is a file of that name "
                                "already. Choose another name."));
        QCOMPARE(Content(b), QByteArray("b"));
        QCOMPARE(Content(c), QByteArray("a"));
        QVERIFY(!FileMoves::Rename({a, m_folder->Path("d.tif")}, fault));
        QVERIFY2(fault.contains("it is not there any more"), qPrintable(fault));
        QVERIFY(!FileMoves::Rename({c, m_folder->Path(QString(300, 'x'))}, fault));
        QVERIFY2(fault.contains("the name is too long"), qPrintable(fault));
    }

    void aFolderWithoutRightsIsSaid()
    {
        const QString a = m_folder->Write("a.tif", "a");
        ::chmod(QFile::encodeName(m_folder->Path()).constData(), 0555);
        QString fault;
        {
            const AsNobody nobody;
            QVERIFY(!FileMoves::Rename({a, m_folder->Path("b.tif")}, fault));
        }
        ::chmod(QFile::encodeName(m_folder->Path()).constData(), 0755);
        QVERIFY2(fault.contains("you have no right to change this folder"), qPrintable(fault));
    }

    void namesThatAreNone_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isGood");
        QTest::newRow("usual") << "a.tif" << true;
        QTest::newRow("blank inside") << "a b.tif" << true;
        QTest::newRow("line break") << "a\nb.tif" << true;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("blanks") << "  " << false;
        QTest::newRow("slash") << "a/b.tif" << false;
        QTest::newRow("dot") << "." << false;
        QTest::newRow("dots") << ".." << false;
    }
    void namesThatAreNone()
    {
        QFETCH(QString, name);
        QTEST(FileMoves::NameFault(name).isEmpty(), "isGood");
    }

    void theTrashKeepsAndGivesBack()
    {
        const QString name = "cells %1.tif";
        const QString path = m_folder->Write(name, "cells");
        FileMove move{path, QString()};
        QString fault;
        QVERIFY2(FileMoves::Trash(move, fault), qPrintable(fault));
        QVERIFY(!QFile::exists(path));
        QCOMPARE(Content(move.to), QByteArray("cells"));
        const QString info = m_folder->Path("data/of/new/user/Trash/info");
        QCOMPARE(QDir(info).entryList(QDir::Files), QStringList(name + ".trashinfo"));
        QVERIFY(FileMoves::Restore(move, fault));
        QCOMPARE(Content(path), QByteArray("cells"));
        QVERIFY(QDir(info).entryList(QDir::Files).isEmpty());
    }

    void whatTookThePlaceStays()
    {
        const QString path = m_folder->Write("a.tif", "old");
        FileMove move{path, QString()};
        QString fault;
        QVERIFY(FileMoves::Trash(move, fault));
        m_folder->Write("a.tif", "new");
        QVERIFY(!FileMoves::Restore(move, fault));
        QVERIFY2(fault.startsWith("\u201ca.tif\u201d was not taken out of the trash: there is a file"), qPrintable(fault));
        QCOMPARE(Content(path), QByteArray("new"));
        QCOMPARE(Content(move.to), QByteArray("old"));
    }

    void aFileThatIsGoneIsSaid()
    {
        FileMove move{m_folder->Path("nowhere.tif"), QString()};
        QString fault;
        QVERIFY(!FileMoves::Trash(move, fault));
        QCOMPARE(fault, QString("\u201cnowhere.tif\u201d was not moved to the trash: it is not there any more."));
    }

private:
    std::unique_ptr<FileFolder> m_folder;
};

GUARDED_TEST_MAIN(FileMovesTest)
#include "filemovestest.moc"
