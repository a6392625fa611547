// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include "testpanels.h"

#include <QFileInfo>
#include <QLabel>
#include <QScrollArea>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTranslator>

#include <memory>

namespace {

UIPluginReport ReportOf(const QString &fileName)
{
    for (const UIPluginReport &report : UIManagerBase::PluginReports()) {
        if (QFileInfo(report.filePath).fileName() == fileName)
            return report;
    }
    return UIPluginReport();
}

QStringList Texts(const QTabWidget &tabs)
{
    QStringList texts;
    for (int i = 0; i < tabs.count(); ++i)
        texts << tabs.tabText(i);
    return texts;
}

/// Knows one title, as a text of the manager's.
class OneTitle : public QTranslator
{
public:
    OneTitle() { QCoreApplication::installTranslator(this); }
    ~OneTitle() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool isIt = !qstrcmp(context, "UIManagerBase") && !qstrcmp(source, "Histogram(Live)");
        return isIt ? QString("Häufigkeit (live)") : QString();
    }
};

/// The text of the label that a page of a tab widget scrolls.
QString PageText(const QTabWidget &tabs, int index)
{
    auto *area = qobject_cast<QScrollArea *>(tabs.widget(index));
    auto *label = area ? qobject_cast<QLabel *>(area->widget()) : nullptr;
    return label ? label->text() : QString("no label in a scroll area");
}

} // namespace

class TestUIManagerBase : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void LooksForPluginsWhereTheyAreInstalled();
    void LoadsThePanelsItFinds();
    void TellsWhyAPluginIsNotLoaded_data();
    void TellsWhyAPluginIsNotLoaded();
    void ATabThatNoPageAsksForIsReported();
    void AFolderThatIsNotThereLoadsNothing();
    void AnIdBelongsToOneManagerWhileItLives();
    void PanelsShowTheStateAfterTheLastFolder();
    void APanelThatFailsLaterIsTakenOut();
    void APanelStandsInATabUnderItsName();
    void AMissingPanelSaysSo();
    void AMissingPanelIsReportedUntilItComes();
    void APageMovesToItsNewPlace();
    void APanelThatIsGoneIsLeftOut();
    void TheTableOfPanelsListsThem();
    void TitlesAreInTheLanguageOfTheProgram();

private:
    void LoadAll(TestPanels *manager, bool complete = true);

    QTemporaryDir m_dataHome;
};

void TestUIManagerBase::initTestCase()
{
    QVERIFY(m_dataHome.isValid());
    qputenv("XDG_DATA_HOME", m_dataHome.path().toLocal8Bit());
    qputenv("GLOBALUI_PLUGIN_PATH", TEST_PLUGIN_ROOT "::/no/such/folder");
}

/// Loads the test folder into a manager; what can't be loaded is announced.
void TestUIManagerBase::LoadAll(TestPanels *manager, bool complete)
{
    for (const QRegularExpression &warning : TestPanels::Warnings())
        ExpectWarning(warning);
    manager->LoadTestFolder(complete);
}

void TestUIManagerBase::LooksForPluginsWhereTheyAreInstalled()
{
    const QStringList roots = UIManagerBase::PluginRoots();
    QCOMPARE(roots.size(), 5);
    QCOMPARE(roots.at(0), QCoreApplication::applicationDirPath());
    QVERIFY(roots.at(1).startsWith(QFileInfo(QCoreApplication::applicationDirPath()).path() + "/lib"));
    QVERIFY(roots.at(1).endsWith("/globalui"));
    QCOMPARE(roots.at(2), QString(TEST_PLUGIN_ROOT));
    QCOMPARE(roots.at(3), QString("/no/such/folder"));
    QCOMPARE(roots.at(4), m_dataHome.path() + "/globalui");
}

void TestUIManagerBase::LoadsThePanelsItFinds()
{
    TestPanels manager;
    LoadAll(&manager);
    QCOMPARE(manager.Ids(), QList<int>({4, 31, 30}));
    const UIPluginReport report = ReportOf("a_tabpanel.so");
    QVERIFY(report.loaded);
    QCOMPARE(report.id, 4);
    QCOMPARE(report.version, QString("1.2.3"));
    QCOMPARE(report.title, QString());
    QCOMPARE(ReportOf("b_histogrampage.so").title, QString("Histogram(Live)"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(report.filePath, QString(TEST_PLUGIN_ROOT "/plugins/test/ui/a_tabpanel.so"));
    QCOMPARE(ReportOf("l_readme.txt").filePath, QString());
}

void TestUIManagerBase::TellsWhyAPluginIsNotLoaded_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("reason");
    QTest::newRow("id taken") << "d_sameid.so" << 4 << "another plug-in has the id 4 already";
    QTest::newRow("other program") << "e_otherinterface.so" << 40
                                   << "it is a plug-in for another interface: \"some.other.Interface/1\"";
    QTest::newRow("no plug-in") << "f_nometadata.so" << -1
                                << "it is not a plug-in: Failed to extract plugin meta data";
    QTest::newRow("no id") << "g_noid.so" << -1 << "its metadata has no valid \"id\"";
    QTest::newRow("missing symbol") << "h_unresolved.so" << 41 << "AFunctionThatIsNowhere";
    QTest::newRow("no interface") << "i_notapanel.so" << 42 << "its root object is not a panel";
    QTest::newRow("no widget") << "j_nopanel.so" << 43 << "it has no panel";
    QTest::newRow("later interface") << "m_otherversion.so" << 44
                                     << "it was built for the interface \"globalui.UIPlugin/2\", but this program has "
                                        "\"globalui.UIPlugin/1\": build it anew";
    QTest::newRow("later Qt") << "n_otherqt.so" << 45
                              << "it was built for Qt 5.99, but this program has Qt 5." + QString(qVersion()).section('.', 1, 1)
                                     + ": build it anew";
    QTest::newRow("constructor throws") << "o_throws.so" << 46
                                        << "it failed when it was made: no lamp is connected";
    QTest::newRow("panel throws") << "p_throwslate.so" << 47 << "it failed when it was made";
    QTest::newRow("first update throws") << "s_throwsinupdate.so" << 49
                                         << "it failed when it was brought up to date: the lamp does not answer";
    QTest::newRow("missing library") << "q_needslibrary.so" << 48 << "liblampnowhere.so.7";
    QTest::newRow("link to nowhere") << "r_brokenlink.so" << -1
                                     << "the file is missing: it is a link to /no/such/folder/panel.so";
    QTest::newRow("text file") << "k_text.so" << -1 << "is not an ELF object";
}

void TestUIManagerBase::TellsWhyAPluginIsNotLoaded()
{
    QFETCH(QString, file);
    QFETCH(int, id);
    QFETCH(QString, reason);
    TestPanels manager;
    LoadAll(&manager);
    const UIPluginReport report = ReportOf(file);
    QVERIFY(!report.loaded);
    QCOMPARE(report.id, id);
    QVERIFY2(report.reason.contains(reason), qPrintable(report.reason));
}

void TestUIManagerBase::ATabThatNoPageAsksForIsReported()
{
    {
        TestPanels manager;
        manager.SetTabIds({ 5, 6 });
        LoadAll(&manager);
        const UIPluginReport report = ReportOf("a_tabpanel.so");
        QVERIFY(report.loaded);
        QCOMPARE(report.reason,
                 QString("no page here has a tab with the id 4; give it the place \"bottom\" and a title"));
        QCOMPARE(ReportOf("b_histogrampage.so").reason, QString()); // a bottom page has its place
    }
    TestPanels manager;
    manager.SetTabIds({ 4 });
    LoadAll(&manager);
    QCOMPARE(ReportOf("a_tabpanel.so").reason, QString());
}

void TestUIManagerBase::AFolderThatIsNotThereLoadsNothing()
{
    TestPanels manager;
    manager.LoadUIPluginAndInitUI("plugins/nowhere/ui", nullptr, true);
    QCOMPARE(manager.Ids(), QList<int>());
}

void TestUIManagerBase::AnIdBelongsToOneManagerWhileItLives()
{
    auto first = std::make_unique<TestPanels>();
    LoadAll(first.get());
    TestPanels second;
    for (const char *file : {"a_tabpanel", "b_histogrampage", "c_calibrationpage"})
        ExpectWarning(
            QRegularExpression(QString("%1\\.so is not loaded: another plug-in has the id").arg(file)));
    LoadAll(&second);
    QCOMPARE(second.Ids(), QList<int>());

    first.reset();
    LoadAll(&second);
    QCOMPARE(second.Ids(), QList<int>({4, 31, 30}));
}

void TestUIManagerBase::PanelsShowTheStateAfterTheLastFolder()
{
    TestPanels manager;
    LoadAll(&manager, false);
    QCOMPARE(manager.Panel(4)->property("updates").toInt(), 0);
    manager.LoadUIPluginAndInitUI("plugins/nowhere/ui", nullptr, true);
    QCOMPARE(manager.Panel(4)->property("updates").toInt(), 1);
    QCOMPARE(manager.Panel(30)->property("updates").toInt(), 1);
}

void TestUIManagerBase::APanelThatFailsLaterIsTakenOut()
{
    TestPanels manager;
    LoadAll(&manager);
    const std::unique_ptr<QWidget> panel(manager.GetScrollArea(4, 4, { "Adjustment" }, "Image"));
    auto *tabs = qobject_cast<QTabWidget *>(panel.get());
    QTabWidget bottom;
    manager.SetBottomControlUIPanel(&bottom);
    QCOMPARE(Texts(bottom), QStringList({ "Calibration Table", "Histogram(Live)" }));

    const QPointer<QWidget> widgets[] = { manager.Panel(4), manager.Panel(31) };
    const int updates = manager.Panel(30)->property("updates").toInt();
    for (const QPointer<QWidget> &widget : widgets)
        widget->setProperty("fails", true);
    for (const char *file : { "a_tabpanel", "b_histogrampage" })
        ExpectWarning(QRegularExpression(QString("%1\\.so is not loaded: it failed when it was brought up to date: the "
                                                 "lamp went out").arg(file)));
    manager.UpdateAll();
    QCOMPARE(manager.Ids(), QList<int>({ 30 }));
    QCOMPARE(manager.Panel(30)->property("updates").toInt(), updates + 1);
    QVERIFY(!ReportOf("a_tabpanel.so").loaded);
    QCOMPARE(ReportOf("a_tabpanel.so").reason,
             QString("it failed when it was brought up to date: the lamp went out"));
    QCOMPARE(PageText(*tabs, 0), QString("The panel \"Adjustment\" is not installed."));
    UIManagerBase::UpdateBottomTabWidget(0);
    QCOMPARE(Texts(bottom), QStringList({ "Calibration Table" }));
    manager.UpdateAll(); // they are not asked again
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!widgets[0] && !widgets[1]);
}

void TestUIManagerBase::APanelStandsInATabUnderItsName()
{
    TestPanels manager;
    LoadAll(&manager);
    const std::unique_ptr<QWidget> panel(
        manager.GetScrollArea(4, 6, { "Adjustment", "Process", "Counting" }, "Image"));
    auto *tabs = qobject_cast<QTabWidget *>(panel.get());
    QVERIFY(tabs);
    QCOMPARE(tabs->objectName(), QString("ImageTabWidget"));
    QCOMPARE(Texts(*tabs), QStringList({"Adjustment", "Process", "Counting"}));
    QCOMPARE(PageText(*tabs, 0), QString("tab panel"));
    QCOMPARE(PageText(*tabs, 1), QString("The panel \"Process\" is not installed."));
    QCOMPARE(PageText(*tabs, 2), QString("The panel \"Counting\" is not installed."));
    tabs->show();
    QTRY_VERIFY(manager.Panel(4)->isVisible());
}

void TestUIManagerBase::AMissingPanelSaysSo()
{
    TestPanels manager;
    QTabWidget tabs;
    QWidget *page = manager.GetWidget(9, "Report", "Report");
    tabs.addTab(page, "Report");
    QCOMPARE(PageText(tabs, 0), QString("The panel \"Report\" is not installed."));
    QCOMPARE(manager.GetWidget(9, "Report", "Report"), page);
}

void TestUIManagerBase::AMissingPanelIsReportedUntilItComes()
{
    TestPanels manager;
    delete manager.GetWidget(4, "Adjustment", "Image");
    UIPluginReport report = UIManagerBase::PluginReports().last();
    QCOMPARE(report.filePath, QString());
    QCOMPARE(report.id, 4);
    QCOMPARE(report.title, QString("Adjustment"));
    QVERIFY(!report.loaded);
    QCOMPARE(report.reason, QString("no plug-in brings this panel"));
    LoadAll(&manager);
    QVERIFY(!UIManagerBase::PluginReports().last().filePath.isEmpty());
}

void TestUIManagerBase::APageMovesToItsNewPlace()
{
    TestPanels manager;
    LoadAll(&manager);
    const QStringList names = {"Adjustment", "Process", "Counting"};
    const std::unique_ptr<QWidget> first(manager.GetScrollArea(4, 6, names, "Image"));
    const std::unique_ptr<QWidget> second(manager.GetScrollArea(4, 6, names, "Image"));
    QCOMPARE(qobject_cast<QTabWidget *>(first.get())->count(), 0);
    QCOMPARE(PageText(*qobject_cast<QTabWidget *>(second.get()), 0), QString("tab panel"));
}

void TestUIManagerBase::APanelThatIsGoneIsLeftOut()
{
    TestPanels manager;
    LoadAll(&manager);
    {
        const std::unique_ptr<QWidget> tabs(manager.GetScrollArea(4, 4, {"Adjustment"}, "Image"));
        QCOMPARE(manager.Ids(), QList<int>({4, 31, 30}));
    }
    QCOMPARE(manager.Ids(), QList<int>({31, 30}));
    QTabWidget tabs;
    tabs.addTab(manager.GetWidget(4, "Adjustment", "Image"), "Adjustment");
    QCOMPARE(PageText(tabs, 0), QString("The panel \"Adjustment\" is not installed."));
}

void TestUIManagerBase::TheTableOfPanelsListsThem()
{
    TestPanels manager;
    LoadAll(&manager);
    QTableWidget table(1, 3);
    manager.AddUIConfigItem(&table, 1);
    QCOMPARE(table.rowCount(), 4);
    QCOMPARE(table.item(1, 0)->text(), QString("4"));
    QCOMPARE(table.item(2, 0)->text(), QString("31"));
    QCOMPARE(table.item(2, 1)->text(), QString("Histogram(Live)"));
    QCOMPARE(table.item(1, 2)->text(), QString("1.2.3"));
}

void TestUIManagerBase::TitlesAreInTheLanguageOfTheProgram()
{
    const OneTitle language;
    TestPanels manager;
    LoadAll(&manager);
    QCOMPARE(ReportOf("b_histogrampage.so").title, QString("Häufigkeit (live)"));
    QCOMPARE(ReportOf("c_calibrationpage.so").title, QString("Calibration Table")); // nobody translated it
    QCOMPARE(ReportOf("o_throws.so").title, QString("Test 46"));
    QTabWidget bottom;
    manager.SetBottomControlUIPanel(&bottom);
    QCOMPARE(Texts(bottom).last(), QString("Häufigkeit (live)"));
    QTableWidget table(0, 3);
    manager.AddUIConfigItem(&table, 0);
    QCOMPARE(table.item(1, 1)->text(), QString("Häufigkeit (live)"));
}

GUARDED_TEST_MAIN(TestUIManagerBase)
#include "tst_uimanagerbase.moc"
