// Dialog data exchange: the run itself, and refusing what the user has entered.
#include "DataExchange.h"

using namespace fieldkit::detail;

CDataExchange::CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd) {}

HWND CDataExchange::PrepareCtrl(int nIDC) {
    const HWND hWndCtrl = ::GetDlgItem(m_pDlgWnd->m_hWnd, nIDC);
    if (hWndCtrl == nullptr)
        AfxThrowNotSupportedException();
    m_idLastControl = static_cast<UINT>(nIDC);
    m_bEditLastControl = FALSE;
    return hWndCtrl;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC) {
    const HWND hWndCtrl = PrepareCtrl(nIDC);
    m_bEditLastControl = TRUE;
    return hWndCtrl;
}

void CDataExchange::Fail() {
    const HWND hWndCtrl = ::GetDlgItem(m_pDlgWnd->m_hWnd, static_cast<int>(m_idLastControl));
    if (m_bSaveAndValidate && hWndCtrl != nullptr) {
        ::SetFocus(hWndCtrl);
        // A combo box selects its text itself when it gets the focus.
        if (m_bEditLastControl)
            ::SendMessage(hWndCtrl, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

void fieldkit::detail::AfxRefuse(CDataExchange* pDX, UINT nIDPrompt, LPCTSTR lpszFirst, LPCTSTR lpszSecond) {
    CString strPrompt;
    strPrompt.LoadString(nIDPrompt);
    strPrompt.Replace(L"%1", lpszFirst);
    strPrompt.Replace(L"%2", lpszSecond);
    AfxMessageBox(strPrompt, MB_OK | MB_ICONEXCLAMATION, nIDPrompt);
    pDX->Fail();
}

CString fieldkit::detail::AfxControlText(HWND hWndCtrl) {
    CString str;
    const int nLength = ::GetWindowTextLength(hWndCtrl);
    ::GetWindowText(hWndCtrl, str.GetBuffer(nLength), nLength + 1);
    str.ReleaseBuffer();
    return str;
}

void fieldkit::detail::AfxSetControlText(HWND hWndCtrl, const CString& str) {
    // Spares a flicker, and the user the loss of the caret's place.
    if (AfxControlText(hWndCtrl) != str)
        ::SetWindowText(hWndCtrl, str);
}
