// Everything that opens a window, under random input. A crash or a hang ends the program and names
// seed and event; what is left open afterwards fails the test.
//
// SHAKE_EVENTS, SHAKE_SEED: see tools/shake.sh.
#include "Shake.h"

#include "support/AllControls.h"
#include "support/TestDrive.h"

#include "afxdlgs.h"
#include "controls/nPropertyPage.h"
#include "controls/nPropertySheet.h"
#include "dialogs/BrowseFolderDlg.h"
#include "dialogs/ButtonMenuDlg.h"
#include "dialogs/FileSelectDlg.h"
#include "dialogs/InputDlg.h"
#include "dialogs/ResMsgBox.h"
#include "dialogs/ResultDlg.h"
#include "dialogs/SelMemberDlg.h"

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
    Shake([](CWnd* pOwner) { fx::AllControls(pOwner, false).DoModal(); });
}

TEST(Shake, ControlsPopup) {
    Shake([](CWnd* pOwner) { fx::AllControls(pOwner, true).DoModal(); });
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
