// SPDX-License-Identifier: GPL-3.0-or-later
// The panels beside and below the picture: where they stand, when they can be used, and that they tell the truth.
#include "globalnotify.h"
#include "histogramview.h"
#include "livepreview.h"
#include "panelscenario.h"
#include "stylesheet.h"
#include "uimanagerbase.h"
#include "workspaceconfig.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLocale>
#include <QTabWidget>
#include <QTableView>
#include <QTreeWidget>

#include <algorithm>
#include <ctime>

namespace {
constexpr int WaitMs = 10000;
const QString Dash = QChar(0x2013);
} // namespace

class PanelsTest : public PanelScenario
{
    Q_OBJECT

private slots:
    void panelsStandInTheirOrder()
    {
        QCOMPARE(Texts(RightTabs()), QStringList({ "Spectrum", "Analysis", "Tool Properties", "Report" }));
        QCOMPARE(Texts(BottomTabs()),
                 QStringList({ "File Preview", "Histogram(Live)", "Class Counting", "Calibration Table" }));
        for (const char *name : { "SpectrumPanel", "AnalysisPanel", "ToolPanel", "ReportPanel",
                                  "HistogramPanel", "ClassCountPanel", "CalibrationPanel", "AutoCountPanel" })
            QVERIFY2(Panel(name), name);
        for (const UIPluginReport &report : UIManagerBase::PluginReports())
            QVERIFY2(report.loaded || report.filePath.isEmpty(), qPrintable(report.filePath + report.reason));
    }

    void histogramTellsOfTheLiveSamples()
    {
        QCOMPARE(NumberText("noteMean"), Dash); // nobody looked yet
        ClickTab(BottomTabs(), "Histogram(Live)");
        QTRY_VERIFY_WITH_TIMEOUT(NumberText("noteMean") != Dash, WaitMs);
        QCOMPARE(NumberText("noteDepth"), QString("8 bit, 0 to 255"));
        // The chart stands still, so any frame has what the page says.
        int least = 255;
        int most = 0;
        double sum = 0;
        const CameraFrame frame = m_workbench->services.Preview()->ShownFrame();
        for (int y = 0; y < frame.height; ++y) {
            for (int x = 0; x < frame.width; ++x) {
                least = qMin(least, int(frame.Row(y)[x]));
                most = qMax(most, int(frame.Row(y)[x]));
                sum += frame.Row(y)[x];
            }
        }
        QCOMPARE(NumberText("noteMinimum"), QString::number(least));
        QCOMPARE(NumberText("noteMaximum"), QString::number(most));
        const double mean = QLocale().toDouble(NumberText("noteMean"));
        QVERIFY2(qAbs(mean - sum / frame.width / frame.height) < 0.1, qPrintable(NumberText("noteMean")));
        auto *view = Panel("HistogramPanel")->findChild<HistogramView *>();
        const QImage picture = view->grab().toImage();
        int columns = 0;
        for (int x = 0; x < picture.width(); ++x)
            columns += picture.pixelColor(x, picture.height() - 2) != view->palette().color(QPalette::Base);
        QVERIFY2(columns > 20, qPrintable(QString::number(columns)));
    }

    void histogramOfTheLastStartRunsAtOnce()
    {
        m_workbench->services.Config()->SetBottomUIIndex(1);
        Stop();
        Start();
        QCOMPARE(BottomTabs()->tabText(BottomTabs()->currentIndex()), QString("Histogram(Live)"));
        QTRY_VERIFY_WITH_TIMEOUT(NumberText("noteMean") != Dash, WaitMs);
    }

    void analysisAndReportTellOfThePicture()
    {
        ClickTab(RightTabs(), "Analysis");
        QTRY_COMPARE(Note("AnalysisPanel", "notePicture"), QString("Live picture"));
        QTRY_COMPARE(Note("AnalysisPanel", "noteSize"), QString("2048 x 2048 pixels"));
        QTRY_VERIFY_WITH_TIMEOUT(Note("AnalysisPanel", "noteMean") != Dash, WaitMs);
        ClickTab(RightTabs(), "Report");
        QVERIFY(Panel("ReportPanel")->isVisible());
        m_workbench->link.SetRegion(QRect(0, 0, 512, 256));
        QTRY_COMPARE(Note("ReportPanel", "noteSize"), QString("512 x 256 pixels"));
        QCOMPARE(Note("ReportPanel", "noteMeasurements"), QString("0"));
    }

    void panelsFollowWhatCanBeMeasured()
    {
        ClickTab(RightTabs(), "Analysis");
        for (const char *name : { "AnalysisPanel", "ToolPanel", "ReportPanel", "SpectrumPanel",
                                  "ClassCountPanel", "CalibrationPanel", "HistogramPanel" })
            QTRY_VERIFY2(Panel(name)->isEnabled(), name);
        m_workbench->link.Close();
        for (const char *name : { "AnalysisPanel", "ToolPanel", "ReportPanel", "SpectrumPanel",
                                  "ClassCountPanel", "CalibrationPanel", "HistogramPanel", "AutoCountPanel" })
            QTRY_VERIFY2(!Panel(name)->isEnabled(), name);
        QTRY_COMPARE(Note("AnalysisPanel", "noteMean"), Dash);
    }

    void tablesComeToTheFrontWhenAskedFor()
    {
        GlobalNotifyObserver(NotifyRaiseClassCounting, nullptr);
        QVERIFY(Panel("ClassCountPanel")->isVisible());
        QCOMPARE(Panel("ClassCountPanel")->findChild<QLabel *>("labelTableNote")->text(),
                 QString("Nothing was counted by class."));
        GlobalNotifyObserver(NotifyRaiseCalibrationTable, nullptr);
        QVERIFY(Panel("CalibrationPanel")->isVisible());
        QCOMPARE(Panel("CalibrationPanel")->findChild<QLabel *>("labelTableNote")->text(),
                 QString("Not calibrated: positions are in pixels. Spectrum > Calibrate… (Ctrl+Shift+L) takes the lines of a "
                         "lamp."));
    }

    void pluginPageListsThem()
    {
        m_workbench->Action("Plug-ins…")->trigger();
        auto *page = m_workbench->window.findChild<QWidget *>("PluginDialog");
        QVERIFY(page && QTest::qWaitForWindowActive(page));
        QStringList names;
        auto *table = page->findChild<QTreeWidget *>("treePlugins");
        for (int i = 0; i < table->topLevelItemCount(); ++i)
            names << table->topLevelItem(i)->text(0);
        for (const char *name :
             { "Camera", "Acquisition", "Histogram(Live)", "Analysis", "Tool Properties", "Report",
               "Spectrum", "Class Counting", "Calibration Table", "Automatic Counting Table" })
            QVERIFY2(names.contains(name), name);
        page->close();
    }

    void loadingAllOfThemIsQuick()
    {
        Stop();
        QVector<qint64> times;
        for (int i = 0; i < 3; ++i) {
            times << StartMs(PANEL_ROOT) - StartMs("/no/such/folder");
        }
        std::sort(times.begin(), times.end());
        QVERIFY2(times.at(1) < 150, qPrintable(QString::number(times.at(1))));
        Start();
    }

protected:
    void Prepare() override { OpenAllPanels(Spectrometer); }

private:
    QString NumberText(const char *name) const { return Note("HistogramPanel", name); }

    /// Time of this thread alone: what else the machine does is not counted.
    static qint64 ThreadMs()
    {
        timespec time;
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return qint64(time.tv_sec) * 1000 + time.tv_nsec / 1000000;
    }

    /// How long the window takes to be built with the panels below this folder.
    qint64 StartMs(const char *panelRoot) const
    {
        qputenv("GLOBALUI_PLUGIN_PATH", panelRoot);
        SettingsFile settings(m_folder->filePath("workbench.ini"));
        CameraLink link;
        WorkbenchServices services(settings.Settings(), &link);
        const qint64 before = ThreadMs();
        MainWindow window(&services, settings.Settings());
        return ThreadMs() - before;
    }

};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    StyleSheet::Named("dark").Apply(application);
    PanelsTest test;
    return GuardedTest::Run(&test, argc, argv);
}

#include "tst_panels.moc"
