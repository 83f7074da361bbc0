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
	int nPrism;
	int nConstant;			// tenths of a millimetre
	int nPressure;			// hectopascals
	DWORD dwColumns;		// a bit a column
	int nSeparator;

	SETTINGS();
	void Load();
	void Save() const;
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

// Implementation
private:
	CMutex m_mutex;

	BOOL IsFirst();

	DECLARE_MESSAGE_MAP()
};

extern CStationSetupApp theApp;
