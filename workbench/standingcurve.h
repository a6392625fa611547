// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;
class WorkbenchServices;

/// Draws the curve of a stopped camera and of an opened picture anew, as the next frame would do it: when another track is chosen at the bar below
/// the plot, and when its page has another size, as one that was too narrow has drawn nothing. GUI thread.
class StandingCurve : public QObject
{
    Q_OBJECT

public:
    /// `services` and `centre`, the pages with the plots, are borrowed and outlive this object.
    StandingCurve(WorkbenchServices *services, QWidget *centre, QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Draw();

    WorkbenchServices *m_services;
};
