// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QStringList>

class FileThumbnail;
class WorkbenchServices;

/// What the file page and the buttons of "File Preview" ask for beyond the module: comparing, merging,
/// converting and changing the resolution. On the file page it is done to the files that are selected there,
/// elsewhere to the picture that is worked on. None of its windows holds up the rest. GUI thread.
class FilePageCommands : public QObject
{
    Q_OBJECT

public:
    /// `services` and `page` are borrowed; `window` owns this object.
    FilePageCommands(WorkbenchServices *services, FileThumbnail *page, QWidget *window);

private:
    void Compare(const QString &one, const QString &other);
    void ConvertToCsv();
    void ConvertFilesToCsv(const QStringList &paths);
    void ModifyDpi();
    void AskForDpi(const QStringList &paths, double dpi);
    void AskForMerged(const QStringList &paths);
    bool IsFilePage() const;

    WorkbenchServices *m_services;
    FileThumbnail *m_page;
    QWidget *m_window;
};
