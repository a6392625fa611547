// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewmenu.h"

#include "applicationlook.h"
#include "cameralink.h"
#include "globalnotify.h"
#include "language.h"
#include "levelsdialog.h"
#include "levelsmodel.h"
#include "levelssource.h"
#include "levelstexts.h"
#include "livecover.h"
#include "livelevels.h"
#include "scenecatalogue.h"
#include "specimenscene.h"
#include "spectrographscene.h"
#include "spectrummenu.h"
#include "testchartscene.h"
#include "workbenchservices.h"
#include "workspaceconfig.h"

#include <QActionGroup>

namespace {

enum Panel { LeftPanel, RightPanel, BottomPanel };

/// Names are for the command line.
QString SceneTitle(const QString &name)
{
    if (name == SpecimenScene::SceneName())
        return ViewMenu::tr("&Specimen");
    if (name == SpectrographScene::SceneName())
        return ViewMenu::tr("S&pectrograph");
    if (name == TestChartScene::SceneName())
        return ViewMenu::tr("&Test Chart");
    return name;
}

} // namespace

ViewMenu::ViewMenu(WorkbenchServices *services, QWidget *parent)
    : QMenu(tr("&View"), parent)
    , m_services(services)
    , m_config(services->Config())
    , m_panelGroup(new QActionGroup(this))
    , m_drawingGroup(new QActionGroup(this))
    , m_sceneGroup(new QActionGroup(this))
    , m_opacityGroup(new QActionGroup(this))
    , m_paletteGroup(new QActionGroup(this))
    , m_lookGroup(new QActionGroup(this))
    , m_languageGroup(new QActionGroup(this))
{
    AddViews();
    addSeparator();
    AddPanels();
    addSeparator();
    addMenu(new SpectrumMenu(services, this));
    AddPicture();
    AddPalettes();
    AddCover();
    AddDrawing();
    AddScenes();
    addSeparator();
    AddLooks();
    AddLanguages();
    AddWindow();

    connect(m_panelGroup, SIGNAL(triggered(QAction *)), this, SLOT(slotSetPanel(QAction *)));
    connect(m_drawingGroup, SIGNAL(triggered(QAction *)), this, SLOT(slotSetDrawing(QAction *)));
    connect(m_sceneGroup, SIGNAL(triggered(QAction *)), this, SLOT(slotSetScene(QAction *)));
    connect(m_opacityGroup, SIGNAL(triggered(QAction *)), this, SLOT(slotSetCoverOpacity(QAction *)));
    connect(m_paletteGroup, &QActionGroup::triggered, this, &ViewMenu::slotSetPalette);
    connect(m_lookGroup, SIGNAL(triggered(QAction *)), this, SLOT(slotSetLook(QAction *)));
    connect(m_languageGroup, SIGNAL(triggered(QAction *)), this, SLOT(slotSetLanguage(QAction *)));
    connect(services->Look(), SIGNAL(signalChanged()), this, SLOT(slotUpdate()));
    connect(services->Cover(), SIGNAL(signalChanged()), this, SLOT(slotUpdateCover()));
    connect(m_config, SIGNAL(signalSetCPUDraw(bool)), this, SLOT(slotUpdate()));
    connect(services->Levels()->Model(), SIGNAL(signalChanged()), this, SLOT(slotUpdate()));
    connect(services->Link(), SIGNAL(signalFormatChanged()), this, SLOT(slotUpdate()));
    connect(services->Link(), SIGNAL(signalStateChanged()), this, SLOT(slotUpdateCover()));
    slotUpdate();
    slotUpdateCover();
}

void ViewMenu::AddViews()
{
    addAction(tr("&Camera"), m_config, [this] { m_config->SetCameraView(); }, QKeySequence("Ctrl+Q"));
    addAction(tr("&File Directory"), m_config, [this] { m_config->SetFileView(); }, QKeySequence("Ctrl+P"));
}

void ViewMenu::AddPanels()
{
    m_panelGroup->setExclusive(false);
    AddChoice(m_panelGroup, this, tr("&Left Panel"), LeftPanel);
    AddChoice(m_panelGroup, this, tr("&Right Panel"), RightPanel);
    AddChoice(m_panelGroup, this, tr("&Bottom Panel"), BottomPanel);
}

void ViewMenu::AddPicture()
{
    addAction(tr("L&evels…"), this, SLOT(slotShowLevels()), QKeySequence("Ctrl+L"));
    m_markSaturated = addAction(tr("&Mark Saturated Pixels"));
    m_markSaturated->setCheckable(true);
    m_markSaturated->setShortcut(QKeySequence("Ctrl+M"));
    connect(m_markSaturated, SIGNAL(toggled(bool)), m_services->Levels()->Model(), SLOT(slotSetMarksSaturated(bool)));
}

void ViewMenu::AddPalettes()
{
    QMenu *menu = addMenu(tr("Pale&tte"));
    for (const QString &name : Palette::Names())
        AddChoice(m_paletteGroup, menu, LevelsTexts::PaletteTitle(name), name);
}

void ViewMenu::AddCover()
{
    QMenu *menu = addMenu(tr("Co&ver"));
    m_drawCover = menu->addAction(tr("&Draw on Live Picture"));
    m_drawCover->setCheckable(true);
    connect(m_drawCover, SIGNAL(triggered(bool)), m_services->Cover(), SLOT(slotSetDrawing(bool)));
    m_removeCover = menu->addAction(tr("&Remove"), m_services->Cover(), &LiveCover::ResetCover);
    menu->addSeparator();
    for (const int percent : {25, 50, 75, 100})
        AddChoice(m_opacityGroup, menu, tr("%1 % dark").arg(percent), percent / 100.0F);
}

void ViewMenu::AddDrawing()
{
    QMenu *menu = addMenu(tr("&Drawing"));
    AddChoice(m_drawingGroup, menu, tr("&CPU"), true);
    AddChoice(m_drawingGroup, menu, tr("&GPU (OpenGL)"), false);
}

void ViewMenu::AddScenes()
{
    QMenu *menu = addMenu(tr("Simulated &Scene"));
    for (const QString &name : SceneCatalogue::Names())
        AddChoice(m_sceneGroup, menu, SceneTitle(name), name);
}

void ViewMenu::AddLooks()
{
    QMenu *menu = addMenu(tr("Loo&k"));
    AddChoice(m_lookGroup, menu, tr("&Dark"), "dark");
    AddChoice(m_lookGroup, menu, tr("&Light"), "light");
}

/// Each language has its own name for itself, which is not translated.
void ViewMenu::AddLanguages()
{
    QMenu *menu = addMenu(tr("Lan&guage"));
    AddChoice(m_languageGroup, menu, QStringLiteral("English"), "en");
    AddChoice(m_languageGroup, menu, QStringLiteral("Deutsch"), "de");
}

void ViewMenu::AddWindow()
{
    // The keys of these two belong to the tool bar of the view.
    m_blackBackground = addAction(tr("Bl&ack Background"), [] { GlobalNotifyObserver(NotifyBlackBackground, nullptr); });
    m_blackBackground->setCheckable(true);
    m_fullScreen = addAction(tr("F&ull Screen"), [] { GlobalNotifyObserver(NotifyFullScreen, nullptr); });
    m_fullScreen->setCheckable(true);
    addAction(tr("Restore Default La&yout"), this, SIGNAL(signalRestoreDefaultLayout()));
}

QAction *ViewMenu::AddChoice(QActionGroup *group, QMenu *menu, const QString &text, const QVariant &data)
{
    QAction *action = menu->addAction(text);
    action->setActionGroup(group);
    action->setCheckable(true);
    action->setData(data);
    return action;
}

void ViewMenu::slotUpdate()
{
    const bool isShown[] = {m_config->IsLeftUIChecked(), m_config->IsRightUIChecked(), m_config->IsBottomUIChecked()};
    for (QAction *action : m_panelGroup->actions())
        action->setChecked(isShown[action->data().toInt()]);
    for (QAction *action : m_drawingGroup->actions())
        action->setChecked(action->data().toBool() == m_config->IsCPUDraw());
    m_markSaturated->setChecked(m_services->Levels()->Model()->MarksSaturated());
    for (QAction *action : m_sceneGroup->actions())
        action->setChecked(action->data().toString() == SceneCatalogue::NameIn(m_services->Link()->SceneName()));
    for (QAction *action : m_paletteGroup->actions())
        action->setChecked(action->data().toString() == m_services->Levels()->GetPalette().Name());
    for (QAction *action : m_lookGroup->actions())
        action->setChecked(action->data().toString() == m_services->Look()->Name());
    for (QAction *action : m_languageGroup->actions())
        action->setChecked(action->data().toString() == m_services->GetLanguage()->Name());
}

void ViewMenu::slotUpdateCover()
{
    const LiveCover *cover = m_services->Cover();
    m_drawCover->setChecked(cover->IsDrawing());
    m_drawCover->setEnabled(m_services->Link()->GetState() == CameraLink::State::Open);
    m_removeCover->setEnabled(cover->HasCover());
    for (QAction *action : m_opacityGroup->actions())
        action->setChecked(qFuzzyCompare(action->data().toFloat(), cover->Opacity()));
}

void ViewMenu::slotSetCoverOpacity(QAction *action)
{
    m_services->Cover()->SetOpacity(action->data().toFloat());
}

void ViewMenu::slotSetFullScreenChecked(bool checked)
{
    m_fullScreen->setChecked(checked);
}

void ViewMenu::slotSetBlackBackgroundChecked(bool checked)
{
    m_blackBackground->setChecked(checked);
}

void ViewMenu::slotSetPanel(QAction *action)
{
    switch (action->data().toInt()) {
    case LeftPanel:
        m_config->SetLeftUIChecked(action->isChecked());
        break;
    case RightPanel:
        m_config->SetRightUIChecked(action->isChecked());
        break;
    case BottomPanel:
        m_config->SetBottomUIChecked(action->isChecked());
        break;
    }
    m_config->UpdateCameraControlUI();
}

void ViewMenu::slotSetDrawing(QAction *action)
{
    emit signalDrawingChosen(action->data().toBool());
}

void ViewMenu::BuildLevelsDialog()
{
    auto *source = new LevelsSource(m_services, this);
    m_levelsDialog = new LevelsDialog(source->Model(), parentWidget());
    connect(m_levelsDialog, SIGNAL(signalWatched(bool)), source, SLOT(slotSetWatched(bool)));
    connect(source, SIGNAL(signalReport(LevelsReport)), m_levelsDialog, SLOT(slotReport(LevelsReport)));
    connect(source, SIGNAL(signalNoReport(QString)), m_levelsDialog, SLOT(slotNoReport(QString)));
}

void ViewMenu::slotShowLevels()
{
    if (!m_levelsDialog)
        BuildLevelsDialog();
    m_levelsDialog->show();
    m_levelsDialog->raise();
    m_levelsDialog->activateWindow();
}

void ViewMenu::slotSetPalette(QAction *action)
{
    m_services->Levels()->Model()->SetPalette(Palette(action->data().toString()));
}

void ViewMenu::slotSetLook(QAction *action)
{
    m_services->Look()->Choose(action->data().toString());
}

void ViewMenu::slotSetLanguage(QAction *action)
{
    m_services->GetLanguage()->Choose(action->data().toString());
    emit signalMessage(tr("The language changes at the next start."));
}

void ViewMenu::slotSetScene(QAction *action)
{
    m_services->Link()->SetScene(action->data().toString());
}
