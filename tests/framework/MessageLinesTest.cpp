// Message maps: each line for a window message calls the handler of its name with what the message carries.
#include "support/TestApp.h"

#include <string>

using namespace testkit;

namespace {

constexpr UINT WM_HELPINFO = WM_HELP, WM_SESSIONCHANGE = WM_WTSSESSION_CHANGE;
constexpr WPARAM kW = MAKEWPARAM(258, 65534);
constexpr LPARAM kL = MAKELPARAM(65531, 7); // -5 as a coordinate

// What a handler is given, and the lines with such handlers: W and L are the parameters whole, as numbers,
// windows, menus or pointers; the rest are their halves. The lines whose handlers have two forms are in
// MessageMapTest.cpp; WININICHANGE is an older name of SETTINGCHANGE.
// clang-format off
#define LINES                                                                                                \
    GIVEN("W L", X(ASKCBFORMATNAME, OnAskCbFormatName) X(CHANGECBCHAIN, OnChangeCbChain)                     \
        X(COMPAREITEM, OnCompareItem) X(COPYDATA, OnCopyData) X(DELETEITEM, OnDeleteItem)                    \
        X(DEVICECHANGE, OnDeviceChange) X(DRAWITEM, OnDrawItem) X(ENTERIDLE, OnEnterIdle)                    \
        X(INPUT, OnRawInput) X(INPUTLANGCHANGE, OnInputLangChange)                                           \
        X(INPUTLANGCHANGEREQUEST, OnInputLangChangeRequest) X(MEASUREITEM, OnMeasureItem)                    \
        X(MENUDRAG, OnMenuDrag) X(MENURBUTTONUP, OnMenuRButtonUp) X(MOVING, OnMoving)                        \
        X(NCCALCSIZE, OnNcCalcSize) X(NEXTMENU, OnNextMenu) X(NOTIFYFORMAT, OnNotifyFormat)                  \
        X(PAINTCLIPBOARD, OnPaintClipboard) X(PARENTNOTIFY, OnParentNotify)                                  \
        X(SESSIONCHANGE, OnSessionChange) X(SETTINGCHANGE, OnSettingChange) X(SHOWWINDOW, OnShowWindow)      \
        X(SIZECLIPBOARD, OnSizeClipboard) X(SIZING, OnSizing) X(STYLECHANGED, OnStyleChanged)                \
        X(STYLECHANGING, OnStyleChanging) X(SYSCOMMAND, OnSysCommand) X(TCARD, OnTCard))                     \
    GIVEN("", X(CANCELMODE, OnCancelMode) X(CHILDACTIVATE, OnChildActivate)                                  \
        X(CLIPBOARDUPDATE, OnClipboardUpdate) X(CLOSE, OnClose) X(DESTROY, OnDestroy)                        \
        X(DESTROYCLIPBOARD, OnDestroyClipboard) X(DRAWCLIPBOARD, OnDrawClipboard)                            \
        X(ENTERSIZEMOVE, OnEnterSizeMove) X(EXITSIZEMOVE, OnExitSizeMove) X(FONTCHANGE, OnFontChange)        \
        X(GETDLGCODE, OnGetDlgCode) X(MOUSELEAVE, OnMouseLeave) X(NCDESTROY, OnNcDestroy)                    \
        X(NCMOUSELEAVE, OnNcMouseLeave) X(NCPAINT, OnNcPaint) X(PAINT, OnPaint)                              \
        X(QUERYDRAGICON, OnQueryDragIcon) X(QUERYENDSESSION, OnQueryEndSession)                              \
        X(QUERYNEWPALETTE, OnQueryNewPalette) X(QUERYOPEN, OnQueryOpen) X(QUERYUISTATE, OnQueryUIState)      \
        X(RENDERALLFORMATS, OnRenderAllFormats) X(SYSCOLORCHANGE, OnSysColorChange)                          \
        X(TIMECHANGE, OnTimeChange) X(USERCHANGED, OnUserChanged))                                           \
    GIVEN("W -5 7", X(CONTEXTMENU, OnContextMenu) X(LBUTTONDBLCLK, OnLButtonDblClk)                          \
        X(LBUTTONDOWN, OnLButtonDown) X(LBUTTONUP, OnLButtonUp) X(MBUTTONDBLCLK, OnMButtonDblClk)            \
        X(MBUTTONDOWN, OnMButtonDown) X(MBUTTONUP, OnMButtonUp) X(MOUSEHOVER, OnMouseHover)                  \
        X(MOUSEMOVE, OnMouseMove) X(NCLBUTTONDBLCLK, OnNcLButtonDblClk) X(NCLBUTTONDOWN, OnNcLButtonDown)    \
        X(NCLBUTTONUP, OnNcLButtonUp) X(NCMBUTTONDBLCLK, OnNcMButtonDblClk)                                  \
        X(NCMBUTTONDOWN, OnNcMButtonDown) X(NCMBUTTONUP, OnNcMButtonUp) X(NCMOUSEHOVER, OnNcMouseHover)      \
        X(NCMOUSEMOVE, OnNcMouseMove) X(NCRBUTTONDBLCLK, OnNcRButtonDblClk)                                  \
        X(NCRBUTTONDOWN, OnNcRButtonDown) X(NCRBUTTONUP, OnNcRButtonUp) X(RBUTTONDBLCLK, OnRButtonDblClk)    \
        X(RBUTTONDOWN, OnRButtonDown) X(RBUTTONUP, OnRButtonUp))                                             \
    GIVEN("W 65531 7", X(CHAR, OnChar) X(DEADCHAR, OnDeadChar) X(HOTKEY, OnHotKey)                           \
        X(HSCROLLCLIPBOARD, OnHScrollClipboard) X(INITMENUPOPUP, OnInitMenuPopup) X(KEYDOWN, OnKeyDown)      \
        X(KEYUP, OnKeyUp) X(MOUSEACTIVATE, OnMouseActivate) X(SETCURSOR, OnSetCursor) X(SIZE, OnSize)        \
        X(SYSCHAR, OnSysChar) X(SYSDEADCHAR, OnSysDeadChar) X(SYSKEYDOWN, OnSysKeyDown)                      \
        X(SYSKEYUP, OnSysKeyUp) X(UNICHAR, OnUniChar) X(VSCROLLCLIPBOARD, OnVScrollClipboard))               \
    GIVEN("W", X(COMPACTING, OnCompacting) X(DROPFILES, OnDropFiles) X(ENABLE, OnEnable)                     \
        X(ENDSESSION, OnEndSession) X(ENTERMENULOOP, OnEnterMenuLoop) X(ERASEBKGND, OnEraseBkgnd)            \
        X(EXITMENULOOP, OnExitMenuLoop) X(ICONERASEBKGND, OnIconEraseBkgnd) X(INITMENU, OnInitMenu)          \
        X(KILLFOCUS, OnKillFocus) X(NCACTIVATE, OnNcActivate) X(PALETTECHANGED, OnPaletteChanged)            \
        X(PALETTEISCHANGING, OnPaletteIsChanging) X(RENDERFORMAT, OnRenderFormat) X(SETFOCUS, OnSetFocus))   \
    GIVEN("L", X(CAPTURECHANGED, OnCaptureChanged) X(CREATE, OnCreate) X(DEVMODECHANGE, OnDevModeChange)     \
        X(GETMINMAXINFO, OnGetMinMaxInfo) X(HELPINFO, OnHelpInfo) X(MENUGETOBJECT, OnMenuGetObject)          \
        X(NCCREATE, OnNcCreate) X(WINDOWPOSCHANGED, OnWindowPosChanged)                                      \
        X(WINDOWPOSCHANGING, OnWindowPosChanging))                                                           \
    GIVEN("258 65534 -5 7", X(NCXBUTTONDBLCLK, OnNcXButtonDblClk) X(NCXBUTTONDOWN, OnNcXButtonDown)          \
        X(NCXBUTTONUP, OnNcXButtonUp) X(XBUTTONDBLCLK, OnXButtonDblClk) X(XBUTTONDOWN, OnXButtonDown)        \
        X(XBUTTONUP, OnXButtonUp))                                                                           \
    GIVEN("258 65534 L", X(HSCROLL, OnHScroll) X(MENUCHAR, OnMenuChar) X(MENUSELECT, OnMenuSelect)           \
        X(VSCROLL, OnVScroll))                                                                               \
    GIVEN("258 L 65534", X(ACTIVATE, OnActivate) X(CHARTOITEM, OnCharToItem) X(VKEYTOITEM, OnVKeyToItem))    \
    GIVEN("258 -2 -5 7", X(MOUSEHWHEEL, OnMouseHWheel) X(MOUSEWHEEL, OnMouseWheel))                          \
    GIVEN("258 65534", X(CHANGEUISTATE, OnChangeUIState) X(UPDATEUISTATE, OnUpdateUIState))                  \
    GIVEN("-5 7", X(MOVE, OnMove))                                                                           \
    GIVEN("W 65531", X(SPOOLERSTATUS, OnSpoolerStatus))                                                      \
    GIVEN("W 7", X(UNINITMENUPOPUP, OnUnInitMenuPopup))                                                      \
    GIVEN("W 7 0 65531", X(APPCOMMAND, OnAppCommand))
// clang-format on

std::string Text(long long n) {
    return static_cast<DWORD>(n) == kW ? "W" : n == kL ? "L" : std::to_string(n);
}
std::string Text(CPoint point) {
    return Text(point.x) + ' ' + Text(point.y);
}
template <class Any>
std::string Text(const Any* p) {
    const void* pWhole = p;
    if constexpr (std::is_base_of_v<CObject, Any>)
        pWhole = *p; // the handle of a window, a context, a menu
    return Text(reinterpret_cast<long long>(pWhole));
}

/// A handler is whatever its line asks for.
struct AllLines : CWnd {
    std::string m_log;

    using CWnd::WindowProc;

#define GIVEN(text, lines) lines
#define X(line, handler)                                                                                     \
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

#define X(line, handler) ON_WM_##line()
BEGIN_MESSAGE_MAP(AllLines, CWnd)
LINES
END_MESSAGE_MAP()
#undef X
#undef GIVEN

TEST(MessageMap, EachLineGivesItsHandlerWhatTheMessageCarries) {
    AllLines wnd; // needs no window: nothing comes to default processing
    std::string given;
#define GIVEN(text, lines)                                                                                   \
    given = *text != 0 ? " " text : "";                                                                      \
    lines
#define X(line, handler)                                                                                     \
    wnd.WindowProc(WM_##line, kW, kL);                                                                       \
    EXPECT_EQ(#handler + given, wnd.m_log);
    LINES
#undef X
#undef GIVEN
}

} // namespace
