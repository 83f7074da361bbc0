// Filling of long lists.
#pragma once

#include <afxwin.h>

namespace fieldkit::detail {

/// While it exists, a control takes new items without drawing or laying out anything; then
/// it draws itself once.
class RedrawPause {
public:
    explicit RedrawPause(CWnd& wnd) : m_wnd(wnd) { m_wnd.SetRedraw(FALSE); }
    ~RedrawPause() {
        m_wnd.SetRedraw(TRUE);
        m_wnd.Invalidate();
    }
    RedrawPause(const RedrawPause&) = delete;
    RedrawPause& operator=(const RedrawPause&) = delete;

private:
    CWnd& m_wnd;
};

} // namespace fieldkit::detail
