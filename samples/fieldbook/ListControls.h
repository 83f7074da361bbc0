/// @file
/// The lists and the tree of this application: what each adds to its base class.
#pragma once

#include "PointBook.h"
#include "PointOrder.h"
#include "controls/SelectListCtrl.h"
#include "controls/nListBox.h"
#include "controls/nListCtrl.h"
#include "controls/nTreeCtrl.h"

/// The points with their coordinates, those used in computations in cyan. A tap on a heading
/// sorts by that column.
class CPointListCtrl : public CSelectListCtrl {
public:
    /// @param book must outlive the control
    explicit CPointListCtrl(const CPointBook& book) : m_book(book) {}
    /// Makes the columns and shows the points in the book's order.
    void Fill();

    DWORD GetItemAttribute(int nItem) override;

protected:
    afx_msg void OnColumnClick(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    void InsertRow(int nRow, size_t nPoint);
    /// Sets the rows, each an index of a point.
    void SetRows(const std::vector<size_t>& order);

    const CPointBook& m_book;
};

/// The lines of a result: what and how much. Nothing in it can be selected.
class CResultList : public CnListCtrl {
public:
    void Show(const std::vector<CString>& lines);

protected:
    void PreSubclassWindow() override;
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()
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
