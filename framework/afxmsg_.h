/// @file
/// Message maps: the tables that connect window messages, commands and notifications to member
/// functions. Their lines are written with the macros of afxwm_.h and afxon_.h.
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
/// Code of the question how a command shall look; pExtra of OnCmdMsg is then a CCmdUI. No notification has
/// this code.
constexpr int CN_UPDATE_COMMAND_UI = 0x7FFF0001;
/// The seven WM_CTLCOLOR... messages count as this one in a message map.
constexpr UINT AFX_WM_CTLCOLOR = 0x0019;
/// Stands in the message field of an ON_REGISTERED_MESSAGE entry.
constexpr UINT AFX_REGISTERED_ = 0xC000;

/// What AFX_WM_CTLCOLOR carries in its lParam.
struct AFX_CTLCOLOR {
    HDC hDC;
    HWND hWnd;
    UINT nType; ///< CTLCOLOR_...
};

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

/// Turns a handler into its table form after its signature has been checked.
template <class Handler>
AFX_PMSG AfxEraseHandler(Handler pfn) {
    static_assert(sizeof(Handler) == sizeof(AFX_PMSG));
    AFX_PMSG erased;
    std::memcpy(&erased, &pfn, sizeof erased);
    return erased;
}
