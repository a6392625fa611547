// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "intensitymanager.h"
#include "palette.h"
#include "payloadlocker.h"
#include "runningworkbench.h"
#include "spectrographoptics.h"
#include "spectrumcurvepayload.h"

#include <QAction>
#include <QGraphicsView>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QSignalSpy>
#include <QTemporaryDir>

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
class SpectrumAidsScenario : public GuardedTest
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

    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<QTemporaryDir>();
        m_workbench = std::make_unique<RunningWorkbench>(m_folder->path());
        QVERIFY(m_workbench->WaitForPicture());
        m_workbench->link.SetScene("spectrograph");
        m_workbench->Action("Spectrum Page")->trigger();
        QTRY_VERIFY(SpectrumImage());
        QVERIFY(m_workbench->WaitForNextPicture());
    }

    void cleanup() override
    {
        m_workbench.reset();
        m_folder.reset();
        EndGuard();
    }

    void curveFollowsThePickedRow();
    void paletteIsThatOfPictureAndBar();
    void aidsAreSwitchedOneByOne();
    void widthOfTheBandIsChosen();
    void startsWhereItEnded();

private:
    QGraphicsView *SpectrumImage() const
    {
        for (QGraphicsView *view : m_workbench->window.findChildren<QGraphicsView *>()) {
            if (view->inherits("SpectrumDrawViewBase") && view->isVisible())
                return view;
        }
        return nullptr;
    }

    /// Of the live page: those that can be seen.
    int VisibleAids(const char *className) const
    {
        int count = 0;
        for (const QWidget *widget : m_workbench->window.findChildren<QWidget *>())
            count += widget->inherits(className) && widget->isVisible();
        return count;
    }

    void Click(const QPointF &scenePos) const
    {
        QGraphicsView *view = SpectrumImage();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, view->mapFromScene(scenePos));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RunningWorkbench> m_workbench;
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
        const QGraphicsView *view = SpectrumImage();
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
        QTRY_COMPARE(VisibleAids(aid.className), aid.count);
    for (const auto &aid : aids) {
        const int heightBefore = SpectrumImage()->height();
        m_workbench->Action(aid.action)->trigger();
        for (const auto &other : aids)
            QCOMPARE(VisibleAids(other.className), &other == &aid ? 0 : other.count);
        QVERIFY(SpectrumImage()->height() >= heightBefore);
        m_workbench->Action(aid.action)->trigger();
        QCOMPARE(VisibleAids(aid.className), aid.count);
    }
    m_workbench->Action("Spectrum Page")->trigger();
    QTRY_VERIFY(!SpectrumImage());
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
    m_workbench->Action("Mean of 51")->trigger();
    const double mean = noise();
    QVERIFY(alone > 0 && mean >= 0);
    QVERIFY2(mean < alone / 3 + 0.3, qPrintable(QString("%1 of %2").arg(mean).arg(alone)));
    QVERIFY(m_workbench->Action("Mean of 51")->isChecked());
}

void SpectrumAidsScenario::startsWhereItEnded()
{
    m_workbench->Action("Magma")->trigger();
    m_workbench->Action("Intensity Curves")->trigger();
    m_workbench.reset();
    m_workbench = std::make_unique<RunningWorkbench>(m_folder->path());
    QVERIFY(m_workbench->WaitForPicture());
    QTRY_VERIFY(SpectrumImage());
    QTRY_COMPARE(VisibleAids("RulerBarVertical"), 1);
    QCOMPARE(VisibleAids("IntensityCurveLayoutItem"), 0);
    QVERIFY(m_workbench->Action("Magma")->isChecked());
    for (const QWidget *widget : m_workbench->window.findChildren<QWidget *>()) {
        if (!widget->inherits("GradientColorLayoutItem") || !widget->isVisible())
            continue;
        const QPoint last = widget->mapToGlobal(QPoint(widget->width() / 2, widget->height() / 2));
        QTRY_VERIFY(m_workbench->OnScreenAt(last).saturation() > 50);
    }
}

GUARDED_TEST_MAIN(SpectrumAidsScenario)
#include "tst_spectrumaids.moc"
