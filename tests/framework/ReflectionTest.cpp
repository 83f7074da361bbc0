// Notifications that come back to the control that sent them.
#include "support/TestApp.h"

#include <string>

using namespace testkit;

namespace {

std::string g_log;

BOOL Log(const char* psz, BOOL bResult = FALSE) {
    g_log += g_log.empty() ? psz : std::string(", ") + psz;
    return bResult;
}

struct ReflectingEdit : CEdit {
    BOOL m_bTake = TRUE; ///< What the _EX handlers answer.

protected:
    afx_msg void OnUpdate() { Log("child"); }
    afx_msg BOOL OnChange() { return Log("child", m_bTake); }
    afx_msg void OnCode(NMHDR*, LRESULT* pResult) { *pResult = Log("child", 11); }
    afx_msg BOOL OnCodeEx(NMHDR*, LRESULT* pResult) {
        *pResult = 12;
        return Log("child", m_bTake);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ReflectingEdit, CEdit)
ON_CONTROL_REFLECT(EN_UPDATE, &ReflectingEdit::OnUpdate)
ON_CONTROL_REFLECT_EX(EN_CHANGE, &ReflectingEdit::OnChange)
ON_NOTIFY_REFLECT(-60, &ReflectingEdit::OnCode)
ON_NOTIFY_REFLECT_EX(-61, &ReflectingEdit::OnCodeEx)
END_MESSAGE_MAP()

/// Handles whatever its control leaves to it.
struct Parent : Frame {
    BOOL OnCmdMsg(UINT, int, void* pExtra, AFX_CMDHANDLERINFO*) override {
        if (pExtra != nullptr)
            *static_cast<AFX_NOTIFY*>(pExtra)->pResult = 21;
        return Log("parent", TRUE);
    }
};

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
        Child<ReflectingEdit> edit(parent);
        const HWND hEdit = edit;
        edit.m_bTake = nTake == TRUE;
        if (nTake == UNATTACHED)
            edit.UnsubclassWindow();
        g_log.clear();
        const LRESULT lResult = nMessage == WM_NOTIFY ? Notify(parent, hEdit, 1, nCode)
                                                      : parent.SendMessage(WM_COMMAND, MAKEWPARAM(1, nCode),
                                                                           reinterpret_cast<LPARAM>(hEdit));
        EXPECT_EQ(pszLog, g_log);
        EXPECT_EQ(lWanted, lResult);
    }
}

} // namespace
