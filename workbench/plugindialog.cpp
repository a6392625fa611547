// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugindialog.h"

#include "globalclass.h"
#include "pluginlist.h"
#include "uimanagerbase.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

enum Column { NameColumn, IdColumn, VersionColumn, StateColumn, FolderColumn };
constexpr int DetailsRole = Qt::UserRole;
constexpr QSize TableSize(860, 340);
constexpr int StateWidth = 280;
constexpr int DetailLines = 3;

QLabel *AddLabel(QVBoxLayout *column, const char *name)
{
    auto *label = new QLabel;
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    column->addWidget(label);
    return label;
}

} // namespace

PluginDialog::PluginDialog(const QList<UIPluginReport> &reports, const QStringList &folders, QWidget *parent)
    : QDialog(parent)
    , m_table(new QTreeWidget)
{
    setObjectName("PluginDialog");
    setWindowTitle(tr("Plug-ins"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_table, 1);
    m_details = AddLabel(column, "labelPluginDetails");
    m_details->setAlignment(Qt::AlignTop);
    m_details->setMinimumHeight(DetailLines * m_details->fontMetrics().lineSpacing());
    AddTable(reports);
    AddLabel(column, "labelPluginFolders")
        ->setText(tr("Panels are looked for in camera/ui, image/ui, measure/ui, report/ui and spectrum/ui below these "
                     "folders, the first one that brings an id wins:\n%1\n"
                     "More folders can be named in the variable GLOBALUI_PLUGIN_PATH.")
                      .arg(folders.join('\n')));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    column->addWidget(buttons);
}

void PluginDialog::AddTable(const QList<UIPluginReport> &reports)
{
    m_table->setObjectName("treePlugins");
    m_table->setAccessibleName(tr("Plug-ins that were found"));
    m_table->setHeaderLabels({tr("Panel"), tr("Id"), tr("Version"), tr("State"), tr("Folder")});
    m_table->setRootIsDecorated(false);
    m_table->setAlternatingRowColors(true);
    m_table->setMinimumSize(GlobalClass::GetActualSize(TableSize.width()), GlobalClass::GetActualSize(TableSize.height()));
    for (const UIPluginReport &report : reports) {
        const QString folder = report.filePath.isEmpty() ? QString() : QFileInfo(report.filePath).path();
        const QString id = report.id < 0 ? QString() : QString::number(report.id);
        auto *item = new QTreeWidgetItem(
            {PluginList::Name(report), id, report.version, PluginList::State(report), folder});
        item->setData(NameColumn, DetailsRole, report.filePath + '\n' + PluginList::State(report));
        item->setToolTip(StateColumn, PluginList::State(report));
        item->setToolTip(FolderColumn, report.filePath);
        m_table->addTopLevelItem(item);
    }
    for (const int column : {NameColumn, IdColumn, VersionColumn})
        m_table->resizeColumnToContents(column);
    m_table->header()->resizeSection(StateColumn, GlobalClass::GetActualSize(StateWidth));
    connect(m_table, &QTreeWidget::itemSelectionChanged, this, &PluginDialog::slotShowDetails);
    m_table->setCurrentItem(m_table->topLevelItem(0));
}

void PluginDialog::slotShowDetails()
{
    const QTreeWidgetItem *item = m_table->currentItem();
    m_details->setText(item ? item->data(NameColumn, DetailsRole).toString().trimmed() : QString());
}
