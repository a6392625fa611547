// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelservicesexport.h"

#include <QFileDialog>

/// Asks where something is to be saved. A name whose end is none of the suffixes on offer gets that of the chosen
/// filter, also when there is a dot in it: "lamp 1.5s" becomes "lamp 1.5s.png". Deletes itself when it is closed. GUI thread.
class WORKBENCH_PANELSERVICES_EXPORT ExportDialog : public QFileDialog
{
    Q_OBJECT

public:
    /// `filters` such as "PNG picture (*.png)"; of several suffixes of one filter the first is added. `suggestedPath` has
    /// none.
    ExportDialog(const QString &title, const QStringList &filters, const QString &suggestedPath, QWidget *parent);

    /// The path that was chosen, or would be with the name as it stands.
    QString Path() const;

protected:
    void accept() override;

private:
    bool IsOffered(const QString &suffix) const;
    QString Whole(const QString &name) const;
    QString WithSuffix(const QString &name) const;
};
