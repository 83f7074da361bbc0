#include "PointBook.h"

#include "Tesuvo.h"

bool CPointBook::Add(const CNamedPoint& point) {
    if (!m_index.emplace(point.strName, m_points.size()).second)
        return false;
    m_points.push_back(point);
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
