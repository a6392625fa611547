// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class QFileDialog;
class QImage;
class QWidget;
class RunningWorkbench;

/// Those of lines and marks: all else in a plot is black, white or grey.
int ColouredPixels(const QImage &picture);

/// The columns of an exported table: its lines without those that begin with "#" and without the names.
QVector<QVector<double>> ColumnsOf(const QStringList &lines);

/// A person exports spectra and plots into a folder.
class SpectrumExport
{
public:
    /// `workbench` is borrowed.
    SpectrumExport(RunningWorkbench *workbench, const QString &folder);

    /// The dialog that asks where, when it is seen; null without one.
    QFileDialog *Open(const QString &action) const;
    /// As the button does it.
    static void Accept(QFileDialog *dialog);
    /// The file of this name was written, and the user was told.
    bool IsSaved(const QString &name) const;
    /// The lines of the file that was written; none when it wasn't.
    QStringList Lines(const QString &action, const QString &name) const;
    /// Exports the plot in all forms: each shows the curve, or the tracks, at the size of the plot.
    void CheckPlots(const QWidget *plot) const;

private:
    QByteArray Written(const QString &action, const QString &name) const;
    static void CheckPage(const QByteArray &pdf, const QWidget *plot);

    RunningWorkbench *m_workbench;
    QString m_folder;
};
