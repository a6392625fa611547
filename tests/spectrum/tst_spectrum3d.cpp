// SPDX-License-Identifier: GPL-3.0-or-later
#include "customscale.h"
#include "drawviewfixture.h"
#include "guardedtest.h"
#include "line3d.h"
#include "plotpage.h"
#include "spectrum3ddrawframebase.h"
#include "spectrum3ddrawviewbase.h"
#include "spectrumzoomui.h"

#include <QFile>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include <qwt3d_surfaceplot.h>

namespace {

/// The plot's enrichments.
struct PlotLines : Qwt3D::SurfacePlot
{
    static QList<const Qwt3D::Line3D *> Of(const Qwt3D::SurfacePlot *plot)
    {
        QList<const Qwt3D::Line3D *> lines;
        for (const Qwt3D::Enrichment *enrichment : plot->*(&PlotLines::elist_p))
            lines << dynamic_cast<const Qwt3D::Line3D *>(enrichment);
        return lines;
    }
};

/// The 3D page, 600 x 400, in 3D mode, without a window manager's decoration.
struct Page3D
{
    explicit Page3D(int tracks = 3, int width = 300)
    {
        services.spectrumUI.displayModeGeneral = false;
        services.spectrumUI.displayMode3D = true;
        services.frame.frameWidth = quint16(width);
        SetTracks(tracks, width);
        page.setWindowFlag(Qt::FramelessWindowHint);
        page.resize(600, 400);
        view = page.findChild<Spectrum3DDrawViewBase *>();
        plot = page.findChild<Qwt3D::SurfacePlot *>();
    }

    void SetTracks(int count, int width)
    {
        services.spectrumUI.multiTrackList.clear();
        for (int i = 0; i < count; ++i)
            services.spectrumUI.multiTrackList << QRectF(0, 5 * i, width, 10); // each over half of the next
    }

    bool Show()
    {
        page.show();
        return QTest::qWaitForWindowExposed(&page);
    }

    /// Data of this height; every track is flat.
    void Update(int maximum = 65535)
    {
        const QList<QRectF> tracks = services.spectrumUI.multiTrackList;
        const size_t width = tracks.isEmpty() ? 1 : size_t(qMax(1.0, tracks.first().width()));
        payload =
            std::make_unique<LinePayload>(Values(width * size_t(qMax(1, tracks.size())), unsigned(maximum)));
        payload->record.maximum = maximum;
        view->SlotUpdateMultiTrack(payload->Param());
    }

    void Click(const char *name) const
    {
        page.findChild<SpectrumZoomUI *>()->findChild<QPushButton *>(name)->click();
    }

    QString Scales() const
    {
        return QString("%1 %2 %3").arg(plot->xScale()).arg(plot->yScale()).arg(plot->zScale());
    }

    DisplayScale scale{ 1.0 };
    FakeServices services;
    Spectrum3DDrawFrameBase page{ nullptr };
    Spectrum3DDrawViewBase *view;
    Qwt3D::SurfacePlot *plot;
    std::unique_ptr<LinePayload> payload;
};

QString Text(const Qwt3D::Triple &triple)
{
    return QString("%1 %2 %3").arg(triple.x).arg(triple.y).arg(triple.z);
}

/// The texts in the plot, in the order they are drawn.
QStringList Texts(Qwt3D::SurfacePlot *plot)
{
    QTemporaryDir folder;
    const QString name = folder.filePath("plot.eps");
    plot->saveVector(name, "EPS", Qwt3D::VectorWriter::NATIVE, Qwt3D::VectorWriter::NOSORT);
    QFile file(name);
    QStringList texts;
    if (!file.open(QIODevice::ReadOnly))
        return texts;
    const QRegularExpression form("^\\((.+)\\) [-0-9.]+ [-0-9.]+ [0-9]+ /");
    while (!file.atEnd()) {
        const QRegularExpressionMatch match = form.match(QString::fromLatin1(file.readLine()));
        if (match.hasMatch())
            texts << match.captured(1);
    }
    return texts;
}

QStringList Positions(const Qwt3D::Axis &axis)
{
    QStringList positions;
    for (const Qwt3D::Triple &position : axis.majorPositions())
        positions << Text(position);
    return positions;
}

} // namespace

class TestSpectrum3D : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase() { StartOpenGLDriver(); }
    void methodsInOrder();
    void page();
    void resizing();
    void onlyIn3DMode();
    void withoutTracks();
    void tracksWithoutWidth_data();
    void tracksWithoutWidth();
    void buffersAreExchanged();
    void queuedFromTheService();
    void onePayloadForTwoPages();
    void box_data();
    void box();
    void axes();
    void view();
    void lines();
    void tracksWiderThanTheFrame();
    void colourOfTheLines();
    void linesOnTheScreen();
    void zoomButtons_data();
    void zoomButtons();
    void zoomBeforeTheFirstData();
    void resetSetsThePlotUpAgain();
    void numbersStayTrueWhenTheStepsChange();
    void mouseTurnsThePlot();
    void changesAreLogged();
    void flatDataHasABox();
    void manyTracks();
};

void TestSpectrum3D::methodsInOrder()
{
    const auto ownMethods = [](const QMetaObject &meta) {
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            methods << QString::fromLatin1(meta.method(i).methodSignature());
        return methods;
    };
    QCOMPARE(ownMethods(Spectrum3DDrawFrameBase::staticMetaObject),
             QStringList("SignalUpdateMultiTrack(void*)"));
    QCOMPARE(ownMethods(Spectrum3DDrawViewBase::staticMetaObject),
             QStringList({ "SlotUpdateMultiTrack(void*)", "Slot3DViewRotationChanged(double,double,double)",
                           "Slot3DZoomChanged(double)", "SlotZoomIn()", "SlotZoomOut()", "SlotZoomReset()",
                           "SlotHorizontalZoomIn()", "SlotHorizontalZoomOut()",
                           "SlotSpectralPropertyChanged()" }));
}

void TestSpectrum3D::page()
{
    Page3D page;
    QCOMPARE(page.view->parentWidget(), &page.page);
    auto *column = qobject_cast<QVBoxLayout *>(page.view->layout());
    QVERIFY(column);
    QCOMPARE(column->contentsMargins(), QMargins(40, 10, 10, 10));
    QCOMPARE(column->count(), 1);
    QCOMPARE(column->itemAt(0)->widget(), page.plot);
    QCOMPARE(int(page.plot->plotStyle()), 7);
    // Only plot and bar are windows of their own; the rest of the program stays as it is.
    QVERIFY(!page.view->testAttribute(Qt::WA_NativeWindow));
    QVERIFY(page.Show());
    QVERIFY(!page.view->internalWinId());
    auto *bar = page.view->findChild<SpectrumZoomUI *>();
    QCOMPARE(bar->geometry(), QRect(5, 220, 30, 170));
    QVERIFY(!bar->findChild<QPushButton *>("pushButtonRescaleAuto")->isVisible());
    QVERIFY(page.view->children().indexOf(bar) > page.view->children().indexOf(page.plot));
    GlobalNotifyObserver(NotifyRefreshOverlays, nullptr); // changes nothing
    QVERIFY(!page.plot->hasData());
}

void TestSpectrum3D::resizing()
{
    Page3D page;
    QVERIFY(page.Show());
    page.page.resize(700, 500);
    QTRY_COMPARE(page.view->size(), QSize(700, 500));
    QCOMPARE(page.view->findChild<SpectrumZoomUI *>()->geometry(), QRect(5, 320, 30, 170));
    QVERIFY(DebugLines().contains("Spectrum3DDrawFrameBase::resizeEvent: QSize(700, 500)"));
}

void TestSpectrum3D::onlyIn3DMode()
{
    Page3D page;
    QVERIFY(page.Show());
    page.services.spectrumUI.displayMode3D = false;
    page.Update();
    QVERIFY(!page.plot->hasData());
    QCOMPARE(page.payload->record.fill, page.payload->first.data());
    page.view->SlotUpdateMultiTrack(nullptr);
}

void TestSpectrum3D::withoutTracks()
{
    Page3D page(0);
    QVERIFY(page.Show());
    page.Update();
    QVERIFY(page.plot->isHidden());
    QVERIFY(!page.plot->hasData());
    QCOMPARE(page.payload->record.fill, page.payload->first.data());
    page.SetTracks(2, 300);
    page.Update();
    QVERIFY(page.plot->isVisible());
    QVERIFY(page.plot->hasData());
    const auto *notice = page.view->findChild<QLabel *>();
    QVERIFY(notice && notice->isHidden());
    page.SetTracks(0, 300);
    page.Update();
    QVERIFY(page.plot->isHidden());
    QCOMPARE(notice->text(), QString("There are no tracks to show: draw them on the picture or have them found."));
    QVERIFY(notice->isVisible());
    QCOMPARE(notice->geometry(), QRect(40, 10, 550, 380));
}

void TestSpectrum3D::tracksWithoutWidth_data()
{
    QTest::addColumn<QRectF>("track");
    QTest::newRow("empty") << QRectF();
    QTest::newRow("drawn leftwards") << QRectF(100, 0, -50, 10);
}

void TestSpectrum3D::tracksWithoutWidth()
{
    QFETCH(QRectF, track);
    Page3D page;
    QVERIFY(page.Show());
    page.services.spectrumUI.multiTrackList = { track };
    page.Update();
    QVERIFY(!page.plot->hasData());
}

void TestSpectrum3D::buffersAreExchanged()
{
    Page3D page;
    QVERIFY(page.Show());
    page.Update();
    QCOMPARE(page.payload->record.show, page.payload->first.data());
    QCOMPARE(page.payload->record.fill, page.payload->second.data());
    QVERIFY(page.payload->lock.tryLock());
    page.payload->lock.unlock();
    LinePayload empty({ 1 });
    empty.record.fill = nullptr;
    page.view->SlotUpdateMultiTrack(empty.Param()); // nothing to draw: tracks that are switched off
    QVERIFY(page.plot->isHidden());
    QCOMPARE(PlotLines::Of(page.plot).first()->lines().size(), size_t(3));
    page.Update();
    QVERIFY(page.plot->isVisible());
}

void TestSpectrum3D::queuedFromTheService()
{
    Page3D page;
    QVERIFY(page.Show());
    LinePayload payload(Values(900, 5));
    emit page.services.spectrum.SignalUpdateMultiTrack(payload.Param());
    QVERIFY(!page.plot->hasData());
    QCoreApplication::processEvents();
    QVERIFY(page.plot->hasData());

    // A payload that is delivered after the mode has changed is not touched.
    LinePayload late(Values(900, 5));
    emit page.services.spectrum.SignalUpdateMultiTrack(late.Param());
    page.services.spectrumUI.displayMode3D = false;
    QCoreApplication::processEvents();
    QCOMPARE(late.record.fill, late.first.data());
}

/// The live page and that of the opened picture each have a plot; one of them is seen.
void TestSpectrum3D::onePayloadForTwoPages()
{
    Page3D page(1, 300);
    Spectrum3DDrawFrameBase other(nullptr);
    other.setWindowFlag(Qt::FramelessWindowHint);
    other.resize(600, 400);
    const auto *plot = other.findChild<Qwt3D::SurfacePlot *>();
    LinePayload payload(Values(300, 1000), Values(300, 0));
    QVERIFY(page.Show());
    emit page.services.spectrum.SignalUpdateMultiTrack(payload.Param());
    QCoreApplication::processEvents();
    QCOMPARE(payload.record.show, payload.first.data());
    QCOMPARE(Text(PlotLines::Of(page.plot).first()->lines()[0][0]), QString("0 0 2"));
    QVERIFY(PlotLines::Of(plot).isEmpty());

    page.page.hide();
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    std::fill(payload.second.begin(), payload.second.end(), 3000U); // the next one
    emit page.services.spectrum.SignalUpdateMultiTrack(payload.Param());
    QCoreApplication::processEvents();
    QCOMPARE(payload.record.show, payload.second.data());
    QCOMPARE(Text(PlotLines::Of(plot).first()->lines()[0][0]), QString("0 0 6"));
    QCOMPARE(Text(PlotLines::Of(page.plot).first()->lines()[0][0]), QString("0 0 2"));
}

void TestSpectrum3D::box_data()
{
    QTest::addColumn<int>("tracks");
    QTest::addColumn<int>("width");
    QTest::addColumn<double>("depth");
    QTest::newRow("one track") << 1 << 300 << 100.0;
    QTest::newRow("five tracks") << 5 << 300 << 100.0;
    QTest::newRow("six tracks") << 6 << 1000 << 300.0;
    QTest::newRow("25 tracks") << 25 << 300 << 400.0;
}

void TestSpectrum3D::box()
{
    QFETCH(int, tracks);
    QFETCH(int, width);
    QFETCH(double, depth);
    Page3D page(tracks, width);
    QVERIFY(page.Show());
    page.Update(65500);
    QCOMPARE(Text(page.plot->hull().minVertex), QString("0 0 0"));
    QCOMPARE(Text(page.plot->hull().maxVertex), QString("%1 %2 131").arg(width).arg(depth));
    QCOMPARE(page.plot->facets(), (std::pair<int, int>(5, 5)));
}

void TestSpectrum3D::axes()
{
    Page3D page(6, 1000); // series step 50, counts divisor 500
    page.page.resize(1000, 600);
    QVERIFY(page.Show());
    page.Update(65500);
    page.plot->updateGL();
    Qwt3D::CoordinateSystem *box = page.plot->coordinates();
    QCOMPARE(box->style(), Qwt3D::BOX);
    QCOMPARE(box->grids(), 1);
    QCOMPARE(Positions(box->axes[Qwt3D::X1]),
             QStringList({ "0 0 0", "200 0 0", "400 0 0", "600 0 0", "800 0 0", "1000 0 0" }));
    // One tick per track.
    QCOMPARE(Positions(box->axes[Qwt3D::Y1]),
             QStringList({ "0 0 0", "0 50 0", "0 100 0", "0 150 0", "0 200 0", "0 250 0", "0 300 0" }));
    // What is seen from the side that the plot turns to the user first.
    QCOMPARE(Texts(page.plot).join("|"),
             QString("0|200|400|600|800|1000|Pixel Number|0|1|2|3|4|5|6|Series Position|"
                     "0e+00|1e+04|2e+04|3e+04|4e+04|5e+04|6e+04|Counts"));
    for (Qwt3D::AXIS axis : { Qwt3D::X1, Qwt3D::Y1, Qwt3D::Z1 }) {
        QCOMPARE(box->axes[axis].labelFont().family(), QString("Segoe UI"));
        QCOMPARE(box->axes[axis].labelFont().pointSize(), 12);
        QCOMPARE(box->axes[axis].numberFont().family(), QString("Segoe UI"));
        QCOMPARE(box->axes[axis].numberFont().pointSize(), 12);
    }
}

void TestSpectrum3D::view()
{
    Page3D page;
    QVERIFY(page.Show());
    page.Update();
    QCOMPARE(page.plot->xRotation(), 20.0);
    QCOMPARE(page.plot->yRotation(), 0.0);
    QCOMPARE(page.plot->zRotation(), 32.0);
    QCOMPARE(page.plot->zoom(), 0.9);
    QCOMPARE(page.Scales(), QString("1 1 1"));
    page.plot->setRotation(30, 0, 40); // as the mouse does
    page.Update();
    QCOMPARE(page.plot->xRotation(), 30.0);
}

void TestSpectrum3D::lines()
{
    Page3D page(2, 300);
    QVERIFY(page.Show());
    page.Update(1000);
    const QList<const Qwt3D::Line3D *> enrichments = PlotLines::Of(page.plot);
    QCOMPARE(enrichments.size(), 1);
    const std::vector<Qwt3D::TripleField> &lines = enrichments.first()->lines();
    QCOMPARE(lines.size(), size_t(2));
    QCOMPARE(lines[0].size(), size_t(300));
    QCOMPARE(Text(lines[0][0]), QString("0 0 2"));
    QCOMPARE(Text(lines[1][299]), QString("299 20 2"));
    page.Update(3000);
    QCOMPARE(PlotLines::Of(page.plot).size(), 1);
    QCOMPARE(Text(PlotLines::Of(page.plot).first()->lines()[0][0]), QString("0 0 6"));
}

void TestSpectrum3D::tracksWiderThanTheFrame()
{
    Page3D page(2, 300);
    QVERIFY(page.Show());
    page.services.frame.frameWidth = 200;
    LinePayload payload(Values(400, 1000));
    page.view->SlotUpdateMultiTrack(payload.Param());
    const std::vector<Qwt3D::TripleField> &lines = PlotLines::Of(page.plot).first()->lines();
    QCOMPARE(lines[0].size(), size_t(300));
    QCOMPARE(lines[1].size(), size_t(100)); // as far as the payload reaches
}

void TestSpectrum3D::colourOfTheLines()
{
    Page3D page;
    QVERIFY(page.Show());
    const auto colours = [&] {
        page.Update(65500);
        page.plot->updateGL();
        const QImage picture = page.plot->grabFrameBuffer().convertToFormat(QImage::Format_RGB32);
        QSet<QRgb> found;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                found << picture.pixel(x, y);
        }
        return found;
    };
    page.services.spectrumUI.lineColor = QColor(255, 0, 0);
    QVERIFY(colours().contains(qRgb(255, 0, 0)));
    page.services.spectrumUI.lineColor = QColor(0, 128, 0);
    emit page.services.spectrumUI.SignalSpectralPropertyChanged();
    const QSet<QRgb> next = colours();
    QVERIFY(next.contains(qRgb(0, 128, 0)));
    QVERIFY(!next.contains(qRgb(255, 0, 0)));
}

void TestSpectrum3D::linesOnTheScreen()
{
    Page3D page(5, 1000);
    QVERIFY(page.Show());
    page.services.spectrumUI.lineColor = QColor(255, 0, 0);
    page.Update(65500);
    const auto redPixels = [&] {
        const QImage screen = GrabFromScreen(&page.page);
        int count = 0;
        for (int y = 0; y < screen.height(); ++y) {
            for (int x = 0; x < screen.width(); ++x)
                count += (screen.pixel(x, y) & 0xFFFFFF) == 0xFF0000;
        }
        return count;
    };
    QTRY_VERIFY(redPixels() > 300); // five lines of some hundred pixels each
    const auto *button = page.page.findChild<QPushButton *>("pushButton2DZoomIn");
    QCOMPARE(QApplication::widgetAt(button->mapToGlobal(button->rect().center())), button);
}

void TestSpectrum3D::zoomButtons_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QString>("scales");
    QTest::newRow("in") << QByteArray("pushButton2DZoomIn") << "2 3 4.4";
    QTest::newRow("out") << QByteArray("pushButton2DZoomOut") << "2 3 3.6";
    QTest::newRow("horizontally in") << QByteArray("pushButton2DHZoomIn") << "2.2 3 4";
    QTest::newRow("horizontally out") << QByteArray("pushButton2DHZoomOut") << "1.8 3 4";
}

void TestSpectrum3D::zoomButtons()
{
    QFETCH(QByteArray, button);
    Page3D page;
    QVERIFY(page.Show());
    page.Update();
    page.plot->setScale(2, 3, 4);
    page.Click(button);
    QTEST(page.Scales(), "scales");
}

void TestSpectrum3D::zoomBeforeTheFirstData()
{
    Page3D page;
    QVERIFY(page.Show());
    page.Click("pushButton2DScaleReset");
    page.Click("pushButton2DZoomIn");
    page.Update();
    QCOMPARE(page.Scales(), QString("1 1 1"));
}

void TestSpectrum3D::resetSetsThePlotUpAgain()
{
    Page3D page(3, 300);
    QVERIFY(page.Show());
    page.Update(65500);
    page.plot->setRotation(1, 2, 3);
    page.plot->setZoom(3);
    page.plot->setScale(2, 3, 4);
    page.SetTracks(8, 300);
    page.Update(65500);
    QCOMPARE(page.plot->hull().maxVertex.y, 100.0); // as it was
    page.Click("pushButton2DScaleReset");
    QCOMPARE(page.Scales(), QString("2 3 4")); // until there is data
    page.Update(65500);
    QCOMPARE(page.plot->hull().maxVertex.y, 160.0);
    QCOMPARE(page.Scales(), QString("1 1 1"));
    QCOMPARE(page.plot->zoom(), 0.9);
    QCOMPARE(page.plot->xRotation(), 20.0);
    QCOMPARE(PlotLines::Of(page.plot).size(), 1); // the old lines are gone
}

void TestSpectrum3D::numbersStayTrueWhenTheStepsChange()
{
    Page3D page(5, 1000);
    QVERIFY(page.Show());
    const QStringList first{ "0e+00", "5e+04", "1e+05", "2e+05", "2e+05", "3e+05" };
    const QStringList second{ "0e+00", "1e+05", "2e+05", "3e+05", "4e+05", "5e+05" };
    const auto counts = [&page] { return Texts(page.plot).filter("e+"); };
    page.Update(250000); // 500 counts a unit, the box 500 units high
    QCOMPARE(counts(), first);
    const QString box = Text(page.plot->hull().maxVertex);
    page.Update(5000000); // 1000 counts a unit
    QCOMPARE(Text(page.plot->hull().maxVertex), box);
    QCOMPARE(counts(), second);
    page.Update(250000);
    QCOMPARE(counts(), first);
    page.SetTracks(5, 600); // a series step of 30: the back edge is at 250 / 30
    page.Update(250000);
    QVERIFY(Texts(page.plot).contains("8.33333"));
}

void TestSpectrum3D::mouseTurnsThePlot()
{
    Page3D page;
    QVERIFY(page.Show());
    page.Update();
    const double before = page.plot->zRotation();
    const auto send = [&](QEvent::Type type, const QPoint &pos) {
        QMouseEvent event(type, pos, type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(page.plot, &event);
    };
    send(QEvent::MouseButtonPress, QPoint(100, 100));
    send(QEvent::MouseMove, QPoint(180, 100));
    send(QEvent::MouseButtonRelease, QPoint(180, 100));
    QVERIFY(page.plot->zRotation() != before);
}

void TestSpectrum3D::changesAreLogged()
{
    Page3D page;
    QVERIFY(page.Show());
    page.plot->setRotation(12.5, 0, 200);
    page.plot->setZoom(1.25);
    QVERIFY(DebugLines().contains("Spectrum3DDrawViewBase::Slot3DViewRotationChanged:"
                                  "x:12.500000, y:0.000000, z:200.000000"));
    QVERIFY(DebugLines().contains("Spectrum3DDrawViewBase::Slot3DZoomChanged:zoom:1.250000"));
}

void TestSpectrum3D::flatDataHasABox()
{
    Page3D page;
    QVERIFY(page.Show());
    page.Update(0);
    QVERIFY(page.plot->hull().maxVertex.z > page.plot->hull().minVertex.z);
    page.plot->updateGL();
}

void TestSpectrum3D::manyTracks()
{
    Page3D page(30, 300);
    QVERIFY(page.Show());
    page.Update();
    QCOMPARE(PlotLines::Of(page.plot).first()->lines().size(), size_t(30));
    QCOMPARE(page.plot->hull().maxVertex.y, 400.0);
}

GUARDED_TEST_MAIN(TestSpectrum3D)
#include "tst_spectrum3d.moc"
