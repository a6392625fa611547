// SPDX-License-Identifier: GPL-3.0-or-later
#include "line3d.h"
#include "plotpicture.h"
#include "spectrographscenario.h"
#include "spectrumpipeline.h"
#include "spectrumsettings.h"

#include <QAction>
#include <QSignalSpy>

#include <qcustomplot.h>
#include <qwt3d_surfaceplot.h>

#include <vector>

namespace {

/// The plot's track lines.
struct PlotLines : Qwt3D::SurfacePlot
{
    static std::vector<Qwt3D::TripleField> Of(const Qwt3D::SurfacePlot *plot)
    {
        std::vector<Qwt3D::TripleField> lines;
        for (const Qwt3D::Enrichment *enrichment : plot->*(&PlotLines::elist_p))
            lines = static_cast<const Qwt3D::Line3D *>(enrichment)->lines();
        return lines;
    }
};

} // namespace

/// A person looks closer at a curve, and at other tracks.
class PlotZoomScenario : public SpectrographScenario
{
    Q_OBJECT

private slots:
    void theWheelEndsTheAutomaticRanges_data()
    {
        QTest::addColumn<bool>("atTheCounts");
        QTest::newRow("over the curve") << false;
        QTest::newRow("over its counts") << true;
    }

    void theWheelEndsTheAutomaticRanges()
    {
        QFETCH(bool, atTheCounts);
        ShowCurve();
        const QRect curve = Plot()->axisRect()->rect();
        const QPoint place = atTheCounts ? QPoint(curve.left() - 3, curve.center().y()) : curve.center();
        const double height = Plot()->yAxis->range().size();
        TurnWheelAt(place);
        QVERIFY(!Spectrum()->GetZoomAutoFlag());
        const QCPRange zoomed = Plot()->yAxis->range();
        QVERIFY(zoomed.size() < 0.9 * height);
        WaitForSpectra(3);
        QCOMPARE(Plot()->yAxis->range(), zoomed);
    }

    void theWheelBesideTheCurveDoesNothing()
    {
        ShowCurve();
        TurnWheelAt(QPoint(Plot()->axisRect()->rect().center().x(), Plot()->height() - 4));
        QVERIFY(Spectrum()->GetZoomAutoFlag());
    }

    void newTracksLieInTheBox()
    {
        ShowTracks(5);
        const double five = Box().y;
        ShowTracks(20);
        QVERIFY(Box().y > 2 * five);
        ShowTracks(3);
        QCOMPARE(Box().y, five);
        // Of another width too.
        m_workbench->link.SetRegion(QRect(0, 0, 1024, 2048));
        QTRY_COMPARE_WITH_TIMEOUT(Box().x, 1024.0, waitMs);
        CheckLines(3);
        m_workbench->link.SetRegion(QRect(0, 0, 2048, 2048));
        QTRY_COMPARE_WITH_TIMEOUT(Box().x, 2048.0, waitMs);
        CheckLines(3);
    }

    /// The same ones elsewhere on the picture don't take the user's view away.
    void movedTracksKeepTheView()
    {
        ShowTracks(5);
        Plot3D()->setRotation(40, 0, 10);
        QVERIFY(Spectrum()->SetTracks(Tracks(5, 7)));
        WaitForSpectra(3);
        QCOMPARE(Plot3D()->xRotation(), 40.0);
    }

private:
    SpectrumSettings *Spectrum() const { return m_workbench->services.Spectrum(); }

    void WaitForSpectra(int count) const
    {
        QSignalSpy shown(m_workbench->services.Spectra(), &SpectrumPipeline::signalSpectrumShown);
        QTRY_VERIFY_WITH_TIMEOUT(shown.size() >= count, waitMs);
        QCoreApplication::processEvents(); // the plots take the last one
    }

    /// All rows, in automatic ranges.
    void ShowCurve() const
    {
        m_workbench->Action("Curve")->trigger();
        m_workbench->Action("All Rows")->trigger();
        QTRY_VERIFY_WITH_TIMEOUT(Plot() && Plot()->graph(0)->dataCount() == 2048, waitMs);
        Spectrum()->SetZoomAutoFlag(true);
        WaitForSpectra(2);
    }

    void TurnWheelAt(const QPoint &place) const
    {
        QWheelEvent wheel(place, Plot()->mapToGlobal(place), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(Plot(), &wheel);
    }

    /// Tracks of 40 rows over the whole sensor, from a row on.
    static QList<QRectF> Tracks(int count, int first)
    {
        QList<QRectF> tracks;
        for (int i = 0; i < count; ++i)
            tracks << QRectF(0, first + 100 * i, 2048, 40);
        return tracks;
    }

    Qwt3D::SurfacePlot *Plot3D() const
    {
        return qobject_cast<Qwt3D::SurfacePlot *>(VisiblePlot(m_workbench->window.centralWidget()));
    }

    /// The far corner of the box; the near one is the origin.
    Qwt3D::Triple Box() const { return Plot3D()->hull().maxVertex; }

    void ShowTracks(int count) const
    {
        m_workbench->Action("Tracks in 3D")->trigger();
        QVERIFY(Spectrum()->SetTracks(Tracks(count, 10)));
        Spectrum()->SetMultiTrackOnFlag(true);
        QTRY_COMPARE_WITH_TIMEOUT(m_workbench->services.Spectra()->Shown().tracks.size(), size_t(count), waitMs);
        QTRY_VERIFY_WITH_TIMEOUT(Plot3D() && PlotLines::Of(Plot3D()).size() == size_t(count), waitMs);
        WaitForSpectra(1);
        CheckLines(count);
    }

    void CheckLines(int count) const
    {
        const std::vector<Qwt3D::TripleField> lines = PlotLines::Of(Plot3D());
        QCOMPARE(lines.size(), size_t(count));
        for (const Qwt3D::TripleField &line : lines) {
            QVERIFY2(line.back().x <= Box().x, qPrintable(QString("%1 of %2").arg(line.back().x).arg(Box().x)));
            QVERIFY2(line.back().y <= Box().y, qPrintable(QString("%1 of %2").arg(line.back().y).arg(Box().y)));
        }
    }
};

GUARDED_TEST_MAIN(PlotZoomScenario)
#include "tst_plotzoom.moc"
