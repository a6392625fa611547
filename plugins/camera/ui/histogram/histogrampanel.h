// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "histogrampage.h"
#include "sourcepanel.h"

/// The bottom page "Histogram(Live)": how the samples of the live picture are spread.
class HistogramPanel : public SourcePanel<HistogramPage>
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "histogrampanel.json")
    Q_INTERFACES(UIPlugin)

public:
    HistogramPanel();
};
