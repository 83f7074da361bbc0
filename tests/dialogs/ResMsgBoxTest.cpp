#include "dialogs/ResMsgBox.h"

#include "support/TestApp.h"
#include "testkit/Script.h"
#include "testkit/Pen.h"
#include "testkit/TitleBar.h"

#include <thread>

using namespace testkit;

namespace {

constexpr UINT SIZE_TEXT = 1512; // any text of the library serves
constexpr UINT NAME_TEXT = 1510, NO_TEXT = 1599;
const CString ANY = L"文";

/// What a message box shows.
struct Shown {
    CString strText, strCaption;
    std::vector<int> buttons; ///< Control ids, ascending.
    HWND hOwner = nullptr;
    int nFocus = 0;     ///< Id of the button that Enter presses.
    bool bSeen = false; ///< Whether all of it is on the screen.
};

/// Whether a rectangle is within another one.
bool Holds(const CRect& outer, const CRect& inner) {
    CRect common;
    common.IntersectRect(outer, inner);
    return common == inner;
}

Shown Look() {
    constexpr int TEXT_ID = 0xFFFF; // the system's, for the one static that is not an icon
    CWnd* const pBox = CWnd::GetActiveWindow();
    Shown shown;
    shown.strCaption = TextOf(*pBox);
    shown.hOwner = ::GetWindow(pBox->m_hWnd, GW_OWNER);
    shown.nFocus = ::GetDlgCtrlID(::GetFocus());
    for (int nID = IDOK; nID <= IDNO; ++nID)
        if (::IsWindowVisible(::GetDlgItem(pBox->m_hWnd, nID)))
            shown.buttons.push_back(nID);
    shown.bSeen = Holds(Screen(), RectOf(*pBox));
    for (CWnd* p = pBox->GetWindow(GW_CHILD); p != nullptr; p = p->GetWindow(GW_HWNDNEXT)) {
        shown.bSeen = shown.bSeen && (!p->IsWindowVisible() || Holds(RectOf(*pBox), RectOf(*p)));
        if (static_cast<WORD>(p->GetDlgCtrlID()) == TEXT_ID && (p->GetStyle() & SS_TYPEMASK) != SS_ICON)
            shown.strText = TextOf(*p);
    }
    return shown;
}

/// Opens a box, taps a button and gives what the box showed.
template <class Open>
Shown WhileOpen(Open open, int nButton) {
    Shown shown;
    const auto look = [&] {
        shown = Look();
        pen::Tap(*CWnd::GetActiveWindow()->GetDlgItem(nButton));
    };
    EXPECT_EQ(nButton, Play(open, {look}));
    return shown;
}

using Ids = std::vector<int>;

TEST(ResMsgBox, EachKindHasItsTextCaptionAndButtons) {
    CResMsgBox box;
    const Ids ok = {IDOK};
    const Ids yesNo = {IDYES, IDNO};
    const Rows<std::function<int()>, CString, CString, Ids, int> rows = {
        {[&] { return box.ErrorMsgBox(SIZE_TEXT); }, L"サイズ", L"エラー", ok, IDOK},
        {[&] { return box.ErrorMsgBox(ANY); }, ANY, L"エラー", ok, IDOK},
        {[&] { return box.WarningMsgBox(SIZE_TEXT); }, L"サイズ", L"警告", yesNo, IDNO},
        {[&] { return box.WarningMsgBox(ANY); }, ANY, L"警告", yesNo, IDYES},
        {[&] { return box.InformationMsgBox(NO_TEXT); }, L"", L"インフォメーション", ok, IDOK},
        {[&] { return box.InformationMsgBox(ANY); }, ANY, L"インフォメーション", ok, IDOK},
        {[&] { return box.MsgBox(SIZE_TEXT, NAME_TEXT, MB_OK); }, L"サイズ", L"ファイル名", ok, IDOK},
        {[&] { return box.MsgBox(ANY, NAME_TEXT, MB_RETRYCANCEL); },
         ANY,
         L"ファイル名",
         {IDCANCEL, IDRETRY},
         IDRETRY},
        {[&] { return box.MsgBox(SIZE_TEXT, L"題", MB_YESNO); }, L"サイズ", L"題", yesNo, IDYES},
    };
    for (const auto& [open, strText, strCaption, buttons, tap] : rows) {
        const Shown shown = WhileOpen(open, tap);
        EXPECT_EQ(strText, shown.strText);
        EXPECT_EQ(strCaption, shown.strCaption);
        EXPECT_EQ(buttons, shown.buttons) << Utf8(strCaption);
    }
    EXPECT_EQ(IDNO, WhileOpen([&] { return box.MsgBox(ANY, ANY, MB_YESNO | MB_DEFBUTTON2); }, IDYES).nFocus)
        << "the other parts of the style are kept";
}

TEST(ResMsgBox, AQuestionThatIsClosedWithoutAnAnswerIsANo) {
    for (const auto close : {+[] { TypeKeys({VK_ESCAPE}); },
                             +[] { CWnd::GetActiveWindow()->PostMessage(WM_COMMAND, IDCANCEL); }})
        for (const auto& [type, answer] : {std::pair(MB_YESNO, IDNO), std::pair(MB_YESNOCANCEL, IDCANCEL)})
            EXPECT_EQ(answer, Play([&type = type] { return CResMsgBox().MsgBox(ANY, ANY, type); }, {close}));
}

TEST(ResMsgBox, TheActiveWindowOfTheThreadOwnsTheBox) {
    CResMsgBox box;
    Frame frame;
    frame.SetActiveWindow();
    EXPECT_EQ(frame.m_hWnd, WhileOpen([&] { return box.WarningMsgBox(ANY); }, IDYES).hOwner);
    std::thread([&] {
        EXPECT_EQ(nullptr, WhileOpen([&] { return box.ErrorMsgBox(SIZE_TEXT); }, IDOK).hOwner);
    }).join();
}

/// The text without the breaks that the box has put in.
CString Joined(CString str) {
    str.Remove(L'\n');
    return str;
}

TEST(ResMsgBox, LongTextsStayOnTheScreenWithTheQuestionAtTheirEnd) {
    CResMsgBox box;
    const auto shown = [&](const CString& str) {
        const Shown found = WhileOpen([&] { return box.WarningMsgBox(str); }, IDNO);
        EXPECT_TRUE(found.bSeen);
        return found.strText;
    };
    for (const CString& strText : {CString(L'A', 200) + L".TXTは既に存在します。\n上書きしますか？",
                                   CString(L'境', 100) + L"は既に存在します。\n上書きしますか？",
                                   L"\n\n" + CString(L'i', 300) + L"\n"})
        EXPECT_EQ(Joined(strText), Joined(shown(strText))) << "nothing is lost";
    CString strWords;
    while (strWords.GetLength() < 100000)
        strWords += L"the words of a long tale of wire and tape which nobody ends up reading ";
    for (const CString& strText :
         {CString(L'境', 100000), strWords, CString(L'\n', 100000), CString(L'\x3099', 100000)}) {
        const CString strShown = shown(L"始\n" + strText + L"\n上書きしますか？");
        EXPECT_EQ(L"始\n", strShown.Left(2));
        EXPECT_EQ(L"\n上書きしますか？", strShown.Right(9));
        EXPECT_NE(-1, strShown.Find(L"\n…\n")) << "what is left out is marked";
    }
}

TEST(ResMsgBox, LinesBreakBetweenCharactersAsTheyAreSeen) {
    CResMsgBox box;
    const auto shown = [&](const CString& strText) {
        return WhileOpen([&] { return box.InformationMsgBox(strText); }, IDOK).strText;
    };
    // pszNotFirst: In a line.
    const Rows<CString, const wchar_t*> rows = {
        {L"\xD867\xDE3D", L"\n\xDE3D"}, {L"か\x3099", L"\n\x3099"}, {L"か。", L"\n。"}, {L"か、", L"\n、"}};
    for (const CString strBefore : {L"", L"x", L"か"}) // which shifts the ends of the lines
        for (const auto& [strRepeated, pszNotFirst] : rows) {
            CString strText = strBefore;
            for (int i = 0; i < 60; ++i)
                strText += strRepeated;
            const CString strShown = shown(strText);
            EXPECT_EQ(strText, Joined(strShown));
            EXPECT_GT(strShown.GetLength(), strText.GetLength());
            EXPECT_EQ(-1, strShown.Find(pszNotFirst));
        }
    EXPECT_EQ(L"x \n", shown(L"x " + CString(L'a', 60)).Left(3));
    EXPECT_EQ(CString(L'a', 20) + L" \n" + CString(L'b', 25),
              shown(CString(L'a', 20) + L" " + CString(L'b', 25)));
    EXPECT_EQ(L" a", shown(L" " + CString(L'a', 60)).Left(2)) << "no line of a blank alone";
}

TEST(ResMsgBox, OfTooManyLinesTheFirstAndTheLastFourAreShown) {
    const auto numbers = [](int nFirst, int nLast) {
        CString str;
        for (int i = nFirst; i <= nLast; ++i)
            str.AppendFormat(L"%d\n", i);
        return str + L"?";
    };
    const auto shown = [](const CString& strText) {
        return WhileOpen([&] { return CResMsgBox().InformationMsgBox(strText); }, IDOK).strText;
    };
    CString strMany = shown(numbers(1, 99));
    const int nBreaks = strMany.Remove(L'\n');
    EXPECT_EQ(Joined(numbers(1, nBreaks - 4).TrimRight(L'?') + L"…" + numbers(97, 99)), strMany);
    EXPECT_EQ(numbers(1, nBreaks), shown(numbers(1, nBreaks))) << "as many as there is room for";
    EXPECT_NE(numbers(1, nBreaks + 1), shown(numbers(1, nBreaks + 1))) << "and not more";
}

} // namespace
