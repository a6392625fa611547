// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMenu>

class LevelsDialog;
class QActionGroup;
class WorkbenchServices;
class WorkspaceConfig;

/// The View menu: which view and panels are shown, how the picture is drawn, its levels, and what the
/// simulated camera looks at. What concerns the window itself it leaves to the window. GUI thread.
class ViewMenu : public QMenu
{
    Q_OBJECT

public:
    /// `services` are borrowed and outlive this object.
    ViewMenu(WorkbenchServices *services, QWidget *parent);

public slots:
    /// Shows the state of panels and drawing.
    void slotUpdate();
    void slotSetFullScreenChecked(bool checked);
    void slotSetBlackBackgroundChecked(bool checked);

signals:
    /// True for the CPU.
    void signalDrawingChosen(bool cpuFlag);
    void signalRestoreDefaultLayout();
    /// A sentence for the status bar.
    void signalMessage(QString text);

private slots:
    void slotSetDrawing(QAction *action);
    void slotShowLevels();
    void slotSetScene(QAction *action);
    void slotSetPalette(QAction *action);
    void slotSetLook(QAction *action);
    void slotSetLanguage(QAction *action);
    void slotSetPanel(QAction *action);
    void slotSetCoverOpacity(QAction *action);
    void slotUpdateCover();

private:
    void AddViews();
    void AddPanels();
    void AddPicture();
    void AddPalettes();
    void AddCover();
    void AddDrawing();
    void AddScenes();
    void AddLooks();
    void AddLanguages();
    void AddWindow();
    void BuildLevelsDialog();
    QAction *AddChoice(QActionGroup *group, QMenu *menu, const QString &text, const QVariant &data);

    WorkbenchServices *m_services;
    WorkspaceConfig *m_config;
    QActionGroup *m_panelGroup;
    QActionGroup *m_drawingGroup;
    QActionGroup *m_sceneGroup;
    QActionGroup *m_opacityGroup;
    QActionGroup *m_paletteGroup;
    QActionGroup *m_lookGroup;
    QActionGroup *m_languageGroup;
    LevelsDialog *m_levelsDialog = nullptr;
    QAction *m_markSaturated = nullptr;
    QAction *m_drawCover = nullptr;
    QAction *m_removeCover = nullptr;
    QAction *m_blackBackground = nullptr;
    QAction *m_fullScreen = nullptr;
};
