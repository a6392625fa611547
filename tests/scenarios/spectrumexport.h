// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPolygonF>
#include <QString>
#include <QStringList>
#include <QVector>

class QColor;
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
    /// Exports the plot in all forms: the curve, or the tracks, as lines and texts at the size of the plot, or as pixels twice
    /// as fine.
    void CheckPlots(const QWidget *plot) const;
    /// Exports the plot as SVG: the lines in it that have this colour.
    QVector<QPolygonF> TracksIn(const QString &name, const QColor &color) const;

private:
    QByteArray Written(const QString &action, const QString &name) const;
    static void CheckPage(const QByteArray &pdf, const QWidget *plot);

    RunningWorkbench *m_workbench;
    QString m_folder;
};
