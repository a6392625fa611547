// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugindialog.h"
#include "guardedtest.h"
#include "pluginlist.h"
#include "uimanagerbase.h"

#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>

namespace {

UIPluginReport Report(const QString &path, int id, const QString &title, const QString &version, const QString &reason)
{
    UIPluginReport report;
    report.filePath = path;
    report.id = id;
    report.title = title;
    report.version = version;
    report.loaded = reason.isEmpty();
    report.reason = reason;
    return report;
}

} // namespace

/// What the plug-in page says of plug-ins that were loaded, refused or not found.
class PluginDialogTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void eachPluginHasItsRow_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QString>("details");
        QTest::newRow("loaded") << 0 << QStringList({"Camera", "0", "1.0", "Loaded", "/opt/plugins/camera/ui"})
                                << "/opt/plugins/camera/ui/camerapanel.so\nLoaded";
        QTest::newRow("refused, without a title")
            << 1
            << QStringList({"lamp", "0", "3.2", "Not loaded: another plug-in has the id 0 already",
                            "/home/lab/plugins/camera/ui"})
            << "/home/lab/plugins/camera/ui/lamp.so\nNot loaded: another plug-in has the id 0 already";
        QTest::newRow("says nothing of itself")
            << 2 << QStringList({"text", "", "", "Not loaded: it is not a plug-in", "/home/lab/plugins/camera/ui"})
            << "/home/lab/plugins/camera/ui/text.so\nNot loaded: it is not a plug-in";
        QTest::newRow("missing") << 3
                                 << QStringList({"Report", "9", "", "Not loaded: no plug-in brings this panel", ""})
                                 << "Not loaded: no plug-in brings this panel";
        QTest::newRow("loaded for a tab that is nowhere")
            << 4
            << QStringList({ "Rate", "100", "1.0", "Loaded, but not seen: no page has it",
                             "/home/lab/plugins/camera/ui" })
            << "/home/lab/plugins/camera/ui/rate.so\nLoaded, but not seen: no page has it";
    }

    void eachPluginHasItsRow()
    {
        QFETCH(int, row);
        QFETCH(QStringList, texts);
        QFETCH(QString, details);
        PluginDialog dialog(Reports(), {"/opt/plugins"}, nullptr);
        dialog.setAttribute(Qt::WA_DeleteOnClose, false);
        auto *table = dialog.findChild<QTreeWidget *>("treePlugins");
        QCOMPARE(table->topLevelItemCount(), 5);
        for (int column = 0; column < texts.size(); ++column)
            QCOMPARE(table->topLevelItem(row)->text(column), texts.at(column));
        table->setCurrentItem(table->topLevelItem(row));
        QCOMPARE(dialog.findChild<QLabel *>("labelPluginDetails")->text(), details);
    }

    void tellsWhereALabPutsItsOwn()
    {
        QTemporaryDir home;
        qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
        qputenv("GLOBALUI_PLUGIN_PATH", "/lab/panels");
        const QStringList folders = PluginList::Folders();
        QVERIFY(folders.indexOf("/lab/panels/plugins") > 0);
        QCOMPARE(folders.last(), home.path() + "/globalui/plugins");
        PluginDialog dialog({}, folders, nullptr);
        dialog.setAttribute(Qt::WA_DeleteOnClose, false);
        const QString text = dialog.findChild<QLabel *>("labelPluginFolders")->text();
        for (const QString &folder : folders)
            QVERIFY2(text.contains(folder), qPrintable(text));
        QVERIFY(text.contains("GLOBALUI_PLUGIN_PATH"));
    }

    void keysWalkTheTableAndCloseThePage()
    {
        auto *dialog = new PluginDialog(Reports(), {"/opt/plugins"}, nullptr);
        const QPointer<PluginDialog> page = dialog;
        dialog->open();
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        auto *table = dialog->findChild<QTreeWidget *>("treePlugins");
        QVERIFY(table->hasFocus());
        QTest::keyClick(table, Qt::Key_Down);
        QVERIFY(dialog->findChild<QLabel *>("labelPluginDetails")->text().contains("lamp.so"));
        QTest::keyClick(dialog, Qt::Key_Escape);
        QTRY_VERIFY(!page);
    }

private:
    static QList<UIPluginReport> Reports()
    {
        UIPluginReport unseen =
            Report("/home/lab/plugins/camera/ui/rate.so", 100, "Rate", "1.0", "no page has it");
        unseen.loaded = true;
        return { Report("/opt/plugins/camera/ui/camerapanel.so", 0, "Camera", "1.0", ""),
                 Report("/home/lab/plugins/camera/ui/lamp.so", 0, "", "3.2",
                        "another plug-in has the id 0 already"),
                 Report("/home/lab/plugins/camera/ui/text.so", -1, "", "", "it is not a plug-in"),
                 Report("", 9, "Report", "", "no plug-in brings this panel"), unseen };
    }
};

GUARDED_TEST_MAIN(PluginDialogTest)
#include "plugindialogtest.moc"
