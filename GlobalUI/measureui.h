// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "globalnotify.h"
#include "uimanagerbase.h"

/// The panels of measuring, report and spectrum at the right and bottom of the window. Brings its
/// bottom pages to the front when other modules ask through the observer hub. Owned by GlobalUI.
class MeasureUI : public UIManagerBase, public LxObserver
{
    Q_OBJECT

public:
    /// The panels that stand as tabs at the right of the window.
    enum RightPanelId
    {
        AnalysisPanel = 7,
        ToolPropertiesPanel = 8,
        ReportPanel = 9,
        SpectrumPanel = 11
    };

    MeasureUI();
    ~MeasureUI() override;

    void LoadPluginUI(QWidget *parent);
    /// Updates the panels and enables those that can be used now.
    void ActivateControlUI();
    void UpdateObserver(int id, void *data) override;

public slots:
    void slotUpdateMeasureControlUI();
    void slotMeasureGraphicsListChanged();
    void slotRaiseAutoCountUI();
};
