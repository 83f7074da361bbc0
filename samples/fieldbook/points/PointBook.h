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
    /// Puts a point, which may have a new name, in the place of another one.
    /// @return false, with nothing changed, if no point is called strName, or if the new name
    ///         is another point's
    bool Replace(const CString& strName, const CNamedPoint& point);
    /// @return false if no point has this name
    bool Remove(const CString& strName);
    /// Back to the beginning: no points, not modified.
    void Clear() { *this = CPointBook(); }

    /// @return the point; null if no point has this name. Valid until the book is changed.
    const CCoordinate* Find(const CString& strName) const;
    /// The first name behind the given one, counted up, that no point has: after K2, K3.
    CString NextName(const CString& strName) const;

    /// Whether points were changed since the flag was last cleared. That is for those who load
    /// and save the book.
    bool IsModified() const { return m_bModified; }
    void SetModified(bool bModified) { m_bModified = bModified; }

    /// Remembers that a computation has used a point. A point keeps that under a new name.
    void MarkUsed(const CString& strName) { m_used.insert(strName); }
    bool IsUsed(const CString& strName) const { return m_used.count(strName) != 0; }
    int GetUsedCount() const { return static_cast<int>(m_used.size()); }

    const std::vector<CNamedPoint>& GetPoints() const { return m_points; }
    int GetCount() const { return static_cast<int>(m_points.size()); }

private:
    std::vector<CNamedPoint> m_points;
    std::map<CString, size_t> m_index; ///< Name to place in m_points.
    std::set<CString> m_used;
    bool m_bModified = false;
};
