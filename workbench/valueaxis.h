// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;
class SpectrumPipeline;

/// Names the value axis of the camera's plot by what is drawn there: counts, transmission or absorbance, with the unit of
/// its numbers. GUI thread.
class ValueAxis : public QObject
{
    Q_OBJECT

public:
    /// `spectra` and `page`, that of the camera with its plot, are borrowed and outlive this object.
    ValueAxis(const SpectrumPipeline *spectra, QWidget *page, QObject *parent);

private:
    void slotUpdate();
    QString Label() const;

    const SpectrumPipeline *m_spectra;
    QWidget *m_page;
    QString m_counts; ///< the label that the plot was born with
};
