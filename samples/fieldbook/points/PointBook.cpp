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
    const auto [it, bNew] = m_index.emplace(point.strName, m_points.size());
    if (!bNew)
        return false;
    try {
        m_points.push_back(point);
    } catch (...) {
        m_index.erase(it);
        throw;
    }
    return true;
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
    if (!CanMake(change))
        return false;
    m_undo.push_back(change);
    try {
        Make(change);
    } catch (...) {
        m_undo.pop_back();
        throw;
    }
    TellMade();
    return true;
}

bool CPointBook::Undo(CPointChange& undone) {
    if (m_undo.empty())
        return false;
    CPointChange last = m_undo.back();
    Make(last.Reversed());
    m_undo.pop_back();
    undone = std::move(last);
    TellMade();
    return true;
}

bool CPointBook::CanMake(const CPointChange& change) const {
    const bool bFree = m_index.count(change.after.strName) == 0;
    switch (change.kind) {
    case CPointChange::Kind::Add:
        return bFree && change.nPlace <= m_points.size();
    case CPointChange::Kind::Replace:
        return IsAt(change.nPlace, change.before.strName) &&
               (bFree || change.after.strName == change.before.strName);
    default:
        return IsAt(change.nPlace, change.before.strName);
    }
}

/// What needs memory comes first and the observer last of it, so that its record and the book have the
/// same changes.
void CPointBook::Make(const CPointChange& change) {
    CNamedPoint after = change.after;
    std::map<CString, size_t> entry;
    if (change.kind == CPointChange::Kind::Add) {
        entry.emplace(after.strName, change.nPlace);
        if (m_points.size() == m_points.capacity())
            m_points.reserve(m_points.size() * 2 + 1);
    }
    if (m_observer)
        m_observer(change);
    switch (change.kind) {
    case CPointChange::Kind::Add:
        m_index.merge(entry);
        m_points.insert(m_points.begin() + static_cast<std::ptrdiff_t>(change.nPlace), std::move(after));
        break;
    case CPointChange::Kind::Replace:
        Rename(change.before.strName, after.strName);
        m_points[change.nPlace] = std::move(after);
        break;
    case CPointChange::Kind::Remove:
        Erase(change.nPlace);
        break;
    }
    m_bModified = true;
}

void CPointBook::Rename(const CString& strOld, const CString& strNew) {
    if (auto index = m_index.extract(strOld)) {
        index.key() = strNew;
        m_index.insert(std::move(index));
    }
    if (auto used = m_used.extract(strOld)) {
        used.value() = strNew;
        m_used.insert(std::move(used));
    }
}

void CPointBook::TellMade() {
    if (m_follower)
        m_follower();
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
