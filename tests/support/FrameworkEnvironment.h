// An application for tests that open windows: include this in each of their files.
#pragma once

#include "Rows.h"

#include "afxext.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace fx {

/// The application object of a test program.
struct TestApp : CWinApp {
    TestApp() : CWinApp(L"test") {}

    int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt) override {
        if (m_pRecord == nullptr)
            return CWinApp::DoMessageBox(lpszPrompt, nType, nIDPrompt);
        m_pRecord->push_back(lpszPrompt);
        return IDOK;
    }

    LRESULT ProcessWndProcException(CException* e, const MSG* pMsg) override {
        if (!m_bThrowAgain)
            return CWinApp::ProcessWndProcException(e, pMsg);
        e->Delete();
        throw std::bad_alloc();
    }

    bool m_bThrowAgain = false;                ///< When it is to tell of an exception.
    std::vector<CString>* m_pRecord = nullptr; ///< Where prompts go instead of the screen.
};

inline TestApp g_app;

struct Environment : testing::Environment {
    void SetUp() override {
        AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL);
    }
};

inline testing::Environment* const g_environment = testing::AddGlobalTestEnvironment(new Environment);

/// While it exists, what AfxMessageBox would show is kept here and answered with OK.
struct MessageRecorder {
    MessageRecorder() : m_pOuter(std::exchange(g_app.m_pRecord, &m_prompts)) {}
    ~MessageRecorder() { g_app.m_pRecord = m_pOuter; }

    std::vector<CString> m_prompts;

private:
    std::vector<CString>* m_pOuter;
};

/// A top-level window to try controls and children in.
struct Frame : CWnd {
    explicit Frame(CSize size = {200, 200}, DWORD dwStyle = WS_POPUP | WS_VISIBLE) {
        CreateEx(0, AfxRegisterWndClass(CS_DBLCLKS, nullptr, reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1)),
                 L"frame", dwStyle, CRect(CPoint(10, 40), size), nullptr, 0);
    }
    ~Frame() override { DestroyWindow(); }
};

/// Handles what is in the thread's queue and returns.
inline void Pump() {
    MSG msg;
    while (::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE)) {
        if (msg.message == WM_QUIT)
            return;
        AfxPumpMessage();
    }
}

inline CString TextOf(const CWnd& wnd) {
    CString str;
    wnd.GetWindowText(str);
    return str;
}

/// On the screen.
inline CRect RectOf(HWND hWnd) {
    CRect rect;
    ::GetWindowRect(hWnd, rect);
    return rect;
}

/// For messages of tests, which are 8-bit.
inline std::string Utf8(const CString& str) {
    const int nSize = ::WideCharToMultiByte(CP_UTF8, 0, str, str.GetLength(), nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<size_t>(nSize), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, str, str.GetLength(), text.data(), nSize, nullptr, nullptr);
    return text;
}

} // namespace fx

/// Failed comparisons of CString print the text, not the bytes of the object.
inline void PrintTo(const CString& str, std::ostream* os) {
    *os << '"' << fx::Utf8(str) << '"';
}
