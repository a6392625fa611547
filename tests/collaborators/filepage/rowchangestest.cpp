// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "rowchanges.h"

#include <QRandomGenerator>

namespace {

FileEntries Files(const QString &letters)
{
    FileEntries entries;
    for (const QChar letter : letters)
        entries.append({letter.toLower(), letter.isUpper() ? 2 : 1, 0, false});
    return entries;
}

/// What a list does with the changes.
FileEntries Applied(FileEntries entries, const RowChanges &changes, const FileEntries &after)
{
    for (const RowChanges::Range &range : changes.removed)
        entries.remove(range.first, range.count);
    for (const RowChanges::Range &range : changes.inserted) {
        for (int i = 0; i < range.count; ++i)
            entries.insert(range.first + i, after[range.first + i]);
    }
    for (const int row : changes.altered)
        entries[row] = after[row];
    return entries;
}

} // namespace

/// How one listing becomes the next.
class RowChangesTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void findsTheFewestRanges_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after"); // a capital letter has other bytes
        QTest::addColumn<int>("removed");
        QTest::addColumn<int>("inserted");
        QTest::addColumn<int>("altered");
        QTest::newRow("same") << "abc" << "abc" << 0 << 0 << 0;
        QTest::newRow("new ones together") << "af" << "abcf" << 0 << 1 << 0;
        QTest::newRow("new ones apart") << "bd" << "abcde" << 0 << 3 << 0;
        QTest::newRow("gone") << "abcdef" << "acf" << 2 << 0 << 0;
        QTest::newRow("all gone") << "abc" << "" << 1 << 0 << 0;
        QTest::newRow("first ones") << "" << "abc" << 0 << 1 << 0;
        QTest::newRow("written") << "abc" << "aBc" << 0 << 0 << 1;
        QTest::newRow("moved") << "abc" << "bca" << 1 << 1 << 0; // b and c go behind a
        QTest::newRow("one for another") << "abc" << "axc" << 1 << 1 << 0;
    }
    void findsTheFewestRanges()
    {
        QFETCH(QString, before);
        QFETCH(QString, after);
        const RowChanges changes = FindRowChanges(Files(before), Files(after));
        QVERIFY(!changes.isReset);
        QCOMPARE(Applied(Files(before), changes, Files(after)), Files(after));
        QTEST(changes.altered.size(), "altered");
        QTEST(changes.removed.size(), "removed");
        QTEST(changes.inserted.size(), "inserted");
    }

    void anyListBecomesAnyOther()
    {
        QRandomGenerator random(1);
        const auto some = [&random] {
            QString letters;
            for (char letter = 'a'; letter <= 'z'; ++letter) {
                if (random.bounded(2))
                    letters += QChar(random.bounded(4) ? letter : char(letter - 'a' + 'A'));
            }
            return Files(letters);
        };
        for (int i = 0; i < 500; ++i) {
            const FileEntries before = some();
            const FileEntries after = some();
            const RowChanges changes = FindRowChanges(before, after);
            QVERIFY(!changes.isReset);
            QCOMPARE(Applied(before, changes, after), after);
        }
    }

    void manyChangesBeginAnew()
    {
        FileEntries before;
        FileEntries after;
        for (int i = 0; i < 1000; ++i) {
            before.append({QString::number(i), 0, 0, false});
            if (i % 2)
                after.append(before.last());
        }
        QVERIFY(FindRowChanges(before, after).isReset);
        QVERIFY(!FindRowChanges(before, before).isReset);
    }
};

GUARDED_TEST_MAIN(RowChangesTest)
#include "rowchangestest.moc"
