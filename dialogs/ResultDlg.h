/// @file
/// CResultDlg: shows a message and a list of result lines.
#pragma once

#include "controls/nDialog.h"

/// A dialog with a list of lines, a message below it, OK and cancel.
class FIELDKIT_API CResultDlg : public CnDialog {
public:
    /// With texts: a popup.
    CResultDlg(const wchar_t* pszMessage, const wchar_t* pszCaption, CWnd* pParent);
    /// With string resource ids, loaded at once: full screen.
    CResultDlg(int nMessageId, int nCaptionId, CWnd* pParent);
    ~CResultDlg() override;

    /// Appends a line. Call before DoModal.
    void AddString(const wchar_t* psz);

protected:
    BOOL OnInitDialog() override;

private:
    static constexpr int kLineBlock = 10;

    void FillList(CListBox& list) const;

    CString m_strMessage;
    CString m_strCaption;
    CStringList m_lines{kLineBlock};
};
