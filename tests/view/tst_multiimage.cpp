// SPDX-License-Identifier: GPL-3.0-or-later
#include "multiimagetoolui.h"
#include "multiimagewidget.h"

#include "displayscale.h"
#include "fakeservices.h"
#include "guardedtest.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScrollBar>
#include <QSignalSpy>

class TestMultiImage : public GuardedTest
{
    Q_OBJECT

private slots:
    void toolForm();
    void toolHeight_data();
    void toolHeight();
    void frameCountSetsTheRange();
    void currentFrameShowsOnTheLabel_data();
    void currentFrameShowsOnTheLabel();
    void userMovesTheScrollBar();
    void setFrameOfTheSameValueIsNotAnnounced();
    void widgetForm();
    void viewLiesAboveTheBrowser();
    void browserShowsWithTwoFrames_data();
    void browserShowsWithTwoFrames();
    void nextFileStartsAtItsFirstFrame();
    void aShorterFileStartsAtItsFirstFrameToo();
    void theBrowserIsTakenToAFrame();
    void chosenFrameIsShownByTheActiveImage();
    void noImageManagerIsNoTrouble();
};

void TestMultiImage::toolForm()
{
    MultiImageToolUI tool(nullptr);
    QCOMPARE(tool.objectName(), QString("MultiImageToolUI"));
    QCOMPARE(tool.windowTitle(), QString("Form"));
    QCOMPARE(tool.styleSheet(), QString());
    QCOMPARE(tool.width(), 578);
    QCOMPARE(tool.findChild<QScrollBar *>("horizontalScrollBar")->accessibleName(), QString("Frame"));
    auto *row = tool.findChild<QHBoxLayout *>("horizontalLayout");
    QCOMPARE(tool.layout(), row);
    QCOMPARE(row->spacing(), 1);
    QCOMPARE(row->contentsMargins(), QMargins(0, 1, 0, 1));

    auto *bar = tool.findChild<QScrollBar *>("horizontalScrollBar");
    QCOMPARE(row->itemAt(0)->widget(), bar);
    QCOMPARE(bar->orientation(), Qt::Horizontal);
    QCOMPARE(bar->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(bar->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(bar->minimumSize(), QSize(0, 0));

    auto *label = tool.findChild<QLabel *>("labelPageInfo");
    QCOMPARE(row->itemAt(1)->widget(), label);
    QCOMPARE(label->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(label->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(label->minimumSize(), QSize(60, 0));
    QCOMPARE(label->alignment(), Qt::AlignCenter);
    QCOMPARE(label->text(), QString());
}

void TestMultiImage::toolHeight_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("height");
    QTest::newRow("design size") << 1.0 << 15;
    QTest::newRow("twice") << 2.0 << 30;
}

void TestMultiImage::toolHeight()
{
    QFETCH(double, scale);
    QFETCH(int, height);
    const DisplayScale displayScale(scale);
    MultiImageToolUI tool(nullptr);
    QCOMPARE(tool.minimumHeight(), height);
    QCOMPARE(tool.maximumHeight(), height);
}

void TestMultiImage::frameCountSetsTheRange()
{
    MultiImageToolUI tool(nullptr);
    tool.SetFrameCount(12);
    const auto *bar = tool.findChild<QScrollBar *>("horizontalScrollBar");
    QCOMPARE(bar->minimum(), 0);
    QCOMPARE(bar->maximum(), 11);
}

void TestMultiImage::currentFrameShowsOnTheLabel_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");
    QTest::newRow("first of two") << 2 << 0 << "1/2";
    QTest::newRow("first of twelve") << 12 << 0 << "1/12";
    QTest::newRow("last of twelve") << 12 << 11 << "12/12";
    QTest::newRow("one") << 1 << 0 << "1/1";
}

void TestMultiImage::currentFrameShowsOnTheLabel()
{
    QFETCH(int, count);
    QFETCH(int, index);
    QFETCH(QString, text);
    MultiImageToolUI tool(nullptr);
    tool.SetFrameCount(count);
    tool.SetCurrentFrame(index);
    QCOMPARE(tool.findChild<QLabel *>("labelPageInfo")->text(), text);
    QCOMPARE(tool.findChild<QScrollBar *>("horizontalScrollBar")->value(), index);
}

void TestMultiImage::userMovesTheScrollBar()
{
    MultiImageToolUI tool(nullptr);
    tool.SetFrameCount(12);
    tool.SetCurrentFrame(0);
    QSignalSpy chosen(&tool, SIGNAL(SignalScrollbarValueChanged(int)));
    auto *bar = tool.findChild<QScrollBar *>("horizontalScrollBar");
    bar->triggerAction(QScrollBar::SliderSingleStepAdd); // a click on its arrow
    QCOMPARE(chosen.count(), 1);
    QCOMPARE(chosen.last().first().toInt(), 1);
    QCOMPARE(tool.findChild<QLabel *>("labelPageInfo")->text(), QString("2/12"));
    bar->triggerAction(QScrollBar::SliderToMaximum);
    QCOMPARE(chosen.last().first().toInt(), 11);
    QCOMPARE(tool.findChild<QLabel *>("labelPageInfo")->text(), QString("12/12"));
}

void TestMultiImage::setFrameOfTheSameValueIsNotAnnounced()
{
    MultiImageToolUI tool(nullptr);
    tool.SetFrameCount(12);
    QSignalSpy chosen(&tool, SIGNAL(SignalScrollbarValueChanged(int)));
    tool.SetCurrentFrame(0);
    QCOMPARE(chosen.count(), 0);
    tool.SetCurrentFrame(5);
    QCOMPARE(chosen.count(), 1);
    QCOMPARE(chosen.last().first().toInt(), 5);
}

void TestMultiImage::widgetForm()
{
    MultiImageWidget widget(nullptr);
    QCOMPARE(widget.contentsMargins(), QMargins());
    auto *layout = qobject_cast<QVBoxLayout *>(widget.layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 1);
    const auto *tool = qobject_cast<MultiImageToolUI *>(layout->itemAt(0)->widget());
    QVERIFY(tool);
    QCOMPARE(tool->parentWidget(), &widget);
    QVERIFY(tool->isHidden());
}

void TestMultiImage::viewLiesAboveTheBrowser()
{
    MultiImageWidget widget(nullptr);
    auto *view = new QWidget; // reparented by the layout
    widget.SetView(view);
    QCOMPARE(widget.layout()->count(), 2);
    QCOMPARE(widget.layout()->itemAt(0)->widget(), view);
    QCOMPARE(view->parentWidget(), &widget);
    QVERIFY(qobject_cast<MultiImageToolUI *>(widget.layout()->itemAt(1)->widget()));
}

void TestMultiImage::browserShowsWithTwoFrames_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("shown");
    QTest::newRow("no frame") << 0 << false;
    QTest::newRow("one frame") << 1 << false;
    QTest::newRow("two frames") << 2 << true;
    QTest::newRow("a long sequence") << 5000 << true;
}

void TestMultiImage::browserShowsWithTwoFrames()
{
    QFETCH(int, count);
    QFETCH(bool, shown);
    FakeServices services;
    MultiImageWidget widget(nullptr);
    widget.SetView(new QWidget); // reparented by the layout
    const auto *tool = widget.findChild<MultiImageToolUI *>();
    QVERIFY(connect(&services.mainImage, SIGNAL(signalCurrentFileFrameNumber(int)),
                    &widget, SLOT(SlotCurrentFileFrameNumber(int))));
    emit services.mainImage.signalCurrentFileFrameNumber(count);
    QCOMPARE(!tool->isHidden(), shown);
    QCOMPARE(widget.children().last(), tool); // raised: in front of the view
    QCOMPARE(widget.findChild<QLabel *>("labelPageInfo")->text(), QString("1/%1").arg(count));
    QCOMPARE(CallLog::Calls(), QStringList());
}

void TestMultiImage::nextFileStartsAtItsFirstFrame()
{
    FakeServices services;
    MultiImageWidget widget(nullptr);
    widget.SlotCurrentFileFrameNumber(12);
    auto *bar = widget.findChild<QScrollBar *>("horizontalScrollBar");
    bar->setValue(7);
    CallLog::Clear();
    widget.SlotCurrentFileFrameNumber(30);
    QCOMPARE(bar->value(), 0);
    QCOMPARE(widget.findChild<QLabel *>("labelPageInfo")->text(), QString("1/30"));
    QCOMPARE(CallLog::Calls(), QStringList("ImageManager::SetImage(0)"));

    widget.SlotCurrentFileFrameNumber(1);
    QVERIFY(widget.findChild<MultiImageToolUI *>()->isHidden());
}

void TestMultiImage::aShorterFileStartsAtItsFirstFrameToo()
{
    FakeServices services;
    MultiImageWidget widget(nullptr);
    widget.SlotCurrentFileFrameNumber(12);
    auto *bar = widget.findChild<QScrollBar *>("horizontalScrollBar");
    bar->setValue(11);
    CallLog::Clear();
    widget.SlotCurrentFileFrameNumber(5);
    QCOMPARE(bar->maximum(), 4);
    QCOMPARE(bar->value(), 0);
    QCOMPARE(widget.findChild<QLabel *>("labelPageInfo")->text(), QString("1/5"));
    // The bar ends before the frame it stood at, and then goes to the first.
    QCOMPARE(CallLog::Calls(), QStringList({ "ImageManager::SetImage(4)", "ImageManager::SetImage(0)" }));
}

void TestMultiImage::theBrowserIsTakenToAFrame()
{
    FakeServices services;
    MultiImageWidget widget(nullptr);
    widget.SlotCurrentFileFrameNumber(12);
    widget.SlotCurrentFrame(7);
    QCOMPARE(widget.findChild<QScrollBar *>("horizontalScrollBar")->value(), 7);
    QCOMPARE(widget.findChild<QLabel *>("labelPageInfo")->text(), QString("8/12"));
}

void TestMultiImage::chosenFrameIsShownByTheActiveImage()
{
    FakeServices services;
    MultiImageWidget widget(nullptr);
    widget.SlotCurrentFileFrameNumber(12);
    widget.findChild<QScrollBar *>("horizontalScrollBar")->setValue(7);
    QCOMPARE(CallLog::Calls(), QStringList("ImageManager::SetImage(7)"));
    QCOMPARE(DebugLines(), QStringList("SlotScrollValueChanged:7"));
}

void TestMultiImage::noImageManagerIsNoTrouble()
{
    FakeServices services;
    services.global.activeImageManager = nullptr;
    MultiImageWidget widget(nullptr);
    widget.SlotScrollValueChanged(3);
    QCOMPARE(CallLog::Calls(), QStringList());
}

GUARDED_TEST_MAIN(TestMultiImage)
#include "tst_multiimage.moc"
