/// @file
/// The order of the rows in the list of points.
#pragma once

#include "points/PointBook.h"

/// The columns of the list, in their order.
enum class PointColumn { Name, N, E, Z };

/// The points in the order of a column: indices of the points, the smallest first. Points that
/// are alike there stay in their order; those without a height come last.
std::vector<size_t> OrderPoints(const std::vector<CNamedPoint>& points, PointColumn column);
