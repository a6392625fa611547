// SPDX-License-Identifier: GPL-3.0-or-later
// Works through the panels beside the live picture by mouse and keyboard, and asks the camera what came of it.
#include "camerasession.h"
#include "guiwatchdog.h"
#include "livepreview.h"
#include "panelscenario.h"
#include "recordingdesk.h"
#include "savesettings.h"
#include "specimenscene.h"
#include "stylesheet.h"
#include "workspaceconfig.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QGraphicsView>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTreeView>
#include <QWheelEvent>
#include <qtestspontaneevent.h>

namespace {

constexpr int WaitMs = 10000;
constexpr int LongestStallMs = 200; // a picture is drawn meanwhile, in software

/// Of every 16th pixel.
double Mean(const QImage &image)
{
    qint64 sum = 0;
    qint64 count = 0;
    for (int y = 0; y < image.height(); y += 16) {
        for (int x = 0; x < image.width(); x += 16, ++count)
            sum += qGray(image.pixel(x, y));
    }
    return count ? double(sum) / count : 0;
}

} // namespace

class CameraSide : public PanelScenario
{
    Q_OBJECT

private slots:
    void panelsStandInTheirOrder()
    {
        QCOMPARE(Texts(CameraTabs()), QStringList({"Camera", "Adjustment", "Hardware", "Acquisition"}));
        QVERIFY(Panel("CameraPanel"));
        QVERIFY(Panel("AcquisitionPanel"));
    }

    void nothingIsCutOff_data()
    {
        QTest::addColumn<QString>("tab");
        QTest::addColumn<QString>("panel");
        QTest::newRow("camera") << "Camera" << "CameraPanel";
        QTest::newRow("hardware") << "Hardware" << "HardwarePanel";
        QTest::newRow("acquisition") << "Acquisition" << "AcquisitionPanel";
    }

    void nothingIsCutOff()
    {
        QFETCH(QString, tab);
        QFETCH(QString, panel);
        GoTo(CameraTabs(), tab, qPrintable(panel));
        QCOMPARE(CutOff(), QStringList());
    }

    void tabKeyGoesDownThePanel()
    {
        GoTo(CameraTabs(), "Camera", "CameraPanel");
        Widget("choiceDevice")->setFocus();
        QStringList visited;
        for (int i = 0; i < 8; ++i) {
            visited << QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(visited, QStringList({"choiceDevice", "actionSearch", "numberExposure", "numberGain",
                                       "numberFrameRate", "choicePixelFormat", "choiceBinning", "numberLeft"}));
    }

    void formatAndRegionGoToTheCamera()
    {
        GoTo(CameraTabs(), "Camera", "CameraPanel");
        Type("numberWidth", "1024");
        QTRY_COMPARE(Session()->Format().region.size(), QSize(1024, 2048));
        Type("numberHeight", "99999");
        QTRY_VERIFY(!Session()->IsSetting());
        QCOMPARE(Session()->Format().region.height(), 2048);
        QCOMPARE(Current()->findChild<QDoubleSpinBox *>("numberHeight")->value(), 2048.0);
        Choose("choiceBinning", 1);
        QTRY_COMPARE(Session()->Format().binning, Session()->Format().binnings.at(1));
        Choose("choiceBinning", 0);
        QTRY_COMPARE(Session()->Format().binning, 1);
        Click("actionFullSensor");
        QTRY_COMPARE(Session()->Format().region, QRect(0, 0, 2048, 2048));
        QVERIFY(m_workbench->WaitForNextPicture());
    }

    void wheelOverThePanelScrollsIt()
    {
        m_workbench->window.resize(m_workbench->window.width(), 500);
        GoTo(CameraTabs(), "Camera", "CameraPanel");
        auto *bar = qobject_cast<QScrollArea *>(CameraTabs()->currentWidget())->verticalScrollBar();
        QTRY_VERIFY(bar->isVisible() && bar->maximum() > 0);
        m_workbench->View()->setFocus();
        const double exposureUs = Session()->Controls().exposureUs;
        const int binning = Session()->Format().binning;
        const QRect region = Session()->Format().region;
        for (const char *name : {"numberExposure", "choiceBinning", "numberHeight"}) {
            bar->setValue(0);
            const QPoint place(5, 5);
            QWheelEvent wheel(place, Widget(name)->mapToGlobal(place), QPoint(), QPoint(0, -120), Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QSpontaneKeyEvent::setSpontaneous(&wheel); // only these go on to the widgets around
            qApp->notify(Widget(name), &wheel);
            QVERIFY2(bar->value() > 0, name);
        }
        QVERIFY(m_workbench->WaitForNextPicture());
        QVERIFY(!Session()->IsSetting());
        QCOMPARE(Session()->Controls().exposureUs, exposureUs);
        QCOMPARE(Session()->Format().binning, binning);
        QCOMPARE(Session()->Format().region, region);
    }

    void exposureIsSeenInTheNextPictureButTwo()
    {
        GoTo(CameraTabs(), "Camera", "CameraPanel");
        m_workbench->link.SetScene(SpecimenScene::SceneName());
        Type("numberExposure", "20");
        for (int i = 0; i < 4; ++i)
            QVERIFY(m_workbench->WaitForNextPicture());
        QVector<double> means;
        QObject watcher; // takes what is on its way to it along
        connect(m_workbench->services.Preview(), &PreviewManager::signalPreviewImage, &watcher,
                [&means](const QImage &image) { means << Mean(image); });
        QTRY_VERIFY_WITH_TIMEOUT(!means.isEmpty(), WaitMs);
        const double before = means.last();
        Type("numberExposure", "5");
        means.clear();
        QTRY_VERIFY_WITH_TIMEOUT(means.size() >= 3, WaitMs);
        QCOMPARE(Session()->Controls().exposureUs, 5000.0);
        QVERIFY2(means.at(2) < 0.6 * before,
                 qPrintable(QString("%1, then %2 %3 %4").arg(before).arg(means[0]).arg(means[1]).arg(means[2])));
    }

    /// The newest of what was typed is what the camera takes, and what it makes of it is what is shown.
    void windowLivesOnWhileTheCameraDoesNotAnswer()
    {
        GoTo(CameraTabs(), "Camera", "CameraPanel");
        auto *gain = Current()->findChild<QDoubleSpinBox *>("numberGain");
        auto *rate = Current()->findChild<QDoubleSpinBox *>("numberFrameRate");
        QSemaphore answer;
        QVERIFY(Session()->TakeTurn([&answer](ArvCamera *) { answer.acquire(); }, this, [] {}));
        const QSignalSpy controlSet(Session(), &CameraSession::signalControlSet);
        QVERIFY(m_workbench->WaitForNextPicture()); // frames come all the same
        GuiWatchdog watchdog;
        gain->setFocus();
        for (int i = 0; i < 3; ++i)
            gain->stepUp(); // holds the arrow
        const double wished = gain->value();
        QVERIFY(wished > gain->minimum());
        Type("numberExposure", "200");
        Type("numberFrameRate", "1000");
        Type("numberExposure", "250");
        QVERIFY(Session()->IsSetting());
        QVERIFY(Session()->Controls().gain != wished);
        QVERIFY(m_workbench->WaitForNextPicture());
        QCOMPARE(gain->value(), wished); // what was wished is shown meanwhile
        QVERIFY2(watchdog.LongestMs() < LongestStallMs, watchdog.Text("a camera that does not answer"));
        answer.release();
        QTRY_VERIFY(!Session()->IsSetting());
        QCOMPARE(controlSet.count(), 3); // one for each of the three settings
        QCOMPARE(Session()->Controls().exposureUs, 250000.0);
        QCOMPARE(gain->value(), Session()->Controls().gain);
        QCOMPARE(rate->value(), 4.0); // as the exposure bounds it
    }

    void featureIsFoundAndChanged()
    {
        GoTo(CameraTabs(), "Hardware", "HardwarePanel");
        auto *view = Current()->findChild<QTreeView *>("treeFeatures");
        QTRY_VERIFY(view->model()->rowCount() > 1);
        QTest::keyClicks(Current()->findChild<QLineEdit *>("lineEditSearch"), "trigger SOURCE");
        QTRY_COMPARE(view->model()->rowCount(), 1);
        const QModelIndex category = view->model()->index(0, 0);
        QTRY_COMPARE(view->model()->rowCount(category), 2); // the software trigger's text names the source
        QModelIndex value;
        for (int i = 0; i < 2; ++i) {
            if (view->model()->index(i, 0, category).data().toString() == "Trigger source")
                value = view->model()->index(i, 1, category);
        }
        QVERIFY(value.isValid());
        const QPersistentModelIndex source = value;
        view->setFocus();
        view->setCurrentIndex(value);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, view->visualRect(value).center());
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, view->visualRect(value).center());
        QComboBox *box = nullptr;
        QTRY_VERIFY((box = view->viewport()->findChild<QComboBox *>()));
        QTest::keyClick(box, Qt::Key_Down);
        QTest::keyClick(box, Qt::Key_Return);
        QTRY_COMPARE(source.data().toString(), QString("Software"));
    }

    void acquisitionIsWhatIsRecorded()
    {
        m_workbench->Action("Settings")->trigger();
        QTRY_VERIFY(Panel("AcquisitionPanel")->isVisible());
        GoTo(CameraTabs(), "Acquisition", "AcquisitionPanel");
        Choose("choiceMode", 1);
        const QWidget *mode = Widget("choiceMode");
        Type("numberFrames", "4");
        QVERIFY(QDir(m_folder->path()).mkdir("run 1"));
        Type("textFolder", m_folder->filePath("run 1"));
        Type("textPattern", "panel-{number}");
        QCOMPARE(Note("noteName"), QString("panel-1.tif"));
        RecordingDesk *desk = m_workbench->services.Recording();
        QSignalSpy ended(desk, &RecordingDesk::signalRunEnded);
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QTRY_VERIFY(!mode->isEnabled());
        QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, WaitMs);
        QVERIFY(mode->isEnabled());
        QCOMPARE(desk->LastReceipt().files.first(), m_folder->filePath("run 1/panel-1.tif"));
        QCOMPARE(int(desk->LastReceipt().outcome.counts.saved), 4);
    }

    void menuBringsThePanelToTheFront()
    {
        m_workbench->Action("Exposure and Gain…")->trigger();
        QTRY_VERIFY(Panel("CameraPanel")->isVisible());
        m_workbench->services.Config()->SetLeftUIChecked(false);
        m_workbench->services.Config()->UpdateCameraControlUI();
        QTRY_VERIFY(!Panel("CameraPanel")->isVisible());
        m_workbench->Action("Settings")->trigger();
        QTRY_VERIFY(Panel("AcquisitionPanel")->isVisible());
    }

    void withoutACameraThePanelsAreDisabled()
    {
        m_workbench->link.Close();
        QTRY_VERIFY(!Panel("CameraPanel")->isEnabled());
        QVERIFY(!Panel("AcquisitionPanel")->isEnabled());
    }

private:
    QTabWidget *CameraTabs() const { return Tabs("CameraTabWidget"); }
    CameraSession *Session() const { return m_workbench->link.Session(); }
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    StyleSheet::Named("dark").Apply(application);
    CameraSide test;
    return GuardedTest::Run(&test, argc, argv);
}

#include "tst_cameraside.moc"
