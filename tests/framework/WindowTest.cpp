// Windows: which object belongs to which, who outlives whom, where they stand.
#include "support/TestApp.h"

#include "afxcmn.h"

#include <set>

using namespace testkit;

namespace {

/// A window that the framework has not made.
struct Foreign {
    explicit Foreign(CWnd* pParentWnd = nullptr)
        : m_hWnd(::CreateWindow(WC_STATIC, L"foreign", pParentWnd != nullptr ? WS_CHILD : WS_POPUP, 0, 0, 10,
                                10, pParentWnd->GetSafeHwnd(), nullptr, nullptr, nullptr)) {}
    ~Foreign() { ::DestroyWindow(m_hWnd); }
    Foreign(const Foreign&) = delete;
    Foreign& operator=(const Foreign&) = delete;
    operator HWND() const { return m_hWnd; }

private:
    const HWND m_hWnd;
};

/// Lives on the heap as long as its window, and tells when it goes.
struct SelfDeleting : CWnd {
    explicit SelfDeleting(int& rnDeleted) : m_rnDeleted(rnDeleted) {}
    ~SelfDeleting() override { ++m_rnDeleted; }

    SelfDeleting* In(CWnd& parent) {
        EXPECT_TRUE(Create(WC_STATIC, L"", WS_CHILD, CRect(0, 0, 5, 5), &parent, 1));
        return this;
    }

protected:
    void PostNcDestroy() override { delete this; }
    afx_msg LRESULT OnEnd(WPARAM, LPARAM) { return DestroyWindow() ? 42 : 0; }
    DECLARE_MESSAGE_MAP()

private:
    int& m_rnDeleted;
};

BEGIN_MESSAGE_MAP(SelfDeleting, CWnd)
ON_MESSAGE(WM_APP, &SelfDeleting::OnEnd)
END_MESSAGE_MAP()

TEST(WindowObject, IsTemporaryOfAForeignWindowUntilOneIsAttached) {
    const Foreign window, other;
    CWnd* const pWnd = CWnd::FromHandle(window);
    ASSERT_NE(nullptr, pWnd);
    EXPECT_EQ(window, pWnd->m_hWnd);
    EXPECT_EQ(pWnd, CWnd::FromHandle(window));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(window));
    EXPECT_EQ(nullptr, CWnd::FromHandle(nullptr));
    CWnd::DeleteTempMap();
    CWnd wnd;
    CWnd* const pTemporary = CWnd::FromHandle(window); // which somebody up the stack may hold still
    EXPECT_FALSE(wnd.Attach(nullptr));
    ASSERT_TRUE(wnd.Attach(window));
    EXPECT_EQ(&wnd, CWnd::FromHandle(window));
    EXPECT_FALSE(CWnd().Attach(window)) << "two objects of one window";
    EXPECT_FALSE(wnd.Attach(other)) << "two windows of one object";
    EXPECT_EQ(window, wnd.Detach());
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ(nullptr, pTemporary->m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(window));
    EXPECT_TRUE(::IsWindow(window));
}

/// A window that makes a child while it is created itself must not lose its object to that one.
TEST(WindowObject, IsAttachedBeforeTheFirstMessageAlsoWithChildrenOfItsOwn) {
    struct Early : Heard<CWnd> {
        int m_nPrepared = 0;
        void PreSubclassWindow() override { m_nPrepared += m_hWnd != nullptr ? 1 : 100; }
    };
    Early wnd;
    std::set<UINT> messages;
    std::optional<Child<CWnd>> child;
    wnd.m_hear = [&](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
        EXPECT_EQ(1, wnd.m_nPrepared);
        messages.insert(message);
        if (message == WM_CREATE)
            child.emplace(wnd);
        return {};
    };
    ASSERT_TRUE(wnd.CreateEx(0, WC_STATIC, L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    EXPECT_EQ(1U, messages.count(WM_NCCREATE));
    ASSERT_TRUE(child.has_value());
    EXPECT_EQ(wnd.m_hWnd, ::GetParent(child->m_hWnd));
    EXPECT_EQ(&*child, CWnd::FromHandlePermanent(child->m_hWnd));
}

TEST(WindowObject, SubclassDlgItemTakesTheItemOrRefusesAndGivesItBack) {
    Frame frame;
    const Foreign foreign(&frame);
    ::SetWindowLongPtr(foreign, GWLP_ID, 5);
    const LONG_PTR nBefore = ::GetWindowLongPtr(foreign, GWLP_WNDPROC);
    CWnd item, second;
    EXPECT_FALSE(item.SubclassDlgItem(6, &frame));
    EXPECT_TRUE(item.SubclassDlgItem(5, &frame));
    EXPECT_EQ(foreign, item.m_hWnd);
    EXPECT_FALSE(second.SubclassDlgItem(5, &frame));
    EXPECT_EQ(foreign, item.UnsubclassWindow());
    EXPECT_EQ(nBefore, ::GetWindowLongPtr(foreign, GWLP_WNDPROC));
}

TEST(WindowDestruction, ObjectOnTheHeapGoesWithItsWindowOnAnyPath) {
    int nDeleted = 0;
    Frame frame;
    EXPECT_TRUE((new SelfDeleting(nDeleted))->In(frame)->DestroyWindow());
    EXPECT_EQ(1, nDeleted) << "by its own call";
    EXPECT_EQ(42, (new SelfDeleting(nDeleted))->In(frame)->SendMessage(WM_APP));
    EXPECT_EQ(2, nDeleted) << "inside a handler of its own";
    (new SelfDeleting(nDeleted))->In(frame);
    frame.DestroyWindow();
    EXPECT_EQ(3, nDeleted) << "with its parent";
    EXPECT_FALSE((new SelfDeleting(nDeleted))->Create(L"no such class", L"", 0, CRect(), nullptr, 1));
    EXPECT_EQ(4, nDeleted) << "when the window could not be created";
}

// --- Place, size, styles ------------------------------------------------------------------------

/// A popup of the given place, owned or not.
struct Popup : CWnd {
    Popup(CRect rect, CWnd* pOwner, DWORD dwStyle = WS_VISIBLE) {
        CreateEx(0, WC_STATIC, L"", WS_POPUP | dwStyle, rect, pOwner, 0);
    }
};

TEST(Placement, CentresOnTheOwnerButNeverLeavesTheWorkArea) {
    const CRect work = WorkArea(), none;
    const CPoint centre = work.CenterPoint(), end = work.BottomRight();
    // The owner, its style, the size, where the top left corner comes to be.
    const Rows<const char*, CRect, DWORD, CSize, CPoint> rows = {
        {"inside", {20, 60, 120, 160}, WS_VISIBLE, {40, 20}, {50, 100}},
        {"larger than its owner", {100, 100, 120, 120}, WS_VISIBLE, {60, 40}, {80, 90}},
        {"owner at the left edge", {-80, 100, 20, 200}, WS_VISIBLE, {60, 40}, {work.left, 130}},
        {"owner at the lower right", {end, CSize(90, 90)}, WS_VISIBLE, {60, 40}, end - CSize(60, 40)},
        {"hidden owner", {0, 0, 20, 20}, 0, {60, 40}, centre - CSize(30, 20)},
        {"no owner", none, 0, {60, 40}, centre - CSize(30, 20)},
        {"larger than the screen", none, 0, {3000, 3000}, work.TopLeft()},
    };
    for (const auto& [pszName, rect, dwStyle, size, expected] : rows) {
        Popup owner(rect, nullptr, dwStyle);
        Popup popup(CRect(CPoint(1, 1), size), rect.IsRectNull() ? nullptr : &owner);
        popup.CenterWindow();
        EXPECT_EQ(expected, RectOf(popup).TopLeft()) << pszName;
        EXPECT_EQ(size, RectOf(popup).Size()) << pszName;
    }
}

TEST(Placement, StyleChangesTellWhetherTheyChangedAnything) {
    Heard<Frame> frame;
    int nPlaced = 0;
    frame.m_hear = [&](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
        nPlaced += message == WM_WINDOWPOSCHANGED;
        return {};
    };
    const CRect before = RectOf(frame);
    EXPECT_TRUE(frame.ModifyStyle(0, WS_MAXIMIZEBOX));
    EXPECT_FALSE(frame.ModifyStyle(0, WS_MAXIMIZEBOX));
    EXPECT_EQ(0, nPlaced);
    EXPECT_TRUE(frame.ModifyStyle(WS_MAXIMIZEBOX, WS_MINIMIZEBOX, SWP_NOREDRAW));
    EXPECT_EQ(1, nPlaced) << "its frame is another";
    EXPECT_EQ(before, RectOf(frame));
    EXPECT_EQ(DWORD{WS_MINIMIZEBOX}, frame.GetStyle() & (WS_MAXIMIZEBOX | WS_MINIMIZEBOX));
    EXPECT_TRUE(frame.ModifyStyleEx(0, WS_EX_TOPMOST | WS_EX_TOOLWINDOW));
    EXPECT_EQ(DWORD{WS_EX_TOOLWINDOW}, frame.GetExStyle() & (WS_EX_TOOLWINDOW | WS_EX_CAPTIONOKBTN));
}

TEST(ToolTips, OneToolIsKnownTheChildThatThePenIsOn) {
    Heard<Frame> frame;
    frame.m_hear = [&](UINT message, WPARAM, LPARAM lParam) -> std::optional<LRESULT> {
        auto* const pInfo = reinterpret_cast<NMTTDISPINFO*>(lParam);
        if (message == WM_NOTIFY && pInfo->hdr.code == static_cast<UINT>(TTN_NEEDTEXT))
            pInfo->lpszText = const_cast<LPTSTR>(L"tip");
        return {};
    };
    const Child<CButton> a(frame, 0, CRect(0, 0, 50, 50), 7), b(frame, 0, CRect(60, 0, 100, 50), 8);
    frame.EnableToolTips();
    const Rows<UINT, CPoint, const CWnd*> rows = {
        {WM_MOUSEMOVE, {10, 10}, &a}, {WM_MOUSEMOVE, {20, 10}, &a},      {WM_KEYLAST, {70, 10}, &a},
        {WM_MOUSELAST, {70, 10}, &b}, {WM_MOUSELAST + 1, {10, 10}, &b},  {WM_MOUSEMOVE, {55, 10}, nullptr},
        {WM_MOUSEMOVE, {70, 10}, &b}, {WM_MOUSEMOVE, {-9, 10}, nullptr},
    };
    for (auto [message, point, pChild] : rows) {
        frame.ClientToScreen(&point);
        MSG msg = {frame, message, 0, 0, 0, point};
        frame.PreTranslateMessage(&msg);
        const HWND hTip = ::FindWindow(TOOLTIPS_CLASS, nullptr);
        EXPECT_EQ(frame.m_hWnd, ::GetWindow(hTip, GW_OWNER));
        TOOLINFO tool = {};
        tool.cbSize = TTTOOLINFOW_V2_SIZE;
        EXPECT_EQ(pChild != nullptr, ::SendMessage(hTip, TTM_ENUMTOOLS, 0, reinterpret_cast<LPARAM>(&tool)));
        EXPECT_EQ(reinterpret_cast<UINT_PTR>(pChild->GetSafeHwnd()), tool.uId);
        TCHAR szText[80] = L"";
        tool.lpszText = szText;
        ::SendMessage(hTip, TTM_GETTEXT, 80, reinterpret_cast<LPARAM>(&tool));
        EXPECT_STREQ(pChild != nullptr ? L"tip" : L"", szText);
    }
    Frame other;
    for (const auto& [bTips, hOwner] : {std::pair(FALSE, frame.m_hWnd), {TRUE, other.m_hWnd}}) {
        other.EnableToolTips(bTips);
        MSG msg = {other, WM_MOUSEMOVE, 0, 0, 0, MiddleOf(other)};
        other.PreTranslateMessage(&msg);
        EXPECT_EQ(hOwner, ::GetWindow(::FindWindow(TOOLTIPS_CLASS, nullptr), GW_OWNER));
    }
}

TEST(Relatives, AreFoundFromAnyWindow) {
    Frame frame;
    Child<CWnd> outer(frame, 0, CRect(10, 10, 90, 90), 1);
    const Child<CButton> inner(outer, WS_GROUP, CRect(5, 5, 30, 30), 2);
    const Child<CButton> second(outer, 0, CRect(40, 5, 70, 30), 3);
    CWnd popup;
    ASSERT_TRUE(popup.CreateEx(0, WC_STATIC, L"", WS_POPUP, CRect(0, 0, 5, 5), &frame, 0));
    const Rows<const CWnd*, const CWnd*> rows = {
        {&second, frame.GetDescendantWindow(3)}, {&second, frame.GetDescendantWindow(3, TRUE)},
        {nullptr, frame.GetDescendantWindow(9)}, {&frame, inner.GetParentOwner()},
        {&frame, popup.GetTopLevelOwner()},
    };
    for (const auto& [pExpected, pFound] : rows)
        EXPECT_EQ(pExpected, pFound);
}

} // namespace
