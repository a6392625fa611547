// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QObject>

class FaultNotice;
class OpenedPicture;
class SaveDialog;
class WorkbenchServices;

/// Asks the user which files to open and where to save, and shows what went wrong. None of its windows
/// holds up the live picture. GUI thread.
class PictureDialogs : public QObject
{
    Q_OBJECT

public:
    /// `services` are borrowed and outlive this object; `window` owns it.
    PictureDialogs(WorkbenchServices *services, QWidget *window);

    /// Where to save the shown picture, all its frames if nothing else is said.
    SaveDialog *AskWhereToSaveAll(const OpenedPicture *picture);

public slots:
    void slotAskForFiles();
    void slotOpenFiles(const QStringList &paths);

private slots:
    void slotAskWhereToSave();
    void slotAskWhereToSaveComparison(const QImage &image);
    void slotSaveComparison();
    void slotShowInformation();

private:
    SaveDialog *AskWhereToSave(const OpenedPicture *picture, bool wantsAllFrames);

    WorkbenchServices *m_services;
    QWidget *m_window;
    FaultNotice *m_faultNotice;
    QImage m_comparison;
};
