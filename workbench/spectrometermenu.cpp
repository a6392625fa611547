// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrometermenu.h"

#include "correctionsline.h"
#include "ledgerline.h"
#include "spectrumpipeline.h"
#include "spectrumsettings.h"
#include "trackdesk.h"
#include "workbenchservices.h"

#include <QActionGroup>

namespace {

constexpr int binningOff = -1;

void Check(const QActionGroup *group, int value)
{
    for (QAction *action : group->actions())
        action->setChecked(action->data().toInt() == value);
}

} // namespace

SpectrometerMenu::SpectrometerMenu(WorkbenchServices *services, QWidget *parent)
    : QMenu(tr("&Spectrum"), parent)
    , m_services(services)
    , m_settings(services->Spectrum())
{
    AddDisplay();
    addSeparator();
    AddBinning();
    AddTracks();
    AddCorrections();
    AddUnits();
    addSeparator();
    AddOutput();

    connect(m_settings, &SpectrumSettings::signalRecipeChanged, this, &SpectrometerMenu::slotUpdate);
    connect(m_settings, &SpectrumSettings::signalUnitChanged, this, &SpectrometerMenu::slotUpdate);
    connect(m_settings, &SpectrumSettings::signalDisplayModeChange, this, &SpectrometerMenu::slotUpdate);
    connect(this, &QMenu::aboutToShow, this, &SpectrometerMenu::slotUpdate);
    slotUpdate();
}

void SpectrometerMenu::AddDisplay()
{
    m_modes = AddChoices(this, {{tr("&Picture"), int(DisplayMode::General)}, {tr("Sensor &Image"), int(DisplayMode::Physics)},
                                {tr("&Curve"), int(DisplayMode::Plot)}, {tr("Curve with Pea&ks"), int(DisplayMode::PlotPeak)},
                                {tr("Tracks in &3D"), int(DisplayMode::Tracks3D)}},
                         [this](int mode) { m_settings->SetMode(DisplayMode(mode)); });
    int key = 1;
    for (QAction *action : m_modes->actions())
        action->setShortcut(QKeySequence(QString("Ctrl+%1").arg(key++)));
}

void SpectrometerMenu::AddBinning()
{
    QMenu *menu = addMenu(tr("&Vertical Binning"));
    m_rows = AddChoices(menu, {{tr("&Off"), binningOff}, {tr("&All Rows"), int(BinnedRows::All)},
                               {tr("Band &Found by Itself"), int(BinnedRows::Auto)}, {tr("Band by &Hand"), int(BinnedRows::Manual)}},
                        [this](int rows) {
                            if (rows != binningOff)
                                m_settings->SetBinnedRows(BinnedRows(rows));
                            m_settings->SetFVBOnFlag(rows != binningOff);
                        });
    m_allRows = m_rows->actions().at(1);
    menu->addSeparator();
    menu->addAction(tr("Find the Band Aga&in"), this, [this] { m_services->Spectra()->FindBandAgain(); });
    QMenu *directions = addMenu(tr("&Direction"));
    m_directions = AddChoices(directions, {{tr("&Horizontal"), 1}, {tr("&Vertical"), 0}},
                              [this](int horizontal) { m_settings->SetHorizontal(horizontal != 0); });
}

void SpectrometerMenu::AddTracks()
{
    QMenu *menu = addMenu(tr("&Tracks"));
    menu->addAction(tr("&Find Tracks"), this, &SpectrometerMenu::FindTracks);
    m_tracks = AddCheck(menu, tr("&Show Tracks"), [this](bool on) { m_settings->SetMultiTrackOnFlag(on); });
    TrackDesk *tracks = m_services->Tracks();
    m_drawTracks = AddCheck(menu, tr("&Draw on the Picture"), [tracks](bool on) { tracks->SetDrawing(on); });
    menu->addSeparator();
    menu->addAction(tr("&Add Track"), tracks, &TrackDesk::Add);
    m_removeTrack = menu->addAction(tr("&Remove Track"), tracks, &TrackDesk::RemoveChosen);
    m_clearTracks = menu->addAction(tr("&Clear Tracks"), tracks, &TrackDesk::Clear);
    connect(tracks, &TrackDesk::signalChanged, this, &SpectrometerMenu::slotUpdate);
    m_focus = AddCheck(this, tr("&Focus Assistance"), [this](bool on) { m_settings->SetFocusAssitanceFlag(on); });
}

void SpectrometerMenu::AddCorrections()
{
    const auto change = [this](const std::function<void(CorrectionSettings *)> &how) {
        CorrectionSettings corrections = m_settings->Recipe().corrections;
        how(&corrections);
        m_settings->SetCorrections(corrections);
    };
    QMenu *menu = addMenu(tr("C&orrections"));
    m_description = menu->addAction(QString());
    m_description->setEnabled(false);
    m_ledger = menu->addAction(QString());
    m_ledger->setObjectName("actionSpectrumLedger");
    m_ledger->setEnabled(false);
    menu->addSeparator();
    menu->addAction(tr("Take &Dark Spectrum"), this, [this] { Take(true); });
    m_dark = AddCheck(menu, tr("&Subtract Dark"), [change](bool on) { change([on](CorrectionSettings *c) { c->subtractsDark = on; }); });
    menu->addAction(tr("Take &Reference Spectrum"), this, [this] { Take(false); });
    m_reference = AddCheck(menu, tr("Subtract R&eference"),
                           [change](bool on) { change([on](CorrectionSettings *c) { c->subtractsReference = on; }); });
    menu->addSeparator();
    m_quantities = AddChoices(menu, {{tr("&Counts"), int(SpectrumQuantity::Counts)}, {tr("&Transmission"), int(SpectrumQuantity::Transmission)},
                                     {tr("&Absorbance"), int(SpectrumQuantity::Absorbance)}},
                              [change](int quantity) { change([quantity](CorrectionSettings *c) { c->quantity = SpectrumQuantity(quantity); }); });
    menu->addSeparator();
    m_rays = AddCheck(menu, tr("Remove Cosmic Ra&ys"),
                      [change](bool on) { change([on](CorrectionSettings *c) { c->removesCosmicRays = on; }); });
    m_baseline = AddCheck(menu, tr("Remove &Baseline"),
                          [change](bool on) { change([on](CorrectionSettings *c) { c->removesBaseline = on; }); });
    QList<QPair<QString, int>> averages = {{tr("&Off"), 1}};
    for (const int spectra : {2, 4, 8, 16, 32, 64})
        averages << qMakePair(tr("%1 Spectra").arg(spectra), spectra);
    m_averages = AddChoices(menu->addMenu(tr("A&verage")), averages,
                            [change](int spectra) { change([spectra](CorrectionSettings *c) { c->averaged = spectra; }); });
    QList<QPair<QString, int>> smoothings = {{tr("&Off"), 0}};
    for (const int samples : {5, 9, 15, 25})
        smoothings << qMakePair(tr("%1 Samples").arg(samples), samples);
    m_smoothings = AddChoices(menu->addMenu(tr("S&mooth")), smoothings,
                              [change](int samples) { change([samples](CorrectionSettings *c) { c->smoothing = samples; }); });
}

void SpectrometerMenu::AddUnits()
{
    m_units = AddChoices(addMenu(tr("&Unit")), {{tr("&Nanometres"), int(SpectralUnit::Nanometre)},
                                               {tr("&Wavenumbers"), int(SpectralUnit::Wavenumber)}, {tr("&Pixels"), int(SpectralUnit::Pixel)}},
                         [this](int unit) { m_settings->SetUnit(SpectralUnit(unit)); });
}

void SpectrometerMenu::AddOutput()
{
    addAction(tr("Ca&librate…"), this, &SpectrometerMenu::signalCalibrationWanted, QKeySequence("Ctrl+Shift+L"));
    addAction(tr("&Export Spectrum…"), this, &SpectrometerMenu::signalExportWanted, QKeySequence("Ctrl+Shift+S"));
    addAction(tr("E&xport Plot…"), this, &SpectrometerMenu::signalPlotExportWanted, QKeySequence("Ctrl+Shift+F"));
}

QActionGroup *SpectrometerMenu::AddChoices(QMenu *menu, const QList<QPair<QString, int>> &choices, const std::function<void(int)> &choose)
{
    auto *group = new QActionGroup(this);
    for (const auto &choice : choices) {
        QAction *action = menu->addAction(choice.first);
        action->setCheckable(true);
        action->setData(choice.second);
        group->addAction(action);
    }
    connect(group, &QActionGroup::triggered, this, [this, choose](const QAction *action) {
        choose(action->data().toInt());
        slotUpdate(); // what was refused is not checked
    });
    return group;
}

QAction *SpectrometerMenu::AddCheck(QMenu *menu, const QString &text, const std::function<void(bool)> &set)
{
    QAction *action = menu->addAction(text);
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, set](bool on) {
        set(on);
        slotUpdate();
    });
    return action;
}

void SpectrometerMenu::FindTracks()
{
    m_services->Spectra()->FindTracks();
}

void SpectrometerMenu::Take(bool dark)
{
    SpectrumPipeline *spectra = m_services->Spectra();
    if (m_settings->IsImageShown())
        emit signalMessage(tr("An opened file is shown: go to the camera first."));
    else if (!(dark ? spectra->TakeDark() : spectra->TakeReference()))
        emit signalMessage(tr("There is no spectrum yet: switch vertical binning on first."));
    else
        emit signalMessage(dark ? tr("The spectrum shown is the dark spectrum now.") : tr("The spectrum shown is the reference spectrum now."));
}

void SpectrometerMenu::slotUpdate()
{
    const SpectrumRecipe &recipe = m_settings->Recipe();
    Check(m_modes, int(m_settings->Mode()));
    Check(m_rows, recipe.isBinning ? int(recipe.rows) : binningOff);
    m_allRows->setText(recipe.isHorizontal ? tr("&All Rows") : tr("&All Columns"));
    Check(m_directions, m_settings->IsDirectionHorinzontal() ? 1 : 0);
    Check(m_quantities, int(recipe.corrections.quantity));
    Check(m_averages, recipe.corrections.averaged);
    Check(m_smoothings, recipe.corrections.smoothing);
    Check(m_units, int(m_settings->Unit()));
    m_tracks->setChecked(recipe.hasTracks);
    m_drawTracks->setChecked(m_services->Tracks()->IsDrawing());
    m_removeTrack->setEnabled(m_services->Tracks()->Chosen() >= 0);
    m_clearTracks->setEnabled(!recipe.tracks.empty());
    m_focus->setChecked(recipe.isFocusing);
    m_rays->setChecked(recipe.corrections.removesCosmicRays);
    m_dark->setChecked(recipe.corrections.subtractsDark);
    m_reference->setChecked(recipe.corrections.subtractsReference);
    m_baseline->setChecked(recipe.corrections.removesBaseline);
    m_description->setText(CorrectionsLine(*m_settings, m_services->Spectra()->Shown()));
    m_ledger->setText(LedgerLine(m_services->Spectra()->Ledger()));
}
