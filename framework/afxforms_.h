/// @file
/// How handlers get their arguments out of a message, and what becomes of their results. Included by
/// afxwin.h; only the macros of message maps name anything in it.
#pragma once

#include "afxbox_.h"
#include "afxctl_.h"
#include "afxdc_.h"
#include "afxmenu_.h"
#include "afxwnd_.h"

#include <shellapi.h>

#include <type_traits>

class CWinThread;

namespace fieldkit::detail {

/// What a handler's return means.
enum class Outcome {
    Answers,         ///< The message is handled; the result, if any, is its answer.
    AnswersTrue,     ///< The same; the answer is TRUE.
    Decides,         ///< The result says whether the message is handled.
    AnswersOrPasses, ///< The result is the answer; 0 leaves the message to others.
};

template <class Result>
LRESULT ToAnswer(Result result) {
    if constexpr (std::is_pointer_v<Result>)
        return reinterpret_cast<LRESULT>(result);
    else
        return static_cast<LRESULT>(result);
}

/// A kind of handler: a member of Target that returns Result and has the arguments that the functions
/// kTake take out of the message.
template <class Target, Outcome kOutcome, class Result, auto... kTake>
struct CForm {
    using Handler = Result (Target::*)(std::invoke_result_t<decltype(kTake), const AFX_MSG_CALL&>...);

    static BOOL Dispatch(CCmdTarget* pTarget, AFX_PMSG pfn, const AFX_MSG_CALL& call) {
        Handler handler;
        std::memcpy(&handler, &pfn, sizeof handler);
        auto* pThis = static_cast<Target*>(pTarget);
        *call.pResult = kOutcome == Outcome::AnswersTrue ? TRUE : 0;
        if constexpr (std::is_void_v<Result>) {
            (pThis->*handler)(kTake(call)...);
            return TRUE;
        } else if constexpr (kOutcome == Outcome::Decides) {
            return (pThis->*handler)(kTake(call)...);
        } else {
            *call.pResult = ToAnswer((pThis->*handler)(kTake(call)...));
            return kOutcome != Outcome::AnswersOrPasses || *call.pResult != 0;
        }
    }
};

/// Whether a handler is of a form.
template <class Form, class Handler, class = void>
constexpr bool kIsOfForm = false;
template <class Form, class Handler>
constexpr bool kIsOfForm<
    Form, Handler, std::void_t<decltype(static_cast<typename Form::Handler>(std::declval<Handler>()))>> =
    true;

/// A line for a handler that may have one of two forms.
template <class First, class Second, class Handler>
AFX_MSGMAP_ENTRY EitherEntry(UINT message, Handler pfn) {
    using Form = std::conditional_t<kIsOfForm<First, Handler>, First, Second>;
    return {message, 0, 0, 0, &Form::Dispatch, AfxEraseHandler(static_cast<typename Form::Handler>(pfn)),
            nullptr};
}

/// What can be taken out of a message: W stands for wParam, L for lParam, Low and High for their halves.
namespace take {

using Call = AFX_MSG_CALL;

inline WPARAM W(const Call& c) {
    return c.wParam;
}
inline LPARAM L(const Call& c) {
    return c.lParam;
}
template <class Type>
Type FromW(const Call& c) {
    return static_cast<Type>(c.wParam);
}
template <class Type>
Type FromL(const Call& c) {
    return static_cast<Type>(c.lParam);
}
/// For a handler of the days of 32 bits: what does not fit, a pointer above all, is told, not cut.
inline LONG NarrowL(const Call& c) {
    const auto lValue = static_cast<LONG>(c.lParam);
    if (c.lParam != lValue && c.lParam != static_cast<LPARAM>(static_cast<ULONG>(lValue)))
        AfxThrowInvalidArgException();
    return lValue;
}
template <class Type>
Type PointerW(const Call& c) {
    return reinterpret_cast<Type>(c.wParam);
}
template <class Type>
Type PointerL(const Call& c) {
    return reinterpret_cast<Type>(c.lParam);
}
inline UINT LowW(const Call& c) {
    return LOWORD(c.wParam);
}
inline UINT HighW(const Call& c) {
    return HIWORD(c.wParam);
}
inline short ShortLowW(const Call& c) {
    return static_cast<short>(LOWORD(c.wParam));
}
inline short ShortHighW(const Call& c) {
    return static_cast<short>(HIWORD(c.wParam));
}
inline BOOL IsHighW(const Call& c) {
    return HIWORD(c.wParam);
}
inline UINT LowL(const Call& c) {
    return LOWORD(c.lParam);
}
inline UINT HighL(const Call& c) {
    return HIWORD(c.lParam);
}
inline BOOL IsHighL(const Call& c) {
    return HIWORD(c.lParam);
}
inline int IntLowL(const Call& c) {
    return LOWORD(c.lParam);
}
inline int IntHighL(const Call& c) {
    return HIWORD(c.lParam);
}
inline int SignedLowL(const Call& c) {
    return static_cast<short>(LOWORD(c.lParam));
}
inline int SignedHighL(const Call& c) {
    return static_cast<short>(HIWORD(c.lParam));
}
inline CPoint Point(const Call& c) {
    return CPoint(SignedLowL(c), SignedHighL(c));
}
inline CWnd* WindowW(const Call& c) {
    return CWnd::FromHandle(reinterpret_cast<HWND>(c.wParam));
}
inline CWnd* WindowL(const Call& c) {
    return CWnd::FromHandle(reinterpret_cast<HWND>(c.lParam));
}
inline CDC* ContextW(const Call& c) {
    return CDC::FromHandle(reinterpret_cast<HDC>(c.wParam));
}
inline CMenu* MenuW(const Call& c) {
    return CMenu::FromHandle(reinterpret_cast<HMENU>(c.wParam));
}
inline CMenu* MenuL(const Call& c) {
    return CMenu::FromHandle(reinterpret_cast<HMENU>(c.lParam));
}
inline CScrollBar* ScrollBar(const Call& c) {
    return static_cast<CScrollBar*>(WindowL(c));
}
inline CListBox* ListBox(const Call& c) {
    return static_cast<CListBox*>(WindowL(c));
}
inline UINT AppCommand(const Call& c) {
    return static_cast<UINT>(GET_APPCOMMAND_LPARAM(c.lParam));
}
inline UINT AppDevice(const Call& c) {
    return static_cast<UINT>(GET_DEVICE_LPARAM(c.lParam));
}
inline CDC* ColorContext(const Call& c) {
    return CDC::FromHandle(PointerL<const AFX_CTLCOLOR*>(c)->hDC);
}
inline CWnd* ColorWindow(const Call& c) {
    return CWnd::FromHandle(PointerL<const AFX_CTLCOLOR*>(c)->hWnd);
}
inline UINT ColorType(const Call& c) {
    return PointerL<const AFX_CTLCOLOR*>(c)->nType;
}
inline UINT Id(const Call& c) {
    return c.nID;
}
inline LRESULT* Result(const Call& c) {
    return c.pResult;
}

} // namespace take

/// The forms of handlers, most named after a message that has it.
namespace form {

using namespace take;

template <class Result, auto... kTake>
using Wnd = CForm<CWnd, Outcome::Answers, Result, kTake...>;
template <auto... kTake>
using WndTrue = CForm<CWnd, Outcome::AnswersTrue, void, kTake...>;

using Message = Wnd<LRESULT, W, L>;
using ThreadMessage = CForm<CWinThread, Outcome::Answers, void, W, L>;

using Void = Wnd<void>;
using Bool = Wnd<void, FromW<BOOL>>;
using UintW = Wnd<void, FromW<UINT>>;
using UintUint = Wnd<void, FromW<UINT>, FromL<UINT>>;
using UintLParam = Wnd<void, FromW<UINT>, L>;
using Timer = Wnd<void, FromW<UINT_PTR>>;
using WindowW = Wnd<void, take::WindowW>;
using WindowL = Wnd<void, take::WindowL>;
using WordsW = Wnd<void, LowW, HighW>;
using TextL = Wnd<void, PointerL<LPTSTR>>;
using Context = Wnd<void, ContextW>;
using Uint = Wnd<UINT>;
using AnswerVoid = Wnd<BOOL>;
using AnswerBool = Wnd<BOOL, FromW<BOOL>>;

using Activate = Wnd<void, LowW, take::WindowL, IsHighW>;
using BoolDword = Wnd<void, FromW<BOOL>, FromL<DWORD>>;
using BoolTask = Wnd<void, FromW<BOOL>, PointerL<HTASK>>;
using AppCommand = Wnd<void, take::WindowW, take::AppCommand, AppDevice, LowL>;
using CopyData = Wnd<BOOL, take::WindowW, PointerL<COPYDATASTRUCT*>>;
using Create = Wnd<int, PointerL<LPCREATESTRUCT>>;
using Cursor = Wnd<HCURSOR>;
using DeviceChange = Wnd<BOOL, FromW<UINT>, FromL<DWORD_PTR>>;
using DropFiles = Wnd<void, PointerW<HDROP>>;
using EnterIdle = Wnd<void, FromW<UINT>, take::WindowL>;
using Erase = Wnd<BOOL, ContextW>;
using HelpInfo = Wnd<BOOL, PointerL<HELPINFO*>>;
using HotKey = Wnd<void, FromW<UINT>, LowL, HighL>;
using MinMaxInfo = Wnd<void, PointerL<MINMAXINFO*>>;
using Move = Wnd<void, SignedLowL, SignedHighL>;
using NcCalcSize = Wnd<void, FromW<BOOL>, PointerL<NCCALCSIZE_PARAMS*>>;
using NcCreate = Wnd<BOOL, PointerL<LPCREATESTRUCT>>;
using NotifyFormat = Wnd<UINT, take::WindowW, FromL<UINT>>;
using Power = Wnd<UINT, FromW<UINT>, L>;
using PowerUint = Wnd<UINT, FromW<UINT>, FromL<UINT>>;
using RawInput = Wnd<void, FromW<UINT>, PointerL<HRAWINPUT>>;
using Scroll = Wnd<void, LowW, HighW, ScrollBar>;
using Section = Wnd<void, PointerL<LPCTSTR>>;
using SetCursor = Wnd<BOOL, take::WindowW, LowL, HighL>;
using Setting = Wnd<void, FromW<UINT>, PointerL<LPCTSTR>>;
using Show = Wnd<void, FromW<BOOL>, FromL<UINT>>;
using Size = Wnd<void, FromW<UINT>, IntLowL, IntHighL>;
using Sizing = Wnd<void, FromW<UINT>, PointerL<LPRECT>>;
using Spooler = Wnd<void, FromW<UINT>, LowL>;
using Style = Wnd<void, FromW<int>, PointerL<LPSTYLESTRUCT>>;
using TrainingCard = Wnd<void, FromW<UINT>, FromL<DWORD>>;
using WindowPos = Wnd<void, PointerL<WINDOWPOS*>>;

// Pen, mouse and keys.
using ContextMenu = Wnd<void, take::WindowW, Point>;
using HitTest = Wnd<LRESULT, Point>;
using HitTestUint = Wnd<UINT, Point>;
using HWheel = Wnd<void, LowW, ShortHighW, Point>;
using Key = Wnd<void, FromW<UINT>, LowL, HighL>;
using Mouse = Wnd<void, FromW<UINT>, Point>;
using MouseActivate = Wnd<int, take::WindowW, LowL, HighL>;
using NcXButton = Wnd<void, ShortLowW, HighW, Point>;
using Wheel = Wnd<BOOL, LowW, ShortHighW, Point>;
using XButton = Wnd<void, LowW, HighW, Point>;

// Menus.
using InitMenuPopup = Wnd<void, take::MenuW, LowL, IsHighL>;
using MenuChar = Wnd<LRESULT, LowW, HighW, MenuL>;
using MenuDrag = Wnd<UINT, FromW<UINT>, MenuL>;
using MenuGetObject = Wnd<UINT, PointerL<MENUGETOBJECTINFO*>>;
using MenuPosition = Wnd<void, FromW<UINT>, MenuL>;
using MenuSelect = Wnd<void, LowW, HighW, PointerL<HMENU>>;
using MenuW = Wnd<void, take::MenuW>;
using NextMenu = Wnd<void, FromW<UINT>, PointerL<LPMDINEXTMENU>>;
using UnInitMenuPopup = Wnd<void, take::MenuW, HighL>;

// The clipboard.
using ClipboardGlobal = Wnd<void, take::WindowW, PointerL<HGLOBAL>>;
using ClipboardScroll = Wnd<void, take::WindowW, LowL, HighL>;
using CountText = Wnd<void, FromW<UINT>, PointerL<LPTSTR>>;
using Handles = Wnd<void, PointerW<HWND>, PointerL<HWND>>;

// What a control asks of its parent, and what it is asked back.
using CompareItem = Wnd<int, FromW<int>, PointerL<LPCOMPAREITEMSTRUCT>>;
using CtlColor = Wnd<HBRUSH, ColorContext, ColorWindow, ColorType>;
using DeleteItem = WndTrue<FromW<int>, PointerL<LPDELETEITEMSTRUCT>>;
using DrawItem = WndTrue<FromW<int>, PointerL<LPDRAWITEMSTRUCT>>;
using MeasureItem = WndTrue<FromW<int>, PointerL<LPMEASUREITEMSTRUCT>>;
using ToItem = Wnd<int, LowW, ListBox, HighW>;
using CompareItemReflected = Wnd<int, PointerL<LPCOMPAREITEMSTRUCT>>;
using CtlColorReflected = CForm<CWnd, Outcome::AnswersOrPasses, HBRUSH, ColorContext, ColorType>;
using DeleteItemReflected = WndTrue<PointerL<LPDELETEITEMSTRUCT>>;
using DrawItemReflected = WndTrue<PointerL<LPDRAWITEMSTRUCT>>;
using MeasureItemReflected = WndTrue<PointerL<LPMEASUREITEMSTRUCT>>;
using ParentNotifyReflected = Wnd<void, LowW, L>;
using ScrollReflected = Wnd<void, LowW, HighW>;
using ToItemReflected = Wnd<int, LowW, HighW>;

// Commands and notifications.
template <auto... kTake>
using Command = CForm<CCmdTarget, Outcome::Answers, void, kTake...>;
template <auto... kTake>
using Decider = CForm<CCmdTarget, Outcome::Decides, BOOL, kTake...>;
using Plain = Command<>;
using PlainEx = Decider<>;
using WithId = Command<Id>;
using WithIdEx = Decider<Id>;
using Notify = Command<PointerL<NMHDR*>, Result>;
using NotifyEx = Decider<PointerL<NMHDR*>, Result>;
using NotifyWithId = Command<Id, PointerL<NMHDR*>, Result>;
using NotifyWithIdEx = Decider<Id, PointerL<NMHDR*>, Result>;
using UpdateUi = Command<PointerL<CCmdUI*>>;

} // namespace form

/// A line of ON_MESSAGE, for the first form that the handler has.
template <class Handler>
AFX_MSGMAP_ENTRY MessageEntry(UINT message, Handler pfn) {
    using namespace form;
    using NoResult = Wnd<void, W, L>;
    using Narrow = Wnd<LONG, FromW<UINT>, NarrowL>;
    using NarrowAnswer = Wnd<LRESULT, FromW<UINT>, NarrowL>;
    using WideNarrow = Wnd<LONG, W, L>;
    using NarrowNoResult = Wnd<void, FromW<UINT>, NarrowL>;
    using Empty = Wnd<LRESULT>;
    using Form = std::conditional_t<
        kIsOfForm<NoResult, Handler>, NoResult,
        std::conditional_t<
            kIsOfForm<Narrow, Handler>, Narrow,
            std::conditional_t<
                kIsOfForm<NarrowAnswer, Handler>, NarrowAnswer,
                std::conditional_t<
                    kIsOfForm<WideNarrow, Handler>, WideNarrow,
                    std::conditional_t<
                        kIsOfForm<NarrowNoResult, Handler>, NarrowNoResult,
                        std::conditional_t<kIsOfForm<Empty, Handler>, Empty,
                                           std::conditional_t<kIsOfForm<Void, Handler>, Void, Message>>>>>>>;
    return {message, 0, 0, 0, &Form::Dispatch, AfxEraseHandler(static_cast<typename Form::Handler>(pfn)),
            nullptr};
}

} // namespace fieldkit::detail
