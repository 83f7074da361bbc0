// Everything that opens a window, under random input. A crash or a hang ends the program and names
// seed and event; what is left open afterwards fails the test.
//
// SHAKE_EVENTS, SHAKE_SEED: see tools/shake.sh.
#include "Shake.h"

#include "support/DialogTemplate.h"

#include "../dialogs/TestDrive.h"
#include "afxdlgs.h"
#include "controls/IconButton.h"
#include "controls/InfoStatic.h"
#include "controls/SelectListCtrl.h"
#include "controls/nComboBox.h"
#include "controls/nDialog.h"
#include "controls/nListBox.h"
#include "controls/nPropertyPage.h"
#include "controls/nPropertySheet.h"
#include "controls/nSpinButtonCtrl.h"
#include "controls/nTreeCtrl.h"
#include "dialogs/BrowseFolderDlg.h"
#include "dialogs/ButtonMenuDlg.h"
#include "dialogs/FileSelectDlg.h"
#include "dialogs/InputDlg.h"
#include "dialogs/ResMsgBox.h"
#include "dialogs/ResultDlg.h"
#include "dialogs/SelMemberDlg.h"
#include "survey/AngleEdit.h"

#include <Tesuvo.h>

namespace {

/// With the soft input panel.
void Shake(const std::function<void(CWnd*)>& open) {
    shake::Shake(open, [](int nMode) { nMode == 3 ? TVCloseSIP() : TVShowSIP(nMode); });
}

/// A drive with a few files and folders; nothing else can be reached from it.
class Disk {
public:
    Disk() {
        for (const wchar_t* psz : {L"\\a", L"\\a\\b", L"\\a\\b\\c", L"\\測量"})
            m_drive.MakeFolder(psz);
        for (const wchar_t* psz : {L"\\1.csv", L"\\2.csv", L"\\a\\点.csv", L"\\x.txt"})
            m_drive.MakeFile(psz);
    }

private:
    TestDrive m_drive;
};

/// A dialog with one of each control.
class Controls : public CnDialog {
public:
    Controls(CWnd* pParentWnd, bool bPopup) : CnDialog(0, pParentWnd), m_template(120, 120) {
        Add(WC_EDIT, 11);
        Add(WC_EDIT, 12);
        Add(WC_COMBOBOX, 13, CBS_DROPDOWN);
        Add(WC_LISTBOX, 14);
        Add(WC_LISTVIEW, 15, LVS_REPORT);
        Add(WC_TREEVIEW, 16, TVS_HASBUTTONS | TVS_EDITLABELS);
        Add(UPDOWN_CLASS, 17);
        Add(WC_BUTTON, 18, BS_OWNERDRAW);
        Add(WC_STATIC, 19);
        Add(WC_LISTVIEW, 20);
        InitModalIndirect(m_template.Get(), pParentWnd);
        SetOption(OptionOkButton | OptionBarButtonSize | (bPopup ? OptionPopup | OptionDrag : 0));
    }

protected:
    BOOL OnInitDialog() override {
        CnDialog::OnInitDialog();
        m_edit.Attach(11, this, SipOptionMode0);
        m_angle.Attach(12, this, CAngleEdit::WHOLE_SECONDS, SipOptionMode1);
        m_combo.Attach(13, this, SipOptionMode2);
        m_listBox.SubclassDlgItem(14, this);
        m_selectList.SubclassDlgItem(15, this);
        m_tree.SubclassDlgItem(16, this);
        m_spin.SubclassDlgItem(17, this);
        m_button.Attach(18, this, ::LoadIcon(nullptr, IDI_INFORMATION), 7);
        m_info.SubclassDlgItem(19, this);
        m_list.SubclassDlgItem(20, this);
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
    void Add(LPCTSTR pszClass, int nID, DWORD dwStyle = 0) {
        m_template.Add(pszClass, L"&text", nID, dwStyle | WS_TABSTOP, 2, static_cast<short>(nID * 11 - 110),
                       80, 10);
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

template <class SheetClass, class PageClass, int COUNT>
class Sheet : public SheetClass {
public:
    explicit Sheet(CWnd* pParentWnd) : SheetClass(L"設定", pParentWnd, 0) {
        for (int i = 0; i < COUNT; ++i) {
            m_pages.push_back(std::make_unique<PageClass>(300 + i % 3));
            this->AddPage(m_pages.back().get());
        }
    }
    ~Sheet() override { this->DestroyWindow(); } // before its pages

private:
    std::vector<std::unique_ptr<PageClass>> m_pages;
};

TEST(Shake, FileSelect) {
    const Disk disk;
    int nMode = 0;
    Shake([&](CWnd* pOwner) {
        CFileSelectDlg dlg(pOwner);
        dlg.SetMode(nMode++ % 3);
        dlg.SetSubName(L"csv");
        dlg.SetFileFolder(L"\\");
        dlg.DoModal();
        dlg.GetFilePath();
    });
}

TEST(Shake, BrowseFolder) {
    const Disk disk;
    Shake([](CWnd* pOwner) { CBrowseFolderDlg(L"\\a\\b", pOwner).DoModal(); });
}

TEST(Shake, SelMember) {
    Shake([](CWnd* pOwner) {
        CSelMemberDlg dlg(L"点", pOwner);
        for (unsigned long i = 0; i < 5; ++i) {
            CSelMemberDlg::AddSelMemberItemToList(dlg.m_listAvailable, L"P", i);
            CSelMemberDlg::AddSelMemberItemToList(dlg.m_listCurrent, L"Q", i);
        }
        dlg.DoModal();
        CSelMemberDlg::FlashSelMemberList(dlg.m_listAvailable);
        CSelMemberDlg::FlashSelMemberList(dlg.m_listCurrent);
    });
}

TEST(Shake, ButtonMenu) {
    Shake([](CWnd* pOwner) {
        CUIntArray entries;
        for (UINT nID = 40001; nID <= 40003; ++nID)
            entries.Add(nID);
        CButtonMenuDlg(40001, &entries, pOwner).DoModal();
    });
}

TEST(Shake, Input) {
    Shake([](CWnd* pOwner) { CInputDlg(L"名前", L"点", pOwner).DoModal(); });
}

TEST(Shake, Result) {
    Shake([](CWnd* pOwner) {
        CResultDlg dlg(L"結果", L"点", pOwner);
        for (int i = 0; i < 40; ++i)
            dlg.AddString(L"12.345");
        dlg.DoModal();
    });
}

TEST(Shake, MessageBoxes) {
    Shake([](CWnd*) {
        CResMsgBox().WarningMsgBox(L"?");
        AfxMessageBox(L"!");
    });
}

TEST(Shake, ControlsFullScreen) {
    Shake([](CWnd* pOwner) { Controls(pOwner, false).DoModal(); });
}

TEST(Shake, ControlsPopup) {
    Shake([](CWnd* pOwner) { Controls(pOwner, true).DoModal(); });
}

TEST(Shake, SheetOfTwo) {
    Shake([](CWnd* pOwner) { Sheet<CPropertySheet, CPropertyPage, 2>(pOwner).DoModal(); });
}

TEST(Shake, SheetOfFour) {
    Shake([](CWnd* pOwner) { Sheet<CnPropertySheet, CnPropertyPage, 4>(pOwner).DoModal(); });
}

TEST(Shake, Wizard) {
    Shake([](CWnd* pOwner) {
        Sheet<CPropertySheet, CPropertyPage, 3> sheet(pOwner);
        sheet.SetWizardMode();
        sheet.DoModal();
    });
}

} // namespace
