// The application object: finds its files and runs the main menu.
#include <afxwin.h>

#include "points/FilePath.h"
#include "screens/MainMenu.h"
#include "screens/SecondTap.h"
#include "screens/SettingsSheet.h"

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
    CString PointsPath() const;
};

CFieldbookApp theApp;

BOOL CFieldbookApp::InitInstance() {
    SetRegistryKey(L"Fieldkit"); // the settings are kept there
    const CSecondTapFilter filter;
    const CString strPath = PointsPath();
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

/// The file of the command line, else the one beside the program.
CString CFieldbookApp::PointsPath() const {
    CString strPath = m_lpCmdLine;
    strPath.Trim(L" \"");
    return strPath.IsEmpty() ? OwnFile(kPointsFile) : strPath;
}

} // namespace
