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

TEST_F(Edit, GivesTheTextOfALineAsFarAsItFits) {
    Create(ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL, L"first\r\nsecond line\r\n\r\n4");
    EXPECT_EQ(m_edit.GetLineCount(), 4);
    EXPECT_EQ(m_edit.LineIndex(1), 7);
    EXPECT_EQ(m_edit.LineFromChar(8), 1);
    EXPECT_EQ(m_edit.LineLength(8), 11);
    EXPECT_EQ(m_edit.LineFromChar(), 0) << "the caret's line";
    TCHAR szLine[20] = {};
    EXPECT_EQ(m_edit.GetLine(1, szLine, 6), 6);
    EXPECT_EQ(CString(szLine, 6), L"second");
    EXPECT_EQ(m_edit.GetLine(2, szLine, 20), 0);
    EXPECT_EQ(m_edit.GetLine(0, szLine, 0), 0);
}

} // namespace
