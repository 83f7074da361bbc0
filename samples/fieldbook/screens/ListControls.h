/// @file
/// The lists and the tree of this application: what each adds to its base class.
#pragma once

#include "points/PointBook.h"
#include "points/PointOrder.h"
#include "controls/SelectListCtrl.h"
#include "controls/nListBox.h"
#include "controls/nTreeCtrl.h"

#include <optional>

/// The points with their coordinates, those used in computations in cyan. A tap on a heading
/// sorts by that column.
class CPointListCtrl : public CSelectListCtrl {
public:
    /// @param book must outlive the control
    explicit CPointListCtrl(const CPointBook& book) : m_book(book) {}
    /// Makes the columns and shows the points in the book's order.
    void Fill();
    /// Shows the points as they are now, in the order that the user has chosen.
    void Refresh();
    /// @return the point whose row is selected; null if none is. Valid until the book changes.
    const CNamedPoint* GetSelectedPoint() const;

    DWORD GetItemAttribute(int nItem) override;

protected:
    afx_msg void OnColumnClick(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    void InsertRow(int nRow, size_t nPoint);
    /// The rows, each an index of a point.
    std::vector<size_t> Order() const;

    const CPointBook& m_book;
    std::optional<PointColumn> m_column; ///< By which the rows are sorted; at first by none.
};

/// The results of the day. A tap on a title opens and closes it, not only one on its small box.
class CJournalTree : public CnTreeCtrl {
protected:
    void PreSubclassWindow() override;
    afx_msg BOOL OnClick(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()
};

/// A few choices in rows that a pen hits; each choice can be heard.
class CChoiceList : public CnListBox {
protected:
    void PreSubclassWindow() override;
    afx_msg BOOL OnSelChange();
    DECLARE_MESSAGE_MAP()
};
