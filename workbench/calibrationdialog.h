// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spectrumcorrections.h"

#include <QDialog>

#include <functional>

class CalibrationModel;
class CalibrationPlot;
class QBoxLayout;
class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QPushButton;
class QSpinBox;
class QTableWidget;

/// Calibrates by the lines of a lamp: they are picked on its spectrum or assigned by themselves, and what the fit is
/// worth is seen before it is applied. GUI thread.
class CalibrationDialog : public QDialog
{
    Q_OBJECT

public:
    /// Gives the spectrum on the screen as the sensor gave it; empty when there is none.
    using Source = std::function<Spectrum()>;

    /// `model` is borrowed and outlives this object.
    CalibrationDialog(CalibrationModel *model, const Source &source, QWidget *parent);

private:
    QWidget *BuildLamps();
    QWidget *BuildLine();
    QWidget *BuildTable();
    QWidget *BuildButtons();
    QPushButton *AddButton(QBoxLayout *row, const char *name, const QString &text);
    void TakeSpectrum();
    void ChooseLamps();
    void FillLines();
    void Assign();
    void AddPoint();
    void ChangeWavelength(int row, int column);
    void RemovePoints();
    void ShowTable();
    QString Verdict() const;
    /// The same with what the assignment left out, and why.
    QString VerdictOfAssigned() const;
    void slotPicked(double pixel);
    void slotAssigned(bool found);
    void slotShow();

    CalibrationModel *m_model;
    Source m_take;
    QList<QCheckBox *> m_lamps;
    QDoubleSpinBox *m_first;
    QDoubleSpinBox *m_last;
    QSpinBox *m_degree;
    QDoubleSpinBox *m_pixel;
    QComboBox *m_nm; ///< the lines of the lamps; any other number may be written
    QTableWidget *m_table;
    CalibrationPlot *m_plot;
    QLabel *m_spectrum;
    QLabel *m_verdict;
    QPushButton *m_assign = nullptr;
    QPushButton *m_undo = nullptr;
    QPushButton *m_apply = nullptr;
    QPushButton *m_none = nullptr;
    bool m_isFilling = false;
};
