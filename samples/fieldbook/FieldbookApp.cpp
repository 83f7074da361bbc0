// The application object: finds the points file and runs the main dialog.
#include <afxwin.h>

#include "MainDlg.h"
#include "Tesuvo.h"

namespace {

constexpr wchar_t TITLE[] = L"野帳";
constexpr wchar_t DEFAULT_FILE[] = L"points.csv";

class CFieldbookApp : public CWinApp {
public:
    CFieldbookApp() : CWinApp(TITLE) {}
    BOOL InitInstance() override;

private:
    CString PointsPath() const;
};

CFieldbookApp theApp;

BOOL CFieldbookApp::InitInstance() {
    SetRegistryKey(L"Fieldkit"); // the settings are kept there
    CMainDlg dialog(PointsPath());
    m_pMainWnd = &dialog;
    dialog.DoModal();
    return FALSE; // the dialog was the whole program: no message loop
}

/// The file of the command line, else the one beside the program.
CString CFieldbookApp::PointsPath() const {
    CString strPath = m_lpCmdLine;
    strPath.Trim(L" \"");
    if (!strPath.IsEmpty())
        return strPath;
    wchar_t szProgram[MAX_PATH] = {};
    ::GetModuleFileName(nullptr, szProgram, MAX_PATH);
    CString strFolder;
    TVResolveFilePath(szProgram, &strFolder, nullptr, nullptr);
    return strFolder + L"\\" + DEFAULT_FILE;
}

} // namespace
