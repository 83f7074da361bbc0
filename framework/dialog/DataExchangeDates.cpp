// Data exchange of dates and times.
#include "DataExchange.h"

using namespace fieldkit::detail;

void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CTime& value) {
    const HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
    SYSTEMTIME time = {};
    if (!pDX->m_bSaveAndValidate) {
        if (value.GetAsSystemTime(time))
            AfxSendPointer(hWndCtrl, DTM_SETSYSTEMTIME, GDT_VALID, &time);
    } else if (AfxSendPointer(hWndCtrl, DTM_GETSYSTEMTIME, 0, &time) == GDT_VALID) {
        value = CTime(time);
    }
}

void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CString& value) {
    const HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = AfxControlText(hWndCtrl);
}

void AFXAPI DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, CTime& value) {
    const HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
    SYSTEMTIME time = {};
    if (!pDX->m_bSaveAndValidate) {
        if (value.GetAsSystemTime(time))
            AfxSendPointer(hWndCtrl, MCM_SETCURSEL, 0, &time);
    } else if (AfxSendPointer(hWndCtrl, MCM_GETCURSEL, 0, &time)) {
        value = CTime(time.wYear, time.wMonth, time.wDay, 0, 0, 0);
    }
}

namespace {

/// Sets the control's range, or refuses what lies outside.
void CheckDate(CDataExchange* pDX, CTime value, const CTime* pMin, const CTime* pMax, UINT nSetRange) {
    if (pDX->m_bSaveAndValidate) {
        if ((pMin == nullptr || value >= *pMin) && (pMax == nullptr || value <= *pMax))
            return;
        const auto text = [](const CTime* pTime) {
            return pTime != nullptr ? pTime->Format(L"%x") : CString(L"-");
        };
        AfxRefuse(pDX, AFX_IDP_PARSE_INT_RANGE, text(pMin), text(pMax));
    }
    SYSTEMTIME limits[2] = {};
    WPARAM wLimits = 0;
    if (pMin != nullptr && pMin->GetAsSystemTime(limits[0]))
        wLimits |= GDTR_MIN;
    if (pMax != nullptr && pMax->GetAsSystemTime(limits[1]))
        wLimits |= GDTR_MAX;
    AfxSendPointer(pDX->PrepareCtrl(static_cast<int>(pDX->m_idLastControl)), nSetRange, wLimits, limits);
}

} // namespace

void AFXAPI DDV_MinMaxDateTime(CDataExchange* pDX, CTime& refValue, const CTime* pMinRange,
                               const CTime* pMaxRange) {
    CheckDate(pDX, refValue, pMinRange, pMaxRange, DTM_SETRANGE);
}

void AFXAPI DDV_MinMaxMonth(CDataExchange* pDX, CTime& refValue, const CTime* pMinRange,
                            const CTime* pMaxRange) {
    CheckDate(pDX, refValue, pMinRange, pMaxRange, MCM_SETRANGE);
}
