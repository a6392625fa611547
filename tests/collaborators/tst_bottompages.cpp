// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include "testpanels.h"
#include "viewcodes.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTabWidget>

#include <memory>

namespace {

QStringList Texts(const QTabWidget &tabs)
{
    QStringList texts;
    for (int i = 0; i < tabs.count(); ++i)
        texts << tabs.tabText(i);
    return texts;
}

} // namespace

/// Plug-in pages beside "File Preview": "Calibration Table" for camera and image, "Histogram(Live)" for
/// the camera only.
class TestBottomPages : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("GLOBALUI_PLUGIN_PATH", TEST_PLUGIN_ROOT); }
    void init() override;
    void cleanup() override;
    void BottomPagesStandInTheOrderOfTheirIds();
    void BottomPagesFollowTheLeftPage_data();
    void BottomPagesFollowTheLeftPage();
    void TheCurrentBottomPageStaysCurrent();
    void ABottomPageTakenOutComesBackCurrent();
    void AnotherChoiceIsKeptWhenABottomPageComesBack();
    void AnUpdateThatChangesNothingIsSilent();
    void ABottomPageIsBroughtToTheFrontByItsText();
    void PagesMoveToAnotherTabWidget();
    void PagesGoWithTheirTabWidget();

private:
    std::unique_ptr<TestPanels> m_manager;
    std::unique_ptr<QTabWidget> m_tabs;
};

void TestBottomPages::init()
{
    StartGuard();
    for (const QRegularExpression &warning : TestPanels::Warnings())
        ExpectWarning(warning);
    m_manager = std::make_unique<TestPanels>();
    m_manager->LoadTestFolder(true);
    m_tabs = std::make_unique<QTabWidget>();
    m_tabs->addTab(new QLabel("files"), "File Preview");
    m_manager->SetBottomControlUIPanel(m_tabs.get());
}

void TestBottomPages::cleanup()
{
    m_tabs.reset();
    m_manager.reset();
    EndGuard();
}

void TestBottomPages::BottomPagesStandInTheOrderOfTheirIds()
{
    QCOMPARE(Texts(*m_tabs), QStringList({"File Preview", "Calibration Table", "Histogram(Live)"}));
    QCOMPARE(m_tabs->widget(1), m_manager->Panel(30));
    QCOMPARE(m_tabs->widget(2), m_manager->Panel(31));
    QCOMPARE(m_tabs->currentIndex(), 0);
}

void TestBottomPages::BottomPagesFollowTheLeftPage_data()
{
    QTest::addColumn<int>("leftPage");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("camera") << int(CameraControlPage)
                            << QStringList({"File Preview", "Calibration Table", "Histogram(Live)"});
    QTest::newRow("image") << int(ImageControlPage) << QStringList({"File Preview", "Calibration Table"});
    QTest::newRow("files") << int(FileSystemPage) << QStringList({"File Preview", "Calibration Table"});
}

void TestBottomPages::BottomPagesFollowTheLeftPage()
{
    QFETCH(int, leftPage);
    QFETCH(QStringList, texts);
    UIManagerBase::UpdateBottomTabWidget(leftPage);
    QCOMPARE(Texts(*m_tabs), texts);
    UIManagerBase::UpdateBottomTabWidget(CameraControlPage);
    QCOMPARE(Texts(*m_tabs), QStringList({"File Preview", "Calibration Table", "Histogram(Live)"}));
}

void TestBottomPages::TheCurrentBottomPageStaysCurrent()
{
    m_tabs->setCurrentWidget(m_manager->Panel(30));
    QSignalSpy changes(m_tabs.get(), SIGNAL(currentChanged(int)));
    UIManagerBase::UpdateBottomTabWidget(ImageControlPage);
    UIManagerBase::UpdateBottomTabWidget(CameraControlPage);
    QCOMPARE(m_tabs->tabText(m_tabs->currentIndex()), QString("Calibration Table"));
    QCOMPARE(changes.count(), 0);
}

void TestBottomPages::ABottomPageTakenOutComesBackCurrent()
{
    m_tabs->setCurrentIndex(2);
    QSignalSpy changes(m_tabs.get(), SIGNAL(currentChanged(int)));

    UIManagerBase::UpdateBottomTabWidget(ImageControlPage);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.takeFirst().at(0).toInt(), 0);
    QCOMPARE(m_tabs->currentIndex(), 0);

    UIManagerBase::UpdateBottomTabWidget(CameraControlPage);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.takeFirst().at(0).toInt(), 2);
    QCOMPARE(m_tabs->tabText(m_tabs->currentIndex()), QString("Histogram(Live)"));
}

void TestBottomPages::AnotherChoiceIsKeptWhenABottomPageComesBack()
{
    m_tabs->setCurrentIndex(2);
    UIManagerBase::UpdateBottomTabWidget(ImageControlPage);
    m_tabs->setCurrentWidget(m_manager->Panel(30));
    UIManagerBase::UpdateBottomTabWidget(CameraControlPage);
    QCOMPARE(m_tabs->tabText(m_tabs->currentIndex()), QString("Calibration Table"));
}

void TestBottomPages::AnUpdateThatChangesNothingIsSilent()
{
    m_tabs->setCurrentIndex(2);
    QSignalSpy changes(m_tabs.get(), SIGNAL(currentChanged(int)));
    UIManagerBase::UpdateBottomTabWidget(CameraControlPage);
    QCOMPARE(changes.count(), 0);
    QCOMPARE(m_tabs->currentIndex(), 2);
}

void TestBottomPages::ABottomPageIsBroughtToTheFrontByItsText()
{
    m_manager->setBottomPanelCurrentIndex("Calibration Table");
    QCOMPARE(m_tabs->currentIndex(), 1);
    m_manager->setBottomPanelCurrentIndex("Class Counting"); // no such page
    QCOMPARE(m_tabs->currentIndex(), 1);
    TestPanels withoutTabs;
    withoutTabs.setBottomPanelCurrentIndex("Histogram(Live)");
    QCOMPARE(m_tabs->currentIndex(), 1);
}

void TestBottomPages::PagesMoveToAnotherTabWidget()
{
    UIManagerBase::UpdateBottomTabWidget(ImageControlPage);
    QTabWidget others;
    m_manager->SetBottomControlUIPanel(&others);
    QCOMPARE(Texts(*m_tabs), QStringList({"File Preview"}));
    QCOMPARE(Texts(others), QStringList({"Calibration Table"})); // still beside the image page
    UIManagerBase::UpdateBottomTabWidget(CameraControlPage);
    QCOMPARE(Texts(*m_tabs), QStringList({"File Preview"}));
    QCOMPARE(Texts(others), QStringList({"Calibration Table", "Histogram(Live)"}));
    m_manager->SetBottomControlUIPanel(&others);
    QCOMPARE(Texts(others), QStringList({"Calibration Table", "Histogram(Live)"}));
}

void TestBottomPages::PagesGoWithTheirTabWidget()
{
    UIManagerBase::UpdateBottomTabWidget(ImageControlPage); // one page is out of sight
    m_tabs.reset();
    QCOMPARE(m_manager->Ids(), QList<int>({4}));
    UIManagerBase::UpdateBottomTabWidget(CameraControlPage);
}

GUARDED_TEST_MAIN(TestBottomPages)
#include "tst_bottompages.moc"
