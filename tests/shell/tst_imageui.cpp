// SPDX-License-Identifier: GPL-3.0-or-later
#include "imageui.h"
#include "guardedtest.h"
#include "imagenavigateui.h"
#include "imagestackedwidget.h"
#include "multiimagewidget.h"
#include "panelbench.h"

#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

const QList<int> imageIds{ 4, 5, 6 };

} // namespace

/// The control panels of opened pictures: their page, their tabs, and the centre that goes with them.
class ImageUITest : public GuardedTest
{
    Q_OBJECT

private slots:
    void imagePage();
    void imagePageTwice();
    void imageTabIsStored();
    void imageUpdate_data();
    void imageUpdate();
    void imagePanelsRestWhileCounting();
    void imageCentreDisabledWithoutImages_data();
    void imageCentreDisabledWithoutImages();
    void imageCentre();
};

void ImageUITest::imagePage()
{
    Bench<ImageUI> bench;
    bench.Load();
    bench.services.uiConfig.leftUIIndex = 1;
    CallLog::Clear();
    QWidget *page = bench.manager->GetControlScrollArea();
    QVERIFY(!page->parent());
    auto *column = qobject_cast<QVBoxLayout *>(page->layout());
    QVERIFY(column);
    QCOMPARE(column->contentsMargins(), QMargins(0, 10, 0, 0));
    QVERIFY(qobject_cast<ImageNavigateUI *>(column->itemAt(0)->widget()));
    QTabWidget *tabs = bench.Place(page);
    QCOMPARE(column->itemAt(1)->widget(), static_cast<QWidget *>(tabs));
    QCOMPARE(TabTexts(tabs), QStringList({ "Adjustment", "Process", "Automatic Counting" }));
    QCOMPARE(tabs->currentIndex(), 1);
    QCOMPARE(CallLog::Calls(), QStringList()); // restoring is no choice of the user's
    for (int i = 0; i < 3; ++i)
        QVERIFY(tabs->widget(i)->isAncestorOf(bench.Panel(4 + i)));
}

void ImageUITest::imagePageTwice()
{
    Bench<ImageUI> bench;
    bench.Load();
    bench.services.uiConfig.leftUIIndex = 2;
    QWidget *firstPage = bench.manager->GetControlScrollArea();
    QTabWidget *first = bench.Place(firstPage);
    CallLog::Clear();
    QWidget *secondPage = bench.manager->GetControlScrollArea();
    QTabWidget *second = bench.Place(secondPage);
    QVERIFY(first != second && firstPage != secondPage);
    QCOMPARE(CallLog::Calls(), QStringList()); // though the first one lost its panels
    QCOMPARE(TabTexts(second), QStringList({ "Adjustment", "Process", "Automatic Counting" }));
    QCOMPARE(second->currentIndex(), 2);
    for (int i = 0; i < 3; ++i)
        QVERIFY(second->widget(i)->isAncestorOf(bench.Panel(4 + i)));
    // Each has a bar of its own; the last one is kept up to date.
    auto *firstBar = firstPage->findChild<ImageNavigateUI *>();
    auto *secondBar = secondPage->findChild<ImageNavigateUI *>();
    QVERIFY(firstBar && secondBar && firstBar != secondBar);
    FakeCameraMainManager camera;
    emit bench.services.uiConfig.signalUpdateImageControlUI();
    QVERIFY(secondBar->findChild<QPushButton *>("pushButtonCamera")->isEnabled());
    second->setCurrentIndex(1);
    first->addTab(new QWidget, "Other");
    QCOMPARE(CallLog::Calls(), QStringList("UIConfigManager::SetLeftUIIndex(1)"));
}

void ImageUITest::imageTabIsStored()
{
    Bench<ImageUI> bench;
    QTabWidget *tabs = bench.Place(bench.manager->GetControlScrollArea());
    CallLog::Clear();
    tabs->setCurrentIndex(2);
    QCOMPARE(CallLog::Calls(), QStringList("UIConfigManager::SetLeftUIIndex(2)"));
}

void ImageUITest::imageUpdate_data()
{
    QTest::addColumn<bool>("imageEnabled");
    QTest::addColumn<bool>("is32Bit");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("image") << true << false << true;
    QTest::newRow("32 bit") << true << true << false;
    QTest::newRow("none") << false << false << false;
}

void ImageUITest::imageUpdate()
{
    QFETCH(bool, imageEnabled);
    QFETCH(bool, is32Bit);
    QFETCH(bool, enabled);
    Bench<ImageUI> bench;
    bench.Load();
    QWidget *page = bench.Place(bench.manager->GetControlScrollArea())->parentWidget();
    auto *back = page->findChild<QPushButton *>("pushButtonCamera");
    FakeCameraMainManager camera;
    bench.services.global.imageEnabled = imageEnabled;
    bench.services.active.is32BitMat = is32Bit;
    TakePanelUpdates();
    QVERIFY(!back->isEnabled());
    emit bench.services.uiConfig.signalUpdateImageControlUI();
    QCOMPARE(TakePanelUpdates(), QVector<int>({ 6, 5, 4 }));
    QCOMPARE(bench.Disabled(imageIds), enabled ? QSet<int>() : QSet<int>({ 4, 5, 6 }));
    QVERIFY(back->isEnabled());
}

void ImageUITest::imagePanelsRestWhileCounting()
{
    Bench<ImageUI> bench;
    bench.Load();
    bench.manager->CreateCenterWidget(&bench.window);
    bench.manager->slotUpdateImageControlUI();
    QCOMPARE(bench.Disabled(imageIds), QSet<int>({ 4, 5, 6 }));
    TakePanelUpdates();
    bench.services.autoCount.counting = true;
    bench.services.global.imageEnabled = true;
    bench.services.active.senImage = true;
    bench.manager->slotUpdateImageControlUI();
    QCOMPARE(TakePanelUpdates(), QVector<int>());
    QCOMPARE(bench.Disabled(imageIds), QSet<int>({ 4, 5, 6 }));
    // The page's own bars are refreshed all the same.
    QVERIFY(!bench.manager->GetImageStack()->findChild<QWidget *>("pushButtonImageInfo")->isHidden());
}

void ImageUITest::imageCentreDisabledWithoutImages_data()
{
    QTest::addColumn<bool>("mainOpen");
    QTest::addColumn<bool>("compareOpen");
    QTest::newRow("none") << false << false;
    QTest::newRow("main") << true << false;
    QTest::newRow("compare") << false << true;
    QTest::newRow("both") << true << true;
}

void ImageUITest::imageCentreDisabledWithoutImages()
{
    QFETCH(bool, mainOpen);
    QFETCH(bool, compareOpen);
    Bench<ImageUI> bench;
    bench.manager->CreateCenterWidget(&bench.window);
    bench.services.main.nonImage = !mainOpen;
    bench.services.compare.nonImage = !compareOpen;
    bench.manager->slotUpdateImageControlUI();
    QCOMPARE(bench.manager->GetImageStack()->parentWidget()->isEnabled(), mainOpen || compareOpen);
}

void ImageUITest::imageCentre()
{
    Bench<ImageUI> bench;
    QWidget *wrapper = bench.manager->CreateCenterWidget(&bench.window);
    QVERIFY(qobject_cast<MultiImageWidget *>(wrapper));
    auto *stack = qobject_cast<QStackedWidget *>(bench.manager->GetImageStack()->parentWidget());
    QVERIFY(stack);
    QCOMPARE(stack->count(), 2);
    QVERIFY(stack->widget(1)->inherits("ImageSpectrumStackedWidget"));
    QCOMPARE(wrapper->layout()->itemAt(0)->widget(), static_cast<QWidget *>(stack));
    emit bench.services.active.signalCurrentFileFrameNumber(12);
    QCOMPARE(wrapper->findChild<QLabel *>("labelPageInfo")->text(), QString("1/12"));
    emit bench.services.active.signalCurrentFrame(4);
    QCOMPARE(wrapper->findChild<QLabel *>("labelPageInfo")->text(), QString("5/12"));
}

GUARDED_TEST_MAIN(ImageUITest)
#include "tst_imageui.moc"
