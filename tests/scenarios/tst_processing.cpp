// SPDX-License-Identifier: GPL-3.0-or-later
// Works through the panels beside an opened picture by mouse and keyboard, and looks at what came of it.
#include "advancedprocessmanager.h"
#include "autocounting.h"
#include "createpicture.h"
#include "fieldsource.h"
#include "openedpicture.h"
#include "openpicture.h"
#include "panelscenario.h"
#include "picturedesk.h"
#include "picturedocument.h"
#include "pictureloader.h"
#include "pictureshelf.h"
#include "stylesheet.h"
#include "workspaceconfig.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QUndoStack>

#include <cmath>

namespace {

constexpr int WaitMs = 10000;
constexpr QSize Size(240, 160);
constexpr int Ground = 1000;
constexpr int Height = 9000;
constexpr int Radius = 12;

struct Disc
{
    int x;
    int y;
};
/// The last two touch.
const QVector<Disc> Discs = { { 30, 30 }, { 90, 40 }, { 150, 30 }, { 40, 110 }, { 120, 110 }, { 140, 110 } };

int ValueAt(int x, int y, int frame)
{
    for (const Disc &disc : Discs) {
        if (std::hypot(x + 0.5 - disc.x, y + 0.5 - disc.y) <= Radius)
            return Ground + Height + 100 * frame;
    }
    return Ground + 100 * frame;
}

/// Bright discs on a grey ground, 16 bit, a little brighter in each frame.
void WriteDiscs(const QString &path, const QSize &size, int frames)
{
    SaveOptions options;
    options.frameCount = frames;
    QString error;
    const auto writer = CreatePicture(path, options, error);
    for (int frame = 0; writer && frame < frames; ++frame) {
        Picture picture(size.width(), size.height(), 1, SampleType::U16);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x)
                picture.Samples<quint16>(y)[x] = quint16(ValueAt(x, y, frame));
        }
        writer->Append(picture, error);
    }
    if (!writer || !writer->Commit(error))
        qFatal("%s", qPrintable(error));
}

} // namespace

class Processing : public PanelScenario
{
    Q_OBJECT

private slots:
    void init() override
    {
        ScenarioTest::init();
        WriteDiscs(Path("discs.tif"), Size, 3);
        QVERIFY(Open("discs.tif"));
    }

    void panelsStandInTheirOrder()
    {
        QCOMPARE(Texts(ImageTabs()), QStringList({ "Adjustment", "Process", "Automatic Counting" }));
        QVERIFY(Panel("ProcessPanel"));
        QVERIFY(Panel("CountingPanel"));
    }

    /// Every step with all its fields, in a panel as wide as it is.
    void nothingIsCutOff_data()
    {
        QTest::addColumn<QString>("tab");
        QTest::addColumn<QString>("panel");
        QTest::newRow("process") << "Process" << "ProcessPanel";
        QTest::newRow("counting") << "Automatic Counting" << "CountingPanel";
    }
    void nothingIsCutOff()
    {
        QFETCH(QString, tab);
        QFETCH(QString, panel);
        GoTo(ImageTabs(), tab, qPrintable(panel));
        const auto *steps = Current()->findChild<QComboBox *>("choiceStep");
        for (int i = 0; i < (steps ? steps->count() : 1); ++i) {
            if (steps)
                Choose("choiceStep", i);
            QTRY_COMPARE(CutOff(), QStringList());
        }
    }

    void aStepIsTriedAppliedUndoneAndSaved()
    {
        GoTo(ImageTabs(), "Process", "ProcessPanel");
        Choose("choiceStep", 1); // background
        Choose("choiceMethod", 0); // a level
        Type("numberLevel", "400");
        QTRY_COMPARE(SampleAt(0, 0), Ground - 400);
        QTRY_COMPARE(Note("noteState"), QString("Tried on the picture, not applied yet."));
        QVERIFY(!Undo()->canUndo());

        QTest::mouseClick(m_workbench->window.findChild<QPushButton *>("pushButtonNewImageCopy"), Qt::LeftButton);
        QTRY_COMPARE(Undo()->undoText(), QString("Background"));
        QTRY_VERIFY(!Main()->Shown().request.isPreview);
        QCOMPARE(SampleAt(0, 0), Ground - 400);
        QCOMPARE(Panel("ProcessPanel")->findChild<QComboBox *>("choiceStep")->currentIndex(), 0);

        QSignalSpy saved(m_workbench->services.Loader(), &PictureLoader::signalSaved);
        Main()->SaveAs(Path("saved.tif"), true);
        QTRY_COMPARE(saved.size(), 1);
        QString error;
        const auto file = OpenPicture(Path("saved.tif"), error);
        QVERIFY2(file, qPrintable(error));
        QCOMPARE(file->Info().frames, 3);
        Picture frame;
        QVERIFY(file->ReadFrame(2, frame, error));
        QCOMPARE(int(frame.Samples<quint16>(0)[0]), Ground + 200 - 400);

        QTest::keyClick(&m_workbench->window, Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(SampleAt(0, 0), Ground);
    }

    void cancelAndAnotherTabLeaveThePictureAsItWas()
    {
        GoTo(ImageTabs(), "Process", "ProcessPanel");
        Choose("choiceStep", 7); // binning
        QTRY_COMPARE(Main()->Shown().samples.Size(), Size / 2);
        Click("actionCancel");
        QTRY_COMPARE(Main()->Shown().samples.Size(), Size);
        Choose("choiceStep", 7);
        QTRY_COMPARE(Main()->Shown().samples.Size(), Size / 2);
        ClickTab(ImageTabs(), "Adjustment");
        QTRY_COMPARE(Main()->Shown().samples.Size(), Size);
        QVERIFY(!Undo()->canUndo());
    }

    void whatCannotBeDoneIsSaidInThePanel()
    {
        WriteDiscs(Path("small.tif"), QSize(20, 10), 1);
        QVERIFY(Open("small.tif"));
        QVERIFY(Open("discs.tif"));
        GoTo(ImageTabs(), "Process", "ProcessPanel");
        Choose("choiceStep", 2); // flat field; the reference is the only other picture
        QTRY_COMPARE(Note("labelFault"),
                     QString("The reference is 20x10 pixels and the picture 240x160. Choose a reference of the same size, "
                             "and correct the picture before it is cropped, turned or binned."));
        QCOMPARE(SampleAt(0, 0), Ground);
        Click("actionCancel");
        QTRY_VERIFY(!Panel("ProcessPanel")->findChild<QLabel *>("labelFault")->isVisible());
    }

    void applyWithoutAStepSaysWhatToDo()
    {
        QTest::mouseClick(m_workbench->window.findChild<QPushButton *>("pushButtonNewImageCopy"), Qt::LeftButton);
        QCOMPARE(m_workbench->StatusText(),
                 QString("There is nothing to apply: choose a step in the panel Process first."));
    }

    void aStackIsProjected()
    {
        GoTo(ImageTabs(), "Process", "ProcessPanel");
        Choose("choiceStep", 9);
        Choose("choiceMethod", 0); // maximum
        QTRY_COMPARE(SampleAt(0, 0), Ground + 200);
        Click("actionApply");
        QTRY_COMPARE(Main()->FrameCount(), 1);
        QTRY_VERIFY(!m_workbench->window.findChild<QWidget *>("MultiImageToolUI")->isVisible());
        Undo()->undo();
        QTRY_COMPARE(Main()->FrameCount(), 3);
    }

    void objectsAreCounted()
    {
        GoTo(ImageTabs(), "Automatic Counting", "CountingPanel");
        AutoCounting *counting = m_workbench->services.Counting();
        Click("actionCount");
        QTRY_COMPARE(counting->Table()->rowCount(), 6);
        QVERIFY(counting->IsCounting());
        QTRY_COMPARE(Note("noteResult"), QString("6 object(s)"));

        Click("checkSplit");
        QTRY_COMPARE(counting->Table()->rowCount(), 5);
        Type("numberMostArea", "600");
        QTRY_COMPARE(counting->Table()->rowCount(), 4); // without the two that touch
        for (const CountedObject &object : counting->Table()->Objects())
            QVERIFY(std::abs(object.area - 3.14159 * Radius * Radius) < 10);
        QCOMPARE(counting->Table()->Objects().first().meanIntensity, double(Ground + Height));
        Type("numberPixelSize", "0.5");
        const double area = counting->Table()->index(0, ObjectTable::Area).data(ObjectTable::SortRole).toDouble();
        QCOMPARE(area, counting->Table()->Objects().first().area * 0.25);

        Click("actionCount");
        QTRY_COMPARE(Note("noteResult"), QString("Nothing is being counted."));
        QVERIFY(!counting->IsCounting());
        QCOMPARE(counting->Table()->rowCount(), 4); // they stay
    }

    /// It stays until it is read, as of every file that could not be saved.
    void aTableThatIsNotSavedIsToldInTheNotice()
    {
        auto *notice = m_workbench->window.findChild<QMessageBox *>("FaultNotice");
        for (const char *name : { FieldSource::CountName, FieldSource::CalibrationName }) {
            QVERIFY(!notice->isVisible());
            FieldSource::Find(name)->Set("saveTable",
                                         m_folder->filePath(QString("no such folder/%1.csv").arg(name)));
            QTRY_VERIFY2(notice->isVisible(), name);
            QVERIFY2(notice->text().contains(QString("%1.csv").arg(name)), qPrintable(notice->text()));
            notice->close();
        }
    }

    void theLivePictureEndsCounting()
    {
        GoTo(ImageTabs(), "Automatic Counting", "CountingPanel");
        Click("actionCount");
        AutoCounting *counting = m_workbench->services.Counting();
        QTRY_COMPARE(counting->Table()->rowCount(), 6);
        m_workbench->services.Config()->SetCameraView();
        QTRY_VERIFY(!counting->IsCounting());
    }

private:
    QString Path(const QString &name) const { return m_folder->filePath(name); }
    OpenedPicture *Main() const { return m_workbench->services.Desk()->MainPicture(); }
    QUndoStack *Undo() const { return Main()->Document()->UndoStack(); }
    QTabWidget *ImageTabs() const { return Tabs("ImageTabWidget"); }
    int SampleAt(int x, int y) const
    {
        const Picture &samples = Main()->Shown().samples;
        return samples.Type() == SampleType::U16 ? samples.Samples<quint16>(y)[x] : -1;
    }
    bool Open(const QString &name)
    {
        m_workbench->services.Desk()->Open({ Path(name) }, Main());
        return QTest::qWaitFor([&] {
            return Main()->GetFileName() == name && Main()->WantedDocument() == Main()->Document()
                   && ImageTabs() && ImageTabs()->isVisible();
        }, WaitMs);
    }
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    StyleSheet::Named("dark").Apply(application);
    Processing test;
    return GuardedTest::Run(&test, argc, argv);
}

#include "tst_processing.moc"
