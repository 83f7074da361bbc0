// The entry fields and the soft input panel.
#include "testkit/Panel.h"
#include "support/TestApp.h"

#include "controls/nComboBox.h"
#include "controls/nEdit.h"

using namespace testkit;

namespace {

constexpr int IDC_EDIT = 100, IDC_COMBO = 101, IDC_OTHER = 102;

/// An edit, a combo box and a plain edit to go to.
struct FieldStage : Stage {
    FieldStage() {
        CreateItem(WC_EDIT, IDC_EDIT, WS_BORDER, CRect(5, 5, 150, 25));
        CreateItem(WC_COMBOBOX, IDC_COMBO, CBS_DROPDOWN, CRect(5, 35, 150, 120));
        CreateItem(WC_EDIT, IDC_OTHER, WS_BORDER, CRect(5, 65, 150, 85)); // above the panel
    }
    ~FieldStage() override { DestroyWindow(); } // before the fields

    void TapOther() { Tap(*GetDlgItem(IDC_OTHER)); }

    CnEdit m_edit;
    CnComboBox m_combo;
};

TEST(EntryField, OptionDecidesThePanelsMode) {
    const Rows<DWORD, LPCTSTR> rows = {{0x0, L""},     {0x1, L"ABC"}, {0x2, L"123"},    {0x3, L"ABC"},
                                       {0x4, L"かな"}, {0x6, L"123"}, {0x10C, L"かな"}, {0xFFFFFFF8, L""}};
    for (const auto& [dwOption, pszTitle] : rows) {
        FieldStage stage;
        ASSERT_TRUE(stage.m_edit.Attach(IDC_EDIT, &stage, dwOption));
        ASSERT_TRUE(stage.m_combo.Attach(IDC_COMBO, &stage, dwOption));
        for (const CWnd* pField : {static_cast<CWnd*>(&stage.m_edit), static_cast<CWnd*>(&stage.m_combo)}) {
            stage.TapOther();
            panel::ExpectHidden();
            stage.Tap(*pField);
            EXPECT_EQ(panel::IsVisible() ? panel::Title() : L"", pszTitle) << dwOption;
        }
    }
}

TEST(EntryField, FailedAttachStoresTheOptionAllTheSame) {
    FieldStage stage;
    EXPECT_FALSE(stage.m_edit.Attach(999, &stage, SipOptionMode2));
    EXPECT_FALSE(stage.m_edit.Attach(IDC_EDIT, nullptr, SipOptionMode1));
    EXPECT_FALSE(stage.m_combo.Attach(999, &stage, SipOptionMode2));
    ASSERT_TRUE(stage.m_edit.SubclassDlgItem(IDC_EDIT, &stage));
    ASSERT_TRUE(stage.m_combo.SubclassDlgItem(IDC_COMBO, &stage));
    EXPECT_FALSE(stage.m_edit.Attach(IDC_EDIT, &stage, SipOptionMode1)) << "it has a field already";
    stage.Tap(stage.m_edit);
    EXPECT_EQ(L"123", panel::Title());
    stage.Tap(stage.m_combo);
    EXPECT_EQ(L"かな", panel::Title());
}

TEST(EntryField, TapsStillPlaceTheCaretSelectAWordAndDropTheList) {
    FieldStage stage;
    stage.m_edit.SubclassDlgItem(IDC_EDIT, &stage);
    stage.m_combo.SubclassDlgItem(IDC_COMBO, &stage);
    stage.m_edit.SetWindowText(L"測点 A12");
    CPoint point = stage.m_edit.PosFromChar(4) + CPoint(1, 4);
    stage.m_edit.ClientToScreen(&point);
    stage.Tap(point);
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(4, 4)), stage.m_edit.GetSel());
    stage.Tap(point);
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(3, 6)), stage.m_edit.GetSel());
    EXPECT_FALSE(panel::IsVisible());
    const CRect rect = RectOf(stage.m_combo);
    stage.Tap(CPoint(rect.right - 5, rect.CenterPoint().y));
    EXPECT_TRUE(stage.m_combo.GetDroppedState());
    EXPECT_FALSE(panel::IsVisible());
}

} // namespace
