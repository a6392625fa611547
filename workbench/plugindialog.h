// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QList>

class QLabel;
class QTreeWidget;
struct UIPluginReport;

/// The plug-in page: each plug-in that was found, where, its version, and that it was loaded or why not; then where a lab
/// puts its own. Deletes itself when it is closed. GUI thread.
class PluginDialog : public QDialog
{
    Q_OBJECT

public:
    PluginDialog(const QList<UIPluginReport> &reports, const QStringList &folders, QWidget *parent);

private slots:
    void slotShowDetails();

private:
    void AddTable(const QList<UIPluginReport> &reports);

    QTreeWidget *m_table;
    QLabel *m_details;
};
