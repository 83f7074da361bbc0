// All the controls together in one dialog.
#include "support/DialogTemplate.h"
#include "support/Leftovers.h"
#include "support/ModalScript.h"

#include "controls/IconButton.h"
#include "controls/InfoStatic.h"
#include "controls/SelectListCtrl.h"
#include "controls/nComboBox.h"
#include "controls/nDialog.h"
#include "controls/nListBox.h"
#include "controls/nSpinButtonCtrl.h"
#include "controls/nTreeCtrl.h"
#include "survey/AngleEdit.h"

namespace {

/// A dialog with one of each.
class Dialog : public CnDialog {
public:
    Dialog() : CnDialog(0, nullptr), m_template(120, 120) {
        Add(WC_EDIT, 1);
        Add(WC_EDIT, 2);
        Add(WC_COMBOBOX, 3);
        Add(WC_LISTBOX, 4);
        Add(WC_LISTVIEW, 5);
        Add(WC_TREEVIEW, 6);
        Add(UPDOWN_CLASS, 7);
        Add(WC_BUTTON, 8, BS_OWNERDRAW);
        Add(WC_STATIC, 9);
        Add(WC_LISTVIEW, 10);
        InitModalIndirect(m_template.Get(), nullptr);
        SetOption(OptionPopup);
    }

protected:
    BOOL OnInitDialog() override {
        CnDialog::OnInitDialog();
        EXPECT_TRUE(m_edit.Attach(1, this, SipOptionMode0));
        EXPECT_TRUE(m_angle.Attach(2, this, CAngleEdit::WHOLE_SECONDS, SipOptionMode1));
        EXPECT_TRUE(m_combo.Attach(3, this, SipOptionMode2));
        EXPECT_TRUE(m_listBox.SubclassDlgItem(4, this));
        EXPECT_TRUE(m_selectList.SubclassDlgItem(5, this));
        EXPECT_TRUE(m_tree.SubclassDlgItem(6, this));
        EXPECT_TRUE(m_spin.SubclassDlgItem(7, this));
        EXPECT_TRUE(m_button.Attach(8, this, ::LoadIcon(nullptr, IDI_INFORMATION), 7));
        EXPECT_TRUE(m_info.SubclassDlgItem(9, this));
        EXPECT_TRUE(m_list.SubclassDlgItem(10, this));
        m_info.SetOption(CInfoStatic::OptionIcon);
        m_angle.SetAngle(1.0);
        m_selectList.InsertItem(0, L"P1");
        m_list.InsertItem(0, L"P1");
        m_tree.InsertItem(L"P1");
        return TRUE;
    }

private:
    void Add(LPCTSTR pszClass, int nID, DWORD dwStyle = 0) {
        const auto y = static_cast<short>(nID * 11);
        m_template.Add(pszClass, L"text", nID, dwStyle | WS_TABSTOP, 2, y, 80, 10);
    }

    fx::DialogTemplate m_template;
    CnEdit m_edit;
    CAngleEdit m_angle;
    CnComboBox m_combo;
    CnListBox m_listBox;
    CSelectListCtrl m_selectList;
    CnTreeCtrl m_tree;
    CnSpinButtonCtrl m_spin;
    CIconButton m_button;
    CInfoStatic m_info;
    CnListCtrl m_list;
};

TEST(AllControls, TwoHundredOpensLeaveNothing) {
    fx::ExpectNothingLeft([] {
        Dialog dlg;
        fx::ModalScript script;
        script.Then([&] {
            for (int nID = 1; nID <= 10; ++nID)
                dlg.GotoDlgCtrl(dlg.GetDlgItem(nID)); // panels come and go
            dlg.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
            dlg.EndDialog(IDOK);
        });
        EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK);
    });
}

} // namespace
