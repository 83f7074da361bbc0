/// @file
/// CPointEditDlg: a point of the book, changed.
#pragma once

#include "screens/PointEntryDlg.h"

/// The screen of CPointEntryDlg with a point that is in the book. It closes with IDOK when the
/// point has been changed.
class CPointEditDlg : public CPointEntryDlg {
public:
    /// @param strName the point, which must be in the book
    CPointEditDlg(CJob& job, const CString& strName, CWnd* pParent);

protected:
    BOOL OnInitDialog() override;
    /// The title bar's OK takes the point over as the button does.
    void OnOK() override;
    bool Take(const CNamedPoint& point) override;

private:
    CString m_strName;
};
