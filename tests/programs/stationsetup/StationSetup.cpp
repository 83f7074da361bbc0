// StationSetup.cpp : start and end of the program, the profile
//

#include "stdafx.h"
#include "StationSetup.h"
#include "SetupSheet.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

static const TCHAR szInstrument[] = _T("Instrument");
static const TCHAR szAtmosphere[] = _T("Atmosphere");
static const TCHAR szOutput[] = _T("Output");

// SETTINGS

SETTINGS::SETTINGS()
	: strModel(_T("TS-2")), dHeight(1.5), nPrism(0), nConstant(0), bTracking(FALSE),
	  nTemperature(15), nPressure(1013), bCurvature(TRUE), dwColumns(0x0F), nSeparator(0)
{
}

void SETTINGS::Load()
{
	CWinApp* pApp = AfxGetApp();
	strModel = pApp->GetProfileString(szInstrument, _T("Model"), strModel);
	strSerial = pApp->GetProfileString(szInstrument, _T("Serial"));
	nPrism = pApp->GetProfileInt(szInstrument, _T("Prism"), nPrism);
	nConstant = (short)pApp->GetProfileInt(szInstrument, _T("Constant"), nConstant);
	bTracking = pApp->GetProfileInt(szInstrument, _T("Tracking"), bTracking) != 0;

	// a height has no profile function of its own: its bytes are kept
	LPBYTE pBytes = NULL;
	UINT nBytes = 0;
	if (pApp->GetProfileBinary(szInstrument, _T("Height"), &pBytes, &nBytes))
	{
		if (nBytes == sizeof(dHeight))
			memcpy(&dHeight, pBytes, nBytes);
		delete [] pBytes;
	}

	nTemperature = pApp->GetProfileInt(szAtmosphere, _T("Temperature"), nTemperature);
	nPressure = pApp->GetProfileInt(szAtmosphere, _T("Pressure"), nPressure);
	bCurvature = pApp->GetProfileInt(szAtmosphere, _T("Curvature"), bCurvature) != 0;
	nTemperature = max(-30, min(nTemperature, 50));
	nPressure = max(500, min(nPressure, 1100));

	strFolder = pApp->GetProfileString(szOutput, _T("Folder"), _T("C:\\"));
	dwColumns = pApp->GetProfileInt(szOutput, _T("Columns"), dwColumns);
	nSeparator = pApp->GetProfileInt(szOutput, _T("Separator"), nSeparator);
}

void SETTINGS::Save() const
{
	CWinApp* pApp = AfxGetApp();
	VERIFY(pApp->WriteProfileString(szInstrument, _T("Model"), strModel));
	pApp->WriteProfileString(szInstrument, _T("Serial"), strSerial.IsEmpty() ? NULL : (LPCTSTR)strSerial);
	pApp->WriteProfileInt(szInstrument, _T("Prism"), nPrism);
	pApp->WriteProfileInt(szInstrument, _T("Constant"), nConstant);
	pApp->WriteProfileInt(szInstrument, _T("Tracking"), bTracking);
	pApp->WriteProfileBinary(szInstrument, _T("Height"), (LPBYTE)&dHeight, sizeof(dHeight));
	pApp->WriteProfileInt(szAtmosphere, _T("Temperature"), nTemperature);
	pApp->WriteProfileInt(szAtmosphere, _T("Pressure"), nPressure);
	pApp->WriteProfileInt(szAtmosphere, _T("Curvature"), bCurvature);
	pApp->WriteProfileString(szOutput, _T("Folder"), strFolder);
	pApp->WriteProfileInt(szOutput, _T("Columns"), dwColumns);
	pApp->WriteProfileInt(szOutput, _T("Separator"), nSeparator);
}

double SETTINGS::GetPpm() const
{
	return 281.8 - 0.29065 * nPressure / (1.0 + nTemperature / 273.15);
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

// Counts the runs and keeps the day of the last one.
void CStationSetupApp::NoteUse()
{
	int nRuns = GetProfileInt(_T("Use"), _T("Runs"), 0) + 1;
	WriteProfileInt(_T("Use"), _T("Runs"), nRuns);
	CTime now = CTime::GetCurrentTime();
	WriteProfileString(_T("Use"), _T("Last"), now.Format(_T("%Y-%m-%d")));
	TRACE(_T("StationSetup: run %d at %s\n"), nRuns, now.Format(_T("%H:%M:%S")).GetString());
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
			strText.Format(IDS_SUMMARY, (LPCTSTR)m_settings.strModel, m_settings.dHeight, m_settings.GetPpm());
			AfxMessageBox(strText, MB_OK | MB_ICONINFORMATION);
		}
		else if (nResponse == -1)
		{
			TRACE(traceAppMsg, 0, "StationSetup: the sheet could not be created.\n");
		}
		NoteUse();
	}
	else
	{
		AfxMessageBox(IDS_ALREADY_RUNNING);
	}

	if (pShellManager != NULL)
	{
		delete pShellManager;
	}

	return FALSE;
}

int CStationSetupApp::ExitInstance()
{
	TRACE0("StationSetup: end\n");
	return CWinApp::ExitInstance();
}
