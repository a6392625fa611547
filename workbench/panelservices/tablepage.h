// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelservicesexport.h"

#include <QPointer>
#include <QWidget>

class FieldSource;
class QLabel;
class QPushButton;
class QTableView;

/// Shows the table of a source, to be sorted, copied and saved; while it has no rows, what the source says of that. GUI
/// thread.
class WORKBENCH_PANELSERVICES_EXPORT TablePage : public QWidget
{
    Q_OBJECT

public:
    /// `source` may be null, and may go before this object; then the page says `absentText`.
    TablePage(FieldSource *source, const QString &absentText, QWidget *parent = nullptr);

    /// The selected rows, or all when none is, with their headings; columns separated by tabulators.
    QString Text() const;

public slots:
    /// Shows the state of the source anew.
    void slotUpdate();

private slots:
    void slotCopy();
    void slotSave();

private:
    void BuildTable();
    QPushButton *AddButton(const QString &text, const char *name, const QString &toolTip);

    QPointer<FieldSource> m_source;
    QTableView *m_table;
    QLabel *m_note;
    QPushButton *m_copy;
    QPushButton *m_save;
};
