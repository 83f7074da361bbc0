// The application of the test programs that open windows: include this in each of their files.
#pragma once

#include "testkit/GTest.h"
#include "testkit/Stage.h"

#include "Rows.h"

#include "afxext.h"

#include <new>

namespace fx {

using namespace testkit;

/// The application object of a test program.
struct TestApp : Application {
    TestApp() : Application(L"test") {}

    LRESULT ProcessWndProcException(CException* e, const MSG* pMsg) override {
        m_failed = *pMsg;
        if (!m_bThrowAgain)
            return CWinApp::ProcessWndProcException(e, pMsg);
        e->Delete();
        throw std::bad_alloc();
    }

    bool m_bThrowAgain = false; ///< When it is to tell of an exception.
    MSG m_failed = {};          ///< The last message whose handler threw.
};

inline TestApp g_app;

/// The first item of the menu that a Heard window is about to open; its window closes it at once.
struct MenuOwner : Heard<Frame> {
    explicit MenuOwner(CSize size = {200, 200}) : Heard(size) {
        m_hear = [this](UINT message, WPARAM wParam, LPARAM) -> std::optional<LRESULT> {
            if (message == WM_INITMENUPOPUP) {
                m_nItem = ::GetMenuItemID(reinterpret_cast<HMENU>(wParam), 0);
                ::EndMenu();
            }
            return std::nullopt;
        };
    }

    UINT m_nItem = 0;
};

} // namespace fx
