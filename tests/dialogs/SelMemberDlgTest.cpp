#include "dialogs/SelMemberDlg.h"

#include "support/TestApp.h"
#include "testkit/Pen.h"
#include "testkit/Script.h"
#include "testkit/TitleBar.h"

using namespace testkit;

namespace {

constexpr int LEFT = 1002, RIGHT = 1006;
constexpr wchar_t BLANK_SIGN = L'*';
const CString BLANK_TEXT = L"[ブランク]";

/// Data that tells the members apart: the letter's, or that of a blank.
unsigned long DataOf(wchar_t ch) {
    return ch == BLANK_SIGN ? 2 : 0xFFFFFF00 + ch;
}

/// "?" if text and data do not belong together.
CString LetterOf(const CString& strText, unsigned long dwData) {
    const CString str = strText == BLANK_TEXT ? CString(BLANK_SIGN) : strText;
    return str.GetLength() == 1 && DataOf(str[0]) == dwData ? str : CString(L"?");
}

CString InList(const CPtrList& list) {
    CString str;
    for (POSITION pos = list.GetHeadPosition(); pos != nullptr;) {
        const auto& item = *static_cast<const CSelMemberItem*>(list.GetNext(pos));
        str += LetterOf(item.m_strText, item.m_dwData);
    }
    return str;
}

/// A dialog whose members are letters, a blank being an asterisk.
struct Members {
    Members(const CString& strLeft, const CString& strRight) {
        Fill(m_dlg.m_listAvailable, strLeft);
        Fill(m_dlg.m_listCurrent, strRight);
    }
    ~Members() {
        m_dlg.FlashSelMemberList(m_dlg.m_listAvailable);
        m_dlg.FlashSelMemberList(m_dlg.m_listCurrent);
    }

    CListBox& Box(int nID) { return *static_cast<CListBox*>(m_dlg.GetDlgItem(nID)); }

    CString InBox(int nID) {
        CString str;
        for (int i = 0; i < Box(nID).GetCount(); ++i) {
            CString strText;
            Box(nID).GetText(i, strText);
            str += LetterOf(strText, static_cast<unsigned long>(Box(nID).GetItemData(i)));
        }
        return str;
    }

    /// "L1" and "R1" tap the second entry of a list, "> < ^ v" the buttons.
    void Tap(const CString& strAction) {
        constexpr int BUTTONS[] = {1003, 1004, 1008, 1009};
        if (const int nButton = CString(L"><^v").Find(strAction[0]); nButton >= 0) {
            pen::Tap(*m_dlg.GetDlgItem(BUTTONS[nButton]));
            return;
        }
        CListBox& box = Box(strAction[0] == L'L' ? LEFT : RIGHT);
        CRect rect;
        ASSERT_NE(LB_ERR, box.GetItemRect(strAction[1] - L'0', rect));
        box.ClientToScreen(rect);
        pen::Tap(rect.CenterPoint());
    }

    /// Runs the dialog with a step for each action, then a last one.
    INT_PTR Run(const CString& strActions, const std::function<void()>& last) {
        Script script;
        int nPlace = 0;
        for (CString str; !(str = strActions.Tokenize(L" ", nPlace)).IsEmpty();)
            script.Then([this, str] { Tap(str); });
        script.Then(last);
        return script.Run([&] { return m_dlg.DoModal(); });
    }
    INT_PTR Run(const CString& strActions, int nButton) {
        return Run(strActions, [&] { pen::Tap(*m_dlg.GetDlgItem(nButton)); });
    }

    CSelMemberDlg m_dlg{L"項目", nullptr};

private:
    static void Fill(CPtrList& list, const CString& strLetters) {
        for (int i = 0; i < strLetters.GetLength(); ++i) {
            const wchar_t ch = strLetters[i];
            CSelMemberDlg::AddSelMemberItemToList(list, ch == BLANK_SIGN ? BLANK_TEXT : CString(ch),
                                                  DataOf(ch));
        }
    }
};

TEST(SelMemberDlg, ButtonsMoveTheSelectedMember) {
    constexpr int ANY = -2;
    // rightSelection: -1: none; ANY: the system's affair.
    const Rows<CString, CString, CString, CString, CString, int, int> rows = {
        {L"ab", L"xy", L"> < ^ v", L"ab", L"xy", -1, -1}, // nothing selected
        {L"cab", L"xy", L"L1 >", L"cb", L"xya", -1, -1},
        {L"ab", L"xyz", L"R1 L0 >", L"b", L"xayz", -1, ANY}, // above the selected one
        {L"ab", L"x", L"R0 L1 >", L"a", L"bx", -1, ANY},
        {L"abc", L"", L"L0 > >", L"bc", L"a", -1, -1},  // one selection adds once
        {L"a*", L"x", L"L1 > >", L"a*", L"x**", 1, -1}, // a blank stays available
        {L"zb", L"xay", L"R1 <", L"zba", L"xy", -1, -1},
        {L"a", L"*x*", L"R2 <", L"a", L"*x", -1, -1}, // a removed blank vanishes
        {L"a", L"xyz", L"R2 ^", L"a", L"xzy", -1, 1},
        {L"a", L"xyz", L"R1 ^ ^", L"a", L"yxz", -1, 0},
        {L"a", L"xyz", L"R0 v", L"a", L"yxz", -1, 1},
        {L"a", L"xyz", L"R1 v v", L"a", L"xzy", -1, 2},
        {L"abc", L"xyz", L"L1 ^ v <", L"abc", L"xyz", 1, -1}, // the left selection does not move
    };
    for (const auto& [strLeft, strRight, strActions, strLeftAfter, strRightAfter, leftSelection,
                      rightSelection] : rows) {
        SCOPED_TRACE(Utf8(strActions));
        Members members(strLeft, strRight);
        members.Run(strActions, [&] {
            EXPECT_EQ(strLeftAfter, members.InBox(LEFT));
            EXPECT_EQ(strRightAfter, members.InBox(RIGHT));
            EXPECT_EQ(leftSelection, members.Box(LEFT).GetCurSel());
            for (const int nID : {1008, 1009})
                EXPECT_FALSE(static_cast<CIconButton*>(members.m_dlg.GetDlgItem(nID))->GetPush());
            const int nSelected = members.Box(RIGHT).GetCurSel();
            EXPECT_EQ(rightSelection, rightSelection == ANY ? ANY : nSelected);
            members.m_dlg.EndDialog(IDCANCEL);
        });
    }
}

TEST(SelMemberDlg, OkGivesTheListsBackAsTheyAreShownAndCancelTheVeryItemsGiven) {
    Members members(L"ab*", L"xy");
    const CPtrList &left = members.m_dlg.m_listAvailable, &right = members.m_dlg.m_listCurrent;
    const void* const pFirst = left.GetHead();
    const void* const pLast = right.GetTail();
    EXPECT_EQ(IDCANCEL, members.Run(L"L0 > R0 v", IDCANCEL));
    EXPECT_EQ(pFirst, left.GetHead());
    EXPECT_EQ(pLast, right.GetTail());
    EXPECT_EQ(L"ab*", InList(left));
    EXPECT_EQ(L"xy", InList(right));
    EXPECT_EQ(IDOK, members.Run(L"L2 > L0 > R0 v", IDOK));
    EXPECT_EQ(L"b*", InList(left));
    EXPECT_EQ(L"yx*a", InList(right));
    EXPECT_EQ(IDOK, members.Run(L"R3 <", IDOK));
    EXPECT_EQ(L"b*a", InList(left));
    EXPECT_EQ(0U, CSelMemberItem().m_dwData) << "the caller's own are no blanks";
}

TEST(SelMemberDlg, FitsOnTheScreenWithAllOfItsTemplateUnderAnyTitle) {
    for (const CString& strTitle : {CString(L"出力する項目"), CString()}) {
        CSelMemberDlg dlg(strTitle, nullptr);
        WhileOpen(dlg, [&] {
            CRect client, units(0, 0, 134, 99);
            dlg.MapDialogRect(units);
            dlg.GetClientRect(client);
            EXPECT_EQ(units, client);
            EXPECT_GE(RectOf(dlg).left, 0);
            EXPECT_LE(RectOf(dlg).right, Screen().right);
            EXPECT_NEAR(WorkArea().CenterPoint().y, RectOf(dlg).CenterPoint().y, 1);
            EXPECT_EQ(strTitle, TextOf(dlg));
        });
    }
}

} // namespace
