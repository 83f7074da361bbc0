/// @file
/// The common controls.
///
/// A member function that is one message to the control means what that message means;
/// what a control answers on failure is its result.
#pragma once

/// What programs ask for to see whether this header has been included.
#define __AFXCMN_H__

#include "afxwin.h"

/// Notification of the device's controls: the user has tapped and held. A result of 1 says
/// that it has been dealt with, so that the control shows nothing of its own.
///
/// Desktop controls send the same number when they give up the mouse capture, and ignore
/// the answer.
constexpr UINT NM_RECOGNIZEGESTURE = NM_FIRST - 16U;

#include "afximl_.h"
#include "afxlv_.h"
#include "afxtv_.h"
#include "afxbar_.h"
#include "afxtab_.h"
#include "afxpos_.h"
#include "afxdt_.h"
#include "afxcheck_.h"
#include "afxrich_.h"
#include "afxlink_.h"

/// A pair of arrows that count a position up and down, usually that of the entry field at
/// its side (its buddy).
class AFX_CORE CSpinButtonCtrl : public CWnd {
    DECLARE_DYNAMIC(CSpinButtonCtrl)
public:
    CSpinButtonCtrl() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;

    /// @return the previous buddy, null if there was none
    CWnd* SetBuddy(CWnd* pWndBuddy);
    /// The buddy; null if there is none.
    CWnd* GetBuddy() const;
    /// The upper limit may be the smaller one: then the arrows count the other way round.
    void SetRange(short nLower, short nUpper) {
        AfxSendInt(m_hWnd, UDM_SETRANGE, 0, MAKELPARAM(nUpper, nLower));
    }
    /// The same with limits of 32 bits.
    void SetRange32(int nLower, int nUpper) {
        AfxSendInt(m_hWnd, UDM_SETRANGE32, static_cast<WPARAM>(nLower), nUpper);
    }
    /// @return the upper limit in the low word, the lower one in the high word
    DWORD GetRange() const { return static_cast<DWORD>(AfxSendInt(m_hWnd, UDM_GETRANGE)); }
    /// Writes both limits.
    ///@{
    void GetRange(int& lower, int& upper) const;
    void GetRange32(int& lower, int& upper) const;
    ///@}
    /// @param nPos 16 bits; a position outside of the range becomes the nearest limit
    /// @return the previous position
    int SetPos(int nPos) { return AfxSendInt(m_hWnd, UDM_SETPOS, 0, MAKELPARAM(nPos, 0)); }
    /// The same with a position of 32 bits.
    int SetPos32(int nPos) { return AfxSendInt(m_hWnd, UDM_SETPOS32, 0, nPos); }
    /// @return the position in the low word; the high word is not 0 if the buddy's text is no
    ///   number of the range
    int GetPos() const { return AfxSendInt(m_hWnd, UDM_GETPOS); }
    /// @param lpbError receives TRUE if the buddy's text is no number of the range; may be null
    int GetPos32(LPBOOL lpbError = nullptr) const {
        return AfxSendPointer(m_hWnd, UDM_GETPOS32, 0, lpbError);
    }
    /// @param nBase 10, or 16 for the buddy's text in hexadecimal @return the previous base, 0 on failure
    int SetBase(int nBase) { return AfxSendInt(m_hWnd, UDM_SETBASE, static_cast<WPARAM>(nBase)); }
    /// 10 or 16, the base of the buddy's text.
    UINT GetBase() const { return static_cast<UINT>(AfxSendInt(m_hWnd, UDM_GETBASE)); }
    /// @param nAccel the steps at pAccel: how long an arrow is held, and how far it counts then
    BOOL SetAccel(int nAccel, UDACCEL* pAccel) {
        return AfxSendPointer(m_hWnd, UDM_SETACCEL, static_cast<WPARAM>(nAccel), pAccel);
    }
    /// @param nAccel room at pAccel @return the number of steps written there
    UINT GetAccel(int nAccel, UDACCEL* pAccel) const {
        return static_cast<UINT>(AfxSendPointer(m_hWnd, UDM_GETACCEL, static_cast<WPARAM>(nAccel), pAccel));
    }
};
