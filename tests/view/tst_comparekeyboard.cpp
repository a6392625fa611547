// SPDX-License-Identifier: GPL-3.0-or-later
#include "comparechildframe.h"
#include "compareframe.h"
#include "drawviewfixture.h"
#include "globalclass.h"
#include "guardedtest.h"

#include <QLayout>
#include <QScrollBar>
#include <QWindow>

namespace {

/// A shown comparison of two pictures at one to one, with the keyboard as it is.
struct Comparison
{
    Comparison()
        : leftFrame(new GPUDrawFrame(&lender))
        , rightFrame(new GPUDrawFrame(&lender))
    {
        keyboard.create();
        compare.setAttribute(Qt::WA_DontShowOnScreen); // there is none
        compare.resize(801, 400);
        compare.show();
        compare.AttachLeftFrame(leftFrame, nullptr, QString());
        compare.AttachRightFrame(rightFrame, nullptr, QString());
        for (GPUDrawFrame *frame : { leftFrame, rightFrame }) {
            View(frame)->slotPaintPreview(GreyPicture({ 800, 600 }));
            View(frame)->slotSetScaleFactor(1.0);
        }
        QCoreApplication::processEvents();
        for (GPUDrawFrame *frame : { leftFrame, rightFrame })
            frame->GetDrawFrame()->SetSliderPosition(QPointF(100, 80));
    }

    static DrawViewBase *View(const GPUDrawFrame *frame) { return frame->GetDrawFrame()->GetDrawView(); }
    static double Scale(const GPUDrawFrame *frame) { return View(frame)->transform().m11(); }
    static QPoint Scroll(const GPUDrawFrame *frame)
    {
        const DrawFrameBase *area = frame->GetDrawFrame();
        return QPoint(area->horizontalScrollBar()->value(), area->verticalScrollBar()->value());
    }

    void HoldCtrl() { QTest::keyPress(&keyboard, Qt::Key_Control, Qt::ControlModifier); }
    void LetCtrlGo() { QTest::keyRelease(&keyboard, Qt::Key_Control, Qt::NoModifier); }

    void Wheel(Qt::KeyboardModifiers modifiers)
    {
        QWidget *viewport = View(leftFrame)->viewport();
        const QPoint pos = viewport->visibleRegion().boundingRect().center();
        QWheelEvent event(pos, viewport->mapToGlobal(pos), QPoint(), QPoint(0, 120), Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(viewport, &event);
    }

    void Drag(const QPoint &delta, Qt::KeyboardModifiers modifiers)
    {
        QWidget *viewport = View(leftFrame)->viewport();
        const QPoint from = viewport->visibleRegion().boundingRect().center();
        const auto send = [&](QEvent::Type type, const QPoint &pos, Qt::MouseButton button,
                              Qt::MouseButtons buttons) {
            QMouseEvent event(type, pos, viewport->mapToGlobal(pos), button, buttons, modifiers);
            QApplication::sendEvent(viewport, &event);
        };
        send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        send(QEvent::MouseMove, from + delta, Qt::NoButton, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, from + delta, Qt::LeftButton, Qt::NoButton);
    }

    FakeServices services;
    QWindow keyboard; ///< keys go to a window
    QWidget lender;
    CompareFrame compare;
    GPUDrawFrame *leftFrame;
    GPUDrawFrame *rightFrame;
};

} // namespace

/// The Ctrl key in the user's hand: on the platform without a window system, where the keyboard is the test's.
class TestCompareKeyboard : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        for (int i = 0; i < 3; ++i) // of a window that has a least size
            ExpectWarning(QRegularExpression("does not support propagateSizeHints"));
    }

    void ctrlIsPressedFromKeyToKey()
    {
        Comparison c;
        QVERIFY(!GlobalClass::IsCtrlKeyPressed());
        c.HoldCtrl();
        QVERIFY(GlobalClass::IsCtrlKeyPressed());
        c.LetCtrlGo();
        QVERIFY(!GlobalClass::IsCtrlKeyPressed());
    }

    void anotherKeyIsNotCtrl()
    {
        Comparison c;
        QTest::keyPress(&c.keyboard, Qt::Key_Shift, Qt::ShiftModifier);
        QVERIFY(!GlobalClass::IsCtrlKeyPressed());
        c.Wheel(Qt::ShiftModifier);
        QCOMPARE(c.Scale(c.rightFrame), 2.0);
        QTest::keyRelease(&c.keyboard, Qt::Key_Shift, Qt::NoModifier);
    }

    void withCtrlOneIsZoomedAndDraggedAlone()
    {
        Comparison c;
        c.HoldCtrl();
        c.Drag(QPoint(30, -20), Qt::ControlModifier);
        QCOMPARE(c.Scroll(c.leftFrame), QPoint(70, 100));
        QCOMPARE(c.Scroll(c.rightFrame), QPoint(100, 80));
        c.Wheel(Qt::ControlModifier);
        QCOMPARE(c.Scale(c.leftFrame), 2.0);
        QCOMPARE(c.Scale(c.rightFrame), 1.0);

        c.LetCtrlGo();
        c.Wheel(Qt::NoModifier);
        QCOMPARE(c.Scale(c.leftFrame), 4.0);
        QCOMPARE(c.Scale(c.rightFrame), 2.0);
    }

    void withoutCtrlBothGoTogether()
    {
        Comparison c;
        c.Drag(QPoint(30, -20), Qt::NoModifier);
        QCOMPARE(c.Scroll(c.leftFrame), QPoint(70, 100));
        QCOMPARE(c.Scroll(c.rightFrame), QPoint(70, 100));
        c.Wheel(Qt::NoModifier);
        QCOMPARE(c.Scale(c.rightFrame), 2.0);
    }
};

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    TestCompareKeyboard test;
    return GuardedTest::Run(&test, argc, argv);
}

#include "tst_comparekeyboard.moc"
