/// @file
/// CPointBook: the points of a job by their names.
#pragma once

#include "survey/Coordinate.h"

#include <functional>
#include <map>
#include <set>
#include <vector>

struct CNamedPoint {
    CString strName;
    CCoordinate point;
    CString strCode{};             ///< What kind of thing the point is, in the crew's own words.
    std::vector<CString> others{}; ///< Fields of its line that mean nothing here, in their order.
};

/// A step from one state of a book to the next; with `before` and `after` changed over it leads back.
struct CPointChange {
    enum class Kind { Add, Replace, Remove };

    Kind kind;
    size_t nPlace;      ///< Of the point among the points.
    CNamedPoint before; ///< Without meaning for Add.
    CNamedPoint after;  ///< Without meaning for Remove.

    CPointChange Reversed() const;
};

/// Points in the order in which they were added. No two have the same name. A function that throws,
/// for want of memory, has changed nothing.
class CPointBook {
public:
    /// @return false, with nothing changed, if the name is taken
    bool Add(const CNamedPoint& point);
    /// The same for a point that was read from a file, which is no change.
    bool AddRead(const CNamedPoint& point);
    /// Puts a point, which may have a new name, in the place of another one.
    /// @return false, with nothing changed, if no point is called strName, or if the new name
    ///         is another point's
    bool Replace(const CString& strName, const CNamedPoint& point);
    /// @return false if no point has this name
    bool Remove(const CString& strName);
    /// Makes a change of any kind.
    /// @return false, with nothing changed, if the book is not in the state before it
    bool Apply(const CPointChange& change);
    /// Takes the last change back that has not been taken back. A point that comes back stands where
    /// it was.
    /// @return the change that was taken back is written; false if there is none
    bool Undo(CPointChange& undone);
    bool CanUndo() const { return !m_undo.empty(); }
    /// The change that Undo takes back; there must be one.
    const CPointChange& GetLastChange() const { return m_undo.back(); }
    /// What can be taken back, the last change last.
    const std::vector<CPointChange>& GetChanges() const { return m_undo; }

    /// Is told each change, those of Undo too, once nothing else can prevent it. What it throws does:
    /// then nothing has changed.
    using Observer = std::function<void(const CPointChange&)>;
    void SetObserver(const Observer& observer) { m_observer = observer; }
    /// Is called when a change that the observer was told has been made. It may look at the book.
    void SetFollower(const std::function<void()>& follower) { m_follower = follower; }

    /// @return the point; null if no point has this name. Valid until the book is changed.
    const CNamedPoint* FindPoint(const CString& strName) const;
    const CCoordinate* Find(const CString& strName) const;
    /// The first name behind the given one, counted up, that no point has: after K2, K3.
    CString NextName(const CString& strName) const;

    /// Whether points were changed since the flag was last cleared. That is for those who load
    /// and save the book.
    bool IsModified() const { return m_bModified; }
    void SetModified(bool bModified) { m_bModified = bModified; }
    /// The points as they are now are the beginning: nothing to save, nothing to take back.
    void BeginHere();

    /// Remembers that a computation has used a point. A point keeps that under a new name.
    void MarkUsed(const CString& strName) { m_used.insert(strName); }
    bool IsUsed(const CString& strName) const { return m_used.count(strName) != 0; }
    int GetUsedCount() const { return static_cast<int>(m_used.size()); }

    const std::vector<CNamedPoint>& GetPoints() const { return m_points; }
    int GetCount() const { return static_cast<int>(m_points.size()); }

private:
    bool CanMake(const CPointChange& change) const;
    void Make(const CPointChange& change);
    void Rename(const CString& strOld, const CString& strNew);
    void Erase(size_t nPlace);
    void TellMade();
    bool IsAt(size_t nPlace, const CString& strName) const;
    /// @return the place of a point; that behind the last one if no point has this name
    size_t PlaceOf(const CString& strName) const;

    std::vector<CNamedPoint> m_points;
    /// Name to where the point once stood: it is as far from there as points in front of it have
    /// come and gone. So none of 100,000 is looked up when one comes or goes.
    std::map<CString, size_t> m_index;
    std::set<CString> m_used;
    std::vector<CPointChange> m_undo;
    Observer m_observer;
    std::function<void()> m_follower;
    bool m_bModified = false;
};
