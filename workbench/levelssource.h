// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "levelsreport.h"

#include <QObject>

class LevelsModel;
class LiveLevels;
class OpenedPicture;
class WorkbenchServices;
class Workspace;

/// Tells of the levels of the picture that is worked on, the live one or, on the image page, the opened one, as long as
/// somebody watches. GUI thread.
class LevelsSource : public QObject
{
    Q_OBJECT

public:
    /// `services` are borrowed and outlive this object.
    explicit LevelsSource(WorkbenchServices *services, QObject *parent = nullptr);

    LevelsModel *Model() const;

public slots:
    void slotSetWatched(bool watched);

signals:
    void signalReport(LevelsReport report);
    /// There is no picture; `reason` is for the user.
    void signalNoReport(QString reason);

private slots:
    void slotViewSwitched();
    void slotLiveReport(LevelsReport report);
    void slotPictureShown();

private:
    void ReportOpenedPicture();

    LiveLevels *m_live;
    const OpenedPicture *m_picture;
    const Workspace *m_workspace;
    bool m_isWatched = false;
};
