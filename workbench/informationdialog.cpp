// SPDX-License-Identifier: GPL-3.0-or-later
#include "informationdialog.h"

#include "globalui.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

namespace {
constexpr int TextWidth = 380;
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

void InformationDialog::Finish()
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, SIGNAL(rejected()), this, SLOT(close()));
    m_column->addWidget(buttons);
    open();
}
