// SPDX-License-Identifier: GPL-3.0-or-later
#include "filelistmodel.h"
#include "folderworker.h"
#include "guardedtest.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace {

FolderListing Listing(const FileEntries &entries, const FileEntries &before = {}, bool isReset = false)
{
    FolderListing listing;
    listing.folder = "/pictures";
    listing.entries = entries;
    listing.total = entries.size();
    listing.changes = FindRowChanges(before, entries);
    listing.changes.isReset = isReset;
    return listing;
}

ThumbnailResult Result(const QString &path, qint64 modifiedMs, const QString &fault = QString())
{
    ThumbnailResult result;
    result.subject = {path, modifiedMs, 1};
    result.fault = fault;
    if (fault.isEmpty()) {
        result.image = QImage(20, 10, QImage::Format_Grayscale8);
        result.image.fill(Qt::white);
    }
    return result;
}

} // namespace

/// The list of files and what is known of each.
class FileListModelTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void followsTheListings()
    {
        FileListModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const FileEntries first{{"a.tif", 1, 1, false}, {"c.tif", 1, 1, false}};
        model.SetListing(Listing(first, {}, true));
        QCOMPARE(model.rowCount(), 2);
        const QPersistentModelIndex c(model.index(1));

        const FileEntries second{{"b.tif", 1, 1, false}, {"c.tif", 1, 9, false}, {"d.tif", 1, 1, false}};
        QSignalSpy changed(&model, SIGNAL(dataChanged(QModelIndex,QModelIndex,QVector<int>)));
        model.SetListing(Listing(second, first));
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(c.row(), 1);
        QCOMPARE(c.data(FileListModel::PathRole).toString(), QString("/pictures/c.tif"));
        QCOMPARE(changed.count(), 1); // c was written
        QCOMPARE(model.RowOf("d.tif"), 2);
        QCOMPARE(model.RowOf("a.tif"), -1);
        model.Clear();
        QCOMPARE(model.rowCount(), 0);
        QVERIFY(!c.isValid());
    }

    void thumbnailsBelongToAStateOfTheFile()
    {
        FileListModel model;
        const FileEntries first{{"a.tif", 1, 100, false}, {"b.tif", 1, 100, false}, {"link.tif", 0, 0, true}};
        model.SetListing(Listing(first, {}, true));
        QCOMPARE(model.MissingThumbnails({0, 1, 2}).size(), 2); // a broken link can't have one
        model.SetThumbnails({Result("/pictures/a.tif", 100), Result("/pictures/b.tif", 100, "It is bad.")});
        QVERIFY(model.MissingThumbnails({0, 1, 2}).isEmpty());
        QCOMPARE(model.index(0).data(Qt::DecorationRole).value<QPixmap>().size(), QSize(20, 10));
        QVERIFY(model.index(0).data(FileListModel::FaultRole).toString().isEmpty());
        QVERIFY(model.index(1).data(Qt::DecorationRole).value<QPixmap>().isNull());
        QCOMPARE(model.index(1).data(FileListModel::FaultRole).toString(), QString("It is bad."));
        QVERIFY(model.index(1).data(Qt::ToolTipRole).toString().contains("It is bad."));
        QVERIFY(!model.index(2).data(FileListModel::FaultRole).toString().isEmpty());

        FileEntries second = first;
        second[0].modifiedMs = 200;
        model.SetListing(Listing(second, first));
        QCOMPARE(model.MissingThumbnails({0, 1, 2}).size(), 1);
        QCOMPARE(model.MissingThumbnails({0}).first().modifiedMs, 200);
    }

    void aNameInAnotherEncodingIsSaid()
    {
        FileListModel model;
        FileEntries entries{{"a.tif", 1, 1, false}, {"a.tif", 1, 1, false}};
        entries[1].isMisspelt = true;
        model.SetListing(Listing(entries, {}, true));
        QCOMPARE(model.MissingThumbnails({0, 1}).size(), 1); // it could not be opened
        QVERIFY(model.index(0).data(FileListModel::FaultRole).toString().isEmpty());
        QVERIFY(model.index(1).data(FileListModel::FaultRole).toString().contains("another encoding"));
        QVERIFY(model.index(1).data(Qt::ToolTipRole).toString().contains("another encoding"));
    }

    /// Whatever a large screen wants is at hand at once; else it would be read again and again.
    void asManyThumbnailsAreKeptAsAreWanted()
    {
        constexpr int Wanted = 600;
        FileEntries entries;
        QVector<ThumbnailResult> results;
        QVector<int> rows;
        for (int row = 0; row < Wanted; ++row) {
            entries.append({QString("%1.tif").arg(row), 1, 100, false});
            results.append(Result(QString("/pictures/%1.tif").arg(row), 100));
            results.last().image = QImage(256, 256, QImage::Format_RGB32);
            results.last().image.fill(Qt::gray);
            rows.append(row);
        }
        FileListModel model;
        model.SetListing(Listing(entries, {}, true));
        model.KeepThumbnails(Wanted);
        model.SetThumbnails(results);
        QCOMPARE(model.MissingThumbnails(rows).size(), 0);
        model.KeepThumbnails(10); // a small window keeps what usually fits
        QVERIFY(model.MissingThumbnails(rows).size() > Wanted / 2);
        QVERIFY(model.MissingThumbnails(rows).size() < Wanted - 200);
    }

    void namesAreShownOnOneLine()
    {
        FileListModel model;
        model.SetListing(Listing({{"a\n<b>.tif", 1, 1, false}}, {}, true));
        QCOMPARE(model.index(0).data().toString(), QString::fromUtf8("a\u23ce<b>.tif"));
        QCOMPARE(model.index(0).data(Qt::EditRole).toString(), QString("a\n<b>.tif"));
        QVERIFY(model.index(0).data(Qt::ToolTipRole).toString().contains("&lt;b&gt;"));
    }

    void anotherNameIsAsked()
    {
        FileListModel model;
        model.SetListing(Listing({{"a.tif", 1, 1, false}}, {}, true));
        QSignalSpy wanted(&model, SIGNAL(signalRenameWanted(QString,QString)));
        model.setData(model.index(0), "a.tif", Qt::EditRole);
        QCOMPARE(wanted.count(), 0);
        model.setData(model.index(0), "b.tif", Qt::EditRole);
        QCOMPARE(wanted.count(), 1);
        QCOMPARE(wanted.first(), QVariantList({"a.tif", "b.tif"}));
        QCOMPARE(model.index(0).data().toString(), QString("a.tif")); // until the disk says so
    }
};

GUARDED_TEST_MAIN(FileListModelTest)
#include "filelistmodeltest.moc"
