// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMenu>

#include <functional>

class QActionGroup;
class SpectrumSettings;
class WorkbenchServices;

/// The Spectrum menu: how a spectrum is shown, which rows make it, what is corrected, in which unit. GUI thread.
class SpectrometerMenu : public QMenu
{
    Q_OBJECT

public:
    /// `services` are borrowed and outlive this object.
    SpectrometerMenu(WorkbenchServices *services, QWidget *parent);

signals:
    void signalCalibrationWanted();
    void signalExportWanted();
    void signalPlotExportWanted();
    /// A sentence for the status bar.
    void signalMessage(QString text);

private:
    void AddDisplay();
    void AddBinning();
    void AddTracks();
    void AddCorrections();
    void AddUnits();
    void AddOutput();
    QActionGroup *AddChoices(QMenu *menu, const QList<QPair<QString, int>> &choices, const std::function<void(int)> &choose);
    QAction *AddCheck(QMenu *menu, const QString &text, const std::function<void(bool)> &set);
    void FindTracks();
    void Take(bool dark);
    void slotUpdate();

    WorkbenchServices *m_services;
    SpectrumSettings *m_settings;
    QActionGroup *m_modes = nullptr;
    QActionGroup *m_rows = nullptr;
    QAction *m_allRows = nullptr; ///< one of them
    QActionGroup *m_directions = nullptr;
    QActionGroup *m_quantities = nullptr;
    QActionGroup *m_averages = nullptr;
    QActionGroup *m_smoothings = nullptr;
    QActionGroup *m_units = nullptr;
    QAction *m_tracks = nullptr;
    QAction *m_drawTracks = nullptr;
    QAction *m_removeTrack = nullptr;
    QAction *m_clearTracks = nullptr;
    QAction *m_focus = nullptr;
    QAction *m_description = nullptr;
    QAction *m_ledger = nullptr;
    QAction *m_rays = nullptr;
    QAction *m_dark = nullptr;
    QAction *m_reference = nullptr;
    QAction *m_baseline = nullptr;
};
