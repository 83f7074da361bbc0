// RangeSketch.cpp : start and end of the program
//

#include "stdafx.h"
#include "RangeSketch.h"
#include "SketchWnd.h"
#include "SketchDlg.h"

BEGIN_MESSAGE_MAP(CRangeSketchApp, CWinApp)
	ON_COMMAND(ID_APP_ABOUT, OnAppAbout)
	ON_COMMAND(ID_HELP, CWinApp::OnHelp)
END_MESSAGE_MAP()

CRangeSketchApp theApp;

BOOL CRangeSketchApp::InitInstance()
{
	AfxEnableControlContainer();
	if (!CWinApp::InitInstance())
		return FALSE;
	SetRegistryKey(_T("Levelling Tools"));
	CSketchWnd::RegisterWindowClass(m_hInstance);

	CSketchDlg* pDlg = new CSketchDlg;
	m_pMainWnd = pDlg;
	// modeless: the application's own loop runs, and idle time with it
	if (!pDlg->Create(IDD_SKETCH))
	{
		delete pDlg;
		m_pMainWnd = NULL;
		return FALSE;
	}
	pDlg->ShowWindow(m_nCmdShow);
	pDlg->UpdateWindow();
	return TRUE;
}

BOOL CRangeSketchApp::OnIdle(LONG lCount)
{
	BOOL bMore = CWinApp::OnIdle(lCount);
	if (lCount == 0 && m_pMainWnd != NULL && m_pMainWnd->IsKindOf(RUNTIME_CLASS(CSketchDlg)))
		((CSketchDlg*)m_pMainWnd)->UpdateButtons();
	return bMore;
}

void CRangeSketchApp::OnAppAbout()
{
	CDialog dlg(IDD_ABOUTBOX);
	dlg.DoModal();
}
