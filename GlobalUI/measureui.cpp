// SPDX-License-Identifier: GPL-3.0-or-later
#include "measureui.h"

#include "autocountmanager.h"
#include "globalmanager.h"
#include "imagemanager.h"
#include "measureconfigmanager.h"
#include "measuremanager.h"
#include "uiconfigmanager.h"
#include "uiplugin.h"

#include <QWidget>

namespace {

/// Panels that work on the open picture, unlike the others, which also work on the live one.
bool NeedsImage(int id) { return id == 13 || id == 64; }

} // namespace

MeasureUI::MeasureUI()
{
    SetTabIds({ AnalysisPanel, ToolPropertiesPanel, ReportPanel, SpectrumPanel });
    MeasureManager::Init();
    GlobalAttachObserver(this);
    connect(UIConfigManager::GetInstance(), SIGNAL(signalUpdateMeasureControlUI()), this,
            SLOT(slotUpdateMeasureControlUI()), Qt::QueuedConnection);
    connect(MeasureConfigManager::GetInstance(), SIGNAL(signalMeasureGraphicsListChanged()), this,
            SLOT(slotMeasureGraphicsListChanged()));
    connect(AutoCountManager::GetInstance(), SIGNAL(signalAutoCountDataChanged()), this,
            SLOT(slotRaiseAutoCountUI()));
}

MeasureUI::~MeasureUI() { GlobalDetachObserver(this); }

void MeasureUI::LoadPluginUI(QWidget *parent)
{
    LoadUIPluginAndInitUI("plugins/measure/ui", parent, false);
    LoadUIPluginAndInitUI("plugins/report/ui", parent, false);
    LoadUIPluginAndInitUI("plugins/spectrum/ui", parent, true);
}

void MeasureUI::ActivateControlUI() { slotUpdateMeasureControlUI(); }

void MeasureUI::UpdateObserver(int id, void *)
{
    if (id == NotifyRaiseCalibrationTable)
        setBottomPanelCurrentIndex(tr("Calibration Table"));
    else if (id == NotifyRaiseClassCounting)
        setBottomPanelCurrentIndex(tr("Class Counting"));
}

void MeasureUI::slotUpdateMeasureControlUI()
{
    const GlobalManager *global = GlobalManager::GetInstance();
    const bool cameraReport = global->GetReportManager() == global->GetCameraReportManager();
    const bool imageUsable = global->IsImageEnabled() && !global->GetActiveImageManager()->Is32BitMat();
    const QList<LoadedPlugin> plugins = Plugins();
    for (int i = plugins.size() - 1; i >= 0; --i) {
        UpdatePlugin(plugins.at(i));
        if (plugins.at(i).widget)
            plugins.at(i).widget->setEnabled(global->IsMeasureEnabled());
    }
    if (cameraReport)
        return;
    for (const LoadedPlugin &loaded : plugins) {
        if (NeedsImage(loaded.id) && loaded.widget)
            loaded.widget->setEnabled(imageUsable);
    }
}

void MeasureUI::slotMeasureGraphicsListChanged() { slotUpdateMeasureControlUI(); }

void MeasureUI::slotRaiseAutoCountUI() { setBottomPanelCurrentIndex(tr("Automatic Counting Table")); }
