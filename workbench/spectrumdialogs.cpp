// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumdialogs.h"

#include "calibrationdialog.h"
#include "calibrationmodel.h"
#include "exportdialog.h"
#include "faultnotice.h"
#include "filenametext.h"
#include "openedpicture.h"
#include "openedprofiles.h"
#include "picturedesk.h"
#include "picturedocument.h"
#include "plotpicture.h"
#include "spectrumpipeline.h"
#include "spectrumsettings.h"
#include "wholefile.h"
#include "workbenchservices.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <cmath>
#include <new>

namespace {

PlotForm FormOf(const QString &suffix)
{
    if (suffix == "svg")
        return PlotForm::Svg;
    return suffix == "pdf" ? PlotForm::Pdf : PlotForm::Png;
}

QString NoMemoryFor(const QString &path)
{
    return SpectrumDialogs::tr("\u201c%1\u201d was not saved: there is not enough memory to draw the plot. Close opened pictures or "
                               "other programs, and export it again.")
        .arg(FileNameTextOf(path));
}

/// Empty where memory does not suffice: nothing but the file is lost.
QByteArray MadeWithinMemory(const std::function<QByteArray()> &make)
{
    try {
        return make();
    } catch (const std::bad_alloc &) {
        return {};
    }
}

} // namespace

SpectrumDialogs::SpectrumDialogs(WorkbenchServices *services, QWidget *centre, QWidget *window)
    : QObject(window)
    , m_services(services)
    , m_centre(centre)
    , m_window(window)
    , m_fault(new FaultNotice(window))
{
}

/// A file that was begun is brought to its end.
SpectrumDialogs::~SpectrumDialogs() { m_writing.waitForDone(); }

void SpectrumDialogs::slotCalibrate()
{
    if (!m_calibration) {
        m_calibration = new CalibrationDialog(m_services->Calibration(), [this] { return Shown().product.raw; }, m_window);
        m_calibration->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_calibration->show();
    m_calibration->raise();
    m_calibration->activateWindow();
}

// What is on the screen

ExportedSpectrum SpectrumDialogs::Shown() const
{
    ExportedSpectrum spectrum = m_services->Spectrum()->IsImageShown() ? OpenedSpectrum() : LiveSpectrum();
    spectrum.points = m_services->Calibration()->AppliedPoints();
    const double pixelsHere = std::abs(spectrum.axis.PixelHere(1) - spectrum.axis.PixelHere(0));
    spectrum.residualPixels = m_services->Calibration()->Applied().rmsPixel * pixelsHere;
    spectrum.when = QDateTime::currentDateTime();
    return spectrum;
}

/// What was shown before binning was switched off is no more.
ExportedSpectrum SpectrumDialogs::LiveSpectrum() const
{
    ExportedSpectrum spectrum;
    const SpectrumRecipe &recipe = m_services->Spectrum()->Recipe();
    if (recipe.isBinning || recipe.hasTracks)
        spectrum.product = m_services->Spectra()->Shown();
    // Tracks lie along the rows, and all may have been made before the direction, the region or the camera became another one.
    const SpectrumProduct &product = spectrum.product;
    const bool isHorizontal = !product.tracks.empty() || product.raw.place.isHorizontal;
    const int width = isHorizontal ? product.frameSize.width() : product.frameSize.height();
    spectrum.axis = m_services->Spectrum()->LiveAxis(width, SpectralFrame::Of(product.sensor, isHorizontal));
    spectrum.source = product.camera;
    return spectrum;
}

ExportedSpectrum SpectrumDialogs::OpenedSpectrum() const
{
    ExportedSpectrum spectrum;
    const OpenedPicture *picture = m_services->Desk()->MainPicture();
    const bool isHorizontal = m_services->Spectrum()->IsDirectionHorinzontal();
    spectrum.axis = m_services->Spectrum()->ShownAxis();
    spectrum.product.raw.values = picture->Profiles()->Values(isHorizontal);
    if (spectrum.product.raw.values.empty())
        return spectrum;
    spectrum.product.raw.saturated = picture->Profiles()->Saturated(isHorizontal);
    const ProfileBand lines = picture->Profiles()->Lines(isHorizontal);
    spectrum.product.band.top = lines.first;
    spectrum.product.band.bottom = lines.end;
    spectrum.product.raw.place.isHorizontal = isHorizontal;
    spectrum.product.frameId = quint64(picture->Shown().request.frame + 1);
    spectrum.product.frameSize = picture->GetImageSize();
    spectrum.source = picture->Document()->Path();
    return spectrum;
}

// Saving

void SpectrumDialogs::slotExportSpectrum()
{
    const ExportedSpectrum spectrum = Shown();
    if (spectrum.product.raw.values.empty() && spectrum.product.tracks.empty()) {
        emit signalMessage(tr("There is no spectrum to export: switch vertical binning or tracks on, or open a spectrum."));
        return;
    }
    AskWhere(tr("Export Spectrum"), {tr("Table with commented header (*.csv)")},
             [this, spectrum](const QString &path) { Write(path, [spectrum] { return SpectrumCsv(spectrum); }); });
}

void SpectrumDialogs::slotExportPlot()
{
    QPointer<QWidget> plot = VisiblePlot(m_centre);
    if (!plot) {
        emit signalMessage(tr("There is no plot to export: show the curve or the tracks in 3D first."));
        return;
    }
    AskWhere(tr("Export Plot"), {tr("PNG picture (*.png)"), tr("SVG drawing (*.svg)"), tr("PDF page (*.pdf)")},
             [this, plot](const QString &path) {
                 if (plot)
                     Write(path, PlotPicture(plot, FormOf(QFileInfo(path).suffix().toLower())));
             });
}

/// Beside the opened picture, or among the documents.
QString SpectrumDialogs::SuggestedName() const
{
    const PictureDocument *document = m_services->Desk()->MainPicture()->Document();
    if (m_services->Spectrum()->IsImageShown() && document)
        return QFileInfo(document->Path()).path() + '/' + tr("%1 spectrum").arg(QFileInfo(document->Path()).completeBaseName());
    const QString when = QDateTime::currentDateTime().toString("yyyy-MM-dd hh-mm-ss");
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + '/' + tr("spectrum %1").arg(when);
}

void SpectrumDialogs::AskWhere(const QString &title, const QStringList &filters,
                               const std::function<void(const QString &)> &write)
{
    auto *dialog = new ExportDialog(title, filters, SuggestedName(), m_window);
    connect(dialog, &QFileDialog::fileSelected, this, write);
    dialog->open();
}

void SpectrumDialogs::Write(const QString &path, const std::function<QByteArray()> &make)
{
    m_writing.start([this, path, make] {
        const QByteArray content = MadeWithinMemory(make);
        const QString fault = content.isEmpty() ? NoMemoryFor(path) : WriteWholeFile(path, content);
        QMetaObject::invokeMethod(this, [this, path, fault] { slotWritten(path, fault); }, Qt::QueuedConnection);
    });
}

void SpectrumDialogs::slotWritten(const QString &path, const QString &fault)
{
    if (fault.isEmpty())
        emit signalMessage(tr("\u201c%1\u201d was saved.").arg(FileNameTextOf(path)));
    else
        m_fault->slotShowFault(fault);
}
