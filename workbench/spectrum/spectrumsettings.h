// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "displaymode.h"
#include "spectrumuimanager.h"

class CentreDisplay;

/// Display settings of the spectrum pages: their mode, and the ranges of their rulers. FVB, tracks and focus assistance
/// are off and stay off, and nothing is calibrated. GUI thread.
class SpectrumSettings : public SpectrumUIManager
{
    Q_OBJECT

public:
    /// Both are borrowed and outlive this object: the announcer of the rulers' value ranges, and what knows the mode.
    SpectrumSettings(DisplayModeManager *ranges, CentreDisplay *centre, QObject *parent = nullptr);

    DisplayMode Mode() const;
    void SetMode(DisplayMode mode);

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
    /// The visible part of a picture, picture pixels.
    struct Area
    {
        double left = 0;
        double right = 0;
        double top = 0;
        double bottom = 0;
    };
    using RangeSignal = void (DisplayModeManager::*)(qreal, qreal);

    static bool IsArea(const Area &area);
    void AnnounceArea(const Area &area, RangeSignal horizontal, RangeSignal vertical);
    void AnnounceLiveArea();
    double RulerValue(double pixel, bool isSpectralSide) const;

    DisplayModeManager *m_ranges;
    CentreDisplay *m_centre;
    Area m_liveArea;
    Area m_imageArea;
};
