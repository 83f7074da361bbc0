/// @file
/// The order of the rows in the list of points.
#pragma once

#include "points/PointBook.h"
#include "points/Progress.h"

#include <optional>

/// The columns of the list, in their order.
enum class PointColumn { Name, N, E, Z, Code };
inline constexpr int kPointColumnCount = 5;

/// Whether a name stands before another one: numbers in them count as such, K2 before K10.
bool IsNameBefore(const CString& strName1, const CString& strName2);

/// In which order rows stand: the smallest first, or the largest if it is turned round. Points that
/// are alike in the column stay in their order; those that have nothing there come last, both ways.
struct CPointOrder {
    std::optional<PointColumn> column; ///< None for the order of the book.
    bool bTurned = false;

    /// Whether a point stands before another one, both given by their places among the points.
    bool IsBefore(const std::vector<CNamedPoint>& points, size_t nFirst, size_t nSecond) const;
};

/// The points in that order, by their places.
std::vector<size_t> OrderPoints(const std::vector<CNamedPoint>& points, const CPointOrder& order,
                                const Progress& progress = {});
