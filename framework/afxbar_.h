/// @file
/// Tool tips, status bars and tool bars. Included by afxcmn.h.
///
/// A member that is one message to the control means what that message means, and has its result.
#pragma once

#include "afximl_.h"

/// What a tool tip knows about one tool, with room for its text.
struct CToolInfo : public TOOLINFO {
    TCHAR szText[256]; ///< What lpszText points to after CToolTipCtrl::GetToolInfo.
};

/// Short texts that appear beside the pen or the mouse when it rests on a tool: a control, or
/// a rectangle of a window. It sees the messages that are handed to RelayEvent, best in the
/// PreTranslateMessage of the dialog.
class AFX_CORE CToolTipCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolTipCtrl)
public:
    CToolTipCtrl() = default;
    /// Creates the tool tip of a window. @return FALSE if the system refuses
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);
    using CWnd::Create;

    // --- Tools ---------------------------------------------------------------------------
    /// @param pWnd       the control, or the window whose rectangle is the tool
    /// @param lpszText   LPSTR_TEXTCALLBACK: the window is asked by TTN_NEEDTEXT
    /// @param lpRectTool the rectangle; null for a control
    /// @param nIDTool    a number for the rectangle; 0 for a control
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = nullptr,
                 UINT_PTR nIDTool = 0);
    /// The same with a text of the string table.
    BOOL AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    /// The tool is named as it was added.
    ///@{
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    BOOL GetToolInfo(CToolInfo& toolInfo, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect);
    ///@}
    void SetToolInfo(LPTOOLINFO lpToolInfo) { AfxSendPointer(m_hWnd, TTM_SETTOOLINFO, 0, lpToolInfo); }
    int GetToolCount() const { return AfxSendInt(m_hWnd, TTM_GETTOOLCOUNT); }
    /// @param pt client coordinates of pWnd
    BOOL HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const;

    // --- Display ---------------------------------------------------------------------------
    ///@{
    void Activate(BOOL bActivate) { AfxSendInt(m_hWnd, TTM_ACTIVATE, static_cast<WPARAM>(bActivate)); }
    void RelayEvent(LPMSG lpMsg) { AfxSendPointer(m_hWnd, TTM_RELAYEVENT, 0, lpMsg); }
    void Pop() { AfxSendInt(m_hWnd, TTM_POP); }
    void Update() { AfxSendInt(m_hWnd, TTM_UPDATE); }
    /// @param dwDuration TTDT_... @param iTime milliseconds, -1 the default
    void SetDelayTime(DWORD dwDuration, int iTime) {
        AfxSendInt(m_hWnd, TTM_SETDELAYTIME, dwDuration, MAKELPARAM(iTime, 0));
    }
    /// All times from the one that the tip waits for.
    void SetDelayTime(UINT nDelay) { SetDelayTime(TTDT_AUTOMATIC, static_cast<int>(nDelay)); }
    int GetDelayTime(DWORD dwDuration) const { return AfxSendInt(m_hWnd, TTM_GETDELAYTIME, dwDuration); }
    void SetMargin(LPCRECT lprc) { AfxSendPointer(m_hWnd, TTM_SETMARGIN, 0, lprc); }
    void GetMargin(LPRECT lprc) const { AfxSendPointer(m_hWnd, TTM_GETMARGIN, 0, lprc); }
    /// @param iWidth pixels; a longer text has several lines
    int SetMaxTipWidth(int iWidth) { return AfxSendInt(m_hWnd, TTM_SETMAXTIPWIDTH, 0, iWidth); }
    int GetMaxTipWidth() const { return AfxSendInt(m_hWnd, TTM_GETMAXTIPWIDTH); }
    void SetTipBkColor(COLORREF clr) { AfxSendInt(m_hWnd, TTM_SETTIPBKCOLOR, clr); }
    COLORREF GetTipBkColor() const { return static_cast<COLORREF>(AfxSendInt(m_hWnd, TTM_GETTIPBKCOLOR)); }
    void SetTipTextColor(COLORREF clr) { AfxSendInt(m_hWnd, TTM_SETTIPTEXTCOLOR, clr); }
    COLORREF GetTipTextColor() const {
        return static_cast<COLORREF>(AfxSendInt(m_hWnd, TTM_GETTIPTEXTCOLOR));
    }
    BOOL SetTitle(UINT uIcon, LPCTSTR lpstrTitle) {
        return AfxSendPointer(m_hWnd, TTM_SETTITLE, uIcon, lpstrTitle);
    }
    BOOL AdjustRect(LPRECT lprc, BOOL bLarger = TRUE) {
        return AfxSendPointer(m_hWnd, TTM_ADJUSTRECT, static_cast<WPARAM>(bLarger), lprc);
    }
    ///@}
};

/// A status bar of one or more parts. Parts count from 0.
class AFX_CORE CStatusBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CStatusBarCtrl)
public:
    CStatusBarCtrl() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(STATUSCLASSNAME, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    using CWnd::Create;

    /// @param pWidths the right edges in pixels, -1 the bar's end
    ///@{
    BOOL SetParts(int nParts, int* pWidths) {
        return AfxSendPointer(m_hWnd, SB_SETPARTS, static_cast<WPARAM>(nParts), pWidths);
    }
    int GetParts(int nParts, int* pParts) const {
        return AfxSendPointer(m_hWnd, SB_GETPARTS, static_cast<WPARAM>(nParts), pParts);
    }
    ///@}
    /// @param nType SBT_...: the frame, or that the owner draws the part
    BOOL SetText(LPCTSTR lpszText, int nPane, int nType) {
        return AfxSendPointer(m_hWnd, SB_SETTEXT, static_cast<WPARAM>(nPane | nType), lpszText);
    }
    /// @param pType receives the frame; may be null
    ///@{
    CString GetText(int nPane, int* pType = nullptr) const;
    int GetText(LPTSTR lpszText, int nPane, int* pType = nullptr) const;
    int GetTextLength(int nPane, int* pType = nullptr) const;
    ///@}
    /// Widths of the borders and of the gap between parts, pixels.
    ///@{
    BOOL GetBorders(int* pBorders) const { return AfxSendPointer(m_hWnd, SB_GETBORDERS, 0, pBorders); }
    BOOL GetBorders(int& nHorz, int& nVert, int& nSpacing) const;
    ///@}
    ///@{
    void SetMinHeight(int nMin) { AfxSendInt(m_hWnd, SB_SETMINHEIGHT, static_cast<WPARAM>(nMin)); }
    BOOL SetSimple(BOOL bSimple = TRUE) {
        return AfxSendInt(m_hWnd, SB_SIMPLE, static_cast<WPARAM>(bSimple));
    }
    BOOL IsSimple() const { return AfxSendInt(m_hWnd, SB_ISSIMPLE); }
    BOOL GetRect(int nPane, LPRECT lpRect) const {
        return AfxSendPointer(m_hWnd, SB_GETRECT, static_cast<WPARAM>(nPane), lpRect);
    }
    COLORREF SetBkColor(COLORREF cr) {
        return static_cast<COLORREF>(AfxSendInt(m_hWnd, SB_SETBKCOLOR, 0, static_cast<LPARAM>(cr)));
    }
    BOOL SetIcon(int nPane, HICON hIcon) {
        return AfxSendPointer(m_hWnd, SB_SETICON, static_cast<WPARAM>(nPane), hIcon);
    }
    HICON GetIcon(int nPane) const {
        return AfxSendHandle(m_hWnd, SB_GETICON, static_cast<WPARAM>(nPane), HICON());
    }
    void SetTipText(int nPane, LPCTSTR pszTipText) {
        AfxSendPointer(m_hWnd, SB_SETTIPTEXT, static_cast<WPARAM>(nPane), pszTipText);
    }
    ///@}
    /// Draws a part that was set with SBT_OWNERDRAW; override it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/// A tool bar. Buttons count from 0; those that belong to a command are named by its number.
class AFX_CORE CToolBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolBarCtrl)
public:
    CToolBarCtrl() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;

    // --- Buttons ---------------------------------------------------------------------------
    ///@{
    BOOL AddButtons(int nNumButtons, LPTBBUTTON lpButtons) {
        return AfxSendPointer(m_hWnd, TB_ADDBUTTONS, static_cast<WPARAM>(nNumButtons), lpButtons);
    }
    BOOL InsertButton(int nIndex, LPTBBUTTON lpButton) {
        return AfxSendPointer(m_hWnd, TB_INSERTBUTTON, static_cast<WPARAM>(nIndex), lpButton);
    }
    BOOL DeleteButton(int nIndex) { return AfxSendInt(m_hWnd, TB_DELETEBUTTON, static_cast<WPARAM>(nIndex)); }
    BOOL GetButton(int nIndex, LPTBBUTTON lpButton) const {
        return AfxSendPointer(m_hWnd, TB_GETBUTTON, static_cast<WPARAM>(nIndex), lpButton);
    }
    int GetButtonCount() const { return AfxSendInt(m_hWnd, TB_BUTTONCOUNT); }
    UINT CommandToIndex(UINT nID) const {
        return static_cast<UINT>(AfxSendInt(m_hWnd, TB_COMMANDTOINDEX, nID));
    }
    BOOL SetCmdID(int nIndex, UINT nID) {
        return AfxSendInt(m_hWnd, TB_SETCMDID, static_cast<WPARAM>(nIndex), static_cast<LPARAM>(nID));
    }
    BOOL SetButtonInfo(int nID, TBBUTTONINFO* ptbbi) {
        return AfxSendPointer(m_hWnd, TB_SETBUTTONINFO, static_cast<WPARAM>(nID), ptbbi);
    }
    int GetButtonInfo(int nID, TBBUTTONINFO* ptbbi) const {
        return AfxSendPointer(m_hWnd, TB_GETBUTTONINFO, static_cast<WPARAM>(nID), ptbbi);
    }
    ///@}
    /// The buttons' states.
    ///@{
    BOOL EnableButton(int nID, BOOL bEnable = TRUE) { return Switch(TB_ENABLEBUTTON, nID, bEnable); }
    BOOL CheckButton(int nID, BOOL bCheck = TRUE) { return Switch(TB_CHECKBUTTON, nID, bCheck); }
    BOOL PressButton(int nID, BOOL bPress = TRUE) { return Switch(TB_PRESSBUTTON, nID, bPress); }
    BOOL HideButton(int nID, BOOL bHide = TRUE) { return Switch(TB_HIDEBUTTON, nID, bHide); }
    BOOL Indeterminate(int nID, BOOL bIndeterminate = TRUE) {
        return Switch(TB_INDETERMINATE, nID, bIndeterminate);
    }
    BOOL IsButtonEnabled(int nID) const { return Ask(TB_ISBUTTONENABLED, nID); }
    BOOL IsButtonChecked(int nID) const { return Ask(TB_ISBUTTONCHECKED, nID); }
    BOOL IsButtonPressed(int nID) const { return Ask(TB_ISBUTTONPRESSED, nID); }
    BOOL IsButtonHidden(int nID) const { return Ask(TB_ISBUTTONHIDDEN, nID); }
    BOOL IsButtonIndeterminate(int nID) const { return Ask(TB_ISBUTTONINDETERMINATE, nID); }
    BOOL SetState(int nID, UINT nState) {
        return AfxSendInt(m_hWnd, TB_SETSTATE, static_cast<WPARAM>(nID), MAKELPARAM(nState, 0));
    }
    int GetState(int nID) const { return Ask(TB_GETSTATE, nID); }
    ///@}

    // --- Pictures and texts: the result is the index of the first one -----------------------
    ///@{
    /// @param nBitmapID a bitmap of the application or an extension module
    int AddBitmap(int nNumButtons, UINT nBitmapID);
    /// @param pBitmap must outlive the control
    int AddBitmap(int nNumButtons, CBitmap* pBitmap);
    int AddString(UINT nStringID);
    /// @param lpszStrings each with its end, one more at the end of all
    int AddStrings(LPCTSTR lpszStrings) { return AfxSendPointer(m_hWnd, TB_ADDSTRING, 0, lpszStrings); }
    ///@}

    // --- Layout ----------------------------------------------------------------------------
    ///@{
    void AutoSize() { AfxSendInt(m_hWnd, TB_AUTOSIZE); }
    void SetButtonStructSize(int nSize) {
        AfxSendInt(m_hWnd, TB_BUTTONSTRUCTSIZE, static_cast<WPARAM>(nSize));
    }
    BOOL SetBitmapSize(CSize size) {
        return AfxSendInt(m_hWnd, TB_SETBITMAPSIZE, 0, MAKELPARAM(size.cx, size.cy));
    }
    BOOL SetButtonSize(CSize size) {
        return AfxSendInt(m_hWnd, TB_SETBUTTONSIZE, 0, MAKELPARAM(size.cx, size.cy));
    }
    DWORD GetButtonSize() const { return static_cast<DWORD>(AfxSendInt(m_hWnd, TB_GETBUTTONSIZE)); }
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const {
        return AfxSendPointer(m_hWnd, TB_GETITEMRECT, static_cast<WPARAM>(nIndex), lpRect);
    }
    BOOL GetRect(int nID, LPRECT lpRect) const {
        return AfxSendPointer(m_hWnd, TB_GETRECT, static_cast<WPARAM>(nID), lpRect);
    }
    BOOL SetIndent(int iIndent) { return AfxSendInt(m_hWnd, TB_SETINDENT, static_cast<WPARAM>(iIndent)); }
    DWORD GetExtendedStyle() const { return static_cast<DWORD>(AfxSendInt(m_hWnd, TB_GETEXTENDEDSTYLE)); }
    DWORD SetExtendedStyle(DWORD dwExStyle) {
        return static_cast<DWORD>(AfxSendInt(m_hWnd, TB_SETEXTENDEDSTYLE, 0, static_cast<LPARAM>(dwExStyle)));
    }
    ///@}
    /// The list is not owned. @return the previous one
    CImageList* SetImageList(CImageList* pImageList);
    CImageList* GetImageList() const;
    /// The tool tip of the bar's buttons; null for none.
    ///@{
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pTip);
    ///@}

private:
    BOOL Switch(UINT message, int nID, BOOL bOn) {
        return AfxSendInt(m_hWnd, message, static_cast<WPARAM>(nID), MAKELPARAM(bOn, 0));
    }
    BOOL Ask(UINT message, int nID) const { return AfxSendInt(m_hWnd, message, static_cast<WPARAM>(nID)); }
};
