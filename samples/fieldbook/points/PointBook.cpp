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
    return Insert(m_points.size(), point);
}

bool CPointBook::Replace(const CString& strName, const CNamedPoint& point) {
    const size_t nPlace = PlaceOf(strName);
    return nPlace < m_points.size() && Apply({CPointChange::Kind::Replace, nPlace, m_points[nPlace], point});
}

bool CPointBook::Remove(const CString& strName) {
    const size_t nPlace = PlaceOf(strName);
    return nPlace < m_points.size() && Apply({CPointChange::Kind::Remove, nPlace, m_points[nPlace], {}});
}

bool CPointBook::Apply(const CPointChange& change) {
    m_undo.push_back(change);
    bool bMade = false;
    try {
        bMade = Make(change);
    } catch (...) { // there is no memory for it
        m_undo.pop_back();
        throw;
    }
    if (!bMade) {
        m_undo.pop_back();
        return false;
    }
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
        if (change.nPlace > m_points.size() || !Insert(change.nPlace, change.after))
            return false;
        break;
    case CPointChange::Kind::Replace: {
        const CString& strOld = change.before.strName;
        const CString& strNew = change.after.strName;
        if (!IsAt(change.nPlace, strOld))
            return false;
        if (strNew != strOld && m_index.count(strNew) != 0)
            return false;
        CNamedPoint after = change.after; // from here on nothing takes memory
        if (auto index = m_index.extract(strOld)) {
            index.key() = strNew;
            m_index.insert(std::move(index));
        }
        if (auto used = m_used.extract(strOld)) {
            used.value() = strNew;
            m_used.insert(std::move(used));
        }
        m_points[change.nPlace] = std::move(after);
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

/// @return false if the name is taken
bool CPointBook::Insert(size_t nPlace, const CNamedPoint& point) {
    const auto [it, bNew] = m_index.emplace(point.strName, nPlace);
    if (!bNew)
        return false;
    try {
        m_points.insert(m_points.begin() + static_cast<std::ptrdiff_t>(nPlace), point);
    } catch (...) {
        m_index.erase(it);
        throw;
    }
    return true;
}

void CPointBook::Erase(size_t nPlace) {
    m_index.erase(m_points[nPlace].strName);
    m_used.erase(m_points[nPlace].strName);
    m_points.erase(m_points.begin() + static_cast<std::ptrdiff_t>(nPlace));
}

bool CPointBook::IsAt(size_t nPlace, const CString& strName) const {
    return nPlace < m_points.size() && m_points[nPlace].strName == strName;
}

const CNamedPoint* CPointBook::FindPoint(const CString& strName) const {
    const size_t nPlace = PlaceOf(strName);
    return nPlace < m_points.size() ? &m_points[nPlace] : nullptr;
}

size_t CPointBook::PlaceOf(const CString& strName) const {
    const auto it = m_index.find(strName);
    if (it == m_index.end())
        return m_points.size();
    for (size_t nWay = 0;; ++nWay) {
        if (IsAt(it->second + nWay, strName))
            return it->second + nWay;
        if (nWay <= it->second && IsAt(it->second - nWay, strName))
            return it->second - nWay;
    }
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
