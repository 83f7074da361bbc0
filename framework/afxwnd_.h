/// @file
/// CWnd: the window class that all others derive from. Included by afxwin.h.
#pragma once

#include "afxwndon_.h"

#include <commctrl.h>

class CDataExchange;
struct CCreateContext;

/// The state of the modal loop and of the device shell that a window keeps.
enum AFX_WND_FLAGS : UINT {
    WF_MODALLOOP = 0x0001,     ///< A modal loop runs for this window.
    WF_CONTINUEMODAL = 0x0002, ///< ...and shall go on.
    WF_FULLSCREEN = 0x0010,    ///< Covers the work area, with the device's title bar.
    WF_OKBUTTON = 0x0020,      ///< The title bar carries an OK button.
    WF_SHOWSET = 0x0040,       ///< ShowWindow has been called for it.
    WF_CAPTIONACTIVE = 0x0080, ///< The title bar is drawn as that of the active window.
    WF_TOOLTIPS = 0x0200,      ///< Shows tips by itself.
    WF_INITFAILED = 0x0100,    ///< An exception came out of its initialisation: it must go.
};

/// Option flags of CWnd::RunModalLoop.
enum : DWORD { MLF_NOIDLEMSG = 0x0001, MLF_NOKICKIDLE = 0x0002, MLF_SHOWONIDLE = 0x0004 };

/// Sent to the main window when its thread is idle: it updates how its controls look.
constexpr UINT WM_IDLEUPDATECMDUI = 0x0363;
/// Sent to a window whose modal loop is idle; lParam counts the times in a row.
constexpr UINT WM_KICKIDLE = 0x036A;

/// Sent by the pen input system to ask which gestures a point takes; see
/// CWnd::GetGestureStatus.
constexpr UINT AFX_WM_TABLET_QUERYSYSTEMGESTURESTATUS = 0x02CC;
/// Answer: no press-and-hold at this point.
constexpr ULONG AFX_TABLET_DISABLE_PRESSANDHOLD = 0x00000001;

/// Extended style of the device: the title bar carries an OK button that sends IDOK.
/// Desktop Windows has no such style; the framework keeps it and draws the button.
constexpr DWORD WS_EX_CAPTIONOKBTN = 0x80000000;

/// A window of the system, or the C++ side of one.
///
/// One permanent CWnd at most belongs to a window: the one that created it or was
/// attached or subclassed to it. FromHandle gives a temporary object for any other
/// window; it is valid until the program is next idle. A CWnd that still has a
/// window destroys it in its destructor.
class AFX_CORE CWnd : public CWndHandlers {
    DECLARE_DYNCREATE(CWnd)
public:
    CWnd() = default;
    ~CWnd() override;

    /// Places in the order of windows, for SetWindowPos alone; no windows.
    ///@{
    static const CWnd& wndTop;
    static const CWnd& wndBottom;
    static const CWnd& wndTopMost;
    static const CWnd& wndNoTopMost;
    ///@}

    /// The window, or null.
    operator HWND() const { return m_hWnd; }
    /// The window; null also for a null object, as applications expect of this one function.
    HWND GetSafeHwnd() const;
    /// Whether both stand for the same window.
    ///@{
    bool operator==(const CWnd& other) const { return m_hWnd == other.m_hWnd; }
    bool operator!=(const CWnd& other) const { return m_hWnd != other.m_hWnd; }
    ///@}

    // --- Object and window ---------------------------------------------------------
    /// The object of a window, a temporary one if it has no permanent one; null for null.
    static CWnd* FromHandle(HWND hWnd);
    /// The permanent object of a window, or null.
    static CWnd* FromHandlePermanent(HWND hWnd);
    /// Deletes the temporary objects that nothing can hold any more; called when idle.
    static void DeleteTempMap();
    /// Makes this the permanent object of a window, whose messages still do not come here.
    /// @return FALSE for null
    BOOL Attach(HWND hWndNew);
    /// Gives the window up. @return what it was
    HWND Detach();
    /// Attaches this object to a window and routes its messages through the message map.
    BOOL SubclassWindow(HWND hWnd);
    /// The same for a control of a dialog. @return FALSE if there is no such control or this object
    /// has a window
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    /// Gives a subclassed window back its own procedure. @return the window
    HWND UnsubclassWindow();
    /// Called just before a window is attached to this object, its first message still to come.
    virtual void PreSubclassWindow();

    // --- Creation ------------------------------------------------------------------
    /// Creates a child window. @return FALSE if the system refuses.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, CCreateContext* pContext = nullptr);
    /// Creates a window of any kind. @return FALSE if the system refuses
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          int x, int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu,
                          LPVOID lpParam = nullptr);
    /// The same with a rectangle and a child's identifier.
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);
    /// Lets a derived class change the creation parameters. @return FALSE to give up.
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    /// Destroys the window; the object stays, unless its PostNcDestroy deletes it.
    virtual BOOL DestroyWindow();

    // --- Style and state -----------------------------------------------------------
    /// The Win32 function of the same name for this window, with its result; identifiers are the
    /// control's own. SetIcon returns the previous icon, which is not destroyed.
    ///@{
    DWORD GetStyle() const;
    /// Includes WS_EX_CAPTIONOKBTN, which the framework keeps itself.
    DWORD GetExStyle() const;
    /// @param nFlags SetWindowPos flags for a redraw of the frame, or 0 for none.
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    static BOOL AFXAPI ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);
    static BOOL AFXAPI ModifyStyleEx(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);
    BOOL EnableWindow(BOOL bEnable = TRUE);
    BOOL IsWindowEnabled() const;
    BOOL ShowWindow(int nCmdShow);
    BOOL IsWindowVisible() const;
    BOOL IsIconic() const;
    BOOL IsZoomed() const;
    int GetDlgCtrlID() const;
    int SetDlgCtrlID(int nID);
    HICON SetIcon(HICON hIcon, BOOL bBigIcon);
    HICON GetIcon(BOOL bBigIcon) const;
    ///@}

    // --- Text and font -------------------------------------------------------------
    /// The window's text, and the font of a control; a font is not owned and must outlive the
    /// control. nMaxCount is the room at lpszString, with the terminator.
    ///@{
    void SetWindowText(LPCTSTR lpszString);
    int GetWindowText(LPTSTR lpszString, int nMaxCount) const;
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const;
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    CFont* GetFont() const;
    ///@}

    // --- Place and size ------------------------------------------------------------
    /// The Win32 function of the same name for this window. Places are pixels: of the screen, or of
    /// the parent's client area for a child.
    ///@{
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE);
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE);
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    void GetWindowRect(LPRECT lpRect) const;
    void GetClientRect(LPRECT lpRect) const;
    void ClientToScreen(LPPOINT lpPoint) const;
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const;
    void ScreenToClient(LPRECT lpRect) const;
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const;
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const;
    ///@}
    /// What CalcWindowRect counts for: the window's frame alone, or scroll bars as well.
    enum AdjustType { adjustBorder = 0, adjustOutside = 1 };
    /// Turns a client rectangle into the rectangle of the window around it.
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder);
    /// Centres on pAlternateOwner, else on the owner (or parent, for a child), else on the screen;
    /// a window with an invisible or minimised owner, too. Never leaves the work area.
    void CenterWindow(CWnd* pAlternateOwner = nullptr);
    /// Moves the window before its siblings.
    void BringWindowToTop();

    // --- Relations -----------------------------------------------------------------
    /// The Win32 function of the same name. Results are objects of FromHandle, null if there is no
    /// such window; setters return the previous one.
    ///@{
    CWnd* GetParent() const;
    CWnd* SetParent(CWnd* pWndNewParent);
    /// The owner set by SetOwner, else the parent.
    CWnd* GetOwner() const;
    void SetOwner(CWnd* pOwnerWnd);
    CWnd* GetTopLevelParent() const;
    CWnd* GetDlgItem(int nID) const;
    void GetDlgItem(int nID, HWND* phWnd) const;
    CWnd* GetWindow(UINT nCmd) const;
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    BOOL IsChild(const CWnd* pWnd) const;
    static CWnd* GetActiveWindow();
    CWnd* SetActiveWindow();
    static CWnd* GetForegroundWindow();
    BOOL SetForegroundWindow();
    static CWnd* GetFocus();
    CWnd* SetFocus();
    static CWnd* GetCapture();
    CWnd* SetCapture();
    static CWnd* GetDesktopWindow();
    static CWnd* WindowFromPoint(POINT point);
    ///@}
    /// The top-level window that should own a dialog of pParent (the main window for null).
    /// @param pWndTop receives a top-level window to disable as well, or null
    static CWnd* GetSafeOwner(CWnd* pParent = nullptr, HWND* pWndTop = nullptr);

    // --- Painting ------------------------------------------------------------------
    /// The Win32 function of the same name for this window. Who takes a context by GetDC or
    /// GetWindowDC gives it back by ReleaseDC.
    ///@{
    CDC* GetDC();
    CDC* GetWindowDC();
    int ReleaseDC(CDC* pDC);
    CDC* BeginPaint(LPPAINTSTRUCT lpPaint);
    void EndPaint(LPPAINTSTRUCT lpPaint);
    void Invalidate(BOOL bErase = TRUE);
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE);
    void ValidateRect(LPCRECT lpRect);
    void UpdateWindow();
    BOOL RedrawWindow(LPCRECT lpRectUpdate = nullptr, CRgn* prgnUpdate = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    void SetRedraw(BOOL bRedraw = TRUE);
    ///@}

    // --- Messages ------------------------------------------------------------------
    /// Sends or posts a message to this window, or sends it to all windows below it (bDeep) or to
    /// its children only.
    ///@{
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL bDeep = TRUE);
    ///@}
    /// The message that the calling thread is handling. A handler may rewrite it before
    /// it calls Default().
    static MSG* GetCurrentMessage();
    /// Default processing of the current message.
    LRESULT Default() { return CWndHandlers::Default(); }
    /// The Win32 function of the same name for this window; times in milliseconds.
    ///@{
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer = nullptr);
    BOOL KillTimer(UINT_PTR nIDEvent);
    ///@}
    /// Shows a message box owned by this window; without a caption the application's name. @return
    /// the button
    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = nullptr, UINT nType = MB_OK);
    /// Sees each message of the thread's queue before it is translated and dispatched.
    /// @return TRUE if the message shall go no further.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Lets the system's dialog keys work. @return TRUE if the message was one of them
    BOOL PreTranslateInput(LPMSG lpMsg);
    /// Walks from the message's window up to hWndStop and offers it to each.
    static BOOL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);

    // --- Tips ----------------------------------------------------------------------
    /// Lets the framework show tips for the children of this window. It asks the window for the text by
    /// TTN_NEEDTEXT from control 0. @return TRUE
    BOOL EnableToolTips(BOOL bEnable = TRUE);
    /// What a point (client coordinates) shows a tip for. Here: the child.
    /// @param pTI receives the tool; may be null @return its number; -1 for none
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const;
    /// Shows or hides the tip after a message; PreTranslateMessage calls it.
    void FilterToolTipMessage(MSG* pMsg);
    /// Hides the tip.
    static void AFXAPI CancelToolTips(BOOL bKeys = FALSE);

    // --- Dialog items --------------------------------------------------------------
    /// The Win32 function of the same name for a control of this dialog.
    ///@{
    void SetDlgItemText(int nID, LPCTSTR lpszString);
    int GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const;
    int GetDlgItemText(int nID, CString& rString) const;
    void SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE);
    UINT GetDlgItemInt(int nID, BOOL* lpTrans = nullptr, BOOL bSigned = TRUE) const;
    LRESULT SendDlgItemMessage(int nID, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    void CheckDlgButton(int nIDButton, UINT nCheck);
    UINT IsDlgButtonChecked(int nIDButton) const;
    void CheckRadioButton(int nIDFirst, int nIDLast, int nIDCheckButton);
    int GetCheckedRadioButton(int nIDFirst, int nIDLast) const;
    ///@}
    /// Runs the initialisation data (RT_DLGINIT) of a dialog template.
    BOOL ExecuteDlgInit(LPCTSTR lpszResourceName);
    /// The same with the data itself. @param nSize its bytes; it ends with a word 0 before them
    BOOL ExecuteDlgInit(const void* lpResource, size_t nSize);
    /// Lets the system handle a dialog key. @return TRUE if it was one
    BOOL IsDialogMessage(LPMSG lpMsg);
    /// Exchanges data between members and controls.
    /// @param bSaveAndValidate TRUE: from the controls, FALSE: to them
    /// @return FALSE if a value was refused; the user has been told and stands in its field.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);

    /// Asks the target for each control how it looks, as ON_UPDATE_COMMAND_UI tells.
    /// @param bDisableIfNoHndler whether push buttons that nobody handles are disabled
    virtual void UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);

    // --- Modal loop ----------------------------------------------------------------
    /// Runs a message loop until ContinueModal says no.
    /// @param dwFlags MLF_...
    /// @return what EndModalLoop was given
    int RunModalLoop(DWORD dwFlags = 0);
    /// Whether the modal loop goes on.
    virtual BOOL ContinueModal();
    /// Ends the modal loop with a result.
    virtual void EndModalLoop(int nResult);

    // --- Routing -------------------------------------------------------------------
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) override;
    /// Offers the current message to the control it came from.
    /// @return TRUE if the control has handled it.
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = nullptr);
    /// Offers the current message to the control, if it has a permanent object.
    static BOOL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = nullptr);

protected:
    UINT m_nFlags = 0;      ///< AFX_WND_FLAGS
    int m_nModalResult = 0; ///< What EndModalLoop was given.

    /// All messages of the window come here: the message map first, then DefWindowProc.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// What the window did before this object was attached to it.
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// Looks for a handler in the message map. @return TRUE if one has handled the message
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// WM_COMMAND: the control itself first, then the message map. @return TRUE if handled
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    /// WM_NOTIFY, in the same order. @return TRUE if handled
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// A notification of this control that its parent hands back.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// Offers a message of the parent to this control's own map.
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// Last call for a window: the object may delete itself.
    virtual void PostNcDestroy();
    /// An exception came out of WM_INITDIALOG; the user has been told. Here: whoever creates the
    /// dialog destroys it.
    virtual void OnInitFailed();
    /// Override it with DDX_ and DDV_ calls; UpdateData calls it. Here: nothing.
    virtual void DoDataExchange(CDataExchange* pDX);
    /// Which pen gestures a point (client coordinates) takes. Here: no press-and-hold, so
    /// that a press reaches the control at once and not after the system's pause.
    virtual ULONG GetGestureStatus(CPoint ptTouch);
    /// The window procedure to go back to; null before the window is attached.
    virtual WNDPROC* GetSuperWndProcAddr();

    /// Handlers that do more than default processing.
    ///@{
    afx_msg void OnNcDestroy();
    /// The control's own choice first (its reflected message), then the system's.
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg int OnCompareItem(int nIDCtl, LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    afx_msg void OnDeleteItem(int nIDCtl, LPDELETEITEMSTRUCT lpDeleteItemStruct);
    afx_msg int OnCharToItem(UINT nKey, CListBox* pListBox, UINT nIndex);
    afx_msg int OnVKeyToItem(UINT nKey, CListBox* pListBox, UINT nIndex);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);
    /// Asks for each command of the menu how it looks.
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg LRESULT OnTabletQueryGesture(WPARAM wParam, LPARAM lParam);
    ///@}

    DECLARE_MESSAGE_MAP()

private:
    friend class CDialog;
    friend class CWndHandlers;
    friend struct AfxWndAccess;

    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    /// What the window did before this object was attached to it.
    LRESULT CallSuper(UINT message, WPARAM wParam, LPARAM lParam);

    HWND m_hWndOwner = nullptr;
    WNDPROC m_pfnSuper = nullptr;
};
