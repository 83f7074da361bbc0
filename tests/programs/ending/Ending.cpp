// A program that ends in the way that its argument names. Whatever the way, what it has written to its
// settings by then is there afterwards, and its process is gone.
#include "afxcmn.h"
#include "afxdlgs.h"
#include "afxext.h"

#include "testkit/DialogTemplate.h"

#include <cstdlib>

using namespace testkit;

namespace {

constexpr int kExitCode = 3;

/// Acts as soon as it is open, if it is the main one.
class CEndingDlg : public CDialog {
public:
    explicit CEndingDlg(BOOL bMain) : m_bMain(bMain) {}

    BOOL OnInitDialog() override;

private:
    void Act(const CString& strWay);

    BOOL m_bMain;
    CListCtrl m_list;
    CFont m_font;
};

// Static objects of every kind. They go when the framework has ended its part, and those with windows have
// them still.
DialogTemplate g_template;
CString g_strText;
CFont g_font;
CImageList g_images;
CMenu g_menu;
CStringArray g_texts;
CEndingDlg g_dialog(FALSE);
CWnd g_window;
CToolTipCtrl g_tips;
CMemFile g_file;
CPropertySheet g_sheet;
HMODULE g_hLibrary;

void FillStatics() {
    g_strText = CString(L"text").MakeUpper();
    g_font.CreatePointFont(90, L"System");
    g_images.Create(16, 16, ILC_COLOR24, 1, 1);
    g_menu.CreatePopupMenu();
    g_texts.Add(g_strText);
    g_window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPED, CRect(0, 0, 9, 9), nullptr, 0);
    g_dialog.CreateIndirect(g_template.Get(), &g_window);
    g_tips.Create(&g_window);
    g_file.Write("x", 1);
    g_hLibrary = ::LoadLibrary(L"Fieldkit.dll"); // an extension module, which nothing here is linked with
}

UINT RunForEver(LPVOID) {
    for (;;)
        CString(L"busy").MakeUpper();
}

/// A thread with a window and a loop of its own, which nobody ends.
class CWindowThread : public CWinThread {
    DECLARE_DYNCREATE(CWindowThread)
public:
    BOOL InitInstance() override {
        m_pMainWnd = &m_window;
        return m_window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(), nullptr, 0);
    }

private:
    CWnd m_window;
};
IMPLEMENT_DYNCREATE(CWindowThread, CWinThread)

BOOL CEndingDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    m_font.CreatePointFont(90, L"System");
    m_list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 20, 20), this, 5);
    m_list.SetFont(&m_font);
    if (m_bMain)
        Act(AfxGetApp()->m_lpCmdLine);
    return TRUE;
}

void CEndingDlg::Act(const CString& strWay) {
    AfxGetApp()->WriteProfileString(L"Ways", strWay, L"done");
    if (strWay == L"exit-process")
        ::ExitProcess(kExitCode);
    if (strWay == L"exit")
        std::exit(kExitCode);
    if (strWay == L"thread")
        AfxBeginThread(RunForEver, nullptr);
    if (strWay == L"window-thread")
        AfxBeginThread(RUNTIME_CLASS(CWindowThread));
    if (strWay == L"unload")
        ::FreeLibrary(g_hLibrary);
    if (strWay == L"quit")
        AfxPostQuitMessage(0);
    else if (strWay == L"destroy")
        DestroyWindow();
    else if (strWay == L"owner")
        g_window.DestroyWindow();
    else
        EndDialog(IDOK);
}

class CEndingApp : public CWinApp {
public:
    BOOL InitInstance() override {
        SetRegistryKey(L"Fieldkit tests");
        FillStatics();
        CEndingDlg dialog(TRUE);
        dialog.InitModalIndirect(g_template.Get(), &g_window);
        m_pMainWnd = &dialog;
        dialog.DoModal();
        return FALSE;
    }
    int ExitInstance() override {
        CWinApp::ExitInstance();
        return kExitCode;
    }
} theApp;

} // namespace
