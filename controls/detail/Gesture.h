// The answer of the controls to the device's question about press-and-hold.
#pragma once

#include <afxwin.h>

namespace fieldkit::detail {

/// Result of NM_RECOGNIZEGESTURE: the control has dealt with the stylus, so the device shows
/// neither its tap-and-hold circle nor a context menu.
constexpr LRESULT kGestureHandled = 1;

} // namespace fieldkit::detail
