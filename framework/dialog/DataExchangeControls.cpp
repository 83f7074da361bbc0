// Data exchange of controls, buttons and lists.
#include "DataExchange.h"

using namespace fieldkit::detail;

void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl) {
    if (rControl.m_hWnd != nullptr)
        return;
    const HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
    if (!rControl.SubclassWindow(hWndCtrl))
        AfxThrowNotSupportedException();
}

// --- Buttons ------------------------------------------------------------------------------

void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value) {
    const HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = AfxSendInt(hWndCtrl, BM_GETCHECK);
        return;
    }
    const bool bKnown = value >= BST_UNCHECKED && value <= BST_INDETERMINATE;
    AfxSendInt(hWndCtrl, BM_SETCHECK, bKnown ? static_cast<WPARAM>(value) : BST_UNCHECKED);
}

namespace {

BOOL IsRadioButton(HWND hWnd) {
    return (::SendMessage(hWnd, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
}

BOOL StartsGroup(HWND hWnd) {
    return (::GetWindowLong(hWnd, GWL_STYLE) & WS_GROUP) != 0;
}

} // namespace

void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value) {
    HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = -1;
    int nButton = 0;
    do {
        if (IsRadioButton(hWndCtrl)) {
            if (!pDX->m_bSaveAndValidate)
                AfxSendInt(hWndCtrl, BM_SETCHECK, nButton == value ? BST_CHECKED : BST_UNCHECKED);
            else if (AfxSendInt(hWndCtrl, BM_GETCHECK) != BST_UNCHECKED)
                value = nButton;
            ++nButton;
        }
        hWndCtrl = ::GetWindow(hWndCtrl, GW_HWNDNEXT);
    } while (hWndCtrl != nullptr && !StartsGroup(hWndCtrl));
}

// --- Lists --------------------------------------------------------------------------------

namespace {

void ExchangeIndex(CDataExchange* pDX, int nIDC, int& index, UINT nGetMessage, UINT nSetMessage) {
    const HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        index = AfxSendInt(hWndCtrl, nGetMessage);
    else
        AfxSendInt(hWndCtrl, nSetMessage, static_cast<WPARAM>(index));
}

} // namespace

void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index) {
    ExchangeIndex(pDX, nIDC, index, LB_GETCURSEL, LB_SETCURSEL);
}

void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index) {
    ExchangeIndex(pDX, nIDC, index, CB_GETCURSEL, CB_SETCURSEL);
}

void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value) {
    const HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate) {
        AfxSendPointer(hWndCtrl, LB_SELECTSTRING, static_cast<WPARAM>(-1), value.GetString());
        return;
    }
    value.Empty();
    const int nItem = AfxSendInt(hWndCtrl, LB_GETCURSEL);
    if (nItem == LB_ERR)
        return;
    const int nLength = AfxSendInt(hWndCtrl, LB_GETTEXTLEN, static_cast<WPARAM>(nItem));
    AfxSendPointer(hWndCtrl, LB_GETTEXT, static_cast<WPARAM>(nItem), value.GetBuffer(nLength));
    value.ReleaseBuffer();
}

void AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value) {
    if (pDX->m_bSaveAndValidate)
        return DDX_LBString(pDX, nIDC, value);
    const HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
    const int nItem =
        AfxSendPointer(hWndCtrl, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), value.GetString());
    if (nItem != LB_ERR)
        AfxSendInt(hWndCtrl, LB_SETCURSEL, static_cast<WPARAM>(nItem));
}

void AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value) {
    const HWND hWndCtrl = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = AfxControlText(hWndCtrl);
        return;
    }
    const int nItem =
        AfxSendPointer(hWndCtrl, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), value.GetString());
    if (nItem != CB_ERR)
        AfxSendInt(hWndCtrl, CB_SETCURSEL, static_cast<WPARAM>(nItem));
    else
        AfxSetControlText(hWndCtrl, value);
}

void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value) {
    const HWND hWndCtrl = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = AfxControlText(hWndCtrl);
        return;
    }
    constexpr auto kFromTop = static_cast<WPARAM>(-1);
    const int nItem = AfxSendPointer(hWndCtrl, CB_FINDSTRINGEXACT, kFromTop, value.GetString());
    if (nItem != CB_ERR)
        AfxSendInt(hWndCtrl, CB_SETCURSEL, static_cast<WPARAM>(nItem));
    const bool bHasEdit = (::GetWindowLong(hWndCtrl, GWL_STYLE) & CBS_DROPDOWNLIST) != CBS_DROPDOWNLIST;
    if (bHasEdit)
        AfxSetControlText(hWndCtrl, value); // the search ignores case, the text must not change
    else if (nItem == CB_ERR)
        AfxSendPointer(hWndCtrl, CB_SELECTSTRING, kFromTop, value.GetString());
}

// --- Positions and addresses ----------------------------------------------------------------

void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value) {
    const HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = ::GetScrollPos(hWndCtrl, SB_CTL);
    else
        ::SetScrollPos(hWndCtrl, SB_CTL, value, TRUE);
}

void AFXAPI DDX_Slider(CDataExchange* pDX, int nIDC, int& value) {
    const HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = AfxSendInt(hWndCtrl, TBM_GETPOS);
    else
        AfxSendInt(hWndCtrl, TBM_SETPOS, TRUE, value);
}

void AFXAPI DDX_IPAddress(CDataExchange* pDX, int nIDC, DWORD& value) {
    const HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate) {
        AfxSendInt(hWndCtrl, IPM_SETADDRESS, 0, static_cast<LPARAM>(value));
        return;
    }
    constexpr int kFields = 4;
    DWORD dwAddress = 0;
    const int nFilled = AfxSendPointer(hWndCtrl, IPM_GETADDRESS, 0, &dwAddress);
    if (nFilled != 0 && nFilled != kFields)
        AfxRefuse(pDX, AFX_IDP_PARSE_INT);
    value = dwAddress;
}
