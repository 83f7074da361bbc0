/// @file
/// The order of the rows in the list of points.
#pragma once

#include "points/PointBook.h"

/// The columns of the list, in their order.
enum class PointColumn { Name, N, E, Z, Code };
inline constexpr int kPointColumnCount = 5;

/// Whether a name stands before another one: numbers in them count as such, K2 before K10.
bool IsNameBefore(const CString& strName1, const CString& strName2);

/// The points in the order of a column: indices of the points, the smallest first, or the largest
/// if it is turned round. Points that are alike there stay in their order; those that have nothing
/// there come last, both ways.
std::vector<size_t> OrderPoints(const std::vector<CNamedPoint>& points, PointColumn column, bool bTurned);
