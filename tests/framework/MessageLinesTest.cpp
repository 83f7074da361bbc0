// Message maps: each line for a window message calls the handler of its name with what the message carries.
#include "support/TestApp.h"

#include <string>

using namespace testkit;

namespace {

constexpr UINT WM_HELPINFO = WM_HELP, WM_SESSIONCHANGE = WM_WTSSESSION_CHANGE;
constexpr WPARAM kW = MAKEWPARAM(258, 65534);
constexpr LPARAM kL = MAKELPARAM(65531, 7); // -5 as a coordinate

// Line, handler, and what the handler is given: W and L are the parameters whole, as numbers, windows, menus
// or pointers; the rest are their halves. The lines whose handlers have two forms are in MessageMapTest.cpp;
// WININICHANGE is an older name of SETTINGCHANGE.
// clang-format off
#define LINES                                                                                                \
    X(ACTIVATE, OnActivate, "258 L 65534") \
    X(APPCOMMAND, OnAppCommand, "W 7 0 65531") X(ASKCBFORMATNAME, OnAskCbFormatName, "W L") \
    X(CANCELMODE, OnCancelMode, "") X(CAPTURECHANGED, OnCaptureChanged, "L") \
    X(CHANGECBCHAIN, OnChangeCbChain, "W L") X(CHANGEUISTATE, OnChangeUIState, "258 65534") \
    X(CHAR, OnChar, "W 65531 7") X(CHARTOITEM, OnCharToItem, "258 L 65534") \
    X(CHILDACTIVATE, OnChildActivate, "") X(CLIPBOARDUPDATE, OnClipboardUpdate, "") \
    X(CLOSE, OnClose, "") X(COMPACTING, OnCompacting, "W") X(COMPAREITEM, OnCompareItem, "W L") \
    X(CONTEXTMENU, OnContextMenu, "W -5 7") X(COPYDATA, OnCopyData, "W L") X(CREATE, OnCreate, "L") \
    X(DEADCHAR, OnDeadChar, "W 65531 7") X(DELETEITEM, OnDeleteItem, "W L") X(DESTROY, OnDestroy, "") \
    X(DESTROYCLIPBOARD, OnDestroyClipboard, "") X(DEVICECHANGE, OnDeviceChange, "W L") \
    X(DEVMODECHANGE, OnDevModeChange, "L") X(DRAWCLIPBOARD, OnDrawClipboard, "") \
    X(DRAWITEM, OnDrawItem, "W L") X(DROPFILES, OnDropFiles, "W") X(ENABLE, OnEnable, "W") \
    X(ENDSESSION, OnEndSession, "W") X(ENTERIDLE, OnEnterIdle, "W L") \
    X(ENTERMENULOOP, OnEnterMenuLoop, "W") X(ENTERSIZEMOVE, OnEnterSizeMove, "") \
    X(ERASEBKGND, OnEraseBkgnd, "W") X(EXITMENULOOP, OnExitMenuLoop, "W") \
    X(EXITSIZEMOVE, OnExitSizeMove, "") X(FONTCHANGE, OnFontChange, "") X(GETDLGCODE, OnGetDlgCode, "") \
    X(GETMINMAXINFO, OnGetMinMaxInfo, "L") X(HELPINFO, OnHelpInfo, "L") X(HOTKEY, OnHotKey, "W 65531 7") \
    X(HSCROLL, OnHScroll, "258 65534 L") X(HSCROLLCLIPBOARD, OnHScrollClipboard, "W 65531 7") \
    X(ICONERASEBKGND, OnIconEraseBkgnd, "W") X(INITMENU, OnInitMenu, "W") \
    X(INITMENUPOPUP, OnInitMenuPopup, "W 65531 7") X(INPUT, OnRawInput, "W L") \
    X(INPUTLANGCHANGE, OnInputLangChange, "W L") \
    X(INPUTLANGCHANGEREQUEST, OnInputLangChangeRequest, "W L") X(KEYDOWN, OnKeyDown, "W 65531 7") \
    X(KEYUP, OnKeyUp, "W 65531 7") X(KILLFOCUS, OnKillFocus, "W") \
    X(LBUTTONDBLCLK, OnLButtonDblClk, "W -5 7") X(LBUTTONDOWN, OnLButtonDown, "W -5 7") \
    X(LBUTTONUP, OnLButtonUp, "W -5 7") X(MBUTTONDBLCLK, OnMButtonDblClk, "W -5 7") \
    X(MBUTTONDOWN, OnMButtonDown, "W -5 7") X(MBUTTONUP, OnMButtonUp, "W -5 7") \
    X(MEASUREITEM, OnMeasureItem, "W L") X(MENUCHAR, OnMenuChar, "258 65534 L") \
    X(MENUDRAG, OnMenuDrag, "W L") X(MENUGETOBJECT, OnMenuGetObject, "L") \
    X(MENURBUTTONUP, OnMenuRButtonUp, "W L") X(MENUSELECT, OnMenuSelect, "258 65534 L") \
    X(MOUSEACTIVATE, OnMouseActivate, "W 65531 7") X(MOUSEHOVER, OnMouseHover, "W -5 7") \
    X(MOUSEHWHEEL, OnMouseHWheel, "258 -2 -5 7") X(MOUSELEAVE, OnMouseLeave, "") \
    X(MOUSEMOVE, OnMouseMove, "W -5 7") X(MOUSEWHEEL, OnMouseWheel, "258 -2 -5 7") \
    X(MOVE, OnMove, "-5 7") X(MOVING, OnMoving, "W L") X(NCACTIVATE, OnNcActivate, "W") \
    X(NCCALCSIZE, OnNcCalcSize, "W L") X(NCCREATE, OnNcCreate, "L") X(NCDESTROY, OnNcDestroy, "") \
    X(NCLBUTTONDBLCLK, OnNcLButtonDblClk, "W -5 7") \
    X(NCLBUTTONDOWN, OnNcLButtonDown, "W -5 7") X(NCLBUTTONUP, OnNcLButtonUp, "W -5 7") \
    X(NCMBUTTONDBLCLK, OnNcMButtonDblClk, "W -5 7") X(NCMBUTTONDOWN, OnNcMButtonDown, "W -5 7") \
    X(NCMBUTTONUP, OnNcMButtonUp, "W -5 7") X(NCMOUSEHOVER, OnNcMouseHover, "W -5 7") \
    X(NCMOUSELEAVE, OnNcMouseLeave, "") X(NCMOUSEMOVE, OnNcMouseMove, "W -5 7") \
    X(NCPAINT, OnNcPaint, "") X(NCRBUTTONDBLCLK, OnNcRButtonDblClk, "W -5 7") \
    X(NCRBUTTONDOWN, OnNcRButtonDown, "W -5 7") X(NCRBUTTONUP, OnNcRButtonUp, "W -5 7") \
    X(NCXBUTTONDBLCLK, OnNcXButtonDblClk, "258 65534 -5 7") \
    X(NCXBUTTONDOWN, OnNcXButtonDown, "258 65534 -5 7") X(NCXBUTTONUP, OnNcXButtonUp, "258 65534 -5 7") \
    X(NEXTMENU, OnNextMenu, "W L") X(NOTIFYFORMAT, OnNotifyFormat, "W L") X(PAINT, OnPaint, "") \
    X(PAINTCLIPBOARD, OnPaintClipboard, "W L") X(PALETTECHANGED, OnPaletteChanged, "W") \
    X(PALETTEISCHANGING, OnPaletteIsChanging, "W") X(PARENTNOTIFY, OnParentNotify, "W L") \
    X(QUERYDRAGICON, OnQueryDragIcon, "") \
    X(QUERYENDSESSION, OnQueryEndSession, "") X(QUERYNEWPALETTE, OnQueryNewPalette, "") \
    X(QUERYOPEN, OnQueryOpen, "") X(QUERYUISTATE, OnQueryUIState, "") \
    X(RBUTTONDBLCLK, OnRButtonDblClk, "W -5 7") X(RBUTTONDOWN, OnRButtonDown, "W -5 7") \
    X(RBUTTONUP, OnRButtonUp, "W -5 7") X(RENDERALLFORMATS, OnRenderAllFormats, "") \
    X(RENDERFORMAT, OnRenderFormat, "W") X(SETCURSOR, OnSetCursor, "W 65531 7") \
    X(SETFOCUS, OnSetFocus, "W") X(SETTINGCHANGE, OnSettingChange, "W L") \
    X(SHOWWINDOW, OnShowWindow, "W L") X(SIZE, OnSize, "W 65531 7") \
    X(SIZECLIPBOARD, OnSizeClipboard, "W L") X(SIZING, OnSizing, "W L") \
    X(SPOOLERSTATUS, OnSpoolerStatus, "W 65531") X(STYLECHANGED, OnStyleChanged, "W L") \
    X(STYLECHANGING, OnStyleChanging, "W L") X(SYSCHAR, OnSysChar, "W 65531 7") \
    X(SYSCOLORCHANGE, OnSysColorChange, "") X(SYSCOMMAND, OnSysCommand, "W L") \
    X(SYSDEADCHAR, OnSysDeadChar, "W 65531 7") X(SYSKEYDOWN, OnSysKeyDown, "W 65531 7") \
    X(SYSKEYUP, OnSysKeyUp, "W 65531 7") X(TCARD, OnTCard, "W L") X(TIMECHANGE, OnTimeChange, "") \
    X(UNICHAR, OnUniChar, "W 65531 7") \
    X(UNINITMENUPOPUP, OnUnInitMenuPopup, "W 7") X(UPDATEUISTATE, OnUpdateUIState, "258 65534") \
    X(USERCHANGED, OnUserChanged, "") X(VKEYTOITEM, OnVKeyToItem, "258 L 65534") \
    X(VSCROLL, OnVScroll, "258 65534 L") X(VSCROLLCLIPBOARD, OnVScrollClipboard, "W 65531 7") \
    X(WINDOWPOSCHANGED, OnWindowPosChanged, "L") X(WINDOWPOSCHANGING, OnWindowPosChanging, "L") \
    X(SESSIONCHANGE, OnSessionChange, "W L") \
    X(XBUTTONDBLCLK, OnXButtonDblClk, "258 65534 -5 7") X(XBUTTONDOWN, OnXButtonDown, "258 65534 -5 7") \
    X(XBUTTONUP, OnXButtonUp, "258 65534 -5 7")
// clang-format on

std::string Text(long long n) {
    return static_cast<DWORD>(n) == kW ? "W" : n == kL ? "L" : std::to_string(n);
}
std::string Text(const void* p) {
    return Text(reinterpret_cast<long long>(p));
}
std::string Text(CPoint point) {
    return Text(point.x) + ' ' + Text(point.y);
}
std::string Text(const CWnd* pWnd) {
    return Text(static_cast<const void*>(pWnd->m_hWnd));
}
std::string Text(const CDC* pDC) {
    return Text(static_cast<const void*>(pDC->m_hDC));
}
std::string Text(const CMenu* pMenu) {
    return Text(static_cast<const void*>(pMenu->m_hMenu));
}

/// A handler is whatever its line asks for.
struct AllLines : CWnd {
    std::string m_log;

    using CWnd::WindowProc;

#define X(line, handler, text)                                                                               \
    template <class Result, class... Args>                                                                   \
    Result handler(Args... args) {                                                                           \
        m_log = #handler;                                                                                    \
        ((m_log += ' ' + Text(args)), ...);                                                                  \
        return Result();                                                                                     \
    }
    LINES
#undef X
    DECLARE_MESSAGE_MAP()
};

#define X(line, handler, text) ON_WM_##line()
BEGIN_MESSAGE_MAP(AllLines, CWnd)
LINES
END_MESSAGE_MAP()
#undef X

TEST(MessageMap, EachLineGivesItsHandlerWhatTheMessageCarries) {
    AllLines wnd; // needs no window: nothing comes to default processing
#define X(line, handler, text)                                                                               \
    wnd.WindowProc(WM_##line, kW, kL);                                                                       \
    EXPECT_EQ(wnd.m_log, sizeof(text) > 1 ? #handler " " text : #handler);
    LINES
#undef X
}

} // namespace
