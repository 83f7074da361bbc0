// The icon button, on the screen and under the stylus.
#include "testkit/Colors.h"
#include "testkit/Canvas.h"
#include "support/TestApp.h"

#include "controls/IconButton.h"

using namespace testkit;

namespace {

constexpr int IDC_BUTTON = 1;

struct ButtonStage : Stage {
    explicit ButtonStage(CSize size = {60, 24}, UINT nStyle = 0, LPCTSTR pszText = L"") {
        CreateItem(WC_BUTTON, IDC_BUTTON, BS_OWNERDRAW, CRect(CPoint(20, 20), size), pszText);
        EXPECT_TRUE(m_button.Attach(IDC_BUTTON, this, m_icon, static_cast<int>(nStyle)));
    }
    ~ButtonStage() override { DestroyWindow(); } // before the button

    Picture Look() { return Picture::Of(m_button); }
    CRect IconPlace() {
        const auto image = Look();
        return image.Around(image.Rect(), MAGENTA);
    }
    bool AwaitsRedraw() const { return ::GetUpdateRect(m_button, nullptr, FALSE) != FALSE; }

    SquareIcon m_icon;
    CIconButton m_button;
};

TEST(IconButton, IconStandsInTheMiddleOrAtTheLeftAndSinksWhenPressed) {
    const Rows<CSize, CSize, UINT, CPoint> rows = {
        {{60, 24}, {16, 16}, 0, {22, 4}},
        {{60, 24}, {16, 16}, CIconButton::StyleText, {4, 4}},
        {{61, 25}, {16, 16}, 0, {22, 4}},
        // The size told decides the place, the icon keeps its own.
        {{60, 40}, {32, 32}, 0, {14, 4}},
        {{60, 40}, {8, 20}, CIconButton::StyleText, {10, 10}},
    };
    for (const auto& [button, icon, nStyle, place] : rows) {
        ButtonStage stage(button, nStyle);
        SIZE size = icon;
        stage.m_button.SetIconSize(&size);
        EXPECT_EQ(stage.IconPlace(), CRect(place, CSize(16, 16))) << place.x;
        stage.m_button.SetState(TRUE);
        EXPECT_EQ(stage.IconPlace(), CRect(place + CSize(1, 1), CSize(16, 16))) << place.x;
    }
}

TEST(IconButton, TextStandsBesideTheIconAndIsWhiteWhenPressed) {
    ButtonStage stage({120, 24}, CIconButton::StyleText, L"HHH");
    const CRect inside(22, 3, 116, 21);
    const auto released = stage.Look();
    stage.m_button.SetState(TRUE);
    const auto pressed = stage.Look();
    EXPECT_NE(released.At(1, 1), pressed.At(1, 1)) << "the frame";
    const CRect text = released.Around(inside, ::GetSysColor(COLOR_BTNTEXT));
    const CRect pressedText = pressed.Around(inside, WHITE);
    EXPECT_GE(text.left, 24); // and there is one
    EXPECT_LE(text.left, 27);
    EXPECT_NEAR(12, text.CenterPoint().y, 2);
    EXPECT_EQ(pressedText, text + CPoint(2, 1));
    EXPECT_TRUE(pressed.Has(pressedText, BLACK)) << "on black";
}

TEST(IconButton, EachActionDrawsItsPartAndRestoresTheContext) {
    const Rows<UINT, UINT, bool, bool> rows = {
        {ODA_DRAWENTIRE, 0, true, false},
        {ODA_SELECT, ODS_SELECTED, true, false},
        {ODA_SELECT, ODS_SELECTED | ODS_FOCUS, true, true},
        {ODA_FOCUS, ODS_FOCUS, false, true},
        {ODA_FOCUS, 0, false, true}, // takes it away
        {0, ODS_FOCUS, false, true},
        {0, ODS_SELECTED, false, false},
    };
    const CSize SIZE_ = {60, 24};
    constexpr COLORREF PAPER = RGB(10, 20, 30);
    for (const UINT nStyle : {static_cast<UINT>(CIconButton::StyleFocus), 0U})
        for (const auto& [nAction, nState, bFace, bFocus] : rows) {
            SCOPED_TRACE(std::to_string(nStyle) + ' ' + std::to_string(nAction) + ' ' +
                         std::to_string(nState));
            ButtonStage stage(SIZE_, nStyle);
            Canvas canvas(SIZE_.cx, SIZE_.cy);
            CDC& dc = canvas.m_dc;
            dc.FillSolidRect(CRect(CPoint(), SIZE_), PAPER);
            dc.SetTextColor(RGB(1, 1, 1));
            dc.SetBkColor(RGB(2, 2, 2));
            DRAWITEMSTRUCT item = {};
            item.itemAction = nAction;
            item.itemState = nState;
            item.hDC = dc;
            item.rcItem = CRect(CPoint(), SIZE_);
            stage.m_button.DrawItem(&item);
            const Picture image = canvas.Look();
            EXPECT_EQ(image.Has(image.Rect(), MAGENTA), bFace);
            if (!bFace) {
                const CRect drawn =
                    image.Around(image.Rect(), [&](CPoint p) { return image.At(p.x, p.y) != PAPER; });
                EXPECT_EQ(drawn, bFocus && nStyle != 0 ? CRect(2, 2, 58, 22) : CRect(0, 0, 0, 0));
            }
            EXPECT_EQ(dc.GetTextColor(), RGB(1, 1, 1));
            EXPECT_EQ(dc.GetBkColor(), RGB(2, 2, 2));
        }
}

TEST(IconButton, EachTapHoweverQuickIsAClickAndFlipsAToggleButtonOnly) {
    for (const bool bToggle : {false, true}) {
        ButtonStage stage({60, 24}, bToggle ? CIconButton::StyleToggle : 0U);
        const CPoint point = MiddleOf(stage.m_button);
        for (int i = 0; i < 2; ++i)
            pen::Tap(point);
        stage.Tap(point);
        EXPECT_EQ(3, stage.Count(IDC_BUTTON, BN_CLICKED));
        EXPECT_EQ(0, stage.Count(IDC_BUTTON, BN_DOUBLECLICKED));
        EXPECT_EQ(bToggle, stage.m_button.GetPush() != FALSE);
        EXPECT_EQ(bToggle ? 5 : 4, stage.IconPlace().top) << "latched it looks pressed";
    }
}

TEST(IconButton, PushStateBelongsToToggleButtons) {
    Frame bystander;
    bystander.RedrawWindow();
    CIconButton button; // without a window, it touches no other
    const SquareIcon icon;
    button.SetIcon(icon);
    button.SetPush(TRUE);
    EXPECT_FALSE(button.GetPush());
    button.SetButtonStyle(CIconButton::StyleToggle);
    button.SetPush(2);
    EXPECT_EQ(TRUE, button.GetPush());
    button.SetButtonStyle(CIconButton::StyleToggle | CIconButton::StyleText);
    EXPECT_TRUE(button.GetPush()) << "still a toggle button";
    button.SetButtonStyle(CIconButton::StyleText);
    button.SetButtonStyle(CIconButton::StyleToggle);
    EXPECT_FALSE(button.GetPush()) << "it has come up for good";
    EXPECT_FALSE(::GetUpdateRect(bystander, nullptr, FALSE));
}

TEST(IconButton, RedrawsForChangesOnly) {
    ButtonStage stage({60, 24}, CIconButton::StyleToggle);
    CIconButton& button = stage.m_button;
    const SquareIcon other;
    SIZE size = {8, 8};
    const Rows<const char*, std::function<void()>, bool> rows = {
        {"same icon", [&] { EXPECT_EQ(button.SetIcon(stage.m_icon), stage.m_icon); }, false},
        {"other icon", [&] { EXPECT_EQ(button.SetIcon(other), stage.m_icon); }, true},
        {"no icon", [&] { EXPECT_EQ(button.SetIcon(nullptr), other); }, true},
        {"size", [&] { button.SetIconSize(&size); }, false},
        {"no size", [&] { button.SetIconSize(nullptr); }, false},
        {"same style", [&] { button.SetButtonStyle(CIconButton::StyleToggle); }, false},
        {"pushed", [&] { button.SetPush(TRUE); }, true},
        {"pushed again", [&] { button.SetPush(5); }, false},
        {"released", [&] { button.SetPush(FALSE); }, true},
        {"other style", [&] { button.SetButtonStyle(0); }, true},
    };
    for (const auto& [what, change, bRedraws] : rows) {
        stage.Look();
        change();
        EXPECT_EQ(stage.AwaitsRedraw(), bRedraws) << what;
    }
}

TEST(IconButton, FailedAttachChangesNothing) {
    ButtonStage stage({60, 24}, CIconButton::StyleToggle);
    EXPECT_FALSE(stage.m_button.Attach(99, &stage, nullptr, 0));
    EXPECT_FALSE(stage.m_button.Attach(IDC_BUTTON, nullptr, nullptr, 0));
    stage.m_button.SetPush(TRUE);
    EXPECT_TRUE(stage.m_button.GetPush());
    EXPECT_EQ(stage.m_button.SetIcon(nullptr), stage.m_icon);
}

} // namespace
