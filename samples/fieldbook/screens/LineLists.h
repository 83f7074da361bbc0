/// @file
/// Lists of result lines: what and how much. Nothing in them can be selected.
#pragma once

#include "screens/Report.h"
#include "controls/SelectListCtrl.h"
#include "controls/nListCtrl.h"

/// The lines of a result in the journal.
class CResultList : public CnListCtrl {
public:
    void Show(const std::vector<CString>& lines);

protected:
    void PreSubclassWindow() override;
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()
};

/// A report: its solutions, of which one is chosen, and notes. The rows of the solution that is
/// chosen are in cyan; a tap on a row of another one chooses that.
class CReportList : public CSelectListCtrl {
public:
    void Show(const CReport& report, const CSettings& settings);
    /// @return the index of the solution; 0 at first
    size_t GetChosen() const { return m_nChosen; }

    DWORD GetItemAttribute(int nItem) override;

protected:
    void PreSubclassWindow() override;
    afx_msg void OnClick(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    static constexpr size_t kNoSolution = static_cast<size_t>(-1);

    size_t m_nChosen = 0;
};
