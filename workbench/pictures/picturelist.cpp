// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturelist.h"

#include "comparisonsaving.h"
#include "openedpicture.h"
#include "picturedocument.h"
#include "pictureshelf.h"

#include <QBoxLayout>
#include <QFileInfo>
#include <QItemSelectionModel>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>

namespace {

constexpr int DocumentRole = Qt::UserRole;
constexpr QSize IconSize(96, 72);
constexpr QSize ItemSize(150, 104);
constexpr int ItemSpacing = 4;

/// In the middle of a frame of one size for all, so that the names stand in one line.
QIcon IconOf(const QImage &thumbnail)
{
    QPixmap framed(IconSize);
    framed.fill(Qt::transparent);
    QPainter painter(&framed);
    const QSize size = thumbnail.size().scaled(IconSize, Qt::KeepAspectRatio);
    const QRect place(QPoint((IconSize.width() - size.width()) / 2, (IconSize.height() - size.height()) / 2),
                      size);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, thumbnail);
    QIcon icon(framed);
    icon.addPixmap(framed, QIcon::Selected); // not tinted: its greys are the picture
    return icon;
}

} // namespace

PictureList::PictureList(PictureShelf *shelf, const OpenedPicture *mainPicture, QWidget *parent)
    : ThumbnailList(parent)
    , m_shelf(shelf)
    , m_mainPicture(mainPicture)
    , m_comparisonSaving(new ComparisonSaving(this))
    , m_empty(new QLabel(tr("No picture is open. Drop files here, or choose File > Open.")))
    , m_list(new QListWidget)
    , m_checkAll(new QPushButton(tr("Select All")))
    , m_menu(new QMenu(this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_checkAll, 0, Qt::AlignTop);
    row->addWidget(m_empty, 1);
    row->addWidget(m_list, 1);
    BuildList();
    BuildMenu();

    connect(shelf, SIGNAL(signalAdded(PictureDocument *)), this, SLOT(slotAdded(PictureDocument *)));
    connect(shelf, SIGNAL(signalRemoved(PictureDocument *)), this, SLOT(slotRemoved(PictureDocument *)));
    connect(mainPicture, SIGNAL(signalShown()), this, SLOT(slotShown()));
    UpdateEmpty();
}

void PictureList::BuildList()
{
    m_empty->setObjectName("labelNoPicture");
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setEnabled(false);
    m_empty->setSizePolicy(QSizePolicy::Ignored,
                           QSizePolicy::Preferred); // the window may be narrower than the text
    m_checkAll->setObjectName("pushButtonCheckAll");
    m_checkAll->setCheckable(true);
    m_checkAll->hide();
    connect(m_checkAll, SIGNAL(toggled(bool)), this, SLOT(slotCheckAll(bool)));

    m_list->setObjectName("listPictures");
    m_list->setAccessibleName(tr("Opened pictures"));
    m_list->setViewMode(QListView::IconMode);
    m_list->setMovement(QListView::Static);
    m_list->setWrapping(false);
    m_list->setUniformItemSizes(true);
    m_list->setSpacing(ItemSpacing);
    m_list->setIconSize(IconSize);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setEditTriggers(QAbstractItemView::EditKeyPressed);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    m_list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(m_list, SIGNAL(itemClicked(QListWidgetItem *)), this, SLOT(slotItemClicked(QListWidgetItem *)));
    connect(m_list, SIGNAL(itemActivated(QListWidgetItem *)), this, SLOT(slotItemClicked(QListWidgetItem *)));
    connect(m_list, SIGNAL(itemChanged(QListWidgetItem *)), this, SLOT(slotItemChanged(QListWidgetItem *)));
    connect(m_list, SIGNAL(itemSelectionChanged()), this, SLOT(slotSelectionChanged()));
    connect(m_list, SIGNAL(customContextMenuRequested(QPoint)), this, SLOT(slotShowMenu(QPoint)));
}

void PictureList::BuildMenu()
{
    AddAction(tr("&Open"), SLOT(slotOpen()));
    AddAction(tr("&Rename"), SLOT(slotRename()))->setShortcut(QKeySequence(Qt::Key_F2));
    AddAction(tr("Show in File &Directory"), SLOT(slotShowInFolder()));
    m_menu->addSeparator();
    m_compare = AddAction(tr("&Compare"), SLOT(slotCompare()));
    m_compare->setCheckable(true);
    m_saveComparison = m_menu->addAction(tr("&Save Comparison…"), m_comparisonSaving, SLOT(slotSave()));
    m_saveComparison->setEnabled(false);
    m_menu->addSeparator();
    QAction *close = AddAction(tr("C&lose"), SLOT(slotClose()));
    close->setShortcut(QKeySequence(Qt::Key_Delete));
    close->setShortcutContext(Qt::WidgetShortcut);
    m_list->addAction(close);
    m_menu->addAction(tr("Close &All"), this, SIGNAL(signalCloseAllOpenedImage()));
}

QAction *PictureList::AddAction(const QString &text, const char *slot)
{
    return m_menu->addAction(text, this, slot);
}

void PictureList::SetCompareSubMenuChecked(bool checked)
{
    m_isComparing = checked;
    m_compare->setChecked(checked);
    m_saveComparison->setEnabled(checked);
}

CompareSaver *PictureList::GetCompareSaver() const { return m_comparisonSaving; }

void PictureList::slotSetSelectButtonVisible(bool visible) { m_checkAll->setVisible(visible); }

void PictureList::slotAddThumbnail(QImage thumbnail)
{
    if (PictureDocument *document = m_mainPicture->Document())
        document->SetThumbnail(thumbnail);
}

void PictureList::slotAddToThumbnailList(QString fileName) { m_shelf->Add(fileName); }

// Following the shelf

void PictureList::slotAdded(PictureDocument *document)
{
    const QSignalBlocker blocker(m_list);
    auto *item = new QListWidgetItem(m_list);
    item->setData(DocumentRole, QVariant::fromValue<QObject *>(document));
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsEditable);
    item->setSizeHint(ItemSize);
    Update(item);
    connect(document, SIGNAL(signalChanged()), this, SLOT(slotDocumentChanged()));
    UpdateEmpty();
}

void PictureList::slotRemoved(PictureDocument *document)
{
    disconnect(document, nullptr, this, nullptr);
    delete ItemOf(document);
    UpdateEmpty();
}

void PictureList::slotDocumentChanged()
{
    const QSignalBlocker blocker(m_list);
    if (QListWidgetItem *item = ItemOf(sender()))
        Update(item);
}

void PictureList::Update(QListWidgetItem *item)
{
    const PictureDocument *document = DocumentOf(item);
    item->setText(document->ShownName());
    item->setToolTip(document->Description());
    item->setCheckState(document->IsChecked() ? Qt::Checked : Qt::Unchecked);
    item->setIcon(IconOf(document->Thumbnail()));
}

void PictureList::UpdateEmpty()
{
    m_empty->setVisible(m_list->count() == 0);
    m_list->setVisible(m_list->count() > 0);
}

void PictureList::slotShown()
{
    QListWidgetItem *item = ItemOf(m_mainPicture->Document());
    if (!item)
        return;
    if (!item->isSelected())
        m_list->setCurrentItem(item, QItemSelectionModel::ClearAndSelect);
    m_list->scrollToItem(item);
}

QListWidgetItem *PictureList::ItemOf(const QObject *document) const
{
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->data(DocumentRole).value<QObject *>() == document)
            return m_list->item(row);
    }
    return nullptr;
}

PictureDocument *PictureList::DocumentOf(const QListWidgetItem *item) const
{
    return item ? m_shelf->Find(item->data(DocumentRole).value<QObject *>()) : nullptr;
}

PictureDocument *PictureList::CurrentDocument() const { return DocumentOf(m_list->currentItem()); }

// What the user wants

void PictureList::slotItemClicked(QListWidgetItem *item)
{
    if (PictureDocument *document = DocumentOf(item))
        emit signalOpenImage(document->Path(), document);
}

/// The name or the check mark.
void PictureList::slotItemChanged(QListWidgetItem *item)
{
    PictureDocument *document = DocumentOf(item);
    if (!document)
        return;
    const bool isChecked = item->checkState() == Qt::Checked;
    if (isChecked != document->IsChecked())
        emit signalSetImageChecked(document, isChecked);
    else if (item->text() != document->ShownName())
        emit signalRename(document, item->text());
}

void PictureList::slotSelectionChanged()
{
    QVector<PictureDocument *> selected;
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->isSelected())
            selected << DocumentOf(m_list->item(row));
    }
    m_shelf->SetSelected(selected);
}

void PictureList::slotCheckAll(bool checked) { emit signalSetAllImageChecked(checked); }

void PictureList::slotShowMenu(const QPoint &place)
{
    if (m_list->itemAt(place))
        m_menu->popup(m_list->viewport()->mapToGlobal(place));
}

void PictureList::slotOpen() { slotItemClicked(m_list->currentItem()); }

void PictureList::slotRename() { m_list->editItem(m_list->currentItem()); }

void PictureList::slotCompare()
{
    m_compare->setChecked(m_isComparing); // until the comparison begins or ends
    emit signalCompare();
}

void PictureList::slotShowInFolder()
{
    if (const PictureDocument *document = CurrentDocument()) {
        emit signalSetFileView();
        emit sglShowFileThumbnail(QFileInfo(document->Path()).path());
    }
}

void PictureList::slotClose()
{
    const QList<QListWidgetItem *> items = m_list->selectedItems();
    QVector<QObject *> documents;
    for (const QListWidgetItem *item : items)
        documents << DocumentOf(item);
    for (QObject *document : qAsConst(documents))
        emit signalCloseImage(document);
}
