// What the soft input panel shows.
#include "support/PanelKeys.h"
#include "support/Colors.h"
#include "testkit/Picture.h"

using namespace testkit;

namespace {

constexpr COLORREF GROUND = RGB(80, 88, 96);
constexpr COLORREF FUNCTION = RGB(200, 210, 220);
constexpr COLORREF PRESSED = RGB(0, 64, 144);
constexpr COLORREF SHIFTED = RGB(255, 208, 96);

struct PanelLook : fx::PanelTest {
    static Picture Look() {
        Pump();
        CClientDC dc(CWnd::FromHandle(panel::OfThread())); // as it stands: it draws itself anew
        return Picture(dc, panel::Place().Size());
    }
    /// Expects a key of one colour with a label in the middle of another one. @return the label's place
    static CRect ExpectKey(const Picture& image, CRect key, COLORREF cap, COLORREF label = fx::BLACK) {
        EXPECT_EQ(GROUND, image.At(key.left, key.top + 5)) << "between the keys";
        EXPECT_EQ(GROUND, image.At(key.left + 5, key.top));
        key.DeflateRect(1, 1, 0, 0);
        EXPECT_EQ(cap, image.At(key.left, key.top));
        EXPECT_EQ(cap, image.At(key.right - 1, key.bottom - 1));
        const CRect ink = image.Around(key, label);
        EXPECT_NEAR(key.CenterPoint().x, ink.CenterPoint().x, 2);
        EXPECT_NEAR(key.CenterPoint().y, ink.CenterPoint().y, 3);
        return ink;
    }
};

/// Of the letters, whose rows are 25 pixels high.
CRect Key(int nRow, int nLeft, int nRight) {
    return CRect(nLeft, 25 * nRow, nRight, 25 * nRow + 25);
}
const CRect Q = Key(1, 0, 24);
const CRect SHIFT = Key(3, 0, 36);

TEST_F(PanelLook, KeysHaveTheColourOfTheirKindAndALabelThatFits) {
    const auto image = Look();
    for (const CRect& key : {Q, Key(0, 216, 240), Key(2, 96, 120)}) {
        const CRect label = ExpectKey(image, key, fx::WHITE);
        EXPECT_GE(label.Height(), 9);
    }
    for (const CRect& key : {SHIFT, Key(3, 204, 240), Key(4, 0, 30), Key(4, 30, 60), Key(4, 186, 240)}) {
        const CRect label = ExpectKey(image, key, FUNCTION);
        EXPECT_LE(label.Width(), key.Width() - 2);
        EXPECT_GE(label.Width(), 10);
    }
    TVShowSIP(2);
    const auto kana = Look();
    const CRect mark = kana.Around(CRect(170, 23, 191, 41), fx::BLACK);
    EXPECT_NEAR(186, mark.CenterPoint().x, 3) << "a sound mark, moved from its corner";
    EXPECT_NEAR(31, mark.CenterPoint().y, 4);
    EXPECT_GE(mark.Height(), 4);
    pen::Tap(fx::ScriptKey());
    const auto katakana = Look();
    EXPECT_FALSE(katakana.Difference(kana).IsRectEmpty());
    pen::Tap(fx::ScriptKey());
    EXPECT_TRUE(Look().Difference(kana).IsRectEmpty());
}

TEST_F(PanelLook, PressedAndShiftedKeysStandOut) {
    const auto home = Look();
    pen::Down(fx::PanelAt(1, 5, 12));
    ExpectKey(Look(), Q, PRESSED, fx::WHITE);
    pen::Up(fx::PanelAt(1, 5, 12));
    EXPECT_EQ(Look().Difference(home), CRect(0, 0, 0, 0));
    pen::Tap(fx::ShiftKey());
    ExpectKey(Look(), SHIFT, SHIFTED);
    pen::Tap(fx::ShiftKey());
    ExpectKey(Look(), SHIFT, PRESSED, fx::WHITE);
    pen::Tap(fx::ShiftKey());
    ExpectKey(Look(), SHIFT, FUNCTION);
}

TEST_F(PanelLook, LabelsFollowTheLanguageAndFitTheirKeys) {
    const auto japanese = Look();
    AfxSetResourceLanguage(MAKELANGID(LANG_ENGLISH, SUBLANG_DEFAULT));
    CWnd::FromHandle(panel::OfThread())->Invalidate();
    const auto letters = Look();
    TVShowSIP(2);
    EXPECT_EQ(L"Kana", panel::Title());
    const auto kana = Look();
    AfxSetResourceLanguage(0);
    // The keys with words, of forty parts of the row: letters, then kana.
    const Rows<const Picture*, int, int, int> keys = {
        {&letters, 100, 0, 5}, {&letters, 100, 5, 10}, {&letters, 100, 18, 27}, {&letters, 100, 31, 40},
        {&kana, 104, 0, 5},    {&kana, 104, 5, 10},    {&kana, 104, 10, 15},    {&kana, 104, 23, 29}};
    for (const auto& [pImage, nTop, nLeft, nRight] : keys) {
        CRect key(nLeft * 6, nTop, nRight * 6, 125);
        const CRect ink = pImage->Around(key, fx::BLACK);
        key.DeflateRect(2, 2, 1, 1);
        EXPECT_FALSE(ink.IsRectEmpty());
        EXPECT_EQ(ink & key, ink) << nLeft << " of row " << nTop;
    }
    EXPECT_FALSE(letters.Difference(japanese).IsRectEmpty());
}

} // namespace
