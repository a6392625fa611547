// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "recordingsettings.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class QDoubleSpinBox;

/// Everything that a run can be told, with an example of the name its file will get. GUI thread.
class RecordingForm : public QWidget
{
    Q_OBJECT

public:
    explicit RecordingForm(QWidget *parent = nullptr);

    void Set(const RecordingSettings &settings);
    RecordingSettings Get() const;
    /// What names are made of, for the example.
    void SetExample(const NamePattern::Values &values);
    bool IsValid() const;

signals:
    void signalChanged();

private slots:
    void slotChanged();
    void slotChooseFolder();

private:
    QSpinBox *AddNumber(const char *name, int least, int most, const QString &suffix);
    void BuildForm();
    void UpdateUI();

    NamePattern::Values m_example;
    QComboBox *m_mode;
    QSpinBox *m_frames;
    QSpinBox *m_seconds;
    QDoubleSpinBox *m_delay;
    QDoubleSpinBox *m_interval;
    QComboBox *m_target;
    QComboBox *m_format;
    QLineEdit *m_folder;
    QLineEdit *m_pattern;
    QLabel *m_name;
    QSpinBox *m_queue;
};
