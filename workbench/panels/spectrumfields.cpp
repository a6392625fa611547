// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumfields.h"

#include "correctionsline.h"
#include "ledgerline.h"
#include "peakfinding.h"
#include "spectrumpipeline.h"
#include "spectrumsettings.h"
#include "trackdesk.h"

namespace {

constexpr int MostAveraged = 256;
constexpr int MostSmoothed = 201; ///< samples
constexpr double MostLineWidth = 10;
constexpr double MostPeakSize = 40;
constexpr int MostPeaks = 100;
constexpr double MostBlankPercent = 90;

constexpr int leastMsBetweenMissed = 1000;
constexpr int msBetweenPeaks = 500;

enum Binning { BinningOff, BinAll, BinFound, BinByHand };

int BinningOf(const SpectrumRecipe &recipe)
{
    return recipe.isBinning ? BinAll + int(recipe.rows) : BinningOff;
}

/// Windows are odd; those too small to smooth anything are off.
int SmoothingWindow(int samples) { return samples < 3 ? 0 : samples | 1; }

PanelField CheckField(const QString &key, const QString &text, bool value)
{
    return PanelField::Make(PanelField::Kind::Check, key, text, value);
}

PanelField ColourField(const QString &key, const QString &text, const QColor &colour)
{
    return PanelField::Make(PanelField::Kind::Colour, key, text, colour);
}

} // namespace

SpectrumFields::SpectrumFields(SpectrumSettings *settings, SpectrumPipeline *spectra, TrackDesk *tracks, QObject *parent)
    : FieldSource(SpectrumName, parent)
    , m_settings(settings)
    , m_spectra(spectra)
    , m_tracks(tracks)
{
    connect(settings, &SpectrumSettings::signalRecipeChanged, this, &FieldSource::signalChanged);
    connect(settings, &SpectrumSettings::signalUnitChanged, this, &FieldSource::signalChanged);
    connect(settings, &SpectrumSettings::signalDisplayModeChange, this, &FieldSource::signalChanged);
    connect(settings, &SpectrumSettings::SignalSpectralPropertyChanged, this, &FieldSource::signalChanged);
    connect(settings, &SpectrumSettings::signalMessage, this, &FieldSource::signalFault);
    connect(tracks, &TrackDesk::signalChanged, this, &FieldSource::signalChanged);
    connect(tracks, &TrackDesk::signalMessage, this, &FieldSource::signalFault);
    connect(spectra, &SpectrumPipeline::signalMessage, this, &FieldSource::signalFault);
    connect(spectra, &SpectrumPipeline::signalSpectrumShown, this, &SpectrumFields::slotSpectrumShown);
    connect(settings, &SpectrumSettings::signalDisplayModePropertyChange, this, &SpectrumFields::slotSpectrumShown);
}

/// In noise they are others with every frame.
void SpectrumFields::SetPeaks(const PeakFinding *peaks)
{
    m_peaks = peaks;
    m_peakNews.setSingleShot(true);
    m_peakNews.setInterval(msBetweenPeaks);
    connect(&m_peakNews, &QTimer::timeout, this, &FieldSource::signalChanged);
    connect(peaks, &PeakFinding::signalCounted, &m_peakNews, [this] {
        if (!m_peakNews.isActive())
            m_peakNews.start();
    });
}

/// Of what is on the screen.
bool SpectrumFields::IsSaturated() const
{
    if (m_settings->IsImageShown())
        return m_isOpenedSaturated && m_isOpenedSaturated();
    return m_spectra->Shown().IsSaturated();
}

/// Comes with every spectrum; the form is shown anew only for what it says of it.
void SpectrumFields::slotSpectrumShown()
{
    const SpectrumProduct &product = m_spectra->Shown();
    const QString corrections = CorrectionsLine(*m_settings, product);
    const bool isSaturated = IsSaturated();
    const bool isMissedNews = IsMissedNews();
    if (!isMissedNews && m_corrections == corrections && m_samples == product.raw.Count() && m_rows == product.frameSize.height()
        && m_linesAcross == m_settings->LinesAcross() && m_isSaturated == isSaturated)
        return;
    if (isMissedNews) {
        m_missed = m_spectra->Ledger().missed;
        m_sinceMissed.start();
    }
    m_isSaturated = isSaturated;
    m_corrections = corrections;
    m_samples = product.raw.Count();
    m_rows = product.frameSize.height();
    m_linesAcross = m_settings->LinesAcross();
    emit signalChanged();
}

/// A camera that is too fast for every second frame is no reason to build the form at its rate.
bool SpectrumFields::IsMissedNews() const
{
    return m_spectra->Ledger().missed != m_missed && (!m_sinceMissed.isValid() || m_sinceMissed.hasExpired(leastMsBetweenMissed));
}

PanelFields SpectrumFields::Fields() const
{
    PanelFields fields;
    AddDisplay(fields);
    AddBinning(fields);
    AddTracks(fields);
    const int first = fields.size();
    AddReferences(fields);
    AddFilters(fields);
    SetGroup(fields, first, tr("Corrections"));
    AddLook(fields);
    return fields;
}

void SpectrumFields::AddDisplay(PanelFields &fields) const
{
    const int first = fields.size();
    fields << PanelField::MakeChoice("mode", tr("Show"), int(m_settings->Mode()),
                                     {tr("Picture"), tr("Sensor image"), tr("Curve"), tr("Curve with peaks"),
                                      tr("Tracks in 3D")});
    fields.last().toolTip = tr("Ctrl+1 to Ctrl+5");
    fields << PanelField::MakeChoice("direction", tr("Direction"), m_settings->IsDirectionHorinzontal() ? 0 : 1,
                                     {tr("horizontal"), tr("vertical")});
    fields.last().toolTip = tr("The direction in which the wavelength changes on the sensor.");
    fields << PanelField::MakeChoice("unit", tr("Unit"), int(m_settings->Unit()),
                                     {tr("pixels"), tr("nanometres"), tr("wavenumbers")});
    fields.last().toolTip = tr("Without a calibration spectra are shown over pixels.");
    const QString otherCamera = m_settings->CameraNote();
    if (!otherCamera.isEmpty())
        fields << PanelField::Make(PanelField::Kind::Note, "calibration", tr("Calibration"), otherCamera);
    SetGroup(fields, first, tr("Display"));
}

void SpectrumFields::AddBinning(PanelFields &fields) const
{
    const int first = fields.size();
    const SpectrumRecipe &recipe = m_settings->Recipe();
    const bool isManual = recipe.isBinning && recipe.rows == BinnedRows::Manual;
    const bool isOfRows = recipe.isHorizontal;
    const double last = qMax(m_settings->LinesAcross() - 1, qMax(recipe.top, recipe.bottom));
    fields << PanelField::MakeChoice("binning", isOfRows ? tr("Rows") : tr("Columns"), BinningOf(recipe),
                                     {tr("off"), isOfRows ? tr("all rows") : tr("all columns"), tr("band found by itself"),
                                      tr("band by hand")});
    fields << PanelField::MakeNumber("top", isOfRows ? tr("First row") : tr("First column"), recipe.top, 0, last);
    fields.last().isEnabled = isManual;
    fields << PanelField::MakeNumber("bottom", isOfRows ? tr("Last row") : tr("Last column"), recipe.bottom, 0, last);
    fields.last().isEnabled = isManual;
    fields << PanelField::MakeAction("findBand", tr("Find the Band Again"),
                                     recipe.isBinning && recipe.rows == BinnedRows::Auto);
    SetGroup(fields, first, tr("Vertical binning"));
}

void SpectrumFields::AddTracks(PanelFields &fields) const
{
    const int first = fields.size();
    const SpectrumRecipe &recipe = m_settings->Recipe();
    fields << PanelField::Make(PanelField::Kind::Note, "tracks", tr("Tracks"),
                               m_settings->GetMultiTrackList().isEmpty()
                                   ? tr("none")
                                   : QString::number(m_settings->GetMultiTrackList().size()));
    fields << PanelField::MakeAction("findTracks", tr("Find Tracks"));
    fields << CheckField("showTracks", tr("Show tracks"), recipe.hasTracks);
    const int count = int(recipe.tracks.size());
    fields.last().isEnabled = recipe.hasTracks || count > 0;
    fields << CheckField("drawTracks", tr("Draw on the picture"), m_tracks->IsDrawing());
    fields.last().toolTip = tr("Drag over rows of the live picture for a new track; drag a track or its edges to change it.");
    fields << PanelField::MakeAction("addTrack", tr("Add Track"));
    fields << PanelField::MakeAction("removeTrack", tr("Remove Track"), m_tracks->Chosen() >= 0);
    fields << PanelField::MakeAction("clearTracks", tr("Clear Tracks"), count > 0);
    fields << PanelField::MakeNumber("track", tr("Chosen track"), m_tracks->Chosen() + 1, 0, count);
    fields.last().zeroText = tr("none");
    fields.last().isEnabled = count > 0;
    const RowBand rows = m_tracks->ChosenRows();
    const double last = qMax(m_rows, rows.bottom) - 1;
    fields << PanelField::MakeNumber("trackTop", tr("Its first row"), rows.top, 0, qMax(0.0, last));
    fields.last().isEnabled = m_tracks->Chosen() >= 0;
    fields << PanelField::MakeNumber("trackBottom", tr("Its last row"), qMax(0, rows.bottom - 1), 0, qMax(0.0, last));
    fields.last().isEnabled = m_tracks->Chosen() >= 0;
    fields << CheckField("focus", tr("Focus assistance"), recipe.isFocusing);
    SetGroup(fields, first, tr("Tracks"));
}

void SpectrumFields::AddReferences(PanelFields &fields) const
{
    const CorrectionSettings &corrections = m_settings->Recipe().corrections;
    const bool isOpened = m_settings->IsImageShown();
    const bool canTake = m_samples > 0 && !isOpened;
    const QString whyNot = isOpened ? tr("An opened file is shown: go to the camera first.")
                                    : tr("There is no spectrum yet: switch vertical binning on first.");
    fields << PanelField::Make(PanelField::Kind::Note, "corrections", tr("Now"),
                               CorrectionsLine(*m_settings, m_spectra->Shown()));
    if (m_isSaturated) {
        fields << PanelField::Make(PanelField::Kind::Note, "saturated", tr("Saturated"),
                                   isOpened ? tr("Pixels are at the end of their range: peaks are cut off there.")
                                            : tr("Pixels are at the end of their range: peaks are cut off there. Shorten the exposure."));
    }
    if (m_spectra->Ledger().missed > 0) {
        fields << PanelField::Make(PanelField::Kind::Note, "missed", tr("Missed"), LedgerLine(m_spectra->Ledger()));
        fields.last().toolTip = tr("Lengthen the exposure, or bin fewer rows, to have a spectrum of every frame.");
    }
    fields << PanelField::MakeAction("takeDark", tr("Take Dark"), canTake);
    fields.last().toolTip = canTake ? tr("The spectrum shown becomes the dark spectrum.") : whyNot;
    fields << CheckField("dark", tr("subtract"), corrections.subtractsDark);
    fields.last().isBeside = true;
    fields << PanelField::MakeAction("takeReference", tr("Take Reference"), canTake);
    fields.last().toolTip = canTake ? tr("The spectrum shown becomes the reference spectrum.") : whyNot;
    fields << CheckField("reference", tr("subtract"), corrections.subtractsReference);
    fields.last().isBeside = true;
    fields.last().isEnabled = corrections.quantity == SpectrumQuantity::Counts;
    fields << PanelField::MakeChoice("quantity", tr("Quantity"), int(corrections.quantity),
                                     {tr("counts"), tr("transmission"), tr("absorbance")});
}

void SpectrumFields::AddFilters(PanelFields &fields) const
{
    const CorrectionSettings &corrections = m_settings->Recipe().corrections;
    fields << PanelField::MakeNumber("average", tr("Average"), corrections.averaged, 1, MostAveraged, 0,
                                     tr(" spectra"));
    fields.last().zeroText = tr("off");
    fields << PanelField::MakeNumber("smoothing", tr("Smooth over"), qMax(1, corrections.smoothing), 1, MostSmoothed,
                                     0, tr(" samples"));
    fields.last().zeroText = tr("off");
    fields.last().step = 2;
    fields << CheckField("cosmicRays", tr("Remove cosmic rays"), corrections.removesCosmicRays);
    fields << CheckField("baseline", tr("Remove the baseline"), corrections.removesBaseline);
}

void SpectrumFields::AddLook(PanelFields &fields) const
{
    const int first = fields.size();
    const PlotStyle style = m_settings->Style();
    fields << ColourField("lineColour", tr("Line"), style.line.color());
    fields << PanelField::MakeNumber("lineWidth", tr("Line width"), style.line.widthF(), 0.5, MostLineWidth, 1,
                                     tr(" px"));
    fields.last().step = 0.5;
    fields << PanelField::MakeChoice("lineStyle", tr("Line style"), m_settings->GetLineStyle(),
                                     {tr("solid"), tr("dashes"), tr("dots"), tr("dash dot"), tr("dash dot dot")});
    fields << ColourField("peakColour", tr("Peaks"), style.peak.color());
    fields << PanelField::MakeNumber("peakSize", tr("Peak size"), style.peakSize, 2, MostPeakSize, 0, tr(" px"));
    fields << PanelField::MakeNumber("peakNumber", tr("Most peaks"), style.peakNumber, 0, MostPeaks);
    fields.last().zeroText = tr("all");
    if (m_peaks && m_settings->IsDisplayMode2DPeak()) {
        fields << PanelField::Make(PanelField::Kind::Note, "peaks", tr("Marked"),
                                   tr("%1 of %2 lines").arg(m_peaks->Marked()).arg(m_peaks->Found()));
    }
    fields << ColourField("background", tr("Background"), style.background);
    fields << PanelField::MakeNumber("blank", tr("Free above"), style.blankRatio * 100, 0, MostBlankPercent, 0, tr(" %"));
    fields.last().toolTip = tr("Part of the height that stays free above the highest value.");
    SetGroup(fields, first, tr("Look of the plots"));
}

void SpectrumFields::Set(const QString &key, const QVariant &value)
{
    emit signalFault(QString());
    if (Do(key) || SetDisplay(key, value) || SetTrack(key, value) || SetRows(key, value) || SetCorrection(key, value) || SetLook(key, value))
        emit signalChanged();
}

/// What is done at once. True when the key was one of these.
bool SpectrumFields::Do(const QString &key)
{
    if (key == "findBand")
        m_spectra->FindBandAgain();
    else if (key == "findTracks")
        m_spectra->FindTracks();
    else if (key == "addTrack")
        m_tracks->Add();
    else if (key == "removeTrack")
        m_tracks->RemoveChosen();
    else if (key == "clearTracks")
        m_tracks->Clear();
    else if (key == "takeDark")
        m_spectra->TakeDark();
    else if (key == "takeReference")
        m_spectra->TakeReference();
    else
        return false;
    return true;
}

/// True when the key was one of these, here and below.
bool SpectrumFields::SetDisplay(const QString &key, const QVariant &value)
{
    if (key == "mode")
        m_settings->SetMode(DisplayMode(qBound(0, value.toInt(), int(DisplayMode::Tracks3D))));
    else if (key == "direction")
        m_settings->SetHorizontal(value.toInt() == 0);
    else if (key == "unit")
        m_settings->SetUnit(SpectralUnit(qBound(0, value.toInt(), int(SpectralUnit::Wavenumber))));
    else
        return false;
    return true;
}

bool SpectrumFields::SetTrack(const QString &key, const QVariant &value)
{
    const RowBand rows = m_tracks->ChosenRows();
    if (key == "drawTracks")
        m_tracks->SetDrawing(value.toBool());
    else if (key == "track")
        m_tracks->Choose(value.toInt() - 1);
    else if (key == "trackTop")
        m_tracks->SetChosenRows(qBound(0, value.toInt(), rows.bottom - 1), rows.bottom - 1);
    else if (key == "trackBottom")
        m_tracks->SetChosenRows(rows.top, qMax(rows.top, value.toInt()));
    else
        return false;
    return true;
}

bool SpectrumFields::SetRows(const QString &key, const QVariant &value)
{
    const SpectrumRecipe &recipe = m_settings->Recipe();
    if (key == "binning") {
        const int binning = qBound(int(BinningOff), value.toInt(), int(BinByHand));
        if (binning != BinningOff)
            m_settings->SetBinnedRows(BinnedRows(binning - BinAll));
        m_settings->SetFVBOnFlag(binning != BinningOff);
    } else if (key == "top") {
        m_settings->SetTop(qBound(0, value.toInt(), recipe.bottom));
    } else if (key == "bottom") {
        m_settings->SetBottom(qMax(recipe.top, value.toInt()));
    } else if (key == "showTracks") {
        m_settings->SetMultiTrackOnFlag(value.toBool());
    } else if (key == "focus") {
        m_settings->SetFocusAssitanceFlag(value.toBool());
    } else {
        return false;
    }
    return true;
}

bool SpectrumFields::SetCorrection(const QString &key, const QVariant &value)
{
    CorrectionSettings corrections = m_settings->Recipe().corrections;
    if (key == "dark")
        corrections.subtractsDark = value.toBool();
    else if (key == "reference")
        corrections.subtractsReference = value.toBool();
    else if (key == "quantity")
        corrections.quantity = SpectrumQuantity(qBound(0, value.toInt(), int(SpectrumQuantity::Absorbance)));
    else if (key == "average")
        corrections.averaged = qBound(1, value.toInt(), MostAveraged);
    else if (key == "smoothing")
        corrections.smoothing = SmoothingWindow(qMin(value.toInt(), MostSmoothed));
    else if (key == "cosmicRays")
        corrections.removesCosmicRays = value.toBool();
    else if (key == "baseline")
        corrections.removesBaseline = value.toBool();
    else
        return false;
    m_settings->SetCorrections(corrections);
    return true;
}

bool SpectrumFields::SetLook(const QString &key, const QVariant &value)
{
    PlotStyle style = m_settings->Style();
    if (key == "lineColour")
        style.line.setColor(value.value<QColor>());
    else if (key == "lineWidth")
        style.line.setWidthF(qBound(0.5, value.toDouble(), MostLineWidth));
    else if (key == "lineStyle")
        style.line.setStyle(Qt::PenStyle(Qt::SolidLine + qBound(0, value.toInt(), 4)));
    else if (key == "peakColour")
        style.peak.setColor(value.value<QColor>());
    else if (key == "peakSize")
        style.peakSize = qBound(2.0, value.toDouble(), MostPeakSize);
    else if (key == "peakNumber")
        style.peakNumber = qBound(0, value.toInt(), MostPeaks);
    else if (key == "background")
        style.background = value.value<QColor>();
    else if (key == "blank")
        style.blankRatio = qBound(0.0, value.toDouble(), MostBlankPercent) / 100;
    else
        return false;
    m_settings->SetStyle(style);
    return true;
}
