/// @file
/// Fields for formatted text. Included by afxcmn.h.
///
/// A member that is one message to the control means what that message means, and has its result.
#pragma once

#include "afxwin.h"

#include <richedit.h>

/// Makes the system's control known; call it before a dialog with one is created. @return FALSE on failure
///@{
AFX_CORE BOOL AFXAPI AfxInitRichEdit();
AFX_CORE BOOL AFXAPI AfxInitRichEdit2();
///@}

/// A field for formatted text. Positions count characters from 0.
class AFX_CORE CRichEditCtrl : public CWnd {
    DECLARE_DYNAMIC(CRichEditCtrl)
public:
    CRichEditCtrl() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;

    // --- Selection -------------------------------------------------------------------
    ///@{
    void GetSel(CHARRANGE& cr) const { AfxSendPointer(m_hWnd, EM_EXGETSEL, 0, &cr); }
    void GetSel(long& nStartChar, long& nEndChar) const;
    void SetSel(CHARRANGE& cr) { AfxSendPointer(m_hWnd, EM_EXSETSEL, 0, &cr); }
    /// (0, -1) selects all.
    void SetSel(long nStartChar, long nEndChar);
    void HideSelection(BOOL bHide, BOOL bPerm) {
        AfxSendInt(m_hWnd, EM_HIDESELECTION, static_cast<WPARAM>(bHide), bPerm);
    }
    CString GetSelText() const;
    /// @param lpBuf room for the text and its terminator
    long GetSelText(LPTSTR lpBuf) const { return AfxSendPointer(m_hWnd, EM_GETSELTEXT, 0, lpBuf); }
    WORD GetSelectionType() const { return static_cast<WORD>(AfxSendInt(m_hWnd, EM_SELECTIONTYPE)); }
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE) {
        AfxSendPointer(m_hWnd, EM_REPLACESEL, static_cast<WPARAM>(bCanUndo), lpszNewText);
    }
    void Clear() { AfxSendInt(m_hWnd, WM_CLEAR); }
    void Copy() { AfxSendInt(m_hWnd, WM_COPY); }
    void Cut() { AfxSendInt(m_hWnd, WM_CUT); }
    void Paste() { AfxSendInt(m_hWnd, WM_PASTE); }
    BOOL CanPaste(UINT nFormat = 0) const { return AfxSendInt(m_hWnd, EM_CANPASTE, nFormat); }
    BOOL CanUndo() const { return AfxSendInt(m_hWnd, EM_CANUNDO); }
    BOOL Undo() { return AfxSendInt(m_hWnd, EM_UNDO); }
    BOOL CanRedo() const { return AfxSendInt(m_hWnd, EM_CANREDO); }
    BOOL Redo() { return AfxSendInt(m_hWnd, EM_REDO); }
    void EmptyUndoBuffer() { AfxSendInt(m_hWnd, EM_EMPTYUNDOBUFFER); }
    ///@}

    // --- Text ------------------------------------------------------------------------
    ///@{
    long GetTextLength() const { return ::GetWindowTextLength(m_hWnd); }
    long GetTextLengthEx(DWORD dwFlags, UINT uCodePage = static_cast<UINT>(-1)) const;
    int GetTextRange(int nFirst, int nLast, CString& refString) const;
    BOOL GetModify() const { return AfxSendInt(m_hWnd, EM_GETMODIFY); }
    void SetModify(BOOL bModified = TRUE) {
        AfxSendInt(m_hWnd, EM_SETMODIFY, static_cast<WPARAM>(bModified));
    }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE) {
        return AfxSendInt(m_hWnd, EM_SETREADONLY, static_cast<WPARAM>(bReadOnly));
    }
    void LimitText(long nChars = 0) { AfxSendInt(m_hWnd, EM_EXLIMITTEXT, 0, nChars); }
    long GetLimitText() const { return AfxSendInt(m_hWnd, EM_GETLIMITTEXT); }
    /// The first character of what is found, -1 for none.
    /// @param dwFlags FR_...
    long FindText(DWORD dwFlags, FINDTEXTEX* pFindText) const {
        return AfxSendPointer(m_hWnd, EM_FINDTEXTEXW, dwFlags, pFindText);
    }
    /// @param nFormat SF_...
    long StreamIn(int nFormat, EDITSTREAM& es) {
        return AfxSendPointer(m_hWnd, EM_STREAMIN, static_cast<WPARAM>(nFormat), &es);
    }
    long StreamOut(int nFormat, EDITSTREAM& es) {
        return AfxSendPointer(m_hWnd, EM_STREAMOUT, static_cast<WPARAM>(nFormat), &es);
    }
    ///@}

    // --- Lines -----------------------------------------------------------------------
    ///@{
    int GetLineCount() const { return AfxSendInt(m_hWnd, EM_GETLINECOUNT); }
    int GetFirstVisibleLine() const { return AfxSendInt(m_hWnd, EM_GETFIRSTVISIBLELINE); }
    /// Copies a line without a terminator. The buffer's first word holds its size in characters.
    int GetLine(int nIndex, LPTSTR lpszBuffer) const {
        return AfxSendPointer(m_hWnd, EM_GETLINE, static_cast<WPARAM>(nIndex), lpszBuffer);
    }
    /// The same; the buffer's size in characters is given by nMaxLength.
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    long LineFromChar(long nIndex) const { return AfxSendInt(m_hWnd, EM_EXLINEFROMCHAR, 0, nIndex); }
    int LineIndex(int nLine = -1) const {
        return AfxSendInt(m_hWnd, EM_LINEINDEX, static_cast<WPARAM>(nLine));
    }
    int LineLength(int nLine = -1) const {
        return AfxSendInt(m_hWnd, EM_LINELENGTH, static_cast<WPARAM>(nLine));
    }
    void LineScroll(int nLines, int nChars = 0) {
        AfxSendInt(m_hWnd, EM_LINESCROLL, static_cast<WPARAM>(nChars), nLines);
    }
    CPoint GetCharPos(long lChar) const;
    int CharFromPos(CPoint pt) const { return AfxSendPointer(m_hWnd, EM_CHARFROMPOS, 0, &pt); }
    ///@}

    // --- Format ----------------------------------------------------------------------
    /// cbSize of the formats is set here; getters return what all of the selection has in common.
    ///@{
    DWORD GetDefaultCharFormat(CHARFORMAT& cf) const { return GetFormat(SCF_DEFAULT, cf); }
    DWORD GetDefaultCharFormat(CHARFORMAT2& cf) const { return GetFormat(SCF_DEFAULT, cf); }
    DWORD GetSelectionCharFormat(CHARFORMAT& cf) const { return GetFormat(SCF_SELECTION, cf); }
    DWORD GetSelectionCharFormat(CHARFORMAT2& cf) const { return GetFormat(SCF_SELECTION, cf); }
    BOOL SetDefaultCharFormat(CHARFORMAT& cf) { return SetFormat(SCF_DEFAULT, cf); }
    BOOL SetDefaultCharFormat(CHARFORMAT2& cf) { return SetFormat(SCF_DEFAULT, cf); }
    BOOL SetSelectionCharFormat(CHARFORMAT& cf) { return SetFormat(SCF_SELECTION, cf); }
    BOOL SetSelectionCharFormat(CHARFORMAT2& cf) { return SetFormat(SCF_SELECTION, cf); }
    BOOL SetWordCharFormat(CHARFORMAT& cf) { return SetFormat(SCF_SELECTION | SCF_WORD, cf); }
    BOOL SetWordCharFormat(CHARFORMAT2& cf) { return SetFormat(SCF_SELECTION | SCF_WORD, cf); }
    DWORD GetParaFormat(PARAFORMAT& pf) const {
        pf.cbSize = sizeof pf;
        return static_cast<DWORD>(AfxSendPointer(m_hWnd, EM_GETPARAFORMAT, 0, &pf));
    }
    BOOL SetParaFormat(PARAFORMAT& pf) {
        pf.cbSize = sizeof pf;
        return AfxSendPointer(m_hWnd, EM_SETPARAFORMAT, 0, &pf);
    }
    /// @param bSysColor TRUE: the system's colour of windows
    COLORREF SetBackgroundColor(BOOL bSysColor, COLORREF cr) {
        return static_cast<COLORREF>(
            AfxSendInt(m_hWnd, EM_SETBKGNDCOLOR, static_cast<WPARAM>(bSysColor), static_cast<LPARAM>(cr)));
    }
    ///@}

    // --- Events and looks --------------------------------------------------------------
    ///@{
    long GetEventMask() const { return AfxSendInt(m_hWnd, EM_GETEVENTMASK); }
    /// @param dwEventMask ENM_...
    DWORD SetEventMask(DWORD dwEventMask) {
        return static_cast<DWORD>(AfxSendInt(m_hWnd, EM_SETEVENTMASK, 0, static_cast<LPARAM>(dwEventMask)));
    }
    DWORD SetOptions(WORD wOp, DWORD dwFlags) {
        return static_cast<DWORD>(AfxSendInt(m_hWnd, EM_SETOPTIONS, wOp, static_cast<LPARAM>(dwFlags)));
    }
    BOOL SetAutoURLDetect(BOOL bEnable = TRUE) {
        return AfxSendInt(m_hWnd, EM_AUTOURLDETECT, static_cast<WPARAM>(bEnable));
    }
    void GetRect(LPRECT lpRect) const { AfxSendPointer(m_hWnd, EM_GETRECT, 0, lpRect); }
    void SetRect(LPCRECT lpRect) { AfxSendPointer(m_hWnd, EM_SETRECT, 0, lpRect); }
    void RequestResize() { AfxSendInt(m_hWnd, EM_REQUESTRESIZE); }
    UINT GetUndoName() const { return static_cast<UINT>(AfxSendInt(m_hWnd, EM_GETUNDONAME)); }
    BOOL SetTextMode(UINT fMode) { return AfxSendInt(m_hWnd, EM_SETTEXTMODE, fMode); }
    /// Breaks lines at the width of a device; null and 0 for that of the window, 1 for none.
    BOOL SetTargetDevice(HDC hDC, long lLineWidth) {
        return AfxSendInt(m_hWnd, EM_SETTARGETDEVICE, reinterpret_cast<WPARAM>(hDC), lLineWidth);
    }
    ///@}

private:
    template <class Format>
    DWORD GetFormat(DWORD dwWhat, Format& format) const {
        format.cbSize = sizeof format;
        return static_cast<DWORD>(AfxSendPointer(m_hWnd, EM_GETCHARFORMAT, dwWhat, &format));
    }
    template <class Format>
    BOOL SetFormat(DWORD dwWhat, Format& format) {
        format.cbSize = sizeof format;
        return AfxSendPointer(m_hWnd, EM_SETCHARFORMAT, dwWhat, &format);
    }
};
