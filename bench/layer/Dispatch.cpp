#include "Dispatch.h"

#include "Report.h"

#include <afxwin.h>

namespace bench {

namespace {

constexpr int kMessages = 1000;
constexpr double kGoal = 1.1;
constexpr double kCommandGoal = 1.15;
constexpr UINT kFirst = WM_APP;
constexpr UINT kUnknown = WM_APP + 1000;
constexpr UINT kCommand = 1000;

volatile LRESULT g_sink;

HBRUSH White() {
    return static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH));
}

// --- Windows with maps of several sizes --------------------------------------------------------

// What every window here does with a message.
class CCounting : public CWnd {
public:
    LRESULT OnCount(WPARAM wParam, LPARAM) { return static_cast<LRESULT>(wParam) + 1; }
    void OnCommandCount() { g_sink = g_sink + 1; }
    HBRUSH OnCtlColor(CDC*, CWnd*, UINT) { return White(); }
    void OnClicked(NMHDR*, LRESULT* pResult) { *pResult = 1; }
};

#define LINES5(n)                                                                                            \
    ON_MESSAGE(kFirst + (n), &CCounting::OnCount)                                                            \
    ON_MESSAGE(kFirst + (n) + 1, &CCounting::OnCount)                                                        \
    ON_MESSAGE(kFirst + (n) + 2, &CCounting::OnCount)                                                        \
    ON_MESSAGE(kFirst + (n) + 3, &CCounting::OnCount)                                                        \
    ON_MESSAGE(kFirst + (n) + 4, &CCounting::OnCount)
#define LINES25(n) LINES5(n) LINES5((n) + 5) LINES5((n) + 10) LINES5((n) + 15) LINES5((n) + 20)

class CMap5 : public CCounting {
    DECLARE_MESSAGE_MAP()
};
class CMap20 : public CCounting {
    DECLARE_MESSAGE_MAP()
};
class CMap50 : public CCounting {
    DECLARE_MESSAGE_MAP()
};
class CBase : public CCounting {
    DECLARE_MESSAGE_MAP()
};
class CMiddle : public CBase {
    DECLARE_MESSAGE_MAP()
};
class CTop : public CMiddle {
    DECLARE_MESSAGE_MAP()
};
class CReflecting : public CCounting {
    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_MESSAGE_MAP(CMap5, CWnd)
    LINES5(0)
END_MESSAGE_MAP()
BEGIN_MESSAGE_MAP(CMap20, CWnd)
    LINES5(0) LINES5(5) LINES5(10) LINES5(15)
END_MESSAGE_MAP()
BEGIN_MESSAGE_MAP(CMap50, CWnd)
    ON_COMMAND(kCommand, &CCounting::OnCommandCount)
    LINES25(0) LINES25(25)
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()
BEGIN_MESSAGE_MAP(CBase, CWnd)
    ON_MESSAGE(kFirst, &CCounting::OnCount)
END_MESSAGE_MAP()
BEGIN_MESSAGE_MAP(CMiddle, CBase)
    LINES25(100)
END_MESSAGE_MAP()
BEGIN_MESSAGE_MAP(CTop, CMiddle)
    LINES25(200)
END_MESSAGE_MAP()
BEGIN_MESSAGE_MAP(CReflecting, CWnd)
    ON_NOTIFY_REFLECT(NM_CLICK, &CCounting::OnClicked)
END_MESSAGE_MAP()
    // clang-format on

    LRESULT CALLBACK BareProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message >= kFirst && message < kFirst + 50)
        return static_cast<LRESULT>(wParam) + 1;
    switch (message) {
    case WM_COMMAND:
        g_sink = g_sink + 1;
        return 1;
    case WM_NOTIFY:
        return reinterpret_cast<const NMHDR*>(lParam)->code == NM_CLICK;
    case WM_CTLCOLORSTATIC:
        return reinterpret_cast<LRESULT>(White());
    default:
        return ::DefWindowProc(hWnd, message, wParam, lParam);
    }
}

// --- The comparison ----------------------------------------------------------------------------

Cost SendMany(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    const double start = Now();
    for (int i = 0; i < kMessages; ++i)
        g_sink = ::SendMessage(hWnd, message, wParam, lParam);
    return {Now() - start};
}

HWND BareWindow(HWND hParent) {
    WNDCLASS wc = {};
    wc.lpfnWndProc = BareProc;
    wc.hInstance = ::GetModuleHandle(nullptr);
    wc.lpszClassName = L"bare";
    ::RegisterClass(&wc);
    return ::CreateWindow(L"bare", L"", hParent != nullptr ? WS_CHILD : WS_POPUP, 0, 0, 9, 9, hParent,
                          nullptr, wc.hInstance, nullptr);
}

} // namespace

void MeasureDispatch(Report& report) {
    const HWND hBare = BareWindow(nullptr);
    const HWND hBareChild = BareWindow(hBare);
    CMap5 map5;
    CMap20 map20;
    CMap50 map50;
    CTop top;
    for (CWnd* pWnd : std::initializer_list<CWnd*>{&map5, &map20, &map50, &top})
        pWnd->CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0);
    CReflecting child;
    child.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 9, 9), &map50, kCommand);
    NMHDR fromBare = {hBareChild, kCommand, NM_CLICK};
    NMHDR fromChild = {child.m_hWnd, kCommand, NM_CLICK};
    const auto lBareChild = reinterpret_cast<LPARAM>(hBareChild);
    const auto lChild = reinterpret_cast<LPARAM>(child.m_hWnd);
    const struct {
        const char* pszName;
        CWnd& wnd;
        UINT message;
        WPARAM wParam;
        LPARAM lBare;
        LPARAM lOurs;
        double goal;
    } rows[] = {
        {"message, map of 5", map5, kFirst + 4, 0, 0, 0, kGoal},
        {"message, map of 20", map20, kFirst + 19, 0, 0, 0, kGoal},
        {"message, map of 50", map50, kFirst + 49, 0, 0, 0, kGoal},
        {"message nobody wants, map of 5", map5, kUnknown, 0, 0, 0, kGoal},
        {"message nobody wants, map of 20", map20, kUnknown, 0, 0, 0, kGoal},
        {"message nobody wants, map of 50", map50, kUnknown, 0, 0, 0, kGoal},
        {"message, base class of 3", top, kFirst, 0, 0, 0, kGoal},
        {"command of a menu", map50, WM_COMMAND, kCommand, 0, 0, kCommandGoal},
        {"command of a control", map50, WM_COMMAND, kCommand, lBareChild, lChild, kCommandGoal},
        {"reflected notification", map50, WM_NOTIFY, kCommand, reinterpret_cast<LPARAM>(&fromBare),
         reinterpret_cast<LPARAM>(&fromChild), kCommandGoal},
        {"colour of a control", map50, WM_CTLCOLORSTATIC, 0, lBareChild, lChild, kCommandGoal},
    };
    for (const auto& row : rows)
        if (report.Wants(row.pszName))
            report.AddTime(
                row.pszName,
                Compare([&] { return SendMany(hBare, row.message, row.wParam, row.lBare); },
                        [&] { return SendMany(row.wnd.m_hWnd, row.message, row.wParam, row.lOurs); }),
                row.goal);
    ::DestroyWindow(hBare);
}

} // namespace bench
