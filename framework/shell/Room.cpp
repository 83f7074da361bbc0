#include "Room.h"

#include "window/Resolution.h"
#include "window/WndProc.h"

#include "afxdlgs.h"

#include <algorithm>
#include <utility>

using namespace fieldkit::detail;

namespace {

// Pixels at AFX_DESIGN_DPI.
constexpr int kMargin = 2; // that stay free between the field and the panel
constexpr int kLine = 20;  // of scrolling
constexpr SIZE kDeviceClient = {240, 320 - AFX_DEVICE_BAR_HEIGHT};

CRect RectOf(HWND hWnd) {
    CRect rect;
    ::GetWindowRect(hWnd, rect);
    return rect;
}

CRect PlaceOf(HWND hWnd) {
    CRect place = RectOf(hWnd);
    ::MapWindowPoints(nullptr, ::GetAncestor(hWnd, GA_PARENT), reinterpret_cast<LPPOINT>(&place), 2);
    return place;
}

CRect ClientOf(HWND hWnd) {
    CRect client;
    ::GetClientRect(hWnd, client);
    return client;
}

bool IsFullScreen(HWND hWnd) {
    CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
    return pWnd != nullptr && (AfxWndAccess::Flags(pWnd) & WF_FULLSCREEN) != 0;
}

bool IsChildWindow(HWND hWnd) {
    return (::GetWindowLongPtr(hWnd, GWL_STYLE) & WS_CHILD) != 0;
}

/// A full-screen dialog, or a page of a full-screen sheet.
bool CanScroll(HWND hWnd) {
    if (dynamic_cast<CDialog*>(CWnd::FromHandlePermanent(hWnd)) == nullptr)
        return false;
    const HWND hParent = ::GetAncestor(hWnd, GA_PARENT);
    return IsFullScreen(hWnd) ||
           (IsFullScreen(hParent) &&
            dynamic_cast<CPropertySheet*>(CWnd::FromHandlePermanent(hParent)) != nullptr);
}

bool IsPageOf(HWND hSheet, HWND hWnd) {
    return dynamic_cast<CPropertySheet*>(CWnd::FromHandlePermanent(hSheet)) != nullptr &&
           dynamic_cast<CPropertyPage*>(CWnd::FromHandlePermanent(hWnd)) != nullptr;
}

HWND TabsOf(HWND hSheet) {
    return reinterpret_cast<HWND>(::SendMessage(hSheet, PSM_GETTABCONTROL, 0, 0));
}

bool IsEntryField(HWND hWnd) {
    return hWnd != nullptr && (::SendMessage(hWnd, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0;
}

} // namespace

// --- Geometry ------------------------------------------------------------------------------------

bool CRoom::IsBar(HWND hChild) const {
    return hChild == m_hBar || ::GetDlgCtrlID(hChild) == static_cast<int>(AFX_IDW_TOOLBAR);
}

/// From the bottom up: the pages of a sheet stand where its tabs are. Those of dialogs that are not
/// the framework's are left alone.
std::vector<HWND> CRoom::Controls() const {
    std::vector<HWND> controls;
    if (CWnd::FromHandlePermanent(m_hWnd) == nullptr)
        return controls;
    for (HWND hChild = ::GetWindow(m_hWnd, GW_CHILD); hChild != nullptr;
         hChild = ::GetWindow(hChild, GW_HWNDNEXT))
        if (!IsBar(hChild))
            controls.insert(controls.begin(), hChild);
    return controls;
}

/// The control of the dialog itself that a window belongs to, at whatever depth.
HWND CRoom::ControlOf(HWND hWnd) const {
    for (HWND hParent = ::GetAncestor(hWnd, GA_PARENT); hParent != m_hWnd && hParent != nullptr;
         hParent = ::GetAncestor(hWnd, GA_PARENT))
        hWnd = hParent;
    return hWnd;
}

/// Where a control stands if nothing is shifted and there is so much to spare.
CRect CRoom::HomeOf(HWND hControl, CSize spare) const {
    CRect home = PlaceOf(hControl);
    home.OffsetRect(0, ShiftOf(hControl));
    for (const CAnchored& anchored : m_anchors) {
        if (anchored.hWnd != hControl)
            continue;
        const auto grow = [](LONG& edge, int nShare, int nNew, int nOld) {
            edge += nNew * nShare / 100 - nOld * nShare / 100;
        };
        grow(home.left, anchored.anchor.nLeft, spare.cx, anchored.applied.cx);
        grow(home.right, anchored.anchor.nRight, spare.cx, anchored.applied.cx);
        grow(home.top, anchored.anchor.nTop, spare.cy, anchored.applied.cy);
        grow(home.bottom, anchored.anchor.nBottom, spare.cy, anchored.applied.cy);
    }
    return home;
}

int CRoom::ContentHeight(CSize spare) const {
    LONG nHeight = 0;
    for (const HWND hControl : Controls())
        if (::GetWindowLongPtr(hControl, GWL_STYLE) & WS_VISIBLE)
            nHeight = std::max(nHeight, HomeOf(hControl, spare).bottom);
    return nHeight;
}

/// What can be seen of the dialog, above its command bar and the panel.
int CRoom::Height(const CRect* pPanel) const {
    LONG nHeight = ClientOf(m_hWnd).bottom;
    if (IsFullScreen(m_hWnd) && ::GetDlgItem(m_hWnd, static_cast<int>(AFX_IDW_TOOLBAR)) != nullptr)
        nHeight -= AfxScale(m_hWnd, AFX_DEVICE_BAR_HEIGHT);
    CPoint top(0, 0);
    ::ClientToScreen(m_hWnd, &top);
    const bool bCovered = pPanel != nullptr && !IsChildWindow(m_hWnd);
    return bCovered ? std::min(nHeight, pPanel->top - top.y) : nHeight;
}

/// How far the controls can be scrolled.
int CRoom::ScrollRange(const CRect* pPanel) const {
    return std::max(ContentHeight(m_spare) - Height(pPanel), 0);
}

bool CRoom::MustScroll() const {
    return (GetWholeSize().cy != 0 || CanScroll(m_hWnd)) && ContentHeight(Spare(false)) > Height(nullptr);
}

/// How much larger the window is than the controls were placed for: in full screen than the
/// device's, else than at first. Never less.
CSize CRoom::Spare(bool bBar) const {
    const HWND hTop = ::GetAncestor(m_hWnd, GA_ROOT);
    const bool bFullScreen = IsFullScreen(hTop);
    const CRect client = ClientOf(bFullScreen ? hTop : m_hWnd);
    const CSize home =
        bFullScreen ? CSize(AfxScale(hTop, kDeviceClient.cx), AfxScale(hTop, kDeviceClient.cy)) : m_sizeHome;
    const int nBar = bBar ? CResolution::Metric(m_hWnd, SM_CXVSCROLL) : 0;
    return CSize(std::max<LONG>(client.right - nBar - home.cx, 0),
                 std::max<LONG>(client.bottom - home.cy, 0));
}

/// What has been moved by someone else since has a new place of its own, and is not shifted. A page
/// stands where its sheet's tabs are, though it be one that came while they were shifted.
int CRoom::ShiftOf(HWND hWnd) const {
    const HWND hShifted = IsPageOf(m_hWnd, hWnd) ? TabsOf(m_hWnd) : hWnd;
    for (const CShifted& shifted : m_shifted)
        if (shifted.hWnd == hShifted)
            return PlaceOf(hShifted).TopLeft() == shifted.place ? shifted.nShift : 0;
    return 0;
}

// --- Planning ------------------------------------------------------------------------------------

CRoom::CMoves CRoom::Plan(const CRect* pPanel) {
    std::erase_if(m_anchors, [this](const CAnchored& anchored) {
        return ::GetAncestor(anchored.hWnd, GA_PARENT) != m_hWnd; // it has been destroyed
    });
    const bool bScroll = MustScroll();
    const CSize spare = Spare(bScroll);
    const int nRange = bScroll ? ContentHeight(spare) - Height(pPanel) : 0;
    HWND hFocus = ::GetFocus();
    if (!::IsChild(m_hWnd, hFocus))
        hFocus = nullptr;
    if (bScroll)
        ShowFocused(hFocus);
    m_nScroll = std::clamp(m_nScroll, 0, std::max(nRange, 0));
    CMoves moves = Apply(ShiftFor(hFocus, pPanel), spare);
    ShowBar(bScroll, pPanel);
    return moves;
}

/// A control that gets the focus comes into view; of one that is higher than that, any part will do.
void CRoom::ShowFocused(HWND hFocus) {
    if (hFocus == m_hSeen)
        return;
    m_hSeen = hFocus;
    if (hFocus == nullptr)
        return;
    const CRect place = HomeOf(ControlOf(hFocus), m_spare);
    const int nHeight = Height(nullptr);
    const bool bSeen = place.bottom > m_nScroll && place.top < m_nScroll + nHeight;
    if (bSeen && place.Height() > nHeight)
        return;
    m_nScroll = std::max<int>(m_nScroll, place.bottom - nHeight);
    m_nScroll = std::min<int>(m_nScroll, place.top);
}

CRoom::CShift CRoom::ShiftFor(HWND hFocus, const CRect* pPanel) const {
    if (pPanel == nullptr || IsChildWindow(m_hWnd)) // a page moves with its sheet
        return {0, m_nScroll};
    const int nDialogNow = ShiftOf(m_hWnd);
    CRect dialog = RectOf(m_hWnd);
    dialog.OffsetRect(0, nDialogNow);
    const bool bPopup = !IsFullScreen(m_hWnd);
    const auto liftFor = [&](int nCovered) {
        const int nWanted = std::max<int>({nCovered, static_cast<int>(dialog.bottom - pPanel->top), 0});
        return bPopup ? std::clamp<int>(dialog.top - AfxGetWorkArea(m_hWnd).top, 0, nWanted) : 0;
    };
    // While the pen is with a button or a list, the controls had better stay where they are.
    if (!IsEntryField(hFocus))
        return {liftFor(0), m_shift.nControls};

    // As if nothing had been moved for the panel so far.
    CRect field = RectOf(hFocus);
    field.OffsetRect(0, nDialogNow + ShiftOf(ControlOf(hFocus)) - m_nScroll);
    const int nCovered = field.bottom + AfxScale(m_hWnd, kMargin) - pPanel->top;
    const int nDialog = liftFor(nCovered);
    // A field that is too high for the room shall at least show its first line.
    CPoint client(0, nDialogNow);
    ::ClientToScreen(m_hWnd, &client);
    const int nAboveField = std::max<int>(0, field.top - client.y);
    return {nDialog, m_nScroll + std::clamp(nCovered - nDialog, 0, nAboveField)};
}

CRoom::CMoves CRoom::Apply(CShift shift, CSize spare) {
    CMoves moves;
    std::vector<CShifted> shifted;
    const auto put = [&](HWND hWnd, CRect place, int nShift) {
        place.OffsetRect(0, -nShift);
        if (nShift != 0)
            shifted.push_back({hWnd, place.TopLeft(), nShift});
        if (place != PlaceOf(hWnd))
            moves.push_back({hWnd, place});
    };
    CRect dialog = PlaceOf(m_hWnd);
    dialog.OffsetRect(0, ShiftOf(m_hWnd));
    put(m_hWnd, dialog, shift.nDialog);
    for (const HWND hControl : Controls())
        put(hControl, HomeOf(hControl, spare), shift.nControls);
    for (CAnchored& anchored : m_anchors)
        anchored.applied = spare;
    m_shifted = std::move(shifted);
    m_shift = shift;
    m_spare = spare;
    return moves;
}

// --- The user, the program, the screen -----------------------------------------------------------

/// The bar sends its parent nothing when it comes, so it may come while a plan is made.
void CRoom::ShowBar(bool bShow, const CRect* pPanel) {
    if (bShow && m_hBar == nullptr)
        m_hBar = ::CreateWindowEx(WS_EX_NOPARENTNOTIFY, WC_SCROLLBAR, nullptr, WS_CHILD | SBS_VERT, 0, 0, 0,
                                  0, m_hWnd, nullptr, AfxGetInstanceHandle(), nullptr);
    if (m_hBar == nullptr)
        return;
    const int nWidth = CResolution::Metric(m_hWnd, SM_CXVSCROLL);
    const int nHeight = Height(pPanel);
    ::SetWindowPos(m_hBar, HWND_TOP, ClientOf(m_hWnd).right - nWidth, 0, nWidth, nHeight,
                   SWP_NOACTIVATE | (bShow ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = std::max(ContentHeight(m_spare), m_shift.nControls + nHeight) - 1;
    info.nPage = static_cast<UINT>(std::max(nHeight, 1));
    info.nPos = m_shift.nControls;
    ::SetScrollInfo(m_hBar, SB_CTL, &info, TRUE);
}

void CRoom::CutOff() {
    const int nHeight = Height(nullptr);
    std::vector<std::pair<HWND, CRect>> regions;
    std::vector<HWND> cut;
    for (const HWND hControl : Controls()) {
        const CRect place = PlaceOf(hControl);
        const bool bCut = IsScrolling() && place.bottom > nHeight;
        if (bCut)
            cut.push_back(hControl);
        if (bCut || std::find(m_cut.begin(), m_cut.end(), hControl) != m_cut.end())
            regions.emplace_back(
                hControl, bCut ? CRect(0, 0, place.Width(), std::max<int>(nHeight - place.top, 0)) : CRect());
    }
    m_cut = std::move(cut);
    for (const auto& [hControl, rect] : regions) // a window owns its region
        ::SetWindowRgn(hControl, rect.right > 0 ? ::CreateRectRgnIndirect(rect) : nullptr, TRUE);
}

CRoom::CMoves CRoom::Scroll(UINT nCode, const CRect* pPanel) {
    const int nHeight = Height(pPanel);
    const int nLine = AfxScale(m_hWnd, kLine);
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_TRACKPOS;
    ::GetScrollInfo(m_hBar, SB_CTL, &info);
    int nPos = m_shift.nControls;
    switch (nCode) {
    case SB_LINEUP:
        nPos -= nLine;
        break;
    case SB_LINEDOWN:
        nPos += nLine;
        break;
    case SB_PAGEUP:
        nPos -= std::max(nHeight - nLine, nLine);
        break;
    case SB_PAGEDOWN:
        nPos += std::max(nHeight - nLine, nLine);
        break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        nPos = info.nTrackPos;
        break;
    case SB_TOP:
        nPos = 0;
        break;
    case SB_BOTTOM:
        nPos = ScrollRange(pPanel);
        break;
    default:
        return {};
    }
    return ScrollTo(nPos, pPanel);
}

CRoom::CMoves CRoom::ScrollTo(int nPos, const CRect* pPanel) {
    m_nScroll = std::clamp(nPos, 0, ScrollRange(pPanel));
    CMoves moves = Apply({m_shift.nDialog, m_nScroll}, m_spare);
    ShowBar(true, pPanel);
    return moves;
}

/// What somebody has resized since it was cut is whole again.
CSize CRoom::GetWholeSize() const {
    return m_sizeWhole.cy != 0 && RectOf(m_hWnd).Size() == m_sizeCut ? m_sizeWhole : CSize();
}

/// A popup that is cut becomes as much wider as its scroll bar takes, if the screen is.
CSize CRoom::SizeIn(const CRect& area) {
    CSize whole = GetWholeSize();
    if (whole.cy == 0)
        whole = RectOf(m_hWnd).Size();
    if (whole.cy <= area.Height()) {
        m_sizeWhole = m_sizeCut = CSize();
        return whole;
    }
    const int nWithBar = whole.cx + CResolution::Metric(m_hWnd, SM_CXVSCROLL);
    m_sizeWhole = whole;
    m_sizeCut = CSize(std::min<int>(nWithBar, area.Width()), area.Height());
    return m_sizeCut;
}

bool CRoom::IsAnchored(HWND hControl) const {
    return std::any_of(m_anchors.begin(), m_anchors.end(),
                       [hControl](const CAnchored& anchored) { return anchored.hWnd == hControl; });
}

void CRoom::Anchor(HWND hControl, const AFX_ANCHOR& anchor) {
    if (m_anchors.empty())
        m_sizeHome = ClientOf(m_hWnd).Size();
    std::erase_if(m_anchors, [hControl](const CAnchored& anchored) { return anchored.hWnd == hControl; });
    m_anchors.push_back({hControl, anchor, CSize()});
}

void CRoom::SetResolution(int nOld, int nNew, std::unique_ptr<CFont> pFont) {
    m_sizeHome = CSize(::MulDiv(m_sizeHome.cx, nNew, nOld), ::MulDiv(m_sizeHome.cy, nNew, nOld));
    m_nScroll = ::MulDiv(m_nScroll, nNew, nOld);
    if (pFont != nullptr)
        m_pFont = std::move(pFont);
}
