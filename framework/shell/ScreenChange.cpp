#include "ScreenChange.h"

#include "DeviceCaption.h"
#include "Rooms.h"
#include "window/Resolution.h"
#include "window/WndProc.h"

using namespace fieldkit::detail;

namespace {

bool IsDialog(HWND hWnd) {
    return ::GetClassLongPtr(hWnd, GCW_ATOM) == reinterpret_cast<ULONG_PTR>(WC_DIALOG);
}

bool IsTopLevel(HWND hWnd) {
    return (::GetWindowLongPtr(hWnd, GWL_STYLE) & WS_CHILD) == 0;
}

bool IsFullScreen(const CWnd* pWnd) {
    return (AfxWndAccess::Flags(pWnd) & WF_FULLSCREEN) != 0;
}

void Place(HWND hWnd, const CRect& place, UINT nFlags = 0) {
    ::SetWindowPos(hWnd, nullptr, place.left, place.top, place.Width(), place.Height(),
                   SWP_NOZORDER | SWP_NOACTIVATE | nFlags);
}

struct CScale {
    int nOld;
    int nNew;

    int operator()(int n) const { return ::MulDiv(n, nNew, nOld); }
    CRect operator()(const CRect& r) const {
        return CRect((*this)(r.left), (*this)(r.top), (*this)(r.right), (*this)(r.bottom));
    }
};

/// The dialog's font in the new size; null if it has none of its own.
std::unique_ptr<CFont> ScaledFont(HFONT hOld, const CScale& scale) {
    LOGFONT look = {};
    if (hOld == nullptr || ::GetObject(hOld, sizeof look, &look) == 0)
        return nullptr;
    look.lfHeight = scale(look.lfHeight);
    look.lfWidth = scale(look.lfWidth);
    auto pFont = std::make_unique<CFont>();
    return pFont->CreateFontIndirect(&look) ? std::move(pFont) : nullptr;
}

HFONT FontOf(HWND hWnd) {
    return reinterpret_cast<HFONT>(::SendMessage(hWnd, WM_GETFONT, 0, 0));
}

void SetFont(HWND hWnd, HFONT hFont) {
    ::SendMessage(hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(hFont), TRUE);
}

/// A control's place in its dialog, a combo box with its list.
CRect PlaceOf(HWND hControl) {
    CRect place;
    ::GetWindowRect(hControl, place);
    CRect dropped;
    if (::SendMessage(hControl, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped)))
        place.bottom = place.top + dropped.Height();
    ::MapWindowPoints(nullptr, ::GetAncestor(hControl, GA_PARENT), reinterpret_cast<LPPOINT>(&place), 2);
    return place;
}

/// Gives the controls of a dialog, and of the pages in it, their new sizes and fonts.
void ScaleControls(HWND hDialog, const CScale& scale) {
    std::vector<HWND> controls;
    for (HWND hChild = ::GetWindow(hDialog, GW_CHILD); hChild != nullptr;
         hChild = ::GetWindow(hChild, GW_HWNDNEXT))
        controls.push_back(hChild);
    const HFONT hOldFont = CRooms::FontOf(hDialog);
    std::unique_ptr<CFont> pFont = ScaledFont(hOldFont, scale);
    const HFONT hFont = pFont != nullptr ? static_cast<HFONT>(pFont->m_hObject) : nullptr;
    for (const HWND hControl : controls) {
        if (hFont != nullptr && FontOf(hControl) == hOldFont && !IsDialog(hControl))
            SetFont(hControl, hFont);
        Place(hControl, scale(PlaceOf(hControl)));
        if (IsDialog(hControl))
            ScaleControls(hControl, scale);
    }
    if (hFont != nullptr)
        SetFont(hDialog, hFont);
    if (CWnd::FromHandlePermanent(hDialog) != nullptr) // and not closed by what its controls sent
        CRooms::SetResolution(hDialog, scale.nOld, scale.nNew, std::move(pFont));
}

/// A full-screen window covers the work area again; another comes back into it as far as it must.
void FitIn(CWnd* pWnd) {
    if (!IsFullScreen(pWnd))
        return CRooms::FitPopup(pWnd);
    const CRect area = AfxGetWorkArea(pWnd->m_hWnd);
    CRect window;
    pWnd->GetWindowRect(window);
    if (window != area)
        Place(pWnd->m_hWnd, area);
}

void OnDpiChanged(CWnd* pWnd, int nDpi, const RECT* pSuggested) {
    const HWND hWnd = pWnd->m_hWnd;
    const int nOld = AfxGetDpi(hWnd);
    const CSize whole = CRooms::WholeSize(hWnd);
    CRect place = pSuggested != nullptr ? *pSuggested : CRect();
    CRooms::Settle(hWnd);
    CResolution::Tell(hWnd, nDpi);
    const CScale scale = {nOld, AfxGetDpi(hWnd)};
    if (scale.nNew != nOld)
        ScaleControls(hWnd, scale);
    if (CWnd::FromHandlePermanent(hWnd) != pWnd)
        return;
    if (IsFullScreen(pWnd))
        place = AfxGetWorkArea(hWnd);
    else if (whole.cy != 0)
        place = CRect(place.TopLeft(), CSize(scale(whole.cx), scale(whole.cy)));
    if (!place.IsRectEmpty())
        Place(hWnd, place, SWP_FRAMECHANGED);
    if (whole.cy != 0)
        FitIn(pWnd);
    // The system tells of the size only if it is another one.
    CRect client;
    ::GetClientRect(hWnd, client);
    ::SendMessage(hWnd, WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.right, client.bottom));
    ::RedrawWindow(hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

} // namespace

BOOL CScreenChange::OnMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND hWnd = pWnd->m_hWnd;
    switch (message) {
    case WM_INITDIALOG:
        CResolution::KeepSystemFromScaling(hWnd);
        return FALSE;
    case WM_DPICHANGED:
        if (HIWORD(wParam) == 0 || !IsTopLevel(hWnd) || !IsDialog(hWnd))
            return FALSE;
        OnDpiChanged(pWnd, HIWORD(wParam), reinterpret_cast<const RECT*>(lParam));
        return TRUE;
    case WM_DISPLAYCHANGE:
    case WM_SETTINGCHANGE:
        if ((message == WM_DISPLAYCHANGE || wParam == SPI_SETWORKAREA) && IsTopLevel(hWnd) && IsDialog(hWnd))
            FitIn(pWnd);
        return FALSE;
    case WM_NCDESTROY:
        if (IsTopLevel(hWnd))
            CResolution::Tell(hWnd, 0);
        return FALSE;
    default:
        return FALSE;
    }
}
