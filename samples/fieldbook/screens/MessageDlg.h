/// @file
/// CMessageDlg: a text with OK, or a question with Yes and No.
#pragma once

#include "controls/nDialog.h"

/// A popup dialog in the font of the screens; a text that is too long for the screen is scrolled. The
/// buttons are always at the same place. It ends with IDOK, IDYES or IDNO, and with IDCANCEL when it is
/// closed.
class CMessageDlg : public CnDialog {
public:
    /// @param nDefault IDOK for a text; for a question the button that Enter means
    CMessageDlg(const CString& strText, UINT nCaptionId, int nDefault, CWnd* pParent);

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    afx_msg void OnAnswer(UINT nID);
    DECLARE_MESSAGE_MAP()

private:
    int LineHeight();
    void FitToText();

    CEdit m_text;
    CString m_strText;
    UINT m_nCaptionId;
    int m_nDefault;
};
