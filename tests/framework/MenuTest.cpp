// Menus, how commands look, and commands by range.
#include "support/TestApp.h"

using namespace testkit;

namespace {

constexpr UINT ID_ON = 0x8001, ID_OFF = 0x8002;

struct MenuWnd : Frame {
    UINT m_nLast = 0;

protected:
    afx_msg BOOL OnCommandEx(UINT nID) {
        m_nLast = nID;
        return nID == ID_ON;
    }
    afx_msg void OnUpdateOn(CCmdUI* pCmdUI) {
        pCmdUI->SetText(L"on");
        pCmdUI->SetCheck();
    }
    afx_msg void OnUpdateOff(CCmdUI* pCmdUI) { pCmdUI->Enable(FALSE); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(MenuWnd, CWnd)
ON_COMMAND_EX_RANGE(ID_ON, ID_OFF, OnCommandEx)
ON_UPDATE_COMMAND_UI(ID_ON, OnUpdateOn)
ON_UPDATE_COMMAND_UI(ID_OFF, OnUpdateOff)
END_MESSAGE_MAP()

TEST(Menu, ItemsAreAskedHowTheyLookBeforeThePopupOpens) {
    MenuWnd wnd;
    CMenu bar, popup;
    ASSERT_TRUE(bar.CreateMenu() && popup.CreatePopupMenu());
    popup.AppendMenu(MF_STRING, ID_ON, L"x");
    popup.AppendMenu(MF_SEPARATOR);
    popup.AppendMenu(MF_STRING, ID_OFF, L"off");
    bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popup.Detach()), L"popup");
    CMenu* pPopup = bar.GetSubMenu(0);
    wnd.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(pPopup->m_hMenu), 0);
    CString strText;
    EXPECT_EQ(pPopup->GetMenuString(ID_ON, strText, MF_BYCOMMAND), 2);
    EXPECT_EQ(strText, L"on");
    EXPECT_EQ(pPopup->GetMenuState(ID_ON, MF_BYCOMMAND) & MF_CHECKED, UINT{MF_CHECKED});
    EXPECT_EQ(pPopup->GetMenuState(ID_OFF, MF_BYCOMMAND) & MF_GRAYED, UINT{MF_GRAYED});
}

TEST(Menu, HandlerOfARangeMayLeaveACommandToOthers) {
    MenuWnd wnd;
    EXPECT_EQ(wnd.SendMessage(WM_COMMAND, ID_ON), 1);
    EXPECT_EQ(wnd.SendMessage(WM_COMMAND, ID_OFF), 0);
    EXPECT_EQ(wnd.m_nLast, ID_OFF);
}

} // namespace
