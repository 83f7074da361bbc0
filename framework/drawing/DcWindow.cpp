// Device contexts of windows, released with their objects.
#include "afxwin.h"

namespace {

/// Attaches a window's device context, or gives it back when the object cannot take it.
template <class Release>
void AttachOrRelease(CDC& dc, HDC hDC, Release release) {
    if (hDC == nullptr)
        AfxThrowResourceException();
    try {
        dc.Attach(hDC);
    } catch (...) {
        dc.Detach();
        release();
        throw;
    }
}

} // namespace

IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(pWnd->m_hWnd) {
    AttachOrRelease(*this, ::BeginPaint(m_hWnd, &m_ps), [this] { ::EndPaint(m_hWnd, &m_ps); });
}

CPaintDC::~CPaintDC() {
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd != nullptr ? pWnd->m_hWnd : nullptr) {
    const HDC hDC = ::GetDC(m_hWnd);
    AttachOrRelease(*this, hDC, [this, hDC] { ::ReleaseDC(m_hWnd, hDC); });
}

CClientDC::~CClientDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(pWnd != nullptr ? pWnd->m_hWnd : nullptr) {
    const HDC hDC = ::GetWindowDC(m_hWnd);
    AttachOrRelease(*this, hDC, [this, hDC] { ::ReleaseDC(m_hWnd, hDC); });
}

CWindowDC::~CWindowDC() {
    ::ReleaseDC(m_hWnd, Detach());
}
