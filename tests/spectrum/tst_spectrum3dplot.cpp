// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "page3d.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace {

/// The plot as the library's vector writer draws it.
QStringList Drawing(Qwt3D::SurfacePlot *plot)
{
    QTemporaryDir folder;
    const QString name = folder.filePath("plot.eps");
    plot->saveVector(name, "EPS", Qwt3D::VectorWriter::NATIVE, Qwt3D::VectorWriter::NOSORT);
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()).split('\n') : QStringList();
}

/// The texts in the plot, in the order they are drawn.
QStringList Texts(Qwt3D::SurfacePlot *plot)
{
    QStringList texts;
    const QRegularExpression form("^\\((.+)\\) [-0-9.]+ [-0-9.]+ [0-9]+ /");
    for (const QString &line : Drawing(plot)) {
        const QRegularExpressionMatch match = form.match(line);
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

/// The 3D plot: its box, axes and lines, and how the user turns and zooms it.
class TestSpectrum3DPlot : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase() { StartOpenGLDriver(); }
    void box_data();
    void box();
    void axes();
    void view();
    void lines();
    void tracksWiderThanTheFrame();
    void colourOfTheLines();
    void linesOnTheScreen();
    void linesInADrawing();
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

void TestSpectrum3DPlot::box_data()
{
    QTest::addColumn<int>("tracks");
    QTest::addColumn<int>("width");
    QTest::addColumn<double>("depth");
    QTest::newRow("one track") << 1 << 300 << 100.0;
    QTest::newRow("five tracks") << 5 << 300 << 100.0;
    QTest::newRow("six tracks") << 6 << 1000 << 300.0;
    QTest::newRow("25 tracks") << 25 << 300 << 400.0;
}

void TestSpectrum3DPlot::box()
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

void TestSpectrum3DPlot::axes()
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

void TestSpectrum3DPlot::view()
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

void TestSpectrum3DPlot::lines()
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

void TestSpectrum3DPlot::tracksWiderThanTheFrame()
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

void TestSpectrum3DPlot::colourOfTheLines()
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

void TestSpectrum3DPlot::linesOnTheScreen()
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

/// Once each, whole, and as wide as on the screen.
void TestSpectrum3DPlot::linesInADrawing()
{
    Page3D page(2, 300);
    QVERIFY(page.Show());
    page.services.spectrumUI.lineColor = QColor(255, 0, 0);
    page.Update(65500);
    const QStringList drawing = Drawing(page.plot);
    const int first = drawing.indexOf("1 0 0 C");
    QVERIFY(first > 0);
    const int end = drawing.indexOf(QRegularExpression(".* C"), first + 1);
    const QStringList widths = drawing.mid(0, first).filter(QRegularExpression("^[0-9.]+ W$"));
    QVERIFY(!widths.isEmpty());
    QCOMPARE(widths.last(), QString("3 W"));
    const QString lines = drawing.mid(first, end - first).join('\n');
    QCOMPARE(lines.count(QRegularExpression(" LS\\b")), 2);
    QCOMPARE(lines.count(QRegularExpression(" LE?\\b")), 2 * 299);
}

void TestSpectrum3DPlot::zoomButtons_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QString>("scales");
    QTest::newRow("in") << QByteArray("pushButton2DZoomIn") << "2 3 4.4";
    QTest::newRow("out") << QByteArray("pushButton2DZoomOut") << "2 3 3.6";
    QTest::newRow("horizontally in") << QByteArray("pushButton2DHZoomIn") << "2.2 3 4";
    QTest::newRow("horizontally out") << QByteArray("pushButton2DHZoomOut") << "1.8 3 4";
}

void TestSpectrum3DPlot::zoomButtons()
{
    QFETCH(QByteArray, button);
    Page3D page;
    QVERIFY(page.Show());
    page.Update();
    page.plot->setScale(2, 3, 4);
    page.Click(button);
    QTEST(page.Scales(), "scales");
}

void TestSpectrum3DPlot::zoomBeforeTheFirstData()
{
    Page3D page;
    QVERIFY(page.Show());
    page.Click("pushButton2DScaleReset");
    page.Click("pushButton2DZoomIn");
    page.Update();
    QCOMPARE(page.Scales(), QString("1 1 1"));
}

void TestSpectrum3DPlot::resetSetsThePlotUpAgain()
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

void TestSpectrum3DPlot::numbersStayTrueWhenTheStepsChange()
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

void TestSpectrum3DPlot::mouseTurnsThePlot()
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

void TestSpectrum3DPlot::changesAreLogged()
{
    Page3D page;
    QVERIFY(page.Show());
    page.plot->setRotation(12.5, 0, 200);
    page.plot->setZoom(1.25);
    QVERIFY(DebugLines().contains("Spectrum3DDrawViewBase::Slot3DViewRotationChanged:"
                                  "x:12.500000, y:0.000000, z:200.000000"));
    QVERIFY(DebugLines().contains("Spectrum3DDrawViewBase::Slot3DZoomChanged:zoom:1.250000"));
}

void TestSpectrum3DPlot::flatDataHasABox()
{
    Page3D page;
    QVERIFY(page.Show());
    page.Update(0);
    QVERIFY(page.plot->hull().maxVertex.z > page.plot->hull().minVertex.z);
    page.plot->updateGL();
}

void TestSpectrum3DPlot::manyTracks()
{
    Page3D page(30, 300);
    QVERIFY(page.Show());
    page.Update();
    QCOMPARE(PlotLines::Of(page.plot).first()->lines().size(), size_t(30));
    QCOMPARE(page.plot->hull().maxVertex.y, 400.0);
}

GUARDED_TEST_MAIN(TestSpectrum3DPlot)
#include "tst_spectrum3dplot.moc"
