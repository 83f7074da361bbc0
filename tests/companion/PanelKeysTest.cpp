// Typing on the soft input panel with the pen.
#include "support/PanelKeys.h"
#include "testkit/Form.h"

using namespace testkit;

namespace {

struct PanelKeys : fx::PanelTest {
    /// Taps, and waits until the field shows the text.
    void ExpectAfterTaps(const std::vector<CPoint>& taps, const CString& strText) {
        for (const CPoint& point : taps) {
            pen::Tap(point);
            Pump();
        }
        PumpUntil([&] { return Text() == strText; }, 1000);
        EXPECT_EQ(Text(), strText);
    }

    CString Text() const { return TextOf(m_field); }

    void SetText(LPCTSTR pszText) {
        m_field.SetWindowText(pszText);
        m_field.SetSel(m_field.GetWindowTextLength(), m_field.GetWindowTextLength());
    }
};

TEST_F(PanelKeys, TypeWhatTheyShow) {
    enum Page { Letters, Capitals, Digits, Hiragana, Katakana };
    constexpr wchar_t NO_CHARACTER = L'*';
    // nLeft: Where the row's characters begin, in pixels.
    // nWidth: Of each of them.
    const Rows<Page, int, int, int, const wchar_t*> rows = {
        {Letters, 0, 0, 24, L"1234567890"},
        {Letters, 1, 0, 24, L"qwertyuiop"},
        {Letters, 3, 36, 24, L"zxcvbnm"},
        {Letters, 4, 60, 24, L"/."},
        {Letters, 4, 108, 54, L" "},
        {Letters, 4, 162, 24, L"+"},
        {Capitals, 0, 0, 24, L"!\"#$%&'()@"},
        {Capitals, 3, 36, 24, L"ZXCVBNM"},
        {Capitals, 4, 162, 24, L"="},
        {Digits, 0, 0, 60, L"789"},
        {Digits, 2, 0, 60, L"123-"},
        {Digits, 3, 0, 60, L"0."},
        {Hiragana, 0, 0, 24, L"あかさたなはまやらわ"},
        {Hiragana, 1, 0, 24, L"いきしちにひみ*りを"},
        {Hiragana, 2, 0, 24, L"うくすつぬふむゆるん"},
        {Hiragana, 3, 0, 24, L"えけせてねへめ*れー"},
        {Hiragana, 4, 0, 24, L"おこそとのほもよろ"},
        {Hiragana, 5, 90, 24, L"、。"},
        {Hiragana, 5, 138, 36, L" "},
        {Katakana, 0, 0, 24, L"アカサタナハマヤラワ"},
        {Katakana, 1, 0, 24, L"イキシチニヒミ*リヲ"},
        {Katakana, 2, 0, 24, L"ウクスツヌフムユルン"},
    };
    constexpr int ROWS_OF_PAGE[] = {5, 5, 4, 6, 6}, MODE_OF_PAGE[] = {0, 0, 1, 2, 2};
    int nShown = -1;
    for (const auto& [page, nRow, nLeft, nWidth, pszKeys] : rows) {
        if (page != nShown) {
            TVShowSIP(MODE_OF_PAGE[page]);
            if (page == Capitals)
                ExpectAfterTaps({fx::ShiftKey(), fx::ShiftKey()}, Text());
            if (page == Katakana)
                ExpectAfterTaps({fx::ScriptKey()}, Text());
            nShown = page;
        }
        SetText(L"");
        std::vector<CPoint> taps;
        CString strExpected;
        for (int i = 0; pszKeys[i] != 0; ++i) {
            if (pszKeys[i] == NO_CHARACTER)
                continue;
            const int nMiddle = nLeft + i * nWidth + nWidth / 2;
            taps.push_back(fx::PanelAt(nRow, ROWS_OF_PAGE[page], nMiddle));
            strExpected += pszKeys[i];
        }
        ExpectAfterTaps(taps, strExpected);
    }
    ExpectAfterTaps({fx::ScriptKey()}, Text()); // the thread's panel remembers the script
}

TEST_F(PanelKeys, ShiftHoldsForOneCharacterAndTwiceForAll) {
    const CPoint a = fx::PanelAt(2, 5, 12);
    ExpectAfterTaps({fx::ShiftKey(), a, a}, L"Aa");
    ExpectAfterTaps({fx::ShiftKey(), fx::ShiftKey(), a, a}, L"AaAA");
    ExpectAfterTaps({fx::ShiftKey(), a}, L"AaAAa");
    ExpectAfterTaps({fx::ShiftKey()}, L"AaAAa");
    TVShowSIP(1);
    TVShowSIP(0);
    ExpectAfterTaps({a, fx::ShiftKey()}, L"AaAAaa");
    pen::Down(a);
    PumpUntil([] { return ::GetCapture() == panel::OfThread(); });
    panel::Close();
    EXPECT_EQ(nullptr, ::GetCapture()) << "a key that is gone is not held";
    pen::Up(a);
    TVShowSIP(0);
    ExpectAfterTaps({a}, L"AaAAaaa");
}

TEST_F(PanelKeys, LettersAndKanaReachEachOther) {
    const CPoint mode = fx::PanelAt(4, 5, 15);
    ExpectAfterTaps({mode}, L"");
    ExpectAfterTaps({fx::PanelAt(0, 6, 12)}, L"あ");
    ExpectAfterTaps({fx::PanelAt(5, 6, 15)}, L"あ");
    ExpectAfterTaps({fx::PanelAt(0, 5, 12)}, L"あ1");
}

TEST_F(PanelKeys, PenMaySlideToTheKeyThatWasMeant) {
    const CPoint q = fx::PanelAt(1, 5, 12), w = fx::PanelAt(1, 5, 36);
    pen::Drag(q, w);
    ExpectAfterTaps({}, L"w");
    pen::Drag(q, CPoint(q.x, panel::Place().top - 20)); // off the panel: nothing
    ExpectAfterTaps({w}, L"ww");
    pen::Down(w);
    pen::Move(fx::BackspaceKey());
    fx::PumpFor(600); // what was pressed as another key does not repeat
    EXPECT_EQ(L"ww", Text());
    pen::Up(fx::BackspaceKey());
    ExpectAfterTaps({}, L"w");
}

TEST_F(PanelKeys, BackspaceRepeatsWhileItIsHeld) {
    const CString strText(L'x', 40);
    SetText(strText);
    pen::Move(fx::BackspaceKey());
    fx::PumpFor(50); // the pointer may have been elsewhere
    constexpr ULONGLONG DELAY = 400, INTERVAL = 60;
    const ULONGLONG nPressed = ::GetTickCount64();
    const auto most = [&] { return 1 + (::GetTickCount64() - nPressed) / INTERVAL; };
    pen::Down(fx::BackspaceKey());
    ASSERT_TRUE(PumpUntil([this] { return Text().GetLength() < 40; }));
    fx::PumpFor(200);
    const int nHesitant = Text().GetLength();
    if (::GetTickCount64() - nPressed < DELAY) { // a loaded machine may take longer
        EXPECT_EQ(39, nHesitant) << "a hesitant finger deletes one at once, and no more";
    }
    EXPECT_TRUE(PumpUntil([this] { return Text().GetLength() < 30; })) << "quicker than it began";
    pen::Up(fx::BackspaceKey());
    ASSERT_TRUE(PumpUntil([] { return ::GetCapture() == nullptr; }));
    const int nLeft = Text().GetLength();
    EXPECT_GE(nLeft + static_cast<int>(most()), 40);
    fx::PumpFor(200);
    EXPECT_EQ(Text().GetLength(), nLeft);

    pen::Down(fx::BackspaceKey());
    pen::Move(fx::ShiftKey());
    int nNow = 0;
    do { // until the move is there
        nNow = Text().GetLength();
        fx::PumpFor(700);
    } while (Text().GetLength() < nNow);
    EXPECT_LT(nNow, nLeft);
    EXPECT_LT(0, nNow) << "not for ever";
    pen::Up(fx::ShiftKey());
    ExpectAfterTaps({fx::PanelAt(2, 5, 12)}, CString(L'x', nNow) + L"a");
}

TEST_F(PanelKeys, MarksChangeTheKanaBeforeTheCaret) {
    TVShowSIP(2);
    const CPoint voiced = fx::PanelAt(1, 6, 180), semiVoiced = fx::PanelAt(3, 6, 180);
    const CPoint small = fx::PanelAt(4, 6, 228);
    const Rows<LPCTSTR, CPoint, LPCTSTR> rows = {
        {L"あか", voiced, L"あが"}, {L"が", voiced, L"か"},     {L"ば", semiVoiced, L"ぱ"},
        {L"ほ", semiVoiced, L"ぽ"}, {L"か", semiVoiced, L"か"}, {L"つ", small, L"っ"},
        {L"っ", voiced, L"づ"},     {L"や", small, L"ゃ"},      {L"わ", small, L"ゎ"},
        {L"ホ", voiced, L"ボ"},     {L"ポ", semiVoiced, L"ホ"}, {L"ウ", voiced, L"ヴ"},
        {L"う", voiced, L"う"},     {L"八ケ", small, L"八ヶ"},  {L"け", small, L"け"},
        {L"ヨ", small, L"ョ"},      {L"P1", voiced, L"P1"},     {L"", voiced, L""},
        {L"ん", small, L"ん"},      {L"ー", semiVoiced, L"ー"},
    };
    for (const auto& [pszBefore, key, pszAfter] : rows) {
        SetText(pszBefore);
        ExpectAfterTaps({key}, pszAfter);
    }
    SetText(L"かか");
    m_field.SetSel(1, 1);
    ExpectAfterTaps({voiced}, L"がか");
    m_field.SetSel(0, 2); // what is selected is not touched
    ExpectAfterTaps({voiced}, L"がか");
}

TEST(PanelInADialog, MovesOnAndConfirmsThoughTheOwnerIsDisabled) {
    Frame owner;
    fx::Form dialog(&owner);
    const auto show = [&] {
        EXPECT_FALSE(owner.IsWindowEnabled());
        TVShowSIP(0);
    };
    const auto look = [&] {
        EXPECT_EQ(L"q", TextOf(*dialog.GetDlgItem(fx::Form::EDIT)));
        EXPECT_EQ(L"w", TextOf(*dialog.GetDlgItem(fx::Form::FIELD)));
        pen::Tap(fx::EnterKey());
    };
    EXPECT_EQ(IDOK,
              Play(dialog, {show, [] { pen::Tap(fx::PanelAt(1, 5, 12)); }, [] { pen::Tap(fx::NextKey()); },
                            [] { pen::Tap(fx::PanelAt(1, 5, 36)); }, look}));
    panel::Close();
}

} // namespace
