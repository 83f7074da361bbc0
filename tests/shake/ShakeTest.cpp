// Everything that opens a window, under random input. A crash or a hang ends the program and names
// seed and event; what is left open afterwards fails the test.
//
// SHAKE_EVENTS, SHAKE_SEED: see tools/shake.sh.
#include "support/TestApp.h"

#include "support/AllControls.h"
#include "testkit/Drive.h"
#include "testkit/Shake.h"

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

using namespace testkit;

namespace {

/// A drive with a few files and folders; nothing else can be reached from it.
struct Disk {
    Disk() {
        for (const wchar_t* psz : {L"\\a", L"\\a\\b", L"\\a\\b\\c", L"\\測量"})
            m_drive.MakeFolder(psz);
        for (const wchar_t* psz : {L"\\1.csv", L"\\2.csv", L"\\a\\点.csv", L"\\x.txt"})
            m_drive.MakeFile(psz);
    }

private:
    Drive m_drive;
};

template <class SheetClass, class PageClass, int COUNT>
struct Sheet : SheetClass {
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

void SelectFile(CWnd* pOwner) {
    static int s_nMode = 0;
    CFileSelectDlg dlg(pOwner);
    dlg.SetMode(s_nMode++ % 3);
    dlg.SetSubName(L"csv");
    dlg.SetFileFolder(L"\\");
    dlg.DoModal();
    dlg.GetFilePath();
}

void SelectMembers(CWnd* pOwner) {
    CSelMemberDlg dlg(L"点", pOwner);
    for (CPtrList* pList : {&dlg.m_listAvailable, &dlg.m_listCurrent})
        for (unsigned long i = 0; i < 5; ++i)
            CSelMemberDlg::AddSelMemberItemToList(*pList, L"P", i);
    dlg.DoModal();
    for (CPtrList* pList : {&dlg.m_listAvailable, &dlg.m_listCurrent})
        CSelMemberDlg::FlashSelMemberList(*pList);
}

void ChooseFromMenu(CWnd* pOwner) {
    CUIntArray entries;
    for (UINT nID = 40001; nID <= 40003; ++nID)
        entries.Add(nID);
    CButtonMenuDlg(40001, &entries, pOwner).DoModal();
}

void ShowResult(CWnd* pOwner) {
    CResultDlg dlg(L"結果", L"点", pOwner);
    for (int i = 0; i < 40; ++i)
        dlg.AddString(L"12.345");
    dlg.DoModal();
}

void ShowMessages(CWnd*) {
    CResMsgBox().WarningMsgBox(L"?");
    AfxMessageBox(L"!");
}

void RunWizard(CWnd* pOwner) {
    Sheet<CPropertySheet, CPropertyPage, 3> sheet(pOwner);
    sheet.SetWizardMode();
    sheet.DoModal();
}

struct Window {
    const char* pszName;
    void (*open)(CWnd* pOwner);
};

const Window WINDOWS[] = {
    {"FileSelect", SelectFile},
    {"BrowseFolder", [](CWnd* p) { CBrowseFolderDlg(L"\\a\\b", p).DoModal(); }},
    {"SelMember", SelectMembers},
    {"ButtonMenu", ChooseFromMenu},
    {"Input", [](CWnd* p) { CInputDlg(L"名前", L"点", p).DoModal(); }},
    {"Result", ShowResult},
    {"MessageBoxes", ShowMessages},
    {"ControlsFullScreen", [](CWnd* p) { fx::AllControls(p, false).DoModal(); }},
    {"ControlsPopup", [](CWnd* p) { fx::AllControls(p, true).DoModal(); }},
    {"SheetOfTwo", [](CWnd* p) { Sheet<CPropertySheet, CPropertyPage, 2>(p).DoModal(); }},
    {"SheetOfFour", [](CWnd* p) { Sheet<CnPropertySheet, CnPropertyPage, 4>(p).DoModal(); }},
    {"Wizard", RunWizard},
};

class Shake : public testing::TestWithParam<Window> {};

TEST_P(Shake, Of) {
    const Disk disk;
    testkit::ShakeOptions options;
    options.pszName = GetParam().pszName;
    testkit::Shake(GetParam().open, options);
}

INSTANTIATE_TEST_SUITE_P(All, Shake, testing::ValuesIn(WINDOWS),
                         [](const auto& test) { return std::string(test.param.pszName); });

} // namespace
