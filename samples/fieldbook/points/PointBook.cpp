#include "points/PointBook.h"

#include "Tesuvo.h"

#include <cstddef>
#include <utility>

CPointChange CPointChange::Reversed() const {
    const Kind back = kind == Kind::Add ? Kind::Remove : kind == Kind::Remove ? Kind::Add : Kind::Replace;
    return {back, nPlace, after, before};
}

bool CPointBook::Add(const CNamedPoint& point) {
    return Apply({CPointChange::Kind::Add, m_points.size(), {}, point});
}

bool CPointBook::AddRead(const CNamedPoint& point) {
    if (!m_index.emplace(point.strName, m_points.size()).second)
        return false;
    m_points.push_back(point);
    return true;
}

bool CPointBook::Replace(const CString& strName, const CNamedPoint& point) {
    const auto it = m_index.find(strName);
    return it != m_index.end() &&
           Apply({CPointChange::Kind::Replace, it->second, m_points[it->second], point});
}

bool CPointBook::Remove(const CString& strName) {
    const auto it = m_index.find(strName);
    return it != m_index.end() && Apply({CPointChange::Kind::Remove, it->second, m_points[it->second], {}});
}

bool CPointBook::Apply(const CPointChange& change) {
    if (!Make(change))
        return false;
    m_undo.push_back(change);
    if (m_observer)
        m_observer(change);
    return true;
}

bool CPointBook::Undo(CPointChange& undone) {
    if (m_undo.empty())
        return false;
    undone = m_undo.back();
    m_undo.pop_back();
    const CPointChange back = undone.Reversed();
    Make(back);
    if (m_observer)
        m_observer(back);
    return true;
}

bool CPointBook::Make(const CPointChange& change) {
    switch (change.kind) {
    case CPointChange::Kind::Add:
        if (change.nPlace > m_points.size() || !m_index.emplace(change.after.strName, change.nPlace).second)
            return false;
        Insert(change.nPlace, change.after);
        break;
    case CPointChange::Kind::Replace: {
        const CString& strOld = change.before.strName;
        const CString& strNew = change.after.strName;
        if (!IsAt(change.nPlace, strOld))
            return false;
        if (strNew != strOld) {
            if (!m_index.emplace(strNew, change.nPlace).second)
                return false;
            m_index.erase(strOld);
            if (m_used.erase(strOld) != 0)
                m_used.insert(strNew);
        }
        m_points[change.nPlace] = change.after;
        break;
    }
    case CPointChange::Kind::Remove:
        if (!IsAt(change.nPlace, change.before.strName))
            return false;
        Erase(change.nPlace);
        break;
    }
    m_bModified = true;
    return true;
}

/// The name is in the index already.
void CPointBook::Insert(size_t nPlace, const CNamedPoint& point) {
    for (size_t i = nPlace; i < m_points.size(); ++i)
        ++m_index[m_points[i].strName];
    m_points.insert(m_points.begin() + static_cast<std::ptrdiff_t>(nPlace), point);
}

void CPointBook::Erase(size_t nPlace) {
    m_index.erase(m_points[nPlace].strName);
    m_used.erase(m_points[nPlace].strName);
    for (size_t i = nPlace + 1; i < m_points.size(); ++i)
        --m_index[m_points[i].strName];
    m_points.erase(m_points.begin() + static_cast<std::ptrdiff_t>(nPlace));
}

bool CPointBook::IsAt(size_t nPlace, const CString& strName) const {
    return nPlace < m_points.size() && m_points[nPlace].strName == strName;
}

const CNamedPoint* CPointBook::FindPoint(const CString& strName) const {
    const auto it = m_index.find(strName);
    return it != m_index.end() ? &m_points[it->second] : nullptr;
}

const CCoordinate* CPointBook::Find(const CString& strName) const {
    const CNamedPoint* const pPoint = FindPoint(strName);
    return pPoint != nullptr ? &pPoint->point : nullptr;
}

CString CPointBook::NextName(const CString& strName) const {
    CString strNext = strName;
    do
        TVIncrementName(strNext);
    while (Find(strNext) != nullptr);
    return strNext;
}

void CPointBook::BeginHere() {
    m_undo.clear();
    m_bModified = false;
}
