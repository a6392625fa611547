// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileruns.h"
#include "guardedtest.h"

#include <QTemporaryFile>

#include <algorithm>
#include <vector>

/// Bytes that lie in pieces in a file come in the order they were asked for.
class FileRunsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_file.open());
        std::vector<char> bytes(FileBytes);
        for (size_t i = 0; i < bytes.size(); ++i)
            bytes[i] = char(ByteAt(i));
        QCOMPARE(m_file.write(bytes.data(), qint64(bytes.size())), qint64(bytes.size()));
        QVERIFY(m_file.flush());
    }

    void neighboursAreOneRun()
    {
        FileRuns runs;
        QCOMPARE(runs.FirstOffset(), quint64(0));
        runs.Add(100, 50);
        runs.Add(150, 10); // follows
        runs.Add(170, 30); // a gap
        runs.Add(100, 5);  // back again
        QCOMPARE(runs.Count(), 3);
        QCOMPARE(runs.ByteCount(), qint64(95));
        QCOMPARE(runs.FirstOffset(), quint64(100));
    }

    void theBytesComeInTheOrderAskedFor_data()
    {
        QTest::addColumn<qint64>("pieceBytes");
        QTest::addColumn<qint64>("step");
        QTest::addColumn<int>("pieces");
        QTest::newRow("none") << qint64(1) << qint64(1) << 0;
        QTest::newRow("one piece") << qint64(1000) << qint64(1000) << 1;
        QTest::newRow("pieces with gaps") << qint64(10) << qint64(17) << 100;
        QTest::newRow("one run, by two threads") << qint64(FileBytes) << qint64(FileBytes) << 1;
        // The half lies within a piece.
        QTest::newRow("gaps, by two threads") << qint64(1000) << qint64(1003) << 2501;
        QTest::newRow("backwards, by two threads") << qint64(1000) << qint64(-1003) << 2501;
    }

    void theBytesComeInTheOrderAskedFor()
    {
        QFETCH(qint64, pieceBytes);
        QFETCH(qint64, step);
        QFETCH(int, pieces);
        const qint64 first = step > 0 ? 0 : qint64(FileBytes) - pieceBytes;
        FileRuns runs;
        std::vector<uchar> expected;
        for (int piece = 0; piece < pieces; ++piece) {
            const qint64 offset = first + piece * step;
            runs.Add(quint64(offset), pieceBytes);
            for (qint64 i = 0; i < pieceBytes; ++i)
                expected.push_back(ByteAt(size_t(offset + i)));
        }
        std::vector<uchar> bytes(expected.size());
        QVERIFY(runs.Read(m_file.handle(), bytes.data()));
        QVERIFY(bytes == expected);
    }

    void anEndBeforeTheLastByteIsTold_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::newRow("small") << qint64(10);
        QTest::newRow("by two threads") << qint64(FileBytes);
    }

    void anEndBeforeTheLastByteIsTold()
    {
        QFETCH(qint64, bytes);
        FileRuns whole;
        whole.Add(FileBytes - quint64(bytes), bytes);
        FileRuns cut;
        cut.Add(FileBytes - quint64(bytes) + 1, bytes);
        std::vector<uchar> buffer(static_cast<size_t>(bytes));
        QVERIFY(whole.Read(m_file.handle(), buffer.data()));
        QVERIFY(!cut.Read(m_file.handle(), buffer.data()));
    }

private:
    static constexpr size_t FileBytes = (3 << 20) + 5;
    static uchar ByteAt(size_t offset) { return uchar(offset * 131 >> 7); }

    QTemporaryFile m_file;
};

GUARDED_TEST_MAIN(FileRunsTest)
#include "filerunstest.moc"
