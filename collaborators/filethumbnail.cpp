// SPDX-License-Identifier: GPL-3.0-or-later
#include "filethumbnail.h"

#include "filecommands.h"
#include "filegrid.h"
#include "filelistmodel.h"
#include "filepagebar.h"
#include "foldercontent.h"
#include "globalclass.h"
#include "thumbnailmaker.h"
#include "thumbnailqueue.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSet>
#include <QStackedWidget>
#include <QTimer>

namespace {

/// Listed while nobody says what can be opened.
const QStringList UsualSuffixes{"png", "jpg", "jpeg", "bmp", "tif", "tiff", "fit", "fits", "fts", "spe"};
constexpr int ThumbnailEdge = 128; // design pixels
constexpr int FewestToMerge = 2;
constexpr int Compared = 2;
constexpr int MostToOpen = 64;
constexpr int WatchDelayMs = 300;

int EdgeOnScreen()
{
    return GlobalClass::GetActualSize(ThumbnailEdge);
}

QPushButton *ButtonOf(const QAction *action, const char *name, QWidget *parent)
{
    auto *button = new QPushButton(action->iconText(), parent);
    button->setObjectName(name);
    button->setToolTip(action->toolTip());
    QObject::connect(button, SIGNAL(clicked()), action, SLOT(trigger()));
    return button;
}

} // namespace

FileThumbnail::FileThumbnail(QWidget *parent)
    : QWidget(parent)
    , m_content(new FolderContent(this))
    , m_model(new FileListModel(this))
    , m_queue(new ThumbnailQueue(ThumbnailStore(), this))
    , m_commands(new FileCommands(ThumbnailStore(), this))
    , m_bar(new FilePageBar(this))
    , m_pages(new QStackedWidget(this))
    , m_grid(new FileGrid(m_model, EdgeOnScreen(), m_pages))
    , m_empty(new QLabel(m_pages))
    , m_menu(new QMenu(this))
    , m_wantTimer(new QTimer(this))
    , m_watchTimer(new QTimer(this))
{
    m_content->SetSuffixes(UsualSuffixes);
    m_wantTimer->setSingleShot(true);
    m_watchTimer->setSingleShot(true);
    m_watchTimer->setInterval(WatchDelayMs);
    BuildActions();
    BuildPage();
    Connect();
    slotSelectionChanged();
}

FileThumbnail::~FileThumbnail()
{
    m_queue->SetMaker(nullptr);
}

void FileThumbnail::BuildActions()
{
    m_open = AddAction(tr("&Open"), QKeySequence(Qt::Key_Return), SLOT(slotOpen()));
    m_open->setShortcuts({QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)});
    m_open->setToolTip(tr("Open the selected pictures (Return)"));
    m_compare = AddAction(tr("&Compare"), QKeySequence(), SLOT(slotCompare()));
    m_compare->setToolTip(tr("Compare the two selected pictures side by side"));
    m_merge = AddAction(tr("&Merge"), QKeySequence(), SLOT(slotMerge()));
    m_merge->setToolTip(tr("Put the selected pictures into one file, one behind the other"));
    m_menu->addSeparator();
    m_rename = AddAction(tr("&Rename"), QKeySequence(Qt::Key_F2), SLOT(slotRename()));
    m_trash = AddAction(tr("Move to &Trash"), QKeySequence(Qt::Key_Delete), SLOT(slotTrash()));
    m_menu->addSeparator();
    m_convert = AddAction(tr("Convert to CS&V"), QKeySequence(), SLOT(slotConvertToCSV()));
    m_modifyDpi = AddAction(tr("Modify &DPI…"), QKeySequence(), SLOT(slotModifyDPI()));
    m_menu->addSeparator();
    QAction *selectAll = m_menu->addAction(tr("Select &All"), m_grid, SLOT(selectAll()));
    selectAll->setShortcut(QKeySequence("Ctrl+A")); // the grid has the key itself
    selectAll->setShortcutContext(Qt::WidgetShortcut);
    AddAction(tr("Read the Folder &Again"), QKeySequence(Qt::Key_F5), SLOT(slotReadAnew()));
    auto *filter = new QAction(this); // not in the menu: the field is in sight
    filter->setShortcut(QKeySequence("Ctrl+F"));
    filter->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(filter);
    connect(filter, SIGNAL(triggered()), m_bar, SLOT(slotFocusFilter()));
}

/// In the menu; its key works while the grid has the keyboard.
QAction *FileThumbnail::AddAction(const QString &text, const QKeySequence &key, const char *slot)
{
    QAction *action = m_menu->addAction(text, this, slot, key);
    action->setShortcutContext(Qt::WidgetShortcut);
    m_grid->addAction(action);
    return action;
}

void FileThumbnail::BuildPage()
{
    m_grid->setObjectName("listViewFiles");
    m_grid->setAccessibleName(tr("Pictures of the folder"));
    m_grid->setContextMenuPolicy(Qt::CustomContextMenu);
    m_empty->setObjectName("labelEmpty");
    m_empty->setTextFormat(Qt::PlainText);
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setWordWrap(true);
    m_empty->setMargin(EdgeOnScreen() / 4);
    m_pages->addWidget(m_grid);
    m_pages->addWidget(m_empty);
    m_pages->setCurrentWidget(m_empty);

    m_openButton = ButtonOf(m_open, "pushButtonOpen", this);
    m_compareButton = ButtonOf(m_compare, "pushButtonCompare", this);
    m_mergeButton = ButtonOf(m_merge, "pushButtonMerge", this);
    m_mergeButton->hide();
    auto *row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(m_openButton);
    row->addWidget(m_compareButton);
    row->addWidget(m_mergeButton);
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_bar);
    column->addWidget(m_pages, 1);
    column->addLayout(row);
}

void FileThumbnail::Connect()
{
    connect(m_content, SIGNAL(signalListed(FolderListing)), this, SLOT(slotListed(FolderListing)));
    connect(m_queue, SIGNAL(signalReady(QVector<ThumbnailResult>)),
            this, SLOT(slotThumbnailsReady(QVector<ThumbnailResult>)));
    connect(m_wantTimer, SIGNAL(timeout()), this, SLOT(slotWantThumbnails()));
    connect(m_watchTimer, SIGNAL(timeout()), this, SLOT(slotWatchSeenFiles()));
    connect(m_grid, SIGNAL(signalScrolled()), m_wantTimer, SLOT(start()));
    connect(m_grid, SIGNAL(signalSelectionChanged()), this, SLOT(slotSelectionChanged()));
    connect(m_grid, SIGNAL(doubleClicked(QModelIndex)), this, SLOT(slotOpenOne(QModelIndex)));
    connect(m_grid, SIGNAL(customContextMenuRequested(QPoint)), this, SLOT(slotShowMenu(QPoint)));
    connect(m_model, SIGNAL(signalRenameWanted(QString,QString)), this, SLOT(slotRenameTo(QString,QString)));
    connect(m_bar, SIGNAL(signalOrderChanged()), this, SLOT(slotArrange()));
    connect(m_commands, SIGNAL(signalMoved(QString,QString)), this, SLOT(slotMoved(QString,QString)));
    connect(m_commands, SIGNAL(signalFault(QString)), this, SLOT(slotShowNotice(QString)));
    connect(m_commands, SIGNAL(signalMessage(QString)), this, SIGNAL(signalMessage(QString)));
    connect(m_commands, SIGNAL(signalDone()), this, SLOT(slotReadAnew()));
}

void FileThumbnail::StartFolderChecked()
{
    m_content->SetWatched(true);
}

void FileThumbnail::StopFolderChecked()
{
    m_content->SetWatched(false);
    m_queue->SetWanted({});
}

void FileThumbnail::ConnectWithThumbnailList(QWidget *thumbnailList)
{
    connect(this, SIGNAL(signalOpenImage(QString,QObject*)),
            thumbnailList, SIGNAL(signalOpenImage(QString,QObject*)));
}

void FileThumbnail::SetThumbnailMaker(ThumbnailMaker *maker)
{
    m_queue->SetMaker(maker);
    m_content->SetSuffixes(maker ? maker->Suffixes() : UsualSuffixes);
    m_wantTimer->start();
}

QUndoStack *FileThumbnail::UndoStack() const
{
    return m_commands->UndoStack();
}

QList<QString> FileThumbnail::SelectedFiles() const
{
    QList<QString> files;
    for (const int row : m_grid->SelectedRows())
        files << m_model->PathOf(row);
    return files;
}

// The folder

void FileThumbnail::slotOpenFileDirectory(QString folder)
{
    if (folder.isEmpty())
        return;
    const QString path = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    if (path == m_content->Folder())
        return;
    slotShowNotice(QString());
    m_renamed.clear();
    m_grid->scrollToTop();
    m_model->Clear();
    m_total = 0;
    m_empty->setText(tr("Reading the folder…"));
    m_pages->setCurrentWidget(m_empty);
    m_content->SetFolder(path);
    slotSelectionChanged();
    emit signalFolderChanged(path);
}

/// Other files come and go; those that stay keep being selected.
void FileThumbnail::slotListed(const FolderListing &listing)
{
    m_total = listing.total;
    if (!listing.changes.isReset) {
        m_model->SetListing(listing);
    } else {
        QSet<QString> selected;
        for (const int row : m_grid->SelectedRows())
            selected.insert(m_model->Entry(row).name);
        const QModelIndex currentIndex = m_grid->currentIndex();
        const QString current = currentIndex.isValid() ? m_model->Entry(currentIndex.row()).name : QString();
        m_model->SetListing(listing);
        QVector<int> rows;
        for (int row = 0; row < listing.entries.size() && rows.size() < selected.size(); ++row) {
            if (selected.contains(listing.entries[row].name))
                rows.append(row);
        }
        m_grid->SelectRows(rows, current.isEmpty() ? -1 : m_model->RowOf(current));
        m_grid->scrollTo(m_grid->currentIndex());
    }
    ShowListing(listing);
}

void FileThumbnail::ShowListing(const FolderListing &listing)
{
    const int renamed = m_renamed.isEmpty() ? -1 : m_model->RowOf(m_renamed);
    if (renamed >= 0) {
        m_renamed.clear();
        m_grid->SelectRows({renamed}, renamed);
        m_grid->scrollTo(m_grid->currentIndex());
    }
    const bool isEmpty = listing.entries.isEmpty();
    if (isEmpty)
        m_empty->setText(EmptyText(listing));
    m_pages->setCurrentWidget(isEmpty ? static_cast<QWidget *>(m_empty) : m_grid);
    slotSelectionChanged();
    m_wantTimer->start();
}

QString FileThumbnail::EmptyText(const FolderListing &listing) const
{
    if (!listing.fault.isEmpty())
        return listing.fault;
    if (listing.total > 0)
        return tr("No picture's name fits “%1”.").arg(m_content->Order().filter);
    return tr("There is no picture in this folder.");
}

void FileThumbnail::slotReadAnew()
{
    m_content->ReadAnew();
}

void FileThumbnail::slotArrange()
{
    m_content->SetOrder(m_bar->Order());
}

// Thumbnails

void FileThumbnail::slotWantThumbnails()
{
    if (!m_grid->isVisible())
        return;
    m_queue->SetEdge(qRound(EdgeOnScreen() * devicePixelRatioF()));
    const QVector<int> rows = m_grid->WantedRows();
    m_model->KeepThumbnails(rows.size());
    m_queue->SetWanted(m_model->MissingThumbnails(rows));
    m_watchTimer->start();
}

void FileThumbnail::slotWatchSeenFiles()
{
    QStringList names;
    for (const int row : m_grid->SeenRows())
        names << m_model->Entry(row).name;
    m_content->SetWatchedFiles(names);
}

void FileThumbnail::slotThumbnailsReady(const QVector<ThumbnailResult> &results)
{
    m_model->SetThumbnails(results);
}

// What the user wants

void FileThumbnail::slotSetMergeButtonVisible(bool visible)
{
    m_mergeButton->setVisible(visible);
}

void FileThumbnail::slotShowNotice(const QString &text)
{
    m_bar->ShowNotice(text);
}

void FileThumbnail::slotSelectionChanged()
{
    const int selected = m_grid->SelectedCount();
    for (QAction *action : {m_open, m_trash, m_convert, m_modifyDpi})
        action->setEnabled(selected > 0);
    m_rename->setEnabled(selected == 1);
    m_compare->setEnabled(selected == Compared);
    m_merge->setEnabled(selected >= FewestToMerge);
    m_openButton->setEnabled(m_open->isEnabled());
    m_compareButton->setEnabled(m_compare->isEnabled());
    m_mergeButton->setEnabled(m_merge->isEnabled());
    m_bar->ShowCount(m_model->rowCount(), m_total, selected);
}

void FileThumbnail::slotShowMenu(const QPoint &place)
{
    m_menu->popup(m_grid->viewport()->mapToGlobal(place));
}

void FileThumbnail::slotOpen()
{
    const QList<QString> files = SelectedFiles();
    if (files.size() > MostToOpen) {
        slotShowNotice(tr("%1 pictures are selected; at most %2 are opened at once. Select fewer.")
                           .arg(files.size()).arg(MostToOpen));
        return;
    }
    for (const QString &file : files)
        emit signalOpenImage(file, nullptr);
}

void FileThumbnail::slotOpenOne(const QModelIndex &index)
{
    emit signalOpenImage(m_model->PathOf(index.row()), nullptr);
}

void FileThumbnail::slotRename()
{
    const QVector<int> rows = m_grid->SelectedRows();
    if (rows.size() == 1)
        m_grid->edit(m_model->index(rows.first()));
}

void FileThumbnail::slotRenameTo(const QString &name, const QString &newName)
{
    m_commands->Rename(QDir(m_content->Folder()).filePath(name), newName);
}

void FileThumbnail::slotMoved(const QString &from, const QString &to)
{
    m_renamed = QFileInfo(to).fileName();
    emit signalFileMoved(from, to);
}

void FileThumbnail::slotTrash()
{
    m_commands->Trash(SelectedFiles());
}

void FileThumbnail::slotCompare()
{
    const QList<QString> files = SelectedFiles();
    if (files.size() == Compared)
        emit signalCompareImages(files.first(), files.last());
}

void FileThumbnail::slotMerge()
{
    emit signalMergeImages(SelectedFiles());
}

void FileThumbnail::slotConvertToCSV()
{
    emit signalConvertToCSV(SelectedFiles());
}

void FileThumbnail::slotModifyDPI()
{
    emit signalModifyDPI(SelectedFiles());
}
