/// @file
/// Extensions of the framework for the device: the command bar, the shell's title
/// bar button and the soft input panel switch.
#pragma once

#include "afxwin.h"

/// Control identifier of a command bar.
constexpr UINT AFX_IDW_TOOLBAR = 0xE800;
/// Height in pixels of the device's bars at the top and at the bottom of the screen.
constexpr int AFX_DEVICE_BAR_HEIGHT = 26;

/// The bar at the bottom of a full-screen window: the buttons of its menu at the left,
/// the switch of the soft input panel at the right.
class AFX_CORE CCeCommandBar : public CWnd {
    DECLARE_DYNAMIC(CCeCommandBar)
public:
    CCeCommandBar() = default;

    /// Creates the bar as a child at the bottom edge of its parent.
    BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS,
                UINT nID = AFX_IDW_TOOLBAR);
    using CWnd::Create;
    /// Adds a button for each popup of a menu resource; a tap opens it above the bar, and its
    /// commands go to the parent. A command directly in the menu becomes a plain button.
    /// @return FALSE, with nothing changed, if there is no such menu resource.
    BOOL InsertMenuBar(UINT nIDResource);
    /// Moves the bar to its place after its parent's size has changed.
    void Reposition();

protected:
    afx_msg void OnDestroy();
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    DECLARE_MESSAGE_MAP()

private:
    void AddButton(int nPos, UINT nID, int iImage, BYTE fsState, LPCTSTR pszText);
    void AddSipButton();
    void TrackPopup(int nIndex);

    HMENU m_hMenu = nullptr;        ///< Owned.
    HIMAGELIST m_hImages = nullptr; ///< Owned: the picture of the panel's switch.
    BOOL m_bSipShown = FALSE;
};

/// What shows (TRUE) and hides (FALSE) the soft input panel for the command bar's button.
using AFX_SIP_PROC = void(AFXAPI*)(BOOL bShow);
/// Installed by whoever has a panel. @return the previous one, null if there was none.
AFX_CORE AFX_SIP_PROC AFXAPI AfxSetSipHandler(AFX_SIP_PROC pfn);

/// States of SHDoneButton.
enum : DWORD { SHDB_SHOW = 0x0001, SHDB_HIDE = 0x0002 };
/// Shows or hides the OK button in the title bar of a top-level window.
///
/// Where the system has the device's shell library its function is called, by ordinal;
/// the title bar that the framework draws follows in any case.
/// @return FALSE if hWnd is not a window of this framework and there is no shell library.
AFX_CORE BOOL AFXAPI SHDoneButton(HWND hWnd, DWORD dwState);
