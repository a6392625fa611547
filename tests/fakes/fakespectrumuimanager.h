// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "spectrumuimanager.h"

class FakeSpectrumUIManager : public SpectrumUIManager
{
public:
    int displayMode = 0;
    bool displayModeGeneral = true;
    bool displayMode2D = false;
    bool displayMode2DPeak = false;
    bool displayMode3D = false;
    bool displayModePhysics = false;
    DisplayModeManager *displayModeManager = nullptr;
    int fvbOnFlag = 0;
    bool fvbModeAll = false;
    bool fvbModeAuto = false;
    bool manualFlag = false;
    int top = 0;
    int bottom = 0;
    bool multiTrackOnFlag = false;
    QList<QRectF> multiTrackList;
    bool speSelectionFlag = false;
    int spectrumSelectionMode = 0;
    bool focusAssitanceFlag = false;
    bool directionHorinzontal = true;
    /// Calibration: x = offset + factor * pixel.
    double calibrationOffset = 0.0;
    double calibrationFactor = 1.0;
    bool validConversationResult = true;
    QPen linePen;
    QColor lineColor = Qt::blue;
    double lineWidth = 1.0;
    int lineStyle = 0;
    QPen peakPen;
    QColor peakColor;
    double peakSize = 8.0;
    int peakNumber = 3;
    QColor backgroundColor = Qt::white;
    double blankRatio = 0.2;
    QString titleName;
    bool zoomAutoFlag = false;

    int GetDisplayMode() const override { return displayMode; }
    bool IsDisplayModeGeneral() const override { return displayModeGeneral; }
    bool IsDisplayMode2D() const override { return displayMode2D; }
    bool IsDisplayMode2DPeak() const override { return displayMode2DPeak; }
    bool IsDisplayMode3D() const override { return displayMode3D; }
    bool IsDisplayModePhysics() const override { return displayModePhysics; }
    void SetDisplayModeGeneral() override
    {
        CallLog::Add("SpectrumUIManager::SetDisplayModeGeneral", {});
    }
    void UpdateDisplayModeProperty() override
    {
        CallLog::Add("SpectrumUIManager::UpdateDisplayModeProperty", {});
    }
    DisplayModeManager *GetDisplayModeManager() const override { return displayModeManager; }
    int GetFVBOnFlag() const override { return fvbOnFlag; }
    void SetFVBOnFlag(int on) override
    {
        fvbOnFlag = on;
        CallLog::Add("SpectrumUIManager::SetFVBOnFlag", {QString::number(on)});
    }
    bool IsFVBModeAll() const override { return fvbModeAll; }
    bool IsFVBModeAuto() const override { return fvbModeAuto; }
    bool GetManualFlag() const override { return manualFlag; }
    int GetTop() const override { return top; }
    void SetTop(int row) override
    {
        top = row;
        CallLog::Add("SpectrumUIManager::SetTop", {QString::number(row)});
    }
    int GetBottom() const override { return bottom; }
    void SetBottom(int row) override
    {
        bottom = row;
        CallLog::Add("SpectrumUIManager::SetBottom", {QString::number(row)});
    }
    bool GetMultiTrackOnFlag() const override { return multiTrackOnFlag; }
    void SetMultiTrackOnFlag(bool on) override
    {
        multiTrackOnFlag = on;
        CallLog::Add("SpectrumUIManager::SetMultiTrackOnFlag", {Text(on)});
    }
    QList<QRectF> GetMultiTrackList() const override { return multiTrackList; }
    bool GetSpeSelectionFlag() const override { return speSelectionFlag; }
    int GetSpectrumSelectionMode() const override { return spectrumSelectionMode; }
    bool GetFocusAssitanceFlag() const override { return focusAssitanceFlag; }
    void SetFocusAssitanceFlag(bool on) override
    {
        focusAssitanceFlag = on;
        CallLog::Add("SpectrumUIManager::SetFocusAssitanceFlag", {Text(on)});
    }
    bool IsDirectionHorinzontal() const override { return directionHorinzontal; }
    void SetDirectionHorizontal() override
    {
        CallLog::Add("SpectrumUIManager::SetDirectionHorizontal", {});
    }
    void SlotNewArea(double xmin, double xmax, double ymin, double ymax) override
    {
        CallLog::Add("SpectrumUIManager::SlotNewArea", {QString::number(xmin), QString::number(xmax), QString::number(ymin), QString::number(ymax)});
    }
    void SlotImageNewArea(double xmin, double xmax, double ymin, double ymax) override
    {
        CallLog::Add("SpectrumUIManager::SlotImageNewArea", {QString::number(xmin), QString::number(xmax), QString::number(ymin), QString::number(ymax)});
    }
    void CalculateImageArea() override { CallLog::Add("SpectrumUIManager::CalculateImageArea", {}); }
    bool Calculate(int pixel, double &x) const override
    {
        x = calibrationOffset + calibrationFactor * pixel;
        return true;
    }
    bool IsValidConversation(QString *) const override { return validConversationResult; }
    QPen GetLinePen() const override { return linePen; }
    QColor GetLineColor() const override { return lineColor; }
    double GetLineWidth() const override { return lineWidth; }
    int GetLineStyle() const override { return lineStyle; }
    QPen GetPeakPen() const override { return peakPen; }
    QColor GetPeakColor() const override { return peakColor; }
    double GetPeakSize() const override { return peakSize; }
    int GetPeakNumber() const override { return peakNumber; }
    QColor GetBackgroundColor() const override { return backgroundColor; }
    double GetBlankRatio() const override { return blankRatio; }
    QString GetTitleName() const override { return titleName; }
    bool GetZoomAutoFlag() const override { return zoomAutoFlag; }
    void SetZoomAutoFlag(bool on) override
    {
        zoomAutoFlag = on;
        CallLog::Add("SpectrumUIManager::SetZoomAutoFlag", {Text(on)});
    }
};
