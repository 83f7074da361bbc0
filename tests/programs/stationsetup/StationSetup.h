// StationSetup.h : the application class and its settings
//

#pragma once

#ifndef __AFXWIN_H__
	#error "stdafx.h has to come first"
#endif

#include "resource.h"

// What the pages edit and the profile keeps.
struct SETTINGS
{
	CString strModel;
	CString strSerial;
	double dHeight;			// metres
	int nPrism;
	int nConstant;			// tenths of a millimetre
	BOOL bTracking;
	int nTemperature;		// degrees Celsius
	int nPressure;			// hectopascals
	BOOL bCurvature;
	CString strFolder;
	DWORD dwColumns;		// a bit a column
	int nSeparator;

	SETTINGS();
	void Load();
	void Save() const;
	// The correction of distances, millionths.
	double GetPpm() const;
};

// CStationSetupApp

class CStationSetupApp : public CWinApp
{
public:
	CStationSetupApp();

	SETTINGS m_settings;

// Overrides
public:
	virtual BOOL InitInstance();
	virtual int ExitInstance();

// Implementation
private:
	CMutex m_mutex;

	BOOL IsFirst();
	void NoteUse();

	DECLARE_MESSAGE_MAP()
};

extern CStationSetupApp theApp;
