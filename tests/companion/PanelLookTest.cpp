// What the soft input panel shows.
#include "support/PanelKeys.h"
#include "testkit/Colors.h"
#include "support/TestData.h"
#include "testkit/KeptPicture.h"

using namespace testkit;

namespace {

struct PanelLook : fx::PanelTest {
    static Picture Now() {
        CClientDC dc(CWnd::FromHandle(panel::OfThread())); // as it stands: it draws itself anew
        return Picture(dc, panel::Place().Size());
    }
    static Picture Look() {
        Pump();
        return Now();
    }
    /// At once, so that the picture does not depend on when input comes.
    static void Pen(UINT message, CPoint point) {
        point -= panel::Place().TopLeft();
        ::SendMessage(panel::OfThread(), message, 0, MAKELPARAM(point.x, point.y));
    }
    static void Tap(CPoint point) {
        Pen(WM_LBUTTONDOWN, point);
        Pen(WM_LBUTTONUP, point);
    }
    static void Expect(const Picture& picture, const char* pszName) {
        const std::string file = std::string("look/panel-") + pszName + ".txt";
        EXPECT_EQ("", PictureFaults(picture, testdata::WidePath(file)));
    }
};

TEST_F(PanelLook, IsAsInItsPictures) {
    const CPoint q = fx::PanelAt(1, 5, 12);
    Expect(Look(), "letters");
    Pen(WM_LBUTTONDOWN, fx::BackspaceKey());
    Pen(WM_MOUSEMOVE, q); // off the key that repeats nothing is pressed
    Expect(Look(), "letters");
    Pen(WM_LBUTTONUP, q);
    Tap(fx::ShiftKey());
    Pen(WM_LBUTTONDOWN, q);
    Expect(Now(), "shifted-pressed"); // a tap is seen, however short
    TVShowSIP(1);
    Expect(Look(), "digits");
    TVShowSIP(0);
    Tap(fx::ShiftKey());
    Tap(fx::ShiftKey());
    Expect(Look(), "locked");
    TVShowSIP(2);
    Expect(Look(), "hiragana");
    Tap(fx::ScriptKey());
    Expect(Look(), "katakana");
    Tap(fx::ScriptKey());
    TVShowSIP(0);
    ::MoveWindow(panel::OfThread(), 0, 0, 240, 200, FALSE);
    Expect(Look(), "high");
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
        const CRect ink = pImage->Around(key, BLACK);
        key.DeflateRect(2, 2, 1, 1);
        EXPECT_FALSE(ink.IsRectEmpty());
        EXPECT_EQ(ink & key, ink) << nLeft << " of row " << nTop;
    }
    EXPECT_FALSE(letters.Difference(japanese).IsRectEmpty());
}

} // namespace
