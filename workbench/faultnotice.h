// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMessageBox>

/// Says what was not done and why, without holding up the work. Faults that come while it is open join the
/// list in it. GUI thread.
class FaultNotice : public QMessageBox
{
    Q_OBJECT

public:
    explicit FaultNotice(QWidget *parent);

public slots:
    void slotShowFault(QString text);

private:
    QStringList m_faults;
};
