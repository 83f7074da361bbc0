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

/// Whether a name has a part, in capitals or not. @param strPart in capitals
bool HasPart(const CString& strName, const CString& strPart);

/// The places of the points that have a part in their names, in the book's order.
/// @param strPart in capitals
std::vector<size_t> FindPoints(const std::vector<CNamedPoint>& points, const CString& strPart,
                               const Progress& progress = {});

/// Puts points, given by their places, into that order.
void OrderPoints(const std::vector<CNamedPoint>& points, std::vector<size_t>& places,
                 const CPointOrder& order, const Progress& progress = {});
