// SPDX-License-Identifier: GPL-3.0-or-later
#include "channelsynthesis.h"

ChannelSynthesis::ChannelSynthesis(QObject *parent)
    : FluorescenceSynthesisManager(parent)
{
}
