// Half a turn as exactly as a double has it. The kernel's own, geometry/Constants.h, is a shorter
// one, which is part of its results.
#pragma once

namespace fieldkit::survey {

inline constexpr double kPi = 3.141592653589793;

} // namespace fieldkit::survey
