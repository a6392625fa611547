// SPDX-License-Identifier: GPL-3.0-or-later
#include "filejobs.h"
#include "guardedtest.h"
#include "madepictures.h"
#include "openpicture.h"

#include <QDir>
#include <QImage>
#include <QLocale>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

/// Convert, change the resolution, merge: in the background, one after the other.
class FileJobsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<QTemporaryDir>();
        m_jobs = std::make_unique<FileJobs>();
        m_messages = std::make_unique<QSignalSpy>(m_jobs.get(), SIGNAL(signalMessage(QString)));
        m_faults = std::make_unique<QSignalSpy>(m_jobs.get(), SIGNAL(signalFault(QString)));
    }
    void cleanup() override
    {
        m_jobs.reset();
        m_folder.reset();
        EndGuard();
    }

    void allFramesBecomeCsv()
    {
        MadePictures::Write(Path("a.tif"), QSize(3, 2), 2);
        m_jobs->ConvertToCsv({Path("a.tif")});
        QTRY_COMPARE(m_messages->count(), 1);
        QStringList rows = Lines("a.csv").filter(QRegularExpression("^[^#]"));
        QCOMPARE(rows, QStringList({"0,1,2", "20,21,22", "1000,1001,1002", "1020,1021,1022"}));
        QVERIFY(Lines("a.csv").contains("# frame: 2 of 2"));
        // What is there stays.
        m_jobs->ConvertToCsv({Path("a.tif")});
        QTRY_COMPARE(m_messages->count(), 2);
        QCOMPARE(Lines("a (2).csv"), Lines("a.csv"));
    }

    void aNameWithALineBreakIsOneLine()
    {
        MadePictures::Write(Path("two\nlines.tif"), QSize(3, 2));
        m_jobs->ConvertToCsv({Path("two\nlines.tif")});
        QTRY_COMPARE(m_messages->count(), 1);
        QCOMPARE(Lines("two\nlines.csv").first(), QString::fromUtf8("# picture: two\u23celines.tif"));
        QVERIFY(m_messages->first().first().toString().startsWith(QString::fromUtf8("\u201ctwo\u23celines.tif\u201d")));
    }

    void whatIsSeenBecomesCsv()
    {
        m_jobs->ConvertToCsv(MadePictures::Numbered(QSize(3, 1), 1), Path("a.tif"), "frame: 2 of 5");
        QTRY_COMPARE(m_messages->count(), 1);
        QCOMPARE(Lines("a.csv").first(), QString("# picture: a.tif"));
        QCOMPARE(Lines("a.csv").value(1), QString("# frame: 2 of 5"));
        QVERIFY(Lines("a.csv").contains("1000,1001,1002"));
    }

    void badFilesAreSaidAndTheOthersDone()
    {
        MadePictures::WriteBytes(Path("bad.tif"), "no picture");
        MadePictures::Write(Path("good.tif"), QSize(3, 2));
        m_jobs->ConvertToCsv({Path("bad.tif"), Path("good.tif")});
        QTRY_COMPARE(m_messages->count(), 1);
        QCOMPARE(m_faults->count(), 1);
        QVERIFY(m_faults->first().first().toString().contains("bad.tif"));
        QCOMPARE(QDir(m_folder->path()).entryList({"*.csv"}), QStringList("good.csv"));
    }

    void resolutionOfSeveralFiles()
    {
        MadePictures::Write(Path("a.tif"), QSize(3, 2));
        MadePictures::Write(Path("b.png"), QSize(3, 2));
        QSignalSpy changed(m_jobs.get(), SIGNAL(signalChanged(QString)));
        m_jobs->SetResolution({Path("a.tif"), Path("b.png"), Path("nowhere.tif")}, 600);
        QTRY_COMPARE(m_faults->count(), 1);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(changed.last().first().toString(), Path("b.png"));
        QString error;
        QCOMPARE(OpenPicture(Path("a.tif"), error)->Info().dpiX, 600.0);
    }

    void resolutionIsToldAsTheFileHasIt_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("written");
        QTest::newRow("any number") << "a.tif" << "72,5";
        QTest::newRow("pixels a metre") << "a.png" << "72,49"; // 2854 pixels a metre
        QTest::newRow("whole numbers") << "a.jpg" << "73";
    }
    void resolutionIsToldAsTheFileHasIt()
    {
        QFETCH(QString, name);
        QFETCH(QString, written);
        QImage image(3, 2, QImage::Format_Grayscale8);
        image.fill(Qt::gray);
        if (name.endsWith("tif"))
            MadePictures::Write(Path(name), image.size());
        else
            QVERIFY(image.save(Path(name)));
        QLocale::setDefault(QLocale(QLocale::German));
        m_jobs->SetResolution({Path(name)}, 72.5);
        const bool isTold = QTest::qWaitFor([&] { return m_messages->count() == 1; });
        QLocale::setDefault(QLocale::c());
        QVERIFY(isTold);
        QCOMPARE(m_messages->first().first().toString(),
                 QString("\u201c%1\u201d has %2 pixels an inch now.").arg(name, written));
    }

    void equalPicturesBecomeOneFile()
    {
        MadePictures::Write(Path("a.tif"), QSize(5, 4), 2);
        MadePictures::Write(Path("b.fits"), QSize(5, 4), 1);
        QSignalSpy merged(m_jobs.get(), SIGNAL(signalMerged(QString)));
        m_jobs->Merge({Path("b.fits"), Path("a.tif")}, Path("all.tif"));
        QTRY_COMPARE(merged.count(), 1);
        QCOMPARE(MadePictures::Frames(Path("all.tif")), 3);
        QCOMPARE(MadePictures::Read(Path("all.tif"), 0), MadePictures::Numbered(QSize(5, 4), 0));
        QCOMPARE(MadePictures::Read(Path("all.tif"), 2), MadePictures::Numbered(QSize(5, 4), 1));
    }

    void mergedIntoOneOfThem()
    {
        MadePictures::Write(Path("a.tif"), QSize(5, 4), 2);
        MadePictures::Write(Path("b.tif"), QSize(5, 4), 1);
        m_jobs->Merge({Path("a.tif"), Path("b.tif")}, Path("a.tif"));
        QTRY_COMPARE(m_messages->count(), 1);
        QCOMPARE(MadePictures::Frames(Path("a.tif")), 3);
    }

    void unequalPicturesAreSaid()
    {
        MadePictures::Write(Path("a.tif"), QSize(5, 4));
        MadePictures::Write(Path("b.tif"), QSize(5, 3));
        m_jobs->Merge({Path("a.tif"), Path("b.tif")}, Path("all.tif"));
        QTRY_COMPARE(m_faults->count(), 1);
        QCOMPARE(m_faults->first().first().toString(),
                 QString("The pictures were not merged: \u201ca.tif\u201d (5 x 4 pixels, 16-bit unsigned integer, "
                         "channels: 1) and \u201cb.tif\u201d (5 x 3 pixels, 16-bit unsigned integer, channels: 1) "
                         "differ. Choose pictures of one size and one kind of samples."));
        QVERIFY(!QFile::exists(Path("all.tif")));
    }

    void jobsEndWithTheProgram()
    {
        for (int i = 0; i < 50; ++i)
            MadePictures::Write(Path(QString("%1.tif").arg(i)), QSize(20, 200), 3);
        QStringList paths;
        for (int i = 0; i < 50; ++i)
            paths << Path(QString("%1.tif").arg(i));
        m_jobs->ConvertToCsv(paths);
        m_jobs.reset();
        // What was begun was brought to an end or left no trace.
        constexpr int linesOfAll = 1 + 3 * (4 + 200);
        for (const QString &name : QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden))
            QVERIFY2(name.endsWith(".tif") || (name.endsWith(".csv") && Lines(name).size() == linesOfAll), qPrintable(name));
    }

private:
    QString Path(const QString &name) const { return m_folder->filePath(name); }
    QStringList Lines(const QString &name) const
    {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)
                                              : QStringList();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FileJobs> m_jobs;
    std::unique_ptr<QSignalSpy> m_messages;
    std::unique_ptr<QSignalSpy> m_faults;
};

GUARDED_TEST_MAIN(FileJobsTest)
#include "filejobstest.moc"
