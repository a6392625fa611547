// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class LiveHistogram;

/// What stands behind the panels beside and below the picture: histogram, analysis, tool, report, spectrum, and the tables
/// of counting and calibration. Made after the services and before the module, so that the panels find it. GUI thread.
class PanelSources : public QObject
{
    Q_OBJECT

public:
    /// `histogram` is borrowed and outlives this object.
    explicit PanelSources(LiveHistogram *histogram, QObject *parent = nullptr);

private:
    void AddReport();
    void AddSpectrum();
    void AddTables();
};
