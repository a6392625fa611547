// SPDX-License-Identifier: GPL-3.0-or-later
#include "exportdialog.h"

#include <QFileInfo>
#include <QLineEdit>

#include <algorithm>

namespace {

/// "TIFF (*.tif *.tiff)" gives "tif" and "tiff".
QStringList SuffixesOf(const QString &filter)
{
    QStringList suffixes = filter.section('(', -1).remove(')').split(' ');
    for (QString &suffix : suffixes)
        suffix.remove("*.");
    return suffixes;
}

} // namespace

ExportDialog::ExportDialog(const QString &title, const QStringList &filters, const QString &suggestedPath, QWidget *parent)
    : QFileDialog(parent, title, QFileInfo(suggestedPath).path())
{
    setObjectName("ExportDialog");
    setAttribute(Qt::WA_DeleteOnClose);
    setOption(QFileDialog::DontUseNativeDialog);
    setAcceptMode(QFileDialog::AcceptSave);
    setNameFilters(filters);
    // With it the name follows another filter, too.
    selectFile(WithSuffix(QFileInfo(suggestedPath).fileName()));
}

bool ExportDialog::IsOffered(const QString &suffix) const
{
    const QStringList filters = nameFilters();
    return std::any_of(filters.begin(), filters.end(),
                       [&suffix](const QString &filter) { return SuffixesOf(filter).contains(suffix, Qt::CaseInsensitive); });
}

QString ExportDialog::Whole(const QString &name) const
{
    return IsOffered(QFileInfo(name).suffix()) ? name : WithSuffix(name);
}

QString ExportDialog::Path() const { return Whole(selectedFiles().value(0)); }

QString ExportDialog::WithSuffix(const QString &name) const
{
    return name + '.' + SuffixesOf(selectedNameFilter()).first();
}

/// The name is whole before it is asked whether a file of that name may be replaced.
void ExportDialog::accept()
{
    auto *name = findChild<QLineEdit *>("fileNameEdit");
    const QFileInfo typed(directory(), name->text());
    if (!name->text().isEmpty() && !typed.isDir())
        name->setText(Whole(name->text()));
    QFileDialog::accept();
}
