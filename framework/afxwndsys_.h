/// @file
/// What a window has from the system alone. Included by afxwin.h.
#pragma once

#include "afxcmd_.h"
#include "atltypes.h"

#include <shellapi.h>

// The system has this one as a macro only, which would take the member's name.
#undef GetNextWindow
/// The window next to this one. @param wCmd GW_HWNDNEXT or GW_HWNDPREV
inline HWND GetNextWindow(HWND hWnd, UINT wCmd) {
    return ::GetWindow(hWnd, wCmd);
}

class CBitmap;
class CDC;
class CFont;
class CMenu;
class CRgn;
class CScrollBar;
class CWnd;

/// The base of CWnd: the window's handle, and Win32 functions for it. A member has the name, the arguments
/// and the result of its function.
class AFX_CORE CWndSystem : public CCmdTarget {
public:
    HWND m_hWnd = nullptr; ///< The window, or null.

    /// The window's menu; objects are temporary, null for none.
    ///@{
    CMenu* GetMenu() const;
    /// The menu becomes the window's: Detach it. @param pMenu null for none
    BOOL SetMenu(CMenu* pMenu);
    /// @param bRevert TRUE: the system's own again; gives null
    CMenu* GetSystemMenu(BOOL bRevert) const;
    void DrawMenuBar() { ::DrawMenuBar(m_hWnd); }
    BOOL HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite);
    ///@}

    /// The window's scroll bars: nBar is SB_HORZ or SB_VERT.
    ///@{
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE) {
        return ::SetScrollPos(m_hWnd, nBar, nPos, bRedraw);
    }
    int GetScrollPos(int nBar) const { return ::GetScrollPos(m_hWnd, nBar); }
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE) {
        ::SetScrollRange(m_hWnd, nBar, nMinPos, nMaxPos, bRedraw);
    }
    void GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const {
        ::GetScrollRange(m_hWnd, nBar, lpMinPos, lpMaxPos);
    }
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    /// The largest position that the thumb can reach.
    int GetScrollLimit(int nBar);
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE) {
        ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow);
    }
    BOOL EnableScrollBar(int nSBFlags, UINT nArrowFlags = ESB_ENABLE_BOTH) {
        return ::EnableScrollBar(m_hWnd, static_cast<UINT>(nSBFlags), nArrowFlags);
    }
    void EnableScrollBarCtrl(int nBar, BOOL bEnable = TRUE) {
        ShowScrollBar(static_cast<UINT>(nBar), bEnable);
    }
    /// The window has no scroll bar that is a control of its own. @return null
    virtual CScrollBar* GetScrollBarCtrl(int nBar) const;
    void ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect = nullptr, LPCRECT lpClipRect = nullptr) {
        ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
    }
    int ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                       LPRECT lpRectUpdate, UINT flags);
    ///@}

    /// Other windows; objects of FromHandle, null if there is no such window.
    ///@{
    CWnd* GetNextWindow(UINT nFlag = GW_HWNDNEXT) const;
    CWnd* GetTopWindow() const;
    CWnd* GetLastActivePopup() const;
    CWnd* GetAncestor(UINT gaFlags) const;
    CWnd* GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    CWnd* ChildWindowFromPoint(POINT point) const;
    CWnd* ChildWindowFromPoint(POINT point, UINT nFlags) const;
    /// The first window with this identifier below this one, however deep.
    CWnd* GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const;
    /// The first window above this one that is no child.
    CWnd* GetParentOwner() const;
    /// The last owner of the chain above this window.
    CWnd* GetTopLevelOwner() const;
    BOOL IsTopParentActive() const;
    static CWnd* FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName);
    static CWnd* FindWindowEx(HWND hwndParent, HWND hwndChildAfter, LPCTSTR lpszClass, LPCTSTR lpszWindow);
    ///@}

    /// Place and state.
    ///@{
    BOOL GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const { return ::GetWindowPlacement(m_hWnd, lpwndpl); }
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl) { return ::SetWindowPlacement(m_hWnd, lpwndpl); }
    BOOL GetWindowInfo(PWINDOWINFO pwi) const { return ::GetWindowInfo(m_hWnd, pwi); }
    int SetWindowRgn(HRGN hRgn, BOOL bRedraw) { return ::SetWindowRgn(m_hWnd, hRgn, bRedraw); }
    int GetWindowRgn(HRGN hRgn) const { return ::GetWindowRgn(m_hWnd, hRgn); }
    BOOL ShowWindowAsync(int nCmdShow) { return ::ShowWindowAsync(m_hWnd, nCmdShow); }
    void ShowOwnedPopups(BOOL bShow = TRUE) { ::ShowOwnedPopups(m_hWnd, bShow); }
    void CloseWindow() { ::CloseWindow(m_hWnd); }
    BOOL OpenIcon() { return ::OpenIcon(m_hWnd); }
    BOOL FlashWindow(BOOL bInvert) { return ::FlashWindow(m_hWnd, bInvert); }
    BOOL FlashWindowEx(DWORD dwFlags, UINT uCount, DWORD dwTimeout);
    BOOL AnimateWindow(DWORD dwTime, DWORD dwFlags) { return ::AnimateWindow(m_hWnd, dwTime, dwFlags); }
    BOOL SetLayeredWindowAttributes(COLORREF crKey, BYTE bAlpha, DWORD dwFlags) {
        return ::SetLayeredWindowAttributes(m_hWnd, crKey, bAlpha, dwFlags);
    }
    BOOL IsWindowUnicode() const { return ::IsWindowUnicode(m_hWnd); }
    ///@}

    /// Painting.
    ///@{
    /// To be given back by ReleaseDC. @param prgnClip null for none; the context owns it
    CDC* GetDCEx(CRgn* prgnClip, DWORD flags);
    /// Let the window draw itself, or its client area, into a context. @param dwFlags PRF_...
    ///@{
    void Print(CDC* pDC, DWORD dwFlags) const;
    void PrintClient(CDC* pDC, DWORD dwFlags) const;
    ///@}
    void InvalidateRgn(CRgn* pRgn, BOOL bErase = TRUE);
    void ValidateRgn(CRgn* pRgn);
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE) { return ::GetUpdateRect(m_hWnd, lpRect, bErase); }
    int GetUpdateRgn(CRgn* pRgn, BOOL bErase = FALSE);
    BOOL LockWindowUpdate() { return ::LockWindowUpdate(m_hWnd); }
    static void UnlockWindowUpdate() { ::LockWindowUpdate(nullptr); }
    ///@}

    /// Lists and combo boxes of this dialog that show files. @return FALSE on failure
    ///@{
    int DlgDirList(LPTSTR lpPathSpec, int nIDListBox, int nIDStaticPath, UINT nFileType) {
        return ::DlgDirList(m_hWnd, lpPathSpec, nIDListBox, nIDStaticPath, nFileType);
    }
    int DlgDirListComboBox(LPTSTR lpPathSpec, int nIDComboBox, int nIDStaticPath, UINT nFileType) {
        return ::DlgDirListComboBox(m_hWnd, lpPathSpec, nIDComboBox, nIDStaticPath, nFileType);
    }
    BOOL DlgDirSelect(LPTSTR lpString, int nSize, int nIDListBox) {
        return ::DlgDirSelectEx(m_hWnd, lpString, nSize, nIDListBox);
    }
    /// The room at lpString is MAX_PATH.
    BOOL DlgDirSelect(LPTSTR lpString, int nIDListBox) {
        return DlgDirSelect(lpString, MAX_PATH, nIDListBox);
    }
    BOOL DlgDirSelectComboBox(LPTSTR lpString, int nSize, int nIDComboBox) {
        return ::DlgDirSelectComboBoxEx(m_hWnd, lpString, nSize, nIDComboBox);
    }
    BOOL DlgDirSelectComboBox(LPTSTR lpString, int nIDComboBox) {
        return DlgDirSelectComboBox(lpString, MAX_PATH, nIDComboBox);
    }
    ///@}

    /// Caret, clipboard, dropped files, input.
    ///@{
    void CreateSolidCaret(int nWidth, int nHeight) { ::CreateCaret(m_hWnd, nullptr, nWidth, nHeight); }
    void CreateGrayCaret(int nWidth, int nHeight) {
        ::CreateCaret(m_hWnd, reinterpret_cast<HBITMAP>(INT_PTR{1}), nWidth, nHeight);
    }
    static CPoint GetCaretPos();
    static void SetCaretPos(POINT point) { ::SetCaretPos(point.x, point.y); }
    void HideCaret() { ::HideCaret(m_hWnd); }
    void ShowCaret() { ::ShowCaret(m_hWnd); }
    BOOL OpenClipboard() { return ::OpenClipboard(m_hWnd); }
    static CWnd* GetClipboardOwner();
    HWND SetClipboardViewer() { return ::SetClipboardViewer(m_hWnd); }
    BOOL ChangeClipboardChain(HWND hWndNext) { return ::ChangeClipboardChain(m_hWnd, hWndNext); }
    void DragAcceptFiles(BOOL bAccept = TRUE) { ::DragAcceptFiles(m_hWnd, bAccept); }
    BOOL DragDetect(POINT pt) const { return ::DragDetect(m_hWnd, pt); }
    BOOL RegisterTouchWindow(BOOL bRegister = TRUE, ULONG ulFlags = 0) {
        return bRegister ? ::RegisterTouchWindow(m_hWnd, ulFlags) : ::UnregisterTouchWindow(m_hWnd);
    }
    BOOL IsTouchWindow() const { return ::IsTouchWindow(m_hWnd, nullptr); }
    static CWnd* GetOpenClipboardWindow();
    static CWnd* GetClipboardViewer();
    void CreateCaret(CBitmap* pBitmap);
    /// Opens help: a topic of the program's old help file (HELP_...), or of its .chm file (HH_...).
    ///@{
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    virtual void HtmlHelp(DWORD_PTR dwData, UINT nCmd = 0x000F);
    BOOL SetWindowContextHelpId(DWORD dwContextHelpId) {
        return ::SetWindowContextHelpId(m_hWnd, dwContextHelpId);
    }
    DWORD GetWindowContextHelpId() const { return ::GetWindowContextHelpId(m_hWnd); }
    ///@}
    BOOL SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam) {
        return ::SendNotifyMessage(m_hWnd, message, wParam, lParam);
    }
    ///@}

protected:
    CWndSystem() = default;
};
