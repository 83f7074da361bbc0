// The panel's calls with the system's touch keyboard: without one, and with a stand-in where the
// system would have its own.
#include "FieldDialog.h"

#include "testkit/Drive.h"
#include "testkit/Program.h"

#include <unknwn.h>

using namespace testkit;

namespace {

constexpr wchar_t CLASS[] = L"IPTip_Main_Window";
constexpr wchar_t PROGRAM[] = L"\\microsoft shared\\ink\\TabTip.exe";

HWND Keyboard() {
    return ::FindWindow(CLASS, nullptr);
}

LRESULT CALLBACK KeyboardProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY)
        ::PostQuitMessage(0);
    return ::DefWindowProc(hWnd, message, wParam, lParam);
}

/// The stand-in is this program under the keyboard's name: a window over the lower third.
struct StandIn {
    StandIn() {
        WCHAR szProgram[MAX_PATH];
        ::GetModuleFileName(nullptr, szProgram, MAX_PATH);
        if (CString(szProgram).Right(10) == L"TabTip.exe")
            Run();
    }
    [[noreturn]] static void Run() {
        WNDCLASS wc = {};
        wc.lpfnWndProc = KeyboardProc;
        wc.hInstance = ::GetModuleHandle(nullptr);
        wc.lpszClassName = CLASS;
        ::RegisterClass(&wc);
        const CRect screen = Screen();
        ::CreateWindowEx(WS_EX_NOACTIVATE | WS_EX_TOPMOST | WS_EX_TOOLWINDOW, CLASS, L"",
                         WS_POPUP | WS_VISIBLE, 0, screen.bottom * 2 / 3, screen.right, screen.bottom / 3,
                         nullptr, nullptr, wc.hInstance, nullptr);
        MSG msg;
        while (::GetMessage(&msg, nullptr, 0, 0) > 0)
            ::DispatchMessage(&msg);
        ::ExitProcess(0);
    }
};
const StandIn g_standIn;

struct SystemKeyboard : testing::Test {
    /// Puts the keyboard, if there is to be one, where a variable of the environment tells.
    void SetUp() override {
        ::SetEnvironmentVariable(L"CommonProgramW6432", m_drive.Letter());
        m_drive.MakeFolder(L"\\microsoft shared");
        m_drive.MakeFolder(L"\\microsoft shared\\ink");
    }
    void TearDown() override {
        ::SetEnvironmentVariable(L"CommonProgramW6432", nullptr);
        TVUseSystemKeyboard(FALSE);
    }
    void Install() const {
        WCHAR szProgram[MAX_PATH], szPath[4096];
        ::GetModuleFileName(nullptr, szProgram, MAX_PATH);
        // The copy finds the DLLs as this program does.
        ::GetEnvironmentVariable(L"PATH", szPath, 4096);
        ::SetEnvironmentVariable(L"PATH", (OwnFolder() + L';' + szPath).c_str());
        ASSERT_TRUE(::CopyFile(szProgram, m_drive.Letter() + PROGRAM, TRUE));
    }

    Drive m_drive;
};

/// At the bottom of the screen.
CRect LowPlace() {
    return CRect(20, Screen().bottom - 120, 220, Screen().bottom);
}

TEST_F(SystemKeyboard, StandsInForThePanelAndDialogsMakeRoomForIt) {
    Install();
    ASSERT_TRUE(TVUseSystemKeyboard(TRUE));
    fx::FieldDialog dialog(LowPlace(), {10});
    const Step untilClear = [&] {
        return Keyboard() != nullptr && dialog.WindowRect().bottom <= RectOf(Keyboard()).top;
    };
    const Step show = [] { TVShowSIP(0); };
    const auto look = [&] {
        EXPECT_FALSE(panel::IsVisible());
        SIPINFO info = {};
        info.cbSize = sizeof info;
        EXPECT_TRUE(SipGetInfo(&info));
        EXPECT_EQ(RectOf(Keyboard()), CRect(info.rcSipRect));
    };
    const auto choosePanel = [] {
        TVUseSystemKeyboard(FALSE);
        TVShowSIP(1);
    };
    const Step untilPanel = [] { return panel::IsVisible() && Keyboard() == nullptr; };
    const auto closeByItsX = [] { ::PostMessage(Keyboard(), WM_CLOSE, 0, 0); };
    dialog.Run({dialog.Enter(0),
                untilClear,
                look,
                [] { TVCloseSIP(); },
                dialog.UntilHome(),
                [] { return Keyboard() == nullptr; },
                show,
                untilClear,
                closeByItsX,
                dialog.UntilHome(),
                show,
                untilClear,
                choosePanel,
                untilPanel,
                [] { TVUseSystemKeyboard(TRUE); },
                show,
                untilClear,
                look,
                choosePanel,
                untilPanel});
}

/// The system's objects about the keyboard, as newer systems have them: its switch and its place. One
/// object for both, which is never deleted.
struct KeyboardObject : IUnknown {
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** pp) override {
        AddRef();
        return *pp = this, S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++s_nReferences); }
    ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--s_nReferences); }

    static inline int s_nReferences = 0;
    static inline bool s_bShown = false;
};

struct Switch : KeyboardObject {
    virtual HRESULT STDMETHODCALLTYPE Toggle(HWND) { return s_bShown = !s_bShown, S_OK; }
};

struct InputPane : KeyboardObject {
    virtual HRESULT STDMETHODCALLTYPE Advise(IUnknown*, IUnknown*, DWORD*) { return E_NOTIMPL; }
    virtual HRESULT STDMETHODCALLTYPE AdviseWithHWND(HWND, IUnknown*, DWORD*) { return E_NOTIMPL; }
    virtual HRESULT STDMETHODCALLTYPE Unadvise(DWORD) { return E_NOTIMPL; }
    virtual HRESULT STDMETHODCALLTYPE Location(RECT* pPlace) {
        const CRect screen = Screen();
        *pPlace = s_bShown ? CRect(0, screen.bottom * 2 / 3, screen.right, screen.bottom) : CRect();
        return S_OK;
    }
};

/// Gives the object out, while it exists.
template <class Object>
struct Factory : IClassFactory {
    explicit Factory(const CLSID& id) {
        ::CoRegisterClassObject(id, this, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &m_dwCookie);
    }
    ~Factory() { ::CoRevokeClassObject(m_dwCookie); }
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** pp) override { return *pp = this, S_OK; }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** pp) override {
        return m_object.QueryInterface(id, pp);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

    Object m_object;
    DWORD m_dwCookie = 0;
};

TEST_F(SystemKeyboard, WithASwitchIsShownByItAndItsPlaceIsThatOfTheSystem) {
    m_drive.MakeFile(PROGRAM, 10); // there, and not started
    ::CoInitialize(nullptr);
    {
        const Factory<Switch> toggle(
            {0x4CE576FA, 0x83DC, 0x4F88, {0x95, 0x1C, 0x9D, 0x07, 0x82, 0xB4, 0xE3, 0x76}});
        const Factory<InputPane> pane(
            {0xD5120AA3, 0x46BA, 0x44C5, {0x82, 0x2D, 0xCA, 0x80, 0x92, 0xC1, 0xFC, 0x72}});
        ::DestroyWindow(panel::OfThread()); // so that all is made anew
        ASSERT_TRUE(TVUseSystemKeyboard(TRUE));
        fx::FieldDialog dialog(LowPlace(), {10, 40});
        const auto look = [] {
            EXPECT_TRUE(KeyboardObject::s_bShown);
            EXPECT_FALSE(panel::IsVisible());
        };
        dialog.Run({dialog.Enter(0), dialog.Enter(1),
                    [&] { return dialog.WindowRect().bottom <= Screen().bottom * 2 / 3; }, look,
                    dialog.Leave(), dialog.UntilHome(), [] { return !KeyboardObject::s_bShown; }});
        EXPECT_EQ(0, KeyboardObject::s_nReferences);
    }
    ::CoUninitialize();
}

TEST_F(SystemKeyboard, ThatIsNotThereOrCannotBeStartedLeavesThePanel) {
    const Frame frame;
    for (const BOOL bThere : {FALSE, TRUE}) {
        if (bThere)
            m_drive.MakeFile(PROGRAM, 10); // no program
        EXPECT_EQ(bThere, TVUseSystemKeyboard(TRUE));
        TVShowSIP(0);
        panel::ExpectShown();
        panel::Close();
    }
    ::SetEnvironmentVariable(L"CommonProgramW6432", nullptr);
    EXPECT_FALSE(TVUseSystemKeyboard(TRUE)) << "not what lies on the current drive";
}

} // namespace
