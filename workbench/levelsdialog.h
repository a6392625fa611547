// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "levelsreport.h"
#include "levelssetting.h"

#include <QDialog>

class LevelBox;
class HistogramView;
class LevelsModel;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;

/// Sets the levels of the picture beside the picture itself: mode, black, white and gamma, with the histogram of the raw
/// samples; black and white are in the samples' own units. Shows the levels of the present picture in every mode and lets them be edited in manual mode, which
/// starts from what is seen. GUI thread.
class LevelsDialog : public QDialog
{
    Q_OBJECT

public:
    /// `model` is borrowed and outlives this object.
    LevelsDialog(LevelsModel *model, QWidget *parent);

public slots:
    void slotReport(LevelsReport report);
    /// There is no picture whose levels can be set.
    void slotNoReport(QString reason);

signals:
    /// Reports are wanted, or no longer.
    void signalWatched(bool watched);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private slots:
    void slotModeChosen();
    void slotValueEdited();
    void slotReset();

private:
    void AddFields();
    void AddButtons();
    LevelBox *AddValue(QFormLayout *form, const QString &label, const char *name);
    LevelsSetting Setting() const;
    void Apply(const LevelsSetting &setting);
    void ShowSetting();
    void ShowLevels();

    LevelsModel *m_model;
    LevelsReport m_report;
    HistogramView *m_histogram;
    QLabel *m_depth;
    QComboBox *m_mode;
    LevelBox *m_left = nullptr;
    LevelBox *m_right = nullptr;
    QDoubleSpinBox *m_gamma;
};
