// Notifications that come back to the control that sent them.
#include "support/Child.h"

#include <string>

using namespace testkit;

namespace {

std::string g_log;

template <class Result = int>
Result Log(const char* psz, Result result = 0) {
    g_log += g_log.empty() ? psz : std::string(", ") + psz;
    return result;
}

struct ReflectingEdit : CEdit {
    BOOL m_bTake = TRUE; ///< What the _EX handlers answer.
    HBRUSH m_hBrush = nullptr;

protected:
    afx_msg void OnUpdate() { Log("child"); }
    afx_msg BOOL OnChange() { return Log("child", m_bTake); }
    afx_msg void OnCode(NMHDR*, LRESULT* pResult) { *pResult = Log("child", 11); }
    afx_msg BOOL OnCodeEx(NMHDR*, LRESULT* pResult) {
        *pResult = 12;
        return Log("child", m_bTake);
    }
    afx_msg HBRUSH CtlColor(CDC*, UINT) { return Log("child", m_hBrush); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ReflectingEdit, CEdit)
ON_CONTROL_REFLECT(EN_UPDATE, &ReflectingEdit::OnUpdate)
ON_CONTROL_REFLECT_EX(EN_CHANGE, &ReflectingEdit::OnChange)
ON_NOTIFY_REFLECT(-60, &ReflectingEdit::OnCode)
ON_NOTIFY_REFLECT_EX(-61, &ReflectingEdit::OnCodeEx)
ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

/// Handles whatever its control leaves to it.
class Parent : public Frame {
protected:
    BOOL OnCmdMsg(UINT, int, void* pExtra, AFX_CMDHANDLERINFO*) override {
        if (pExtra != nullptr)
            *static_cast<AFX_NOTIFY*>(pExtra)->pResult = 21;
        return Log("parent", TRUE);
    }
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
        Log("parent");
        return CWnd::OnCtlColor(pDC, pWnd, nCtlColor);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Parent, CWnd)
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

TEST(Reflection, ControlComesFirstAndDecidesWhetherTheParentHearsOfIt) {
    constexpr int UNATTACHED = -1; ///< The control has no object.
    const Rows<UINT, int, int, const char*, LRESULT> rows = {
        {WM_COMMAND, EN_UPDATE, TRUE, "child", 1},
        {WM_COMMAND, EN_MAXTEXT, TRUE, "parent", 1},
        {WM_COMMAND, EN_CHANGE, TRUE, "child", 1},
        {WM_COMMAND, EN_CHANGE, FALSE, "child, parent", 1},
        {WM_NOTIFY, -60, TRUE, "child", 11},
        {WM_NOTIFY, -61, TRUE, "child", 12},
        {WM_NOTIFY, -62, TRUE, "parent", 21},
        {WM_NOTIFY, -61, FALSE, "child, parent", 21},
        {WM_COMMAND, EN_UPDATE, UNATTACHED, "parent", 1},
        {WM_COMMAND, EN_CHANGE, UNATTACHED, "parent", 1},
    };
    for (const auto& [nMessage, nCode, nTake, pszLog, lWanted] : rows) {
        SCOPED_TRACE(testing::Message() << nMessage << ' ' << nCode << ' ' << nTake);
        Parent parent;
        fx::Child<ReflectingEdit> edit(parent);
        const HWND hEdit = edit;
        edit.m_bTake = nTake == TRUE;
        if (nTake == UNATTACHED)
            edit.UnsubclassWindow();
        g_log.clear();
        const LRESULT lResult = nMessage == WM_NOTIFY ? fx::Notify(parent, hEdit, 1, nCode)
                                                      : parent.SendMessage(WM_COMMAND, MAKEWPARAM(1, nCode),
                                                                           reinterpret_cast<LPARAM>(hEdit));
        EXPECT_EQ(pszLog, g_log);
        EXPECT_EQ(lWanted, lResult);
    }
}

TEST(Reflection, ParentChoosesColoursFirstAndItsBaseClassAsksTheControl) {
    Parent parent;
    fx::Child<ReflectingEdit> edit(parent);
    CClientDC dc(&edit);
    const auto ask = [&] {
        g_log.clear();
        return reinterpret_cast<HBRUSH>(parent.SendMessage(
            WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.m_hDC), reinterpret_cast<LPARAM>(edit.m_hWnd)));
    };
    edit.m_hBrush = static_cast<HBRUSH>(::GetStockObject(DKGRAY_BRUSH));
    EXPECT_EQ(edit.m_hBrush, ask());
    EXPECT_EQ("parent, child", g_log);
    edit.m_hBrush = nullptr;
    EXPECT_NE(nullptr, ask()) << "without a choice of the control the system's colour holds";
}

} // namespace
