/// @file
/// The system's controls. Included by afxwin.h.
///
/// A member function that is one message to the control means what that message means;
/// what a control answers on failure (LB_ERR and the like) is its result.
#pragma once

#include "afxsend_.h"
#include "afxwnd_.h"

#include <commctrl.h>

/// A static text, icon or bitmap.
class AFX_CORE CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
public:
    CStatic() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID = 0xFFFF);
    using CWnd::Create;

    /// The picture is not owned. @return the previous one
    HICON SetIcon(HICON hIcon) { return AfxSendHandle(m_hWnd, STM_SETIMAGE, IMAGE_ICON, hIcon); }
    /// The icon shown; null for none.
    HICON GetIcon() const { return AfxSendHandle(m_hWnd, STM_GETIMAGE, IMAGE_ICON, HICON()); }
    /// As SetIcon, for a bitmap.
    HBITMAP SetBitmap(HBITMAP hBitmap) { return AfxSendHandle(m_hWnd, STM_SETIMAGE, IMAGE_BITMAP, hBitmap); }
    /// The bitmap shown; null for none.
    HBITMAP GetBitmap() const { return AfxSendHandle(m_hWnd, STM_GETIMAGE, IMAGE_BITMAP, HBITMAP()); }

    /// As SetIcon, for a cursor and for a metafile.
    ///@{
    HCURSOR SetCursor(HCURSOR hCursor) { return AfxSendHandle(m_hWnd, STM_SETIMAGE, IMAGE_CURSOR, hCursor); }
    HCURSOR GetCursor() const { return AfxSendHandle(m_hWnd, STM_GETIMAGE, IMAGE_CURSOR, HCURSOR()); }
    HENHMETAFILE SetEnhMetaFile(HENHMETAFILE hMetaFile) {
        return AfxSendHandle(m_hWnd, STM_SETIMAGE, IMAGE_ENHMETAFILE, hMetaFile);
    }
    HENHMETAFILE GetEnhMetaFile() const {
        return AfxSendHandle(m_hWnd, STM_GETIMAGE, IMAGE_ENHMETAFILE, HENHMETAFILE());
    }
    ///@}

    /// Draws an SS_OWNERDRAW static; override it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/// A push button, check box, radio button or group box.
class AFX_CORE CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)
public:
    CButton() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;

    /// @return BST_... bits
    UINT GetState() const { return static_cast<UINT>(AfxSendInt(m_hWnd, BM_GETSTATE)); }
    /// Shows the button pressed or not; sends no click.
    void SetState(BOOL bHighlight) { AfxSendInt(m_hWnd, BM_SETSTATE, static_cast<WPARAM>(bHighlight)); }
    /// 0 off, 1 on, 2 undecided.
    int GetCheck() const { return AfxSendInt(m_hWnd, BM_GETCHECK); }
    /// @param nCheck 0 off, 1 on, 2 undecided (three-state boxes)
    void SetCheck(int nCheck) { AfxSendInt(m_hWnd, BM_SETCHECK, static_cast<WPARAM>(nCheck)); }
    /// @return the BS_... style without what all windows have
    UINT GetButtonStyle() const { return GetStyle() & 0xFFFF; }
    /// Replaces the BS_... style.
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE) {
        AfxSendInt(m_hWnd, BM_SETSTYLE, nStyle, bRedraw);
    }
    /// The picture is not owned. @return the previous one
    HICON SetIcon(HICON hIcon) { return AfxSendHandle(m_hWnd, BM_SETIMAGE, IMAGE_ICON, hIcon); }
    /// The icon shown; null for none.
    HICON GetIcon() const { return AfxSendHandle(m_hWnd, BM_GETIMAGE, IMAGE_ICON, HICON()); }
    /// As SetIcon, for a bitmap.
    HBITMAP SetBitmap(HBITMAP hBitmap) { return AfxSendHandle(m_hWnd, BM_SETIMAGE, IMAGE_BITMAP, hBitmap); }
    /// The bitmap shown; null for none.
    HBITMAP GetBitmap() const { return AfxSendHandle(m_hWnd, BM_GETIMAGE, IMAGE_BITMAP, HBITMAP()); }

    /// As SetIcon, for a cursor.
    ///@{
    HCURSOR SetCursor(HCURSOR hCursor) { return AfxSendHandle(m_hWnd, BM_SETIMAGE, IMAGE_CURSOR, hCursor); }
    HCURSOR GetCursor() const { return AfxSendHandle(m_hWnd, BM_GETIMAGE, IMAGE_CURSOR, HCURSOR()); }
    ///@}
    /// What the system's newer buttons can. @return FALSE on failure
    ///@{
    BOOL GetIdealSize(LPSIZE psize) const { return AfxSendPointer(m_hWnd, BCM_GETIDEALSIZE, 0, psize); }
    BOOL SetTextMargin(LPRECT pmargin) { return AfxSendPointer(m_hWnd, BCM_SETTEXTMARGIN, 0, pmargin); }
    BOOL GetTextMargin(LPRECT pmargin) const { return AfxSendPointer(m_hWnd, BCM_GETTEXTMARGIN, 0, pmargin); }
    BOOL SetImageList(PBUTTON_IMAGELIST pbuttonImagelist) {
        return AfxSendPointer(m_hWnd, BCM_SETIMAGELIST, 0, pbuttonImagelist);
    }
    BOOL GetImageList(PBUTTON_IMAGELIST pbuttonImagelist) const {
        return AfxSendPointer(m_hWnd, BCM_GETIMAGELIST, 0, pbuttonImagelist);
    }
    BOOL SetShield(BOOL fElevationRequired) {
        return AfxSendInt(m_hWnd, BCM_SETSHIELD, 0, fElevationRequired);
    }
    BOOL SetNote(LPCTSTR lpszNote) { return AfxSendPointer(m_hWnd, BCM_SETNOTE, 0, lpszNote); }
    /// @param pcchNote in: the room at lpszNote; out: the characters needed
    BOOL GetNote(LPTSTR lpszNote, UINT* pcchNote) const {
        return AfxSendInt(m_hWnd, BCM_GETNOTE, reinterpret_cast<WPARAM>(pcchNote),
                          reinterpret_cast<LPARAM>(lpszNote));
    }
    UINT GetNoteLength() const { return static_cast<UINT>(AfxSendInt(m_hWnd, BCM_GETNOTELENGTH)); }
    BOOL SetDropDownState(BOOL fDropDown) {
        return AfxSendInt(m_hWnd, BCM_SETDROPDOWNSTATE, static_cast<WPARAM>(fDropDown));
    }
    BOOL SetSplitInfo(PBUTTON_SPLITINFO pInfo) { return AfxSendPointer(m_hWnd, BCM_SETSPLITINFO, 0, pInfo); }
    BOOL GetSplitInfo(PBUTTON_SPLITINFO pInfo) const {
        return AfxSendPointer(m_hWnd, BCM_GETSPLITINFO, 0, pInfo);
    }
    ///@}

    /// Draws a BS_OWNERDRAW button; override it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/// An entry field. Positions and lengths count characters from 0.
class AFX_CORE CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)
public:
    CEdit() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;

    // --- Selection -------------------------------------------------------------------
    /// @return start in the low word, end (behind the last character) in the high word
    DWORD GetSel() const { return static_cast<DWORD>(AfxSendInt(m_hWnd, EM_GETSEL)); }
    /// Writes start and end of the selection.
    void GetSel(int& nStartChar, int& nEndChar) const;
    /// (0, -1) selects all; a start of -1 takes the selection away.
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    /// As GetSel gives it; 0xFFFF stands for -1.
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE);
    /// Replaces the selection by a text, or inserts it at the caret.
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE) {
        AfxSendPointer(m_hWnd, EM_REPLACESEL, static_cast<WPARAM>(bCanUndo), lpszNewText);
    }

    // --- Text ------------------------------------------------------------------------
    /// The EM_... message of the same name, with its result.
    ///@{
    BOOL GetModify() const { return AfxSendInt(m_hWnd, EM_GETMODIFY); }
    void SetModify(BOOL bModified = TRUE) {
        AfxSendInt(m_hWnd, EM_SETMODIFY, static_cast<WPARAM>(bModified));
    }
    /// @param nMax longest text that the user can type; 0 is the system's own limit
    void SetLimitText(UINT nMax) { AfxSendInt(m_hWnd, EM_SETLIMITTEXT, nMax); }
    void LimitText(int nChars = 0) { AfxSendInt(m_hWnd, EM_LIMITTEXT, static_cast<WPARAM>(nChars)); }
    UINT GetLimitText() const { return static_cast<UINT>(AfxSendInt(m_hWnd, EM_GETLIMITTEXT)); }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE) {
        return AfxSendInt(m_hWnd, EM_SETREADONLY, static_cast<WPARAM>(bReadOnly));
    }
    void SetPasswordChar(TCHAR ch) { AfxSendInt(m_hWnd, EM_SETPASSWORDCHAR, ch); }
    TCHAR GetPasswordChar() const { return static_cast<TCHAR>(AfxSendInt(m_hWnd, EM_GETPASSWORDCHAR)); }
    ///@}

    /// The memory of a multi-line field's text.
    ///@{
    HLOCAL GetHandle() const { return AfxSendHandle(m_hWnd, EM_GETHANDLE, 0, HLOCAL()); }
    void SetHandle(HLOCAL hBuffer) {
        ::SendMessage(m_hWnd, EM_SETHANDLE, reinterpret_cast<WPARAM>(hBuffer), 0);
    }
    ///@}
    /// A text that an empty field shows in grey. @param fDrawIfFocused TRUE: with the focus, too
    ///@{
    BOOL SetCueBanner(LPCWSTR lpszText, BOOL fDrawIfFocused = FALSE) {
        return AfxSendPointer(m_hWnd, EM_SETCUEBANNER, static_cast<WPARAM>(fDrawIfFocused), lpszText);
    }
    BOOL GetCueBanner(LPWSTR lpszText, int cchText) const {
        return AfxSendInt(m_hWnd, EM_GETCUEBANNER, reinterpret_cast<WPARAM>(lpszText), cchText);
    }
    ///@}
    /// A balloon at the field that tells the user something about it.
    ///@{
    BOOL ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip) {
        return AfxSendPointer(m_hWnd, EM_SHOWBALLOONTIP, 0, pEditBalloonTip);
    }
    BOOL ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon = TTI_NONE) {
        EDITBALLOONTIP tip = {sizeof tip, lpszTitle, lpszText, ttiIcon};
        return ShowBalloonTip(&tip);
    }
    BOOL HideBalloonTip() { return AfxSendInt(m_hWnd, EM_HIDEBALLOONTIP); }
    ///@}

    // --- Clipboard and undo ------------------------------------------------------------
    /// Clipboard and undo by the message of the same name. Undo undoes itself when called again.
    ///@{
    void Cut() { AfxSendInt(m_hWnd, WM_CUT); }
    void Copy() { AfxSendInt(m_hWnd, WM_COPY); }
    void Paste() { AfxSendInt(m_hWnd, WM_PASTE); }
    void Clear() { AfxSendInt(m_hWnd, WM_CLEAR); }
    BOOL CanUndo() const { return AfxSendInt(m_hWnd, EM_CANUNDO); }
    BOOL Undo() { return AfxSendInt(m_hWnd, EM_UNDO); }
    void EmptyUndoBuffer() { AfxSendInt(m_hWnd, EM_EMPTYUNDOBUFFER); }
    ///@}

    // --- Lines -------------------------------------------------------------------------
    /// The number of lines, at least 1; the first line that can be seen, from 0.
    ///@{
    int GetLineCount() const { return AfxSendInt(m_hWnd, EM_GETLINECOUNT); }
    int GetFirstVisibleLine() const { return AfxSendInt(m_hWnd, EM_GETFIRSTVISIBLELINE); }
    ///@}
    /// Copies a line without a terminator. The buffer's first word holds its size in characters.
    /// @return the characters copied
    int GetLine(int nIndex, LPTSTR lpszBuffer) const {
        return AfxSendPointer(m_hWnd, EM_GETLINE, static_cast<WPARAM>(nIndex), lpszBuffer);
    }
    /// The same; the buffer's size in characters is given by nMaxLength.
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    /// @param nIndex a character, -1 the caret's
    int LineFromChar(int nIndex = -1) const {
        return AfxSendInt(m_hWnd, EM_LINEFROMCHAR, static_cast<WPARAM>(nIndex));
    }
    /// @return the first character of a line (-1: the caret's)
    int LineIndex(int nLine = -1) const {
        return AfxSendInt(m_hWnd, EM_LINEINDEX, static_cast<WPARAM>(nLine));
    }
    /// @param nLine a character of the line, -1 the caret's
    int LineLength(int nLine = -1) const {
        return AfxSendInt(m_hWnd, EM_LINELENGTH, static_cast<WPARAM>(nLine));
    }
    /// Scrolls by lines and by characters, down and to the right.
    void LineScroll(int nLines, int nChars = 0) {
        AfxSendInt(m_hWnd, EM_LINESCROLL, static_cast<WPARAM>(nChars), nLines);
    }
    /// Whether GetWindowText has line breaks where long lines are broken on the screen.
    BOOL FmtLines(BOOL bAddEOL) { return AfxSendInt(m_hWnd, EM_FMTLINES, static_cast<WPARAM>(bAddEOL)); }

    // --- Layout ------------------------------------------------------------------------
    /// The rectangle of the text in client coordinates; SetRectNP does not redraw.
    ///@{
    void GetRect(LPRECT lpRect) const { AfxSendPointer(m_hWnd, EM_GETRECT, 0, lpRect); }
    void SetRect(LPCRECT lpRect) { AfxSendPointer(m_hWnd, EM_SETRECT, 0, lpRect); }
    void SetRectNP(LPCRECT lpRect) { AfxSendPointer(m_hWnd, EM_SETRECTNP, 0, lpRect); }
    ///@}
    /// @param nLeft, nRight pixels
    void SetMargins(UINT nLeft, UINT nRight) {
        AfxSendInt(m_hWnd, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(nLeft, nRight));
    }
    /// @return left in the low word, right in the high word
    DWORD GetMargins() const { return static_cast<DWORD>(AfxSendInt(m_hWnd, EM_GETMARGINS)); }
    /// Tab stops in dialog units: the default, one distance for all, or each.
    void SetTabStops() { AfxSendPointer(m_hWnd, EM_SETTABSTOPS, 0, nullptr); }
    /// See SetTabStops(). @return FALSE on failure
    ///@{
    BOOL SetTabStops(const int& cxEachStop) { return AfxSendPointer(m_hWnd, EM_SETTABSTOPS, 1, &cxEachStop); }
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops) {
        return AfxSendPointer(m_hWnd, EM_SETTABSTOPS, static_cast<WPARAM>(nTabStops), rgTabStops);
    }
    ///@}
    /// The upper left corner of a character, client coordinates.
    CPoint PosFromChar(UINT nChar) const;
    /// @return the nearest character in the low word, its line in the high word
    int CharFromPos(CPoint pt) const { return AfxSendInt(m_hWnd, EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y)); }
};

/// A scroll bar that is a window of its own.
class AFX_CORE CScrollBar : public CWnd {
    DECLARE_DYNAMIC(CScrollBar)
public:
    CScrollBar() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;

    /// The position of the thumb.
    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    /// @return the previous position
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE) { return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw); }
    /// Reads or sets the smallest and the largest position.
    ///@{
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const {
        ::GetScrollRange(m_hWnd, SB_CTL, lpMinPos, lpMaxPos);
    }
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE) {
        ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
    }
    ///@}
    /// Shows or hides the bar.
    void ShowScrollBar(BOOL bShow = TRUE) { ::ShowScrollBar(m_hWnd, SB_CTL, bShow); }
    /// Enables the bar's arrows.
    /// @param nArrowFlags ESB_...
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH) {
        return ::EnableScrollBar(m_hWnd, SB_CTL, nArrowFlags);
    }
    /// Both set cbSize; GetScrollInfo sets fMask as well.
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    /// See SetScrollInfo.
    /// @param nMask SIF_...: what is wanted
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    /// @return the largest position that the thumb can reach
    int GetScrollLimit();
    /// @param pScrollInfo cbSize to be set by the caller
    BOOL GetScrollBarInfo(PSCROLLBARINFO pScrollInfo) const {
        return ::GetScrollBarInfo(m_hWnd, OBJID_CLIENT, pScrollInfo);
    }
};
