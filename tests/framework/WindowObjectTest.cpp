// Which object belongs to which window, and who outlives whom.
#include "support/TestApp.h"

#include <algorithm>
#include <memory>

using namespace testkit;

namespace {

HWND CreateForeign(HWND hWndParent = nullptr) {
    return ::CreateWindow(WC_STATIC, L"foreign", hWndParent != nullptr ? WS_CHILD : WS_POPUP, 0, 0, 10, 10,
                          hWndParent, nullptr, nullptr, nullptr);
}

/// A foreign window for the time of a test.
struct Foreign {
    ~Foreign() { ::DestroyWindow(m_hWnd); }
    operator HWND() const { return m_hWnd; }

private:
    HWND m_hWnd = CreateForeign();
};

WNDPROC ProcedureOf(HWND hWnd) {
    return reinterpret_cast<WNDPROC>(::GetWindowLongPtr(hWnd, GWLP_WNDPROC));
}

/// Lives on the heap as long as its window, and tells when it goes.
struct SelfDeleting : CWnd {
    explicit SelfDeleting(int& rnDeleted) : m_rnDeleted(rnDeleted) {}
    ~SelfDeleting() override { ++m_rnDeleted; }

protected:
    void PostNcDestroy() override { delete this; }
    afx_msg LRESULT OnEnd(WPARAM, LPARAM) { return DestroyWindow(), 42; }
    DECLARE_MESSAGE_MAP()

private:
    int& m_rnDeleted;
};

BEGIN_MESSAGE_MAP(SelfDeleting, CWnd)
ON_MESSAGE(WM_APP, &SelfDeleting::OnEnd)
END_MESSAGE_MAP()

BOOL CreateChild(CWnd& child, CWnd* pParent) {
    return child.Create(WC_STATIC, L"", WS_CHILD, CRect(0, 0, 5, 5), pParent, 1);
}

TEST(WindowObject, ForeignWindowHasOneTemporaryObject) {
    const Foreign window;
    CWnd* const pWnd = CWnd::FromHandle(window);
    ASSERT_NE(pWnd, nullptr);
    EXPECT_EQ(pWnd->m_hWnd, window);
    EXPECT_EQ(CWnd::FromHandle(window), pWnd);
    EXPECT_TRUE(CWnd::FromHandlePermanent(window) == nullptr && CWnd::FromHandle(nullptr) == nullptr);
    CWnd::DeleteTempMap();
    EXPECT_TRUE(::IsWindow(window));
    EXPECT_EQ(CWnd::FromHandle(window)->m_hWnd, window);
}

TEST(WindowObject, AttachedObjectIsTheWindowsOwnUntilDetached) {
    const Foreign window, other;
    CWnd wnd;
    EXPECT_FALSE(wnd.Attach(nullptr));
    ASSERT_TRUE(wnd.Attach(window));
    EXPECT_EQ(CWnd::FromHandle(window), &wnd);
    EXPECT_EQ(CWnd::FromHandlePermanent(window), &wnd);
    EXPECT_FALSE(CWnd().Attach(window)) << "two objects of one window";
    EXPECT_FALSE(wnd.Attach(other)) << "two windows of one object";
    EXPECT_EQ(wnd.Detach(), window);
    EXPECT_TRUE(wnd.m_hWnd == nullptr && CWnd::FromHandlePermanent(window) == nullptr);
    EXPECT_TRUE(::IsWindow(window));
}

TEST(WindowObject, IsAttachedBeforeTheFirstMessage) {
    struct Early : CWnd {
        std::vector<UINT> m_messages;
        int m_nPrepared = 0;
        void PreSubclassWindow() override {
            EXPECT_TRUE(m_hWnd != nullptr && m_messages.empty());
            ++m_nPrepared;
        }
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            m_messages.push_back(message);
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    Early wnd;
    ASSERT_TRUE(wnd.CreateEx(0, WC_STATIC, L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    EXPECT_EQ(wnd.m_nPrepared, 1);
    EXPECT_NE(std::find(wnd.m_messages.begin(), wnd.m_messages.end(), UINT(WM_NCCREATE)),
              wnd.m_messages.end());
}

TEST(WindowObject, ParentNotificationsOfCreationDoNotTakeThePlaceOfTheNewWindow) {
    // A window that creates children while it is created itself must not lose its object to one.
    struct WithChild : CWnd {
        CWnd m_child;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_CREATE)
                CreateChild(m_child, this);
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    WithChild wnd;
    ASSERT_TRUE(wnd.CreateEx(0, WC_STATIC, L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    ASSERT_NE(wnd.m_child.m_hWnd, nullptr);
    EXPECT_NE(wnd.m_hWnd, wnd.m_child.m_hWnd);
    EXPECT_EQ(::GetParent(wnd.m_child.m_hWnd), wnd.m_hWnd);
    EXPECT_EQ(CWnd::FromHandlePermanent(wnd.m_child.m_hWnd), &wnd.m_child);
}

TEST(WindowObject, SubclassingEndsWithTheOldProcedureBack) {
    class Deaf : public CWnd {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            return message == WM_APP ? 7 : CWnd::WindowProc(message, wParam, lParam);
        }
    };
    const Foreign window;
    const WNDPROC pfnBefore = ProcedureOf(window);
    Deaf wnd;
    ASSERT_TRUE(wnd.SubclassWindow(window));
    EXPECT_EQ(::SendMessage(window, WM_APP, 0, 0), 7);
    EXPECT_EQ(wnd.GetWindowTextLength(), 7) << "what the object does not handle reaches the old procedure";
    EXPECT_EQ(wnd.UnsubclassWindow(), window);
    EXPECT_EQ(ProcedureOf(window), pfnBefore);
    EXPECT_EQ(::SendMessage(window, WM_APP, 0, 0), 0);
}

TEST(WindowObject, SubclassDlgItemTakesTheItemOrRefuses) {
    Frame frame;
    const HWND hItem = CreateForeign(frame);
    ::SetWindowLongPtr(hItem, GWLP_ID, 5);
    CWnd item, second;
    EXPECT_TRUE(!item.SubclassDlgItem(6, &frame) && item.SubclassDlgItem(5, &frame));
    EXPECT_EQ(item.m_hWnd, hItem);
    EXPECT_FALSE(second.SubclassDlgItem(5, &frame));
}

// --- Destruction ----------------------------------------------------------------------------

TEST(WindowDestruction, ObjectFirstTakesItsWindowAlong) {
    HWND hCreated = nullptr;
    const HWND hAttached = CreateForeign();
    {
        Frame frame;
        hCreated = frame;
        CWnd attached;
        attached.Attach(hAttached);
    }
    EXPECT_TRUE(!::IsWindow(hCreated) && !::IsWindow(hAttached));
    EXPECT_EQ(CWnd::FromHandlePermanent(hCreated), nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(hAttached), nullptr);
}

TEST(WindowDestruction, WindowFirstLeavesAnEmptyObject) {
    Frame frame;
    const HWND hWnd = frame;
    ::DestroyWindow(hWnd);
    EXPECT_TRUE(frame.m_hWnd == nullptr && CWnd::FromHandlePermanent(hWnd) == nullptr);
    EXPECT_FALSE(frame.DestroyWindow());
}

TEST(WindowDestruction, ParentFirstEmptiesTheObjectsOfItsChildrenAndAChildTakesItsWindow) {
    CWnd child, grandchild;
    auto pFrame = std::make_unique<Frame>();
    ASSERT_TRUE(CreateChild(child, pFrame.get()));
    ASSERT_TRUE(CreateChild(grandchild, &child));
    pFrame.reset();
    EXPECT_TRUE(child.m_hWnd == nullptr && grandchild.m_hWnd == nullptr);
    Frame frame;
    ASSERT_TRUE(CreateChild(*std::make_unique<CWnd>(), &frame));
    EXPECT_EQ(nullptr, ::GetWindow(frame, GW_CHILD));
}

TEST(WindowDestruction, ObjectOnTheHeapGoesWithItsWindowOnAnyPath) {
    int nDeleted = 0;
    Frame frame;
    auto* pWnd = new SelfDeleting(nDeleted);
    ASSERT_TRUE(CreateChild(*pWnd, &frame));
    EXPECT_TRUE(pWnd->DestroyWindow());
    EXPECT_EQ(nDeleted, 1) << "by its own call";

    pWnd = new SelfDeleting(nDeleted);
    ASSERT_TRUE(CreateChild(*pWnd, &frame));
    EXPECT_EQ(pWnd->SendMessage(WM_APP), 42);
    EXPECT_EQ(nDeleted, 2) << "inside a handler of its own";

    ASSERT_TRUE(CreateChild(*new SelfDeleting(nDeleted), &frame));
    frame.DestroyWindow();
    EXPECT_EQ(nDeleted, 3) << "with its parent";

    EXPECT_FALSE((new SelfDeleting(nDeleted))->Create(L"no such class", L"", 0, CRect(), nullptr, 1));
    EXPECT_EQ(nDeleted, 4) << "when the window could not be created";
}

} // namespace
