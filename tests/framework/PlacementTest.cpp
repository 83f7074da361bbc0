// Place, size, styles and relations of windows.
#include "support/DialogTemplate.h"
#include "support/ModalScript.h"

namespace {

CRect RectOf(const CWnd& wnd) {
    CRect rect;
    wnd.GetWindowRect(rect);
    return rect;
}

/// A popup of the given size, owned or not, for the time of a test.
class Popup : public CWnd {
public:
    Popup(CRect rect, CWnd* pOwner, DWORD dwStyle = WS_POPUP | WS_VISIBLE) {
        CreateEx(0, WC_STATIC, L"", dwStyle, rect, pOwner, 0);
    }
};

TEST(Placement, CentresOnTheOwnerButNeverLeavesTheWorkArea) {
    CRect work;
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &work, 0);
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
    Popup owner(CRect(0, 30, 100, 130), nullptr);
    Popup other(CRect(100, 150, 200, 250), nullptr);
    Popup popup(CRect(0, 0, 40, 20), &owner);
    popup.CenterWindow(&other);
    EXPECT_EQ(RectOf(popup), CRect(130, 190, 170, 210));
}

TEST(Placement, ConvertsRectanglesAndPointsBothWays) {
    fx::Frame frame(CSize(150, 150), WS_POPUP | WS_VISIBLE | WS_CAPTION);
    CRect client;
    frame.GetClientRect(client);
    CRect rect = client;
    frame.ClientToScreen(rect);
    EXPECT_GT(rect.top, RectOf(frame).top);
    EXPECT_EQ(rect.Size(), client.Size());
    frame.ScreenToClient(rect);
    EXPECT_EQ(rect, client);
    CStatic child;
    ASSERT_TRUE(child.Create(L"", WS_CHILD, CRect(7, 9, 20, 20), &frame));
    CPoint point(1, 1);
    child.MapWindowPoints(&frame, &point, 1);
    EXPECT_EQ(point, CPoint(8, 10));
    rect = client;
    frame.CalcWindowRect(rect);
    EXPECT_EQ(rect.Size(), RectOf(frame).Size());
}

TEST(Placement, StyleChangesTellWhetherTheyChangedAnything) {
    fx::Frame frame;
    EXPECT_TRUE(frame.ModifyStyle(0, WS_MAXIMIZEBOX));
    EXPECT_FALSE(frame.ModifyStyle(0, WS_MAXIMIZEBOX));
    EXPECT_TRUE(frame.ModifyStyle(WS_MAXIMIZEBOX, WS_MINIMIZEBOX, SWP_NOREDRAW));
    EXPECT_EQ(frame.GetStyle() & (WS_MAXIMIZEBOX | WS_MINIMIZEBOX), static_cast<DWORD>(WS_MINIMIZEBOX));
    EXPECT_TRUE(frame.ModifyStyleEx(0, WS_EX_TOPMOST | WS_EX_TOOLWINDOW));
    EXPECT_NE(frame.GetExStyle() & WS_EX_TOOLWINDOW, 0U);
}

TEST(Placement, RelativesAreFound) {
    fx::Frame frame;
    CStatic first;
    CEdit second;
    ASSERT_TRUE(first.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 9, 9), &frame, 5));
    ASSERT_TRUE(second.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 10, 9, 19), &frame, 6));
    EXPECT_EQ(frame.GetDlgItem(6), &second);
    EXPECT_EQ(frame.GetDlgItem(7), nullptr);
    EXPECT_EQ(second.GetParent(), &frame);
    EXPECT_EQ(second.GetTopLevelParent(), &frame);
    EXPECT_EQ(first.GetWindow(GW_HWNDNEXT), &second);
    EXPECT_TRUE(frame.IsChild(&first));
    EXPECT_FALSE(first.IsChild(&frame));
    EXPECT_EQ(first.GetOwner(), &frame);
    first.SetOwner(&second);
    EXPECT_EQ(first.GetOwner(), &second);
    EXPECT_EQ(frame.GetNextDlgTabItem(nullptr), &second);
}

TEST(Placement, DialogItemsAreReachedByIdentifier) {
    const fx::DialogTemplate dialogTemplate = fx::DialogTemplate()
                                                  .Edit(1)
                                                  .Button(10, L"", BS_AUTORADIOBUTTON | WS_GROUP)
                                                  .Button(11, L"", BS_AUTORADIOBUTTON);
    CDialog dialog;
    dialog.m_bFullScreen = FALSE;
    ASSERT_TRUE(dialog.CreateIndirect(dialogTemplate.Get()));
    dialog.SetDlgItemText(1, L"名前");
    CString str;
    EXPECT_EQ(dialog.GetDlgItemText(1, str), 2);
    EXPECT_EQ(str, L"名前");
    EXPECT_EQ(dialog.GetDlgItemText(99, str), 0);
    EXPECT_EQ(str, L"");
    dialog.SetDlgItemInt(1, static_cast<UINT>(-5));
    BOOL bValid = FALSE;
    EXPECT_EQ(static_cast<int>(dialog.GetDlgItemInt(1, &bValid)), -5);
    EXPECT_TRUE(bValid);
    EXPECT_EQ(dialog.GetCheckedRadioButton(10, 11), 0);
    dialog.CheckRadioButton(10, 11, 11);
    EXPECT_EQ(dialog.GetCheckedRadioButton(10, 11), 11);
    EXPECT_EQ(dialog.IsDlgButtonChecked(10), 0U);
}

} // namespace
