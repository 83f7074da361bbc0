/// @file
/// Lines of message maps for commands, notifications and messages of any number. Included by afxwin.h.
///
/// The _EX forms have handlers that return BOOL: FALSE lets the next who would have it handle it.
#pragma once

#include "afxwm_.h"

/// A line for any window message: `LRESULT memberFxn(WPARAM, LPARAM)`. Handlers of older programs, which have
/// no result, no arguments or UINT and LONG in their place, are taken as well.
#define ON_MESSAGE(message, memberFxn) fieldkit::detail::MessageEntry(message, memberFxn),
/// The same for a message of RegisterWindowMessage, whose number stands in a variable.
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn)                                                   \
    AFX_REGISTERED_ENTRY_(nMessageVariable, Message, memberFxn)
/// A line for a message that is posted to a thread, in its map: `void memberFxn(WPARAM, LPARAM)`.
#define ON_THREAD_MESSAGE(message, memberFxn) AFX_ENTRY_(message, 0, 0, 0, ThreadMessage, memberFxn)
/// The same for a message of RegisterWindowMessage.
#define ON_REGISTERED_THREAD_MESSAGE(nMessageVariable, memberFxn)                                            \
    AFX_REGISTERED_ENTRY_(nMessageVariable, ThreadMessage, memberFxn)
/// For the two macros above.
#define AFX_REGISTERED_ENTRY_(nMessageVariable, theForm, memberFxn)                                          \
    {AFX_REGISTERED_,                                                                                        \
     0,                                                                                                      \
     0,                                                                                                      \
     0,                                                                                                      \
     &fieldkit::detail::form::theForm::Dispatch,                                                             \
     AfxEraseHandler(static_cast<fieldkit::detail::form::theForm::Handler>(memberFxn)),                      \
     &(nMessageVariable)},

// --- Commands and notifications, in the parent's map -------------------------------

/// A command: `void memberFxn()`.
#define ON_COMMAND(id, memberFxn) AFX_ENTRY_(WM_COMMAND, CN_COMMAND, id, id, Plain, memberFxn)
/// `BOOL memberFxn(UINT nID)`.
#define ON_COMMAND_EX(id, memberFxn) AFX_ENTRY_(WM_COMMAND, CN_COMMAND, id, id, WithIdEx, memberFxn)
/// A range of commands, both ends included: `void memberFxn(UINT nID)`.
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                              \
    AFX_ENTRY_(WM_COMMAND, CN_COMMAND, id, idLast, WithId, memberFxn)
/// `BOOL memberFxn(UINT nID)`.
#define ON_COMMAND_EX_RANGE(id, idLast, memberFxn)                                                           \
    AFX_ENTRY_(WM_COMMAND, CN_COMMAND, id, idLast, WithIdEx, memberFxn)
/// How a command looks at the moment: `void memberFxn(CCmdUI*)`.
#define ON_UPDATE_COMMAND_UI(id, memberFxn)                                                                  \
    AFX_ENTRY_(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, id, UpdateUi, memberFxn)
/// The same for a range; m_nID tells which.
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn)                                                    \
    AFX_ENTRY_(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, idLast, UpdateUi, memberFxn)
/// A notification that comes as WM_COMMAND: `void memberFxn()`.
#define ON_CONTROL(wNotifyCode, id, memberFxn) AFX_ENTRY_(WM_COMMAND, wNotifyCode, id, id, Plain, memberFxn)
/// The same from a range of controls: `void memberFxn(UINT nID)`.
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                                 \
    AFX_ENTRY_(WM_COMMAND, wNotifyCode, id, idLast, WithId, memberFxn)
/// A notification that comes as WM_NOTIFY: `void memberFxn(NMHDR*, LRESULT*)`.
#define ON_NOTIFY(wNotifyCode, id, memberFxn) AFX_ENTRY_(WM_NOTIFY, wNotifyCode, id, id, Notify, memberFxn)
/// `BOOL memberFxn(UINT nID, NMHDR*, LRESULT*)`.
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn)                                                             \
    AFX_ENTRY_(WM_NOTIFY, wNotifyCode, id, id, NotifyWithIdEx, memberFxn)
/// The same as ON_NOTIFY from a range of controls: `void memberFxn(UINT nID, NMHDR*, LRESULT*)`.
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                                  \
    AFX_ENTRY_(WM_NOTIFY, wNotifyCode, id, idLast, NotifyWithId, memberFxn)
/// `BOOL memberFxn(UINT nID, NMHDR*, LRESULT*)`.
#define ON_NOTIFY_EX_RANGE(wNotifyCode, id, idLast, memberFxn)                                               \
    AFX_ENTRY_(WM_NOTIFY, wNotifyCode, id, idLast, NotifyWithIdEx, memberFxn)

/// ON_CONTROL for the notification of this name.
///@{
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn) ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn) ON_CONTROL(BN_KILLFOCUS, id, memberFxn)
#define ON_BN_PAINT(id, memberFxn) ON_CONTROL(BN_PAINT, id, memberFxn)
#define ON_BN_HILITE(id, memberFxn) ON_CONTROL(BN_HILITE, id, memberFxn)
#define ON_BN_UNHILITE(id, memberFxn) ON_CONTROL(BN_UNHILITE, id, memberFxn)
#define ON_BN_DISABLE(id, memberFxn) ON_CONTROL(BN_DISABLE, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)
#define ON_STN_ENABLE(id, memberFxn) ON_CONTROL(STN_ENABLE, id, memberFxn)
#define ON_STN_DISABLE(id, memberFxn) ON_CONTROL(STN_DISABLE, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_ERRSPACE(id, memberFxn) ON_CONTROL(EN_ERRSPACE, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn) ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_EN_HSCROLL(id, memberFxn) ON_CONTROL(EN_HSCROLL, id, memberFxn)
#define ON_EN_VSCROLL(id, memberFxn) ON_CONTROL(EN_VSCROLL, id, memberFxn)
#define ON_EN_ALIGN_LTR_EC(id, memberFxn) ON_CONTROL(EN_ALIGN_LTR_EC, id, memberFxn)
#define ON_EN_ALIGN_RTL_EC(id, memberFxn) ON_CONTROL(EN_ALIGN_RTL_EC, id, memberFxn)
#define ON_LBN_ERRSPACE(id, memberFxn) ON_CONTROL(LBN_ERRSPACE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SELCANCEL(id, memberFxn) ON_CONTROL(LBN_SELCANCEL, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)
#define ON_CLBN_CHKCHANGE(id, memberFxn) ON_CONTROL(CLBN_CHKCHANGE, id, memberFxn)
#define ON_CBN_ERRSPACE(id, memberFxn) ON_CONTROL(CBN_ERRSPACE, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn) ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn) ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)
///@}

// --- Reflected messages, in the control's own map ------------------------------------
// A handled reflected notification does not reach the parent; the _EX forms decide
// that by their result.

/// A notification that the control handles itself: `void memberFxn()`.
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                           \
    AFX_ENTRY_(WM_COMMAND + WM_REFLECT_BASE, wNotifyCode, 0, 0, Plain, memberFxn)
/// `BOOL memberFxn()`.
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn)                                                        \
    AFX_ENTRY_(WM_COMMAND + WM_REFLECT_BASE, wNotifyCode, 0, 0, PlainEx, memberFxn)
/// A WM_NOTIFY notification that the control handles itself: `void memberFxn(NMHDR*, LRESULT*)`.
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                                                            \
    AFX_ENTRY_(WM_NOTIFY + WM_REFLECT_BASE, wNotifyCode, 0, 0, Notify, memberFxn)
/// `BOOL memberFxn(NMHDR*, LRESULT*)`.
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn)                                                         \
    AFX_ENTRY_(WM_NOTIFY + WM_REFLECT_BASE, wNotifyCode, 0, 0, NotifyEx, memberFxn)
/// How the control looks: `void memberFxn(CCmdUI*)`.
#define ON_UPDATE_COMMAND_UI_REFLECT(memberFxn)                                                              \
    AFX_ENTRY_(WM_COMMAND + WM_REFLECT_BASE, CN_UPDATE_COMMAND_UI, 0, 0, UpdateUi, memberFxn)
