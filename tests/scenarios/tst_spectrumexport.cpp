// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerasession.h"
#include "fieldsource.h"
#include "livepreview.h"
#include "openedpicture.h"
#include "picturedesk.h"
#include "plotpicture.h"
#include "scenariotest.h"
#include "spebytes.h"
#include "spectrographscene.h"
#include "spectrumexport.h"
#include "spectrumpipeline.h"
#include "spectrumsettings.h"
#include "viewcodes.h"
#include "workspaceconfig.h"

#include <QAction>
#include <QComboBox>
#include <QFileDialog>
#include <QImageReader>
#include <QLineEdit>

#include <algorithm>
#include <cmath>

/// A person takes spectra home.
class SpectrumExportScenario : public ScenarioTest
{
    Q_OBJECT

private slots:
    /// What follows the dot is no suffix.
    void namesWithADotGetTheSuffixOfTheirForm()
    {
        OpenFile("lamp 1.5s.spe", 100);
        m_workbench->Action("Curve")->trigger();
        QTRY_VERIFY(VisiblePlot(m_workbench->window.centralWidget()));

        QFileDialog *dialog = Exporting().Open("Export Spectrum…");
        QVERIFY(dialog);
        SpectrumExport::Accept(dialog);
        QVERIFY(Exporting().IsSaved("lamp 1.5s spectrum.csv"));

        dialog = Exporting().Open("Export Plot…");
        QVERIFY(dialog);
        SpectrumExport::Accept(dialog);
        QVERIFY(Exporting().IsSaved("lamp 1.5s spectrum.png"));

        dialog = Exporting().Open("Export Plot…");
        QVERIFY(dialog);
        ChooseSvg(dialog);
        QCOMPARE(NameIn(dialog), QString("lamp 1.5s spectrum.svg"));
        SpectrumExport::Accept(dialog);
        QVERIFY(Exporting().IsSaved("lamp 1.5s spectrum.svg"));
        QCOMPARE(QImageReader::imageFormat(m_folder->filePath("lamp 1.5s spectrum.svg")), QByteArray("svg"));

        // Typed without one.
        dialog = Exporting().Open("Export Plot…");
        QVERIFY(dialog);
        ChooseSvg(dialog);
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText("lamp 0.3s");
        SpectrumExport::Accept(dialog);
        QVERIFY(Exporting().IsSaved("lamp 0.3s.svg"));
        m_workbench->services.Config()->SetCameraView(); // a live picture leaves with its page
    }

    /// The panel speaks of the opened curve, and the menu takes nothing that is not seen.
    void anOpenedCurveIsSaidToBeSaturated()
    {
        OpenFile("bright.spe", 65535);
        m_workbench->Action("Curve")->trigger();
        QTRY_VERIFY(IsSaturationSaid());
        m_workbench->Action("Take Dark Spectrum")->trigger();
        QCOMPARE(m_workbench->StatusText(), QString("An opened file is shown: go to the camera first."));
        OpenFile("faint.spe", 100);
        QTRY_VERIFY(!IsSaturationSaid());
        m_workbench->services.Config()->SetCameraView();
    }

private:
    SpectrumExport Exporting() const { return SpectrumExport(m_workbench.get(), m_folder->path()); }

    /// A spectrum of one row with one line, so high.
    void OpenFile(const QString &name, quint16 height)
    {
        constexpr int width = 400;
        SpeBytes spe(width, 1, 3, 1);
        for (int x = 0; x < width; ++x) {
            QByteArray sample(2, '\0');
            qToLittleEndian(quint16(x == 200 ? height : 5), sample.data());
            spe.Append(sample);
        }
        QFile file(m_folder->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(spe.Bytes()) > 0);
        file.close();
        PictureDesk *desk = m_workbench->services.Desk();
        desk->Open({m_folder->filePath(name)}, desk->MainPicture());
        QTRY_COMPARE(desk->MainPicture()->GetFileName(), name);
        QTRY_VERIFY(m_workbench->services.Spectrum()->IsImageShown());
    }

    /// As by hand: the box tells the dialog.
    static void ChooseSvg(QFileDialog *dialog)
    {
        auto *filters = dialog->findChild<QComboBox *>("fileTypeCombo");
        const int svg = filters->findText("svg", Qt::MatchContains);
        filters->setCurrentIndex(svg);
        QMetaObject::invokeMethod(filters, "activated", Q_ARG(int, svg));
    }

    static QString NameIn(const QFileDialog *dialog) { return dialog->findChild<QLineEdit *>("fileNameEdit")->text(); }

    static bool IsSaturationSaid()
    {
        const PanelFields fields = FieldSource::Find(FieldSource::SpectrumName)->Fields();
        return std::any_of(fields.begin(), fields.end(), [](const PanelField &field) { return field.key == "saturated"; });
    }
};

GUARDED_TEST_MAIN(SpectrumExportScenario)
#include "tst_spectrumexport.moc"
