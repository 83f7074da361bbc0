// stdafx.h : what all sources of this program include
//

#if !defined(AFX_STDAFX_H__5C1B8A34_77E2_4E0B_9A5D_2D0F2B6C1101__INCLUDED_)
#define AFX_STDAFX_H__5C1B8A34_77E2_4E0B_9A5D_2D0F2B6C1101__INCLUDED_

#if _MSC_VER > 1000
#pragma once
#endif // _MSC_VER > 1000

#define VC_EXTRALEAN		// the short form of the system's headers

#include <afxwin.h>         // windows, dialogs, controls
#include <afxext.h>         // further classes
#include <afxdtctl.h>		// dates and calendars
#ifndef _AFX_NO_AFXCMN_SUPPORT
#include <afxcmn.h>			// common controls
#endif // _AFX_NO_AFXCMN_SUPPORT

//{{AFX_INSERT_LOCATION}}

#endif // !defined(AFX_STDAFX_H__5C1B8A34_77E2_4E0B_9A5D_2D0F2B6C1101__INCLUDED_)
