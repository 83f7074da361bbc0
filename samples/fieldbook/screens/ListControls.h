/// @file
/// The lists and the tree of this application: what each adds to its base class.
#pragma once

#include "points/PointBook.h"
#include "points/PointOrder.h"
#include "controls/SelectListCtrl.h"
#include "controls/nListBox.h"
#include "controls/nTreeCtrl.h"

/// The points with their coordinates, those used in computations in cyan. A tap on a heading
/// sorts by that column, a second one turns the order round; long sorting can be stopped.
///
/// It has the style LVS_OWNERDATA: no row is kept in the control, so that 100,000 are no more work
/// than ten.
class CPointListCtrl : public CSelectListCtrl {
public:
    /// @param book must outlive the control
    CPointListCtrl(const CPointBook& book, int nDecimals) : m_book(book), m_nDecimals(nDecimals) {}
    /// Makes the columns and shows the points in the book's order.
    void Fill();
    /// Shows one change to the book, without sorting all other points.
    void Follow(const CPointChange& change);
    /// Shows those points only that have a part in their names, in capitals or not.
    void ShowOnly(const CString& strPart);
    /// Selects the row of a point and scrolls to it.
    void Select(const CString& strName);
    /// @return the point whose row is selected; null if none is. Valid until the book changes.
    const CNamedPoint* GetSelectedPoint() const;

    DWORD GetItemAttribute(int nItem) override;

protected:
    afx_msg void OnColumnClick(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnGetDispInfo(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    bool Arrange(const CPointOrder& by, const CString& strPart);
    void ShowRows();
    /// @return null if there is none: the book may have changed before the rows follow
    const CNamedPoint* PointAt(int nRow) const;
    CString TextOf(const CNamedPoint& point, PointColumn column) const;

    CImageList m_rowImages;
    const CPointBook& m_book;
    int m_nDecimals;
    std::vector<size_t> m_order; ///< The rows, each the place of a point in the book.
    CPointOrder m_by;            ///< In which the rows stand.
    CString m_strPart;           ///< Of the names that are shown, in capitals.
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
