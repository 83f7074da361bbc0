// LevelNote.h : the application class
//

#if !defined(AFX_LEVELNOTE_H__5C1B8A36_77E2_4E0B_9A5D_2D0F2B6C1101__INCLUDED_)
#define AFX_LEVELNOTE_H__5C1B8A36_77E2_4E0B_9A5D_2D0F2B6C1101__INCLUDED_

#if _MSC_VER > 1000
#pragma once
#endif // _MSC_VER > 1000

#ifndef __AFXWIN_H__
	#error stdafx.h has to come first
#endif

#include "resource.h"

/////////////////////////////////////////////////////////////////////////////
// CLevelNoteApp
//

class CLevelNoteApp : public CWinApp
{
public:
	CLevelNoteApp();

// Overrides
	//{{AFX_VIRTUAL(CLevelNoteApp)
	public:
	virtual BOOL InitInstance();
	//}}AFX_VIRTUAL

// Implementation

	//{{AFX_MSG(CLevelNoteApp)
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////

//{{AFX_INSERT_LOCATION}}

#endif // !defined(AFX_LEVELNOTE_H__5C1B8A36_77E2_4E0B_9A5D_2D0F2B6C1101__INCLUDED_)
