/// @file
/// The looks of the soft input panel.
#pragma once

#include "companion/detail/PanelKeys.h"

#include <afxwin.h>

namespace fieldkit::detail {

/// What the drawing must know beside the keys.
struct PanelLook {
    PanelPage page;
    int pressed;  ///< Index of the key under the pen, -1 for none.
    bool shifted; ///< The next character is a capital.
    bool locked;  ///< And all after it.
};

/// Draws the keys, all at once.
/// @param panel  size of the panel in pixels
void DrawPanel(CDC& target, CSize panel, const std::vector<PanelKey>& keys, const PanelLook& look);

} // namespace fieldkit::detail
