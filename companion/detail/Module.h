/// @file
/// Access to this library's own module.
#pragma once

#include <afx.h>

namespace fieldkit::detail {

/// The handle of this library, for its resources and window classes.
HINSTANCE CompanionModule();

/// Keeps this library loaded until the process ends.
void PinCompanionModule();

} // namespace fieldkit::detail
