// SPDX-License-Identifier: GPL-3.0-or-later
#include "informationdialog.h"

#include "globalui.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {
constexpr int TextWidth = 380;
constexpr QSize TableSize(520, 320);
}

void InformationDialog::ShowCamera(QWidget *parent)
{
    auto *dialog = new InformationDialog(tr("Camera Information"), parent);
    dialog->AddCamera();
    dialog->Finish();
}

void InformationDialog::ShowAbout(QWidget *parent)
{
    auto *dialog = new InformationDialog(tr("About the Workbench"), parent);
    dialog->AddText(tr("<h3>Workbench %1</h3>"
                       "<p>An open workspace for scientific cameras: live view, zoom, panels and measurement "
                       "around any GenICam camera.</p>"
                       "<p>Free software under the GNU General Public License, version 3 or later. "
                       "There is no warranty.</p>")
                        .arg(WORKBENCH_VERSION));
    dialog->AddCamera();
    dialog->Finish();
}

void InformationDialog::ShowPicture(const QString &description, const QVector<MetadataEntry> &metadata, QWidget *parent)
{
    auto *dialog = new InformationDialog(tr("Image Information"), parent);
    dialog->AddText(description.toHtmlEscaped().replace('\n', "<br>"));
    if (!metadata.isEmpty())
        dialog->AddMetadata(metadata);
    dialog->Finish();
}

InformationDialog::InformationDialog(const QString &title, QWidget *parent)
    : QDialog(parent)
    , m_column(new QVBoxLayout(this))
{
    setObjectName("InformationDialog");
    setWindowTitle(title);
    setAttribute(Qt::WA_DeleteOnClose);
}

void InformationDialog::AddText(const QString &text)
{
    auto *label = new QLabel(text);
    label->setWordWrap(true);
    label->setMinimumWidth(TextWidth);
    m_column->addWidget(label);
}

void InformationDialog::AddCamera()
{
    m_column->addWidget(GlobalUI::GetInstance()->GetCameraInfoUI());
}

void InformationDialog::AddMetadata(const QVector<MetadataEntry> &metadata)
{
    auto *table = new QTableWidget(metadata.size(), 2);
    table->setHorizontalHeaderLabels({tr("Name"), tr("Value")});
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    table->setMinimumSize(TableSize);
    for (int row = 0; row < metadata.size(); ++row) {
        const MetadataEntry &entry = metadata.at(row);
        table->setItem(row, 0, new QTableWidgetItem(entry.key));
        auto *value = new QTableWidgetItem(entry.value.simplified());
        value->setToolTip(entry.comment.isEmpty() ? entry.value : entry.comment);
        table->setItem(row, 1, value);
    }
    table->resizeColumnToContents(0);
    m_column->addWidget(table);
}

void InformationDialog::Finish()
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, SIGNAL(rejected()), this, SLOT(close()));
    m_column->addWidget(buttons);
    open();
}
