// PointBrowser.cpp : start and end of the program
//

#include "stdafx.h"
#include "PointBrowser.h"
#include "BrowserDlg.h"

BEGIN_MESSAGE_MAP(CPointBrowserApp, CWinApp)
	//{{AFX_MSG_MAP(CPointBrowserApp)
	//}}AFX_MSG_MAP
	ON_COMMAND(ID_HELP, CWinApp::OnHelp)
END_MESSAGE_MAP()

CPointBrowserApp theApp;

BOOL CPointBrowserApp::InitInstance()
{
	if (!AfxOleInit())
	{
		AfxMessageBox(_T("COM"));
		return FALSE;
	}
	AfxEnableControlContainer();
#ifdef _AFXDLL
	Enable3dControls();
#else
	Enable3dControlsStatic();
#endif
	InitCommonControls();

	CCommandLineInfo cmdInfo;
	ParseCommandLine(cmdInfo);

	CBrowserDlg dlg;
	dlg.m_strPath = cmdInfo.m_strFileName;
	m_pMainWnd = &dlg;
	if (dlg.DoModal() == IDOK)
		TRACE(_T("%s: %s\n"), (LPCTSTR) m_pszAppName, dlg.m_strPath);
	return FALSE;
}
