// The dispatchers that message map entries name: each unpacks a message for handlers
// of one signature.
#include "CtlColor.h"

#include <bit>

using namespace fieldkit::detail;

namespace {

template <class Handler>
Handler Restore(AFX_PMSG pfn) {
    return std::bit_cast<Handler>(pfn);
}

CWnd* Window(CCmdTarget* pTarget) {
    return static_cast<CWnd*>(pTarget);
}

template <class Param>
CWnd* WindowOf(Param param) {
    return CWnd::FromHandle(reinterpret_cast<HWND>(param));
}

BOOL Done(const AFX_MSG_CALL& call, LRESULT lResult = 0) {
    *call.pResult = lResult;
    return TRUE;
}

int SignedLow(LPARAM lParam) {
    return static_cast<short>(LOWORD(lParam));
}
int SignedHigh(LPARAM lParam) {
    return static_cast<short>(HIWORD(lParam));
}

} // namespace

BOOL AfxDispatchMessage(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    return Done(c, (Window(p)->*Restore<LRESULT (CWnd::*)(WPARAM, LPARAM)>(pfn))(c.wParam, c.lParam));
}

BOOL AfxDispatchVoid(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    (Window(p)->*Restore<void (CWnd::*)()>(pfn))();
    return Done(c);
}

BOOL AfxDispatchUint(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    (Window(p)->*Restore<void (CWnd::*)(UINT)>(pfn))(static_cast<UINT>(c.wParam));
    return Done(c);
}

BOOL AfxDispatchTimer(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    (Window(p)->*Restore<void (CWnd::*)(UINT_PTR)>(pfn))(c.wParam);
    return Done(c);
}

BOOL AfxDispatchMouse(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    const CPoint point(SignedLow(c.lParam), SignedHigh(c.lParam));
    (Window(p)->*Restore<void (CWnd::*)(UINT, CPoint)>(pfn))(static_cast<UINT>(c.wParam), point);
    return Done(c);
}

BOOL AfxDispatchKey(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    (Window(p)->*Restore<void (CWnd::*)(UINT, UINT, UINT)>(pfn))(static_cast<UINT>(c.wParam),
                                                                 LOWORD(c.lParam), HIWORD(c.lParam));
    return Done(c);
}

BOOL AfxDispatchWnd(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    (Window(p)->*Restore<void (CWnd::*)(CWnd*)>(pfn))(WindowOf(c.wParam));
    return Done(c);
}

BOOL AfxDispatchWndLParam(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    (Window(p)->*Restore<void (CWnd::*)(CWnd*)>(pfn))(WindowOf(c.lParam));
    return Done(c);
}

BOOL AfxDispatchBool(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    (Window(p)->*Restore<void (CWnd::*)(BOOL)>(pfn))(static_cast<BOOL>(c.wParam));
    return Done(c);
}

BOOL AfxDispatchShow(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    (Window(p)->*Restore<void (CWnd::*)(BOOL, UINT)>(pfn))(static_cast<BOOL>(c.wParam),
                                                           static_cast<UINT>(c.lParam));
    return Done(c);
}

BOOL AfxDispatchCreate(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    return Done(c, (Window(p)->*Restore<int (CWnd::*)(LPCREATESTRUCT)>(pfn))(
                       reinterpret_cast<LPCREATESTRUCT>(c.lParam)));
}

BOOL AfxDispatchSize(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    (Window(p)->*Restore<void (CWnd::*)(UINT, int, int)>(pfn))(static_cast<UINT>(c.wParam), LOWORD(c.lParam),
                                                               HIWORD(c.lParam));
    return Done(c);
}

BOOL AfxDispatchMove(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    (Window(p)->*Restore<void (CWnd::*)(int, int)>(pfn))(SignedLow(c.lParam), SignedHigh(c.lParam));
    return Done(c);
}

BOOL AfxDispatchActivate(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    (Window(p)->*Restore<void (CWnd::*)(UINT, CWnd*, BOOL)>(pfn))(LOWORD(c.wParam), WindowOf(c.lParam),
                                                                  HIWORD(c.wParam));
    return Done(c);
}

BOOL AfxDispatchErase(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    CDC* pDC = CDC::FromHandle(reinterpret_cast<HDC>(c.wParam));
    return Done(c, (Window(p)->*Restore<BOOL (CWnd::*)(CDC*)>(pfn))(pDC));
}

BOOL AfxDispatchScroll(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    auto* pScrollBar = static_cast<CScrollBar*>(WindowOf(c.lParam));
    (Window(p)->*Restore<void (CWnd::*)(UINT, UINT, CScrollBar*)>(pfn))(LOWORD(c.wParam), HIWORD(c.wParam),
                                                                        pScrollBar);
    return Done(c);
}

BOOL AfxDispatchCtlColor(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    const auto* pColor = reinterpret_cast<const CCtlColor*>(c.lParam);
    const HBRUSH hBrush = (Window(p)->*Restore<HBRUSH (CWnd::*)(CDC*, CWnd*, UINT)>(pfn))(
        CDC::FromHandle(pColor->hDC), CWnd::FromHandle(pColor->hWnd), pColor->nType);
    return Done(c, reinterpret_cast<LRESULT>(hBrush));
}

BOOL AfxDispatchCtlColorReflect(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    const auto* pColor = reinterpret_cast<const CCtlColor*>(c.lParam);
    const HBRUSH hBrush =
        (Window(p)->*Restore<HBRUSH (CWnd::*)(CDC*, UINT)>(pfn))(CDC::FromHandle(pColor->hDC), pColor->nType);
    *c.pResult = reinterpret_cast<LRESULT>(hBrush);
    return hBrush != nullptr; // no brush: the parent decides
}

BOOL AfxDispatchDrawItem(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    (Window(p)->*Restore<void (CWnd::*)(int, LPDRAWITEMSTRUCT)>(pfn))(
        static_cast<int>(c.wParam), reinterpret_cast<LPDRAWITEMSTRUCT>(c.lParam));
    return Done(c, TRUE);
}

BOOL AfxDispatchMeasureItem(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    (Window(p)->*Restore<void (CWnd::*)(int, LPMEASUREITEMSTRUCT)>(pfn))(
        static_cast<int>(c.wParam), reinterpret_cast<LPMEASUREITEMSTRUCT>(c.lParam));
    return Done(c, TRUE);
}

BOOL AfxDispatchSection(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    (Window(p)->*Restore<void (CWnd::*)(LPCTSTR)>(pfn))(reinterpret_cast<LPCTSTR>(c.lParam));
    return Done(c);
}

BOOL AfxDispatchSetting(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    (Window(p)->*Restore<void (CWnd::*)(UINT, LPCTSTR)>(pfn))(static_cast<UINT>(c.wParam),
                                                              reinterpret_cast<LPCTSTR>(c.lParam));
    return Done(c);
}

BOOL AfxDispatchSetCursor(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    return Done(c, (Window(p)->*Restore<BOOL (CWnd::*)(CWnd*, UINT, UINT)>(pfn))(
                       WindowOf(c.wParam), LOWORD(c.lParam), HIWORD(c.lParam)));
}

BOOL AfxDispatchDlgCode(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    return Done(c, static_cast<LRESULT>((Window(p)->*Restore<UINT (CWnd::*)()>(pfn))()));
}

BOOL AfxDispatchMinMax(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    (Window(p)->*Restore<void (CWnd::*)(MINMAXINFO*)>(pfn))(reinterpret_cast<MINMAXINFO*>(c.lParam));
    return Done(c);
}

BOOL AfxDispatchSysCommand(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    (Window(p)->*Restore<void (CWnd::*)(UINT, LPARAM)>(pfn))(static_cast<UINT>(c.wParam), c.lParam);
    return Done(c);
}

BOOL AfxDispatchCommand(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    (p->*Restore<void (CCmdTarget::*)()>(pfn))();
    return Done(c);
}

BOOL AfxDispatchCommandId(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    (p->*Restore<void (CCmdTarget::*)(UINT)>(pfn))(c.nID);
    return Done(c);
}

BOOL AfxDispatchCommandEx(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    *c.pResult = 0;
    return (p->*Restore<BOOL (CCmdTarget::*)()>(pfn))();
}

BOOL AfxDispatchNotify(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    *c.pResult = 0;
    (p->*Restore<void (CCmdTarget::*)(NMHDR*, LRESULT*)>(pfn))(reinterpret_cast<NMHDR*>(c.lParam), c.pResult);
    return TRUE;
}

BOOL AfxDispatchNotifyId(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    *c.pResult = 0;
    (p->*Restore<void (CCmdTarget::*)(UINT, NMHDR*, LRESULT*)>(pfn))(
        c.nID, reinterpret_cast<NMHDR*>(c.lParam), c.pResult);
    return TRUE;
}

BOOL AfxDispatchNotifyEx(CCmdTarget* p, AFX_PMSG pfn, const AFX_MSG_CALL& c) {
    *c.pResult = 0;
    return (p->*Restore<BOOL (CCmdTarget::*)(NMHDR*, LRESULT*)>(pfn))(reinterpret_cast<NMHDR*>(c.lParam),
                                                                      c.pResult);
}
