#include "points/PointBook.h"

#include "Tesuvo.h"

#include <cstddef>

bool CPointBook::Add(const CNamedPoint& point) {
    if (!m_index.emplace(point.strName, m_points.size()).second)
        return false;
    m_points.push_back(point);
    m_bModified = true;
    return true;
}

bool CPointBook::Replace(const CString& strName, const CNamedPoint& point) {
    const auto it = m_index.find(strName);
    if (it == m_index.end())
        return false;
    const size_t nPlace = it->second;
    if (point.strName != strName) {
        if (!m_index.emplace(point.strName, nPlace).second)
            return false;
        if (m_used.erase(strName) != 0)
            m_used.insert(point.strName);
        m_index.erase(it);
    }
    m_points[nPlace] = point;
    m_bModified = true;
    return true;
}

bool CPointBook::Remove(const CString& strName) {
    const auto it = m_index.find(strName);
    if (it == m_index.end())
        return false;
    const size_t nPlace = it->second;
    m_index.erase(it);
    m_used.erase(strName);
    m_points.erase(m_points.begin() + static_cast<std::ptrdiff_t>(nPlace));
    for (auto& entry : m_index)
        if (entry.second > nPlace)
            --entry.second;
    m_bModified = true;
    return true;
}

const CCoordinate* CPointBook::Find(const CString& strName) const {
    const auto it = m_index.find(strName);
    return it != m_index.end() ? &m_points[it->second].point : nullptr;
}

CString CPointBook::NextName(const CString& strName) const {
    CString strNext = strName;
    do
        TVIncrementName(strNext);
    while (Find(strNext) != nullptr);
    return strNext;
}
