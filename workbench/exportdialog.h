// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFileDialog>

/// Asks where something is to be exported to. A name whose end is none of the suffixes on offer gets that of the chosen
/// filter, also when there is a dot in it: "lamp 1.5s" becomes "lamp 1.5s.png". Deletes itself when it is closed.
class ExportDialog : public QFileDialog
{
    Q_OBJECT

public:
    /// `filters` such as "PNG picture (*.png)", each with one suffix; `suggestedPath` has none.
    ExportDialog(const QString &title, const QStringList &filters, const QString &suggestedPath, QWidget *parent);

protected:
    void accept() override;

private:
    bool IsOffered(const QString &suffix) const;
};
