// PointBrowser.h : the application class
//

#pragma once

#ifndef __AFXWIN_H__
	#error stdafx.h has to come first
#endif

#include "resource.h"

class CPointBrowserApp : public CWinApp
{
	//{{AFX_VIRTUAL(CPointBrowserApp)
	public:
	virtual BOOL InitInstance();
	//}}AFX_VIRTUAL

	//{{AFX_MSG(CPointBrowserApp)
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
};
