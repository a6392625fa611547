// SPDX-License-Identifier: GPL-3.0-or-later
#include "createpicture.h"
#include "displaymodemanager.h"
#include "openedpicture.h"
#include "palette.h"
#include "picturedesk.h"
#include "plotpicture.h"
#include "scenariotest.h"
#include "spebytes.h"
#include "spectrumonscreen.h"
#include "spectrumuimanager.h"

#include <QAction>
#include <QFile>
#include <QGraphicsView>
#include <QPushButton>
#include <QSignalSpy>
#include <qcustomplot.h>

#include <cmath>
#include <memory>

namespace {

constexpr QSize FileSize(1200, 560);
constexpr int LineColumn = 700; ///< of the one line of the spectrum
constexpr int NoTone = 5000;
constexpr int LineTone = 40000;

/// `file` tells the files apart.
int Value(int x, int y, int frame, int file)
{
    return NoTone + 2 * y + 1000 * frame + 500 * file + (std::abs(x - LineColumn) <= 8 ? LineTone : 0);
}

std::vector<int> Row(int y, int frame, int file, int first, int count)
{
    std::vector<int> samples;
    for (int x = first; x < first + count; ++x)
        samples.push_back(Value(x, y, frame, file));
    return samples;
}

void Write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s", qPrintable(file.errorString()));
}

/// 400 nm in the first column and a quarter of a nanometre more in each.
void WriteSpectrum(const QString &path, int frames, int file)
{
    SpeBytes spe(FileSize.width(), FileSize.height(), 3, frames);
    spe.Calibrate(4, 4, 1, { 399.75, 0.25 }); // counted from 1
    for (int frame = 0; frame < frames; ++frame) {
        for (int y = 0; y < FileSize.height(); ++y) {
            QByteArray row(FileSize.width() * 2, '\0');
            for (int x = 0; x < FileSize.width(); ++x)
                qToLittleEndian(quint16(Value(x, y, frame, file)), row.data() + 2 * x);
            spe.Append(row);
        }
    }
    Write(path, spe.Bytes());
}

/// Two frames of one row with one line, so high.
void WriteLine(const QString &path, int height)
{
    SpeBytes spe(FileSize.width(), 1, 3, 2);
    for (int x = 0; x < 2 * FileSize.width(); ++x) {
        QByteArray sample(2, '\0');
        qToLittleEndian(quint16(x % FileSize.width() == LineColumn ? height : 0), sample.data());
        spe.Append(sample);
    }
    Write(path, spe.Bytes());
}

void WriteColour(const QString &path)
{
    Picture picture(640, 480, 3, SampleType::U8);
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width() * 3; ++x)
            picture.Row(y)[x] = uchar(x % 3 == 0 ? 200 : 40);
    }
    QString error;
    if (!SavePicture(path, picture, SaveOptions(), error))
        qFatal("%s", qPrintable(error));
}

/// The newest row curve, as it is announced.
struct ShownRow
{
    explicit ShownRow(const OpenedPicture *picture)
    {
        QObject::connect(picture, &ImageManager::sglUpdateHorizontalCurve, picture,
                         [this](const int *data, int, int offset, int count) {
                             samples.assign(data + offset, data + offset + count);
                             first = offset;
                         });
    }

    std::vector<int> samples;
    int first = -1;
};

} // namespace

/// A person reads a spectrum that was recorded.
class OpenedSpectrumScenario : public ScenarioTest
{
    Q_OBJECT

private slots:
    void dragsClicksAndStepsBack();
    void framesAndFilesKeepTheirPlace();
    void thePlotShowsTheWholeRowOfAZoomedImage();
    void anotherFileIsRangedAnew();
    void resetShowsTheWholeCurveOfTheFile();
    void rulersCountWhatTheyCanShow();
    void barShowsThePaletteOfThePicture();

private:
    OpenedPicture *Main() const { return m_workbench->services.Desk()->MainPicture(); }

    bool Open(const QString &name)
    {
        m_workbench->services.Desk()->Open({ m_folder->filePath(name) }, Main());
        return QTest::qWaitFor(
            [&] { return Main()->GetFileName() == name && Main()->WantedDocument() == Main()->Document(); });
    }

    /// The first file of two frames on the spectrum page.
    bool OpenSpectrum(SpectrumOnScreen *page)
    {
        WriteSpectrum(m_folder->filePath("first.spe"), 2, 0);
        if (!Open("first.spe"))
            return false;
        m_workbench->Action("Spectrum Page")->trigger();
        return page->WaitForImage() && QTest::qWaitFor([&] {
                   return page->Image()->sceneRect() == QRectF(QPointF(), FileSize) && page->IsSeen(Whole);
               });
    }

    const QVector<double> Whole{ 0, double(FileSize.width()), 0, double(FileSize.height()) };
};

void OpenedSpectrumScenario::dragsClicksAndStepsBack()
{
    SpectrumOnScreen page(&m_workbench->window);
    const ShownRow row(Main());
    QVERIFY(OpenSpectrum(&page));
    const QObject *ranges = SpectrumUIManager::GetInstance()->GetDisplayModeManager();
    QSignalSpy columns(ranges, SIGNAL(SignalImageChangeHShowValueRange(qreal, qreal)));
    QSignalSpy rows(ranges, SIGNAL(SignalImageChangeVShowValueRange(qreal, qreal)));
    QSignalSpy visible(page.Image(), SIGNAL(SignalNewRect(double, double, double, double)));
    QSignalSpy picked(page.Image(), SIGNAL(SignalPressPosChangeStatic(QPointF, QRectF, bool)));
    QCOMPARE(row.samples, Row(FileSize.height() / 2, 0, 0, 0, FileSize.width())); // through the middle

    page.Drag(QPointF(300, 200), QPointF(300, 200));
    QCOMPARE(picked.size(), 1);
    const QPointF place = picked.last().first().toPointF();
    QVERIFY(page.IsNear(place, QPointF(300, 200)));
    QCOMPARE(row.samples, Row(int(place.y()), 0, 0, 0, FileSize.width()));
    QVERIFY(visible.isEmpty());
    // What is drawn of it stands out where the line of the spectrum is.
    const QColor colour = SpectrumUIManager::GetInstance()->GetLineColor();
    QTRY_VERIFY(page.RowCurveAt(LineColumn, colour) >= 0);
    QTRY_VERIFY(page.RowCurveAt(500, colour) > page.RowCurveAt(LineColumn, colour) + 15);
    QCOMPARE(page.Aids("IntensityCurveLayoutItem"), 2);
    QCOMPARE(page.Aids("RulerBarVertical"), 1);

    page.Drag(QPointF(500, 150), QPointF(900, 400));
    const QVector<double> zoomed = Newest(&visible);
    QVERIFY(page.IsSeen(zoomed));
    QVERIFY(zoomed.at(0) > 490 && zoomed.at(1) < 910 && zoomed.at(2) > 140 && zoomed.at(3) < 410);
    const QVector<double> nanometres = Newest(&columns);
    QCOMPARE(nanometres, QVector<double>({ 400 + 0.25 * std::round(zoomed.at(0)),
                                           400 + 0.25 * std::round(zoomed.at(1)) }));
    QCOMPARE(Newest(&rows), zoomed.mid(2, 2));
    const QPointF centre = picked.last().first().toPointF();
    QVERIFY(page.IsNear(centre, QPointF(700, 275)));
    QVERIFY(std::abs(row.first - zoomed.at(0)) <= 1);
    QCOMPARE(row.samples, Row(int(centre.y()), 0, 0, row.first, int(row.samples.size())));
    QTRY_VERIFY(page.RowCurveAt(zoomed.at(0) + 30, colour) > page.RowCurveAt(LineColumn, colour) + 15);

    page.Drag(QPointF(750, 300), QPointF(650, 250));
    QCOMPARE(Newest(&visible), Whole);
    QCOMPARE(Newest(&columns), QVector<double>({ 400, 700 }));
    QCOMPARE(Newest(&rows), Whole.mid(2, 2));
    QVERIFY(page.IsSeen(Whole));
    QCOMPARE(int(row.samples.size()), FileSize.width());
}

void OpenedSpectrumScenario::framesAndFilesKeepTheirPlace()
{
    SpectrumOnScreen page(&m_workbench->window);
    const ShownRow row(Main());
    QVERIFY(OpenSpectrum(&page));
    QSignalSpy visible(page.Image(), SIGNAL(SignalNewRect(double, double, double, double)));
    QSignalSpy picked(page.Image(), SIGNAL(SignalPressPosChangeStatic(QPointF, QRectF, bool)));
    page.Drag(QPointF(500, 150), QPointF(900, 400));
    const QVector<double> zoomed = Newest(&visible);
    const int y = int(picked.last().first().toPointF().y());
    const int first = row.first;
    const int count = int(row.samples.size());
    QCOMPARE(row.samples, Row(y, 0, 0, first, count));
    picked.clear();

    Main()->SetImage(1);
    QTRY_COMPARE(row.samples, Row(y, 1, 0, first, count));
    WriteSpectrum(m_folder->filePath("second.spe"), 2, 1);
    QVERIFY(Open("second.spe"));
    QTRY_COMPARE(row.samples, Row(y, 0, 1, first, count));
    // Nothing was picked anew, and the page shows what it showed.
    QCOMPARE(picked.size(), 0);
    QVERIFY(visible.isEmpty());
    QVERIFY(page.IsSeen(zoomed));

    // Another mode and back: still there, within a pixel of the screen.
    m_workbench->Action("Curve")->trigger();
    m_workbench->Action("Sensor Image")->trigger();
    QVERIFY(page.WaitForImage());
    QVERIFY(page.IsNear(picked.last().first().toPointF(), QPointF(700, 275)));
    QVERIFY(std::abs(row.first - first) <= 1);
    QTRY_COMPARE(row.samples, Row(y, 0, 1, row.first, int(row.samples.size())));
    QTRY_VERIFY(page.IsSeen(zoomed));

    // Another size is another place: all of it, through the middle.
    WriteColour(m_folder->filePath("colour.png"));
    QVERIFY(Open("colour.png"));
    QTRY_VERIFY(page.IsSeen({ 0, 640, 0, 480 }));
    QCOMPARE(row.samples, std::vector<int>(640, 93)); // the mean of 200, 40 and 40
}

void OpenedSpectrumScenario::thePlotShowsTheWholeRowOfAZoomedImage()
{
    SpectrumOnScreen page(&m_workbench->window);
    const ShownRow row(Main());
    QVERIFY(OpenSpectrum(&page));
    page.Drag(QPointF(500, 150), QPointF(900, 400));
    const int first = row.first;
    QVERIFY(first > 480);
    m_workbench->Action("Curve")->trigger();
    const auto *plot = qobject_cast<QCustomPlot *>(VisiblePlot(m_workbench->window.centralWidget()));
    QVERIFY(plot);
    const auto data = plot->graph(0)->data();
    QCOMPARE(data->size(), FileSize.width());
    // Its one line is where it is in the file, in nanometres.
    QVERIFY(data->at(LineColumn)->value > LineTone);
    QVERIFY(data->at(LineColumn - 20)->value < LineTone);
    QCOMPARE(data->at(LineColumn)->key, 400 + 0.25 * LineColumn);
    Main()->SetImage(1);
    QTRY_VERIFY(data->at(0)->value >= NoTone + 1000);
    QCOMPARE(data->size(), FileSize.width());

    m_workbench->Action("Sensor Image")->trigger();
    QVERIFY(page.WaitForImage());
    QVERIFY(std::abs(row.first - first) <= 1); // the part that is seen
}

/// As high as itself, not as the brighter one before it.
void OpenedSpectrumScenario::anotherFileIsRangedAnew()
{
    WriteLine(m_folder->filePath("bright.spe"), 40000);
    WriteLine(m_folder->filePath("faint.spe"), 200);
    m_workbench->Action("Curve")->trigger();
    QVERIFY(Open("bright.spe"));
    const auto plot = [this] { return qobject_cast<QCustomPlot *>(VisiblePlot(m_workbench->window.centralWidget())); };
    QTRY_VERIFY(plot() && plot()->yAxis->range().upper > 40000);
    Main()->SetImage(1);
    QTRY_COMPARE(Main()->Shown().request.frame, 1);
    QVERIFY(Open("faint.spe"));
    QTRY_COMPARE(plot()->graph(0)->data()->at(LineColumn)->value, 200.0);
    QVERIFY2(plot()->yAxis->range().upper < 300, qPrintable(QString::number(plot()->yAxis->range().upper)));
    QVERIFY(plot()->yAxis->range().upper >= 200);
}

void OpenedSpectrumScenario::resetShowsTheWholeCurveOfTheFile()
{
    SpectrumOnScreen page(&m_workbench->window);
    QVERIFY(OpenSpectrum(&page));
    m_workbench->Action("Curve")->trigger();
    const auto *plot = qobject_cast<QCustomPlot *>(VisiblePlot(m_workbench->window.centralWidget()));
    QVERIFY(plot);
    const auto data = plot->graph(0)->data();
    double most = 0;
    for (const QCPGraphData &sample : *data)
        most = std::max(most, sample.value);
    const double whole = most / (1 - SpectrumUIManager::GetInstance()->GetBlankRatio());
    QCOMPARE(plot->yAxis->range().upper, whole);
    const QWidget *frame = plot->parentWidget();
    for (int i = 0; i < 3; ++i)
        frame->findChild<QPushButton *>("pushButton2DZoomOut")->click();
    QVERIFY(plot->yAxis->range().upper > 1.2 * whole);
    frame->findChild<QPushButton *>("pushButton2DScaleReset")->click();
    QTRY_COMPARE(plot->yAxis->range().upper, whole);
}

void OpenedSpectrumScenario::rulersCountWhatTheyCanShow()
{
    SpectrumOnScreen page(&m_workbench->window);
    QVERIFY(OpenSpectrum(&page));
    const auto *settings = SpectrumUIManager::GetInstance();
    QSignalSpy columns(settings->GetDisplayModeManager(),
                       SIGNAL(SignalImageChangeHShowValueRange(qreal, qreal)));
    QCOMPARE(settings->GetTitleName(), QString("Wavelength [nm]"));
    m_workbench->Action("Wavenumbers")->trigger(); // which fall
    QCOMPARE(Newest(&columns), Whole.mid(0, 2));
    QCOMPARE(settings->GetTitleName(), QString("Pixel Number"));
    m_workbench->Action("Nanometres")->trigger();
    QCOMPARE(Newest(&columns), QVector<double>({ 400, 700 }));
    QCOMPARE(settings->GetTitleName(), QString("Wavelength [nm]"));
}

void OpenedSpectrumScenario::barShowsThePaletteOfThePicture()
{
    SpectrumOnScreen page(&m_workbench->window);
    QVERIFY(OpenSpectrum(&page));
    const auto colourInBar = [&](double part) {
        const QWidget *bar = page.Aid("GradientColorLayoutItem");
        return bar ? m_workbench->OnScreenAt(
                   bar->mapToGlobal(QPoint(int(bar->width() * part), bar->height() / 2)))
                   : QColor();
    };
    m_workbench->Action("Viridis")->trigger();
    const Palette viridis("viridis");
    QTRY_COMPARE(colourInBar(0.01), QColor(viridis.Colour(0)));
    QTRY_VERIFY(colourInBar(0.5).saturation() > 50);
    // A colour picture keeps its own colours: red here.
    WriteColour(m_folder->filePath("colour.png"));
    QVERIFY(Open("colour.png"));
    QTRY_COMPARE(colourInBar(0.01), QColor(Qt::black));
    QTRY_COMPARE(colourInBar(0.5).saturation(), 0);
    const QGraphicsView *image = page.Image();
    const QPoint place = image->viewport()->mapToGlobal(image->mapFromScene(QPointF(100, 100)));
    QTRY_COMPARE(m_workbench->OnScreenAt(place), QColor(200, 40, 40));
    QVERIFY(Open("first.spe"));
    QTRY_COMPARE(colourInBar(0.01), QColor(viridis.Colour(0)));
}

GUARDED_TEST_MAIN(OpenedSpectrumScenario)
#include "tst_openedspectrum.moc"
