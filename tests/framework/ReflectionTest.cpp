// Notifications that come back to the control that sent them.
#include "support/TestApp.h"

#include <string>

using namespace testkit;

namespace {

std::string g_log;

void Log(const char* psz) {
    g_log += g_log.empty() ? psz : std::string(", ") + psz;
}

struct ReflectingEdit : CEdit {
    bool m_bTake = true; ///< What the _EX handlers answer.
    HBRUSH m_hBrush = nullptr;

protected:
    afx_msg void OnUpdate() { Log("child update"); }
    afx_msg BOOL OnChange() { return Log("child change"), m_bTake; }
    afx_msg void OnCode(NMHDR*, LRESULT* pResult) { Log("child notify"), *pResult = 11; }
    afx_msg BOOL OnCodeEx(NMHDR*, LRESULT* pResult) { return Log("child notify ex"), *pResult = 12, m_bTake; }
    afx_msg HBRUSH CtlColor(CDC*, UINT) { return Log("child colour"), m_hBrush; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ReflectingEdit, CEdit)
ON_CONTROL_REFLECT(EN_UPDATE, &ReflectingEdit::OnUpdate)
ON_CONTROL_REFLECT_EX(EN_CHANGE, &ReflectingEdit::OnChange)
ON_NOTIFY_REFLECT(-60, &ReflectingEdit::OnCode)
ON_NOTIFY_REFLECT_EX(-61, &ReflectingEdit::OnCodeEx)
ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

class Parent : public Frame {
protected:
    afx_msg void OnUpdate() { Log("parent update"); }
    afx_msg void OnChange() { Log("parent change"); }
    afx_msg void OnMaxText() { Log("parent maxtext"); }
    afx_msg void OnCode(NMHDR*, LRESULT* pResult) { Log("parent notify"), *pResult = 21; }
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

TEST(Reflection, ControlComesFirstAndDecidesWhetherTheParentHearsOfIt) {
    constexpr int UNATTACHED = -1; ///< The control has no object.
    const Rows<UINT, int, int, const char*, LRESULT> rows = {
        {WM_COMMAND, EN_UPDATE, TRUE, "child update", 1},
        {WM_COMMAND, EN_MAXTEXT, TRUE, "parent maxtext", 1},
        {WM_COMMAND, EN_CHANGE, TRUE, "child change", 1},
        {WM_COMMAND, EN_CHANGE, FALSE, "child change, parent change", 1},
        {WM_NOTIFY, -60, TRUE, "child notify", 11},
        {WM_NOTIFY, -61, TRUE, "child notify ex", 12},
        {WM_NOTIFY, -62, TRUE, "parent notify", 21},
        {WM_NOTIFY, -61, FALSE, "child notify ex, parent notify", 21},
        {WM_COMMAND, EN_UPDATE, UNATTACHED, "parent update", 1},
        {WM_COMMAND, EN_CHANGE, UNATTACHED, "parent change", 1},
    };
    for (const auto& [nMessage, nCode, nTake, pszLog, lWanted] : rows) {
        Parent parent;
        ReflectingEdit edit;
        ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &parent, 1));
        const HWND hEdit = edit;
        edit.m_bTake = nTake == TRUE;
        if (nTake == UNATTACHED)
            edit.UnsubclassWindow();
        NMHDR header = {hEdit, 1, static_cast<UINT>(nCode)};
        g_log.clear();
        const LRESULT lResult =
            nMessage == WM_COMMAND
                ? parent.SendMessage(WM_COMMAND, MAKEWPARAM(1, nCode), reinterpret_cast<LPARAM>(hEdit))
                : parent.SendMessage(WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&header));
        EXPECT_EQ(pszLog, g_log);
        EXPECT_EQ(lWanted, lResult) << pszLog;
    }
}

TEST(Reflection, ParentChoosesColoursFirstAndItsBaseClassAsksTheControl) {
    Parent parent;
    ReflectingEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &parent, 1));
    CClientDC dc(&edit);
    const auto ask = [&] {
        g_log.clear();
        return reinterpret_cast<HBRUSH>(parent.SendMessage(
            WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.m_hDC), reinterpret_cast<LPARAM>(edit.m_hWnd)));
    };
    edit.m_hBrush = static_cast<HBRUSH>(::GetStockObject(DKGRAY_BRUSH));
    EXPECT_EQ(edit.m_hBrush, ask());
    EXPECT_EQ("parent colour, child colour", g_log);
    edit.m_hBrush = nullptr;
    EXPECT_NE(nullptr, ask()) << "without a choice of the control the system's colour holds";
}

} // namespace
