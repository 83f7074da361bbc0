/// @file
/// CPointBook: the points of a job by their names.
#pragma once

#include "survey/Coordinate.h"

#include <map>
#include <set>
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
    /// The first name behind the given one, counted up, that no point has: after K2, K3.
    CString NextName(const CString& strName) const;

    /// Remembers that a computation has used a point.
    void MarkUsed(const CString& strName) { m_used.insert(strName); }
    bool IsUsed(const CString& strName) const { return m_used.count(strName) != 0; }
    int GetUsedCount() const { return static_cast<int>(m_used.size()); }

    const std::vector<CNamedPoint>& GetPoints() const { return m_points; }
    int GetCount() const { return static_cast<int>(m_points.size()); }

private:
    std::vector<CNamedPoint> m_points;
    std::map<CString, size_t> m_index; ///< Name to place in m_points.
    std::set<CString> m_used;
};
