/// @file
/// CPointBook: the points of a job by their names.
#pragma once

#include "survey/Coordinate.h"

#include <map>
#include <vector>

struct CNamedPoint {
    CString strName;
    CCoordinate point;
};

/// Points in the order in which they were added. No two have the same name.
class CPointBook {
public:
    /// @return false, with nothing changed, if the name is taken
    bool Add(const CNamedPoint& point);
    /// @return the point; null if no point has this name. Valid until the next Add.
    const CCoordinate* Find(const CString& strName) const;

    const std::vector<CNamedPoint>& GetPoints() const { return m_points; }
    int GetCount() const { return static_cast<int>(m_points.size()); }

private:
    std::vector<CNamedPoint> m_points;
    std::map<CString, size_t> m_index; ///< Name to place in m_points.
};
