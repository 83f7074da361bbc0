// Place, size, styles and relations of windows.
#include "support/TestApp.h"

using namespace testkit;

namespace {

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

TEST(Placement, CentresOnAnotherWindowIfTold) {
    Popup owner(CRect(0, 30, 100, 130), nullptr), other(CRect(100, 150, 200, 250), nullptr);
    Popup popup(CRect(0, 0, 40, 20), &owner);
    popup.CenterWindow(&other);
    EXPECT_EQ(CRect(130, 190, 170, 210), RectOf(popup));
}

TEST(Placement, StyleChangesTellWhetherTheyChangedAnything) {
    Frame frame;
    EXPECT_TRUE(frame.ModifyStyle(0, WS_MAXIMIZEBOX));
    EXPECT_FALSE(frame.ModifyStyle(0, WS_MAXIMIZEBOX));
    EXPECT_TRUE(frame.ModifyStyle(WS_MAXIMIZEBOX, WS_MINIMIZEBOX, SWP_NOREDRAW));
    EXPECT_EQ(DWORD{WS_MINIMIZEBOX}, frame.GetStyle() & (WS_MAXIMIZEBOX | WS_MINIMIZEBOX));
    EXPECT_TRUE(frame.ModifyStyleEx(0, WS_EX_TOPMOST | WS_EX_TOOLWINDOW));
    EXPECT_NE(0U, frame.GetExStyle() & WS_EX_TOOLWINDOW);
}

} // namespace
