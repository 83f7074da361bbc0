// StationSetup.cpp : start and end of the program, the profile
//

#include "stdafx.h"
#include "StationSetup.h"
#include "SetupSheet.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

static const TCHAR szInstrument[] = _T("Instrument");
static const TCHAR szOutput[] = _T("Output");

// SETTINGS

SETTINGS::SETTINGS()
	: strModel(_T("TS-2")), nPrism(0), nConstant(0), nPressure(1013), dwColumns(0x0F), nSeparator(0)
{
}

void SETTINGS::Load()
{
	CWinApp* pApp = AfxGetApp();
	strModel = pApp->GetProfileString(szInstrument, _T("Model"), strModel);
	strSerial = pApp->GetProfileString(szInstrument, _T("Serial"));
	nPrism = pApp->GetProfileInt(szInstrument, _T("Prism"), nPrism);
	nConstant = (short)pApp->GetProfileInt(szInstrument, _T("Constant"), nConstant);
	nPressure = max(500, min((int)pApp->GetProfileInt(szInstrument, _T("Pressure"), nPressure), 1100));

	// the marked columns: their bytes are kept
	LPBYTE pBytes = NULL;
	UINT nBytes = 0;
	if (pApp->GetProfileBinary(szOutput, _T("Columns"), &pBytes, &nBytes))
	{
		if (nBytes == sizeof(dwColumns))
			memcpy(&dwColumns, pBytes, nBytes);
		delete [] pBytes;
	}
	nSeparator = pApp->GetProfileInt(szOutput, _T("Separator"), nSeparator);
}

void SETTINGS::Save() const
{
	CWinApp* pApp = AfxGetApp();
	VERIFY(pApp->WriteProfileString(szInstrument, _T("Model"), strModel));
	pApp->WriteProfileString(szInstrument, _T("Serial"), strSerial.IsEmpty() ? NULL : (LPCTSTR)strSerial);
	pApp->WriteProfileInt(szInstrument, _T("Prism"), nPrism);
	pApp->WriteProfileInt(szInstrument, _T("Constant"), nConstant);
	pApp->WriteProfileInt(szInstrument, _T("Pressure"), nPressure);
	pApp->WriteProfileBinary(szOutput, _T("Columns"), (LPBYTE)&dwColumns, sizeof(dwColumns));
	pApp->WriteProfileInt(szOutput, _T("Separator"), nSeparator);
}

// CStationSetupApp

BEGIN_MESSAGE_MAP(CStationSetupApp, CWinApp)
	ON_COMMAND(ID_HELP, &CWinApp::OnHelp)
END_MESSAGE_MAP()

CStationSetupApp::CStationSetupApp()
	: m_mutex(FALSE, _T("StationSetup.Running"))
{
	SetAppID(_T("Levelling.StationSetup.1"));
}

CStationSetupApp theApp;

BOOL CStationSetupApp::IsFirst()
{
	return ::WaitForSingleObject(m_mutex, 0) != WAIT_TIMEOUT;
}

BOOL CStationSetupApp::InitInstance()
{
	// visual styles need the common controls to be asked for
	INITCOMMONCONTROLSEX InitCtrls;
	InitCtrls.dwSize = sizeof(InitCtrls);
	InitCtrls.dwICC = ICC_WIN95_CLASSES;
	InitCommonControlsEx(&InitCtrls);

	CWinApp::InitInstance();

	AfxEnableControlContainer();

	CShellManager *pShellManager = new CShellManager;

	CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerWindows));

	SetRegistryKey(_T("Levelling Tools"));

	if (IsFirst())
	{
		m_settings.Load();
		CSetupSheet sheet(IDS_SHEET_TITLE, NULL, GetProfileInt(_T("Use"), _T("Page"), 0));
		// not the main window: its end would quit, and close the message box behind it
		INT_PTR nResponse = sheet.DoModal();
		if (nResponse == IDOK)
		{
			CString strText;
			strText.Format(IDS_SUMMARY, (LPCTSTR)m_settings.strModel, m_settings.nPressure);
			AfxMessageBox(strText, MB_OK | MB_ICONINFORMATION);
		}
		else if (nResponse == -1)
		{
			TRACE(traceAppMsg, 0, "StationSetup: the sheet could not be created.\n");
		}
	}
	else
	{
		AfxMessageBox(IDS_ALREADY_RUNNING);
	}

	delete pShellManager;

	TRACE0("StationSetup: end\n");
	return FALSE;
}
