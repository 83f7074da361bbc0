/// @file
/// Message maps: the tables that connect window messages, commands and
/// notifications to member functions, and the macros that write them.
///
/// Included by afxwin.h. A class declares its map with DECLARE_MESSAGE_MAP() and
/// fills it between BEGIN_MESSAGE_MAP(class, base) and END_MESSAGE_MAP(). The
/// macros check each handler's signature when they are compiled.
#pragma once

#include "afxtypes.h"

#include <cstring>

class CCmdTarget;
class CWnd;
class CDC;

/// Marks message handlers for the reader.
#define afx_msg

/// A handler with its true signature cast away; only its dispatcher knows it.
using AFX_PMSG = void (CCmdTarget::*)();

/// One message on its way to a handler.
struct AFX_MSG_CALL {
    WPARAM wParam;    ///< As the message brought it.
    LPARAM lParam;    ///< As the message brought it.
    UINT nID;         ///< Control or command identifier of commands and notifications.
    LRESULT* pResult; ///< Where the handler's result goes; never null.
};

/// Calls a handler of one particular signature.
/// @return TRUE if the message counts as handled.
using AFX_DISPATCH = BOOL (*)(CCmdTarget* pTarget, AFX_PMSG pfn, const AFX_MSG_CALL& call);

/// One line of a message map.
struct AFX_MSGMAP_ENTRY {
    UINT nMessage;            ///< Window message; 0 ends the table.
    int nCode;                ///< Notification code, or 0.
    UINT nID;                 ///< First identifier of the range, or 0.
    UINT nLastID;             ///< Last identifier of the range.
    AFX_DISPATCH pfnDispatch; ///< Knows the handler's signature.
    AFX_PMSG pfn;             ///< The handler.
    const UINT* pnRegistered; ///< Number of a registered message, or null.
};

/// A class's message map.
struct AFX_MSGMAP {
    const AFX_MSGMAP* (*pfnGetBaseMap)(); ///< Null in the root class.
    const AFX_MSGMAP_ENTRY* lpEntries;    ///< Its lines, up to one whose message is 0.
};

/// Added to a message that a parent hands back to the control that sent it.
constexpr UINT WM_REFLECT_BASE = 0xBC00;
/// Code of plain commands (menu, toolbar, accelerator; also BN_CLICKED).
constexpr int CN_COMMAND = 0;

/// Declares a class's message map. Members that follow it are protected.
#define DECLARE_MESSAGE_MAP()                                                                                \
protected:                                                                                                   \
    static const AFX_MSGMAP* GetThisMessageMap();                                                            \
    const AFX_MSGMAP* GetMessageMap() const override;

/// Begins the map of a class derived from baseClass, in the source file.
#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                               \
    const AFX_MSGMAP* theClass::GetMessageMap() const {                                                      \
        return GetThisMessageMap();                                                                          \
    }                                                                                                        \
    const AFX_MSGMAP* theClass::GetThisMessageMap() {                                                        \
        using ThisClass [[maybe_unused]] = theClass;                                                         \
        using TheBaseClass = baseClass;                                                                      \
        static const AFX_MSGMAP_ENTRY entries[] = {

/// Ends a message map.
#define END_MESSAGE_MAP()                                                                                    \
    { 0, 0, 0, 0, nullptr, nullptr, nullptr }                                                                \
    }                                                                                                        \
    ;                                                                                                        \
    static const AFX_MSGMAP map = {&TheBaseClass::GetThisMessageMap, entries};                               \
    return &map;                                                                                             \
    }

// --- Dispatchers, one a signature -------------------------------------------------

/// Takes the handler's arguments out of the message and calls the handler: one function a
/// signature. Only message maps name them.
///@{
AFX_CORE BOOL AfxDispatchMessage(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchVoid(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchUint(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchTimer(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchMouse(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchKey(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchWnd(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchWndLParam(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchBool(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchShow(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchCreate(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchSize(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchMove(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchActivate(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchErase(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchScroll(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchCtlColor(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchCtlColorReflect(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchDrawItem(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchMeasureItem(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchSection(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchSetting(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchSetCursor(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchDlgCode(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchMinMax(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchSysCommand(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchCommand(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchCommandId(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchCommandEx(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchNotify(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchNotifyId(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
AFX_CORE BOOL AfxDispatchNotifyEx(CCmdTarget*, AFX_PMSG, const AFX_MSG_CALL&);
///@}

/// Turns a handler into its table form after its signature has been checked.
template <class Handler>
AFX_PMSG AfxEraseHandler(Handler pfn) {
    static_assert(sizeof(Handler) == sizeof(AFX_PMSG));
    AFX_PMSG erased;
    std::memcpy(&erased, &pfn, sizeof erased);
    return erased;
}

/// Makes a line of a message map and checks the handler's signature. For the macros of this file.
#define AFX_ENTRY_(message, code, id, last, dispatch, signature, handler)                                    \
    {message,                                                                                                \
     static_cast<int>(code),                                                                                 \
     static_cast<UINT>(id),                                                                                  \
     static_cast<UINT>(last),                                                                                \
     &dispatch,                                                                                              \
     AfxEraseHandler(static_cast<signature>(handler)),                                                       \
     nullptr},

/// The same for a window message with its own handler name.
#define AFX_WM_ENTRY_(message, dispatch, result, args, handler)                                              \
    AFX_ENTRY_(message, 0, 0, 0, dispatch, result(CWnd::*) args, &ThisClass::handler)

/// The seven WM_CTLCOLOR... messages count as this one in a message map.
constexpr UINT AFX_WM_CTLCOLOR = 0x0019;

// --- Window messages --------------------------------------------------------------

/// A line for the window message of this name. Its handler has the name and the signature of
/// the CWnd member for it (OnCreate, OnDestroy...).
///@{
#define ON_WM_CREATE() AFX_WM_ENTRY_(WM_CREATE, AfxDispatchCreate, int, (LPCREATESTRUCT), OnCreate)
#define ON_WM_DESTROY() AFX_WM_ENTRY_(WM_DESTROY, AfxDispatchVoid, void, (), OnDestroy)
#define ON_WM_NCDESTROY() AFX_WM_ENTRY_(WM_NCDESTROY, AfxDispatchVoid, void, (), OnNcDestroy)
#define ON_WM_CLOSE() AFX_WM_ENTRY_(WM_CLOSE, AfxDispatchVoid, void, (), OnClose)
#define ON_WM_PAINT() AFX_WM_ENTRY_(WM_PAINT, AfxDispatchVoid, void, (), OnPaint)
#define ON_WM_ERASEBKGND() AFX_WM_ENTRY_(WM_ERASEBKGND, AfxDispatchErase, BOOL, (CDC*), OnEraseBkgnd)
#define ON_WM_SIZE() AFX_WM_ENTRY_(WM_SIZE, AfxDispatchSize, void, (UINT, int, int), OnSize)
#define ON_WM_MOVE() AFX_WM_ENTRY_(WM_MOVE, AfxDispatchMove, void, (int, int), OnMove)
#define ON_WM_TIMER() AFX_WM_ENTRY_(WM_TIMER, AfxDispatchTimer, void, (UINT_PTR), OnTimer)
#define ON_WM_SETFOCUS() AFX_WM_ENTRY_(WM_SETFOCUS, AfxDispatchWnd, void, (CWnd*), OnSetFocus)
#define ON_WM_KILLFOCUS() AFX_WM_ENTRY_(WM_KILLFOCUS, AfxDispatchWnd, void, (CWnd*), OnKillFocus)
#define ON_WM_CAPTURECHANGED()                                                                               \
    AFX_WM_ENTRY_(WM_CAPTURECHANGED, AfxDispatchWndLParam, void, (CWnd*), OnCaptureChanged)
#define ON_WM_ENABLE() AFX_WM_ENTRY_(WM_ENABLE, AfxDispatchBool, void, (BOOL), OnEnable)
#define ON_WM_SHOWWINDOW() AFX_WM_ENTRY_(WM_SHOWWINDOW, AfxDispatchShow, void, (BOOL, UINT), OnShowWindow)
#define ON_WM_ACTIVATE()                                                                                     \
    AFX_WM_ENTRY_(WM_ACTIVATE, AfxDispatchActivate, void, (UINT, CWnd*, BOOL), OnActivate)
#define ON_WM_LBUTTONDOWN()                                                                                  \
    AFX_WM_ENTRY_(WM_LBUTTONDOWN, AfxDispatchMouse, void, (UINT, CPoint), OnLButtonDown)
#define ON_WM_LBUTTONUP() AFX_WM_ENTRY_(WM_LBUTTONUP, AfxDispatchMouse, void, (UINT, CPoint), OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK()                                                                                \
    AFX_WM_ENTRY_(WM_LBUTTONDBLCLK, AfxDispatchMouse, void, (UINT, CPoint), OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN()                                                                                  \
    AFX_WM_ENTRY_(WM_RBUTTONDOWN, AfxDispatchMouse, void, (UINT, CPoint), OnRButtonDown)
#define ON_WM_RBUTTONUP() AFX_WM_ENTRY_(WM_RBUTTONUP, AfxDispatchMouse, void, (UINT, CPoint), OnRButtonUp)
#define ON_WM_MOUSEMOVE() AFX_WM_ENTRY_(WM_MOUSEMOVE, AfxDispatchMouse, void, (UINT, CPoint), OnMouseMove)
#define ON_WM_KEYDOWN() AFX_WM_ENTRY_(WM_KEYDOWN, AfxDispatchKey, void, (UINT, UINT, UINT), OnKeyDown)
#define ON_WM_KEYUP() AFX_WM_ENTRY_(WM_KEYUP, AfxDispatchKey, void, (UINT, UINT, UINT), OnKeyUp)
#define ON_WM_CHAR() AFX_WM_ENTRY_(WM_CHAR, AfxDispatchKey, void, (UINT, UINT, UINT), OnChar)
#define ON_WM_HSCROLL()                                                                                      \
    AFX_WM_ENTRY_(WM_HSCROLL, AfxDispatchScroll, void, (UINT, UINT, CScrollBar*), OnHScroll)
#define ON_WM_VSCROLL()                                                                                      \
    AFX_WM_ENTRY_(WM_VSCROLL, AfxDispatchScroll, void, (UINT, UINT, CScrollBar*), OnVScroll)
#define ON_WM_CTLCOLOR()                                                                                     \
    AFX_WM_ENTRY_(AFX_WM_CTLCOLOR, AfxDispatchCtlColor, HBRUSH, (CDC*, CWnd*, UINT), OnCtlColor)
#define ON_WM_DRAWITEM()                                                                                     \
    AFX_WM_ENTRY_(WM_DRAWITEM, AfxDispatchDrawItem, void, (int, LPDRAWITEMSTRUCT), OnDrawItem)
#define ON_WM_MEASUREITEM()                                                                                  \
    AFX_WM_ENTRY_(WM_MEASUREITEM, AfxDispatchMeasureItem, void, (int, LPMEASUREITEMSTRUCT), OnMeasureItem)
#define ON_WM_WININICHANGE()                                                                                 \
    AFX_WM_ENTRY_(WM_WININICHANGE, AfxDispatchSection, void, (LPCTSTR), OnWinIniChange)
#define ON_WM_SETTINGCHANGE()                                                                                \
    AFX_WM_ENTRY_(WM_SETTINGCHANGE, AfxDispatchSetting, void, (UINT, LPCTSTR), OnSettingChange)
#define ON_WM_SETCURSOR()                                                                                    \
    AFX_WM_ENTRY_(WM_SETCURSOR, AfxDispatchSetCursor, BOOL, (CWnd*, UINT, UINT), OnSetCursor)
#define ON_WM_GETDLGCODE() AFX_WM_ENTRY_(WM_GETDLGCODE, AfxDispatchDlgCode, UINT, (), OnGetDlgCode)
#define ON_WM_GETMINMAXINFO()                                                                                \
    AFX_WM_ENTRY_(WM_GETMINMAXINFO, AfxDispatchMinMax, void, (MINMAXINFO*), OnGetMinMaxInfo)
#define ON_WM_SYSCOMMAND()                                                                                   \
    AFX_WM_ENTRY_(WM_SYSCOMMAND, AfxDispatchSysCommand, void, (UINT, LPARAM), OnSysCommand)
///@}

/// A line for any window message: `LRESULT memberFxn(WPARAM, LPARAM)`.
#define ON_MESSAGE(message, memberFxn)                                                                       \
    AFX_ENTRY_(message, 0, 0, 0, AfxDispatchMessage, LRESULT (CWnd::*)(WPARAM, LPARAM), memberFxn)
/// The same for a message of RegisterWindowMessage, whose number stands in a variable.
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn)                                                   \
    {AFX_REGISTERED_,                                                                                        \
     0,                                                                                                      \
     0,                                                                                                      \
     0,                                                                                                      \
     &AfxDispatchMessage,                                                                                    \
     AfxEraseHandler(static_cast<LRESULT (CWnd::*)(WPARAM, LPARAM)>(memberFxn)),                             \
     &(nMessageVariable)},

/// Stands in the message field of an ON_REGISTERED_MESSAGE entry.
constexpr UINT AFX_REGISTERED_ = 0xC000;

// --- Commands and notifications, in the parent's map -------------------------------

/// A command: `void memberFxn()`.
#define ON_COMMAND(id, memberFxn)                                                                            \
    AFX_ENTRY_(WM_COMMAND, CN_COMMAND, id, id, AfxDispatchCommand, void (CCmdTarget::*)(), memberFxn)
/// A range of commands, both ends included: `void memberFxn(UINT nID)`.
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                              \
    AFX_ENTRY_(WM_COMMAND, CN_COMMAND, id, idLast, AfxDispatchCommandId, void (CCmdTarget::*)(UINT),         \
               memberFxn)
/// A notification that comes as WM_COMMAND: `void memberFxn()`.
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                               \
    AFX_ENTRY_(WM_COMMAND, wNotifyCode, id, id, AfxDispatchCommand, void (CCmdTarget::*)(), memberFxn)
/// The same from a range of controls: `void memberFxn(UINT nID)`.
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                                 \
    AFX_ENTRY_(WM_COMMAND, wNotifyCode, id, idLast, AfxDispatchCommandId, void (CCmdTarget::*)(UINT),        \
               memberFxn)
/// A notification that comes as WM_NOTIFY: `void memberFxn(NMHDR*, LRESULT*)`.
#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                                                \
    AFX_ENTRY_(WM_NOTIFY, wNotifyCode, id, id, AfxDispatchNotify, void (CCmdTarget::*)(NMHDR*, LRESULT*),    \
               memberFxn)
/// The same from a range of controls: `void memberFxn(UINT nID, NMHDR*, LRESULT*)`.
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                                  \
    AFX_ENTRY_(WM_NOTIFY, wNotifyCode, id, idLast, AfxDispatchNotifyId,                                      \
               void (CCmdTarget::*)(UINT, NMHDR*, LRESULT*), memberFxn)

/// ON_CONTROL for the notification of this name.
///@{
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
///@}

// --- Reflected messages, in the control's own map ------------------------------------
// A handled reflected notification does not reach the parent; the _EX forms decide
// that by their result.

/// A notification that the control handles itself: `void memberFxn()`.
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                           \
    AFX_ENTRY_(WM_COMMAND + WM_REFLECT_BASE, wNotifyCode, 0, 0, AfxDispatchCommand, void(CCmdTarget::*)(),   \
               memberFxn)
/// The same; `BOOL memberFxn()` returns FALSE to let the parent have it as well.
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn)                                                        \
    AFX_ENTRY_(WM_COMMAND + WM_REFLECT_BASE, wNotifyCode, 0, 0, AfxDispatchCommandEx, BOOL(CCmdTarget::*)(), \
               memberFxn)
/// A WM_NOTIFY notification that the control handles itself: `void memberFxn(NMHDR*, LRESULT*)`.
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                                                            \
    AFX_ENTRY_(WM_NOTIFY + WM_REFLECT_BASE, wNotifyCode, 0, 0, AfxDispatchNotify,                            \
               void(CCmdTarget::*)(NMHDR*, LRESULT*), memberFxn)
/// The same; `BOOL memberFxn(NMHDR*, LRESULT*)` returns FALSE to let the parent have it as well.
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn)                                                         \
    AFX_ENTRY_(WM_NOTIFY + WM_REFLECT_BASE, wNotifyCode, 0, 0, AfxDispatchNotifyEx,                          \
               BOOL(CCmdTarget::*)(NMHDR*, LRESULT*), memberFxn)
/// The control's own colours: `HBRUSH CtlColor(CDC*, UINT)`; null leaves them to the parent.
#define ON_WM_CTLCOLOR_REFLECT()                                                                             \
    AFX_ENTRY_(AFX_WM_CTLCOLOR + WM_REFLECT_BASE, 0, 0, 0, AfxDispatchCtlColorReflect,                       \
               HBRUSH(CWnd::*)(CDC*, UINT), &ThisClass::CtlColor)
