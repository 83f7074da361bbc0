// Data exchange of text and numbers, and the rules for them.
#include "DataExchange.h"
#include "DataExchangeNumber.h"

using namespace fieldkit::detail;

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value) {
    const HWND hWndCtrl = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = AfxControlText(hWndCtrl);
    else
        AfxSetControlText(hWndCtrl, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR value, int nMaxLen) {
    const HWND hWndCtrl = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        ::GetWindowText(hWndCtrl, value, nMaxLen);
    else
        AfxSetControlText(hWndCtrl, value);
}

namespace {

template <class Number>
void ExchangeNumber(CDataExchange* pDX, int nIDC, Number& value, UINT nIDPrompt) {
    const HWND hWndCtrl = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate) {
        AfxSetControlText(hWndCtrl, AfxNumberText(value));
        return;
    }
    const auto number = AfxParseNumber<Number>(AfxControlText(hWndCtrl));
    if (!number)
        AfxRefuse(pDX, nIDPrompt);
    value = *number;
}

} // namespace

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value) {
    ExchangeNumber(pDX, nIDC, value, AFX_IDP_PARSE_BYTE);
}
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value) {
    ExchangeNumber(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value) {
    ExchangeNumber(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value) {
    ExchangeNumber(pDX, nIDC, value, AFX_IDP_PARSE_UINT);
}
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value) {
    ExchangeNumber(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value) {
    ExchangeNumber(pDX, nIDC, value, AFX_IDP_PARSE_UINT);
}
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LONGLONG& value) {
    ExchangeNumber(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, ULONGLONG& value) {
    ExchangeNumber(pDX, nIDC, value, AFX_IDP_PARSE_UINT);
}
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value) {
    ExchangeNumber(pDX, nIDC, value, AFX_IDP_PARSE_REAL);
}
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value) {
    ExchangeNumber(pDX, nIDC, value, AFX_IDP_PARSE_REAL);
}

// --- Rules --------------------------------------------------------------------------------

namespace {

BOOL IsComboBox(HWND hWnd) {
    TCHAR szClass[32] = {};
    ::GetClassName(hWnd, szClass, 32);
    return ::lstrcmpi(szClass, WC_COMBOBOX) == 0;
}

} // namespace

void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars) {
    if (pDX->m_bSaveAndValidate) {
        if (value.GetLength() > nChars)
            AfxRefuse(pDX, AFX_IDP_PARSE_STRING_SIZE, AfxNumberText(nChars));
        return;
    }
    const HWND hWndCtrl = ::GetDlgItem(pDX->m_pDlgWnd->m_hWnd, static_cast<int>(pDX->m_idLastControl));
    if (hWndCtrl == nullptr || !pDX->m_bEditLastControl)
        return;
    ::SendMessage(hWndCtrl, IsComboBox(hWndCtrl) ? CB_LIMITTEXT : EM_LIMITTEXT, static_cast<WPARAM>(nChars),
                  0);
}

namespace {

template <class Number>
void CheckRange(CDataExchange* pDX, Number value, Number minVal, Number maxVal, UINT nIDPrompt) {
    // Written so that a value that is not a number is refused as well.
    if (pDX->m_bSaveAndValidate && !(value >= minVal && value <= maxVal))
        AfxRefuse(pDX, nIDPrompt, AfxNumberText(minVal), AfxNumberText(maxVal));
}

} // namespace

void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal) {
    CheckRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_INT_RANGE);
}
void AFXAPI DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal) {
    CheckRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_INT_RANGE);
}
void AFXAPI DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal) {
    CheckRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_INT_RANGE);
}
void AFXAPI DDV_MinMaxUnsigned(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal) {
    CheckRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_INT_RANGE);
}
void AFXAPI DDV_MinMaxLongLong(CDataExchange* pDX, LONGLONG value, LONGLONG minVal, LONGLONG maxVal) {
    CheckRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_INT_RANGE);
}
void AFXAPI DDV_MinMaxULongLong(CDataExchange* pDX, ULONGLONG value, ULONGLONG minVal, ULONGLONG maxVal) {
    CheckRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_INT_RANGE);
}
void AFXAPI DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal) {
    CheckRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_INT_RANGE);
}
void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal) {
    CheckRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_INT_RANGE);
}
void AFXAPI DDV_MinMaxDWord(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal) {
    CheckRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_INT_RANGE);
}
void AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, const float& value, float minVal, float maxVal) {
    CheckRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_REAL_RANGE);
}
void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double minVal, double maxVal) {
    CheckRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_REAL_RANGE);
}
void AFXAPI DDV_MinMaxSlider(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal) {
    CheckRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_INT_RANGE);
    if (pDX->m_bSaveAndValidate)
        return;
    const HWND hWndCtrl = pDX->PrepareCtrl(static_cast<int>(pDX->m_idLastControl));
    AfxSendInt(hWndCtrl, TBM_SETRANGEMIN, FALSE, static_cast<LPARAM>(minVal));
    AfxSendInt(hWndCtrl, TBM_SETRANGEMAX, TRUE, static_cast<LPARAM>(maxVal));
}
