// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fluorescencesynthesismanager.h"

/// Composing of fluorescence channels into one picture. Composes none yet. GUI thread.
class ChannelSynthesis : public FluorescenceSynthesisManager
{
    Q_OBJECT

public:
    explicit ChannelSynthesis(QObject *parent = nullptr);
};
