// Dates and times.
#include "DrawnByOwner.h"

using namespace fieldkit::detail;

IMPLEMENT_DYNAMIC(CMonthCalCtrl, CWnd)
IMPLEMENT_DYNAMIC(CDateTimeCtrl, CWnd)

namespace {

/// Reads a pair of times; those that are not wanted stay out.
DWORD GetPair(HWND hWnd, UINT message, LPSYSTEMTIME pFirst, LPSYSTEMTIME pSecond) {
    SYSTEMTIME times[2] = {};
    const auto dwResult = static_cast<DWORD>(AfxSendPointer(hWnd, message, 0, times));
    if (pFirst != nullptr)
        *pFirst = times[0];
    if (pSecond != nullptr)
        *pSecond = times[1];
    return dwResult;
}

/// Sets both limits of a range, or one, or none.
BOOL SetLimits(HWND hWnd, UINT message, const SYSTEMTIME* pMin, const SYSTEMTIME* pMax) {
    SYSTEMTIME times[2] = {};
    WPARAM wLimits = 0;
    if (pMin != nullptr) {
        times[0] = *pMin;
        wLimits |= GDTR_MIN;
    }
    if (pMax != nullptr) {
        times[1] = *pMax;
        wLimits |= GDTR_MAX;
    }
    return AfxSendPointer(hWnd, message, wLimits, times);
}

} // namespace

// --- Calendars ----------------------------------------------------------------------------

BOOL CMonthCalCtrl::Create(DWORD dwStyle, const POINT& pt, CWnd* pParentWnd, UINT nID) {
    return Create(dwStyle, CRect(pt, CSize(0, 0)), pParentWnd, nID) && SizeMinReq();
}

BOOL CMonthCalCtrl::SizeMinReq(BOOL bRepaint) {
    CRect rect;
    if (!GetMinReqRect(rect))
        return FALSE;
    const UINT nRedraw = bRepaint ? 0 : SWP_NOREDRAW;
    return SetWindowPos(nullptr, 0, 0, rect.Width(), rect.Height(),
                        SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | nRedraw);
}

BOOL CMonthCalCtrl::GetSelRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const {
    return static_cast<BOOL>(GetPair(m_hWnd, MCM_GETSELRANGE, pMinRange, pMaxRange));
}
BOOL CMonthCalCtrl::SetSelRange(const SYSTEMTIME* pMinRange, const SYSTEMTIME* pMaxRange) {
    const SYSTEMTIME times[] = {*pMinRange, *pMaxRange};
    return AfxSendPointer(m_hWnd, MCM_SETSELRANGE, 0, times);
}
DWORD CMonthCalCtrl::GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const {
    return GetPair(m_hWnd, MCM_GETRANGE, pMinRange, pMaxRange);
}
BOOL CMonthCalCtrl::SetRange(const SYSTEMTIME* pMinRange, const SYSTEMTIME* pMaxRange) {
    return SetLimits(m_hWnd, MCM_SETRANGE, pMinRange, pMaxRange);
}

int CMonthCalCtrl::GetMonthRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange, DWORD dwFlags) const {
    SYSTEMTIME times[2] = {};
    const int nMonths = AfxSendPointer(m_hWnd, MCM_GETMONTHRANGE, dwFlags, times);
    *pMinRange = times[0];
    *pMaxRange = times[1];
    return nMonths;
}

int CMonthCalCtrl::GetFirstDayOfWeek(BOOL* pbLocal) const {
    const int nAnswer = AfxSendInt(m_hWnd, MCM_GETFIRSTDAYOFWEEK);
    if (pbLocal != nullptr)
        *pbLocal = HIWORD(nAnswer);
    return LOWORD(nAnswer);
}

BOOL CMonthCalCtrl::SetFirstDayOfWeek(int nDay, int* lpnOld) {
    const int nAnswer = AfxSendInt(m_hWnd, MCM_SETFIRSTDAYOFWEEK, 0, nDay);
    if (lpnOld != nullptr)
        *lpnOld = LOWORD(nAnswer);
    return HIWORD(nAnswer);
}

// --- Fields -------------------------------------------------------------------------------

DWORD CDateTimeCtrl::GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const {
    return GetPair(m_hWnd, DTM_GETRANGE, pMinRange, pMaxRange);
}
BOOL CDateTimeCtrl::SetRange(const SYSTEMTIME* pMinRange, const SYSTEMTIME* pMaxRange) {
    return SetLimits(m_hWnd, DTM_SETRANGE, pMinRange, pMaxRange);
}
CMonthCalCtrl* CDateTimeCtrl::GetMonthCalCtrl() const {
    return AskForWindow<CMonthCalCtrl>(m_hWnd, DTM_GETMONTHCAL);
}
CFont* CDateTimeCtrl::GetMonthCalFont() const {
    return CFont::FromHandle(AfxSendHandle(m_hWnd, DTM_GETMCFONT, 0, HFONT()));
}
