#include "companion/detail/SystemKeyboard.h"

#include "Tesuvo.h"

#include <shellapi.h>
#include <unknwn.h>

#include <memory>
#include <utility>

using namespace fieldkit::detail;

namespace fieldkit::detail {

// Both are known to the system's headers only in programs for newer systems. Not in an unnamed
// namespace: the compiler would take it that nobody implements them.

/// The switch of the keyboard; Windows has it since version 10.
struct IKeyboardSwitch : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE Toggle(HWND window) = 0;
};

/// Knows the place of whatever keyboard is on the screen; since version 8.
struct IInputPane : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE Advise(IUnknown*, IUnknown*, DWORD*) = 0;
    virtual HRESULT STDMETHODCALLTYPE AdviseWithHWND(HWND, IUnknown*, DWORD*) = 0;
    virtual HRESULT STDMETHODCALLTYPE Unadvise(DWORD) = 0;
    virtual HRESULT STDMETHODCALLTYPE Location(RECT* place) = 0;
};

} // namespace fieldkit::detail

namespace {

constexpr wchar_t kProgram[] = L"\\microsoft shared\\ink\\TabTip.exe";
constexpr wchar_t kWindowClass[] = L"IPTip_Main_Window";

constexpr CLSID kSwitchClass = {0x4CE576FA, 0x83DC, 0x4F88, {0x95, 0x1C, 0x9D, 0x07, 0x82, 0xB4, 0xE3, 0x76}};
constexpr IID kSwitchId = {0x37C994E7, 0x432B, 0x4834, {0xA2, 0xF7, 0xDC, 0xE1, 0xF1, 0x3B, 0x83, 0x4B}};

constexpr CLSID kPaneClass = {0xD5120AA3, 0x46BA, 0x44C5, {0x82, 0x2D, 0xCA, 0x80, 0x92, 0xC1, 0xFC, 0x72}};
constexpr IID kPaneId = {0x5752238B, 0x24F0, 0x495A, {0x82, 0xF1, 0x2F, 0xD5, 0x93, 0x05, 0x67, 0x96}};

/// The system's library of objects: only a program that has chosen this keyboard needs it.
struct Objects {
    decltype(&::CoInitializeEx) initialize = nullptr;
    decltype(&::CoUninitialize) uninitialize = nullptr;
    decltype(&::CoCreateInstance) create = nullptr;

    Objects() {
        const HMODULE library = ::LoadLibraryExW(L"ole32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
        if (library == nullptr)
            return;
        Find(library, "CoInitializeEx", initialize);
        Find(library, "CoUninitialize", uninitialize);
        Find(library, "CoCreateInstance", create);
    }

    /// @return null if the system has no such object
    void* Create(const CLSID& classId, const IID& id) const {
        void* object = nullptr;
        return SUCCEEDED(create(classId, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, id, &object))
                   ? object
                   : nullptr;
    }

private:
    template <class Function>
    static void Find(HMODULE library, const char* name, Function& function) {
        function = reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(library, name)));
    }
};

const Objects& SystemObjects() {
    static const Objects objects;
    return objects;
}

struct Release {
    void operator()(IUnknown* object) const { object->Release(); }
};

CString Program() {
    // The first is that of the system's own width in a 32-bit program.
    for (const wchar_t* const variable : {L"CommonProgramW6432", L"CommonProgramFiles"}) {
        wchar_t folder[MAX_PATH] = {};
        const DWORD length = ::GetEnvironmentVariableW(variable, folder, MAX_PATH);
        if (length != 0 && length < MAX_PATH)
            return folder + CString(kProgram);
    }
    return {};
}

bool IsEmpty(const RECT& place) {
    return ::IsRectEmpty(&place) != FALSE;
}

HWND Window() {
    return ::FindWindowW(kWindowClass, nullptr);
}

/// @return false if this system has no switch
bool Toggle() {
    const std::unique_ptr<IKeyboardSwitch, Release> object(
        static_cast<IKeyboardSwitch*>(SystemObjects().Create(kSwitchClass, kSwitchId)));
    return object != nullptr && SUCCEEDED(object->Toggle(::GetDesktopWindow()));
}

} // namespace

bool SystemKeyboard::IsThere() {
    return SystemObjects().create != nullptr && TVCheckFileExist(Program());
}

bool SystemKeyboard::Show() {
    Open();
    if (!IsEmpty(Place()) || Toggle())
        return true;
    // It has the right to draw over everything, and only the shell starts what has that.
    constexpr INT_PTR kStarted = 32; // what is more is
    const HINSTANCE started =
        ::ShellExecuteW(nullptr, L"open", Program(), nullptr, nullptr, SW_SHOWNOACTIVATE);
    return reinterpret_cast<INT_PTR>(started) > kStarted;
}

void SystemKeyboard::Hide() {
    if (!m_open)
        return;
    const HWND window = Window();
    if (!IsEmpty(Place()) && !Toggle() && window != nullptr)
        ::PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);
    Close();
}

RECT SystemKeyboard::Place() const {
    RECT place{};
    if (m_pane != nullptr)
        return SUCCEEDED(m_pane->Location(&place)) ? place : RECT{};
    // While it is hidden its window is disabled.
    const HWND window = Window();
    if (::IsWindowVisible(window) && ::IsWindowEnabled(window))
        ::GetWindowRect(window, &place);
    return place;
}

void SystemKeyboard::Open() {
    if (std::exchange(m_open, true))
        return;
    m_initialized = SUCCEEDED(SystemObjects().initialize(nullptr, COINIT_APARTMENTTHREADED));
    m_pane = static_cast<IInputPane*>(SystemObjects().Create(kPaneClass, kPaneId));
}

void SystemKeyboard::Close() {
    if (m_pane != nullptr)
        std::exchange(m_pane, nullptr)->Release();
    if (std::exchange(m_initialized, false))
        SystemObjects().uninitialize();
    m_open = false;
}
