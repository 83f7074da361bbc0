#include "testkit/Layout.h"

#include "testkit/Application.h"
#include "testkit/Panel.h"

#include "Tesuvo.h"

#include "afxcmn.h"

#include <algorithm>
#include <vector>

namespace testkit {

namespace {

bool Is(HWND hWnd, LPCTSTR pszClass) {
    return ::lstrcmpi(ClassOf(hWnd).c_str(), pszClass) == 0;
}

DWORD StyleOf(HWND hWnd) {
    return static_cast<DWORD>(::GetWindowLong(hWnd, GWL_STYLE));
}

bool IsDialog(HWND hWnd) {
    return Is(hWnd, L"#32770");
}

bool IsScrollBar(HWND hWnd) {
    return Is(hWnd, L"ScrollBar");
}

bool IsCommandBar(HWND hWnd) {
    return ::GetDlgCtrlID(hWnd) == static_cast<int>(AFX_IDW_TOOLBAR);
}

/// On the screen.
CRect ClientOf(HWND hWnd) {
    CRect client;
    ::GetClientRect(hWnd, client);
    ::MapWindowPoints(hWnd, nullptr, reinterpret_cast<LPPOINT>(&client), 2);
    return client;
}

std::vector<HWND> ChildrenOf(HWND hWnd) {
    std::vector<HWND> children;
    for (HWND hChild = ::GetWindow(hWnd, GW_CHILD); hChild; hChild = ::GetWindow(hChild, GW_HWNDNEXT))
        if (::IsWindowVisible(hChild))
            children.push_back(hChild);
    return children;
}

std::string Fault(HWND hWnd, const std::string& fault, const CRect& rect) {
    CString place;
    place.Format(L" (%d, %d)-(%d, %d) ", rect.left, rect.top, rect.right, rect.bottom);
    return NameOf(hWnd) + Utf8(place) + fault + '\n';
}

/// What a dialog shows of its controls: between its bars, or as far as its scroll bar reaches.
CRect RoomOf(HWND hDialog, const std::vector<HWND>& children) {
    CRect room = ClientOf(hDialog);
    for (const HWND hChild : children)
        if (IsCommandBar(hChild))
            room.bottom = std::min(room.bottom, RectOf(hChild).top);
    for (const HWND hChild : children) {
        if (!IsScrollBar(hChild))
            continue;
        SCROLLINFO info = {sizeof info, SIF_ALL, 0, 0, 0, 0, 0};
        ::GetScrollInfo(hChild, SB_CTL, &info);
        room.right = RectOf(hChild).left;
        room.top -= info.nPos;
        room.bottom = room.top + info.nMax + 1;
    }
    return room;
}

/// A tab control and a frame lie around what is theirs.
bool IsAround(HWND hWnd) {
    return IsDialog(hWnd) || Is(hWnd, WC_TABCONTROL) || IsCommandBar(hWnd) || IsScrollBar(hWnd) ||
           (Is(hWnd, WC_BUTTON) && (StyleOf(hWnd) & BS_TYPEMASK) == BS_GROUPBOX);
}

/// Neighbours may share their edge.
bool Covers(HWND hOther, HWND hChild) {
    const int nEdge = AfxScale(hChild, 1);
    CRect common;
    return !IsAround(hOther) && !IsAround(hChild) && common.IntersectRect(RectOf(hOther), RectOf(hChild)) &&
           common.Width() > nEdge && common.Height() > nEdge;
}

/// No number may be shortened: it would be another one.
std::string LookAtList(HWND hControl) {
    constexpr int kRows = 50;
    std::string faults;
    auto& list = *static_cast<CListCtrl*>(CWnd::FromHandle(hControl));
    if ((StyleOf(hControl) & LVS_TYPEMASK) != LVS_REPORT)
        return faults;
    const int nColumns = list.GetHeaderCtrl() != nullptr ? list.GetHeaderCtrl()->GetItemCount() : 0;
    for (int nRow = 0; nRow < std::min(list.GetItemCount(), kRows); ++nRow)
        for (int nColumn = 0; nColumn < nColumns; ++nColumn) {
            const CString strText = list.GetItemText(nRow, nColumn);
            const bool bNumber = !strText.IsEmpty() && strText.SpanIncluding(L"-+0123456789.,:/ ") == strText;
            const int nRoom = list.GetColumnWidth(nColumn) - AfxScale(hControl, 4);
            if (bNumber && list.GetStringWidth(strText) > nRoom)
                faults += Fault(hControl, "shortens " + Utf8(strText), RectOf(hControl));
        }
    return faults;
}

std::string LookAtText(HWND hControl) {
    std::string faults;
    if (!TextFits(hControl))
        faults += Fault(hControl, "has a text that is cut off", RectOf(hControl));
    if (Is(hControl, WC_LISTVIEW))
        faults += LookAtList(hControl);
    if (!Is(hControl, WC_EDIT) && !Is(hControl, WC_COMBOBOX))
        return faults;
    CWnd& control = *CWnd::FromHandle(hControl);
    CClientDC dc(&control);
    dc.SelectObject(control.GetFont()); // until the context is given back
    TEXTMETRIC metrics = {};
    dc.GetTextMetrics(&metrics);
    if (metrics.tmHeight > ClientOf(hControl).Height())
        faults += Fault(hControl, "is too low for its text", RectOf(hControl));
    return faults;
}

std::string LookAtControls(HWND hDialog) {
    constexpr int kHalfUnit = 2; // templates may be as much wider than the device's screen
    std::string faults;
    const std::vector<HWND> children = ChildrenOf(hDialog);
    const CRect room = RoomOf(hDialog, children);
    for (const HWND hChild : children) {
        if (IsScrollBar(hChild) || IsCommandBar(hChild))
            continue;
        CRect rect = RectOf(hChild);
        if (!IsDialog(hChild))
            rect.right -= AfxScale(hChild, kHalfUnit);
        if ((room & rect) != rect)
            faults += Fault(hChild, "is out of reach", rect);
        faults += IsDialog(hChild) ? LookAtControls(hChild) : LookAtText(hChild);
        for (const HWND hOther : children)
            if (hOther != hChild && Covers(hOther, hChild))
                faults += Fault(hChild, "is covered by " + NameOf(hOther), rect);
    }
    return faults;
}

std::string Look(HWND hWnd) {
    CRect window = RectOf(hWnd);
    window.DeflateRect(::GetSystemMetrics(SM_CXFIXEDFRAME), 0); // which shows nothing
    const bool bOnScreen = (WorkArea() & window) == window;
    return (bOnScreen ? "" : Fault(hWnd, "lies off the screen", window)) + LookAtControls(hWnd);
}

void CollectFields(HWND hWnd, std::vector<HWND>& fields) {
    for (const HWND hChild : ChildrenOf(hWnd)) {
        const bool bText = (::SendMessage(hChild, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0;
        if (bText && Is(hChild, WC_EDIT) && ::IsWindowEnabled(hChild))
            fields.push_back(hChild);
        else
            CollectFields(hChild, fields);
    }
}

bool IsClearOfPanel(HWND hField) {
    return panel::IsVisible() && RectOf(hField).bottom <= panel::Place().top &&
           RectOf(hField).top >= ClientOf(::GetAncestor(hField, GA_ROOT)).top;
}

/// Or could not.
bool MakesRoom(HWND hWnd) {
    const CRect window = RectOf(hWnd);
    return window.Height() > panel::Place().top || window.bottom <= panel::Place().top;
}

} // namespace

std::string LayoutFaults(HWND hWnd) {
    Pump();
    std::string faults = Look(hWnd);
    // It may be on its way back from where it was for the panel.
    if (!faults.empty())
        PumpUntil([&] { return (faults = Look(hWnd)).empty(); });
    return faults;
}

std::string PanelFaults(HWND hWnd) {
    std::string faults;
    std::vector<HWND> fields;
    CollectFields(hWnd, fields);
    for (const HWND hField : fields) {
        ::SetFocus(hField);
        TVShowSIP(0);
        if (!PumpUntil([&] { return IsClearOfPanel(hField); }))
            faults += Fault(hField, "is covered by the panel", RectOf(hField));
        if (!PumpUntil([&] { return MakesRoom(hWnd); }))
            faults += Fault(hWnd, "does not make room for the panel", RectOf(hWnd));
    }
    if (!fields.empty())
        panel::Close();
    return faults;
}

bool TextFits(HWND hControl) {
    constexpr int kIconButton = 32;
    const DWORD dwStyle = StyleOf(hControl), dwType = dwStyle & BS_TYPEMASK;
    const bool bButton = Is(hControl, WC_BUTTON), bDrawn = dwType == BS_OWNERDRAW;
    const bool bLabel =
        Is(hControl, WC_STATIC) && (dwStyle & SS_ELLIPSISMASK) == 0 && (dwStyle & SS_TYPEMASK) != SS_ICON;
    CRect room = ClientOf(hControl);
    if (bButton ? bDrawn && room.Width() < AfxScale(hControl, kIconButton) : !bLabel)
        return true;
    // The frame of a button, or its box and the gap behind.
    if (bButton)
        room.DeflateRect(AfxScale(hControl, dwType > BS_DEFPUSHBUTTON && !bDrawn ? 9 : 2), 1);
    CWnd& control = *CWnd::FromHandle(hControl);
    const CString str = TextOf(hControl).c_str();
    CClientDC dc(&control);
    dc.SelectObject(control.GetFont()); // until the context is given back
    CRect needed(0, 0, room.Width(), 0);
    const UINT nBreak = bButton && str.Find(L'\n') < 0 ? DT_SINGLELINE : DT_WORDBREAK;
    dc.DrawText(str, needed, DT_CALCRECT | nBreak | (!bButton && (dwStyle & SS_NOPREFIX) ? DT_NOPREFIX : 0));
    return needed.Width() <= room.Width() && needed.Height() <= room.Height() + 1;
}

} // namespace testkit
