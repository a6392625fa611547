// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMenu>

class QActionGroup;
class WorkbenchServices;

/// View > Spectrum: whether the workbench is used for spectra, which aids stand around the sensor image then, and of
/// how many lines the curves are the mean. GUI thread.
class SpectrumMenu : public QMenu
{
    Q_OBJECT

public:
    /// `services` are borrowed and outlive this object.
    SpectrumMenu(WorkbenchServices *services, QWidget *parent);

private:
    void slotUpdate();
    void slotShow(bool spectrum);
    void AddLines();
    QAction *AddCheckable(const QString &text);

    WorkbenchServices *m_services;
    QAction *m_spectrum;
    QActionGroup *m_linesGroup;
    QAction *m_axes;
    QAction *m_curves;
    QAction *m_colorBar;
};
