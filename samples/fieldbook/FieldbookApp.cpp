// The application object: finds its files and runs the main menu.
#include <afxwin.h>

#include "points/FilePath.h"
#include "screens/MainMenu.h"
#include "screens/Resource.h"
#include "screens/SecondTap.h"
#include "screens/SettingsSheet.h"
#include "screens/Text.h"

#include <cstdlib>

namespace {

constexpr wchar_t kTitle[] = L"野帳";
constexpr wchar_t kPointsFile[] = L"points.csv";
constexpr wchar_t kHistoryFile[] = L"history.dat";

/// A file beside the program.
CString OwnFile(const wchar_t* pszName) {
    wchar_t szProgram[MAX_PATH] = {};
    ::GetModuleFileName(nullptr, szProgram, MAX_PATH);
    return PathIn(FolderOf(szProgram), pszName);
}

class CFieldbookApp : public CWinApp {
public:
    CFieldbookApp() : CWinApp(kTitle) {}
    BOOL InitInstance() override;

private:
    CString TakeLanguage();
};

CFieldbookApp theApp;

BOOL CFieldbookApp::InitInstance() {
    SetRegistryKey(L"Fieldkit"); // the settings are kept there
    const CString strFile = TakeLanguage();
    const CSecondTapFilter filter;
    const CString strPath = strFile.IsEmpty() ? OwnFile(kPointsFile) : strFile;
    CJob job(OwnFile(kHistoryFile));
    job.history.Load();
    job.settings = LoadSettings(*this);
    if (job.settings.strFolder.IsEmpty())
        job.settings.strFolder = FolderOf(strPath);
    ApplySettings(job.settings);
    CMainMenu menu(job, strPath);
    m_pMainWnd = &menu;
    menu.DoModal();
    job.history.Save(); // if that fails, the next day begins without it
    return FALSE;       // the menu was the whole program: no message loop
}

/// "/en" at the beginning of the command line makes the program English. Otherwise it is Japanese,
/// whatever the system's language.
///
/// @return the file behind it, else the one of the whole line; empty for none
CString CFieldbookApp::TakeLanguage() {
    const CString strEnglish = L"/en";
    CString strFile = m_lpCmdLine;
    strFile.Trim();
    const bool bEnglish = strFile.SpanExcluding(L" ").CompareNoCase(strEnglish) == 0;
    AfxSetResourceLanguage(MAKELANGID(bEnglish ? LANG_ENGLISH : LANG_JAPANESE, SUBLANG_DEFAULT));
    if (bEnglish)
        strFile.Delete(0, strEnglish.GetLength());
    // The name of the program, which is the caption of its message boxes. The settings keep theirs.
    std::free(const_cast<LPTSTR>(m_pszAppName));
    m_pszAppName = ::_tcsdup(Text(IDS_TITLE));
    return strFile.Trim(L" \"");
}

} // namespace
