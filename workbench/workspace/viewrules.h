// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "viewcodes.h"

/// Which page a view shows and which view follows a command. Plain rules without state.
namespace ViewRules {

/// Page of the left stack and of the centre stack.
LeftPage PageOf(ViewCode view);
/// Entered from a page, or left again from the comparison on it.
ViewCode AfterCompareCommand(ViewCode view);
/// The view shows the live picture, alone or in a comparison.
bool ShowsCamera(ViewCode view);
/// Two pictures side by side.
bool IsComparison(ViewCode view);

} // namespace ViewRules
