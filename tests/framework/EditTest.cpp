// Entry fields.
#include "support/FrameworkEnvironment.h"

namespace {

constexpr DWORD VISIBLE_CHILD = WS_CHILD | WS_VISIBLE;

class Edit : public testing::Test {
protected:
    void Create(DWORD dwStyle = 0, LPCTSTR pszText = L"") {
        ASSERT_TRUE(m_edit.Create(VISIBLE_CHILD | dwStyle, CRect(5, 5, 150, 80), &m_frame, 1));
        m_edit.SetWindowText(pszText);
    }
    CString Text() const {
        CString str;
        m_edit.GetWindowText(str);
        return str;
    }

    fx::Frame m_frame;
    CEdit m_edit;
};

TEST_F(Edit, SelectionIsKeptInEitherForm) {
    Create(ES_AUTOHSCROLL, L"0123456789");
    const struct {
        int nStart;
        int nEnd;
        DWORD dwSel;
    } cases[] = {
        {2, 5, 0x00050002},
        {0, -1, 0x000A0000},
        {4, 4, 0x00040004},
        {3, 99, 0x000A0003},
    };
    for (const auto& c : cases) {
        m_edit.SetSel(0, 0);
        m_edit.SetSel(c.nStart, c.nEnd);
        EXPECT_EQ(m_edit.GetSel(), c.dwSel);
        int nStart = -1;
        int nEnd = -1;
        m_edit.GetSel(nStart, nEnd);
        EXPECT_EQ(MAKELONG(nStart, nEnd), static_cast<LONG>(c.dwSel));
        m_edit.SetSel(0, 0);
        m_edit.SetSel(static_cast<DWORD>(MAKELONG(c.nStart, c.nEnd)));
        EXPECT_EQ(m_edit.GetSel(), c.dwSel);
    }
    const auto isEmpty = [&] { return LOWORD(m_edit.GetSel()) == HIWORD(m_edit.GetSel()); };
    m_edit.SetSel(2, 5);
    m_edit.SetSel(-1, 0);
    EXPECT_TRUE(isEmpty());
    m_edit.SetSel(2, 5);
    m_edit.SetSel(static_cast<DWORD>(MAKELONG(-1, 0)));
    EXPECT_TRUE(isEmpty());
}

TEST_F(Edit, ReplacingAndUndoing) {
    Create(ES_AUTOHSCROLL, L"12 34");
    EXPECT_FALSE(m_edit.GetModify());
    m_edit.SetSel(0, 2);
    m_edit.ReplaceSel(L"測点", TRUE);
    EXPECT_EQ(Text(), L"測点 34");
    EXPECT_TRUE(m_edit.GetModify());
    EXPECT_TRUE(m_edit.CanUndo());
    EXPECT_TRUE(m_edit.Undo());
    EXPECT_EQ(Text(), L"12 34");
    m_edit.EmptyUndoBuffer();
    EXPECT_FALSE(m_edit.CanUndo());
    m_edit.SetModify(FALSE);
    EXPECT_FALSE(m_edit.GetModify());
    m_edit.SetSel(0, 3);
    m_edit.Clear();
    EXPECT_EQ(Text(), L"34");
}

TEST_F(Edit, ClipboardTakesTheSelection) {
    Create(ES_AUTOHSCROLL, L"abcdef");
    m_edit.SetSel(0, 2);
    m_edit.Copy();
    m_edit.SetSel(4, 6);
    m_edit.Cut();
    m_edit.SetSel(0, 0);
    m_edit.Paste();
    EXPECT_EQ(Text(), L"efabcd");
}

TEST_F(Edit, LimitsApplyToTypingOnly) {
    Create();
    m_edit.SetLimitText(3);
    EXPECT_EQ(m_edit.GetLimitText(), 3U);
    for (const TCHAR ch : L"abcde")
        if (ch != 0)
            m_edit.SendMessage(WM_CHAR, ch, 1);
    EXPECT_EQ(Text(), L"abc");
    m_edit.SetWindowText(L"longer than three");
    EXPECT_EQ(Text(), L"longer than three");
    EXPECT_TRUE(m_edit.SetReadOnly());
    EXPECT_NE(m_edit.GetStyle() & ES_READONLY, 0U);
    m_edit.LimitText(0);
    m_edit.SendMessage(WM_CHAR, L'x', 1);
    EXPECT_EQ(Text(), L"longer than three");
}

TEST_F(Edit, PasswordCharacterHidesTheTextOnTheScreenOnly) {
    Create(ES_PASSWORD, L"secret");
    m_edit.SetPasswordChar(L'#');
    EXPECT_EQ(m_edit.GetPasswordChar(), L'#');
    EXPECT_EQ(Text(), L"secret");
}

TEST_F(Edit, CountsLines) {
    Create(ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL,
           L"first\r\nsecond line\r\n\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9");
    EXPECT_EQ(m_edit.GetLineCount(), 9);
    EXPECT_EQ(m_edit.LineIndex(1), 7);
    EXPECT_EQ(m_edit.LineFromChar(8), 1);
    EXPECT_EQ(m_edit.LineLength(8), 11);
    EXPECT_EQ(m_edit.LineFromChar(), 0) << "the caret's line";
    TCHAR szLine[20] = {};
    EXPECT_EQ(m_edit.GetLine(1, szLine, 6), 6);
    EXPECT_EQ(CString(szLine, 6), L"second");
    EXPECT_EQ(m_edit.GetLine(2, szLine, 20), 0);
    EXPECT_EQ(m_edit.GetLine(0, szLine, 0), 0);
    m_edit.LineScroll(3);
    EXPECT_EQ(m_edit.GetFirstVisibleLine(), 3);
}

TEST_F(Edit, LaysTextOutWhereItSays) {
    Create(ES_MULTILINE | ES_AUTOHSCROLL, L"ab\tc");
    CRect rect;
    m_edit.SetRect(CRect(10, 2, 100, 60));
    m_edit.GetRect(rect);
    EXPECT_NEAR(rect.left, 10, 4) << "but for the margin";
    EXPECT_EQ(rect.top, 2);
    const CPoint point = m_edit.PosFromChar(1);
    EXPECT_GT(point.x, 10);
    EXPECT_EQ(LOWORD(m_edit.CharFromPos(point)), 1);
    const CPoint narrow = m_edit.PosFromChar(3);
    EXPECT_TRUE(m_edit.SetTabStops(60));
    EXPECT_GT(m_edit.PosFromChar(3).x, narrow.x);
    m_edit.SetMargins(4, 6);
    EXPECT_EQ(m_edit.GetMargins(), static_cast<DWORD>(MAKELONG(4, 6)));
}

} // namespace
