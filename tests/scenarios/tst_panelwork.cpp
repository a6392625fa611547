// SPDX-License-Identifier: GPL-3.0-or-later
// The panels that adjust pictures and make spectra, by mouse and keyboard: what is set there is what the picture, the
// services and the files have afterwards.
#include "calibrationmodel.h"
#include "levelsmodel.h"
#include "livelevels.h"
#include "liveorientation.h"
#include "openedpicture.h"
#include "panelscenario.h"
#include "picturedesk.h"
#include "spectrumpipeline.h"
#include "spectrumsettings.h"
#include "stylesheet.h"
#include "trackdesk.h"
#include "viewcodes.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDoubleSpinBox>
#include <QTabWidget>
#include <QTableView>

namespace {

constexpr int WaitMs = 10000;

bool IsGrey(const QColor &colour) { return colour.red() == colour.green() && colour.green() == colour.blue(); }

} // namespace

class PanelWork : public PanelScenario
{
    Q_OBJECT

private slots:
    void livePictureIsAdjusted()
    {
        GoTo(Tabs("CameraTabWidget"), "Adjustment", "CameraAdjustmentPanel");
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
        GoTo(Tabs("CameraTabWidget"), "Adjustment", "CameraAdjustmentPanel");
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
        GoTo(Tabs("ImageTabWidget"), "Adjustment", "ImageAdjustmentPanel");
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
        GoTo(Tabs("CameraTabWidget"), "Adjustment", "CameraAdjustmentPanel");
        m_workbench->link.Close();
        QTRY_VERIFY(!Current()->isEnabled());
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
        QCOMPARE(m_workbench->services.Tracks()->UndoStack()->undoText(), QString("Take Dark Spectrum"));
        Click("checkDark");
        QVERIFY(settings->Recipe().corrections.subtractsDark);
        // The chart stands still: less itself nothing is left.
        QTRY_VERIFY_WITH_TIMEOUT(spectra->Shown().corrected.Count() == 2048
                                     && spectra->Shown().corrected.values.at(500) == 0.0,
                                 WaitMs);
        QVERIFY(spectra->Shown().raw.values.at(500) > 0);
        QTRY_COMPARE(Note("noteCorrections"), QString("Corrections: dark subtracted. Values below zero are drawn at zero."));
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
        auto *dialog = Current()->findChild<QColorDialog *>();
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
        GoTo(BottomTabs(), "Calibration Table", "CalibrationPanel");
        QCOMPARE(Current()->findChild<QTableView *>("tableRows")->model()->rowCount(), 3);
        Click("pushButtonTableCopy");
        const QStringList lines = QApplication::clipboard()->text().trimmed().split('\n');
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines.at(0).split('\t').at(1), QString("Wavelength [nm]"));
        QCOMPARE(QLocale().toDouble(lines.at(2).split('\t').at(1)), 600.0);
    }

protected:
    void Prepare() override { OpenAllPanels(Microscope); }

private:
    void ShowSpectrumPanel()
    {
        m_workbench->Action("Spectrum Page")->trigger();
        GoTo(RightTabs(), "Spectrum", "SpectrumPanel");
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
    QDoubleSpinBox *Box(const char *name) const { return Current()->findChild<QDoubleSpinBox *>(name); }
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    StyleSheet::Named("dark").Apply(application);
    PanelWork test;
    return GuardedTest::Run(&test, argc, argv);
}

#include "tst_panelwork.moc"
