// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fieldform.h"
#include "sourcepanel.h"

/// The tab "Spectrum": how the spectrum is shown, and what it is made of.
class SpectrumPanel : public SourcePanel<FieldForm>
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "spectrumpanel.json")
    Q_INTERFACES(UIPlugin)

public:
    SpectrumPanel();
};
