#include "testkit/Application.h"

#include <utility>

namespace testkit {

namespace {

MessageRecorder* g_pRecorder = nullptr;

} // namespace

Application::Application(LPCTSTR pszName) : CWinApp(pszName) {
    AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL);
}

int Application::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt) {
    if (g_pRecorder == nullptr)
        return CWinApp::DoMessageBox(lpszPrompt, nType, nIDPrompt);
    g_pRecorder->m_prompts.emplace_back(lpszPrompt);
    return g_pRecorder->m_nAnswer;
}

MessageRecorder::MessageRecorder(int nAnswer, const Place& place)
    : m_nAnswer(nAnswer), m_pOuter(std::exchange(g_pRecorder, this)) {
    if (dynamic_cast<Application*>(AfxGetApp()) == nullptr)
        Fail("the application object is no testkit::Application: message boxes are shown", place);
}

MessageRecorder::~MessageRecorder() {
    g_pRecorder = m_pOuter;
}

Frame::Frame(CSize size, DWORD dwStyle) {
    const auto hBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    CreateEx(0, AfxRegisterWndClass(CS_DBLCLKS, nullptr, hBackground), L"frame", dwStyle,
             CRect(CPoint(10, 40), size), nullptr, 0);
}

Frame::~Frame() {
    DestroyWindow();
}

void Pump() {
    MSG msg;
    while (::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE)) {
        if (msg.message == WM_QUIT)
            return;
        AfxPumpMessage();
    }
}

bool PumpUntil(const std::function<bool()>& condition, DWORD nMilliseconds) {
    const ULONGLONG nDeadline = ::GetTickCount64() + nMilliseconds;
    do {
        Pump();
        if (condition())
            return true;
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    } while (::GetTickCount64() < nDeadline);
    return false;
}

CString TextOf(const CWnd& wnd) {
    CString str;
    wnd.GetWindowText(str);
    return str;
}

} // namespace testkit
