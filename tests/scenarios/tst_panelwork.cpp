// SPDX-License-Identifier: GPL-3.0-or-later
// The panels that adjust pictures and make spectra, by mouse and keyboard: what is set there is what the picture, the
// services and the files have afterwards.
#include "calibrationmodel.h"
#include "camerasession.h"
#include "guardedtest.h"
#include "levelsmodel.h"
#include "livelevels.h"
#include "liveorientation.h"
#include "openedpicture.h"
#include "picturedesk.h"
#include "runningworkbench.h"
#include "spectrumpipeline.h"
#include "spectrumsettings.h"
#include "stylesheet.h"
#include "viewcodes.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QComboBox>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSettings>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>

#include <memory>

namespace {

constexpr int WaitMs = 10000;

bool IsGrey(const QColor &colour) { return colour.red() == colour.green() && colour.green() == colour.blue(); }

} // namespace

class PanelWork : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<QTemporaryDir>();
        QSettings settings(m_folder->filePath("workbench.ini"), QSettings::IniFormat);
        settings.setValue("settings/version", 1);
        settings.setValue("panels/left", true);
        settings.setValue("panels/right", true);
        settings.setValue("panels/bottom", true);
        settings.sync();
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

    void livePictureIsAdjusted()
    {
        ClickTab(Tabs("CameraTabWidget"), "Adjustment");
        m_panel = Panel("CameraAdjustmentPanel");
        QTRY_COMPARE(Note("noteKind"), QString("8 bit samples, 0 to 255"));
        QVERIFY(!Box("numberBlack")->isEnabled());
        Choose("choiceMode", "Manual");
        QTRY_VERIFY(Box("numberBlack")->isEnabled());
        Type("numberBlack", "40");
        Type("numberWhite", "9999");
        Type("numberGamma", "99");
        const LevelsSetting setting = Levels()->Setting(8);
        QVERIFY(setting.mode == LevelsMode::Manual);
        QCOMPARE(setting.left, 40.0);
        QCOMPARE(setting.right, 255.0);
        QCOMPARE(setting.gamma, 10.0);
        QCOMPARE(Box("numberWhite")->value(), 255.0); // shown as moved to the limit
        QCOMPARE(Box("numberGamma")->value(), 10.0);
        Click("actionReset");
        QTRY_VERIFY(Levels()->Setting(8) == LevelsSetting::Default(8));
        QTRY_VERIFY(!Box("numberBlack")->isEnabled());
    }

    void coloursAndPositionAreSeen()
    {
        ClickTab(Tabs("CameraTabWidget"), "Adjustment");
        m_panel = Panel("CameraAdjustmentPanel");
        QTRY_VERIFY(m_panel->isVisible());
        QTRY_VERIFY(Widget("actionFlipHorizontal") && Widget("actionFlipHorizontal")->isEnabled());
        const QPointF middle(1024, 1024);
        QTRY_VERIFY(IsGrey(m_workbench->OnScreen(middle)));
        Choose("choicePalette", "Viridis");
        QCOMPARE(Levels()->GetPalette().Name(), QString("viridis"));
        QTRY_VERIFY(!IsGrey(m_workbench->OnScreen(middle)));
        Choose("choicePalette", "Grey");
        QTRY_VERIFY(IsGrey(m_workbench->OnScreen(middle)));
        Click("checkSaturated");
        QVERIFY(Levels()->MarksSaturated());
        QVERIFY(m_workbench->Action("Mark Saturated Pixels")->isChecked());
        Click("actionFlipHorizontal");
        QVERIFY(m_workbench->services.LivePosition()->Get() == Orientation().FlippedHorizontally());
        Click("actionRotate");
        QVERIFY(m_workbench->services.LivePosition()->Get() == Orientation().FlippedHorizontally().RotatedRight());
    }

    void openedPictureIsAdjusted()
    {
        OpenPicture();
        OpenedPicture *picture = m_workbench->services.Desk()->MainPicture();
        m_panel = Panel("ImageAdjustmentPanel");
        QTRY_VERIFY(m_panel->isVisible());
        QTRY_COMPARE(Note("noteKind"), QString("8 bit samples, 0 to 255"));
        Choose("choiceMode", "Minimum and maximum");
        QTRY_COMPARE(Box("numberBlack")->value(), 20.0);
        QTRY_COMPARE(Box("numberWhite")->value(), 83.0);
        Type("numberGamma", "2");
        QCOMPARE(Levels()->Setting(8).gamma, 2.0);
        Click("actionRotate");
        QTRY_COMPARE(picture->GetImageSize(), QSize(48, 64));
        m_workbench->Action("Undo Rotate")->trigger();
        QTRY_COMPARE(picture->GetImageSize(), QSize(64, 48));
    }

    void panelOfTheLivePictureSaysWhenThereIsNone()
    {
        ClickTab(Tabs("CameraTabWidget"), "Adjustment");
        m_panel = Panel("CameraAdjustmentPanel");
        QTRY_VERIFY(m_panel->isVisible());
        m_workbench->link.Close();
        QTRY_VERIFY(!m_panel->isEnabled());
    }

    void spectraAreMadeAndCorrected()
    {
        ShowSpectrumPanel();
        SpectrumSettings *settings = m_workbench->services.Spectrum();
        SpectrumPipeline *spectra = m_workbench->services.Spectra();
        QVERIFY(!Widget("actionTakeDark")->isEnabled());
        Choose("choiceBinning", "all rows");
        QVERIFY(settings->GetFVBOnFlag() && settings->IsFVBModeAll());
        QTRY_VERIFY_WITH_TIMEOUT(Widget("actionTakeDark")->isEnabled(), WaitMs);
        QTRY_COMPARE(Note("noteCorrections"), QString("No correction is on."));
        Click("actionTakeDark");
        Click("checkDark");
        QVERIFY(settings->Recipe().corrections.subtractsDark);
        // The chart stands still: less itself nothing is left.
        QTRY_VERIFY_WITH_TIMEOUT(spectra->Shown().corrected.Count() == 2048
                                     && spectra->Shown().corrected.values.at(500) == 0.0,
                                 WaitMs);
        QVERIFY(spectra->Shown().raw.values.at(500) > 0);
        QTRY_COMPARE(Note("noteCorrections"), QString("Corrections: dark subtracted."));
        Type("numberAverage", "8");
        QCOMPARE(settings->Recipe().corrections.averaged, 8);
        Type("numberSmoothing", "4");
        QCOMPARE(settings->Recipe().corrections.smoothing, 5);
        Choose("choiceQuantity", "absorbance");
        QVERIFY(settings->Recipe().corrections.quantity == SpectrumQuantity::Absorbance);
        Choose("choiceBinning", "band by hand");
        Type("numberTop", "100");
        Type("numberBottom", "99999");
        QCOMPARE(settings->GetTop(), 100);
        QCOMPARE(settings->GetBottom(), 2047);
    }

    void spectraAreShownAsChosen()
    {
        ShowSpectrumPanel();
        SpectrumSettings *settings = m_workbench->services.Spectrum();
        Choose("choiceMode", "Curve with peaks");
        QVERIFY(settings->Mode() == DisplayMode::PlotPeak);
        Choose("choiceMode", "Picture");
        QVERIFY(settings->Mode() == DisplayMode::General);
        Choose("choiceDirection", "vertical");
        QVERIFY(!settings->IsDirectionHorinzontal());
        Type("numberLineWidth", "3");
        QCOMPARE(settings->GetLineWidth(), 3.0);
        Type("numberPeakNumber", "0");
        QCOMPARE(settings->GetPeakNumber(), 0);
        Click("colourLineColour");
        auto *dialog = m_panel->findChild<QColorDialog *>();
        QVERIFY(dialog && QTest::qWaitForWindowActive(dialog));
        dialog->setCurrentColor(QColor(10, 200, 30));
        QTest::keyClick(dialog, Qt::Key_Return);
        QTRY_COMPARE(settings->GetLineColor(), QColor(10, 200, 30));
    }

    void calibrationIsListedAndCopied()
    {
        CalibrationModel *calibration = m_workbench->services.Calibration();
        calibration->SetSpectrum(std::vector<double>(2048, 5.0));
        calibration->SetLamps({});
        calibration->SetDegree(1);
        calibration->AddPoint(100, 500);
        calibration->AddPoint(1100, 600);
        calibration->AddPoint(2000, 690);
        QVERIFY(calibration->Apply());
        ClickTab(Tabs("BottomTabWidget"), "Calibration Table");
        m_panel = Panel("CalibrationPanel");
        QTRY_VERIFY(m_panel->isVisible());
        QCOMPARE(m_panel->findChild<QTableView *>("tableRows")->model()->rowCount(), 3);
        Click("pushButtonTableCopy");
        const QStringList lines = QApplication::clipboard()->text().trimmed().split('\n');
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines.at(0).split('\t').at(1), QString("Wavelength [nm]"));
        QCOMPARE(QLocale().toDouble(lines.at(2).split('\t').at(1)), 600.0);
    }

private:
    void ShowSpectrumPanel()
    {
        m_workbench->Action("Spectrum Page")->trigger();
        auto *right = qobject_cast<QTabWidget *>(m_workbench->window.findChild<QDockWidget *>("DockRight")->widget());
        ClickTab(right, "Spectrum");
        m_panel = Panel("SpectrumPanel");
        QTRY_VERIFY(m_panel->isVisible());
    }

    /// 64 x 48, from 20 to 83.
    void OpenPicture()
    {
        const QString path = m_folder->filePath("picture.png");
        QImage picture(64, 48, QImage::Format_Grayscale8);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                picture.scanLine(y)[x] = uchar(20 + x);
        }
        QVERIFY(picture.save(path));
        OpenedPicture *opened = m_workbench->services.Desk()->MainPicture();
        m_workbench->services.Desk()->Open({path}, opened);
        QTRY_VERIFY_WITH_TIMEOUT(!opened->IsNonImage(), WaitMs);
    }

    LevelsModel *Levels() const { return m_workbench->services.Levels()->Model(); }
    QTabWidget *Tabs(const char *name) const { return m_workbench->window.findChild<QTabWidget *>(name); }
    QWidget *Panel(const char *name) const { return m_workbench->window.findChild<QWidget *>(name); }
    QWidget *Widget(const char *name) const { return m_panel->findChild<QWidget *>(name); }
    QDoubleSpinBox *Box(const char *name) const { return m_panel->findChild<QDoubleSpinBox *>(name); }

    QString Note(const char *name) const
    {
        auto *label = m_panel->findChild<QLabel *>(name);
        return label ? label->text() : QString("no such line");
    }

    /// In sight, as the user brings it there.
    void Reveal(QWidget *widget) const
    {
        for (QWidget *parent = m_panel; parent; parent = parent->parentWidget()) {
            if (auto *area = qobject_cast<QScrollArea *>(parent))
                area->ensureWidgetVisible(widget);
        }
    }

    void Click(const char *name)
    {
        QWidget *button = Widget(name);
        QVERIFY2(button && button->isEnabled(), name);
        Reveal(button);
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(10, button->height() / 2));
    }

    /// With the keyboard, as far up or down as the choice is.
    void Choose(const char *name, const QString &text)
    {
        auto *box = m_panel->findChild<QComboBox *>(name);
        QVERIFY2(box && box->isEnabled() && box->findText(text) >= 0, name);
        Reveal(box);
        box->setFocus();
        const int wanted = box->findText(text);
        for (int i = 0; i < box->count() && box->currentIndex() != wanted; ++i)
            QTest::keyClick(box, box->currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
        QCOMPARE(box->currentText(), text);
    }

    void Type(const char *name, const QString &text)
    {
        QDoubleSpinBox *box = Box(name);
        QVERIFY2(box && box->isEnabled(), name);
        Reveal(box);
        box->setFocus();
        box->findChild<QLineEdit *>()->selectAll();
        QTest::keyClicks(box, text);
        QTest::keyClick(box, Qt::Key_Return);
    }

    static void ClickTab(QTabWidget *tabs, const QString &text)
    {
        for (int i = 0; i < tabs->count(); ++i) {
            if (tabs->tabText(i) == text)
                QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier,
                                  tabs->tabBar()->tabRect(i).center());
        }
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RunningWorkbench> m_workbench;
    QWidget *m_panel = nullptr; ///< that is worked with
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    StyleSheet::Named("dark").Apply(application);
    PanelWork test;
    return GuardedTest::Run(&test, argc, argv);
}

#include "tst_panelwork.moc"
