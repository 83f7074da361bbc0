#include "PenScroll.h"

#include "window/Resolution.h"

#include <cstdlib>
#include <utility>

using namespace fieldkit::detail;

void CPenScroll::Press(HWND hWnd, int nY, int nPos, TIMERPROC pfnWatch) {
    constexpr UINT kInterval = 50; // milliseconds
    m_hWnd = hWnd;
    m_nPressY = nY;
    m_nPressPos = nPos;
    m_bDragging = false;
    ::SetCapture(hWnd);
    m_nTimer = ::SetTimer(nullptr, m_nTimer, kInterval, pfnWatch);
}

bool CPenScroll::HasPen() const {
    return ::GetCapture() == m_hWnd && ::GetActiveWindow() == ::GetAncestor(m_hWnd, GA_ROOT);
}

std::optional<int> CPenScroll::Move(HWND hWnd, int nY) {
    if (m_hWnd != hWnd || !HasPen())
        return std::nullopt;
    const int nMoved = nY - m_nPressY;
    if (std::abs(nMoved) > CResolution::Metric(hWnd, SM_CYDRAG))
        m_bDragging = true;
    return m_bDragging ? std::optional(m_nPressPos - nMoved) : std::nullopt;
}

void CPenScroll::End(HWND hWnd) {
    if (m_hWnd == nullptr || m_hWnd != hWnd)
        return;
    m_hWnd = nullptr; // first: the capture that goes tells of it
    ::KillTimer(nullptr, std::exchange(m_nTimer, 0));
    if (::GetCapture() == hWnd)
        ::ReleaseCapture();
}

void CPenScroll::Watch() {
    if (::GetKeyState(VK_LBUTTON) >= 0 || !HasPen())
        End(m_hWnd);
}
