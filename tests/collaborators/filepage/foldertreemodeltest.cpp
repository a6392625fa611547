// SPDX-License-Identifier: GPL-3.0-or-later
#include "filefolder.h"
#include "foldertreemodel.h"
#include "guardedtest.h"

#include <QFileInfo>

/// The tree of folders.
class FolderTreeModelTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void seeksAFolder()
    {
        const FileFolder folder;
        QVERIFY(QDir(folder.Path()).mkpath("one/.hidden/two"));
        FolderTreeModel model;
        const QString wanted = folder.Path("one/.hidden/two");
        QTRY_COMPARE(model.Seek(wanted).data(FolderTreeModel::PathRole).toString(), wanted);
        QCOMPARE(model.Seek(wanted).data().toString(), QString("two"));
        // What is not there is as near as it gets.
        QTRY_COMPARE(model.Seek(folder.Path("one/nowhere")).data().toString(), QString("one"));
    }

    void readsOnlyFolders()
    {
        const FileFolder folder;
        for (int i = 0; i < 1000; ++i)
            folder.Write(QString("%1.tif").arg(i));
        QVERIFY(QDir(folder.Path()).mkdir("below"));
        FolderTreeModel model;
        QTRY_COMPARE(model.Seek(folder.Path("below")).data().toString(), QString("below"));
        QCOMPARE(model.rowCount(model.Seek(folder.Path())), 1);
    }

    void followsWhatChanges()
    {
        const FileFolder folder;
        for (const char *name : {"b", "d", "f"})
            QVERIFY(QDir(folder.Path()).mkdir(name));
        FolderTreeModel model;
        QTRY_COMPARE(model.Seek(folder.Path("d")).data().toString(), QString("d"));
        const QPersistentModelIndex d(model.Seek(folder.Path("d")));
        model.SetWatched(true);
        QVERIFY(QDir(folder.Path()).mkdir("a"));
        QVERIFY(QDir(folder.Path()).mkdir("c"));
        QVERIFY(QDir(folder.Path()).rmdir("f"));
        QTRY_COMPARE(Below(model, folder.Path()), QStringList({"a", "b", "c", "d"}));
        QCOMPARE(d.row(), 3);
        QVERIFY(QDir(folder.Path()).rmdir("d"));
        QTRY_VERIFY(!d.isValid());
        model.SetWatched(false);
        QVERIFY(QDir(folder.Path()).mkdir("e"));
        model.SetWatched(true); // looks at once
        QTRY_COMPARE(Below(model, folder.Path()), QStringList({"a", "b", "c", "e"}));
    }

    void aFolderThatCannotBeReadSaysSo()
    {
        FolderTreeModel model;
        const FileFolder folder;
        QVERIFY(QDir(folder.Path()).mkdir("gone"));
        QTRY_COMPARE(model.Seek(folder.Path("gone")).data().toString(), QString("gone"));
        const QPersistentModelIndex gone(model.Seek(folder.Path("gone")));
        QVERIFY(model.hasChildren(gone)); // nobody has looked
        QVERIFY(QDir(folder.Path()).rmdir("gone"));
        model.fetchMore(gone);
        QTRY_VERIFY(!model.hasChildren(gone));
        QVERIFY(gone.data(Qt::ToolTipRole).toString().contains("is not there"));
    }

private:
    static QStringList Below(FolderTreeModel &model, const QString &path)
    {
        QStringList names;
        const QModelIndex folder = model.Seek(path);
        for (int row = 0; row < model.rowCount(folder); ++row)
            names << model.index(row, 0, folder).data().toString();
        return names;
    }
};

GUARDED_TEST_MAIN(FolderTreeModelTest)
#include "foldertreemodeltest.moc"
