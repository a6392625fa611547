// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMenu>

class WorkbenchServices;

/// View > Spectrum: whether the workbench is used for spectra, and which aids stand around the sensor image then.
/// GUI thread.
class SpectrumMenu : public QMenu
{
    Q_OBJECT

public:
    /// `services` are borrowed and outlive this object.
    SpectrumMenu(WorkbenchServices *services, QWidget *parent);

private:
    void slotUpdate();
    QAction *AddCheckable(const QString &text);

    WorkbenchServices *m_services;
    QAction *m_spectrum;
    QAction *m_axes;
    QAction *m_curves;
    QAction *m_colorBar;
};
