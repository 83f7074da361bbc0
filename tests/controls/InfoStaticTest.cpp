// The information text, pixel by pixel.
#include "support/TestApp.h"
#include "testkit/Colors.h"
#include "testkit/Picture.h"

#include "controls/InfoStatic.h"

#include "Tesuvo.h"

using namespace testkit;

namespace {

const CSize SIZE_ = {120, 24};
constexpr COLORREF YELLOW = RGB(255, 255, 0);

struct InfoStatic : testing::Test {
    void SetUp() override {
        constexpr DWORD STYLE = WS_CHILD | WS_VISIBLE | SS_NOTIFY;
        ASSERT_TRUE(m_text.Create(L"", STYLE, CRect(CPoint(10, 10), SIZE_), &m_frame, 1));
    }
    Picture Look() { return Picture::Of(m_text); }
    static CRect Ink(const Picture& image, COLORREF background, CRect within) {
        return image.Around(within, [&](CPoint p) { return image.At(p.x, p.y) != background; });
    }

    Stage m_frame;
    CInfoStatic m_text;
};

TEST_F(InfoStatic, TextIsIndentedBehindTheIconAndCentredOnItsColour) {
    m_text.SetBkColor(YELLOW);
    m_text.SetWindowText(L"H情報H");
    const CRect plain = Ink(Look(), YELLOW, CRect(CPoint(), SIZE_));
    EXPECT_GE(plain.left, 2);
    EXPECT_LE(plain.left, 4);
    EXPECT_NEAR(plain.CenterPoint().y, SIZE_.cy / 2, 2);
    EXPECT_TRUE(Look().Has(plain, BLACK));
    EXPECT_FALSE(Look().Has(plain, WHITE)) << "nothing but its colour behind the text";
    m_text.SetOption(CInfoStatic::OptionIcon);
    EXPECT_EQ(Ink(Look(), YELLOW, CRect(16, 0, SIZE_.cx, SIZE_.cy)), plain + CPoint(14, 0));
    m_text.SetOption(0xFFFFFFFE);
    EXPECT_EQ(Ink(Look(), YELLOW, CRect(CPoint(), SIZE_)), plain) << "the option word is replaced";
}

TEST_F(InfoStatic, KeepsItsLookWhenItGetsAnotherTextOrIsDisabled) {
    m_text.SetBkColor(YELLOW);
    m_text.SetOption(CInfoStatic::OptionIcon);
    m_text.SetWindowText(L"H情報H");
    const auto wanted = Look();
    const auto now = [&] {
        m_text.UpdateWindow();
        CClientDC dc(&m_text);
        return Picture(dc, SIZE_);
    };
    m_text.SetWindowText(L"");
    EXPECT_TRUE(now().IsAll(CRect(16, 0, SIZE_.cx, SIZE_.cy), YELLOW)) << "at once";
    m_text.SetWindowText(L"H情報H");
    EXPECT_TRUE(now().Difference(wanted).IsRectEmpty()) << "text";
    EXPECT_EQ(L"H情報H", TextOf(m_text));
    m_text.EnableWindow(FALSE);
    EXPECT_TRUE(now().Difference(wanted).IsRectEmpty()) << "disabled";
    m_text.EnableWindow(TRUE);
    EXPECT_TRUE(now().Difference(wanted).IsRectEmpty()) << "enabled";
}

TEST_F(InfoStatic, TapsReachTheSystem) {
    m_frame.Tap(m_text);
    EXPECT_EQ(1, m_frame.Count(1, STN_CLICKED));
}

} // namespace
