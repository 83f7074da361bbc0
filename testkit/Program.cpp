#include "testkit/Program.h"

#include "testkit/Pen.h"

namespace testkit {

namespace {

constexpr DWORD kPatience = 20000, kImpatience = 1000;

std::wstring CommandLine(const std::wstring& name, const std::wstring& argument) {
    std::wstring path = name.find(L'\\') == std::wstring::npos ? OwnFolder() + name : name;
    if (path.find(L'.', path.rfind(L'\\')) == std::wstring::npos)
        path += L".exe";
    return L'"' + path + L"\" " + argument;
}

/// A visible window of a process with this title.
HWND Find(DWORD nProcess, const wchar_t* pszTitle) {
    for (HWND hWnd = nullptr; (hWnd = ::FindWindowEx(nullptr, hWnd, nullptr, pszTitle)) != nullptr;) {
        DWORD nOwner = 0;
        ::GetWindowThreadProcessId(hWnd, &nOwner);
        if (nOwner == nProcess && ::IsWindowVisible(hWnd))
            return hWnd;
    }
    return nullptr;
}

bool IsInFront(HWND hWnd) {
    return hWnd != nullptr && ::GetForegroundWindow() == ::GetAncestor(hWnd, GA_ROOT);
}

/// Puts the pen above a window's middle and waits until it rests there and the window answers. While a
/// window comes up the system still tells where the pen was before, and a tap of that moment can be lost.
void HoldPenAbove(HWND hWnd) {
    constexpr int kResting = 3;
    int nResting = 0;
    Until(
        [&] {
            const CPoint middle = MiddleOf(hWnd);
            CPoint pen;
            DWORD_PTR nAnswer = 0;
            const bool bRests =
                ::GetCursorPos(&pen) && middle == pen &&
                ::SendMessageTimeout(hWnd, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, kImpatience, &nAnswer);
            nResting = bRests ? nResting + 1 : 0;
            if (!bRests)
                pen::Move(middle);
            return nResting == kResting;
        },
        kImpatience);
}

} // namespace

std::wstring OwnFolder() {
    wchar_t szPath[MAX_PATH] = {};
    ::GetModuleFileName(nullptr, szPath, MAX_PATH);
    const std::wstring path = szPath;
    return path.substr(0, path.rfind(L'\\') + 1);
}

bool Until(const std::function<bool()>& done, DWORD nMilliseconds) {
    constexpr DWORD kPause = 20;
    for (const ULONGLONG nEnd = ::GetTickCount64() + nMilliseconds; !done(); ::Sleep(kPause))
        if (::GetTickCount64() > nEnd)
            return false;
    return true;
}

void FocusByTap(HWND hWnd, const Place& place) {
    if (!Until([&] { return IsInFront(hWnd); }))
        Fail("the window of " + NameOf(hWnd) + " does not come to the front", place);
    HoldPenAbove(hWnd);
    pen::Tap(hWnd, place);
    if (!Until([&] { return HasFocus(hWnd); }))
        Fail(NameOf(hWnd) + " does not get the focus", place);
}

Program::Program(const std::wstring& name, const wchar_t* pszTitle, const std::wstring& argument,
                 const Place& place) {
    STARTUPINFO start = {};
    start.cb = sizeof start;
    std::wstring command = CommandLine(name, argument);
    if (!::CreateProcess(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                         &m_process)) {
        m_bFailed = true;
        Fail("cannot start " + Utf8(command.c_str()) + ": error " + std::to_string(::GetLastError()), place);
    } else if (pszTitle != nullptr) {
        m_hMain = Window(pszTitle, place);
    }
}

Program::~Program() {
    if (m_process.hProcess == nullptr)
        return;
    ::TerminateProcess(m_process.hProcess, 1); // one that has ended by itself takes no notice
    ::WaitForSingleObject(m_process.hProcess, kPatience);
    ::CloseHandle(m_process.hThread);
    ::CloseHandle(m_process.hProcess);
}

bool Program::Wait(const std::function<bool()>& done, const std::string& failure, const Place& place,
                   DWORD nMilliseconds) const {
    const bool bDone = Until(done, m_bFailed ? kImpatience : nMilliseconds);
    if (!bDone) {
        m_bFailed = true;
        Fail(failure, place);
    }
    return bDone;
}

HWND Program::Window(const wchar_t* pszTitle, const Place& place) const {
    HWND hFound = nullptr;
    Wait([&] { return (hFound = Find(m_process.dwProcessId, pszTitle)) != nullptr; },
         "the program has no window \"" + Utf8(pszTitle) + '"', place);
    return hFound;
}

void Program::ExpectText(int nID, const std::wstring& text, const Place& place) const {
    if (!Until([&] { return Text(nID) == text; }, m_bFailed ? kImpatience : kPatience)) {
        m_bFailed = true;
        Fail("the text is not \"" + Utf8(text.c_str()) + "\" but that of " + NameOf(Item(nID)), place);
    }
}

void Program::Tap(int nID, const Place& place) const {
    Tap(Item(nID), place);
}

void Program::Tap(HWND hWnd, const Place& place) const {
    if (Until([&] { return CanBeTapped(hWnd); }, m_bFailed ? kImpatience : kPatience))
        HoldPenAbove(hWnd);
    pen::Tap(hWnd, place); // which tells why it cannot be tapped
}

void Program::Fill(int nID, const std::wstring& text, const Place& place) const {
    const HWND hEdit = Item(nID);
    FocusByTap(hEdit, place);
    TypeKeys({VK_HOME});
    if (!Wait([&] { return ::SendMessage(hEdit, EM_GETSEL, 0, 0) == 0; }, "HOME is lost in " + NameOf(hEdit),
              place))
        return;
    for (size_t n = TextOf(hEdit).size(); n > 0; --n) {
        TypeKeys({VK_DELETE});
        if (!Wait([&] { return TextOf(hEdit).size() < n; }, "DELETE is lost in " + NameOf(hEdit), place))
            return;
    }
    TypeText(text);
    ExpectText(nID, text, place);
}

void Program::Command(UINT nID) const {
    ::PostMessage(m_hMain, WM_COMMAND, nID, 0);
}

void Program::Close(HWND hWnd, const Place& place) const {
    ::PostMessage(hWnd, WM_CLOSE, 0, 0);
    Wait([&] { return !::IsWindow(hWnd); }, "the window does not close: " + NameOf(hWnd), place);
}

bool Program::IsRunning() const {
    return ::WaitForSingleObject(m_process.hProcess, 0) == WAIT_TIMEOUT;
}

DWORD Program::End(const Place& place) const {
    return End(kPatience, place);
}

DWORD Program::End(DWORD nMilliseconds, const Place& place) const {
    DWORD nCode = STILL_ACTIVE;
    Wait([this] { return !IsRunning(); }, "the program does not end", place, nMilliseconds);
    ::GetExitCodeProcess(m_process.hProcess, &nCode);
    return nCode;
}

} // namespace testkit
