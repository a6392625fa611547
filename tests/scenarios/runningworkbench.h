// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cameralink.h"
#include "mainwindow.h"
#include "settingsfile.h"
#include "workbenchservices.h"

#include <QColor>
#include <QPoint>
#include <QPointF>
#include <QString>

class QAction;
class QGraphicsView;
class QScrollArea;
class QWidget;

/// The whole workbench in a real window, with the test chart before its camera and its settings in
/// `folder`.
class RunningWorkbench
{
public:
    explicit RunningWorkbench(const QString &folder);
    ~RunningWorkbench();

    /// Waits until the window is active and a picture is on the screen.
    bool WaitForPicture();
    /// Waits until a picture made after this call is on the screen.
    bool WaitForNextPicture() const;

    QGraphicsView *View() const;
    /// The live page with its tool bar and information bar.
    QWidget *CameraPage() const;
    /// The scroll area that the live view moves in.
    QScrollArea *Frame() const;
    double Scale() const;
    /// The colour on the screen of the picture pixel around `scenePos`.
    QColor OnScreen(const QPointF &scenePos) const;
    /// The colour at a place of the screen.
    QColor OnScreenAt(const QPoint &place) const;
    /// That pixel of the picture is seen: not scrolled away and under no other widget.
    bool IsSeen(const QPointF &scenePos) const;
    QString StatusText() const;
    /// The menu action with this text, without its mnemonic mark.
    QAction *Action(const QString &text) const;

    /// Set before the window looks for its panels.
    const bool panelRoot;
    SettingsFile settings;
    CameraLink link;
    WorkbenchServices services;
    MainWindow window;
};
