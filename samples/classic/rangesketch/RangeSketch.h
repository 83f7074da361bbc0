// RangeSketch.h : the application class
//

#pragma once

#include "resource.h"

class CRangeSketchApp : public CWinApp
{
public:
	virtual BOOL InitInstance();
	virtual BOOL OnIdle(LONG lCount);

	afx_msg void OnAppAbout();
	DECLARE_MESSAGE_MAP()
};

extern CRangeSketchApp theApp;
