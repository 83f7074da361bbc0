// How a dialog makes do with the room that it has.
#pragma once

#include "afxext.h"

#include <memory>
#include <vector>

namespace fieldkit::detail {

/// From the soft input panel a popup dialog moves up as far as the work area allows; the rest, and
/// all of it in a full-screen dialog, is had by moving the controls up inside the dialog. By the
/// same means a dialog that is higher than its screen is scrolled, a popup in a window cut to the
/// screen's height. What a screen has
/// more than that of the device goes to the controls with an anchor. The command bar and the
/// scroll bar stay at their places.
class CRoom {
public:
    /// Where a window shall go; in its parent's coordinates.
    struct CMove {
        HWND hWnd;
        CRect place;
    };
    using CMoves = std::vector<CMove>;

    explicit CRoom(HWND hWnd) : m_hWnd(hWnd) {}

    HWND GetWindow() const { return m_hWnd; }
    /// Whether the window is one of those that scroll, and too high for its screen.
    bool MustScroll() const;
    /// Whether nothing is lost when the object goes as long as no panel is shown.
    bool IsIdle() const {
        return m_anchors.empty() && m_hBar == nullptr && m_pFont == nullptr && m_sizeWhole.cy == 0;
    }
    /// Whether it wants to know where the focus goes.
    bool IsScrolling() const { return m_hBar != nullptr && ::IsWindowVisible(m_hBar); }
    bool HasBar(HWND hBar) const { return m_hBar != nullptr && m_hBar == hBar; }
    /// How far the controls are above their places.
    int GetScroll() const { return m_shift.nControls; }
    /// The size that a popup has to have in a work area. It counts as given: if the popup is higher, the
    /// room remembers what it was, and makes it scroll.
    CSize SizeIn(const CRect& area);
    /// What a popup was before that; empty if the area was high enough.
    CSize GetWholeSize() const;

    // These plan. A plan counts as carried out: this object may be gone when the moves are made,
    // since they send messages to the application. pPanel is the soft input panel's place on the
    // screen, null if none is shown.

    /// Makes the best of the present size, for the control that now has the focus.
    CMoves Plan(const CRect* pPanel);
    /// @param nCode of WM_VSCROLL
    CMoves Scroll(UINT nCode, const CRect* pPanel);
    /// Scrolls to a place, as far as there is something to see.
    CMoves ScrollTo(int nPos, const CRect* pPanel);
    /// Puts everything where it stands on the device's screen, without a panel.
    CMoves Settle() { return Apply({0, 0}, CSize()); }

    bool IsAnchored(HWND hControl) const;
    /// The control is none of those with an anchor, or Settle has been carried out.
    void Anchor(HWND hControl, const AFX_ANCHOR& anchor);
    /// After a plan has been carried out: what reaches into the command bar, since it scrolls, is cut
    /// off there. Controls do not clip each other, which frames around others depend on.
    void CutOff();
    /// What SetResolution has been given; null if nothing.
    HFONT GetFont() const { return m_pFont != nullptr ? static_cast<HFONT>(m_pFont->m_hObject) : nullptr; }
    /// The resolution has changed after Settle.
    /// @param pFont the dialog's from now on
    void SetResolution(int nOld, int nNew, std::unique_ptr<CFont> pFont);

private:
    struct CShifted {
        HWND hWnd;
        CPoint place; ///< Where it was put.
        int nShift;   ///< How far above its own place that is.
    };
    struct CShift {
        int nDialog;
        int nControls;
    };
    struct CAnchored {
        HWND hWnd;
        AFX_ANCHOR anchor;
        CSize applied; ///< What it has been given of, so far.
    };

    bool IsBar(HWND hChild) const;
    std::vector<HWND> Controls() const;
    HWND ControlOf(HWND hWnd) const;
    CRect HomeOf(HWND hControl, CSize spare) const;
    int ContentHeight(CSize spare) const;
    int Height(const CRect* pPanel) const;
    int ScrollRange(const CRect* pPanel) const;
    CSize Spare(bool bBar) const;
    int ShiftOf(HWND hWnd) const;
    void ShowFocused(HWND hFocus);
    CShift ShiftFor(HWND hFocus, const CRect* pPanel) const;
    CMoves Apply(CShift shift, CSize spare);
    void ShowBar(bool bShow, const CRect* pPanel);

    HWND m_hWnd;
    HWND m_hBar = nullptr;
    HWND m_hSeen = nullptr; ///< The control with the focus when it was last looked at.
    CShift m_shift = {0, 0};
    int m_nScroll = 0;               ///< The part of the controls' shift that stays without a panel.
    CSize m_spare;                   ///< What the anchored controls have been given of.
    CSize m_sizeHome;                ///< Of a popup, before anything was spare.
    CSize m_sizeWhole;               ///< Of a popup's window that was cut to the screen, before that, ...
    CSize m_sizeCut;                 ///< ... and after.
    std::vector<CShifted> m_shifted; ///< The dialog and its controls, as far as they are not at home.
    std::vector<CAnchored> m_anchors;
    std::vector<HWND> m_cut;        ///< Controls of which a part is cut off.
    std::unique_ptr<CFont> m_pFont; ///< Made for another resolution than that of the template.
};

} // namespace fieldkit::detail
