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

// --- The same with CTime ------------------------------------------------------------------

namespace {

CTime ToTime(const SYSTEMTIME& time) {
    try {
        return CTime(time);
    } catch (CInvalidArgException* e) { // the control knows more years
        e->Delete();
        return CTime();
    }
}

/// What a control takes for a time; null for null.
class CSystemTime {
public:
    explicit CSystemTime(const CTime* pTime) : m_bThere(pTime != nullptr && pTime->GetAsSystemTime(m_time)) {}
    operator const SYSTEMTIME*() const { return m_bThere ? &m_time : nullptr; }

private:
    SYSTEMTIME m_time = {};
    bool m_bThere;
};

/// Asks for two times.
template <class Ask>
auto AskTimes(CTime* pFirst, CTime* pSecond, Ask ask) {
    SYSTEMTIME first = {};
    SYSTEMTIME second = {};
    const auto result = ask(&first, &second);
    if (pFirst != nullptr)
        *pFirst = ToTime(first);
    if (pSecond != nullptr)
        *pSecond = ToTime(second);
    return result;
}

/// Asks for one.
template <class Ask>
auto AskTime(CTime& time, Ask ask) {
    SYSTEMTIME systemTime = {};
    const auto result = ask(&systemTime);
    time = ToTime(systemTime);
    return result;
}

} // namespace

BOOL CMonthCalCtrl::GetCurSel(CTime& refDateTime) const {
    return AskTime(refDateTime, [this](SYSTEMTIME* p) { return GetCurSel(p); });
}
BOOL CMonthCalCtrl::SetCurSel(const CTime& refDateTime) {
    return SetCurSel(static_cast<const SYSTEMTIME*>(CSystemTime(&refDateTime)));
}
BOOL CMonthCalCtrl::GetSelRange(CTime& refMinRange, CTime& refMaxRange) const {
    return AskTimes(&refMinRange, &refMaxRange,
                    [this](SYSTEMTIME* p, SYSTEMTIME* q) { return GetSelRange(p, q); });
}
BOOL CMonthCalCtrl::SetSelRange(const CTime& refMinRange, const CTime& refMaxRange) {
    return SetSelRange(CSystemTime(&refMinRange), CSystemTime(&refMaxRange));
}
DWORD CMonthCalCtrl::GetRange(CTime* pMinRange, CTime* pMaxRange) const {
    return AskTimes(pMinRange, pMaxRange, [this](SYSTEMTIME* p, SYSTEMTIME* q) { return GetRange(p, q); });
}
BOOL CMonthCalCtrl::SetRange(const CTime* pMinRange, const CTime* pMaxRange) {
    return SetRange(CSystemTime(pMinRange), CSystemTime(pMaxRange));
}
int CMonthCalCtrl::GetMonthRange(CTime& refMinRange, CTime& refMaxRange, DWORD dwFlags) const {
    return AskTimes(&refMinRange, &refMaxRange,
                    [&](SYSTEMTIME* p, SYSTEMTIME* q) { return GetMonthRange(p, q, dwFlags); });
}
BOOL CMonthCalCtrl::GetToday(CTime& refDateTime) const {
    return AskTime(refDateTime, [this](SYSTEMTIME* p) { return GetToday(p); });
}
void CMonthCalCtrl::SetToday(const CTime& refDateTime) {
    SetToday(CSystemTime(&refDateTime));
}

DWORD CDateTimeCtrl::GetTime(CTime& timeDest) const {
    return AskTime(timeDest, [this](SYSTEMTIME* p) { return GetTime(p); });
}
BOOL CDateTimeCtrl::SetTime(const CTime* pTimeNew) {
    return SetTime(CSystemTime(pTimeNew));
}
DWORD CDateTimeCtrl::GetRange(CTime* pMinRange, CTime* pMaxRange) const {
    return AskTimes(pMinRange, pMaxRange, [this](SYSTEMTIME* p, SYSTEMTIME* q) { return GetRange(p, q); });
}
BOOL CDateTimeCtrl::SetRange(const CTime* pMinRange, const CTime* pMaxRange) {
    return SetRange(CSystemTime(pMinRange), CSystemTime(pMaxRange));
}
