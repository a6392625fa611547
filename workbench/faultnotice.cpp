// SPDX-License-Identifier: GPL-3.0-or-later
#include "faultnotice.h"

namespace {

/// More would not fit the screen.
constexpr int MostShown = 8;

} // namespace

FaultNotice::FaultNotice(QWidget *parent)
    : QMessageBox(parent)
{
    setObjectName("FaultNotice");
    setWindowTitle(tr("Workbench"));
    setIcon(QMessageBox::Warning);
    setModal(false);
    setTextFormat(Qt::PlainText);
}

void FaultNotice::slotShowFault(QString text)
{
    if (!isVisible())
        m_faults.clear();
    m_faults << text;
    QStringList shown = m_faults.mid(0, MostShown);
    if (m_faults.size() > MostShown)
        shown << tr("… and %1 more").arg(m_faults.size() - MostShown);
    setText(shown.join("\n\n"));
    show();
}
