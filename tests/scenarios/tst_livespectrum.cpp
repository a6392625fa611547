// SPDX-License-Identifier: GPL-3.0-or-later
#include "fieldsource.h"
#include "livepreview.h"
#include "openedpicture.h"
#include "payloadlocker.h"
#include "picturedesk.h"
#include "plotpicture.h"
#include "spectrographoptics.h"
#include "spectrographscenario.h"
#include "spectrumexport.h"
#include "spectrumlinepayload.h"
#include "spectrumpipeline.h"
#include "spectrumsettings.h"
#include "trackdesk.h"
#include "workspaceconfig.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QGraphicsSimpleTextItem>
#include <QGraphicsObject>
#include <QGraphicsView>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>

#include <qcustomplot.h>
#include <qwt3d_surfaceplot.h>

#include <cmath>
#include <numeric>

namespace {

const SpectrographOptics truth(QSize(2048, 2048));

} // namespace

/// A person works with the rows of the spectrum on the live picture.
class LiveSpectrumScenario : public SpectrographScenario
{
    Q_OBJECT

private slots:
    /// The edges that are dragged are the rows that the plot is given.
    void theBandIsDraggedOnThePicture()
    {
        m_workbench->Action("Band by Hand")->trigger();
        SpectrumSettings *settings = m_workbench->services.Spectrum();
        QTRY_COMPARE_WITH_TIMEOUT(Spectra()->Shown().band.bottom, 2048, waitMs);
        QCOMPARE(settings->GetTop(), 0);
        Drag(QPointF(400, 0), QPointF(400, 900));
        QTRY_VERIFY(std::abs(settings->GetTop() - 900) <= Reach());
        Drag(QPointF(400, 2043), QPointF(400, 1200)); // its edge, a little above the end of the view
        QTRY_VERIFY(std::abs(settings->GetBottom() - 1200) <= Reach());
        QTRY_COMPARE_WITH_TIMEOUT(Spectra()->Shown().band.top, settings->GetTop(), waitMs);
        QTRY_COMPARE_WITH_TIMEOUT(Spectra()->Shown().band.bottom, settings->GetBottom() + 1, waitMs);

        unsigned int drawn = 0;
        double made = -1;
        connect(Spectra(), &SpectrumManager::SignalUpdateFVB, this, [&](void *param) {
            auto *payload = static_cast<SpectrumLinePayload *>(param);
            const PayloadLocker locker(payload->lock);
            drawn = payload->fill[1000];
            made = Spectra()->Shown().corrected.values[1000];
        });
        QTRY_COMPARE_WITH_TIMEOUT(double(drawn), made, waitMs);
        disconnect(Spectra(), nullptr, this, nullptr);
        m_workbench->Action("Off")->trigger();
    }

    /// The next drag begins where the mark is.
    void rowsTypedInThePanelMoveTheMark()
    {
        m_workbench->Action("Band by Hand")->trigger();
        QTRY_VERIFY(Band() && Band()->shape().contains(QPointF(400, 2047)));
        FieldSource *panel = FieldSource::Find(FieldSource::SpectrumName);
        panel->Set("top", 500);
        panel->Set("bottom", 1500);
        QVERIFY(Band()->shape().contains(QPointF(400, 500)) && Band()->shape().contains(QPointF(400, 1500)));
        QVERIFY(!Band()->shape().contains(QPointF(400, 2047)));
        Drag(QPointF(400, 1500), QPointF(400, 1200));
        QTRY_VERIFY(std::abs(m_workbench->services.Spectrum()->GetBottom() - 1200) <= Reach());
        QCOMPARE(m_workbench->services.Spectrum()->GetTop(), 500);
        QVERIFY(m_workbench->WaitForNextPicture());
        SavePicture("band-typed.png");
        m_workbench->Action("Off")->trigger();
    }

    /// A spectrum along the columns has a band of columns, on a picture that is wider than high.
    void theBandOfAnUprightSpectrumIsDraggedOverColumns()
    {
        constexpr int firstRow = 300;
        m_workbench->Action("Curve")->trigger(); // the spectrum pages are used from now on
        m_workbench->Action("Picture")->trigger();
        m_workbench->link.SetRegion(QRect(0, firstRow, 2048, 512));
        m_workbench->Action("Vertical")->trigger();
        QVERIFY(m_workbench->Action("All Columns"));
        m_workbench->Action("Band by Hand")->trigger();
        QTRY_COMPARE_WITH_TIMEOUT(Spectra()->Shown().frameSize, QSize(2048, 512), waitMs);
        SpectrumSettings *settings = m_workbench->services.Spectrum();
        settings->SetBottom(2047);
        QTRY_VERIFY(Band() && Band()->shape().contains(QPointF(2047, 5)));
        Drag(QPointF(0, 200), QPointF(540, 300));
        QTRY_VERIFY(std::abs(settings->GetTop() - 540) <= Reach());
        Drag(QPointF(2045, 200), QPointF(1500, 100));
        QTRY_VERIFY(std::abs(settings->GetBottom() - 1500) <= Reach());
        QTRY_COMPARE_WITH_TIMEOUT(Spectra()->Shown().band.top, settings->GetTop(), waitMs);
        QTRY_COMPARE_WITH_TIMEOUT(Spectra()->Shown().band.bottom, settings->GetBottom() + 1, waitMs);
        SavePicture("columns-by-hand.png");

        // One frame whose picture and whose spectrum are both there: its columns were summed.
        std::vector<double> sums;
        std::vector<double> made;
        connect(Spectra(), &SpectrumPipeline::signalSpectrumShown, this, [&] {
            const CameraFrame &frame = m_workbench->services.Preview()->ShownFrame();
            const SpectrumProduct &product = Spectra()->Shown();
            if (!made.empty() || frame.frameId != product.frameId)
                return;
            sums = SumsOfColumns(frame, product.band.top, product.band.bottom);
            made = product.raw.values;
        });
        QTRY_VERIFY_WITH_TIMEOUT(!made.empty(), waitMs);
        disconnect(Spectra(), nullptr, this, nullptr);
        QCOMPARE(made.size(), size_t(512));
        QCOMPARE(made, sums);

        // Over the rows the curve has the fibre that lies in the region.
        m_workbench->Action("Curve")->trigger();
        QTRY_VERIFY_WITH_TIMEOUT(Plot() && Plot()->graph(0)->dataCount() == 512, waitMs);
        SavePicture("upright-curve.png");
        const auto curve = Plot()->graph(0)->data();
        const auto lower = [](const QCPGraphData &a, const QCPGraphData &b) { return a.value < b.value; };
        const double brightest = std::max_element(curve->constBegin(), curve->constEnd(), lower)->key;
        QVERIFY2(std::abs(brightest - (truth.TrackCentre(0) - firstRow)) < 60, qPrintable(QString::number(brightest)));
        QTRY_COMPARE(Plot()->xAxis->range().upper, 511.0);

        // The band that is found is one of columns too: there is light at the green line.
        m_workbench->Action("Picture")->trigger();
        m_workbench->Action("Band Found by Itself")->trigger();
        QTRY_VERIFY_WITH_TIMEOUT(Spectra()->Shown().band.bottom - Spectra()->Shown().band.top < 400, waitMs);
        const RowBand found = Spectra()->Shown().band;
        QTRY_VERIFY(Band() && Band()->shape().contains(QPointF(found.top, 5)));
        QVERIFY(Band()->shape().contains(QPointF(found.bottom - 1, 500)));
        SavePicture("columns-found.png");
    }

    /// Across the tracks the curve has one value of each, and the bar goes over the columns.
    void theCurveGoesAcrossTheTracks()
    {
        m_workbench->Action("Curve")->trigger();
        m_workbench->Action("Find Tracks")->trigger();
        QTRY_COMPARE_WITH_TIMEOUT(Spectra()->Shown().tracks.size(), size_t(3), waitMs);
        m_workbench->Action("Vertical")->trigger();
        QTRY_VERIFY_WITH_TIMEOUT(Plot() && Plot()->graph(0)->dataCount() == 3, waitMs);
        auto *bar = Plot()->parentWidget()->findChild<QScrollBar *>(QString(), Qt::FindDirectChildrenOnly);
        QVERIFY(bar && bar->isVisible());
        QCOMPARE(bar->maximum(), 2048);
        const int green = qRound(truth.LinePosition(546.075, truth.TrackCentre(1)));
        bar->setValue(green);
        const auto isColumn = [&] {
            for (int track = 0; track < 3; ++track) {
                const double made = std::floor(Spectra()->Shown().tracks[size_t(track)].values[size_t(green)] + 0.5);
                if (Plot()->graph(0)->data()->at(track)->value != made)
                    return false;
            }
            return true;
        };
        QTRY_VERIFY_WITH_TIMEOUT(isColumn(), waitMs);
        SavePicture("across-tracks.png");
    }

    void tracksAreDrawnMovedResizedAndRemoved()
    {
        m_workbench->Action("Draw on the Picture")->trigger();
        const double first = truth.TrackCentre(0);
        const double second = truth.TrackCentre(1);
        Drag(QPointF(400, second - 60), QPointF(500, second + 60));
        QTRY_COMPARE(Tracks().size(), 1);
        Drag(QPointF(400, first - 60), QPointF(500, first + 60));
        QTRY_COMPARE(Tracks().size(), 2);
        QVERIFY(std::abs(Tracks()[0].top() - (first - 60)) <= Reach());
        QVERIFY(std::abs(Tracks()[1].bottom() - (second + 60)) <= Reach());
        QTRY_COMPARE_WITH_TIMEOUT(Spectra()->Shown().tracks.size(), size_t(2), waitMs);
        SavePicture("tracks-drawn.png");

        // Each has the light of its fibre: the green line stands where the optics put it.
        for (size_t i = 0; i < 2; ++i) {
            const std::vector<double> values = Spectra()->Shown().tracks[i].values;
            const double line = truth.LinePosition(546.075, truth.TrackCentre(int(i)));
            const auto from = values.begin() + int(line) - 20;
            const double brightest = double(std::max_element(from, from + 40) - values.begin());
            QVERIFY2(std::abs(brightest - line) < 3, qPrintable(QString("%1 and not %2").arg(brightest).arg(line)));
        }

        const double height = Tracks()[0].height();
        Drag(QPointF(700, first), QPointF(700, first - 30)); // the whole one
        QTRY_VERIFY(std::abs(Tracks()[0].top() - (first - 90)) <= 2 * Reach());
        QCOMPARE(Tracks()[0].height(), height);
        Drag(QPointF(700, Tracks()[0].bottom()), QPointF(700, first + 80)); // its edge
        QTRY_VERIFY(std::abs(Tracks()[0].bottom() - (first + 80)) <= 2 * Reach());

        // Over another one: refused, in words, and as it was.
        const QList<QRectF> before = Tracks();
        Drag(QPointF(700, first), QPointF(700, second));
        QTRY_COMPARE(m_workbench->StatusText(), QString("Tracks 1 and 2 overlap: move or remove one of them."));
        QCOMPARE(Tracks(), before);

        RemoveByMenu(QPointF(700, second));
        QTRY_COMPARE(Tracks().size(), 1);
        m_workbench->Action("Undo Remove Track")->trigger();
        QCOMPARE(Tracks(), before);
        m_workbench->Action("Clear Tracks")->trigger();
        QVERIFY(Tracks().isEmpty());
        QTest::keySequence(&m_workbench->window, QKeySequence::Undo);
        QTRY_COMPARE(Tracks(), before);
        // Not drawing any more, a drag moves the picture.
        m_workbench->Action("Draw on the Picture")->trigger();
        Drag(QPointF(700, first), QPointF(700, first + 100));
        QCOMPARE(Tracks(), before);
        m_workbench->Action("Show Tracks")->trigger();
    }

    void focusIsShownOnThePicture()
    {
        m_workbench->Action("Focus Assistance")->trigger();
        QTRY_VERIFY_WITH_TIMEOUT(!FocusTexts().isEmpty(), waitMs);
        QVERIFY(Mark("FocusCrossLine"));
        QTRY_COMPARE(m_workbench->OnScreen(QPointF(300, 1024)), QColor(Qt::green));
        QCOMPARE(FocusTexts().size(), Spectra()->GetAngleList().size());
        const QRegularExpression form(QString::fromUtf8("^[0-9]+\\.[0-9]{2}  -?[0-9]+\\.[0-9]{2}°$"));
        for (const QString &text : FocusTexts())
            QVERIFY2(form.match(text).hasMatch(), qPrintable(text));
        SavePicture("focus.png");
        m_workbench->Action("Focus Assistance")->trigger();
        QTRY_VERIFY(FocusTexts().isEmpty());
        QVERIFY(!Mark("FocusCrossLine"));
        m_workbench->Action("Focus Assistance")->trigger();
        QTRY_VERIFY_WITH_TIMEOUT(Mark("FocusCrossLine"), waitMs);
        m_workbench->Action("Focus Assistance")->trigger();
        QVERIFY(!Mark("FocusCrossLine"));
    }

    void keysSwitchTheDisplay()
    {
        const SpectrumSettings *settings = m_workbench->services.Spectrum();
        for (const int mode : {1, 2, 3, 4, 0}) {
            QTest::keyClick(&m_workbench->window, Qt::Key(Qt::Key_1 + mode), Qt::ControlModifier);
            QTRY_COMPARE(int(settings->Mode()), mode);
        }
        QTest::keyClick(&m_workbench->window, Qt::Key_3, Qt::ControlModifier);
        QTRY_VERIFY(qobject_cast<QCustomPlot *>(VisiblePlot(m_workbench->window.centralWidget())));
        QTest::keyClick(&m_workbench->window, Qt::Key_1, Qt::ControlModifier);
        QTRY_VERIFY(!VisiblePlot(m_workbench->window.centralWidget()));
    }

    /// No curve comes by itself: the plot is given its last one.
    void resetShowsTheWholeCurveOfAStandingCamera()
    {
        m_workbench->Action("Curve")->trigger();
        m_workbench->Action("All Rows")->trigger();
        QTRY_VERIFY_WITH_TIMEOUT(Plot() && Plot()->graph(0)->dataCount() == 2048 && Spectra()->Shown().raw.Count() == 2048, waitMs);
        m_workbench->services.Preview()->StopPreview();
        QTRY_VERIFY(!m_workbench->services.Preview()->isRunning());
        const auto wholeHeight = [this] {
            const auto curve = Plot()->graph(0)->data();
            const auto lower = [](const QCPGraphData &a, const QCPGraphData &b) { return a.value < b.value; };
            const double most = std::max_element(curve->constBegin(), curve->constEnd(), lower)->value;
            return most / (1 - m_workbench->services.Spectrum()->GetBlankRatio());
        };
        const QWidget *page = Plot()->parentWidget();
        for (int i = 0; i < 3; ++i)
            page->findChild<QPushButton *>("pushButton2DZoomOut")->click();
        QVERIFY(Plot()->yAxis->range().upper > 1.2 * wholeHeight());
        page->findChild<QPushButton *>("pushButton2DScaleReset")->click();
        QTRY_COMPARE(Plot()->yAxis->range().upper, wholeHeight());

        // The automatic zoom is on already; the reset counts all the same.
        Plot()->yAxis->setRange(0, 5 * wholeHeight());
        page->findChild<QPushButton *>("pushButton2DScaleReset")->click();
        QTRY_COMPARE(Plot()->yAxis->range().upper, wholeHeight());
    }

    /// They are the camera's.
    void thePageOfAnOpenedFileShowsNoTracks()
    {
        m_workbench->Action("Tracks in 3D")->trigger();
        m_workbench->Action("Find Tracks")->trigger();
        QTRY_COMPARE_WITH_TIMEOUT(Spectra()->Shown().tracks.size(), size_t(3), waitMs);
        QTRY_VERIFY(Plot3D());
        const Qwt3D::SurfacePlot *live = Plot3D();
        QTRY_VERIFY(ColouredPixels(Screen(live)) > 300);

        QImage picture(640, 480, QImage::Format_Grayscale8);
        picture.fill(90);
        const QString path = m_folder->filePath("grey.png");
        QVERIFY(picture.save(path));
        PictureDesk *desk = m_workbench->services.Desk();
        desk->Open({path}, desk->MainPicture());
        QTRY_COMPARE(m_workbench->services.Config()->GetCurrentView(), int(ImageView));
        QTRY_COMPARE(Notice(), QString("An opened file has no tracks: go to the camera."));
        QSignalSpy announced(Spectra(), SIGNAL(SignalUpdateMultiTrack(void *)));
        Spectra()->ShowAgain(); // as a frame does that waited
        QCoreApplication::processEvents();
        QVERIFY(announced.isEmpty());
        QVERIFY(!Plot3D());
        SavePicture("image-page-3d.png");
        m_workbench->Action("Export Plot…")->trigger();
        QCOMPARE(m_workbench->StatusText(), QString("There is no plot to export: show the curve or the tracks in 3D first."));

        m_workbench->services.Config()->SetCameraView();
        QTRY_COMPARE(Plot3D(), live);
        QVERIFY(Notice().isEmpty());
        QTRY_VERIFY(ColouredPixels(Screen(live)) > 300);
    }

    /// What is gone is not shown, turned or exported as if it were of now.
    void withoutTracksThe3DPageSaysSo()
    {
        m_workbench->Action("Tracks in 3D")->trigger();
        QTRY_COMPARE(Notice(), QString("There are no tracks to show: draw them on the picture or have them found."));
        QVERIFY(!Plot3D());
        m_workbench->Action("Find Tracks")->trigger();
        QTRY_VERIFY_WITH_TIMEOUT(Plot3D(), waitMs);
        QVERIFY(Notice().isEmpty());

        m_workbench->Action("Clear Tracks")->trigger();
        QTRY_VERIFY(!Plot3D());
        QVERIFY(!Notice().isEmpty());
        SavePicture("no-tracks-3d.png");
        m_workbench->Action("Export Plot…")->trigger();
        QCOMPARE(m_workbench->StatusText(), QString("There is no plot to export: show the curve or the tracks in 3D first."));
        m_workbench->Action("Undo Clear Tracks")->trigger();
        QTRY_VERIFY_WITH_TIMEOUT(Plot3D(), waitMs);
        const QString switchedOff = "The tracks are switched off.";
        m_workbench->Action("Show Tracks")->trigger();
        QTRY_COMPARE(Notice(), switchedOff);
        QVERIFY(!Plot3D());
        m_workbench->Action("Show Tracks")->trigger();
        QTRY_VERIFY_WITH_TIMEOUT(Plot3D(), waitMs);
        m_workbench->Action("All Rows")->trigger();
        QTRY_COMPARE(Notice(), switchedOff);
        m_workbench->Action("Curve")->trigger();
        m_workbench->Action("Tracks in 3D")->trigger();
        QTRY_COMPARE(Notice(), switchedOff);
        QVERIFY(!Plot3D());
    }

private:
    SpectrumPipeline *Spectra() const { return m_workbench->services.Spectra(); }

    /// The mark of a class on the live picture; null without one.
    const QGraphicsObject *Mark(const char *className) const
    {
        for (QGraphicsItem *item : m_workbench->View()->scene()->items()) {
            const QGraphicsObject *object = item->toGraphicsObject();
            if (object && object->inherits(className) && object->isVisible())
                return object;
        }
        return nullptr;
    }

    const QGraphicsObject *Band() const { return Mark("FVBLine"); }

    static std::vector<double> SumsOfColumns(const CameraFrame &frame, int from, int to)
    {
        std::vector<double> sums;
        for (int y = 0; y < frame.height; ++y) {
            const auto *row = reinterpret_cast<const quint16 *>(frame.Row(y));
            sums.push_back(std::accumulate(row + from, row + to, 0.0));
        }
        return sums;
    }

    QList<QRectF> Tracks() const { return m_workbench->services.Spectrum()->GetMultiTrackList(); }

    /// One pixel of the screen, in rows of the picture.
    double Reach() const { return 1 / m_workbench->Scale() + 1; }

    void Drag(const QPointF &from, const QPointF &to) const
    {
        QGraphicsView *view = m_workbench->View();
        const QPoint first = view->mapFromScene(from);
        const QPoint last = view->mapFromScene(to);
        QTest::mousePress(view->viewport(), Qt::LeftButton, Qt::NoModifier, first);
        for (const QPoint &place : {(first + last) / 2, last}) {
            QMouseEvent move(QEvent::MouseMove, place, view->viewport()->mapToGlobal(place), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(view->viewport(), &move);
        }
        QTest::mouseRelease(view->viewport(), Qt::LeftButton, Qt::NoModifier, last);
    }

    void RemoveByMenu(const QPointF &scenePos) const
    {
        QGraphicsView *view = m_workbench->View();
        const QPoint place = view->mapFromScene(scenePos);
        QContextMenuEvent wish(QContextMenuEvent::Mouse, place, view->viewport()->mapToGlobal(place));
        QApplication::sendEvent(view->viewport(), &wish);
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QCOMPARE(menu->actions().value(0)->text(), QString("Remove Track 2"));
        menu->actions().value(0)->trigger();
        menu->close();
    }

    QStringList FocusTexts() const
    {
        QStringList texts;
        for (const QGraphicsItem *item : m_workbench->View()->scene()->items()) {
            if (const auto *text = qgraphicsitem_cast<const QGraphicsSimpleTextItem *>(item))
                texts << text->text();
        }
        return texts;
    }

    Qwt3D::SurfacePlot *Plot3D() const
    {
        for (auto *plot : m_workbench->window.findChildren<Qwt3D::SurfacePlot *>()) {
            if (plot->isVisible())
                return plot;
        }
        return nullptr;
    }

    /// The words on the 3D page.
    QString Notice() const
    {
        for (const QLabel *label : m_workbench->window.centralWidget()->findChildren<QLabel *>()) {
            if (label->isVisible() && label->parentWidget()->inherits("Spectrum3DDrawViewBase"))
                return label->text();
        }
        return QString();
    }

    static QImage Screen(const QWidget *widget)
    {
        const QPoint corner = widget->mapToGlobal(QPoint(0, 0));
        return QGuiApplication::primaryScreen()->grabWindow(0, corner.x(), corner.y(), widget->width(), widget->height()).toImage();
    }

    /// For the eye, where a folder is given for it.
    void SavePicture(const QString &name) const
    {
        const QString folder = qEnvironmentVariable("SCENARIO_PICTURES");
        if (!folder.isEmpty())
            Screen(&m_workbench->window).save(folder + '/' + name);
    }
};

GUARDED_TEST_MAIN(LiveSpectrumScenario)
#include "tst_livespectrum.moc"
