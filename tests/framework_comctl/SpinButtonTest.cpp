#include "support/ModalScript.h"

#include "afxcmn.h"

namespace {

class SpinButton : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_edit.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 60, 30), &m_frame, 1));
        ASSERT_TRUE(m_spin.Create(WS_CHILD | WS_VISIBLE | UDS_SETBUDDYINT | UDS_NOTHOUSANDS,
                                  CRect(60, 10, 80, 50), &m_frame, 2));
        EXPECT_EQ(m_spin.SetBuddy(&m_edit), nullptr);
    }
    CString Text() const { return fx::TextOf(m_edit); }

    fx::Frame m_frame;
    CEdit m_edit;
    CSpinButtonCtrl m_spin;
};

TEST_F(SpinButton, WritesItsPositionIntoItsBuddyWithinTheRange) {
    EXPECT_EQ(m_spin.GetBuddy(), &m_edit);
    m_spin.SetRange(-5, 20);
    const struct {
        int nPos;
        LPCTSTR pszText;
    } cases[] = {{7, L"7"}, {-3, L"-3"}, {99, L"20"}, {-99, L"-5"}};
    for (const auto& c : cases) {
        m_spin.SetPos(c.nPos);
        EXPECT_EQ(Text(), c.pszText);
        EXPECT_EQ(static_cast<short>(LOWORD(m_spin.GetPos())), ::_wtoi(c.pszText));
        EXPECT_EQ(m_spin.GetPos32(), ::_wtoi(c.pszText));
    }
    m_edit.SetWindowText(L"abc");
    BOOL bError = FALSE;
    m_spin.GetPos32(&bError);
    EXPECT_TRUE(bError);
    EXPECT_NE(HIWORD(m_spin.GetPos()), 0);
}

TEST_F(SpinButton, TapOnAnArrowCountsByTheFirstStep) {
    UDACCEL steps[] = {{0, 5}, {60, 50}};
    EXPECT_TRUE(m_spin.SetAccel(2, steps));
    m_spin.SetRange(0, 100);
    m_spin.SetPos(10);
    m_spin.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    m_spin.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(Text(), L"15");
}

} // namespace
