// SPDX-License-Identifier: GPL-3.0-or-later
#include "comparison.h"
#include "guardedtest.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

/// One half of the compare frame: the picture that it borrows, its name and its zoom.
class TestCompareChildFrame : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase() { StartOpenGLDriver(); }

    void halfForm_data();
    void halfForm();
    void halvesStartEmpty();
    void attachShowsTheFrame();
    void attachFitsThePicture();
    void attachWithoutAnInfoSource();
    void nameAndResetComeFromTheInfoSource();
    void zoomPercent_data();
    void zoomPercent();
    void zoomButtons_data();
    void zoomButtons();
    void attachInThePlaceOfAnotherFrame();
    void frameThatGoesIsForgotten();
    void clickChecksAHalf();
    void clickOnThePictureChecksItsHalf();
    void clickOnAnEmptyHalf();
};

void TestCompareChildFrame::halfForm_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QRect>("name");
    QTest::addColumn<QRect>("percent");
    QTest::newRow("design size") << 1.0 << QRect(20, 30, 1000, 30) << QRect(20, 60, 150, 30);
    QTest::newRow("twice") << 2.0 << QRect(20, 60, 1000, 60) << QRect(20, 120, 150, 60);
}

void TestCompareChildFrame::halfForm()
{
    QFETCH(double, scale);
    QFETCH(QRect, name);
    QFETCH(QRect, percent);
    const DisplayScale displayScale(scale);
    CompareFrame compare;
    const Half half(compare.findChild<CompareChildFrame *>());
    auto *layout = qobject_cast<QVBoxLayout *>(half.child->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(half.name->geometry(), name);
    QVERIFY(!half.name->isEnabled());
    QCOMPARE(half.name->styleSheet(), plainStyle);
    QCOMPARE(half.percent->geometry(), percent);
    QCOMPARE(half.percent->text(), QString());
    QCOMPARE(half.zoomUI->parentWidget(), half.child);
}

void TestCompareChildFrame::halvesStartEmpty()
{
    Comparison c;
    QVERIFY(!c.compare.GetLeftFrame());
    for (const Half &half : {c.left, c.right}) {
        QVERIFY(!half.child->GetFrame());
        QVERIFY(!half.View());
        QVERIFY(!half.name->isChecked());
        QCOMPARE(half.name->text(), QString());
    }
    c.compare.DetachFrames(); // nothing to let go
}

void TestCompareChildFrame::attachShowsTheFrame()
{
    Comparison c;
    c.leftFrame->hide();
    c.Attach();
    QCOMPARE(c.compare.GetLeftFrame(), c.leftFrame);
    QCOMPARE(c.leftFrame->parentWidget(), c.left.child);
    QVERIFY(c.left.child->layout()->indexOf(c.leftFrame) >= 0);
    QVERIFY(!c.leftFrame->isHidden());
    QCOMPARE(c.left.name->text(), QString("left"));
    QCOMPARE(c.right.name->text(), QString("right"));

    const QObjectList children = c.left.child->children();
    QVERIFY(children.indexOf(c.leftFrame) < children.indexOf(c.left.zoomUI));
    QVERIFY(children.indexOf(c.left.zoomUI) < children.indexOf(c.left.percent));
    QVERIFY(children.indexOf(c.left.percent) < children.indexOf(c.left.name));
}

void TestCompareChildFrame::attachFitsThePicture()
{
    Comparison c;
    QVERIFY(c.Show());
    DrawViewBase *view = c.leftFrame->GetDrawFrame()->GetDrawView();
    view->slotPaintPreview(GreyPicture({800, 600}));
    view->slotSetScaleFactor(3.0);
    c.compare.AttachLeftFrame(c.leftFrame, nullptr, "left");
    QCOMPARE(c.leftFrame->size(), QSize(400, 400));
    QCOMPARE(c.left.Scale(), 0.5); // 400 of 800
    QCOMPARE(c.left.percent->text(), QString("50.00 %"));
}

void TestCompareChildFrame::attachWithoutAnInfoSource()
{
    Comparison c;
    c.compare.AttachLeftFrame(c.leftFrame, nullptr, QString());
    QCOMPARE(c.left.name->text(), QString());
    emit c.services.mainImage.signalUpdateFileNameAndSize("somebody else's");
    QCOMPARE(c.left.name->text(), QString());
}

void TestCompareChildFrame::nameAndResetComeFromTheInfoSource()
{
    Comparison c;
    c.Attach();
    emit c.services.mainImage.signalUpdateFileNameAndSize("cells.tif 800x600");
    QCOMPARE(c.left.name->text(), QString("cells.tif 800x600"));
    QCOMPARE(c.right.name->text(), QString("right"));
    c.left.percent->setText("50.00 %");
    c.right.percent->setText("60.00 %");
    emit c.services.mainImage.signalResetImageInfo();
    QCOMPARE(c.left.name->text(), QString());
    QCOMPARE(c.left.percent->text(), QString());
    QCOMPARE(c.right.name->text(), QString("right"));
    QCOMPARE(c.right.percent->text(), QString("60.00 %"));
}

void TestCompareChildFrame::zoomPercent_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QString>("text");
    QTest::newRow("one to one") << 1.0 << "100.00 %";
    QTest::newRow("largest") << 32.0 << "3200.00 %";
    QTest::newRow("a third") << 1.0 / 3 << "33.33 %";
    QTest::newRow("double precision") << 167772.17 << "16777217.00 %";
}

void TestCompareChildFrame::zoomPercent()
{
    QFETCH(double, scale);
    QFETCH(QString, text);
    Comparison c;
    c.Attach();
    emit c.left.View()->signalScaleFactorChanged(scale);
    QCOMPARE(c.left.percent->text(), text);
    QVERIFY(c.right.percent->text() != text);
}

void TestCompareChildFrame::zoomButtons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<double>("scale");
    QTest::newRow("in") << "pushButtonZoomIn" << 2.0;
    QTest::newRow("out") << "pushButtonZoomOut" << 0.5;
    QTest::newRow("one to one") << "pushButton1vs1" << 1.0;
    QTest::newRow("fit") << "pushButtonFit" << 0.5;
}

void TestCompareChildFrame::zoomButtons()
{
    QFETCH(QString, button);
    QFETCH(double, scale);
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    const bool startsFitted = button == "pushButton1vs1";
    if (!startsFitted)
        c.ZoomToPixels();
    const double rightScale = c.right.Scale();
    QTest::mouseClick(c.left.zoomUI->findChild<QPushButton *>(button), Qt::LeftButton);
    QCOMPARE(c.left.Scale(), scale);
    QCOMPARE(c.right.Scale(), rightScale); // the buttons zoom their own half alone
}

void TestCompareChildFrame::attachInThePlaceOfAnotherFrame()
{
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    // The left picture moves to the right half, another one takes its place.
    GPUDrawFrame third(nullptr);
    third.GetDrawFrame()->GetDrawView()->slotPaintPreview(GreyPicture({800, 600}));
    c.compare.AttachLeftFrame(&third, nullptr, "third");
    c.compare.AttachRightFrame(c.leftFrame, &c.services.mainImage, "moved");
    QCOMPARE(c.left.child->GetFrame(), &third);
    QCOMPARE(c.right.child->GetFrame(), c.leftFrame);
    QVERIFY(c.right.child->layout()->indexOf(c.rightFrame) < 0);

    emit c.leftFrame->GetDrawFrame()->GetDrawView()->signalScaleFactorChanged(7);
    QCOMPARE(c.right.percent->text(), QString("700.00 %"));
    QVERIFY(c.left.percent->text() != "700.00 %");
    emit c.services.mainImage.signalUpdateFileNameAndSize("cells.tif");
    QCOMPARE(c.left.name->text(), QString("third"));
    QCOMPARE(c.right.name->text(), QString("cells.tif"));
    c.compare.DetachFrames();
    third.setParent(nullptr);
}

void TestCompareChildFrame::frameThatGoesIsForgotten()
{
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    delete c.rightFrame;
    QVERIFY(!c.right.child->GetFrame());
    QVERIFY(!c.right.View());
    c.left.Wheel(notch);
    c.left.Drag(QPoint(5, 5));
    c.compare.resize(700, 300);
    c.right.Click();
    QVERIFY(c.right.name->isChecked());
    c.compare.DetachFrames();
}

void TestCompareChildFrame::clickChecksAHalf()
{
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    SceneReceiver pressed;
    connect(c.right.child, &CompareChildFrame::signalFramePressed, &pressed, &SceneReceiver::slotSetGraphicsScene);
    QSignalSpy checked(c.right.child, SIGNAL(signalFrameChecked(QObject *)));
    for (int click = 1; click <= 2; ++click) { // the second one changes nothing
        c.right.child->setFocus();
        QTest::mouseClick(c.right.percent, Qt::LeftButton); // lies on the half and lets the press through
        QCOMPARE(pressed.scenes.size(), click);
        QCOMPARE(pressed.scenes.last(), c.right.View()->scene());
        QCOMPARE(checked.count(), click);
        QCOMPARE(checked.last().first().value<QObject *>(), c.right.child);
        QVERIFY(c.right.name->isChecked());
        QCOMPARE(c.right.name->styleSheet(), checkedStyle);
        QVERIFY(!c.left.name->isChecked());
        QCOMPARE(c.left.name->styleSheet(), plainStyle);
    }
    c.left.Click();
    QVERIFY(c.left.name->isChecked());
    QVERIFY(!c.right.name->isChecked());
}

void TestCompareChildFrame::clickOnThePictureChecksItsHalf()
{
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    SceneReceiver pressed;
    connect(c.right.child, &CompareChildFrame::signalFramePressed, &pressed, &SceneReceiver::slotSetGraphicsScene);
    QTest::mouseClick(c.right.View()->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 150));
    QVERIFY(c.right.name->isChecked());
    QVERIFY(!c.left.name->isChecked());
    QCOMPARE(pressed.scenes.size(), 1);
}

void TestCompareChildFrame::clickOnAnEmptyHalf()
{
    Comparison c;
    QVERIFY(c.Show());
    SceneReceiver pressed;
    connect(c.right.child, &CompareChildFrame::signalFramePressed, &pressed, &SceneReceiver::slotSetGraphicsScene);
    c.right.Click();
    QVERIFY(c.right.name->isChecked());
    QCOMPARE(pressed.scenes.size(), 0); // there is no scene to hand out
}

GUARDED_TEST_MAIN(TestCompareChildFrame)
#include "tst_comparechildframe.moc"
