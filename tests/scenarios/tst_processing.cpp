// SPDX-License-Identifier: GPL-3.0-or-later
// Works through the panels beside an opened picture by mouse and keyboard, and looks at what came of it.
#include "advancedprocessmanager.h"
#include "autocounting.h"
#include "camerasession.h"
#include "createpicture.h"
#include "guardedtest.h"
#include "openedpicture.h"
#include "openpicture.h"
#include "picturedesk.h"
#include "picturedocument.h"
#include "pictureloader.h"
#include "pictureshelf.h"
#include "runningworkbench.h"
#include "stylesheet.h"
#include "workspaceconfig.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QUndoStack>

#include <cmath>
#include <memory>

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

class Processing : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<QTemporaryDir>();
        m_workbench = std::make_unique<RunningWorkbench>(m_folder->path());
        QVERIFY(m_workbench->WaitForPicture());
        WriteDiscs(Path("discs.tif"), Size, 3);
        QVERIFY(Open("discs.tif"));
    }

    void cleanup() override
    {
        m_workbench.reset();
        QVERIFY(CameraSession::WaitForTeardown(5000));
        m_folder.reset();
        EndGuard();
    }

    void panelsStandInTheirOrder()
    {
        QStringList texts;
        for (int i = 0; i < Tabs()->count(); ++i)
            texts << Tabs()->tabText(i);
        QCOMPARE(texts, QStringList({ "Adjustment", "Process", "Automatic Counting" }));
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
        ClickTab(tab);
        QWidget *widget = Panel(panel);
        QTRY_VERIFY(widget->isVisible());
        const auto *steps = widget->findChild<QComboBox *>("choiceStep");
        const int count = steps ? steps->count() : 1;
        for (int i = 0; i < count; ++i) {
            if (count > 1)
                Choose("choiceStep", i);
            QTRY_VERIFY(widget->width() <= Tabs()->currentWidget()->findChild<QWidget *>("qt_scrollarea_viewport")->width());
            for (QWidget *child : widget->findChildren<QWidget *>()) {
                auto *label = qobject_cast<QLabel *>(child);
                const bool isText = label ? !label->wordWrap() : qobject_cast<QAbstractButton *>(child) != nullptr;
                if (isText && child->isVisible())
                    QVERIFY2(child->width() >= child->minimumSizeHint().width(), qPrintable(child->objectName()));
            }
        }
    }

    void aStepIsTriedAppliedUndoneAndSaved()
    {
        ClickTab("Process");
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
        ClickTab("Process");
        Choose("choiceStep", 7); // binning
        QTRY_COMPARE(Main()->Shown().samples.Size(), Size / 2);
        Click("actionCancel", "ProcessPanel");
        QTRY_COMPARE(Main()->Shown().samples.Size(), Size);
        Choose("choiceStep", 7);
        QTRY_COMPARE(Main()->Shown().samples.Size(), Size / 2);
        ClickTab("Adjustment");
        QTRY_COMPARE(Main()->Shown().samples.Size(), Size);
        QVERIFY(!Undo()->canUndo());
    }

    void whatCannotBeDoneIsSaidInThePanel()
    {
        WriteDiscs(Path("small.tif"), QSize(20, 10), 1);
        QVERIFY(Open("small.tif"));
        QVERIFY(Open("discs.tif"));
        ClickTab("Process");
        Choose("choiceStep", 2); // flat field; the reference is the only other picture
        QTRY_COMPARE(Note("labelFault"),
                     QString("The reference is 20x10 pixels and the picture 240x160. Choose a reference of the same size, "
                             "and correct the picture before it is cropped, turned or binned."));
        QCOMPARE(SampleAt(0, 0), Ground);
        Click("actionCancel", "ProcessPanel");
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
        ClickTab("Process");
        Choose("choiceStep", 9);
        Choose("choiceMethod", 0); // maximum
        QTRY_COMPARE(SampleAt(0, 0), Ground + 200);
        Click("actionApply", "ProcessPanel");
        QTRY_COMPARE(Main()->FrameCount(), 1);
        QTRY_VERIFY(!m_workbench->window.findChild<QWidget *>("MultiImageToolUI")->isVisible());
        Undo()->undo();
        QTRY_COMPARE(Main()->FrameCount(), 3);
    }

    void objectsAreCounted()
    {
        ClickTab("Automatic Counting");
        AutoCounting *counting = m_workbench->services.Counting();
        Click("actionCount", "CountingPanel");
        QTRY_COMPARE(counting->Table()->rowCount(), 6);
        QVERIFY(counting->IsCounting());
        QTRY_COMPARE(Note("noteResult", "CountingPanel"), QString("6 object(s)"));

        Click("checkSplit", "CountingPanel");
        QTRY_COMPARE(counting->Table()->rowCount(), 5);
        Type("numberMostArea", "600", "CountingPanel");
        QTRY_COMPARE(counting->Table()->rowCount(), 4); // without the two that touch
        for (const CountedObject &object : counting->Table()->Objects())
            QVERIFY(std::abs(object.area - 3.14159 * Radius * Radius) < 10);
        QCOMPARE(counting->Table()->Objects().first().meanIntensity, double(Ground + Height));
        Type("numberPixelSize", "0.5", "CountingPanel");
        const double area = counting->Table()->index(0, ObjectTable::Area).data(ObjectTable::SortRole).toDouble();
        QCOMPARE(area, counting->Table()->Objects().first().area * 0.25);

        Click("actionCount", "CountingPanel");
        QTRY_COMPARE(Note("noteResult", "CountingPanel"), QString("Nothing is being counted."));
        QVERIFY(!counting->IsCounting());
        QCOMPARE(counting->Table()->rowCount(), 4); // they stay
    }

    void theLivePictureEndsCounting()
    {
        ClickTab("Automatic Counting");
        Click("actionCount", "CountingPanel");
        AutoCounting *counting = m_workbench->services.Counting();
        QTRY_COMPARE(counting->Table()->rowCount(), 6);
        m_workbench->services.Config()->SetCameraView();
        QTRY_VERIFY(!counting->IsCounting());
    }

private:
    QString Path(const QString &name) const { return m_folder->filePath(name); }
    OpenedPicture *Main() const { return m_workbench->services.Desk()->MainPicture(); }
    QUndoStack *Undo() const { return Main()->Document()->UndoStack(); }
    QTabWidget *Tabs() const { return m_workbench->window.findChild<QTabWidget *>("ImageTabWidget"); }
    QWidget *Panel(const QString &name) const { return m_workbench->window.findChild<QWidget *>(name); }
    QString Note(const char *name, const char *panel = "ProcessPanel") const
    {
        auto *label = Panel(panel)->findChild<QLabel *>(name);
        return label ? label->text() : QString();
    }
    int SampleAt(int x, int y) const
    {
        const Picture &samples = Main()->Shown().samples;
        return samples.Type() == SampleType::U16 ? samples.Samples<quint16>(y)[x] : -1;
    }
    bool Open(const QString &name)
    {
        m_workbench->services.Desk()->Open({ Path(name) }, Main());
        return QTest::qWaitFor([&] {
            return Main()->GetFileName() == name && Main()->WantedDocument() == Main()->Document() && Tabs()
                   && Tabs()->isVisible();
        }, WaitMs);
    }
    void ClickTab(const QString &text)
    {
        for (int i = 0; i < Tabs()->count(); ++i) {
            if (Tabs()->tabText(i) == text)
                QTest::mouseClick(Tabs()->tabBar(), Qt::LeftButton, Qt::NoModifier,
                                  Tabs()->tabBar()->tabRect(i).center());
        }
    }

    /// By the keyboard: the first entry, and from there down. The focus stays though the other fields change.
    void Choose(const char *name, int index)
    {
        auto *box = Panel("ProcessPanel")->findChild<QComboBox *>(name);
        QVERIFY2(box, name);
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Home);
        for (int i = 0; i < index; ++i)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        auto *focused = qobject_cast<QComboBox *>(QApplication::focusWidget());
        QVERIFY2(focused && focused->objectName() == name, name);
        QCOMPARE(focused->currentIndex(), index);
    }

    void Type(const char *name, const QString &text, const char *panel = "ProcessPanel")
    {
        auto *field = Panel(panel)->findChild<QWidget *>(name);
        QVERIFY2(field, name);
        Reveal(field);
        field->setFocus();
        field->findChild<QLineEdit *>()->selectAll();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
    }

    void Click(const char *name, const char *panel)
    {
        auto *button = Panel(panel)->findChild<QAbstractButton *>(name);
        QVERIFY2(button, name);
        Reveal(button);
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button->height() / 2));
    }

    void Reveal(QWidget *widget)
    {
        for (QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
            if (auto *area = qobject_cast<QScrollArea *>(parent))
                area->ensureWidgetVisible(widget);
        }
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RunningWorkbench> m_workbench;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    StyleSheet::Named("dark").Apply(application);
    Processing test;
    return GuardedTest::Run(&test, argc, argv);
}

#include "tst_processing.moc"
