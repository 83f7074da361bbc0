// Device contexts of windows, released with their objects.
#include "afxwin.h"

IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(pWnd->m_hWnd) {
    if (!Attach(::BeginPaint(m_hWnd, &m_ps)))
        AfxThrowResourceException();
}

CPaintDC::~CPaintDC() {
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd != nullptr ? pWnd->m_hWnd : nullptr) {
    if (!Attach(::GetDC(m_hWnd)))
        AfxThrowResourceException();
}

CClientDC::~CClientDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(pWnd != nullptr ? pWnd->m_hWnd : nullptr) {
    if (!Attach(::GetWindowDC(m_hWnd)))
        AfxThrowResourceException();
}

CWindowDC::~CWindowDC() {
    ::ReleaseDC(m_hWnd, Detach());
}
