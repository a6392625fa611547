// SPDX-License-Identifier: GPL-3.0-or-later
#include "filepagecommands.h"

#include "exportdialog.h"
#include "filejobs.h"
#include "filenametext.h"
#include "filethumbnail.h"
#include "openedpicture.h"
#include "picturedesk.h"
#include "picturedocument.h"
#include "pictureprocessing.h"
#include "picturethumbnails.h"
#include "viewcodes.h"
#include "workbenchservices.h"
#include "workspace.h"
#include "workspaceconfig.h"

#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QUndoStack>

namespace {

constexpr double UsualDpi = 300;
constexpr double LeastDpi = 1;
constexpr double MostDpi = 1000000; ///< a pixel of 25 nm
constexpr int DpiDecimals = 3;

QString NamesText(const QStringList &paths)
{
    const QString first = FileNameTextOf(paths.first());
    return paths.size() == 1 ? FilePageCommands::tr("\u201c%1\u201d").arg(first)
                             : FilePageCommands::tr("\u201c%1\u201d and %n more", nullptr, paths.size() - 1).arg(first);
}

} // namespace

FilePageCommands::FilePageCommands(WorkbenchServices *services, FileThumbnail *page, QWidget *window)
    : QObject(window)
    , m_services(services)
    , m_page(page)
    , m_window(window)
{
    page->SetThumbnailMaker(services->Thumbnails());
    services->Desk()->SetFileUndoStack(page->UndoStack());
    connect(page, &FileThumbnail::signalFileMoved, services->Desk(), &PictureDesk::slotFileMoved);
    connect(page, &FileThumbnail::signalMessage, services, &WorkbenchServices::signalMessage);
    connect(page, &FileThumbnail::signalCompareImages, this, &FilePageCommands::Compare);
    connect(page, &FileThumbnail::signalConvertToCSV, this, &FilePageCommands::ConvertFilesToCsv);
    connect(page, &FileThumbnail::signalModifyDPI, this, [this](const QStringList &paths) { AskForDpi(paths, UsualDpi); });
    connect(services->Processing(), &PictureProcessing::signalMergeWanted, this, &FilePageCommands::AskForMerged);
    connect(services->Config(), &WorkspaceConfig::signalConvertToCSVWanted, this, &FilePageCommands::ConvertToCsv);
    connect(services->Config(), &WorkspaceConfig::signalModifyDPIWanted, this, &FilePageCommands::ModifyDpi);
}

bool FilePageCommands::IsFilePage() const
{
    return m_services->Config()->GetCurrentView() == FileView;
}

void FilePageCommands::Compare(const QString &one, const QString &other)
{
    m_services->GetWorkspace()->CompareFiles(one, other);
}

void FilePageCommands::ConvertToCsv()
{
    if (IsFilePage()) {
        ConvertFilesToCsv(m_page->SelectedFiles());
        return;
    }
    const auto *picture = qobject_cast<OpenedPicture *>(m_services->GetWorkspace()->GetActiveImageManager());
    if (picture->IsNonImage()) {
        emit m_services->signalMessage(tr("Open a picture first: its samples are written as CSV."));
        return;
    }
    const LoadedPicture &shown = picture->Shown();
    const QString title = shown.info.frames > 1
                              ? QString("frame: %1 of %2").arg(shown.request.frame + 1).arg(shown.info.frames)
                              : QString();
    m_services->Jobs()->ConvertToCsv(shown.samples, picture->Document()->Path(), title);
}

void FilePageCommands::ConvertFilesToCsv(const QStringList &paths)
{
    if (paths.isEmpty())
        emit m_services->signalMessage(tr("Select pictures first: their samples are written as CSV."));
    else
        m_services->Jobs()->ConvertToCsv(paths);
}

void FilePageCommands::ModifyDpi()
{
    if (IsFilePage()) {
        AskForDpi(m_page->SelectedFiles(), UsualDpi);
        return;
    }
    const auto *picture = qobject_cast<OpenedPicture *>(m_services->GetWorkspace()->GetActiveImageManager());
    if (picture->IsNonImage()) {
        AskForDpi({}, UsualDpi);
        return;
    }
    const double dpi = picture->Shown().info.dpiX;
    AskForDpi({picture->Document()->Path()}, dpi > 0 ? dpi : UsualDpi);
}

void FilePageCommands::AskForDpi(const QStringList &paths, double dpi)
{
    if (paths.isEmpty()) {
        emit m_services->signalMessage(IsFilePage() ? tr("Select pictures first: their resolution is changed.")
                                                    : tr("Open a picture first: its resolution is changed."));
        return;
    }
    auto *dialog = new QInputDialog(m_window);
    dialog->setObjectName("DpiDialog");
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Modify DPI"));
    dialog->setLabelText(tr("Pixels an inch (DPI) of %1. The file is written anew; its samples stay.").arg(NamesText(paths)));
    dialog->findChild<QLabel *>()->setTextFormat(Qt::PlainText); // names may look like markup
    dialog->setInputMode(QInputDialog::DoubleInput);
    dialog->setDoubleDecimals(DpiDecimals);
    dialog->setDoubleRange(LeastDpi, MostDpi);
    dialog->setDoubleValue(dpi);
    connect(dialog, &QInputDialog::doubleValueSelected, this,
            [this, paths](double value) { m_services->Jobs()->SetResolution(paths, value); });
    dialog->open();
}

void FilePageCommands::AskForMerged(const QStringList &paths)
{
    if (paths.size() < 2) {
        emit m_services->signalMessage(tr("Select two or more pictures first: they are merged into one file."));
        return;
    }
    const QFileInfo first(paths.first());
    const QFileInfo merged(first.path(), tr("%1 merged.tif").arg(first.completeBaseName()));
    auto *dialog = new ExportDialog(tr("Merge %n Pictures", nullptr, paths.size()), {tr("TIFF (*.tif *.tiff)")},
                                    merged.path() + '/' + merged.completeBaseName(), m_window);
    dialog->setObjectName("MergeDialog");
    connect(dialog, &QFileDialog::fileSelected, this,
            [this, paths](const QString &target) { m_services->Jobs()->Merge(paths, target); });
    dialog->open();
}
