/// @file
/// Dates and times. Included by afxcmn.h.
///
/// A member that is one message to the control means what that message means, and has its result. Where a
/// CTime takes the place of a SYSTEMTIME, a time that it cannot hold is written as its beginning, 1970.
#pragma once

#include "afxwin.h"

/// A calendar. Dates are SYSTEMTIME structures, whose time of day is ignored.
class AFX_CORE CMonthCalCtrl : public CWnd {
    DECLARE_DYNAMIC(CMonthCalCtrl)
public:
    CMonthCalCtrl() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    ///@{
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(MONTHCAL_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    /// As large as one month needs.
    virtual BOOL Create(DWORD dwStyle, const POINT& pt, CWnd* pParentWnd, UINT nID);
    ///@}
    using CWnd::Create;

    /// The selected day, or the first and the last of an MCS_MULTISELECT calendar.
    ///@{
    BOOL GetCurSel(LPSYSTEMTIME pDateTime) const {
        return AfxSendPointer(m_hWnd, MCM_GETCURSEL, 0, pDateTime);
    }
    BOOL SetCurSel(const SYSTEMTIME* pDateTime) {
        return AfxSendPointer(m_hWnd, MCM_SETCURSEL, 0, pDateTime);
    }
    BOOL GetCurSel(CTime& refDateTime) const;
    BOOL SetCurSel(const CTime& refDateTime);
    BOOL GetSelRange(CTime& refMinRange, CTime& refMaxRange) const;
    BOOL SetSelRange(const CTime& refMinRange, const CTime& refMaxRange);
    BOOL GetSelRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const;
    BOOL SetSelRange(const SYSTEMTIME* pMinRange, const SYSTEMTIME* pMaxRange);
    int GetMaxSelCount() const { return AfxSendInt(m_hWnd, MCM_GETMAXSELCOUNT); }
    BOOL SetMaxSelCount(int nMax) {
        return AfxSendInt(m_hWnd, MCM_SETMAXSELCOUNT, static_cast<WPARAM>(nMax));
    }
    ///@}
    /// The first and the last day that can be selected; null leaves that end open.
    /// @return GDTR_...: the limits that there are
    ///@{
    DWORD GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const;
    DWORD GetRange(CTime* pMinRange, CTime* pMaxRange) const;
    BOOL SetRange(const SYSTEMTIME* pMinRange, const SYSTEMTIME* pMaxRange);
    BOOL SetRange(const CTime* pMinRange, const CTime* pMaxRange);
    ///@}
    /// @param dwFlags GMR_... @return the months
    ///@{
    int GetMonthRange(CTime& refMinRange, CTime& refMaxRange, DWORD dwFlags) const;
    int GetMonthRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange, DWORD dwFlags) const;
    ///@}
    ///@{
    BOOL GetToday(CTime& refDateTime) const;
    void SetToday(const CTime& refDateTime);
    BOOL GetToday(LPSYSTEMTIME pDateTime) const { return AfxSendPointer(m_hWnd, MCM_GETTODAY, 0, pDateTime); }
    void SetToday(const SYSTEMTIME* pDateTime) { AfxSendPointer(m_hWnd, MCM_SETTODAY, 0, pDateTime); }
    /// @param nMonths as many as GetMonthRange tells with GMR_DAYSTATE; a bit a day
    BOOL SetDayState(int nMonths, LPMONTHDAYSTATE pStates) {
        return AfxSendPointer(m_hWnd, MCM_SETDAYSTATE, static_cast<WPARAM>(nMonths), pStates);
    }
    /// @param pbLocal receives whether it differs from the user's setting; may be null
    int GetFirstDayOfWeek(BOOL* pbLocal = nullptr) const;
    /// @param nDay 0 is Monday @param lpnOld receives the previous day; may be null
    BOOL SetFirstDayOfWeek(int nDay, int* lpnOld = nullptr);
    COLORREF GetColor(int nRegion) const {
        return static_cast<COLORREF>(AfxSendInt(m_hWnd, MCM_GETCOLOR, static_cast<WPARAM>(nRegion)));
    }
    COLORREF SetColor(int nRegion, COLORREF ref) {
        return static_cast<COLORREF>(
            AfxSendInt(m_hWnd, MCM_SETCOLOR, static_cast<WPARAM>(nRegion), static_cast<LPARAM>(ref)));
    }
    int GetMonthDelta() const { return AfxSendInt(m_hWnd, MCM_GETMONTHDELTA); }
    int SetMonthDelta(int iDelta) {
        return AfxSendInt(m_hWnd, MCM_SETMONTHDELTA, static_cast<WPARAM>(iDelta));
    }
    DWORD HitTest(PMCHITTESTINFO pMCHitTest) {
        return static_cast<DWORD>(AfxSendPointer(m_hWnd, MCM_HITTEST, 0, pMCHitTest));
    }
    BOOL GetMinReqRect(RECT* pRect) const { return AfxSendPointer(m_hWnd, MCM_GETMINREQRECT, 0, pRect); }
    /// Gives the control the size that one month needs.
    BOOL SizeMinReq(BOOL bRepaint = TRUE);
    ///@}
};

/// A field for a date or a time.
class AFX_CORE CDateTimeCtrl : public CWnd {
    DECLARE_DYNAMIC(CDateTimeCtrl)
public:
    CDateTimeCtrl() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(DATETIMEPICK_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    using CWnd::Create;

    /// Setting null empties a DTS_SHOWNONE field. @return getting: GDT_VALID or GDT_NONE
    ///@{
    DWORD GetTime(LPSYSTEMTIME pTimeDest) const {
        return static_cast<DWORD>(AfxSendPointer(m_hWnd, DTM_GETSYSTEMTIME, 0, pTimeDest));
    }
    BOOL SetTime(const SYSTEMTIME* pTimeNew = nullptr) {
        const SYSTEMTIME none = {}; // not every system takes null
        return AfxSendPointer(m_hWnd, DTM_SETSYSTEMTIME, pTimeNew != nullptr ? GDT_VALID : GDT_NONE,
                              pTimeNew != nullptr ? pTimeNew : &none);
    }
    DWORD GetTime(CTime& timeDest) const;
    BOOL SetTime(const CTime* pTimeNew);
    ///@}
    /// The earliest and the latest time; null leaves that end open, or is not wanted.
    /// @return getting: GDTR_...: the limits that there are
    ///@{
    DWORD GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const;
    DWORD GetRange(CTime* pMinRange, CTime* pMaxRange) const;
    BOOL SetRange(const SYSTEMTIME* pMinRange, const SYSTEMTIME* pMaxRange);
    BOOL SetRange(const CTime* pMinRange, const CTime* pMaxRange);
    ///@}
    /// @param pstrFormat as "yyyy'/'MM'/'dd"; null is the format of the style
    BOOL SetFormat(LPCTSTR pstrFormat) { return AfxSendPointer(m_hWnd, DTM_SETFORMAT, 0, pstrFormat); }
    /// The calendar that drops down. Its control is there only while it is open.
    ///@{
    CMonthCalCtrl* GetMonthCalCtrl() const;
    COLORREF GetMonthCalColor(int iColor) const {
        return static_cast<COLORREF>(AfxSendInt(m_hWnd, DTM_GETMCCOLOR, static_cast<WPARAM>(iColor)));
    }
    COLORREF SetMonthCalColor(int iColor, COLORREF ref) {
        return static_cast<COLORREF>(
            AfxSendInt(m_hWnd, DTM_SETMCCOLOR, static_cast<WPARAM>(iColor), static_cast<LPARAM>(ref)));
    }
    CFont* GetMonthCalFont() const;
    void SetMonthCalFont(HFONT hFont, BOOL bRedraw = TRUE) {
        ::SendMessage(m_hWnd, DTM_SETMCFONT, reinterpret_cast<WPARAM>(hFont), bRedraw);
    }
    void CloseMonthCal() { AfxSendInt(m_hWnd, DTM_CLOSEMONTHCAL); }
    BOOL GetIdealSize(LPSIZE psize) const { return AfxSendPointer(m_hWnd, DTM_GETIDEALSIZE, 0, psize); }
    ///@}
};
