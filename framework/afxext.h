/// @file
/// Extensions of the framework for the device: the command bar, the shell's title
/// bar button and the soft input panel switch.
#pragma once

/// What programs ask for to see whether this header has been included.
#define __AFXEXT_H__

#include "afxcmn.h"
#include "afxdisp.h"
#include "afxdlgs.h"

/// Height in pixels of the device's bars at the top and at the bottom of the screen, at
/// AFX_DESIGN_DPI; a window's own come from AfxScale.
constexpr int AFX_DEVICE_BAR_HEIGHT = 26;

/// The bar at the bottom of a full-screen window: the buttons of its menu at the left,
/// the switch of the soft input panel at the right.
///
/// What is added or inserted stands between them: buttons, separators, a whole tool bar resource.
class AFX_CORE CCeCommandBar : public CToolBarCtrl {
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
    /// The switch of the soft input panel and the title bar's OK are always there. @return TRUE
    BOOL AddAdornments(DWORD dwFlags = 0);
    /// Adds the buttons and pictures of a tool bar resource.
    /// @return FALSE, with nothing changed, if there is no such resource
    BOOL LoadToolBar(UINT nIDResource);
    /// Adds pictures, each 16 pixels wide, light grey being transparent. At other resolutions they
    /// are shown larger or smaller.
    /// @return the index of the first, -1 on failure
    int AddBitmap(int nNumButtons, UINT nBitmapID);
    /// @param nIndex among the buttons; one that is too large stands for the last place
    ///@{
    BOOL InsertButton(int nIndex, LPTBBUTTON lpButton);
    BOOL AddButtons(int nNumButtons, LPTBBUTTON lpButtons);
    BOOL InsertSeparator(int nIndex = INT_MAX);
    ///@}
    /// Moves the bar to its place after its parent's size or resolution has changed.
    void Reposition();
    /// Whether a point of the screen lies on the switch of the soft input panel.
    BOOL IsSipSwitchAt(CPoint screenPoint) const;

protected:
    /// Frees menu and pictures of the bar.
    afx_msg void OnDestroy();
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    DECLARE_MESSAGE_MAP()

private:
    void AddButton(int nPos, UINT nID, int iImage, BYTE fsState, LPCTSTR pszText);
    void AddSipButton();
    void ShowImages();
    void TrackPopup(int nIndex);

    HMENU m_hMenu = nullptr;         ///< Owned.
    HIMAGELIST m_hImages = nullptr;  ///< Owned: the picture of the panel's switch and the program's.
    HIMAGELIST m_hResized = nullptr; ///< Owned: the same in the size of another resolution.
    int m_nDpi = 0;                  ///< The resolution of the pictures that are shown.
};

/// A push button that shows a bitmap for each of its states. In a template it is a button with
/// BS_OWNERDRAW.
class AFX_CORE CBitmapButton : public CButton {
    DECLARE_DYNAMIC(CBitmapButton)
public:
    CBitmapButton() = default;

    /// Loads the bitmaps; those that are missing look like the first.
    /// @return FALSE if one that was named is not there
    ///@{
    BOOL LoadBitmaps(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel = nullptr,
                     LPCTSTR lpszBitmapResourceFocus = nullptr, LPCTSTR lpszBitmapResourceDisabled = nullptr);
    BOOL LoadBitmaps(UINT nIDBitmapResource, UINT nIDBitmapResourceSel = 0, UINT nIDBitmapResourceFocus = 0,
                     UINT nIDBitmapResourceDisabled = 0);
    ///@}
    /// Attaches the object to a button of a dialog and loads the bitmaps whose names are the button's
    /// text and U, D, F or X for up, down, focused and disabled; gives the button their size.
    BOOL AutoLoad(UINT nID, CWnd* pParent);
    /// Gives the button the size of its first bitmap.
    void SizeToContent();

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

protected:
    CBitmap m_bitmap;         ///< At rest.
    CBitmap m_bitmapSel;      ///< Pressed.
    CBitmap m_bitmapFocus;    ///< With the focus.
    CBitmap m_bitmapDisabled; ///< Disabled.
};

/// States of SHDoneButton.
enum : DWORD { SHDB_SHOW = 0x0001, SHDB_HIDE = 0x0002 };
/// Shows or hides the OK button in the title bar of a top-level window.
///
/// Where the system has the device's shell library its function is called, by ordinal;
/// the title bar that the framework draws follows in any case.
/// @return FALSE if hWnd is not a window of this framework and there is no shell library.
AFX_CORE BOOL AFXAPI SHDoneButton(HWND hWnd, DWORD dwState);

// --- Screens larger than the device's --------------------------------------------------------------

/// How the edges of a control follow those of its parent, each in percent of what the parent has
/// more than it needs: 0 stays, 100 goes with the right or lower edge, 50 is for two side by side.
struct AFX_ANCHOR {
    int nLeft;
    int nTop;
    int nRight;
    int nBottom;
};
/// Ties a control to the edges of its parent, at once and for as long as both live. A second call
/// takes the place of the first.
///
/// Controls of a full-screen dialog, or of a page in a full-screen sheet, stand where they are
/// meant to on the device's screen of 240 x 320 pixels at AFX_DESIGN_DPI; what the screen is
/// larger is shared out. In another window it is what that becomes larger from now on. A window
/// that is smaller than meant takes nothing away: a full-screen dialog scrolls then.
/// @return FALSE, with nothing done, if the window is no child
AFX_CORE BOOL AFXAPI AfxAnchorControl(HWND hWndControl, const AFX_ANCHOR& anchor);

// --- Soft input panel ----------------------------------------------------------------------------

/// wParam of the WM_SETTINGCHANGE message that tells the active window that the soft input
/// panel has come, gone or changed its size. By default a dialog then keeps its focused entry
/// field clear of the panel: it moves up, or scrolls its controls if it is full screen, and
/// goes back when the panel has gone.
constexpr UINT SPI_SETSIPINFO = 224;

/// Flags of SIPINFO and SipShowIM.
enum : DWORD { SIPF_OFF = 0x0000, SIPF_ON = 0x0001, SIPF_DOCKED = 0x0002 };

/// The state of the calling thread's soft input panel; screen coordinates.
struct SIPINFO {
    DWORD cbSize;          ///< Size of this structure, to be set by the caller.
    DWORD fdwFlags;        ///< SIPF_ON if the panel is shown; SIPF_DOCKED always.
    RECT rcVisibleDesktop; ///< The work area above the panel; all of it if none is shown.
    RECT rcSipRect;        ///< The panel; empty if none is shown.
};

/// @return FALSE, with nothing written, for null or a wrong cbSize.
AFX_CORE BOOL AFXAPI SipGetInfo(SIPINFO* pSipInfo);
/// Shows (SIPF_ON) or hides (SIPF_OFF) the panel.
/// @return FALSE if there is no panel or the flag is another one.
AFX_CORE BOOL AFXAPI SipShowIM(DWORD dwFlag);

/// What the framework asks of a soft input panel. All of it is for the calling thread's panel.
struct AFX_SIP_HANDLER {
    /// Shows or hides the panel.
    void(AFXAPI* pfnShow)(BOOL bShow);
    /// @param lpRect receives the panel's place on the screen if it is shown
    /// @return TRUE if it is shown
    BOOL(AFXAPI* pfnGetRect)(LPRECT lpRect);
};
/// Installed by whoever has a panel. The structure must live until another takes its place.
/// @return the previous one, null if there was none.
AFX_CORE const AFX_SIP_HANDLER* AFXAPI AfxSetSipHandler(const AFX_SIP_HANDLER* pHandler);
