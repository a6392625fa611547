// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "comparechildframe.h"
#include "compareframe.h"
#include "displayscale.h"
#include "drawviewfixture.h"
#include "zoomui.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

inline const QString plainStyle = "color: black;";
inline const QString checkedStyle = "color: rgb(255, 190, 0);";
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
