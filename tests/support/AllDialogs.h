// Each dialog of the library with something in it, for what is tried with all of them.
#pragma once

#include "support/AllControls.h"
#include "testkit/Drive.h"

#include "controls/nPropertyPage.h"
#include "controls/nPropertySheet.h"
#include "dialogs/BrowseFolderDlg.h"
#include "dialogs/ButtonMenuDlg.h"
#include "dialogs/FileSelectDlg.h"
#include "dialogs/InputDlg.h"
#include "dialogs/ResMsgBox.h"
#include "dialogs/ResultDlg.h"
#include "dialogs/SelMemberDlg.h"

#include <ostream>

namespace fx {

struct AnyDialog {
    const char* pszName;
    INT_PTR (*open)(CWnd* pOwner); ///< Returns its result when it is closed.
    INT_PTR nCancel = IDCANCEL;
    bool bOkWorks = false; ///< Whether OK does something that may fail.
};

/// In messages of tests.
inline void PrintTo(const AnyDialog& dialog, std::ostream* os) {
    *os << dialog.pszName;
}

/// What the file dialogs show, on an empty drive.
inline void FillDrive(Drive& drive) {
    for (const wchar_t* psz : {L"\\作業", L"\\作業\\A", L"\\作業\\A\\B", L"\\測量"})
        drive.MakeFolder(psz);
    for (const wchar_t* psz : {L"1", L"2", L"3", L"4", L"5", L"6", L"7", L"8", L"測点"}) {
        const CString file = CString(L"\\作業\\") + psz + L".csv";
        drive.MakeFile(file, 123456);
        CFileStatus status;
        CFile::GetStatus(file, status);
        status.m_mtime = CTime(2026, 4, 1, 9, 30, 0); // the list shows it
        CFile::SetStatus(file, status);
    }
}

template <int MODE>
INT_PTR SelectFile(CWnd* pOwner) {
    CFileSelectDlg dlg(pOwner);
    dlg.SetMode(MODE);
    dlg.SetCurrentName(L"P1");
    dlg.SetSubName(L"csv");
    dlg.SetFileFolder(L"\\作業");
    const INT_PTR nResult = dlg.DoModal();
    dlg.GetFilePath();
    return nResult;
}

inline INT_PTR SelectMembers(CWnd* pOwner) {
    struct Members : CSelMemberDlg {
        using CSelMemberDlg::CSelMemberDlg;
        ~Members() override {
            FlashSelMemberList(m_listAvailable);
            FlashSelMemberList(m_listCurrent);
        }
    } dlg(L"書き出す項目", pOwner);
    for (CPtrList* const pList : {&dlg.m_listAvailable, &dlg.m_listCurrent})
        for (unsigned long i = 0; i < 5; ++i)
            CSelMemberDlg::AddSelMemberItemToList(*pList, L"測点", i);
    return dlg.DoModal();
}

inline INT_PTR OpenMenu(CWnd* pOwner) {
    constexpr int ENTRIES = 8; // as many as the device's screen has room for
    CUIntArray ids;
    for (UINT i = 0; i < ENTRIES; ++i)
        ids.Add(1513 + i % 3);
    return CButtonMenuDlg(1503, &ids, pOwner).DoModal();
}

inline INT_PTR SelectFolder(CWnd* pOwner) {
    return CBrowseFolderDlg(L"\\作業", pOwner).DoModal();
}

template <class... Texts>
INT_PTR ShowResult(CWnd* pOwner, Texts... texts) {
    CResultDlg dlg(texts..., pOwner);
    for (int i = 0; i < 3; ++i)
        dlg.AddString(L"N  -35300.123");
    return dlg.DoModal();
}

inline INT_PTR ShowLongResult(CWnd* pOwner) {
    return ShowResult(pOwner, 1500, 1501); // identifiers make a full-screen dialog
}

inline INT_PTR AskQuestion(CWnd*) {
    return CResMsgBox().WarningMsgBox(L"\\作業\\測点.csvは既に存在します。\n上書きしますか？");
}

/// A page with an entry field, if it has one, which grows with the screen.
struct EntryPage : CnPropertyPage {
    using CnPropertyPage::CnPropertyPage;

protected:
    BOOL OnInitDialog() override {
        Anchor(100, 0, 0, 100, 0);
        return CnPropertyPage::OnInitDialog();
    }
    void DoDataExchange(CDataExchange* pDX) override {
        CnPropertyPage::DoDataExchange(pDX);
        if (GetDlgItem(100) != nullptr)
            DDX_Text(pDX, 100, m_strText);
    }

private:
    CString m_strText = L"P1";
};

/// A sheet with the pages 201 to 203.
template <class SheetClass, class PageClass>
struct ThreePages : SheetClass {
    explicit ThreePages(CWnd* pOwner) : SheetClass(L"設定", pOwner, 0) {
        for (PageClass& page : m_pages)
            this->AddPage(&page);
    }
    ~ThreePages() override { this->DestroyWindow(); } // before its pages

private:
    PageClass m_pages[3] = {PageClass(201), PageClass(202), PageClass(203)};
};

inline INT_PTR OpenSheet(CWnd* pOwner) {
    ThreePages<CnPropertySheet, EntryPage> sheet(pOwner);
    sheet.SetOption(CnPropertySheet::OptionOkButton | CnPropertySheet::OptionCommandBar);
    return sheet.DoModal();
}

constexpr AnyDialog DIALOGS[] = {
    {"FileSave", SelectFile<CFileSelectDlg::ModeSave>},
    {"Folder", SelectFolder, IDCANCEL, true},
    {"Members", SelectMembers, IDCANCEL, true},
    {"Menu", OpenMenu, IDCANCEL, true},
    {"Input", [](CWnd* p) { return CInputDlg(L"新しい点の点名を入れてください", L"点の登録", p).DoModal(); }},
    {"Result", [](CWnd* p) { return ShowResult(p, L"3件の結果があります", L"結果"); }},
    {"ResultFullScreen", ShowLongResult},
    {"Question", AskQuestion, IDNO},
    {"Sheet", OpenSheet},
};

/// The same dialog with other titles and names.
constexpr AnyDialog FILE_MODES[] = {
    {"FileOpen", SelectFile<CFileSelectDlg::ModeOpen>},
    {"FileNew", SelectFile<CFileSelectDlg::ModeNew>},
};

constexpr AnyDialog CONTROLS[] = {
    {"ControlsFullScreen", [](CWnd* p) { return AllControls(p, false).DoModal(); }},
    {"ControlsPopup", [](CWnd* p) { return AllControls(p, true).DoModal(); }},
};

/// Asks a dialog to cancel.
inline void Cancel(HWND hDialog) {
    if (auto* const pSheet = dynamic_cast<CPropertySheet*>(CWnd::FromHandlePermanent(hDialog)))
        pSheet->EndDialog(IDCANCEL); // one of the library does not know Cancel
    else
        ::PostMessage(hDialog, WM_COMMAND, IDCANCEL, 0);
}

} // namespace fx
