/// @file
/// Controls that show or take a number: progress bar, slider, hot key, address, animation.
/// Included by afxcmn.h.
///
/// A member that is one message to the control means what that message means, and has its result.
#pragma once

#include "afxbar_.h"

/// A bar that fills as work goes on.
class AFX_CORE CProgressCtrl : public CWnd {
    DECLARE_DYNAMIC(CProgressCtrl)
public:
    CProgressCtrl() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(PROGRESS_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    using CWnd::Create;

    /// Both ends of the range, at first 0 and 100; 16 bits by SetRange.
    ///@{
    void SetRange(short nLower, short nUpper) { SetRange32(nLower, nUpper); }
    void SetRange32(int nLower, int nUpper) {
        AfxSendInt(m_hWnd, PBM_SETRANGE32, static_cast<WPARAM>(nLower), nUpper);
    }
    void GetRange(int& nLower, int& nUpper) const;
    ///@}
    /// The position; setters return the previous one, StepIt moves by the step (at first 10).
    ///@{
    int GetPos() const { return AfxSendInt(m_hWnd, PBM_GETPOS); }
    int SetPos(int nPos) { return AfxSendInt(m_hWnd, PBM_SETPOS, static_cast<WPARAM>(nPos)); }
    int OffsetPos(int nPos) { return AfxSendInt(m_hWnd, PBM_DELTAPOS, static_cast<WPARAM>(nPos)); }
    int SetStep(int nStep) { return AfxSendInt(m_hWnd, PBM_SETSTEP, static_cast<WPARAM>(nStep)); }
    int GetStep() const { return AfxSendInt(m_hWnd, PBM_GETSTEP); }
    int StepIt() { return AfxSendInt(m_hWnd, PBM_STEPIT); }
    ///@}
    /// The look; setters of colours return the previous one.
    ///@{
    COLORREF SetBarColor(COLORREF clrBar) {
        return static_cast<COLORREF>(AfxSendInt(m_hWnd, PBM_SETBARCOLOR, 0, static_cast<LPARAM>(clrBar)));
    }
    COLORREF GetBarColor() const { return static_cast<COLORREF>(AfxSendInt(m_hWnd, PBM_GETBARCOLOR)); }
    COLORREF SetBkColor(COLORREF clrNew) {
        return static_cast<COLORREF>(AfxSendInt(m_hWnd, PBM_SETBKCOLOR, 0, static_cast<LPARAM>(clrNew)));
    }
    COLORREF GetBkColor() const { return static_cast<COLORREF>(AfxSendInt(m_hWnd, PBM_GETBKCOLOR)); }
    /// @param nInterval milliseconds between the steps of a PBS_MARQUEE bar
    BOOL SetMarquee(BOOL fMarqueeMode, int nInterval) {
        return AfxSendInt(m_hWnd, PBM_SETMARQUEE, static_cast<WPARAM>(fMarqueeMode), nInterval);
    }
    int GetState() const { return AfxSendInt(m_hWnd, PBM_GETSTATE); }
    int SetState(int iState) { return AfxSendInt(m_hWnd, PBM_SETSTATE, static_cast<WPARAM>(iState)); }
    ///@}
};

/// A slider on a scale. It tells its parent by WM_HSCROLL or WM_VSCROLL.
class AFX_CORE CSliderCtrl : public CWnd {
    DECLARE_DYNAMIC(CSliderCtrl)
public:
    CSliderCtrl() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(TRACKBAR_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    using CWnd::Create;

    // --- Range and position ----------------------------------------------------------------
    ///@{
    int GetRangeMin() const { return AfxSendInt(m_hWnd, TBM_GETRANGEMIN); }
    int GetRangeMax() const { return AfxSendInt(m_hWnd, TBM_GETRANGEMAX); }
    void GetRange(int& nMin, int& nMax) const {
        nMin = GetRangeMin();
        nMax = GetRangeMax();
    }
    void SetRangeMin(int nMin, BOOL bRedraw = FALSE) {
        AfxSendInt(m_hWnd, TBM_SETRANGEMIN, static_cast<WPARAM>(bRedraw), nMin);
    }
    void SetRangeMax(int nMax, BOOL bRedraw = FALSE) {
        AfxSendInt(m_hWnd, TBM_SETRANGEMAX, static_cast<WPARAM>(bRedraw), nMax);
    }
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE) {
        SetRangeMin(nMin, bRedraw);
        SetRangeMax(nMax, bRedraw);
    }
    int GetPos() const { return AfxSendInt(m_hWnd, TBM_GETPOS); }
    void SetPos(int nPos) { AfxSendInt(m_hWnd, TBM_SETPOS, TRUE, nPos); }
    /// Brings the position into the range.
    void VerifyPos() { AfxSendInt(m_hWnd, TBM_SETPOS, FALSE, GetPos()); }
    /// The marked part of a TBS_ENABLESELRANGE slider.
    void GetSelection(int& nMin, int& nMax) const {
        nMin = AfxSendInt(m_hWnd, TBM_GETSELSTART);
        nMax = AfxSendInt(m_hWnd, TBM_GETSELEND);
    }
    void SetSelection(int nMin, int nMax) {
        AfxSendInt(m_hWnd, TBM_SETSELSTART, FALSE, nMin);
        AfxSendInt(m_hWnd, TBM_SETSELEND, TRUE, nMax);
    }
    void ClearSel(BOOL bRedraw = FALSE) { AfxSendInt(m_hWnd, TBM_CLEARSEL, static_cast<WPARAM>(bRedraw)); }
    /// How far the arrow keys (line) and a tap beside the slider (page) move it.
    int GetLineSize() const { return AfxSendInt(m_hWnd, TBM_GETLINESIZE); }
    int SetLineSize(int nSize) { return AfxSendInt(m_hWnd, TBM_SETLINESIZE, 0, nSize); }
    int GetPageSize() const { return AfxSendInt(m_hWnd, TBM_GETPAGESIZE); }
    int SetPageSize(int nSize) { return AfxSendInt(m_hWnd, TBM_SETPAGESIZE, 0, nSize); }
    ///@}

    // --- Tick marks --------------------------------------------------------------------------
    ///@{
    /// @param nFreq a mark at every nFreq-th position
    void SetTicFreq(int nFreq) { AfxSendInt(m_hWnd, TBM_SETTICFREQ, static_cast<WPARAM>(nFreq)); }
    BOOL SetTic(int nTic) { return AfxSendInt(m_hWnd, TBM_SETTIC, 0, nTic); }
    UINT GetNumTics() const { return static_cast<UINT>(AfxSendInt(m_hWnd, TBM_GETNUMTICS)); }
    /// The positions of the marks between the ends; the control's memory.
    DWORD* GetTicArray() const { return reinterpret_cast<DWORD*>(::SendMessage(m_hWnd, TBM_GETPTICS, 0, 0)); }
    int GetTic(int nTic) const { return AfxSendInt(m_hWnd, TBM_GETTIC, static_cast<WPARAM>(nTic)); }
    /// The same in client coordinates.
    int GetTicPos(int nTic) const { return AfxSendInt(m_hWnd, TBM_GETTICPOS, static_cast<WPARAM>(nTic)); }
    void ClearTics(BOOL bRedraw = FALSE) { AfxSendInt(m_hWnd, TBM_CLEARTICS, static_cast<WPARAM>(bRedraw)); }
    ///@}

    // --- Parts -------------------------------------------------------------------------------
    ///@{
    void GetChannelRect(LPRECT lprc) const { AfxSendPointer(m_hWnd, TBM_GETCHANNELRECT, 0, lprc); }
    void GetThumbRect(LPRECT lprc) const { AfxSendPointer(m_hWnd, TBM_GETTHUMBRECT, 0, lprc); }
    void SetThumbLength(int nLength) { AfxSendInt(m_hWnd, TBM_SETTHUMBLENGTH, static_cast<WPARAM>(nLength)); }
    int GetThumbLength() const { return AfxSendInt(m_hWnd, TBM_GETTHUMBLENGTH); }
    /// @param fLocation TRUE: left of or above the slider; setting returns the previous one
    CWnd* GetBuddy(BOOL fLocation = TRUE) const;
    CWnd* SetBuddy(CWnd* pWndBuddy, BOOL fLocation = TRUE);
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);
    /// @param nLocation TBTS_...
    int SetTipSide(int nLocation) {
        return AfxSendInt(m_hWnd, TBM_SETTIPSIDE, static_cast<WPARAM>(nLocation));
    }
    ///@}
};

/// A field for a combination of keys.
class AFX_CORE CHotKeyCtrl : public CWnd {
    DECLARE_DYNAMIC(CHotKeyCtrl)
public:
    CHotKeyCtrl() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(HOTKEY_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    using CWnd::Create;

    /// @param wModifiers HOTKEYF_...
    ///@{
    void SetHotKey(WORD wVirtualKeyCode, WORD wModifiers) {
        AfxSendInt(m_hWnd, HKM_SETHOTKEY, MAKEWORD(wVirtualKeyCode, wModifiers));
    }
    void GetHotKey(WORD& wVirtualKeyCode, WORD& wModifiers) const {
        const DWORD dwKey = GetHotKey();
        wVirtualKeyCode = LOBYTE(dwKey);
        wModifiers = HIBYTE(dwKey);
    }
    ///@}
    /// The key in the low byte, the modifiers above it.
    DWORD GetHotKey() const { return static_cast<DWORD>(AfxSendInt(m_hWnd, HKM_GETHOTKEY)); }
    /// @param wInvalidComb HKCOMB_...: what cannot be entered @param wModifiers what takes its place
    void SetRules(WORD wInvalidComb, WORD wModifiers) {
        AfxSendInt(m_hWnd, HKM_SETRULES, wInvalidComb, MAKELPARAM(wModifiers, 0));
    }
    /// The name of the combination, and that of a single key, as the keyboard's driver gives them.
    ///@{
    CString GetHotKeyName() const;
    static CString GetKeyName(UINT vk, BOOL fExtended);
    ///@}
};

/// A field for an Internet address of four bytes.
class AFX_CORE CIPAddressCtrl : public CWnd {
    DECLARE_DYNAMIC(CIPAddressCtrl)
public:
    CIPAddressCtrl() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(WC_IPADDRESS, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    using CWnd::Create;

    ///@{
    BOOL IsBlank() const { return AfxSendInt(m_hWnd, IPM_ISBLANK); }
    void ClearAddress() { AfxSendInt(m_hWnd, IPM_CLEARADDRESS); }
    /// @param dwAddress the first byte at the top
    void SetAddress(DWORD dwAddress) {
        AfxSendInt(m_hWnd, IPM_SETADDRESS, 0, static_cast<LPARAM>(dwAddress));
    }
    void SetAddress(BYTE nField0, BYTE nField1, BYTE nField2, BYTE nField3) {
        SetAddress(static_cast<DWORD>(MAKEIPADDRESS(nField0, nField1, nField2, nField3)));
    }
    /// @return the number of fields that are not empty
    int GetAddress(DWORD& dwAddress) const { return AfxSendPointer(m_hWnd, IPM_GETADDRESS, 0, &dwAddress); }
    int GetAddress(BYTE& nField0, BYTE& nField1, BYTE& nField2, BYTE& nField3) const;
    void SetFieldFocus(WORD nField) { AfxSendInt(m_hWnd, IPM_SETFOCUS, nField); }
    void SetFieldRange(int nField, BYTE nLower, BYTE nUpper) {
        AfxSendInt(m_hWnd, IPM_SETRANGE, static_cast<WPARAM>(nField), MAKEIPRANGE(nLower, nUpper));
    }
    ///@}
};

/// A small silent film.
class AFX_CORE CAnimateCtrl : public CWnd {
    DECLARE_DYNAMIC(CAnimateCtrl)
public:
    CAnimateCtrl() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(ANIMATE_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    using CWnd::Create;

    ///@{
    /// @param lpszFileName a file, or the name of a resource of the application
    BOOL Open(LPCTSTR lpszFileName) { return AfxSendPointer(m_hWnd, ACM_OPEN, 0, lpszFileName); }
    BOOL Open(UINT nID) { return Open(MAKEINTRESOURCE(nID)); }
    /// @param nTo picture, 0xFFFF the last @param nRep times, 0xFFFFFFFF without end
    BOOL Play(UINT nFrom, UINT nTo, UINT nRep) {
        return AfxSendInt(m_hWnd, ACM_PLAY, nRep, MAKELPARAM(nFrom, nTo));
    }
    BOOL Stop() { return AfxSendInt(m_hWnd, ACM_STOP); }
    BOOL Close() { return Open(static_cast<LPCTSTR>(nullptr)); }
    BOOL Seek(UINT nTo) { return Play(nTo, nTo, 1); }
    ///@}
};
