// The information text, pixel by pixel.
#include "Pixels.h"

#include "controls/InfoStatic.h"

#include "Tesuvo.h"

namespace {

const CSize SIZE_ = {120, 24};
constexpr COLORREF YELLOW = RGB(255, 255, 0);

class InfoStatic : public testing::Test {
protected:
    void SetUp() override {
        constexpr DWORD STYLE = WS_CHILD | WS_VISIBLE | SS_NOTIFY;
        ASSERT_TRUE(m_text.Create(L"", STYLE, CRect(CPoint(10, 10), SIZE_), &m_frame, 1));
    }
    fx::Image Look() { return fx::Image::Of(m_text); }
    static CRect Ink(const fx::Image& image, COLORREF background, CRect within) {
        return image.Around(within, [&](CPoint p) { return image.At(p.x, p.y) != background; });
    }

    fx::Frame m_frame;
    CInfoStatic m_text;
};

TEST_F(InfoStatic, EmptyTextIsItsColourAlone) {
    EXPECT_TRUE(Look().IsAll(CRect(CPoint(), SIZE_), fx::WHITE));
    m_text.SetBkColor(YELLOW);
    EXPECT_FALSE(::GetUpdateRect(m_text, nullptr, FALSE)) << "the caller redraws";
    EXPECT_TRUE(Look().IsAll(CRect(CPoint(), SIZE_), YELLOW));
    m_text.SetOption(CInfoStatic::OptionIcon);
    EXPECT_FALSE(::GetUpdateRect(m_text, nullptr, FALSE)) << "the caller redraws";
}

TEST_F(InfoStatic, IconStandsInTheCornerInItsOwnSize) {
    m_text.SetBkColor(YELLOW);
    m_text.SetOption(CInfoStatic::OptionIcon);
    const auto image = Look();
    CClientDC screen(&m_frame);
    screen.FillSolidRect(0, 0, 16, 16, YELLOW);
    ::DrawIconEx(screen, 0, 0, TVGetCommonIcon(39), 16, 16, 0, nullptr, DI_NORMAL);
    const fx::Image icon(screen, {16, 16});
    EXPECT_FALSE(icon.IsAll(icon.Rect(), YELLOW));
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            ASSERT_EQ(image.At(x, y), icon.At(x, y)) << x << ' ' << y;
    EXPECT_TRUE(image.IsAll(CRect(16, 0, SIZE_.cx, SIZE_.cy), YELLOW));
    EXPECT_TRUE(image.IsAll(CRect(0, 16, SIZE_.cx, SIZE_.cy), YELLOW));
}

TEST_F(InfoStatic, TextIsIndentedBehindTheIconAndCentredOnItsColour) {
    m_text.SetBkColor(YELLOW);
    m_text.SetWindowText(L"H情報H");
    const CRect plain = Ink(Look(), YELLOW, CRect(CPoint(), SIZE_));
    EXPECT_GE(plain.left, 2);
    EXPECT_LE(plain.left, 4);
    EXPECT_NEAR(plain.CenterPoint().y, SIZE_.cy / 2, 2);
    EXPECT_TRUE(Look().Has(plain, fx::BLACK));
    EXPECT_FALSE(Look().Has(plain, fx::WHITE)) << "nothing but its colour behind the text";
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
    const auto expectNow = [&](const char* pszWhat) {
        m_text.UpdateWindow();
        CClientDC dc(&m_text);
        const fx::Image now(dc, SIZE_);
        for (int y = 0; y < SIZE_.cy; ++y)
            for (int x = 0; x < SIZE_.cx; ++x)
                ASSERT_EQ(now.At(x, y), wanted.At(x, y)) << pszWhat << ' ' << x << ' ' << y;
    };
    m_text.SetWindowText(L"");
    m_text.SetWindowText(L"H情報H");
    expectNow("text");
    EXPECT_EQ(fx::TextOf(m_text), L"H情報H");
    m_text.EnableWindow(FALSE);
    expectNow("disabled");
    m_text.EnableWindow(TRUE);
    expectNow("enabled");
}

TEST_F(InfoStatic, TextHasTheFontOfItsDialog) {
    m_text.SetWindowText(L"H");
    CFont font;
    font.CreatePointFont(60, L"IPAPGothic");
    m_text.SetFont(&font);
    const CRect small = Ink(Look(), fx::WHITE, CRect(CPoint(), SIZE_));
    CFont large;
    large.CreatePointFont(140, L"IPAPGothic");
    m_text.SetFont(&large);
    EXPECT_GT(Ink(Look(), fx::WHITE, CRect(CPoint(), SIZE_)).Height(), small.Height() + 4);
}

} // namespace
