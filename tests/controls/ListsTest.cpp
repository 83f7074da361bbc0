// List box, list view, tree view and up-down control under the stylus.
#include "support/TestApp.h"

#include "controls/nListBox.h"
#include "controls/nListCtrl.h"
#include "controls/nSpinButtonCtrl.h"
#include "controls/nTreeCtrl.h"

using namespace testkit;

namespace {

constexpr DWORD VISIBLE_CHILD = WS_CHILD | WS_VISIBLE;
constexpr UINT SELECTED_AND_FOCUSED = LVIS_SELECTED | LVIS_FOCUSED;

/// All four controls, with something in them.
struct ListStage : Stage {
    ListStage() {
        m_listBox.Create(VISIBLE_CHILD | LBS_NOTIFY, CRect(5, 5, 105, 85), this, 1);
        m_list.Create(VISIBLE_CHILD | LVS_LIST, CRect(110, 5, 215, 85), this, 2);
        m_tree.Create(VISIBLE_CHILD, CRect(5, 90, 105, 170), this, 3);
        m_spin.Create(VISIBLE_CHILD, CRect(110, 90, 130, 130), this, 4);
        for (const LPCTSTR psz : {L"P1", L"P2", L"P3"}) {
            m_listBox.AddString(psz);
            m_list.InsertItem(m_list.GetItemCount(), psz);
            m_tree.InsertItem(psz);
        }
        m_spin.SetRange(0, 9);
    }
    ~ListStage() override { DestroyWindow(); } // before the controls

    void TapItem(int nItem) {
        CRect rect;
        m_list.GetItemRect(nItem, rect, LVIR_LABEL);
        m_list.ClientToScreen(rect);
        Tap(rect.CenterPoint());
    }
    UINT State(int nItem) const { return m_list.GetItemState(nItem, SELECTED_AND_FOCUSED); }

    CnListBox m_listBox;
    CnListCtrl m_list;
    CnTreeCtrl m_tree;
    CnSpinButtonCtrl m_spin;
};

TEST(Lists, PressAndHoldIsAnsweredAsDealtWith) {
    ListStage stage;
    for (const CWnd* pWnd : {static_cast<CWnd*>(&stage.m_listBox), static_cast<CWnd*>(&stage.m_list),
                             static_cast<CWnd*>(&stage.m_tree), static_cast<CWnd*>(&stage.m_spin)}) {
        const int nID = pWnd->GetDlgCtrlID();
        EXPECT_EQ(1, Notify(stage, *pWnd, nID, NM_RECOGNIZEGESTURE)) << nID;
        EXPECT_EQ(0, stage.Count(nID, NM_RECOGNIZEGESTURE)) << nID;
    }
}

TEST(Lists, TapsReachTheSystem) {
    ListStage stage;
    stage.Tap(RectOf(stage.m_listBox).TopLeft() + CSize(10, 5));
    EXPECT_EQ(0, stage.m_listBox.GetCurSel());
    CRect item;
    stage.m_tree.GetItemRect(stage.m_tree.GetRootItem(), item, TRUE);
    stage.m_tree.ClientToScreen(item);
    stage.Tap(item.CenterPoint());
    EXPECT_EQ(stage.m_tree.GetRootItem(), stage.m_tree.GetSelectedItem());
    const CRect spin = RectOf(stage.m_spin);
    stage.Tap(CPoint(spin.CenterPoint().x, spin.top + 5));
    EXPECT_EQ(1, LOWORD(stage.m_spin.GetPos()));
}

TEST(ListCtrl, WithoutSelectionNeitherTapNorKeysLeaveAny) {
    ListStage stage;
    stage.m_list.SetOption(CnListCtrl::OptionNoSelection);
    stage.TapItem(1);
    stage.TapItem(2);
    stage.Type({VK_UP, VK_SPACE, VK_HOME});
    EXPECT_EQ(::GetFocus(), stage.m_list.m_hWnd);
    EXPECT_EQ(-1, stage.m_list.GetNextItem(-1, LVNI_SELECTED));
    EXPECT_EQ(-1, stage.m_list.GetNextItem(-1, LVNI_FOCUSED));
}

TEST(ListCtrl, FocusWithoutSelectionStaysAndWithoutTheOptionAll) {
    ListStage stage;
    stage.m_list.SetOption(CnListCtrl::OptionNoSelection);
    stage.m_list.SetItemState(1, LVIS_FOCUSED, SELECTED_AND_FOCUSED);
    EXPECT_EQ(static_cast<UINT>(LVIS_FOCUSED), stage.State(1));
    stage.m_list.SetOption(0x2); // replaced, not added
    stage.TapItem(2);
    EXPECT_EQ(SELECTED_AND_FOCUSED, stage.State(2));
}

TEST(ListCtrl, EverythingSelectedInALongListIsCleared) {
    ListStage stage;
    constexpr int ITEMS = 5000;
    stage.m_list.SetRedraw(FALSE);
    for (int i = stage.m_list.GetItemCount(); i < ITEMS; ++i)
        stage.m_list.InsertItem(i, L"P");
    stage.m_list.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
    ASSERT_EQ(static_cast<UINT>(ITEMS), stage.m_list.GetSelectedCount());
    stage.m_list.SetOption(CnListCtrl::OptionNoSelection);
    stage.m_list.SetItemState(7, LVIS_FOCUSED, LVIS_FOCUSED);
    EXPECT_EQ(0U, stage.m_list.GetSelectedCount());
}

} // namespace
