// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QPushButton;
class QVBoxLayout;

/// The column of zoom buttons that floats over a spectrum plot. A manual zoom ends automatic ranging, a
/// reset begins it again; SpectrumUIManager knows before the plot is told. The plot owns its bar.
class SpectrumZoomUI : public QWidget
{
    Q_OBJECT

public:
    /// With the auto button, the bar shows and changes whether the plot is ranged automatically.
    SpectrumZoomUI(QWidget *parent, bool withAutoButton);

signals:
    void SignalZoomIn();
    void SignalZoomOut();
    void SignalZoomReset();
    void SignalHorizontalZoomIn();
    void SignalHorizontalZoomOut();
    void SignalZoomAuto();

public slots:
    void SlotDisplayModePropertyChange();
    void on_pushButton2DZoomIn_clicked(bool checked);
    void on_pushButton2DZoomOut_clicked(bool checked);
    void on_pushButton2DScaleReset_clicked(bool checked);
    void on_pushButton2DHZoomIn_clicked(bool checked);
    void on_pushButton2DHZoomOut_clicked(bool checked);
    void on_pushButtonRescaleAuto_clicked(bool checked);

private:
    void BuildForm();
    /// It shows an icon only: `spokenName` is for those who do not see it.
    QPushButton *AddButton(QVBoxLayout *column, const char *name, const QString &spokenName);

    bool m_withAutoButton;
    QPushButton *m_auto = nullptr;
};
