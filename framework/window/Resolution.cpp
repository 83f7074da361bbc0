#include "Resolution.h"

#include <algorithm>

using namespace fieldkit::detail;

namespace {

constexpr LPCTSTR kToldProperty = _T("FieldkitDpi");

/// A function that older systems have not got; null there.
template <class Function>
Function FromSystem(LPCSTR pszName) {
    const FARPROC pfn = ::GetProcAddress(::GetModuleHandle(_T("user32.dll")), pszName);
    return reinterpret_cast<Function>(reinterpret_cast<void*>(pfn));
}

int DpiOfScreen() {
    const HDC hScreen = ::GetDC(nullptr);
    const int nDpi = ::GetDeviceCaps(hScreen, LOGPIXELSX);
    ::ReleaseDC(nullptr, hScreen);
    return nDpi;
}

int DpiOfWindow(HWND hWnd) {
    using Function = UINT(WINAPI*)(HWND);
    static const auto pfn = FromSystem<Function>("GetDpiForWindow");
    const HWND hTop = ::GetAncestor(hWnd, GA_ROOT);
    if (hTop == nullptr)
        return DpiOfScreen();
    if (const HANDLE hTold = ::GetProp(hTop, kToldProperty))
        return static_cast<int>(reinterpret_cast<INT_PTR>(hTold));
    const UINT nDpi = pfn != nullptr ? pfn(hTop) : 0;
    return nDpi != 0 ? static_cast<int>(nDpi) : DpiOfScreen();
}

} // namespace

int AFXAPI AfxGetDpi(HWND hWnd) {
    constexpr int kLeast = 72;
    constexpr int kMost = 960;
    const int nDpi = DpiOfWindow(hWnd);
    return nDpi > 0 ? std::clamp(nDpi, kLeast, kMost) : AFX_DESIGN_DPI;
}

int AFXAPI AfxScale(HWND hWnd, int nPixels) {
    return ::MulDiv(nPixels, AfxGetDpi(hWnd), AFX_DESIGN_DPI);
}

CRect AFXAPI AfxGetWorkArea(HWND hWnd) {
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    ::GetMonitorInfo(::MonitorFromWindow(hWnd, MONITOR_DEFAULTTONEAREST), &info);
    return info.rcWork;
}

void CResolution::Tell(HWND hWnd, int nDpi) {
    if (nDpi > 0)
        ::SetProp(hWnd, kToldProperty, reinterpret_cast<HANDLE>(static_cast<INT_PTR>(nDpi)));
    else
        ::RemoveProp(hWnd, kToldProperty);
}

int CResolution::Metric(HWND hWnd, int nIndex) {
    using Function = int(WINAPI*)(int, UINT);
    static const auto pfn = FromSystem<Function>("GetSystemMetricsForDpi");
    return pfn != nullptr ? pfn(nIndex, static_cast<UINT>(AfxGetDpi(hWnd))) : ::GetSystemMetrics(nIndex);
}

void CResolution::AdjustRect(HWND hWnd, LPRECT pRect, DWORD dwStyle, DWORD dwExStyle) {
    using Function = BOOL(WINAPI*)(LPRECT, DWORD, BOOL, DWORD, UINT);
    static const auto pfn = FromSystem<Function>("AdjustWindowRectExForDpi");
    if (pfn != nullptr)
        pfn(pRect, dwStyle, FALSE, dwExStyle, static_cast<UINT>(AfxGetDpi(hWnd)));
    else
        ::AdjustWindowRectEx(pRect, dwStyle, FALSE, dwExStyle);
}

NONCLIENTMETRICS CResolution::NonClientMetrics(HWND hWnd) {
    using Function = BOOL(WINAPI*)(UINT, UINT, PVOID, UINT, UINT);
    static const auto pfn = FromSystem<Function>("SystemParametersInfoForDpi");
    NONCLIENTMETRICS metrics = {};
    metrics.cbSize = sizeof metrics;
    if (pfn == nullptr ||
        !pfn(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, static_cast<UINT>(AfxGetDpi(hWnd))))
        ::SystemParametersInfo(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    return metrics;
}

void CResolution::KeepSystemFromScaling(HWND hDialog) {
    using Function = BOOL(WINAPI*)(HWND, UINT, UINT);
    constexpr UINT kDisableAll = 1;
    static const auto pfn = FromSystem<Function>("SetDialogDpiChangeBehavior");
    if (pfn != nullptr)
        pfn(hDialog, kDisableAll, kDisableAll);
}
