// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>
#include <QColor>
#include <QList>
#include <QPen>
#include <QPointF>
#include <QRectF>
#include <QString>

class DisplayModeManager;

/// Display settings of the spectrum pages: mode, direction, FVB, tracks, calibration and drawing
/// style.
class GLOBALUI_SERVICES_EXPORT SpectrumUIManager : public QObject
{
    Q_OBJECT

public:
    static SpectrumUIManager *GetInstance();
    ~SpectrumUIManager() override;

    /// Display mode; the value is also the page of the stacks that shows it.
    virtual int GetDisplayMode() const = 0;
    virtual bool IsDisplayModeGeneral() const = 0;
    virtual bool IsDisplayMode2D() const = 0;
    virtual bool IsDisplayMode2DPeak() const = 0;
    virtual bool IsDisplayMode3D() const = 0;
    virtual bool IsDisplayModePhysics() const = 0;
    virtual void SetDisplayModeGeneral() = 0;
    virtual void UpdateDisplayModeProperty() = 0;
    virtual DisplayModeManager *GetDisplayModeManager() const = 0;

    /// Full vertical binning: on (not 0), over all rows, over the band found, or a band set by hand.
    virtual int GetFVBOnFlag() const = 0;
    virtual void SetFVBOnFlag(int on) = 0;
    virtual bool IsFVBModeAll() const = 0;
    virtual bool IsFVBModeAuto() const = 0;
    virtual bool GetManualFlag() const = 0;
    /// First and last row of the band, picture pixels.
    virtual int GetTop() const = 0;
    virtual void SetTop(int row) = 0;
    virtual int GetBottom() const = 0;
    virtual void SetBottom(int row) = 0;

    virtual bool GetMultiTrackOnFlag() const = 0;
    virtual void SetMultiTrackOnFlag(bool on) = 0;
    /// The tracks, in picture pixels.
    virtual QList<QRectF> GetMultiTrackList() const = 0;
    virtual bool GetSpeSelectionFlag() const = 0;
    virtual int GetSpectrumSelectionMode() const = 0;
    virtual bool GetFocusAssitanceFlag() const = 0;
    virtual void SetFocusAssitanceFlag(bool on) = 0;

    virtual bool IsDirectionHorinzontal() const = 0;
    virtual void SetDirectionHorizontal() = 0;

    /// The visible part of the live picture and of the open image, in picture pixels.
    virtual void SlotNewArea(double xmin, double xmax, double ymin, double ymax) = 0;
    virtual void SlotImageNewArea(double xmin, double xmax, double ymin, double ymax) = 0;
    virtual void CalculateImageArea() = 0;
    /// Calibrated x value of a pixel index; false when it can't be converted.
    virtual bool Calculate(int pixel, double &x) const = 0;
    virtual bool IsValidConversation(QString *text) const = 0;

    virtual QPen GetLinePen() const = 0;
    virtual QColor GetLineColor() const = 0;
    virtual double GetLineWidth() const = 0;
    /// 0 is a solid line; one less than the Qt::PenStyle.
    virtual int GetLineStyle() const = 0;
    virtual QPen GetPeakPen() const = 0;
    virtual QColor GetPeakColor() const = 0;
    /// Pixels.
    virtual double GetPeakSize() const = 0;
    virtual int GetPeakNumber() const = 0;
    virtual QColor GetBackgroundColor() const = 0;
    /// Part of the height that stays free above the highest value, 0 to below 1.
    virtual double GetBlankRatio() const = 0;
    virtual QString GetTitleName() const = 0;
    virtual bool GetZoomAutoFlag() const = 0;
    virtual void SetZoomAutoFlag(bool on) = 0;

signals:
    void signalDisplayModeChange();
    void signalDisplayModePropertyChange();
    void SignalSpectralPropertyChanged();
    void SignalConversationFormulaChanged();
    void SignalZoomAutoFlagChange();
    void SignalAssitanceFocusClose();
    void SignalFocusOnChanged(bool on);
    void SignalFocusCrossLineFlagChanged(bool on);
    void SignalMultiTrackOnFlagChanged();
    void SignalFVBOnFlagChanged(bool on);
    void SignalFVBClose();
    void SignalFVBModeAll();
    void SignalFVBManualFlagChanged(bool manual);
    void SignalFVBSpeedingFlagChanged(bool speeding);
    void SignalTopBottomChanged(QPointF top, QPointF bottom);

protected:
    explicit SpectrumUIManager(QObject *parent = nullptr);
};
