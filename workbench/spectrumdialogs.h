// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spectrumcsv.h"

#include <QObject>
#include <QPointer>
#include <QThreadPool>

#include <functional>

class CalibrationDialog;
class FaultNotice;
class WorkbenchServices;

/// Calibrates the spectrum on the screen, and saves it or its plot where the user says. Files are written in the
/// background, whole or not at all. GUI thread.
class SpectrumDialogs : public QObject
{
    Q_OBJECT

public:
    /// `services` and `centre`, the pages with the plots, are borrowed and outlive this object; `window` owns it.
    SpectrumDialogs(WorkbenchServices *services, QWidget *centre, QWidget *window);
    ~SpectrumDialogs() override;

    /// The spectrum on the screen, live or of the opened picture; of no samples when there is none.
    ExportedSpectrum Shown() const;
    /// `make` runs in the background; what it gives is the content of the file. The user is told when that is written, and when it
    /// is empty or memory does not suffice for it.
    void Write(const QString &path, const std::function<QByteArray()> &make);

public slots:
    void slotCalibrate();
    void slotExportSpectrum();
    void slotExportPlot();

signals:
    /// A sentence for the status bar.
    void signalMessage(QString text);

private:
    ExportedSpectrum LiveSpectrum() const;
    ExportedSpectrum OpenedSpectrum() const;
    QString SuggestedName() const;
    void AskWhere(const QString &title, const QStringList &filters,
                  const std::function<void(const QString &)> &write);
    void slotWritten(const QString &path, const QString &fault);

    WorkbenchServices *m_services;
    QWidget *m_centre;
    QWidget *m_window;
    FaultNotice *m_fault;
    QPointer<CalibrationDialog> m_calibration;
    QThreadPool m_writing;
};
