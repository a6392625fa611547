// SPDX-License-Identifier: GPL-3.0-or-later
#include "livepreview.h"
#include "spectrographscenario.h"
#include "spectrumpipeline.h"
#include "spectrumsettings.h"

#include <QAction>

#include <qcustomplot.h>

#include <algorithm>

/// A person changes what the curve is made of, and still sees it: values of another size get a range of their own.
class CurveRangesScenario : public SpectrographScenario
{
    Q_OBJECT

private slots:
    void otherRows()
    {
        Trigger({"Curve"});
        QTRY_VERIFY_WITH_TIMEOUT(Plot() && IsSeen(), waitMs);
        Trigger({"Find Tracks"});
        CheckSeen();
        Trigger({"Show Tracks"}); // no more: a row of the picture takes their place
        constexpr double mostOfAPixel = 65535;
        QTRY_VERIFY_WITH_TIMEOUT(Values().second <= mostOfAPixel, waitMs);
        QTRY_VERIFY2(IsSeen(), qPrintable(Told()));
        Trigger({"All Rows"});
        CheckSeen();
        Trigger({"Band Found by Itself"});
        CheckSeen();
        QVERIFY(Spectra()->Shown().band.bottom - Spectra()->Shown().band.top < 1000);
    }

    void anotherDirection()
    {
        Trigger({"Curve", "All Rows"});
        CheckSeen();
        Trigger({"Vertical"});
        CheckSeen();
        Trigger({"Band by Hand"});
        m_workbench->services.Spectrum()->SetTop(580);
        m_workbench->services.Spectrum()->SetBottom(600);
        CheckSeen();
        QCOMPARE(Spectra()->Shown().band.bottom, 601);
        Trigger({"Horizontal", "Find Tracks"});
        CheckSeen();
        Trigger({"Vertical"});
        CheckSeen();
        QCOMPARE(Plot()->graph(0)->dataCount(), 3);
    }

    void otherCorrections()
    {
        Trigger({"Curve", "All Rows"});
        CheckSeen();
        QVERIFY(Spectra()->TakeDark() && Spectra()->TakeReference());
        for (const char *correction : {"Subtract Dark", "Subtract Dark", "Remove Baseline", "Remove Baseline", "Subtract Reference",
                                       "Subtract Reference", "Transmission", "Absorbance", "Counts"}) {
            Trigger({correction});
            CheckSeen();
        }
        QVERIFY(m_workbench->services.Spectrum()->Recipe().corrections == CorrectionSettings());
    }

    /// Only what the values are counts, not how many or how bright they are.
    void aRangeThatWasChosenStays()
    {
        Trigger({"Curve", "All Rows"});
        CheckSeen();
        const QCPRange chosen(1000, 1234567);
        Plot()->yAxis->setRange(chosen);
        Trigger({"16 Spectra", "9 Samples", "Remove Cosmic Rays"});
        WaitForFrames();
        QCOMPARE(Plot()->yAxis->range(), chosen);
    }

private:
    SpectrumPipeline *Spectra() const { return m_workbench->services.Spectra(); }

    void Trigger(const QStringList &actions) const
    {
        for (const QString &action : actions) {
            QVERIFY2(m_workbench->Action(action), qPrintable(action));
            m_workbench->Action(action)->trigger();
        }
    }

    /// Some that came after what was chosen are drawn.
    void WaitForFrames() const
    {
        constexpr quint64 frames = 8; // some wait
        const quint64 before = m_workbench->services.Preview()->ShownFrame().frameId;
        QTRY_VERIFY_WITH_TIMEOUT(Spectra()->Shown().HasSpectrum() && Spectra()->Shown().frameId > before + frames, waitMs);
        QCoreApplication::processEvents();
    }

    void CheckSeen() const
    {
        WaitForFrames();
        QTRY_VERIFY2(IsSeen(), qPrintable(Told()));
    }

    /// The least and the most of the curve.
    std::pair<double, double> Values() const
    {
        const auto curve = Plot()->graph(0)->data();
        const auto lower = [](const QCPGraphData &a, const QCPGraphData &b) { return a.value < b.value; };
        const auto ends = std::minmax_element(curve->constBegin(), curve->constEnd(), lower);
        return {ends.first->value, ends.second->value};
    }

    /// It lies in the axis, as far as the light stays the same from frame to frame, and the axis goes not far beyond it.
    bool IsSeen() const
    {
        constexpr double leastInside = 0.8; // of the samples
        constexpr double mostAbove = 2;     // times the highest; the blank space and the flicker take less
        const auto curve = Plot()->graph(0)->data();
        const QCPRange range = Plot()->yAxis->range();
        const auto inside = std::count_if(curve->constBegin(), curve->constEnd(),
                                          [range](const QCPGraphData &sample) { return range.contains(sample.value); });
        return !curve->isEmpty() && double(inside) >= leastInside * curve->size() && range.upper <= mostAbove * Values().second;
    }

    QString Told() const
    {
        const QCPRange range = Plot()->yAxis->range();
        return QString("%1 to %2, axis %3 to %4").arg(Values().first).arg(Values().second).arg(range.lower).arg(range.upper);
    }
};

GUARDED_TEST_MAIN(CurveRangesScenario)
#include "tst_curveranges.moc"
