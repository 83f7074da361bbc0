// A dialog with one of each control of the library.
#pragma once

#include "support/TestApp.h"
#include "testkit/DialogTemplate.h"

#include "controls/IconButton.h"
#include "controls/InfoStatic.h"
#include "controls/SelectListCtrl.h"
#include "controls/nComboBox.h"
#include "controls/nDialog.h"
#include "controls/nListBox.h"
#include "controls/nSpinButtonCtrl.h"
#include "controls/nTreeCtrl.h"
#include "survey/AngleEdit.h"

#include "Tesuvo.h"

namespace fx {

struct AllControls : CnDialog {
    static constexpr int FIRST = 11; ///< Identifiers.
    static constexpr int LAST = 20;

    AllControls(CWnd* pParentWnd, bool bPopup) : CnDialog(0, pParentWnd), m_template(120, 120) {
        for (int nID = FIRST; nID <= LAST; ++nID) {
            const auto& [pszClass, dwStyle] = CONTROLS[nID - FIRST];
            m_template.Add(pszClass, L"&text", nID, dwStyle | WS_TABSTOP, 2,
                           static_cast<short>((nID - FIRST + 1) * 11), 80, 10);
        }
        InitModalIndirect(m_template.Get(), pParentWnd);
        SetOption(OptionOkButton | OptionBarButtonSize | (bPopup ? OptionPopup | OptionDrag : 0));
    }

protected:
    BOOL OnInitDialog() override {
        constexpr int ICON = 39;
        CnDialog::OnInitDialog();
        m_edit.Attach(FIRST, this, SipOptionMode0);
        m_angle.Attach(12, this, CAngleEdit::WHOLE_SECONDS, SipOptionMode1);
        m_combo.Attach(13, this, SipOptionMode2);
        m_listBox.SubclassDlgItem(14, this);
        m_selectList.SubclassDlgItem(15, this);
        m_tree.SubclassDlgItem(16, this);
        m_spin.SubclassDlgItem(17, this);
        m_button.Attach(18, this, TVGetCommonIcon(ICON), 7);
        m_info.SubclassDlgItem(19, this);
        m_list.SubclassDlgItem(LAST, this);
        m_info.SetOption(CInfoStatic::OptionIcon);
        m_angle.SetAngle(1.0);
        m_spin.SetBuddy(&m_edit);
        for (const wchar_t* psz : {L"P1", L"P2", L"P3"}) {
            m_combo.AddString(psz);
            m_listBox.AddString(psz);
            m_selectList.InsertItem(0, psz);
            m_list.InsertItem(0, psz);
            m_tree.InsertItem(psz, m_tree.InsertItem(psz));
        }
        return TRUE;
    }

private:
    static constexpr std::pair<LPCTSTR, DWORD> CONTROLS[] = {
        {WC_EDIT, 0},
        {WC_EDIT, 0},
        {WC_COMBOBOX, CBS_DROPDOWN},
        {WC_LISTBOX, 0},
        {WC_LISTVIEW, LVS_REPORT},
        {WC_TREEVIEW, TVS_HASBUTTONS | TVS_EDITLABELS},
        {UPDOWN_CLASS, 0},
        {WC_BUTTON, BS_OWNERDRAW},
        {WC_STATIC, 0},
        {WC_LISTVIEW, 0},
    };

    DialogTemplate m_template;
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

} // namespace fx
