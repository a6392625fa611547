// SPDX-License-Identifier: GPL-3.0-or-later
#include "intensitymanager.h"
#include "palette.h"
#include "payloadlocker.h"
#include "scenariotest.h"
#include "spectrographoptics.h"
#include "spectrumcurvepayload.h"
#include "spectrumonscreen.h"
#include "spectrumuimanager.h"

#include <QAction>
#include <QGraphicsView>
#include <QLabel>
#include <QSignalSpy>

#include <algorithm>
#include <cmath>

namespace {

const SpectrographOptics Truth(QSize(2048, 2048));

/// The row profile that is shown, from the announcement on.
class ShownRow : public QObject
{
public:
    ShownRow()
    {
        // After the page, which exchanges the buffers.
        connect(IntensityManager::GetInstance(), &IntensityManager::SignalUpdateCurve, this,
                [this](void *announced) { Take(static_cast<SpectrumCurvePayload *>(announced)); }, Qt::QueuedConnection);
    }

    std::vector<int> samples;
    int count = 0;

    /// Where the brightest sample around a place is.
    int PeakNear(double place) const
    {
        const auto first = samples.begin() + int(place) - 10;
        return int(std::max_element(first, first + 20) - samples.begin());
    }

private:
    void Take(SpectrumCurvePayload *payload)
    {
        const PayloadLocker locker(payload->lock);
        samples.assign(payload->horizontalShow, payload->horizontalShow + payload->horizontalSize);
        ++count;
    }
};

} // namespace

/// A person reads the lines of a lamp off the sensor of a spectrometer.
class SpectrumAidsScenario : public ScenarioTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        ScenarioTest::init();
        m_workbench->link.SetScene("spectrograph");
        m_workbench->Action("Spectrum Page")->trigger();
        QTRY_VERIFY(Page().Image());
        QVERIFY(m_workbench->WaitForNextPicture());
    }

    void curveFollowsThePickedRow();
    void paletteIsThatOfPictureAndBar();
    void aidsAreSwitchedOneByOne();
    void widthOfTheBandIsChosen();
    void startsWhereItEnded();
    void menuSaysWhatIsShown();
    void curveIsDrawn();
    void barOfAColourPictureIsGrey();

private:
    void Click(const QPointF &scenePos) const { Page().Drag(scenePos, scenePos); }
    SpectrumOnScreen Page() const { return SpectrumOnScreen(&m_workbench->window); }

};

void SpectrumAidsScenario::curveFollowsThePickedRow()
{
    ShownRow row;
    for (const int track : {0, 2}) {
        const double y = Truth.TrackCentre(track);
        Click(QPointF(1000, y));
        const int before = row.count;
        QTRY_VERIFY(row.count > before + 2);
        QCOMPARE(int(row.samples.size()), 2048);
        for (const double wavelength : {546.075, 696.543, 811.531}) {
            const double truth = Truth.LinePosition(wavelength, y);
            QVERIFY2(std::abs(row.PeakNear(truth) - truth) < 4,
                     qPrintable(QString("track %1, %2 nm: %3 for %4").arg(track).arg(wavelength)
                                    .arg(row.PeakNear(truth)).arg(truth)));
            QVERIFY(row.samples[size_t(truth)] > 40);
        }
        QVERIFY(row.samples[900] < 30);
    }
    // Between the tracks it is dark.
    Click(QPointF(1000, (Truth.TrackCentre(0) + Truth.TrackCentre(1)) / 2));
    const int before = row.count;
    QTRY_VERIFY(row.count > before + 2);
    QVERIFY(row.samples[size_t(Truth.LinePosition(546.075, 768))] < 30);
}

void SpectrumAidsScenario::paletteIsThatOfPictureAndBar()
{
    QSignalSpy colours(IntensityManager::GetInstance(), &IntensityManager::SignalPseudoColorsUpdate);
    for (const char *name : {"Viridis", "Inverted", "Turbo"}) {
        m_workbench->Action(name)->trigger();
        QVERIFY(m_workbench->Action(name)->isChecked());
        const Palette palette(QString(name).toLower());
        QCOMPARE(colours.takeLast().first().value<QVector<QColor>>(), palette.Colours());
        QVERIFY(m_workbench->WaitForNextPicture());
        // A dark place of the sensor: the offset is 2 % of full scale, 5 of 255.
        const QGraphicsView *view = Page().Image();
        const QPoint place = view->viewport()->mapToGlobal(view->mapFromScene(QPointF(300, 20)));
        QTRY_VERIFY([&] {
            const QColor seen = m_workbench->OnScreenAt(place);
            const QColor wanted(palette.Colour(5));
            return std::abs(seen.red() - wanted.red()) < 12 && std::abs(seen.green() - wanted.green()) < 12
                && std::abs(seen.blue() - wanted.blue()) < 12;
        }());
        for (const QWidget *widget : m_workbench->window.findChildren<QWidget *>()) {
            if (!widget->inherits("GradientColorLayoutItem") || !widget->isVisible())
                continue;
            const QPoint first = widget->mapToGlobal(QPoint(6, widget->height() / 2));
            QCOMPARE(m_workbench->OnScreenAt(first), QColor(palette.Colour(0)));
        }
    }
}

void SpectrumAidsScenario::aidsAreSwitchedOneByOne()
{
    const struct
    {
        const char *action;
        const char *className;
        int count;
    } aids[] = {{"Rulers", "RulerBarVertical", 1},
                {"Intensity Curves", "IntensityCurveLayoutItem", 2},
                {"Colour Bar", "GradientColorLayoutItem", 1}};
    for (const auto &aid : aids)
        QTRY_COMPARE(Page().Aids(aid.className), aid.count);
    for (const auto &aid : aids) {
        const int heightBefore = Page().Image()->height();
        m_workbench->Action(aid.action)->trigger();
        for (const auto &other : aids)
            QCOMPARE(Page().Aids(other.className), &other == &aid ? 0 : other.count);
        QVERIFY(Page().Image()->height() >= heightBefore);
        m_workbench->Action(aid.action)->trigger();
        QCOMPARE(Page().Aids(aid.className), aid.count);
    }
    m_workbench->Action("Spectrum Page")->trigger();
    QTRY_VERIFY(!Page().Image());
    QVERIFY(!m_workbench->Action("Rulers")->isEnabled());
}

void SpectrumAidsScenario::widthOfTheBandIsChosen()
{
    ShownRow row;
    Click(QPointF(1000, Truth.TrackCentre(0)));
    // The noise between two lines is what a mean takes away.
    const auto noise = [&] {
        const int before = row.count;
        if (!QTest::qWaitFor([&] { return row.count > before + 2; }))
            return -1.0;
        double sum = 0;
        double squares = 0;
        for (size_t x = 850; x < 1050; ++x) {
            sum += row.samples[x];
            squares += double(row.samples[x]) * row.samples[x];
        }
        return squares / 200 - sum / 200 * sum / 200;
    };
    const double alone = noise();
    const auto *width = m_workbench->window.findChild<QLabel *>("labelStatusCurves");
    QVERIFY(width->isVisible());
    QCOMPARE(width->text(), QString("curves of one line"));
    m_workbench->Action("Mean of 51")->trigger();
    QCOMPARE(width->text(), QString("curves: mean of 51 lines"));
    const double mean = noise();
    QVERIFY(alone > 0 && mean >= 0);
    QVERIFY2(mean < alone / 3 + 0.3, qPrintable(QString("%1 of %2").arg(mean).arg(alone)));
    QVERIFY(m_workbench->Action("Mean of 51")->isChecked());
    // It is said while a curve is seen.
    m_workbench->Action("Intensity Curves")->trigger();
    QVERIFY(!width->isVisible());
    m_workbench->Action("Curve")->trigger(); // which is one
    QVERIFY(width->isVisible());
    m_workbench->Action("Picture")->trigger();
    QVERIFY(!width->isVisible());
}

void SpectrumAidsScenario::startsWhereItEnded()
{
    m_workbench->Action("Magma")->trigger();
    m_workbench->Action("Intensity Curves")->trigger();
    m_workbench->settings.Settings()->setValue("spectrum/profileLines", 7); // by hand
    m_workbench.reset();
    m_workbench = std::make_unique<RunningWorkbench>(m_folder->path());
    QVERIFY(m_workbench->WaitForPicture());
    QTRY_VERIFY(Page().Image());
    QTRY_COMPARE(Page().Aids("RulerBarVertical"), 1);
    QCOMPARE(Page().Aids("IntensityCurveLayoutItem"), 0);
    QVERIFY(m_workbench->Action("Magma")->isChecked());
    QVERIFY(m_workbench->Action("Spectrum Page")->isChecked());
    QVERIFY(m_workbench->Action("Mean of 7")->isChecked());
    for (const QWidget *widget : m_workbench->window.findChildren<QWidget *>()) {
        if (!widget->inherits("GradientColorLayoutItem") || !widget->isVisible())
            continue;
        const QPoint last = widget->mapToGlobal(QPoint(widget->width() / 2, widget->height() / 2));
        QTRY_VERIFY(m_workbench->OnScreenAt(last).saturation() > 50);
    }
}

void SpectrumAidsScenario::menuSaysWhatIsShown()
{
    QAction *spectrum = m_workbench->Action("Spectrum Page");
    QVERIFY(spectrum->isChecked());
    m_workbench->Action("Picture")->trigger(); // within the use for spectra
    QTRY_VERIFY(!Page().Image());
    QVERIFY(!spectrum->isChecked());
    QVERIFY(!m_workbench->Action("Rulers")->isEnabled());
    spectrum->trigger();
    QTRY_VERIFY(Page().Image());
    QVERIFY(spectrum->isChecked());
    QVERIFY(m_workbench->Action("Rulers")->isEnabled());
    spectrum->trigger();
    QTRY_VERIFY(!Page().Image());
    QVERIFY(!spectrum->isChecked());
    m_workbench->Action("Sensor Image")->trigger();
    QTRY_VERIFY(Page().Image());
    QVERIFY(spectrum->isChecked());
}

/// On the screen: the row curve stands out where the lamp has a line.
void SpectrumAidsScenario::curveIsDrawn()
{
    const double y = Truth.TrackCentre(1);
    Click(QPointF(300, y));
    const QColor colour = SpectrumUIManager::GetInstance()->GetLineColor();
    const double line = Truth.LinePosition(546.075, y);
    QTRY_VERIFY(Page().RowCurveAt(line, colour) >= 0);
    QTRY_VERIFY(Page().RowCurveAt(line - 150, colour) > Page().RowCurveAt(line, colour) + 8);
    // Between two tracks there is no light.
    Click(QPointF(300, (Truth.TrackCentre(0) + Truth.TrackCentre(1)) / 2));
    QTRY_VERIFY(Page().RowCurveAt(line, colour) > Page().RowCurveAt(line - 150, colour) - 4);
}

void SpectrumAidsScenario::barOfAColourPictureIsGrey()
{
    m_workbench->Action("Viridis")->trigger();
    const auto saturationInBar = [&] {
        const QWidget *bar = Page().Aid("GradientColorLayoutItem");
        return bar ? m_workbench->OnScreenAt(bar->mapToGlobal(bar->rect().center())).saturation() : -1;
    };
    QTRY_VERIFY(saturationInBar() > 50);
    m_workbench->link.SetPixelLayout(PixelLayout::Rgb8);
    QTRY_COMPARE(saturationInBar(), 0);
    m_workbench->link.SetPixelLayout(PixelLayout::Mono16);
    QTRY_VERIFY(saturationInBar() > 50);
}

GUARDED_TEST_MAIN(SpectrumAidsScenario)
#include "tst_spectrumaids.moc"
