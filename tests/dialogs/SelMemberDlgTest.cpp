#include "dialogs/SelMemberDlg.h"

#include "support/Leftovers.h"
#include "support/ModalScript.h"

#include <map>

namespace {

constexpr int LEFT = 1002;
constexpr int RIGHT = 1006;
constexpr wchar_t BLANK_SIGN = L'*';
const CString BLANK_TEXT = L"[ブランク]";

/// Data that tells the members apart: the letter's, or that of a blank.
unsigned long DataOf(wchar_t ch) {
    return ch == BLANK_SIGN ? 2 : 0xFFFFFF00 + ch;
}

/// A dialog whose members are letters, a blank being an asterisk.
class Members {
public:
    Members(const CString& strLeft, const CString& strRight) {
        Fill(m_dlg.m_listAvailable, strLeft);
        Fill(m_dlg.m_listCurrent, strRight);
    }
    ~Members() {
        m_dlg.FlashSelMemberList(m_dlg.m_listAvailable);
        m_dlg.FlashSelMemberList(m_dlg.m_listCurrent);
    }
    Members(const Members&) = delete;
    Members& operator=(const Members&) = delete;

    CListBox& Box(int nID) { return *static_cast<CListBox*>(m_dlg.GetDlgItem(nID)); }

    CString InBox(int nID) {
        CString str;
        for (int i = 0; i < Box(nID).GetCount(); ++i) {
            CString strText;
            Box(nID).GetText(i, strText);
            str += Letter(strText, static_cast<unsigned long>(Box(nID).GetItemData(i)));
        }
        return str;
    }

    static CString InList(const CPtrList& list) {
        CString str;
        for (POSITION pos = list.GetHeadPosition(); pos != nullptr;) {
            const auto& item = *static_cast<const CSelMemberItem*>(list.GetNext(pos));
            str += Letter(item.m_strText, item.m_dwData);
        }
        return str;
    }

    /// "L1" and "R1" tap the second entry of a list, "> < ^ v" the buttons.
    void Tap(const CString& strAction) {
        static const std::map<wchar_t, int> buttons = {
            {L'>', 1003}, {L'<', 1004}, {L'^', 1008}, {L'v', 1009}};
        if (const auto button = buttons.find(strAction[0]); button != buttons.end()) {
            pen::Tap(*m_dlg.GetDlgItem(button->second));
            return;
        }
        CListBox& box = Box(strAction[0] == L'L' ? LEFT : RIGHT);
        CRect rect;
        ASSERT_NE(box.GetItemRect(strAction[1] - L'0', rect), LB_ERR);
        box.ClientToScreen(rect);
        pen::Tap(rect.CenterPoint());
    }

    /// Runs the dialog with a step for each action, then a last one.
    INT_PTR Run(const CString& strActions, const std::function<void()>& last) {
        fx::ModalScript script;
        int nPlace = 0;
        for (CString str; !(str = strActions.Tokenize(L" ", nPlace)).IsEmpty();)
            script.Then([this, str] { Tap(str); });
        script.Then(last);
        return script.Run([&] { return m_dlg.DoModal(); });
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

    /// "?" if text and data do not belong together.
    static CString Letter(const CString& strText, unsigned long dwData) {
        const CString str = strText == BLANK_TEXT ? CString(BLANK_SIGN) : strText;
        return str.GetLength() == 1 && DataOf(str[0]) == dwData ? str : CString(L"?");
    }
};

TEST(SelMemberDlg, ButtonsMoveTheSelectedMember) {
    struct Row {
        const char* what;
        CString strLeft, strRight;
        CString strActions;
        CString strLeftAfter, strRightAfter;
        int leftSelection, rightSelection; ///< -1: none; ANY: the system's affair.
    };
    constexpr int ANY = -2;
    const Row rows[] = {
        {"nothing selected", L"ab", L"xy", L"> < ^ v", L"ab", L"xy", -1, -1},
        {"empty lists", L"", L"", L"> < ^ v", L"", L"", -1, -1},
        {"add at the end", L"cab", L"xy", L"L1 >", L"cb", L"xya", -1, -1},
        {"add to nothing", L"a", L"", L"L0 >", L"", L"a", -1, -1},
        {"add above the selected one", L"ab", L"xyz", L"R1 L0 >", L"b", L"xayz", -1, ANY},
        {"add above the first one", L"ab", L"x", L"R0 L1 >", L"a", L"bx", -1, ANY},
        {"one selection adds once", L"abc", L"", L"L0 > >", L"bc", L"a", -1, -1},
        {"a blank stays available", L"a*", L"x", L"L1 > > >", L"a*", L"x***", 1, -1},
        {"remove to the end", L"zb", L"xay", L"R1 <", L"zba", L"xy", -1, -1},
        {"a removed blank vanishes", L"a*", L"*x*", L"R2 <", L"a*", L"*x", -1, -1},
        {"a blank vanishes where none is offered", L"a", L"*", L"R0 <", L"a", L"", -1, -1},
        {"up", L"a", L"xyz", L"R2 ^", L"a", L"xzy", -1, 1},
        {"up to the top and no further", L"a", L"xyz", L"R2 ^ ^ ^", L"a", L"zxy", -1, 0},
        {"down", L"a", L"xyz", L"R0 v", L"a", L"yxz", -1, 1},
        {"down to the end and no further", L"a", L"xyz", L"R0 v v v", L"a", L"yzx", -1, 2},
        {"the left selection does not move", L"abc", L"xyz", L"L1 ^ v <", L"abc", L"xyz", 1, -1},
        {"there and back", L"ab", L"x", L"L0 > R1 <", L"ba", L"x", -1, -1},
    };
    for (const Row& row : rows) {
        Members members(row.strLeft, row.strRight);
        members.Run(row.strActions, [&] {
            EXPECT_EQ(members.InBox(LEFT), row.strLeftAfter) << row.what;
            EXPECT_EQ(members.InBox(RIGHT), row.strRightAfter) << row.what;
            EXPECT_EQ(members.Box(LEFT).GetCurSel(), row.leftSelection) << row.what;
            const int nSelected = members.Box(RIGHT).GetCurSel();
            EXPECT_EQ(row.rightSelection == ANY ? ANY : nSelected, row.rightSelection) << row.what;
            members.m_dlg.EndDialog(IDCANCEL);
        });
    }
}

TEST(SelMemberDlg, OkGivesTheListsBackAsTheyAreShown) {
    Members members(L"ab*", L"xy");
    EXPECT_EQ(members.Run(L"L2 > L0 > R0 v", [&] { pen::Tap(*members.m_dlg.GetDlgItem(IDOK)); }), IDOK);
    EXPECT_EQ(Members::InList(members.m_dlg.m_listAvailable), L"b*");
    EXPECT_EQ(Members::InList(members.m_dlg.m_listCurrent), L"yx*a");
    EXPECT_EQ(members.Run(L"R3 <", [&] { pen::Tap(*members.m_dlg.GetDlgItem(IDOK)); }), IDOK);
    EXPECT_EQ(Members::InList(members.m_dlg.m_listAvailable), L"b*a");
    EXPECT_EQ(Members::InList(members.m_dlg.m_listCurrent), L"yx*");
}

TEST(SelMemberDlg, CancelLeavesTheVeryItemsGiven) {
    Members members(L"ab", L"xy");
    const void* const pFirst = members.m_dlg.m_listAvailable.GetHead();
    const void* const pLast = members.m_dlg.m_listCurrent.GetTail();
    EXPECT_EQ(members.Run(L"L0 > R0 v", [&] { pen::Tap(*members.m_dlg.GetDlgItem(IDCANCEL)); }), IDCANCEL);
    EXPECT_EQ(members.m_dlg.m_listAvailable.GetHead(), pFirst);
    EXPECT_EQ(members.m_dlg.m_listCurrent.GetTail(), pLast);
    EXPECT_EQ(Members::InList(members.m_dlg.m_listAvailable), L"ab");
    EXPECT_EQ(Members::InList(members.m_dlg.m_listCurrent), L"xy");
}

/// The label with that text; the labels share one id.
CWnd* Label(CWnd& dlg, const CString& strText) {
    for (CWnd* p = dlg.GetWindow(GW_CHILD); p != nullptr; p = p->GetWindow(GW_HWNDNEXT)) {
        if (fx::TextOf(*p) == strText)
            return p;
    }
    return nullptr;
}

TEST(SelMemberDlg, LabelsHoldTheirTexts) {
    Members members(L"", L"");
    members.Run(L"", [&] {
        for (const wchar_t* pszText : {L"追加可能要素", L"現在の設定"}) {
            CWnd* const pLabel = Label(members.m_dlg, pszText);
            ASSERT_NE(pLabel, nullptr);
            const CRect rect = fx::RectOf(*pLabel);
            CClientDC dc(pLabel);
            dc.SelectObject(pLabel->GetFont());
            const CSize size = dc.GetTextExtent(pszText);
            EXPECT_LE(size.cx, rect.Width());
            EXPECT_LE(size.cy, rect.Height());
        }
        members.m_dlg.EndDialog(IDCANCEL);
    });
}

TEST(SelMemberDlg, FitsOnTheScreenWithAllOfItsTemplate) {
    CSelMemberDlg dlg(L"", nullptr);
    fx::WhileOpen(dlg, [&] {
        CRect units(0, 0, 134, 99);
        dlg.MapDialogRect(units);
        CRect client;
        dlg.GetClientRect(client);
        EXPECT_EQ(client, units);
        const CRect window = fx::RectOf(dlg);
        EXPECT_GE(window.left, 0);
        EXPECT_LE(window.right, ::GetSystemMetrics(SM_CXSCREEN));
    });
}

TEST(SelMemberDlg, TheCaptionIsTheTitleEvenAnEmptyOne) {
    for (const CString& strTitle : {CString(L"出力する項目"), CString()}) {
        CSelMemberDlg dlg(strTitle, nullptr);
        fx::WhileOpen(dlg, [&] { EXPECT_EQ(fx::TextOf(dlg), strTitle); });
    }
}

TEST(SelMemberDlg, TwoHundredOpensLeaveNothing) {
    int nOpen = 0;
    fx::ExpectNothingLeft([&] {
        Members members(L"abc*", L"xyz");
        const WPARAM nButton = nOpen++ % 2 == 0 ? IDOK : IDCANCEL;
        members.Run(L"", [&] { members.m_dlg.PostMessage(WM_COMMAND, nButton); });
    });
}

} // namespace
