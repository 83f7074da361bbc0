#include "dialogs/ResMsgBox.h"

#include "support/Leftovers.h"
#include "support/ModalScript.h"
#include "support/TitleBar.h"

#include <thread>

namespace {

constexpr UINT SIZE_TEXT = 1512; // any text of the library serves
constexpr UINT NAME_TEXT = 1510;
constexpr UINT NO_TEXT = 1599;
const CString ANY = L"文";

/// What a message box shows.
struct Shown {
    CString strText;
    CString strCaption;
    std::vector<int> buttons; ///< Control ids, ascending.
    HWND hOwner = nullptr;
    CRect rect;
    std::vector<CRect> parts; ///< On the screen.
    int nFocus = 0;           ///< Id of the button that Enter presses.
};

Shown Look() {
    constexpr int TEXT_ID = 0xFFFF; // the system's, for the one static that is not an icon
    CWnd* const pBox = CWnd::GetActiveWindow();
    Shown shown;
    shown.strCaption = fx::TextOf(*pBox);
    shown.rect = fx::RectOf(*pBox);
    shown.hOwner = ::GetWindow(pBox->m_hWnd, GW_OWNER);
    shown.nFocus = ::GetDlgCtrlID(::GetFocus());
    for (int nID = IDOK; nID <= IDNO; ++nID)
        if (::IsWindowVisible(::GetDlgItem(pBox->m_hWnd, nID)))
            shown.buttons.push_back(nID);
    for (CWnd* p = pBox->GetWindow(GW_CHILD); p != nullptr; p = p->GetWindow(GW_HWNDNEXT)) {
        if (!p->IsWindowVisible())
            continue;
        shown.parts.push_back(fx::RectOf(*p));
        if (static_cast<WORD>(p->GetDlgCtrlID()) == TEXT_ID && (p->GetStyle() & SS_TYPEMASK) != SS_ICON)
            shown.strText = fx::TextOf(*p);
    }
    return shown;
}

/// Opens a box, taps a button and gives what the box showed.
template <class Open>
Shown WhileOpen(Open open, int nButton) {
    Shown shown;
    fx::ModalScript script;
    script.Then([&] {
        shown = Look();
        pen::Tap(*CWnd::GetActiveWindow()->GetDlgItem(nButton));
    });
    EXPECT_EQ(script.Run(open), nButton);
    return shown;
}

using Ids = std::vector<int>;

TEST(ResMsgBox, EachKindHasItsTextCaptionAndButtons) {
    CResMsgBox box;
    struct Row {
        std::function<int()> open;
        CString strText;
        CString strCaption;
        Ids buttons;
        int tap;
    };
    const Ids ok = {IDOK};
    const Ids yesNo = {IDYES, IDNO};
    const Row rows[] = {
        {[&] { return box.ErrorMsgBox(SIZE_TEXT); }, L"サイズ", L"エラー", ok, IDOK},
        {[&] { return box.ErrorMsgBox(ANY); }, ANY, L"エラー", ok, IDOK},
        {[&] { return box.WarningMsgBox(SIZE_TEXT); }, L"サイズ", L"警告", yesNo, IDNO},
        {[&] { return box.WarningMsgBox(ANY); }, ANY, L"警告", yesNo, IDYES},
        {[&] { return box.InformationMsgBox(SIZE_TEXT); }, L"サイズ", L"インフォメーション", ok, IDOK},
        {[&] { return box.InformationMsgBox(ANY); }, ANY, L"インフォメーション", ok, IDOK},
        {[&] { return box.InformationMsgBox(NO_TEXT); }, L"", L"インフォメーション", ok, IDOK},
        {[&] { return box.MsgBox(SIZE_TEXT, NAME_TEXT, MB_OK); }, L"サイズ", L"ファイル名", ok, IDOK},
        {[&] { return box.MsgBox(ANY, NAME_TEXT, MB_RETRYCANCEL); },
         ANY,
         L"ファイル名",
         {IDCANCEL, IDRETRY},
         IDRETRY},
        {[&] { return box.MsgBox(SIZE_TEXT, L"題", MB_YESNO); }, L"サイズ", L"題", yesNo, IDYES},
        {[&] { return box.MsgBox(L"a\nb c", L"題", MB_OK); }, L"a\nb c", L"題", ok, IDOK},
    };
    for (const Row& row : rows) {
        const Shown shown = WhileOpen(row.open, row.tap);
        EXPECT_EQ(shown.strText, row.strText);
        EXPECT_EQ(shown.strCaption, row.strCaption);
        EXPECT_EQ(shown.buttons, row.buttons) << fx::Utf8(row.strCaption);
    }
}

TEST(ResMsgBox, KeepsTheOtherPartsOfTheStyle) {
    CResMsgBox box;
    EXPECT_EQ(WhileOpen([&] { return box.MsgBox(ANY, ANY, MB_YESNO | MB_DEFBUTTON2); }, IDYES).nFocus, IDNO);
}

TEST(ResMsgBox, AQuestionThatIsClosedWithoutAnAnswerIsANo) {
    using Close = void (*)();
    const Close closes[] = {
        [] { pen::TypeKeys({VK_ESCAPE}); },
        [] { CWnd::GetActiveWindow()->PostMessage(WM_CLOSE); },
        [] { CWnd::GetActiveWindow()->PostMessage(WM_COMMAND, IDCANCEL); },
    };
    for (const Close close : closes) {
        for (const UINT nDefault : {MB_DEFBUTTON1, MB_DEFBUTTON2}) {
            fx::ModalScript script;
            script.Then(close);
            EXPECT_EQ(script.Run([&] { return CResMsgBox().MsgBox(ANY, ANY, MB_YESNO | nDefault); }), IDNO);
        }
        fx::ModalScript script;
        script.Then(close);
        EXPECT_EQ(script.Run([] { return CResMsgBox().MsgBox(ANY, ANY, MB_YESNOCANCEL); }), IDCANCEL);
    }
}

TEST(ResMsgBox, TheActiveWindowOwnsTheBox) {
    CResMsgBox box;
    fx::Frame frame;
    frame.SetActiveWindow();
    const Shown shown = WhileOpen([&] { return box.WarningMsgBox(ANY); }, IDYES);
    EXPECT_EQ(shown.hOwner, frame.m_hWnd);
    EXPECT_TRUE(frame.IsWindowEnabled());
    EXPECT_EQ(::GetActiveWindow(), frame.m_hWnd);
}

TEST(ResMsgBox, WithoutAnActiveWindowTheBoxHasNoOwner) {
    fx::Frame frame; // another thread's windows do not count
    std::thread([] {
        CResMsgBox box;
        ASSERT_EQ(::GetActiveWindow(), nullptr);
        const Shown shown = WhileOpen([&] { return box.ErrorMsgBox(SIZE_TEXT); }, IDOK);
        EXPECT_EQ(shown.hOwner, nullptr);
        EXPECT_EQ(shown.strCaption, L"エラー");
    }).join();
}

/// The text without the breaks that the box has put in.
CString Joined(CString str) {
    str.Remove(L'\n');
    return str;
}

TEST(ResMsgBox, LongTextsStayOnTheScreen) {
    CResMsgBox box;
    const CRect screen = fx::Screen();
    const CString texts[] = {
        CString(L'A', 200) + L".TXTは既に存在します。\n上書きしますか？",
        CString(L'境', 100) + L"は既に存在します。\n上書きしますか？",
        L"A long text of short words that needs more than a single line on the small screen.",
        L"\n\n" + CString(L'i', 300) + L"\n",
    };
    for (const CString& strText : texts) {
        const Shown shown = WhileOpen([&] { return box.WarningMsgBox(strText); }, IDNO);
        EXPECT_EQ(Joined(shown.strText), Joined(strText)) << "nothing is lost";
        CRect all;
        EXPECT_TRUE(all.IntersectRect(screen, shown.rect));
        EXPECT_EQ(all, shown.rect) << "the box";
        for (const CRect& part : shown.parts) {
            EXPECT_TRUE(all.IntersectRect(shown.rect, part));
            EXPECT_EQ(all, part) << "a part of it";
        }
    }
}

TEST(ResMsgBox, EndlessTextsLeaveTheButtonsAndTheQuestionOnTheScreen) {
    CResMsgBox box;
    CString strWords;
    while (strWords.GetLength() < 400000)
        strWords += L"the words of a long tale of wire and tape which nobody ends up reading ";
    for (const CString& strText : {CString(L'A', 400000), CString(L'境', 400000), strWords,
                                   CString(L'\n', 400000), CString(L'\x3099', 400000)}) {
        const CString strQuestion = L"始\n" + strText + L"\n上書きしますか？";
        const Shown shown = WhileOpen([&] { return box.WarningMsgBox(strQuestion); }, IDNO);
        EXPECT_EQ(shown.strText.Left(2), L"始\n");
        EXPECT_EQ(shown.strText.Right(9), L"\n上書きしますか？");
        EXPECT_NE(shown.strText.Find(L"\n…\n"), -1) << "what is left out is marked";
        CRect all;
        all.IntersectRect(fx::Screen(), shown.rect);
        EXPECT_EQ(all, shown.rect);
        for (const CRect& part : shown.parts) {
            all.IntersectRect(shown.rect, part);
            EXPECT_EQ(all, part);
        }
    }
}

TEST(ResMsgBox, LinesBreakBetweenCharactersAsTheyAreSeen) {
    CResMsgBox box;
    const auto shown = [&](const CString& strText) {
        return WhileOpen([&] { return box.InformationMsgBox(strText); }, IDOK).strText;
    };
    const CString pair = L"\xD867\xDE3D";
    CString strPairs = L"x"; // an odd place for each pair
    CString strMarks;
    CString strEnds;
    for (int i = 0; i < 60; ++i) {
        strPairs += pair;
        strMarks += L"か\x3099";
        strEnds += L"か。";
    }
    struct Row {
        const char* what;
        CString strText;
        CString strNotFirst;
    };
    for (const Row& row : {Row{"pairs", strPairs, L"\xDE3D"}, Row{"marks", strMarks, L"\x3099"},
                           Row{"ends of sentences", strEnds, L"。"}}) {
        const CString strShown = shown(row.strText);
        EXPECT_EQ(Joined(strShown), row.strText) << row.what;
        EXPECT_GT(strShown.GetLength(), row.strText.GetLength()) << row.what;
        EXPECT_EQ(strShown.Find(L"\n" + row.strNotFirst), -1) << row.what;
    }
    EXPECT_EQ(shown(CString(L'a', 20) + L" " + CString(L'b', 25)),
              CString(L'a', 20) + L" \n" + CString(L'b', 25));
}

/// What 200 boxes leave, after some that fill the system's caches.
template <class Open>
fx::Leftovers LeftBy(Open open) {
    const auto openAndClose = [&](int nTimes) {
        for (int i = 0; i < nTimes; ++i) {
            fx::ModalScript script;
            script.Then([] { CWnd::GetActiveWindow()->PostMessage(WM_COMMAND, IDYES); });
            script.Run(open);
        }
        return fx::Leftovers::Now();
    };
    const fx::Leftovers before = openAndClose(20);
    fx::Leftovers left = openAndClose(200);
    left.nWindows -= before.nWindows;
    left.nGdiObjects -= before.nGdiObjects;
    left.nHandles -= before.nHandles;
    left.nHeapBytes -= before.nHeapBytes;
    return left;
}

TEST(ResMsgBox, TwoHundredOpensLeaveNoMoreThanTheSystemsOwn) {
    const fx::Leftovers bare = LeftBy([] { return ::MessageBox(nullptr, L"a", L"b", MB_YESNO); });
    const fx::Leftovers left = LeftBy([] { return CResMsgBox().WarningMsgBox(CString(L'境', 60)); });
    EXPECT_EQ(left.nWindows, 0);
    EXPECT_EQ(left.nGdiObjects, 0);
    EXPECT_EQ(left.nHandles, 0);
    // The system's box may keep some bytes each time; a leaked text would be more.
    constexpr size_t SLACK = 200 * 32;
    EXPECT_LE(left.nHeapBytes, bare.nHeapBytes + SLACK);
}

} // namespace
