/// @file
/// The handlers that a window class may override. Included by afxwin.h.
#pragma once

#include "afxwndsys_.h"

#include <type_traits>

class CDC;
class CListBox;

/// The base of CWnd with its handlers. The handler of a message has its name; a derived class that wants the
/// message declares the same member and a line in its message map. Here: default processing of the current
/// message; the arguments do not change it.
class AFX_CORE CWndHandlers : public CWndSystem {
protected:
    CWndHandlers() = default;

    /// Default processing of the current message.
    LRESULT Default();
    /// The same, as the type that a handler returns.
    template <class Result>
    Result DefaultAs() {
        if constexpr (std::is_pointer_v<Result>)
            return reinterpret_cast<Result>(Default());
        else
            return static_cast<Result>(Default());
    }

    afx_msg void OnActivate(UINT, CWnd*, BOOL) { Default(); }
    afx_msg void OnActivateApp(BOOL, DWORD) { Default(); }
    afx_msg void OnAppCommand(CWnd*, UINT, UINT, UINT) { Default(); }
    afx_msg void OnAskCbFormatName(UINT, LPTSTR) { Default(); }
    afx_msg void OnCancelMode() { Default(); }
    afx_msg void OnCaptureChanged(CWnd*) { Default(); }
    afx_msg void OnChangeCbChain(HWND, HWND) { Default(); }
    afx_msg void OnChangeUIState(UINT, UINT) { Default(); }
    afx_msg void OnChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnChildActivate() { Default(); }
    afx_msg void OnClipboardUpdate() { Default(); }
    afx_msg void OnClose() { Default(); }
    afx_msg void OnCompacting(UINT) { Default(); }
    afx_msg void OnContextMenu(CWnd*, CPoint) { Default(); }
    afx_msg BOOL OnCopyData(CWnd*, COPYDATASTRUCT*) { return DefaultAs<BOOL>(); }
    afx_msg int OnCreate(LPCREATESTRUCT) { return DefaultAs<int>(); }
    afx_msg void OnDeadChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnDestroy() { Default(); }
    afx_msg void OnDestroyClipboard() { Default(); }
    afx_msg BOOL OnDeviceChange(UINT, DWORD_PTR) { return DefaultAs<BOOL>(); }
    afx_msg void OnDevModeChange(LPTSTR) { Default(); }
    afx_msg void OnDrawClipboard() { Default(); }
    afx_msg void OnDropFiles(HDROP) { Default(); }
    afx_msg void OnEnable(BOOL) { Default(); }
    afx_msg void OnEndSession(BOOL) { Default(); }
    afx_msg void OnEnterIdle(UINT, CWnd*) { Default(); }
    afx_msg void OnEnterMenuLoop(BOOL) { Default(); }
    afx_msg void OnEnterSizeMove() { Default(); }
    afx_msg BOOL OnEraseBkgnd(CDC*) { return DefaultAs<BOOL>(); }
    afx_msg void OnExitMenuLoop(BOOL) { Default(); }
    afx_msg void OnExitSizeMove() { Default(); }
    afx_msg void OnFontChange() { Default(); }
    afx_msg UINT OnGetDlgCode() { return DefaultAs<UINT>(); }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO*) { Default(); }
    afx_msg BOOL OnHelpInfo(HELPINFO*) { return DefaultAs<BOOL>(); }
    afx_msg void OnHotKey(UINT, UINT, UINT) { Default(); }
    afx_msg void OnHScrollClipboard(CWnd*, UINT, UINT) { Default(); }
    afx_msg void OnIconEraseBkgnd(CDC*) { Default(); }
    afx_msg void OnInitMenu(CMenu*) { Default(); }
    afx_msg void OnInitMenuPopup(CMenu*, UINT, BOOL) { Default(); }
    afx_msg void OnRawInput(UINT, HRAWINPUT) { Default(); }
    afx_msg void OnInputLangChange(UINT, UINT) { Default(); }
    afx_msg void OnInputLangChangeRequest(UINT, UINT) { Default(); }
    afx_msg void OnKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnKeyUp(UINT, UINT, UINT) { Default(); }
    afx_msg void OnKillFocus(CWnd*) { Default(); }
    afx_msg void OnLButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnMButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnMButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnMButtonUp(UINT, CPoint) { Default(); }
    afx_msg LRESULT OnMenuChar(UINT, UINT, CMenu*) { return DefaultAs<LRESULT>(); }
    afx_msg UINT OnMenuDrag(UINT, CMenu*) { return DefaultAs<UINT>(); }
    afx_msg UINT OnMenuGetObject(MENUGETOBJECTINFO*) { return DefaultAs<UINT>(); }
    afx_msg void OnMenuRButtonUp(UINT, CMenu*) { Default(); }
    afx_msg void OnMenuSelect(UINT, UINT, HMENU) { Default(); }
    afx_msg int OnMouseActivate(CWnd*, UINT, UINT) { return DefaultAs<int>(); }
    afx_msg void OnMouseHover(UINT, CPoint) { Default(); }
    afx_msg void OnMouseHWheel(UINT, short, CPoint) { Default(); }
    afx_msg void OnMouseLeave() { Default(); }
    afx_msg void OnMouseMove(UINT, CPoint) { Default(); }
    afx_msg BOOL OnMouseWheel(UINT, short, CPoint) { return DefaultAs<BOOL>(); }
    afx_msg void OnMove(int, int) { Default(); }
    afx_msg void OnMoving(UINT, LPRECT) { Default(); }
    afx_msg BOOL OnNcActivate(BOOL) { return DefaultAs<BOOL>(); }
    afx_msg void OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*) { Default(); }
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT) { return DefaultAs<BOOL>(); }
    afx_msg LRESULT OnNcHitTest(CPoint) { return DefaultAs<LRESULT>(); }
    afx_msg void OnNcLButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnNcLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnNcLButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnNcMButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnNcMButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnNcMButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnNcMouseHover(UINT, CPoint) { Default(); }
    afx_msg void OnNcMouseLeave() { Default(); }
    afx_msg void OnNcMouseMove(UINT, CPoint) { Default(); }
    afx_msg void OnNcPaint() { Default(); }
    afx_msg void OnNcRButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnNcRButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnNcRButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnNcXButtonDblClk(short, UINT, CPoint) { Default(); }
    afx_msg void OnNcXButtonDown(short, UINT, CPoint) { Default(); }
    afx_msg void OnNcXButtonUp(short, UINT, CPoint) { Default(); }
    afx_msg void OnNextMenu(UINT, LPMDINEXTMENU) { Default(); }
    afx_msg UINT OnNotifyFormat(CWnd*, UINT) { return DefaultAs<UINT>(); }
    afx_msg void OnPaint() { Default(); }
    afx_msg void OnPaintClipboard(CWnd*, HGLOBAL) { Default(); }
    afx_msg void OnPaletteChanged(CWnd*) { Default(); }
    afx_msg void OnPaletteIsChanging(CWnd*) { Default(); }
    afx_msg UINT OnPowerBroadcast(UINT, LPARAM) { return DefaultAs<UINT>(); }
    afx_msg HCURSOR OnQueryDragIcon() { return DefaultAs<HCURSOR>(); }
    afx_msg BOOL OnQueryEndSession() { return DefaultAs<BOOL>(); }
    afx_msg BOOL OnQueryNewPalette() { return DefaultAs<BOOL>(); }
    afx_msg BOOL OnQueryOpen() { return DefaultAs<BOOL>(); }
    afx_msg UINT OnQueryUIState() { return DefaultAs<UINT>(); }
    afx_msg void OnRButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnRenderAllFormats() { Default(); }
    afx_msg void OnRenderFormat(UINT) { Default(); }
    afx_msg BOOL OnSetCursor(CWnd*, UINT, UINT) { return DefaultAs<BOOL>(); }
    afx_msg void OnSetFocus(CWnd*) { Default(); }
    afx_msg void OnSettingChange(UINT, LPCTSTR) { Default(); }
    afx_msg void OnShowWindow(BOOL, UINT) { Default(); }
    afx_msg void OnSize(UINT, int, int) { Default(); }
    afx_msg void OnSizeClipboard(CWnd*, HGLOBAL) { Default(); }
    afx_msg void OnSizing(UINT, LPRECT) { Default(); }
    afx_msg void OnSpoolerStatus(UINT, UINT) { Default(); }
    afx_msg void OnStyleChanged(int, LPSTYLESTRUCT) { Default(); }
    afx_msg void OnStyleChanging(int, LPSTYLESTRUCT) { Default(); }
    afx_msg void OnSysChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysColorChange() { Default(); }
    afx_msg void OnSysCommand(UINT, LPARAM) { Default(); }
    afx_msg void OnSysDeadChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysKeyUp(UINT, UINT, UINT) { Default(); }
    afx_msg void OnTCard(UINT, DWORD) { Default(); }
    afx_msg void OnTimeChange() { Default(); }
    afx_msg void OnTimer(UINT_PTR) { Default(); }
    afx_msg void OnUniChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnUnInitMenuPopup(CMenu*, UINT) { Default(); }
    afx_msg void OnUpdateUIState(UINT, UINT) { Default(); }
    afx_msg void OnUserChanged() { Default(); }
    afx_msg void OnVScrollClipboard(CWnd*, UINT, UINT) { Default(); }
    afx_msg void OnWindowPosChanged(WINDOWPOS*) { Default(); }
    afx_msg void OnWindowPosChanging(WINDOWPOS*) { Default(); }
    afx_msg void OnWinIniChange(LPCTSTR) { Default(); }
    afx_msg void OnSessionChange(UINT, UINT) { Default(); }
    afx_msg void OnXButtonDblClk(UINT, UINT, CPoint) { Default(); }
    afx_msg void OnXButtonDown(UINT, UINT, CPoint) { Default(); }
    afx_msg void OnXButtonUp(UINT, UINT, CPoint) { Default(); }
};
