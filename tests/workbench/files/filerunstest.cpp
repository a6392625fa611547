// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileruns.h"
#include "guardedtest.h"

#include <QTemporaryFile>

#include <algorithm>
#include <mutex>
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
        const auto ignore = [](qint64, qint64) {};
        QVERIFY(whole.ReadInParts(m_file.handle(), buffer.data(), 1, ignore));
        QVERIFY(!cut.ReadInParts(m_file.handle(), buffer.data(), 1, ignore));
    }

    void everyPartIsToldOnceWhenItIsThere_data()
    {
        QTest::addColumn<qint64>("unitBytes");
        QTest::addColumn<qint64>("units");
        QTest::newRow("less than a part") << qint64(10) << qint64(7);
        QTest::newRow("parts, by one thread") << qint64(1000) << qint64(1500);
        QTest::newRow("parts, by two threads") << qint64(1000) << qint64(3001);
        QTest::newRow("a unit larger than a part") << qint64(1 << 20) << qint64(3);
        QTest::newRow("one unit of everything") << qint64(3 << 20) << qint64(1);
    }

    void everyPartIsToldOnceWhenItIsThere()
    {
        QFETCH(qint64, unitBytes);
        QFETCH(qint64, units);
        const auto total = size_t(unitBytes * units);
        FileRuns runs; // in two runs that change their places
        const qint64 first = unitBytes * units / 3;
        runs.Add(quint64(first), unitBytes * units - first);
        runs.Add(0, first);
        std::vector<uchar> expected(total);
        for (size_t i = 0; i < total; ++i)
            expected[i] = ByteAt((i + size_t(first)) % total);

        std::vector<uchar> bytes(total);
        std::vector<int> told(static_cast<size_t>(units), 0);
        bool isThere = true;
        bool isWholeUnits = true;
        std::mutex mutex;
        QVERIFY(runs.ReadInParts(m_file.handle(), bytes.data(), unitBytes, [&](qint64 from, qint64 to) {
            const std::lock_guard<std::mutex> lock(mutex);
            isThere = isThere && std::equal(&bytes[size_t(from)], &bytes[size_t(from)] + (to - from), &expected[size_t(from)]);
            isWholeUnits = isWholeUnits && from % unitBytes == 0 && to % unitBytes == 0;
            for (qint64 unit = from / unitBytes; unit < to / unitBytes; ++unit)
                ++told[size_t(unit)];
        }));
        QVERIFY(isThere);
        QVERIFY(isWholeUnits);
        QCOMPARE(told, std::vector<int>(size_t(units), 1));
        QVERIFY(bytes == expected);
    }

private:
    static constexpr size_t FileBytes = (3 << 20) + 5;
    static uchar ByteAt(size_t offset) { return uchar(offset * 131 >> 7); }

    QTemporaryFile m_file;
};

GUARDED_TEST_MAIN(FileRunsTest)
#include "filerunstest.moc"
