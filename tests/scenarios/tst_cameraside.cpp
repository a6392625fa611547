// SPDX-License-Identifier: GPL-3.0-or-later
// Works through the panels beside the live picture by mouse and keyboard, and asks the camera what came of it.
#include "camerasession.h"
#include "guardedtest.h"
#include "livepreview.h"
#include "recordingdesk.h"
#include "runningworkbench.h"
#include "savesettings.h"
#include "specimenscene.h"
#include "stylesheet.h"
#include "workspaceconfig.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTreeView>

#include <memory>

namespace {

constexpr int WaitMs = 10000;

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

class CameraSide : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<QTemporaryDir>();
        m_workbench = std::make_unique<RunningWorkbench>(m_folder->path());
        QVERIFY(m_workbench->WaitForPicture());
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
        QCOMPARE(texts, QStringList({"Camera", "Adjustment", "Hardware", "Acquisition"}));
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
        ClickTab(tab);
        QWidget *widget = Panel(panel);
        QTRY_VERIFY(widget->isVisible());
        auto *area = Tabs()->currentWidget()->findChild<QWidget *>("qt_scrollarea_viewport");
        QVERIFY2(widget->width() <= area->width(), qPrintable(QString::number(widget->width())));
        for (QWidget *child : widget->findChildren<QWidget *>()) {
            if (!child->isVisible() || !(qobject_cast<QLabel *>(child) || qobject_cast<QAbstractButton *>(child)))
                continue;
            auto *label = qobject_cast<QLabel *>(child);
            if (label && label->wordWrap())
                continue;
            QVERIFY2(child->width() >= child->minimumSizeHint().width(), qPrintable(child->objectName()));
        }
    }

    void tabKeyGoesDownThePanel()
    {
        ClickTab("Camera");
        auto *device = Panel("CameraPanel")->findChild<QWidget *>("choiceDevice");
        device->setFocus();
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
        ClickTab("Camera");
        QWidget *panel = Panel("CameraPanel");
        Type("numberWidth", "1024");
        QCOMPARE(Session()->Format().Region().size(), QSize(1024, 2048));
        Type("numberHeight", "99999");
        QCOMPARE(Session()->Format().Region().height(), 2048);
        QCOMPARE(panel->findChild<QDoubleSpinBox *>("numberHeight")->value(), 2048.0);
        auto *binning = panel->findChild<QComboBox *>("choiceBinning");
        binning->setFocus();
        QTest::keyClick(binning, Qt::Key_Down);
        QCOMPARE(Session()->Format().Binning(), Session()->Format().Binnings().at(1));
        QTest::keyClick(binning, Qt::Key_Up);
        QCOMPARE(Session()->Format().Binning(), 1);
        Click("actionFullSensor");
        QCOMPARE(Session()->Format().Region(), QRect(0, 0, 2048, 2048));
        QVERIFY(m_workbench->WaitForNextPicture());
    }

    void exposureIsSeenInTheNextPictureButTwo()
    {
        ClickTab("Camera");
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
        QCOMPARE(Session()->Controls().ExposureUs(), 5000.0);
        means.clear();
        QTRY_VERIFY_WITH_TIMEOUT(means.size() >= 3, WaitMs);
        QVERIFY2(means.at(2) < 0.6 * before,
                 qPrintable(QString("%1, then %2 %3 %4").arg(before).arg(means[0]).arg(means[1]).arg(means[2])));
    }

    void featureIsFoundAndChanged()
    {
        ClickTab("Hardware");
        auto *view = Panel("HardwarePanel")->findChild<QTreeView *>("treeFeatures");
        QTRY_VERIFY(view->model()->rowCount() > 1);
        QTest::keyClicks(Panel("HardwarePanel")->findChild<QLineEdit *>("lineEditSearch"), "trigger SOURCE");
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
        auto *mode = Panel("AcquisitionPanel")->findChild<QComboBox *>("choiceMode");
        mode->setFocus();
        QTest::keyClick(mode, Qt::Key_Home);
        QTest::keyClick(mode, Qt::Key_Down);
        Type("numberFrames", "4", "AcquisitionPanel");
        Type("textFolder", m_folder->path(), "AcquisitionPanel");
        Type("textPattern", "panel-{number}", "AcquisitionPanel");
        QCOMPARE(Panel("AcquisitionPanel")->findChild<QLabel *>("noteName")->text(), QString("panel-1.tif"));
        RecordingDesk *desk = m_workbench->services.Recording();
        QSignalSpy ended(desk, &RecordingDesk::signalRunEnded);
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QTRY_VERIFY(!mode->isEnabled());
        QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, WaitMs);
        QVERIFY(mode->isEnabled());
        QCOMPARE(desk->LastReceipt().files.first(), m_folder->filePath("panel-1.tif"));
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
    QTabWidget *Tabs() const { return m_workbench->window.findChild<QTabWidget *>("CameraTabWidget"); }
    QWidget *Panel(const char *name) const { return m_workbench->window.findChild<QWidget *>(name); }
    QWidget *Panel(const QString &name) const { return m_workbench->window.findChild<QWidget *>(name); }
    CameraSession *Session() const { return m_workbench->link.Session(); }

    void ClickTab(const QString &text)
    {
        for (int i = 0; i < Tabs()->count(); ++i) {
            if (Tabs()->tabText(i) == text)
                QTest::mouseClick(Tabs()->tabBar(), Qt::LeftButton, Qt::NoModifier,
                                  Tabs()->tabBar()->tabRect(i).center());
        }
    }

    void Type(const char *name, const QString &text, const char *panel = "CameraPanel")
    {
        auto *field = Panel(panel)->findChild<QWidget *>(name);
        QVERIFY2(field, name);
        auto *edit = qobject_cast<QLineEdit *>(field) ? static_cast<QLineEdit *>(field)
                                                      : field->findChild<QLineEdit *>();
        field->setFocus();
        edit->selectAll();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
    }

    void Click(const char *name)
    {
        auto *button = Panel("CameraPanel")->findChild<QWidget *>(name);
        QVERIFY2(button, name);
        QTest::mouseClick(button, Qt::LeftButton);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RunningWorkbench> m_workbench;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    StyleSheet::Named("dark").Apply(application);
    CameraSide test;
    return GuardedTest::Run(&test, argc, argv);
}

#include "tst_cameraside.moc"
