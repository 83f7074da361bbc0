/// @file
/// Which point of a plan is meant by a tap.
#pragma once

#include "plan/Drawing.h"
#include "plan/PlanScale.h"

#include <optional>

/// The index of the nearest point within a number of pixels.
std::optional<size_t> NearestPoint(const CDrawing& drawing, const CPlanScale& scale, CPoint tap, int nReach);
