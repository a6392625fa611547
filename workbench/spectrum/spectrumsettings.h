// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spectrumuimanager.h"

/// Display settings of the spectrum pages. There are no such pages yet: the display mode is General,
/// FVB, tracks and focus assistance are off and stay off, and nothing is calibrated. GUI thread.
class SpectrumSettings : public SpectrumUIManager
{
    Q_OBJECT

public:
    /// `ranges` is borrowed: the announcer of the rulers' value ranges.
    explicit SpectrumSettings(DisplayModeManager *ranges, QObject *parent = nullptr);

    int GetDisplayMode() const override;
    bool IsDisplayModeGeneral() const override;
    bool IsDisplayMode2D() const override;
    bool IsDisplayMode2DPeak() const override;
    bool IsDisplayMode3D() const override;
    bool IsDisplayModePhysics() const override;
    void SetDisplayModeGeneral() override;
    void UpdateDisplayModeProperty() override;
    DisplayModeManager *GetDisplayModeManager() const override;
    int GetFVBOnFlag() const override;
    void SetFVBOnFlag(int on) override;
    bool IsFVBModeAll() const override;
    bool IsFVBModeAuto() const override;
    bool GetManualFlag() const override;
    int GetTop() const override;
    void SetTop(int row) override;
    int GetBottom() const override;
    void SetBottom(int row) override;
    bool GetMultiTrackOnFlag() const override;
    void SetMultiTrackOnFlag(bool on) override;
    QList<QRectF> GetMultiTrackList() const override;
    bool GetSpeSelectionFlag() const override;
    int GetSpectrumSelectionMode() const override;
    bool GetFocusAssitanceFlag() const override;
    void SetFocusAssitanceFlag(bool on) override;
    bool IsDirectionHorinzontal() const override;
    void SetDirectionHorizontal() override;
    void SlotNewArea(double xmin, double xmax, double ymin, double ymax) override;
    void SlotImageNewArea(double xmin, double xmax, double ymin, double ymax) override;
    void CalculateImageArea() override;
    bool Calculate(int pixel, double &x) const override;
    bool IsValidConversation(QString *text) const override;
    QPen GetLinePen() const override;
    QColor GetLineColor() const override;
    double GetLineWidth() const override;
    int GetLineStyle() const override;
    QPen GetPeakPen() const override;
    QColor GetPeakColor() const override;
    double GetPeakSize() const override;
    int GetPeakNumber() const override;
    QColor GetBackgroundColor() const override;
    double GetBlankRatio() const override;
    QString GetTitleName() const override;
    bool GetZoomAutoFlag() const override;
    void SetZoomAutoFlag(bool on) override;

private:
    DisplayModeManager *m_ranges;
};
