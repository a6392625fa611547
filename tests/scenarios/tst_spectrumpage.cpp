// SPDX-License-Identifier: GPL-3.0-or-later
#include "displaymodemanager.h"
#include "scenariotest.h"
#include "spectrumonscreen.h"
#include "spectrumuimanager.h"

#include <QAction>
#include <QGraphicsView>
#include <QPushButton>
#include <QSignalSpy>

namespace {

constexpr int SensorSize = 2048;

} // namespace

/// A person looks at the sensor of a spectrometer.
class SpectrumPageScenario : public ScenarioTest
{
    Q_OBJECT

private slots:
    void zoomBarsTellWhetherRangesAreAutomatic()
    {
        QVector<QPushButton *> buttons;
        for (const QWidget *bar : m_workbench->window.findChildren<QWidget *>("SpectrumZoomUI")) {
            for (QPushButton *button : bar->findChildren<QPushButton *>()) {
                if (button->isCheckable() && !button->isHidden())
                    buttons << button;
            }
        }
        QCOMPARE(buttons.size(), 2); // of the live and of the opened spectrum
        for (const bool automatic : {false, true, false}) { // it begins with ranges that stay
            SpectrumUIManager::GetInstance()->SetZoomAutoFlag(automatic);
            for (const QPushButton *button : qAsConst(buttons))
                QCOMPARE(button->objectName(),
                         QString(automatic ? "pushButtonRescaleAuto" : "pushButtonAutoRescaleClose"));
        }
    }

    void dragsClicksAndStepsBack()
    {
        QAction *spectrum = m_workbench->Action("Spectrum Page");
        QVERIFY(spectrum);
        spectrum->trigger();
        SpectrumOnScreen page(&m_workbench->window);
        QVERIFY(page.WaitForImage());
        const QGraphicsView *image = page.Image();
        QTRY_COMPARE(image->sceneRect(), QRectF(0, 0, SensorSize, SensorSize));
        QVERIFY(m_workbench->WaitForNextPicture());

        const QObject *ranges = SpectrumUIManager::GetInstance()->GetDisplayModeManager();
        QSignalSpy columns(ranges, SIGNAL(SignalChangeHShowValueRange(qreal, qreal)));
        QSignalSpy rows(ranges, SIGNAL(SignalChangeVShowValueRange(qreal, qreal)));
        QSignalSpy visible(image, SIGNAL(SignalNewRect(double, double, double, double)));
        QSignalSpy picked(image, SIGNAL(SignalPressPosChange(QPointF, QRectF)));

        page.Drag(QPointF(1024, 300), QPointF(1024, 300));
        QCOMPARE(picked.size(), 1);
        QVERIFY(page.IsNear(picked.last().first().toPointF(), QPointF(1024, 300)));
        QVERIFY(visible.isEmpty());

        page.Drag(QPointF(400, 600), QPointF(1200, 1300));
        const QVector<double> zoomed = Newest(&visible);
        QVERIFY(page.IsSeen(zoomed));
        QVERIFY(page.IsNear(picked.last().first().toPointF(), QPointF(800, 950)));
        QVERIFY(zoomed.at(0) > 380.0 && zoomed.at(1) < 1220.0 && zoomed.at(2) > 580.0 && zoomed.at(3) < 1320.0);
        QCOMPARE(Newest(&columns), zoomed.mid(0, 2));
        QCOMPARE(Newest(&rows), zoomed.mid(2, 2));
        QVERIFY(m_workbench->WaitForNextPicture());
        QVERIFY(page.IsSeen(zoomed)); // a frame of the same size changes nothing
        QVERIFY(visible.isEmpty());

        page.Drag(QPointF(1000, 1200), QPointF(700, 900));
        QCOMPARE(Newest(&visible), QVector<double>({ 0, SensorSize, 0, SensorSize }));
        QCOMPARE(Newest(&columns), QVector<double>({ 0, SensorSize }));
        QCOMPARE(Newest(&rows), QVector<double>({ 0, SensorSize }));
        QVERIFY(page.IsSeen({ 0, SensorSize, 0, SensorSize }));

        spectrum->trigger();
        QTRY_VERIFY(!image->isVisible());
        QVERIFY(m_workbench->WaitForNextPicture());
    }
};

GUARDED_TEST_MAIN(SpectrumPageScenario)
#include "tst_spectrumpage.moc"
