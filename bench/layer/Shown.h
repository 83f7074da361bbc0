// A control on the screen.
#pragma once

#include <afxcmn.h>

#include <utility>

namespace bench {

/// A visible control in a window of its own.
template <class Control>
class Shown : public Control {
public:
    /// @param args of the control's constructor
    template <class... Args>
    Shown(const wchar_t* pszClass, DWORD dwStyle, Args&&... args) : Control(std::forward<Args>(args)...) {
        m_parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, CRect(0, 26, 240, 294),
                          nullptr, 0);
        this->CWnd::Create(pszClass, L"", WS_CHILD | WS_VISIBLE | WS_VSCROLL | dwStyle, CRect(0, 0, 240, 240),
                           &m_parent, 1);
    }

private:
    CWnd m_parent;
};

} // namespace bench
