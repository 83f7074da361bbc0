// LevelNote.cpp : start and end of the program
//

#include "stdafx.h"
#include "LevelNote.h"
#include "LevelNoteDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

/////////////////////////////////////////////////////////////////////////////
// CLevelNoteApp

BEGIN_MESSAGE_MAP(CLevelNoteApp, CWinApp)
	//{{AFX_MSG_MAP(CLevelNoteApp)
	//}}AFX_MSG
	ON_COMMAND(ID_HELP, CWinApp::OnHelp)
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// CLevelNoteApp construction

CLevelNoteApp::CLevelNoteApp()
{
}

/////////////////////////////////////////////////////////////////////////////
// The application object

CLevelNoteApp theApp;

/////////////////////////////////////////////////////////////////////////////
// CLevelNoteApp initialization

BOOL CLevelNoteApp::InitInstance()
{
	AfxEnableControlContainer();

#ifdef _AFXDLL
	Enable3dControls();
#else
	Enable3dControlsStatic();
#endif

	SetRegistryKey(_T("Levelling Tools"));

	CLevelNoteDlg dlg;
	m_pMainWnd = &dlg;
	int nResponse = dlg.DoModal();
	if (nResponse == IDOK)
	{
		TRACE0("LevelNote: closed with OK\n");
	}
	else if (nResponse == IDCANCEL)
	{
		TRACE1("LevelNote: closed with Cancel, %d stations\n", dlg.GetStationCount());
	}

	// The dialog was the whole program: no message loop after it.
	return FALSE;
}
