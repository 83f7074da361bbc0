// Notifications that come back to the control that sent them.
#include "support/FrameworkEnvironment.h"

#include <string>

namespace {

std::string g_log;

void Log(const char* psz) {
    g_log += g_log.empty() ? psz : std::string(", ") + psz;
}

class ReflectingEdit : public CEdit {
public:
    bool m_bTake = true; ///< What the _EX handlers answer.
    HBRUSH m_hBrush = nullptr;

protected:
    afx_msg void OnUpdate() { Log("child update"); }
    afx_msg BOOL OnChange() {
        Log("child change");
        return m_bTake;
    }
    afx_msg void OnCode(NMHDR*, LRESULT* pResult) {
        Log("child notify");
        *pResult = 11;
    }
    afx_msg BOOL OnCodeEx(NMHDR*, LRESULT* pResult) {
        Log("child notify ex");
        *pResult = 12;
        return m_bTake;
    }
    afx_msg HBRUSH CtlColor(CDC*, UINT) {
        Log("child colour");
        return m_hBrush;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ReflectingEdit, CEdit)
ON_CONTROL_REFLECT(EN_UPDATE, &ReflectingEdit::OnUpdate)
ON_CONTROL_REFLECT_EX(EN_CHANGE, &ReflectingEdit::OnChange)
ON_NOTIFY_REFLECT(-60, &ReflectingEdit::OnCode)
ON_NOTIFY_REFLECT_EX(-61, &ReflectingEdit::OnCodeEx)
ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

class Parent : public fx::Frame {
protected:
    afx_msg void OnUpdate() { Log("parent update"); }
    afx_msg void OnChange() { Log("parent change"); }
    afx_msg void OnMaxText() { Log("parent maxtext"); }
    afx_msg void OnCode(NMHDR*, LRESULT* pResult) {
        Log("parent notify");
        *pResult = 21;
    }
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
        Log("parent colour");
        return CWnd::OnCtlColor(pDC, pWnd, nCtlColor);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Parent, CWnd)
ON_EN_UPDATE(1, &Parent::OnUpdate)
ON_EN_CHANGE(1, &Parent::OnChange)
ON_CONTROL(EN_MAXTEXT, 1, &Parent::OnMaxText)
ON_NOTIFY(-60, 1, &Parent::OnCode)
ON_NOTIFY(-61, 1, &Parent::OnCode)
ON_NOTIFY(-62, 1, &Parent::OnCode)
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

class Reflection : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &m_parent, 1));
        m_hEdit = m_edit;
        g_log.clear();
    }

    std::string Command(WORD nCode) {
        g_log.clear();
        m_parent.SendMessage(WM_COMMAND, MAKEWPARAM(1, nCode), reinterpret_cast<LPARAM>(m_hEdit));
        return g_log;
    }

    std::string Notify(int nCode, LRESULT* pResult) {
        g_log.clear();
        NMHDR header = {m_hEdit, 1, static_cast<UINT>(nCode)};
        *pResult = m_parent.SendMessage(WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&header));
        return g_log;
    }

    Parent m_parent;
    ReflectingEdit m_edit;
    HWND m_hEdit = nullptr;
};

TEST_F(Reflection, ControlComesBeforeItsParentAndDecidesWhetherTheParentHearsOfIt) {
    EXPECT_EQ(Command(EN_UPDATE), "child update");
    EXPECT_EQ(Command(EN_MAXTEXT), "parent maxtext");
    EXPECT_EQ(Command(EN_CHANGE), "child change");
    m_edit.m_bTake = false;
    EXPECT_EQ(Command(EN_CHANGE), "child change, parent change");
}

TEST_F(Reflection, NotificationResultIsThatOfTheLastWhoHandledIt) {
    LRESULT lResult = 0;
    EXPECT_EQ(Notify(-60, &lResult), "child notify");
    EXPECT_EQ(lResult, 11);
    EXPECT_EQ(Notify(-61, &lResult), "child notify ex");
    EXPECT_EQ(lResult, 12);
    EXPECT_EQ(Notify(-62, &lResult), "parent notify");
    EXPECT_EQ(lResult, 21);
    m_edit.m_bTake = false;
    EXPECT_EQ(Notify(-61, &lResult), "child notify ex, parent notify");
    EXPECT_EQ(lResult, 21);
}

TEST_F(Reflection, RealEditReportsTypingToItsOwnObject) {
    m_edit.SetWindowText(L"x");
    EXPECT_EQ(g_log, "child update, child change");
}

TEST_F(Reflection, ParentChoosesColoursFirstAndItsBaseClassAsksTheControl) {
    CClientDC dc(&m_edit);
    const auto ask = [&] {
        g_log.clear();
        return reinterpret_cast<HBRUSH>(m_parent.SendMessage(
            WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.m_hDC), reinterpret_cast<LPARAM>(m_hEdit)));
    };
    m_edit.m_hBrush = static_cast<HBRUSH>(::GetStockObject(DKGRAY_BRUSH));
    EXPECT_EQ(ask(), m_edit.m_hBrush);
    EXPECT_EQ(g_log, "parent colour, child colour");
    m_edit.m_hBrush = nullptr;
    EXPECT_NE(ask(), nullptr) << "without a choice of the control the system's colour holds";
}

TEST_F(Reflection, ControlWithoutAnObjectReportsToItsParentOnly) {
    m_edit.UnsubclassWindow();
    EXPECT_EQ(Command(EN_UPDATE), "parent update");
    EXPECT_EQ(Command(EN_CHANGE), "parent change");
}

} // namespace
