// SPDX-License-Identifier: GPL-3.0-or-later
#include "tablepage.h"

#include "exportdialog.h"
#include "fieldsource.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStandardPaths>
#include <QTableView>

#include <functional>

namespace {

QString Line(const QAbstractItemModel *model, const std::function<QVariant(int)> &cell)
{
    QStringList cells;
    for (int column = 0; column < model->columnCount(); ++column)
        cells << cell(column).toString();
    return cells.join('\t') + '\n';
}

} // namespace

TablePage::TablePage(FieldSource *source, const QString &absentText, QWidget *parent)
    : QWidget(parent)
    , m_source(source)
    , m_table(new QTableView)
    , m_note(new QLabel(absentText))
{
    auto *row = new QHBoxLayout(this);
    auto *middle = new QVBoxLayout;
    row->addLayout(middle, 1);
    m_note->setObjectName("labelTableNote");
    m_note->setWordWrap(true);
    middle->addWidget(m_note);
    middle->addWidget(m_table, 1);
    m_copy = AddButton(tr("Copy"), "pushButtonTableCopy", tr("Copies the selected rows, or all (Ctrl+C)"));
    m_save = AddButton(tr("Save…"), "pushButtonTableSave", tr("Saves the table as CSV"));
    auto *buttons = new QVBoxLayout;
    buttons->addWidget(m_copy);
    buttons->addWidget(m_save);
    buttons->addStretch();
    row->addLayout(buttons);
    BuildTable();
    connect(m_copy, &QPushButton::clicked, this, &TablePage::slotCopy);
    connect(m_save, &QPushButton::clicked, this, &TablePage::slotSave);
    slotUpdate();
}

QPushButton *TablePage::AddButton(const QString &text, const char *name, const QString &toolTip)
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setToolTip(toolTip);
    return button;
}

void TablePage::BuildTable()
{
    m_table->setObjectName("tableRows");
    m_table->setAccessibleName(tr("Table"));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setAlternatingRowColors(true);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    auto *copy = new QAction(this);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(copy, &QAction::triggered, this, &TablePage::slotCopy);
    m_table->addAction(copy);

    QAbstractItemModel *model = m_source ? m_source->Table() : nullptr;
    if (!model)
        return;
    auto *sorted = new QSortFilterProxyModel(this);
    sorted->setSourceModel(model);
    sorted->setSortRole(Qt::UserRole);
    m_table->setModel(sorted);
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(-1, Qt::AscendingOrder); // as the source has them
    connect(sorted, &QAbstractItemModel::modelReset, this, &TablePage::slotUpdate);
    connect(sorted, &QAbstractItemModel::rowsInserted, this, &TablePage::slotUpdate);
    connect(sorted, &QAbstractItemModel::rowsRemoved, this, &TablePage::slotUpdate);
    connect(m_source, &FieldSource::signalChanged, this, &TablePage::slotUpdate);
}

void TablePage::slotUpdate()
{
    const QAbstractItemModel *model = m_table->model();
    const bool hasRows = m_source && model && model->rowCount() > 0;
    if (m_source)
        m_note->setText(m_source->TableNote());
    m_note->setVisible(!hasRows && !m_note->text().isEmpty());
    m_table->setVisible(model);
    m_copy->setEnabled(hasRows);
    m_save->setEnabled(hasRows);
}

QString TablePage::Text() const
{
    const QAbstractItemModel *model = m_table->model();
    if (!model)
        return QString();
    const QItemSelectionModel *selection = m_table->selectionModel();
    QString text = Line(model, [=](int column) { return model->headerData(column, Qt::Horizontal); });
    for (int row = 0; row < model->rowCount(); ++row) {
        if (!selection->hasSelection() || selection->isRowSelected(row, {}))
            text += Line(model, [=](int column) { return model->index(row, column).data(); });
    }
    return text;
}

void TablePage::slotCopy() { QGuiApplication::clipboard()->setText(Text()); }

void TablePage::slotSave()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    auto *dialog = new ExportDialog(tr("Save Table"), {tr("Tables (*.csv)")}, folder + '/' + tr("table"), this);
    dialog->setObjectName("SaveTableDialog");
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString &path) {
        if (m_source)
            m_source->Set("saveTable", path);
    });
    dialog->open();
}
