// The system's dialogs: events reach the object, answers are taken apart.
#include "support/TestApp.h"

#include "afxdlgs.h"

using namespace testkit;

namespace {

TEST(CommonDialogs, ColourIsTakenWithOK) {
    struct Probe : CColorDialog {
        using CColorDialog::CColorDialog;
        BOOL OnInitDialog() override {
            PostMessage(WM_COMMAND, IDOK);
            return CColorDialog::OnInitDialog();
        }
    };
    Frame frame;
    Probe dialog(RGB(255, 0, 0), 0, &frame);
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(RGB(255, 0, 0), dialog.GetColor());
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

TEST(CommonDialogs, FileDialogTellsThatItIsReadyAndWhereItIs) {
    struct Probe : CFileDialog {
        using CFileDialog::CFileDialog;
        CString m_strFolder;
        void OnInitDone() override {
            m_strFolder = GetFolderPath();
            const HWND hDialog = ::GetParent(m_hWnd);
            SetControlText(IDOK, L"take");
            EXPECT_EQ(L"take", TextOf(::GetDlgItem(hDialog, IDOK)));
            HideControl(IDCANCEL);
            EXPECT_FALSE(::IsWindowVisible(::GetDlgItem(hDialog, IDCANCEL)));
            ::PostMessage(hDialog, WM_COMMAND, IDCANCEL, 0);
        }
    };
    Frame frame;
    Probe dialog(TRUE, L"txt", nullptr, OFN_HIDEREADONLY, L"Text|*.txt|All|*.*||", &frame);
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    TCHAR szFolder[MAX_PATH] = L"";
    ::GetCurrentDirectory(MAX_PATH, szFolder);
    EXPECT_EQ(szFolder, dialog.m_strFolder);
}

TEST(CommonDialogs, FontAndSearchBeginWithWhatTheyAreGiven) {
    LOGFONT font = {};
    font.lfHeight = -20;
    CFontDialog fonts(&font, CF_SCREENFONTS);
    EXPECT_EQ(DWORD{CF_SCREENFONTS | CF_ENABLEHOOK | CF_INITTOLOGFONTSTRUCT}, fonts.m_cf.Flags);
    font = {};
    fonts.GetCurrentFont(&font);
    EXPECT_EQ(-20, font.lfHeight);

    static int s_nDeleted = 0;
    struct Probe : CFindReplaceDialog {
        ~Probe() override { ++s_nDeleted; }
    };
    Frame frame;
    auto* const pFind = new Probe;
    ASSERT_TRUE(pFind->Create(FALSE, L"P1", L"P2", FR_DOWN, &frame));
    EXPECT_EQ(L"P1", pFind->GetFindString());
    EXPECT_EQ(L"P2", pFind->GetReplaceString());
    EXPECT_EQ(pFind, CFindReplaceDialog::GetNotifier(reinterpret_cast<LPARAM>(&pFind->m_fr)));
    EXPECT_EQ(pFind, CWnd::FromHandlePermanent(*pFind));
    pFind->DestroyWindow();
    EXPECT_EQ(1, s_nDeleted);
}

TEST(CommonDialogs, AnswersAreTakenApart) {
    TCHAR one[] = L"C:\\a.b\\plan.old.txt\0";
    TCHAR root[] = L"C:\\\0x\0y\0";
    const Rows<LPTSTR, DWORD, LPCTSTR> rows = {{one, 0, L"C:\\a.b\\plan.old.txt;"},
                                               {one, OFN_ALLOWMULTISELECT, L"C:\\a.b\\plan.old.txt;"},
                                               {root, OFN_ALLOWMULTISELECT, L"C:\\x;C:\\y;"}};
    for (const auto& [pszFile, dwFlags, pszPaths] : rows) {
        CFileDialog dialog(TRUE, nullptr, nullptr, dwFlags);
        dialog.m_ofn.lpstrFile = pszFile;
        CString strPaths;
        for (POSITION pos = dialog.GetStartPosition(); pos != nullptr;)
            strPaths += dialog.GetNextPathName(pos) + L";";
        EXPECT_EQ(pszPaths, strPaths);
    }
    CFileDialog dialog(TRUE);
    dialog.m_ofn.lpstrFile = one;
    EXPECT_EQ(L"plan.old", dialog.GetFileTitle());
    EXPECT_EQ(L"txt", dialog.GetFileExt());
    EXPECT_EQ(L"C:\\a.b", dialog.GetFolderPath());
}

} // namespace
