// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;
class SpectrumUIManager;

/// The wheel over a curve zooms by hand: like every other such zoom it switches the automatic ranges off, which would
/// undo it with the next spectrum. GUI thread.
class WheelZoom : public QObject
{
    Q_OBJECT

public:
    /// `settings` and `centre`, the pages with the plots, are borrowed and outlive this object.
    WheelZoom(SpectrumUIManager *settings, QWidget *centre, QObject *parent);
};
