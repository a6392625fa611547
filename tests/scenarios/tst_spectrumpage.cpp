// SPDX-License-Identifier: GPL-3.0-or-later
#include "displaymodemanager.h"
#include "guardedtest.h"
#include "runningworkbench.h"
#include "spectrumuimanager.h"

#include <QAction>
#include <QApplication>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <cmath>

namespace {

constexpr int SensorSize = 2048;

/// The numbers that came with the newest signal; clears the spy.
QVector<double> Newest(QSignalSpy *spy)
{
    QVector<double> numbers;
    if (!spy->isEmpty()) {
        for (const QVariant &argument : spy->last())
            numbers << argument.toDouble();
    }
    spy->clear();
    return numbers;
}

} // namespace

/// A person looks at the sensor of a spectrometer.
class SpectrumPageScenario : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The OpenGL driver starts threads with its first context and keeps them.
        QOffscreenSurface surface;
        surface.create();
        QOpenGLContext context;
        QVERIFY(context.create() && context.makeCurrent(&surface));
    }

    void dragsClicksAndStepsBack()
    {
        QTemporaryDir folder;
        RunningWorkbench workbench(folder.path());
        QVERIFY(workbench.WaitForPicture());
        QAction *spectrum = workbench.Action("Spectrum Page");
        QVERIFY(spectrum);
        spectrum->trigger();
        m_view = SpectrumImage(workbench.window);
        QVERIFY(m_view);
        QTRY_COMPARE(m_view->sceneRect(), QRectF(0, 0, SensorSize, SensorSize));
        QVERIFY(workbench.WaitForNextPicture());

        const QObject *ranges = SpectrumUIManager::GetInstance()->GetDisplayModeManager();
        QSignalSpy columns(ranges, SIGNAL(SignalChangeHShowValueRange(qreal, qreal)));
        QSignalSpy rows(ranges, SIGNAL(SignalChangeVShowValueRange(qreal, qreal)));
        QSignalSpy visible(m_view, SIGNAL(SignalNewRect(double, double, double, double)));
        QSignalSpy picked(m_view, SIGNAL(SignalPressPosChange(QPointF, QRectF)));

        Drag(QPointF(1024, 300), QPointF(1024, 300));
        QCOMPARE(picked.size(), 1);
        QVERIFY(IsNear(picked.last().first().toPointF(), QPointF(1024, 300)));
        QVERIFY(visible.isEmpty());

        Drag(QPointF(400, 600), QPointF(1200, 1300));
        const QVector<double> zoomed = Newest(&visible);
        QVERIFY(IsSeen(zoomed));
        QVERIFY(IsNear(picked.last().first().toPointF(), QPointF(800, 950)));
        QVERIFY(zoomed.at(0) > 380.0 && zoomed.at(1) < 1220.0 && zoomed.at(2) > 580.0 && zoomed.at(3) < 1320.0);
        QCOMPARE(Newest(&columns), zoomed.mid(0, 2));
        QCOMPARE(Newest(&rows), zoomed.mid(2, 2));
        QVERIFY(workbench.WaitForNextPicture());
        QVERIFY(IsSeen(zoomed)); // a frame of the same size changes nothing
        QVERIFY(visible.isEmpty());

        Drag(QPointF(1000, 1200), QPointF(700, 900));
        QCOMPARE(Newest(&visible), QVector<double>({ 0, SensorSize, 0, SensorSize }));
        QCOMPARE(Newest(&columns), QVector<double>({ 0, SensorSize }));
        QCOMPARE(Newest(&rows), QVector<double>({ 0, SensorSize }));
        QVERIFY(IsSeen({ 0, SensorSize, 0, SensorSize }));

        spectrum->trigger();
        QTRY_VERIFY(!m_view->isVisible());
        QVERIFY(workbench.WaitForNextPicture());
    }

private:
    /// The spectrum image that is seen, once it is.
    static QGraphicsView *SpectrumImage(const QWidget &window)
    {
        QGraphicsView *image = nullptr;
        const auto find = [&] {
            for (QGraphicsView *view : window.findChildren<QGraphicsView *>()) {
                if (view->inherits("SpectrumDrawViewBase") && view->isVisible())
                    image = view;
            }
            return image != nullptr;
        };
        return QTest::qWaitFor(find) ? image : nullptr;
    }

    /// With the left button, in picture pixels that are seen.
    void Drag(const QPointF &from, const QPointF &to) const
    {
        QWidget *viewport = m_view->viewport();
        const QPoint first = m_view->mapFromScene(from);
        const QPoint last = m_view->mapFromScene(to);
        QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, first);
        QMouseEvent move(QEvent::MouseMove, last, viewport->mapToGlobal(last), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
        QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, last);
    }

    /// Within a pixel of the screen.
    bool IsNear(const QPointF &place, const QPointF &expected) const
    {
        const double pixel = 1.0 / m_view->transform().m11() + 1.0;
        return std::abs(place.x() - expected.x()) <= 2 * pixel && std::abs(place.y() - expected.y()) <= 2 * pixel;
    }

    /// The frame shows this part of the picture: left, right, top, bottom; within a pixel of the screen.
    bool IsSeen(const QVector<double> &part) const
    {
        const QWidget *frame = m_view->parentWidget();
        const double scale = m_view->transform().m11();
        const QPointF first = QPointF(-m_view->pos()) / scale;
        const QPointF last = first + QPointF(frame->width(), frame->height()) / scale;
        const QVector<double> seen{ first.x(), last.x(), first.y(), last.y() };
        for (int side = 0; side < 4; ++side) {
            if (std::abs(part.value(side) - seen.at(side)) > 2.0 / scale)
                return false;
        }
        return part.size() == 4;
    }

    QGraphicsView *m_view = nullptr;
};

GUARDED_TEST_MAIN(SpectrumPageScenario)
#include "tst_spectrumpage.moc"
