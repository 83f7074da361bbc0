#include "screens/MessageDlg.h"

#include "screens/Resource.h"
#include "screens/Text.h"

#include <algorithm>

// clang-format off
BEGIN_MESSAGE_MAP(CMessageDlg, CnDialog)
    ON_COMMAND_RANGE(IDYES, IDNO, &CMessageDlg::OnAnswer)
END_MESSAGE_MAP()
// clang-format on

CMessageDlg::CMessageDlg(const CString& strText, UINT nCaptionId, int nDefault, CWnd* pParent)
    : CnDialog(IDD_MESSAGE, pParent), m_strText(strText), m_nCaptionId(nCaptionId), m_nDefault(nDefault) {
    SetOption(OptionPopup);
    m_strText.Replace(L"\n", L"\r\n"); // as an edit field breaks lines
}

void CMessageDlg::DoDataExchange(CDataExchange* pDX) {
    CnDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_MESSAGE, m_text);
}

BOOL CMessageDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    SetWindowText(Text(m_nCaptionId));
    m_text.SetWindowText(m_strText);
    const bool bQuestion = m_nDefault != IDOK;
    GetDlgItem(IDOK)->ShowWindow(bQuestion ? SW_HIDE : SW_SHOW);
    for (const int nId : {IDYES, IDNO})
        GetDlgItem(nId)->ShowWindow(bQuestion ? SW_SHOW : SW_HIDE);
    FitToText();
    SetDefID(static_cast<UINT>(m_nDefault));
    ShowWindow(SW_SHOW);
    GetDlgItem(m_nDefault)->SetFocus();
    return FALSE;
}

int CMessageDlg::LineHeight() {
    CClientDC dc(&m_text);
    CFont* const pOld = dc.SelectObject(m_text.GetFont());
    const int nHeight = dc.GetTextExtent(L"X", 1).cy;
    dc.SelectObject(pOld);
    return nHeight;
}

/// The dialog grows upwards.
void CMessageDlg::FitToText() {
    const int nBottom = ::GetSystemMetrics(SM_CYSCREEN) * 3 / 4;
    CRect window, field;
    GetWindowRect(window);
    m_text.GetWindowRect(field);
    const int nMore = m_text.GetLineCount() * LineHeight() - field.Height();
    const int nMost = nBottom - window.Height();
    m_text.ShowScrollBar(SB_VERT, nMore > nMost);
    const int nGrown = std::min(nMore, nMost);
    m_text.SetWindowPos(nullptr, 0, 0, field.Width(), field.Height() + nGrown, SWP_NOMOVE | SWP_NOZORDER);
    for (const int nId : {IDOK, IDYES, IDNO}) {
        CRect button;
        GetDlgItem(nId)->GetWindowRect(button);
        ScreenToClient(button);
        GetDlgItem(nId)->SetWindowPos(nullptr, button.left, button.top + nGrown, 0, 0,
                                      SWP_NOSIZE | SWP_NOZORDER);
    }
    const int nHeight = window.Height() + nGrown;
    const int nLeft = (::GetSystemMetrics(SM_CXSCREEN) - window.Width()) / 2;
    SetWindowPos(nullptr, nLeft, nBottom - nHeight, window.Width(), nHeight, SWP_NOZORDER);
}

void CMessageDlg::OnAnswer(UINT nID) {
    EndDialog(static_cast<int>(nID));
}
