// SPDX-License-Identifier: GPL-3.0-or-later
#include "comparechildframe.h"
#include "compareframe.h"

#include "displayscale.h"
#include "drawviewfixture.h"
#include "guardedtest.h"
#include "zoomui.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QWheelEvent>

namespace {

const QString plainStyle = "color: black;";
const QString checkedStyle = "color: rgb(255, 190, 0);";
constexpr int notch = 120;

/// A compare frame whose Ctrl key is in the test's hand.
class KeyedCompareFrame : public CompareFrame
{
public:
    bool ctrlPressed = false;

protected:
    bool IsLinkSuspended() const override { return ctrlPressed; }
};

/// One half and what stands in it.
struct Half
{
    explicit Half(CompareChildFrame *half)
        : child(half)
        , name(half->findChild<QCheckBox *>(QString(), Qt::FindDirectChildrenOnly))
        , percent(half->findChild<QLabel *>("scalePercentLabel"))
        , zoomUI(half->findChild<ZoomUI *>())
    {
    }

    DrawViewBase *View() const { return child->GetView(); }
    double Scale() const { return View()->transform().m11(); }
    QPoint Scroll() const
    {
        const DrawFrameBase *frame = child->GetFrame()->GetDrawFrame();
        return QPoint(frame->horizontalScrollBar()->value(), frame->verticalScrollBar()->value());
    }
    void Wheel(int delta) const
    {
        QWidget *viewport = View()->viewport();
        const QPoint pos = viewport->visibleRegion().boundingRect().center() + QPoint(31, 17);
        QWheelEvent event(pos, viewport->mapToGlobal(pos), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(viewport, &event);
    }
    void Drag(const QPoint &delta) const
    {
        QWidget *viewport = View()->viewport();
        const QPoint from = viewport->visibleRegion().boundingRect().center();
        const auto send = [&](QEvent::Type type, const QPoint &pos, Qt::MouseButton button, Qt::MouseButtons buttons) {
            QMouseEvent event(type, pos, viewport->mapToGlobal(pos), button, buttons, Qt::NoModifier);
            QApplication::sendEvent(viewport, &event);
        };
        send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        send(QEvent::MouseMove, from + delta, Qt::NoButton, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, from + delta, Qt::LeftButton, Qt::NoButton);
    }
    void Click() const { QTest::mouseClick(child, Qt::LeftButton, Qt::NoModifier, QPoint(5, child->height() - 5)); }

    CompareChildFrame *child;
    QCheckBox *name;
    QLabel *percent;
    ZoomUI *zoomUI;
};

/// A shown compare frame with two equal pictures of 800 x 600, lent by `lender`.
struct Comparison
{
    Comparison()
        : left(qobject_cast<CompareChildFrame *>(compare.layout()->itemAt(0)->widget()))
        , right(qobject_cast<CompareChildFrame *>(compare.layout()->itemAt(1)->widget()))
        , leftFrame(new GPUDrawFrame(&lender))
        , rightFrame(new GPUDrawFrame(&lender))
    {
        compare.resize(801, 400);
    }

    bool Show()
    {
        compare.show();
        return QTest::qWaitForWindowExposed(&compare);
    }
    void Attach()
    {
        compare.AttachLeftFrame(leftFrame, &services.mainImage, "left");
        compare.AttachRightFrame(rightFrame, &services.compareImage, "right");
        for (const Half &half : {left, right})
            half.View()->slotPaintPreview(GreyPicture({800, 600}));
        QCoreApplication::processEvents();
        CallLog::Clear();
    }
    /// Zooms both pictures to one to one and puts them at the same place.
    void ZoomToPixels()
    {
        for (const Half &half : {left, right})
            half.View()->slotSetScaleFactor(1.0);
        QCoreApplication::processEvents();
        for (const Half &half : {left, right})
            half.child->GetFrame()->GetDrawFrame()->SetSliderPosition(QPointF(100, 80));
    }

    DisplayScale displayScale{1.0};
    FakeServices services;
    QWidget lender;
    KeyedCompareFrame compare;
    Half left;
    Half right;
    GPUDrawFrame *leftFrame;
    GPUDrawFrame *rightFrame;
};

/// Counts what it is asked to show.
class SceneReceiver : public QObject
{
    Q_OBJECT

public:
    QList<QGraphicsScene *> scenes;

public slots:
    void slotSetGraphicsScene(QGraphicsScene *scene) { scenes << scene; }
};

} // namespace

class TestCompareFrame : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase();

    void form();
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
    void leftIsCheckedWhenAttached();
    void attachInThePlaceOfAnotherFrame();
    void detachUndoesEverything();
    void frameThatGoesIsForgotten();
    void clickChecksAHalf();
    void clickOnThePictureChecksItsHalf();
    void clickOnAnEmptyHalf();
    void setLeftChecked();
    void checkOfSomethingElseIsIgnored();
    void pressedScenesReachTheReceiver();
    void wheelZoomIsRepeated_data();
    void wheelZoomIsRepeated();
    void wheelZoomOutIsRepeated();
    void wheelZoomIsRepeatedWithGPUDrawing();
    void dragIsRepeated_data();
    void dragIsRepeated();
    void dragIsLogged();
    void ctrlKeepsThePicturesApart();
    void withoutCtrlThePicturesAreLinked();
    void strangeSendersAreIgnored();
    void emptyHalfFollowsNothing();
    void resizeFitsAgain();
};

void TestCompareFrame::initTestCase()
{
    // The first OpenGL context starts threads of the driver that stay for good.
    QOffscreenSurface surface;
    surface.create();
    QOpenGLContext context;
    QVERIFY(context.create());
    QVERIFY(context.makeCurrent(&surface));
}

void TestCompareFrame::form()
{
    CompareFrame compare;
    QCOMPARE(compare.styleSheet(), QString("CompareFrame{ background: white; }"));
    auto *row = qobject_cast<QHBoxLayout *>(compare.layout());
    QVERIFY(row);
    QCOMPARE(row->contentsMargins(), QMargins());
    QCOMPARE(row->spacing(), 1);
    QCOMPARE(row->count(), 2);
    for (int i : {0, 1}) {
        QVERIFY(qobject_cast<CompareChildFrame *>(row->itemAt(i)->widget()));
        QCOMPARE(row->stretch(i), 1);
    }
}

void TestCompareFrame::halfForm_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QRect>("name");
    QTest::addColumn<QRect>("percent");
    QTest::newRow("design size") << 1.0 << QRect(20, 30, 1000, 30) << QRect(20, 60, 150, 30);
    QTest::newRow("twice") << 2.0 << QRect(20, 60, 1000, 60) << QRect(20, 120, 150, 60);
}

void TestCompareFrame::halfForm()
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

void TestCompareFrame::halvesStartEmpty()
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

void TestCompareFrame::attachShowsTheFrame()
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

void TestCompareFrame::attachFitsThePicture()
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

void TestCompareFrame::attachWithoutAnInfoSource()
{
    Comparison c;
    c.compare.AttachLeftFrame(c.leftFrame, nullptr, QString());
    QCOMPARE(c.left.name->text(), QString());
    emit c.services.mainImage.signalUpdateFileNameAndSize("somebody else's");
    QCOMPARE(c.left.name->text(), QString());
}

void TestCompareFrame::nameAndResetComeFromTheInfoSource()
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

void TestCompareFrame::zoomPercent_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QString>("text");
    QTest::newRow("one to one") << 1.0 << "100.00 %";
    QTest::newRow("largest") << 32.0 << "3200.00 %";
    QTest::newRow("a third") << 1.0 / 3 << "33.33 %";
    QTest::newRow("double precision") << 167772.17 << "16777217.00 %";
}

void TestCompareFrame::zoomPercent()
{
    QFETCH(double, scale);
    QFETCH(QString, text);
    Comparison c;
    c.Attach();
    emit c.left.View()->signalScaleFactorChanged(scale);
    QCOMPARE(c.left.percent->text(), text);
    QVERIFY(c.right.percent->text() != text);
}

void TestCompareFrame::zoomButtons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<double>("scale");
    QTest::newRow("in") << "pushButtonZoomIn" << 2.0;
    QTest::newRow("out") << "pushButtonZoomOut" << 0.5;
    QTest::newRow("one to one") << "pushButton1vs1" << 1.0;
    QTest::newRow("fit") << "pushButtonFit" << 0.5;
}

void TestCompareFrame::zoomButtons()
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

void TestCompareFrame::leftIsCheckedWhenAttached()
{
    Comparison c;
    c.right.child->SetChecked(true);
    c.Attach();
    QVERIFY(c.left.name->isChecked());
    QCOMPARE(c.left.name->styleSheet(), checkedStyle);
    QVERIFY(!c.right.name->isChecked());
    QCOMPARE(c.right.name->styleSheet(), plainStyle);
}

void TestCompareFrame::attachInThePlaceOfAnotherFrame()
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

void TestCompareFrame::detachUndoesEverything()
{
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    DrawViewBase *view = c.left.View();
    const double scale = c.left.Scale();
    const QString percent = c.left.percent->text();
    c.compare.DetachFrames();

    QVERIFY(!c.compare.GetLeftFrame());
    QVERIFY(!c.right.child->GetFrame());
    QVERIFY(!c.leftFrame->isHidden());
    QVERIFY(c.left.child->layout()->indexOf(c.leftFrame) < 0);
    emit c.services.mainImage.signalUpdateFileNameAndSize("cells.tif");
    emit c.services.mainImage.signalResetImageInfo();
    QCOMPARE(c.left.name->text(), QString("left"));
    emit view->signalScaleFactorChanged(7);
    QCOMPARE(c.left.percent->text(), percent);
    for (QPushButton *button : c.left.zoomUI->findChildren<QPushButton *>()) {
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(view->transform().m11(), scale);
    }
    const int lines = DebugLines().size();
    emit view->signalCompareScale(notch, QPointF(1, 1));
    emit view->signalCompareMove(QPointF(1, 1));
    QCOMPARE(DebugLines().size(), lines); // a linked move that arrives is logged
}

void TestCompareFrame::frameThatGoesIsForgotten()
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

void TestCompareFrame::clickChecksAHalf()
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

void TestCompareFrame::clickOnThePictureChecksItsHalf()
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

void TestCompareFrame::clickOnAnEmptyHalf()
{
    Comparison c;
    QVERIFY(c.Show());
    SceneReceiver pressed;
    connect(c.right.child, &CompareChildFrame::signalFramePressed, &pressed, &SceneReceiver::slotSetGraphicsScene);
    c.right.Click();
    QVERIFY(c.right.name->isChecked());
    QCOMPARE(pressed.scenes.size(), 0); // there is no scene to hand out
}

void TestCompareFrame::setLeftChecked()
{
    Comparison c;
    for (bool left : {true, false, true}) {
        c.compare.SetLeftChecked(left);
        QCOMPARE(c.left.name->isChecked(), left);
        QCOMPARE(c.right.name->isChecked(), !left);
        QCOMPARE(c.left.name->styleSheet(), left ? checkedStyle : plainStyle);
        QCOMPARE(c.right.name->styleSheet(), left ? plainStyle : checkedStyle);
    }
}

void TestCompareFrame::checkOfSomethingElseIsIgnored()
{
    Comparison c;
    c.left.child->SetChecked(true);
    c.right.child->SetChecked(true);
    c.compare.slotFrameChecked(this);
    c.compare.slotFrameChecked(nullptr);
    QVERIFY(c.left.name->isChecked());
    QVERIFY(c.right.name->isChecked());
}

void TestCompareFrame::pressedScenesReachTheReceiver()
{
    Comparison c;
    QVERIFY(c.Show());
    SceneReceiver receiver;
    c.compare.ConnectFramePressed(&receiver);
    c.compare.ConnectFramePressed(&c.services.global);
    c.Attach();
    c.right.Click();
    c.left.Click();
    QCOMPARE(receiver.scenes, QList<QGraphicsScene *>({c.right.View()->scene(), c.left.View()->scene()}));
    QCOMPARE(CallLog::Count("GlobalManager::slotSetGraphicsScene()"), 2);
}

void TestCompareFrame::wheelZoomIsRepeated_data()
{
    QTest::addColumn<bool>("fromLeft");
    QTest::newRow("left leads") << true;
    QTest::newRow("right leads") << false;
}

void TestCompareFrame::wheelZoomIsRepeated()
{
    QFETCH(bool, fromLeft);
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    c.ZoomToPixels();
    const Half &leader = fromLeft ? c.left : c.right;
    const Half &follower = fromLeft ? c.right : c.left;
    QSignalSpy zoomed(leader.View(), SIGNAL(signalCompareScale(int, QPointF)));
    leader.Wheel(notch);
    QCOMPARE(zoomed.count(), 1);
    QCOMPARE(leader.Scale(), 2.0);
    QCOMPARE(follower.Scale(), 2.0);
    const QPointF point = zoomed.first().at(1).toPointF();
    QCOMPARE(follower.Scroll(), QPoint(int(point.x()), int(point.y()))); // as it stands, no bias
}

void TestCompareFrame::wheelZoomOutIsRepeated()
{
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    c.ZoomToPixels();
    c.left.Wheel(-notch);
    QCOMPARE(c.left.Scale(), 0.5);
    QCOMPARE(c.right.Scale(), 0.5);
}

void TestCompareFrame::wheelZoomIsRepeatedWithGPUDrawing()
{
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    for (GPUDrawFrame *frame : {c.leftFrame, c.rightFrame})
        frame->slotSetCPUDraw(false);
    QCoreApplication::processEvents();
    c.ZoomToPixels();
    QSignalSpy zoomed(c.left.View(), SIGNAL(signalCompareScale(int, QPointF)));
    c.left.Wheel(notch);
    QCOMPARE(zoomed.count(), 1);
    const QPointF sliders(c.left.View()->horizontalScrollBar()->sliderPosition(),
                          c.left.View()->verticalScrollBar()->sliderPosition());
    QCOMPARE(zoomed.first().at(1).toPointF(), sliders);
    QCOMPARE(c.left.Scale(), 2.0);
    QCOMPARE(c.right.Scale(), 2.0);
    QVERIFY(sliders.x() > 0 && sliders.y() > 0);
    const QPointF followed(c.right.View()->horizontalScrollBar()->value(),
                           c.right.View()->verticalScrollBar()->value());
    QCOMPARE(followed, sliders);
}

void TestCompareFrame::dragIsRepeated_data()
{
    QTest::addColumn<bool>("fromLeft");
    QTest::newRow("left leads") << true;
    QTest::newRow("right leads") << false;
}

void TestCompareFrame::dragIsRepeated()
{
    QFETCH(bool, fromLeft);
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    c.ZoomToPixels();
    QCOMPARE(c.left.Scroll(), QPoint(100, 80));
    const Half &leader = fromLeft ? c.left : c.right;
    const Half &follower = fromLeft ? c.right : c.left;
    leader.Drag(QPoint(30, -20)); // the picture goes right and up
    QCOMPARE(leader.Scroll(), QPoint(70, 100));
    QCOMPARE(follower.Scroll(), QPoint(70, 100));
}

void TestCompareFrame::dragIsLogged()
{
    Comparison c;
    c.Attach();
    const int before = DebugLines().size();
    emit c.left.View()->signalCompareMove(QPointF(30, -20.5));
    QCOMPARE(DebugLines().mid(before), QStringList("CompareFrame::slotCompareMove, 30.000000 -20.500000"));
}

void TestCompareFrame::ctrlKeepsThePicturesApart()
{
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    c.ZoomToPixels();
    const int lines = DebugLines().size();
    c.compare.ctrlPressed = true;
    c.left.Drag(QPoint(30, -20));
    QCOMPARE(c.left.Scroll(), QPoint(70, 100));
    QCOMPARE(c.right.Scroll(), QPoint(100, 80));
    c.left.Wheel(notch);
    QCOMPARE(c.left.Scale(), 2.0);
    QCOMPARE(c.right.Scale(), 1.0);
    QCOMPARE(c.right.Scroll(), QPoint(100, 80));
    QCOMPARE(DebugLines().size(), lines);

    c.compare.ctrlPressed = false;
    c.left.Wheel(notch);
    QCOMPARE(c.left.Scale(), 4.0);
    QCOMPARE(c.right.Scale(), 2.0); // what was done alone stays so
}

void TestCompareFrame::withoutCtrlThePicturesAreLinked()
{
    Comparison c;
    CompareFrame compare; // asks the keyboard, on which nothing is pressed
    compare.AttachLeftFrame(c.leftFrame, nullptr, QString());
    compare.AttachRightFrame(c.rightFrame, nullptr, QString());
    DrawViewBase *leftView = c.leftFrame->GetDrawFrame()->GetDrawView();
    DrawViewBase *rightView = c.rightFrame->GetDrawFrame()->GetDrawView();
    rightView->slotPaintPreview(GreyPicture({800, 600}));
    rightView->slotSetScaleFactor(1.0);
    emit leftView->signalCompareScale(notch, QPointF(0, 0));
    QCOMPARE(rightView->transform().m11(), 2.0);
}

void TestCompareFrame::strangeSendersAreIgnored()
{
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    c.ZoomToPixels();
    GPUDrawFrame stranger(nullptr);
    DrawViewBase *view = stranger.GetDrawFrame()->GetDrawView();
    QVERIFY(connect(view, SIGNAL(signalCompareScale(int, QPointF)), &c.compare, SLOT(slotCompareScale(int, QPointF))));
    QVERIFY(connect(view, SIGNAL(signalCompareMove(QPointF)), &c.compare, SLOT(slotCompareMove(QPointF))));
    emit view->signalCompareScale(notch, QPointF(0, 0));
    emit view->signalCompareMove(QPointF(10, 10));
    c.compare.slotCompareScale(notch, QPointF(0, 0)); // nobody's signal at all
    c.compare.slotCompareMove(QPointF(10, 10));
    for (const Half &half : {c.left, c.right}) {
        QCOMPARE(half.Scale(), 1.0);
        QCOMPARE(half.Scroll(), QPoint(100, 80));
    }
}

void TestCompareFrame::emptyHalfFollowsNothing()
{
    Comparison c;
    QVERIFY(c.Show());
    c.compare.AttachLeftFrame(c.leftFrame, nullptr, QString());
    c.left.View()->slotPaintPreview(GreyPicture({800, 600}));
    c.left.View()->slotSetScaleFactor(1.0);
    c.left.Wheel(notch);
    c.left.Drag(QPoint(10, 10));
    QCOMPARE(c.left.Scale(), 2.0);
    QCOMPARE(c.right.percent->text(), QString());
    QVERIFY(!c.right.View());
}

void TestCompareFrame::resizeFitsAgain()
{
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    c.ZoomToPixels();
    QCOMPARE(c.left.zoomUI->geometry(), QRect(0, 0, 400, 30));
    c.compare.resize(1201, 900);
    QTRY_COMPARE(c.left.child->width(), 600);
    QCOMPARE(c.left.zoomUI->geometry(), QRect(0, 0, 600, 30));
    QCOMPARE(c.left.Scale(), 0.75); // 600 of 800
    QCOMPARE(c.right.Scale(), 0.75);
    QCOMPARE(c.left.percent->text(), QString("75.00 %"));
}

GUARDED_TEST_MAIN(TestCompareFrame)
#include "tst_compareframe.moc"
