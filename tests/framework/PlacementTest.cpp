// Place, size, styles and relations of windows.
#include "support/TestApp.h"
#include "testkit/TitleBar.h"
#include "testkit/Pen.h"

using namespace testkit;

namespace {

/// A popup of the given size, owned or not, for the time of a test.
struct Popup : CWnd {
    Popup(CRect rect, CWnd* pOwner, DWORD dwStyle = WS_POPUP | WS_VISIBLE) {
        CreateEx(0, WC_STATIC, L"", dwStyle, rect, pOwner, 0);
    }
};

TEST(Placement, CentresOnTheOwnerButNeverLeavesTheWorkArea) {
    const CRect work = WorkArea();
    const auto centre = work.CenterPoint();
    const struct {
        const char* pszName;
        CRect owner; ///< Empty for none.
        DWORD dwOwnerStyle;
        CSize size;
        CPoint expected; ///< Top left.
    } cases[] = {
        {"inside", {20, 60, 120, 160}, WS_VISIBLE, {40, 20}, {50, 100}},
        {"larger than its owner", {100, 100, 120, 120}, WS_VISIBLE, {60, 40}, {80, 90}},
        {"owner at the left edge", {-80, 100, 20, 200}, WS_VISIBLE, {60, 40}, {work.left, 130}},
        {"owner at the lower right",
         {work.right - 10, work.bottom - 10, work.right + 90, work.bottom + 90},
         WS_VISIBLE,
         {60, 40},
         {work.right - 60, work.bottom - 40}},
        {"hidden owner", {0, 0, 20, 20}, 0, {60, 40}, {centre.x - 30, centre.y - 20}},
        {"no owner", {}, 0, {60, 40}, {centre.x - 30, centre.y - 20}},
        {"larger than the screen", {}, 0, {3000, 3000}, {work.left, work.top}},
    };
    for (const auto& c : cases) {
        Popup owner(c.owner, nullptr, WS_POPUP | c.dwOwnerStyle);
        Popup popup(CRect(CPoint(1, 1), c.size), c.owner.IsRectNull() ? nullptr : &owner);
        popup.CenterWindow();
        EXPECT_EQ(RectOf(popup).TopLeft(), c.expected)
            << c.pszName << ' ' << RectOf(popup).left << ' ' << RectOf(popup).top;
        EXPECT_EQ(RectOf(popup).Size(), c.size) << c.pszName;
    }
}

TEST(Placement, CentresOnAnotherWindowIfTold) {
    Popup owner(CRect(0, 30, 100, 130), nullptr), other(CRect(100, 150, 200, 250), nullptr);
    Popup popup(CRect(0, 0, 40, 20), &owner);
    popup.CenterWindow(&other);
    EXPECT_EQ(RectOf(popup), CRect(130, 190, 170, 210));
}

TEST(Placement, StyleChangesTellWhetherTheyChangedAnything) {
    Frame frame;
    EXPECT_TRUE(frame.ModifyStyle(0, WS_MAXIMIZEBOX) && !frame.ModifyStyle(0, WS_MAXIMIZEBOX));
    EXPECT_TRUE(frame.ModifyStyle(WS_MAXIMIZEBOX, WS_MINIMIZEBOX, SWP_NOREDRAW));
    EXPECT_EQ(frame.GetStyle() & (WS_MAXIMIZEBOX | WS_MINIMIZEBOX), static_cast<DWORD>(WS_MINIMIZEBOX));
    EXPECT_TRUE(frame.ModifyStyleEx(0, WS_EX_TOPMOST | WS_EX_TOOLWINDOW));
    EXPECT_NE(frame.GetExStyle() & WS_EX_TOOLWINDOW, 0U);
}

} // namespace
